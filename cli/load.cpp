#include "cli/load.h"

#include <tolva/support/save.h>

#include <optional>
#include <utility>

#include "cli/byte_form.h"
#include "cli/check_walk.h"
#include "cli/text.h"
#include "support/errors.h"
#include "xml/reader.h"
#include "xml/writer.h"

namespace tolva::cli {
namespace {

/// Keeps the first error.
class FirstError final : public FindingSink {
 public:
  bool Count(Code code) override { return InfoOf(code).is_error && !error.has_value(); }
  void Add(Finding finding) override { error = std::move(finding); }

  std::optional<Finding> error;
};

}  // namespace

std::string ReadBytes(const Input& input) {
  constexpr ULONG kBlock = 1U << 16;
  const auto stream = OpenInput(input);
  std::string bytes;
  for (ULONG count = kBlock; count == kBlock;) {
    const std::size_t size = bytes.size();
    bytes.resize(size + kBlock);
    const HRESULT result = stream->Read(bytes.data() + size, kBlock, &count);
    bytes.resize(size + count);
    if (FAILED(result)) {
      throw Trouble("'" + Printable(input.name) + "' cannot be read: " + ReasonOf(result));
    }
  }
  return bytes;
}

Loaded LoadDocument(const Input& input, const Document* expected) {
  return LoadBytes(ReadBytes(input), input.name, expected);
}

Loaded LoadBytes(std::string bytes, const std::string& name, const Document* expected) {
  FirstError sink;
  const WalkOutcome outcome = WalkDocument(*StreamOf(bytes).Get(), {.expected = expected}, sink);
  if (sink.error.has_value()) {
    const Position& position = sink.error->position;
    throw Trouble(Printable(name) + ":" + std::to_string(position.line) + ":" +
                  std::to_string(position.column) + ": " + sink.error->message);
  }
  Loaded loaded = {outcome.document, std::move(bytes), outcome.document->make()};
  xml::CXMLLiteManagerReader reader;
  if (reader.OpenStream(*StreamOf(loaded.bytes).Get()) != 0 ||
      loaded.root->ReadFromXMLMgr(&reader) != 0) {
    throw Trouble("'" + Printable(name) + "' is not read by the library");
  }
  return loaded;
}

std::string WrittenForm(const Document& document, const node::INode& root) {
  std::string bytes;
  xml::CXMLLiteManagerWriter writer;
  if (writer.OpenStream(*StreamInto(bytes).Get()) != 0 || root.WriteToXMLMgr(&writer) != 0 ||
      writer.Close() != 0) {
    throw Trouble("the library cannot write this '" + document.root().name + "'");
  }
  return bytes;
}

void DeliverDocument(Session& session, const Destination& destination, std::string_view bytes) {
  if (!session.out.IsTerminal() || destination.IsFile()) {
    Deliver(session, destination, bytes);
  } else {
    session.out.Write(PrintableLines(TextOf(bytes, FormOf(*StreamOf(bytes).Get()))));
  }
}

void ReplaceFile(const Input& input, std::string_view before, std::string_view after,
                 bool is_forced) {
  if (ReadBytes(input) != before) {
    throw Trouble("'" + Printable(input.name) + "' changed meanwhile; it is left as it is");
  }
  const support::SaveReport report =
      support::SaveBytes(after, PathOf(input.name), {.break_hard_links = is_forced});
  if (!report) {
    throw Trouble("'" + Printable(input.name) +
                  "' is not written: " + support::internal::Phrase(report.message));
  }
}

}  // namespace tolva::cli
