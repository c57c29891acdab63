// Calls of the writer in any order: what succeeded stands in the file, and nothing else.
#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "platform/utf.h"
#include "platform/xml/parser.h"
#include "support.h"
#include "xml/writer.h"

namespace {

using namespace tolva::platform;
using namespace tolva::fuzz;
using tolva::xml::CXMLLiteManagerWriter;

/// Bytes as a program: calls and their arguments.
class Program {
 public:
  Program(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

  bool IsOver() const { return at_ == end_; }
  std::uint8_t Take() { return IsOver() ? 0 : *at_++; }

  /// Mostly legal, mostly short.
  std::wstring TakeText() {
    std::wstring text;
    for (std::uint8_t left = Take() % 12; left != 0; --left) {
      const std::uint8_t byte = Take();
      static constexpr wchar_t kOthers[] = {0x09,   0x0A,   0x0D,     0x20,   0x85,
                                            0xE9,   0x20AC, 0x00,     0x2028, 0xD800,
                                            0xDFFF, 0xFFFE, 0x10FFFF, 0x1F600};
      text += byte < 0x20 ? kOthers[byte % std::size(kOthers)] : static_cast<wchar_t>(byte);
    }
    return text;
  }

  std::wstring TakeName() {
    static const wchar_t* const kNames[] = {L"a", L"Name", L"\u00E9", L"a:b", L"1", L"x y", L""};
    return kNames[Take() % std::size(kNames)];
  }

 private:
  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

/// What the file should hold: start tags with their attributes, texts, end tags.
struct Account {
  std::vector<std::string> events;

  void Add(char kind, std::string_view text = {}) { events.push_back(kind + std::string(text)); }
  void AddText(std::string_view text) {
    if (!text.empty()) Add('t', text);
  }
};

std::string Utf8(const std::wstring& text) {
  std::string utf8;
  AppendUtf8(text, utf8);
  return utf8;
}

/// Without the blanks around texts that share their element with other elements: the layout adds
/// some there.
std::string Trimmed(const std::string& text) {
  const std::size_t start = text.find_first_not_of(" \n");
  const std::size_t end = text.find_last_not_of(" \n");
  return start == std::string::npos ? "" : text.substr(start, end + 1 - start);
}

bool AreEqual(const std::vector<std::string>& left, const std::vector<std::string>& right) {
  if (left.size() != right.size()) return false;
  for (std::size_t i = 0; i < left.size(); ++i) {
    if (left[i] == right[i]) continue;
    const bool are_texts = left[i][0] == 't' && right[i][0] == 't';
    const bool is_alone = are_texts && left[i - 1][0] != 'e' && left[i + 1][0] == 'e';
    if (!are_texts || is_alone) return false;
    if (Trimmed(left[i].substr(1)) != Trimmed(right[i].substr(1))) return false;
  }
  return true;
}

Account ReadAccount(std::string_view document) {
  own_xml::Parser parser;
  auto* const stream = new PieceStream(document, document.size());
  parser.SetInput(stream, false);
  stream->Release();
  Account account;
  Buffer<char> value;
  own_xml::ReadResult result = own_xml::ReadResult::kNode;
  while ((result = parser.Read()) == own_xml::ReadResult::kNode) {
    value.Clear();
    switch (parser.type()) {
      case XmlNodeType_Element:
        account.Add('s', parser.name().text);
        for (const own_xml::Attribute& attribute : parser.attributes()) {
          value.Clear();
          own_xml::AppendValue(attribute.value, own_xml::ValueKind::kAttribute, value);
          account.Add('a', std::string(attribute.name.text) + "=" +
                               std::string(value.data(), value.size()));
        }
        if (parser.is_empty_element()) account.Add('e');
        break;
      case XmlNodeType_Text:
        own_xml::AppendValue(parser.value(), own_xml::ValueKind::kText, value);
        account.AddText({value.data(), value.size()});
        break;
      case XmlNodeType_EndElement:
        account.Add('e');
        break;
      default:
        break;
    }
  }
  Expect(result == own_xml::ReadResult::kEnd, "a document that is well-formed");
  return account;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  CXMLLiteManagerWriter writer;
  if (writer.OpenFile(file.path()) != 0) return 0;
  Account account;
  int depth = 0;
  for (Program program(data, size); !program.IsOver();) {
    switch (program.Take() % 5) {
      case 0: {
        const std::wstring name = program.TakeName();
        if (depth == 255) break;  // deeper than can be read
        if (writer.StartElement(name.c_str()) == 0) {
          account.Add('s', Utf8(name));
          ++depth;
        }
        break;
      }
      case 1: {
        const std::wstring name = program.TakeName();
        const std::wstring value = program.TakeText();
        if (writer.WriteAttribute(name.c_str(), value) == 0) {
          account.Add('a', Utf8(name) + "=" + Utf8(value));
        }
        break;
      }
      case 2:
        if (writer.EndElement(nullptr) == 0) {
          account.Add('e');
          --depth;
        }
        break;
      case 3: {
        const std::wstring text = program.TakeText();
        if (writer.EndElement(text) == 0) {
          account.AddText(Utf8(text));
          account.Add('e');
          --depth;
        }
        break;
      }
      default: {
        const std::wstring name = program.TakeName();
        const std::wstring text = program.TakeText();
        if (writer.WriteElementString(name.c_str(), text) == 0) {
          account.Add('s', Utf8(name));
          account.AddText(Utf8(text));
          account.Add('e');
        }
        break;
      }
    }
    Expect(depth >= 0, "no more ends than starts");
  }
  if (writer.Close() != 0) return 0;
  for (; depth != 0; --depth) account.Add('e');
  Expect(AreEqual(account.events, ReadAccount(file.Read()).events), "what was written");
  return 0;
}
