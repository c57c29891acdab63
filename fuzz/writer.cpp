// Calls of the writer in any order: what succeeded stands in the file, and nothing else.
#include <iterator>
#include <string>
#include <vector>

#include "platform/utf.h"
#include "platform/xml/parser.h"
#include "support.h"
#include "support/streams.h"
#include "xml/writer.h"

namespace {

using namespace tolva::platform;
using namespace tolva::fuzz;
using tolva::xml::CXMLLiteManagerWriter;
using End = CXMLLiteManagerWriter::End;

constexpr Name kElements[] = {L"a", L"Name", L"b-c_d.e",
                              L"ANameOfTheGreatestLengthThatATableCanHave123"};
constexpr Name kAttributes[] = {L"Name", L"a", L"enabled", L"A1", L"x", L"y"};
constexpr std::string_view kPlain[] = {"0", "-1", "4294967295", "true"};

/// Bytes as a program: calls and their arguments.
class Program {
 public:
  Program(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

  bool IsOver() const { return at_ == end_; }
  std::uint8_t Take() { return IsOver() ? 0 : *at_++; }
  const Name& TakeElement() { return kElements[Take() % std::size(kElements)]; }

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

 private:
  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

/// What the file should hold: start tags with their attributes, texts, end tags.
struct Account {
  std::vector<std::string> events;

  void Add(char kind, std::string_view text = {}) { events.push_back(kind + std::string(text)); }
  void AddAttribute(std::string_view name, std::string_view value) {
    Add('a', std::string(name) + "=" + std::string(value));
  }
  void AddText(std::string_view text) {
    if (!text.empty()) Add('t', text);
  }
};

std::string Utf8(const std::wstring& text) {
  std::string utf8;
  AppendUtf8(text, utf8);
  return utf8;
}

Account ReadAccount(std::string_view document) {
  tolva::test::TextStream stream(document);
  own_xml::Parser parser;
  parser.SetInput(&stream, false);
  Account account;
  const auto value_of = [](std::string_view raw, own_xml::ValueKind kind) {
    Buffer<char> value;
    own_xml::AppendValue(raw, kind, value);
    return std::string(value.data(), value.size());
  };
  own_xml::ReadResult result = own_xml::ReadResult::kNode;
  while ((result = parser.Read()) == own_xml::ReadResult::kNode) {
    if (parser.type() == XmlNodeType_Element) {
      account.Add('s', parser.name().text);
      for (const own_xml::Attribute& attribute : parser.attributes()) {
        account.AddAttribute(attribute.name.text,
                             value_of(attribute.value, own_xml::ValueKind::kAttribute));
      }
      if (parser.is_empty_element()) account.Add('e');
    } else if (parser.type() == XmlNodeType_Text) {
      account.AddText(value_of(parser.value(), own_xml::ValueKind::kText));
    } else if (parser.type() == XmlNodeType_EndElement) {
      account.Add('e');
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
  std::size_t next_attribute = 0;  // an element has none of its attributes twice
  for (Program program(data, size); !program.IsOver();) {
    const std::uint8_t call = program.Take();
    const int kind = call / 5 % 4;
    const std::string_view plain = kPlain[call / 20 % std::size(kPlain)];
    const auto take_text = [&](bool is_plain) {
      return is_plain ? std::wstring(plain.begin(), plain.end()) : program.TakeText();
    };
    switch (call % 5) {
      case 0: {
        if (depth == 255) break;  // deeper than can be read
        const Name& name = program.TakeElement();
        if (writer.StartElement(name) == 0) {
          account.Add('s', name.narrow());
          next_attribute = 0;
          ++depth;
        }
        break;
      }
      case 1: {
        if (next_attribute == std::size(kAttributes)) break;
        const Name& name = kAttributes[next_attribute++];
        const std::wstring text = take_text(kind == 0);
        const int result =
            kind == 0 ? writer.WritePlainAttribute(name, plain) : writer.WriteAttribute(name, text);
        if (result == 0) account.AddAttribute(name.narrow(), Utf8(text));
        break;
      }
      case 2: {
        if (writer.EndElement(kind % 2 == 0 ? End::kEmptyTag : End::kEndTag) == 0) {
          account.Add('e');
          --depth;
        }
        break;
      }
      default: {
        const Name& name = program.TakeElement();
        const std::wstring text = kind == 0 ? L"" : take_text(kind == 1);
        const int result = kind == 0   ? writer.WriteEmptyElement(name)
                           : kind == 1 ? writer.WritePlainElement(name, plain)
                                       : writer.WriteElement(name, text);
        if (result == 0) {
          account.Add('s', name.narrow());
          account.AddText(Utf8(text));
          account.Add('e');
          next_attribute = std::size(kAttributes);
        }
        break;
      }
    }
    Expect(depth >= 0, "no more ends than starts");
  }
  if (writer.Close() != 0) return 0;
  for (; depth != 0; --depth) account.Add('e');
  Expect(account.events == ReadAccount(file.Read()).events, "what was written");
  return 0;
}
