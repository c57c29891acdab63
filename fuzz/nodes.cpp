// Any bytes read by the node whose element they begin with. What has been read can be written, and
// what has been written reads back and is written as it was.
#include <string>

#include "exports/documents.h"
#include "support.h"
#include "xml/reader.h"

namespace {

using namespace tolva::fuzz;
using namespace tolva::node;
using Node = std::unique_ptr<INode>;

struct Factory {
  INode* (*make)();
  INode* (*copy)(const INode& node);
  const Schema* schema;
};

template <class C, class I>
INode* Copy(const INode& node) {
  return std::make_unique<C>(static_cast<const C&>(node)).release();
}

const Factory kFactories[] = {
#define TOLVA_FACTORY(space, name, node, type)                                                    \
  {[]() -> INode* { return space::name##_CreateNewInstance(); }, &Copy<space::node, space::type>, \
   &space::node::kSchema},
#include "exports/factories.def"
#undef TOLVA_FACTORY
};

ConfigResult Read(const MemoryFile& file, INode& node) {
  tolva::xml::CXMLLiteManagerReader reader;
  Expect(reader.OpenFile(file.path()) == 0, "a file to read");
  return node.ReadFromXMLMgr(&reader);
}

/// A text that is empty cannot be told from none when it is read.
bool HasEmptyText(const std::string& document) {
  for (const char* const name : {"name", "value", "location", "context", "classifierType",
                                 "policyID", "severity", "Content", "Description"}) {
    if (document.find(std::string("<") + name + "></") != std::string::npos) return true;
  }
  return false;
}

void TryOne(const Factory& factory, const MemoryFile& input) {
  static const MemoryFile output;
  const Node node(factory.make());
  if (Read(input, *node) != 0) {
    // Whatever the document held, the node is clear, and can be used.
    const Node cleared(factory.copy(*node));
    cleared->Clear();
    if (!IsWritten(output, *node)) return;
    const std::string after_failure = output.Read();
    Expect(IsWritten(output, *cleared) && output.Read() == after_failure, "a clear node");
    return;
  }
  if (!IsWritten(output, *node)) return;
  const std::string first = output.Read();

  const Node copy(factory.copy(*node));
  Expect(IsWritten(output, *copy) && output.Read() == first, "a copy that is equal");
  if (HasEmptyText(first)) return;

  output.Write(first);
  const Node again(factory.make());
  Expect(Read(output, *again) == 0, "that what was written can be read");
  Expect(IsWritten(output, *again) && output.Read() == first, "that it is what was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile input;
  input.Write(Text(data, size));
  tolva::xml::CXMLLiteManagerReader reader;
  if (reader.OpenFile(input.path()) != 0) return 0;
  const std::string element(reader.GetLocalName());
  for (const Factory& factory : kFactories) {
    if (factory.schema->element == std::string_view(element)) TryOne(factory, input);
  }
  return 0;
}
