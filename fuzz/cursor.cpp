// Calls of the cursor in any order: the last bytes of the document are the program as well.
#include <iterator>
#include <numeric>

#include "support.h"
#include "xml/reader.h"

namespace {

using namespace tolva::fuzz;
using namespace tolva::platform;
using tolva::xml::CXMLLiteManagerReader;

constexpr std::size_t kProgram = 48;
struct AttributeRow {
  Name name;
};
constexpr AttributeRow kAttributeRows[] = {{L"Name"}, {L"Enabled"}, {L"a"}, {L"value"}};
const Names kAttributes(std::span<const AttributeRow>(kAttributeRows), &AttributeRow::name);

struct TagRow {
  KnownTag tag;
};
const TagRow kTagRows[] = {{{L"Location", &kAttributes}}, {{L"a", &kAttributes}}};
const KnownTags kTags(std::span<const TagRow>(kTagRows), &TagRow::tag);

/// Reads every byte of a value that the cursor has handed out.
void Use(std::string_view value) {
  [[maybe_unused]] static volatile char used = 0;
  used = std::accumulate(value.begin(), value.end(), '\0', std::bit_xor<>());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  file.Write(Text(data, size));
  CXMLLiteManagerReader reader;
  if (reader.OpenFile(file.path()) != 0) return 0;
  const std::uint8_t* const program = size > kProgram ? data + size - kProgram : data;
  std::size_t moves = 0;
  std::size_t tag = 0;
  for (const std::uint8_t* at = program; moves <= size + 1;) {
    const std::uint8_t call = *at;
    if (++at == data + size) at = program;
    ++moves;
    const int kind = call % 8;
    if (kind == 0) reader.SkipElement();
    if (kind == 1) Use(reader.GetText());
    if (kind == 2) {
      reader.FindAttributes(kAttributes);
      Use(reader.GetAttribute(call / 8 % std::size(kAttributeRows)));
      reader.StoreAttributeError();
    }
    if (kind == 3) Use(reader.GetLocalName());
    if (kind == 4 && reader.FinishElement() == 0) return 0;
    if (call == 253) reader.Close();
    if (kind == 6) {
      tag %= std::size(kTagRows);
      if (reader.NextNode(kTags, tag) == 0 && call > 128) return 0;
    }
    if (kind == 7 && reader.NextNode() == 0 && call > 128) return 0;
  }
  return 0;
}
