// Conversion between UTF-8 and wide strings.
//
// A wide string is UTF-16 where wchar_t has 16 bits, and a sequence of code points elsewhere. In a
// sequence of code points, a surrogate pair is read as the code point that it encodes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

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

/// Reads the code point at `at`, before `end`, and moves `at` after it. A lone surrogate is
/// returned as it is, and so is a value beyond U+10FFFF.
constexpr char32_t TakeCodePoint(const wchar_t*& at, const wchar_t* end) {
  const auto first = static_cast<char32_t>(*at++);
  if (!IsHighSurrogate(first) || at == end) return first;
  const auto second = static_cast<char32_t>(*at);
  if (!IsLowSurrogate(second)) return first;
  ++at;
  return CombineSurrogates(first, second);
}

/// Writes a code point, at most U+10FFFF, as one to four bytes. Returns where they end.
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

/// Reads the code point at `at`, in well-formed UTF-8, and moves `at` after it.
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

/// The front of a buffer, as far as it is UTF-8 and XML allows its characters.
struct Utf8Prefix {
  std::size_t size;  ///< in bytes
  bool malformed;    ///< what follows is not such a character; false if that depends on more bytes
};

/// Validates `size` bytes.
Utf8Prefix MeasureXmlUtf8(const char* text, std::size_t size) noexcept;

/// Finds the first character that XML does not allow. Lone surrogates are not allowed. Returns
/// `end` if there is none.
const wchar_t* FindForbidden(const wchar_t* at, const wchar_t* end) noexcept;

/// The number of bytes after a text that AssignWide may read. Their values have no effect.
inline constexpr std::size_t kReadAhead = 16;

// Replaces the text by a value, which is UTF-8 with `kReadAhead` readable bytes after it, or wide.

void AssignWide(std::string_view utf8, std::wstring& text);
inline void AssignWide(std::wstring_view wide, std::wstring& text) { text = wide; }

/// Appends a wide string as UTF-8. What is not a code point becomes U+FFFD.
void AppendUtf8(std::wstring_view wide, std::string& out);

}  // namespace tolva::platform
