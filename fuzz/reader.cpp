// Bytes through the XML reader: the same nodes whatever pieces they come in.
#include <algorithm>
#include <string>

#include "platform/platform.h"
#include "platform/xml/parser.h"
#include "support.h"

namespace {

using namespace tolva::platform;
using namespace tolva::fuzz;

void Add(std::string& account, std::string_view text) {
  account += text;
  account += '\n';
}

/// Everything that the parser has to say of a document.
std::string AccountOf(std::string_view document, std::size_t piece) {
  own_xml::Parser parser;
  auto* const stream = new PieceStream(document, piece);
  parser.SetInput(stream, false);
  stream->Release();
  std::string account;
  Buffer<char> value;
  own_xml::ReadResult result = own_xml::ReadResult::kNode;
  std::size_t nodes = 0;
  while ((result = parser.Read()) == own_xml::ReadResult::kNode) {
    Expect(++nodes <= document.size(), "no more nodes than bytes");
    Add(account, std::to_string(parser.type()));
    Add(account, parser.name().text);
    value.Clear();
    own_xml::AppendValue(parser.value(),
                         parser.type() == XmlNodeType_Text ? own_xml::ValueKind::kText
                                                           : own_xml::ValueKind::kLiteral,
                         value);
    Add(account, {value.data(), value.size()});
    for (const own_xml::Attribute& attribute : parser.attributes()) {
      Add(account, attribute.name.text);
      value.Clear();
      own_xml::AppendValue(attribute.value, own_xml::ValueKind::kAttribute, value);
      Add(account, {value.data(), value.size()});
    }
  }
  Expect(parser.Read() == result, "a verdict that stays");
  const bool has_ended = result == own_xml::ReadResult::kEnd;
  Add(account, has_ended ? "end" : std::to_string(parser.fault()));
  return account;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view document = Text(data, size);
  const std::string whole = AccountOf(document, std::max<std::size_t>(size, 1));
  Expect(AccountOf(document, 1) == whole, "the same nodes from single bytes");
  Expect(AccountOf(document, 7) == whole, "the same nodes from pieces of 7 bytes");
  return 0;
}
