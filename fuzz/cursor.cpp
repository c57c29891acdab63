// Calls of the cursor in any order: the last bytes of the document are the program as well.
#include <cwchar>
#include <iterator>

#include "support.h"
#include "xml/reader.h"

namespace {

using namespace tolva::fuzz;
using tolva::xml::CXMLLiteManagerReader;

constexpr std::size_t kProgram = 48;
const wchar_t* const kNames[] = {L"Name", L"Enabled", L"a", L"xmlns", L"p:a", L"", nullptr};

/// Reads a string that the cursor has handed out to its end.
void Use(const wchar_t* text) {
  static volatile std::size_t length = 0;
  if (text != nullptr) length = length + std::wcslen(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  file.Write(Text(data, size));
  CXMLLiteManagerReader reader;
  if (reader.OpenFile(file.path()) != 0) return 0;
  const std::uint8_t* const program = size > kProgram ? data + size - kProgram : data;
  std::size_t moves = 0;
  for (const std::uint8_t* at = program; moves <= size + 1;) {
    const std::uint8_t call = *at;
    if (++at == data + size) at = program;
    ++moves;
    switch (call % 8) {
      case 0:
        reader.SkipElement();
        break;
      case 1:
        Use(reader.GetText());
        break;
      case 2:
        Use(reader.GetAttribute(kNames[call / 8 % std::size(kNames)]));
        break;
      case 3:
        Use(reader.GetLocalName());
        break;
      case 4:
        if (reader.FinishElement() == 0) return 0;
        break;
      case 5:
        if (call == 253) reader.Close();
        break;
      default:
        if (reader.NextNode() == 0 && call > 128) return 0;
        break;
    }
  }
  return 0;
}
