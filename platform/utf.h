// Conversion between UTF-8 and wide strings.
//
// A wide string is UTF-16 where wchar_t has 16 bits and a sequence of code points elsewhere; where
// it is the latter, a surrogate pair is accepted for the code point that it stands for.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/buffer.h"

namespace tolva::platform {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;
inline constexpr char32_t kLastCodePoint = 0x10FFFF;

constexpr bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// The code point of a surrogate pair.
constexpr char32_t CombineSurrogates(char32_t high, char32_t low) {
  return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

/// Whether XML 1.0 allows the code point in a document.
constexpr bool IsXmlCharacter(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c <= kLastCodePoint);
}

/// Takes one code point off the front of the range. A lone surrogate and, where wchar_t is wide
/// enough, a value beyond U+10FFFF come back as they are.
constexpr char32_t TakeCodePoint(const wchar_t*& at, const wchar_t* end) {
  const auto first = static_cast<char32_t>(*at++);
  if (!IsHighSurrogate(first) || at == end) return first;
  const auto second = static_cast<char32_t>(*at);
  if (!IsLowSurrogate(second)) return first;
  ++at;
  return CombineSurrogates(first, second);
}

/// Writes the code point, at most U+10FFFF, as one to four bytes; returns where they end.
constexpr char* EncodeUtf8(char32_t c, char* out) {
  if (c < 0x80) {
    *out++ = static_cast<char>(c);
  } else if (c < 0x800) {
    *out++ = static_cast<char>(0xC0 | (c >> 6));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    *out++ = static_cast<char>(0xE0 | (c >> 12));
    *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  } else {
    *out++ = static_cast<char>(0xF0 | (c >> 18));
    *out++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    *out++ = static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

/// Takes one code point off the front of well-formed UTF-8.
constexpr char32_t TakeCodePoint(const char*& at) {
  const auto next = [&at] { return static_cast<char32_t>(static_cast<unsigned char>(*at++)); };
  const char32_t first = next();
  if (first < 0x80) return first;
  char32_t c = first < 0xE0 ? first & 0x1F : first < 0xF0 ? first & 0x0F : first & 0x07;
  c = (c << 6) | (next() & 0x3F);
  if (first >= 0xE0) c = (c << 6) | (next() & 0x3F);
  if (first >= 0xF0) c = (c << 6) | (next() & 0x3F);
  return c;
}

/// What can be said of the UTF-8 at the front of a buffer.
struct Utf8Prefix {
  std::size_t size;  ///< bytes that are whole, well-formed characters allowed in XML
  bool malformed;    ///< what follows can become no such character, whatever comes behind it
};

/// Looks at `size` bytes; behind what it accepts there may be an unfinished character.
Utf8Prefix MeasureXmlUtf8(const char* text, std::size_t size) noexcept;

/// The first character that XML does not allow, a lone surrogate for one; `end` when there is none.
const wchar_t* FindForbidden(const wchar_t* at, const wchar_t* end) noexcept;

/// How many bytes behind its text AppendWide looks at; they may hold anything.
inline constexpr std::size_t kReadAhead = 16;

/// Appends well-formed UTF-8, with `kReadAhead` readable bytes behind it, as a wide string. Leaves
/// room for a terminating zero.
void AppendWide(std::string_view utf8, Buffer<wchar_t>& out);

/// Appends a wide string as UTF-8; what is no code point becomes U+FFFD.
void AppendUtf8(std::wstring_view wide, std::string& out);

}  // namespace tolva::platform
