#include <tolva/support/text.h>

#include "support/unicode.h"

namespace tolva::support {
namespace internal {
namespace {

/// What the first byte of a UTF-8 sequence says of it.
struct Lead {
  int further;          ///< bytes that follow; -1: no sequence starts with this byte
  unsigned low = 0x80;  ///< the least and the greatest second byte
  unsigned high = 0xBF;
};

Lead LeadOf(unsigned byte) {
  if (byte < 0x80) return {0};
  if (byte < 0xC2 || byte > 0xF4) return {-1};
  if (byte < 0xE0) return {1};
  if (byte == 0xE0) return {2, 0xA0, 0xBF};  // no longer than needed
  if (byte == 0xED) return {2, 0x80, 0x9F};  // no surrogates
  if (byte < 0xF0) return {2};
  if (byte == 0xF0) return {3, 0x90, 0xBF};  // no longer than needed
  if (byte == 0xF4) return {3, 0x80, 0x8F};  // no more than U+10FFFF
  return {3};
}

void AppendWide(char32_t c, std::wstring& text) {
  if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
    text += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  } else {
    text += static_cast<wchar_t>(c);
  }
}

}  // namespace

char32_t TakeCodePoint(const wchar_t*& at, const wchar_t* end) {
  const auto first = static_cast<char32_t>(*at++);
  if (!IsSurrogate(first)) return first <= kLastCodePoint ? first : kMalformed;
  if (at == end) return kMalformed;
  const char32_t c = JoinSurrogates(first, static_cast<char32_t>(*at));
  if (c != kMalformed) ++at;
  return c;
}

char32_t TakeCodePoint(const char*& at, const char* end) {
  const auto next = [&at] { return static_cast<unsigned char>(*at); };
  const unsigned first = next();
  ++at;
  Lead lead = LeadOf(first);
  if (lead.further == 0) return first;
  char32_t c = first & (lead.further == 1 ? 0x1FU : lead.further == 2 ? 0x0FU : 0x07U);
  for (; lead.further > 0 && at != end && next() >= lead.low && next() <= lead.high; ++at) {
    c = (c << 6) | (next() & 0x3FU);
    lead = {lead.further - 1};
  }
  return lead.further == 0 ? c : kMalformed;
}

void AppendUtf8(char32_t c, std::string& text) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (c < 0x80) {
    put(c);
    return;
  }
  const int further = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  constexpr char32_t kMarks[] = {0, 0xC0, 0xE0, 0xF0};
  put(kMarks[further] | (c >> (6 * further)));
  for (int left = further; left-- != 0;) put(0x80 | ((c >> (6 * left)) & 0x3F));
}

bool AppendUtf8(std::wstring_view text, std::string& utf8) {
  bool well_formed = true;
  utf8.reserve(utf8.size() + text.size());
  const wchar_t* at = text.data();
  const wchar_t* const end = at + text.size();
  while (at != end) {
    const char32_t c = TakeCodePoint(at, end);
    if (c == kMalformed) well_formed = false;
    AppendUtf8(c == kMalformed ? kReplacement : c, utf8);
  }
  return well_formed;
}

bool AppendWide(std::string_view utf8, std::wstring& text) {
  bool well_formed = true;
  text.reserve(text.size() + utf8.size());
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  while (at != end) {
    const char32_t c = TakeCodePoint(at, end);
    if (c == kMalformed) well_formed = false;
    AppendWide(c == kMalformed ? kReplacement : c, text);
  }
  return well_formed;
}

}  // namespace internal

std::string ToUtf8(std::wstring_view text) {
  std::string utf8;
  internal::AppendUtf8(text, utf8);
  return utf8;
}

std::wstring ToWide(std::string_view utf8) {
  std::wstring text;
  internal::AppendWide(utf8, text);
  return text;
}

}  // namespace tolva::support
