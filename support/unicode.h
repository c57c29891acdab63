// Code points in UTF-8 and in wide strings.
#pragma once

#include <string>
#include <string_view>

namespace tolva::support::internal {

inline constexpr char32_t kReplacement = 0xFFFD;
inline constexpr char32_t kLastCodePoint = 0x10FFFF;

/// Stands for what is no code point.
inline constexpr char32_t kMalformed = 0xFFFFFFFF;

constexpr bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// The code point of a surrogate pair; kMalformed when the two are none.
constexpr char32_t JoinSurrogates(char32_t high, char32_t low) {
  const bool is_pair = high >= 0xD800 && high <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF;
  return is_pair ? 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00) : kMalformed;
}

/// Takes a code point off the front of a wide string; kMalformed for a unit that is none.
char32_t TakeCodePoint(const wchar_t*& at, const wchar_t* end);

/// Takes a code point off the front of UTF-8; kMalformed for a sequence that is none, of which as
/// much is taken as might have started one.
char32_t TakeCodePoint(const char*& at, const char* end);

/// Appends a code point, at most U+10FFFF.
void AppendUtf8(char32_t c, std::string& text);

/// Convert, and set what is malformed to U+FFFD; false when anything was.
bool AppendUtf8(std::wstring_view text, std::string& utf8);
bool AppendWide(std::string_view utf8, std::wstring& text);

}  // namespace tolva::support::internal
