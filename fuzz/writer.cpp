// Calls of the writer in any order: what succeeded stands in the file, and nothing else.
#include <iterator>
#include <string>
#include <vector>

#include "differential/compare.h"
#include "platform/utf.h"
#include "support.h"
#include "xml/writer.h"

namespace {

using namespace tolva::platform;
using namespace tolva::fuzz;
using namespace tolva::test;
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

std::string Utf8(const std::wstring& text) {
  std::string utf8;
  AppendUtf8(text, utf8);
  return utf8;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  CXMLLiteManagerWriter writer;
  if (writer.OpenFile(file.path()) != 0) return 0;
  Nodes expected;
  expected.Begin('D');
  expected.Begin('T', "\n");
  std::vector<const Name*> open;
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
        if (open.size() == 255) break;  // deeper than can be read
        const Name& name = program.TakeElement();
        if (writer.StartElement(name) == 0) {
          expected.Begin('<', name.narrow());
          next_attribute = 0;
          open.push_back(&name);
        }
        break;
      }
      case 1: {
        if (next_attribute == std::size(kAttributes)) break;
        const Name& name = kAttributes[next_attribute++];
        const std::wstring text = take_text(kind == 0);
        const int result =
            kind == 0 ? writer.WritePlainAttribute(name, plain) : writer.WriteAttribute(name, text);
        if (result != 0) break;
        expected.Add(name.narrow());
        expected.Add(Utf8(text));
        break;
      }
      case 2: {
        if (writer.EndElement(kind % 2 == 0 ? End::kEmptyTag : End::kEndTag) == 0) {
          Expect(!open.empty(), "no more ends than starts");
          expected.Begin('>', open.back()->narrow());
          open.pop_back();
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
          expected.Begin('<', name.narrow());
          if (!text.empty()) expected.Begin('T', Utf8(text));
          expected.Begin('>', name.narrow());
          next_attribute = std::size(kAttributes);
        }
        break;
      }
    }
  }
  if (writer.Close() != 0) return 0;
  for (; !open.empty(); open.pop_back()) expected.Begin('>', open.back()->narrow());
  expected.Begin('T', "\n");
  const std::string document = file.Read();
  Expect(OwnFault(document) == S_OK, "a document that is well-formed");
  Expect(OwnTags(document) == expected.text(), "what was written");
  return 0;
}
