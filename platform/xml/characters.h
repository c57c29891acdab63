// Classes of characters, and scans for the next character of a class.
//
// The scans of UTF-8 work on the window of an `Input`: valid UTF-8, followed by a zero and by a
// vector's width of readable bytes. Every scan stops at the zero.
#pragma once

#include <array>
#include <cstdint>

#include "platform/utf.h"
#include "platform/vector.h"

namespace tolva::platform::own_xml {

enum CharacterClass : std::uint8_t {
  kSpace = 1,      ///< white space: space, TAB, LF, CR
  kName = 2,       ///< allowed in a name: ASCII, without the colon
  kNameStart = 4,  ///< allowed as the first character of a name: likewise
};

inline constexpr auto kClasses = [] {
  std::array<std::uint8_t, 256> classes{};
  for (const char c : {' ', '\t', '\n', '\r'}) classes[static_cast<unsigned char>(c)] = kSpace;
  for (unsigned c = '0'; c <= '9'; ++c) classes[c] = kName;
  for (unsigned c = 'a'; c <= 'z'; ++c) classes[c] = kName | kNameStart;
  for (unsigned c = 'A'; c <= 'Z'; ++c) classes[c] = kName | kNameStart;
  classes['_'] = kName | kNameStart;
  classes['-'] = kName;
  classes['.'] = kName;
  return classes;
}();

inline bool IsClass(char c, CharacterClass wanted) {
  return (kClasses[static_cast<unsigned char>(c)] & wanted) != 0;
}

inline bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

// NameStartChar and NameChar of XML 1.0, fifth edition, without the colon.

/// `c` is not ASCII: characters that are have their classes.
bool IsNameStartCharacter(char32_t c);
bool IsNameCharacter(char32_t c);

/// Skips the rest of a name, or a whole name if it has not `started`, that contains a character
/// that is not ASCII.
const char* SkipNonAsciiName(const char* at, bool started);

/// Skips a name without a colon, if there is one at `at`.
inline const char* SkipName(const char* at) {
  if (!IsClass(*at, kNameStart)) return IsAscii(*at) ? at : SkipNonAsciiName(at, false);
  ++at;
  // Names repeat, so the processor predicts where this loop ends. It would have to wait for the
  // result of a vector comparison.
  while (IsClass(*at, kName)) ++at;
  return IsAscii(*at) ? at : SkipNonAsciiName(at, true);
}

/// Skips white space that is most often more than one character.
inline const char* SkipIndent(const char* at) {
  for (;; at += Bytes::kCount) {
    const unsigned spaces = FirstOf(~Bytes::Load(at).IsSpace().ToMask());
    if (spaces != Bytes::kCount) return at + spaces;
  }
}

inline const char* SkipSpace(const char* at) {
  // Most often there is one space or none.
  if (!IsClass(*at, kSpace)) return at;
  ++at;
  return IsClass(*at, kSpace) ? SkipIndent(at) : at;
}

/// Finds the first of the characters in `Stops`, or the zero.
template <char... Stops>
const char* Find(const char* at) {
  for (;; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Mask found = (block.Is('\0') | ... | block.Is(Stops)).ToMask();
    if (found != 0) return at + FirstOf(found);
  }
}

/// Finds what ends an attribute value or is special in it: the quote, '<', '&', TAB, LF and CR, or
/// the zero.
template <char Quote>
const char* FindInAttribute(const char* at) {
  for (;; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Mask found =
        (block.IsControl() | block.Is(Quote) | block.Is('<') | block.Is('&')).ToMask();
    if (found != 0) return at + FirstOf(found);
  }
}

}  // namespace tolva::platform::own_xml
