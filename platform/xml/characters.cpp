#include "platform/xml/characters.h"

#include <algorithm>

namespace tolva::platform::own_xml {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// Productions [4] and [4a] of XML 1.0, fifth edition, without ASCII.
constexpr Range kStartRanges[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};
constexpr Range kFurtherRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], char32_t c) {
  return std::any_of(ranges, ranges + Count,
                     [c](const Range& range) { return c >= range.first && c <= range.last; });
}

}  // namespace

bool IsNameStartCharacter(char32_t c) { return IsIn(kStartRanges, c); }

bool IsNameCharacter(char32_t c) {
  if (c < 0x80) return IsClass(static_cast<char>(c), kName);
  return IsIn(kStartRanges, c) || IsIn(kFurtherRanges, c);
}

const char* SkipNonAsciiName(const char* at, bool started) {
  for (;;) {
    const char* next = at;
    const char32_t c = TakeCodePoint(next);
    if (!(started ? IsNameCharacter(c) : IsNameStartCharacter(c))) return at;
    at = next;
    started = true;
  }
}

}  // namespace tolva::platform::own_xml
