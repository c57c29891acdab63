// Classes of characters, and the scans that run to the next character of a class.
//
// All scans work on text as `Input` shows it: legal UTF-8, zero at its end, readable for a vector's
// width behind that. Every scan therefore stops at zero.
#pragma once

#include <array>
#include <cstdint>

#include "platform/utf.h"
#include "platform/vector.h"

namespace tolva::platform::own_xml {

enum CharacterClass : std::uint8_t {
  kSpace = 1,      ///< blank, TAB, LF, CR
  kName = 2,       ///< may stand in a name (ASCII, without the colon)
  kNameStart = 4,  ///< may start a name (likewise)
  kInDouble = 8,   ///< ends a value in double quotes or has to be looked at in it
  kInSingle = 16,  ///< likewise in single quotes
};

inline constexpr auto kClasses = [] {
  std::array<std::uint8_t, 256> classes{};
  for (unsigned c = 0; c < 0x20; ++c) classes[c] = kInDouble | kInSingle;
  for (const char c : {' ', '\t', '\n', '\r'}) classes[static_cast<unsigned char>(c)] |= kSpace;
  for (unsigned c = '0'; c <= '9'; ++c) classes[c] = kName;
  for (unsigned c = 'a'; c <= 'z'; ++c) classes[c] = kName | kNameStart;
  for (unsigned c = 'A'; c <= 'Z'; ++c) classes[c] = kName | kNameStart;
  classes['_'] = kName | kNameStart;
  classes['-'] = kName;
  classes['.'] = kName;
  classes['<'] = kInDouble | kInSingle;
  classes['&'] = kInDouble | kInSingle;
  classes['"'] = kInDouble;
  classes['\''] = kInSingle;
  return classes;
}();

inline bool IsClass(char c, CharacterClass wanted) {
  return (kClasses[static_cast<unsigned char>(c)] & wanted) != 0;
}

inline bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// The fifth edition's NameStartChar and NameChar, the colon excepted.
bool IsNameStartCharacter(char32_t c);
bool IsNameCharacter(char32_t c);

/// `SkipName` from the first character outside ASCII on.
const char* SkipNameSlowly(const char* at, bool started);

/// Where the name without a colon that starts at `at` ends; `at` itself when none does.
inline const char* SkipName(const char* at) {
  if (!IsClass(*at, kNameStart)) return IsAscii(*at) ? at : SkipNameSlowly(at, false);
  ++at;
  // Mostly letters, and no more than sixteen.
  at += FirstOf(~Bytes::Load(at).IsLetter().ToMask());
  while (IsClass(*at, kName)) ++at;
  return IsAscii(*at) ? at : SkipNameSlowly(at, true);
}

inline const char* SkipSpace(const char* at) {
  // Mostly there is one blank or none.
  if (!IsClass(*at, kSpace)) return at;
  ++at;
  if (!IsClass(*at, kSpace)) return at;
  for (;; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Bytes space = block.Is(' ') | block.Is('\n') | block.Is('\r') | block.Is('\t');
    const unsigned spaces = FirstOf(~space.ToMask());
    if (spaces != Bytes::kCount) return at + spaces;
  }
}

/// Runs to the first of the characters in `Stops`, or to zero.
template <char... Stops>
const char* Find(const char* at) {
  for (;; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Mask found = (block.Is('\0') | ... | block.Is(Stops)).ToMask();
    if (found != 0) return at + FirstOf(found);
  }
}

/// Runs to what ends an attribute value or has to be looked at in it: the quote, '<', '&', TAB, LF
/// and CR.
template <char Quote>
const char* FindInAttribute(const char* at) {
  constexpr CharacterClass kStops = Quote == '"' ? kInDouble : kInSingle;
  // Most values are short. A processor that guesses their lengths is done with them sooner than one
  // that waits for a vector's answer.
  const char* const vector_start = at + Bytes::kCount;
  for (; at != vector_start; ++at) {
    if (IsClass(*at, kStops)) return at;
  }
  for (;; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Mask found =
        (block.IsControl() | block.Is(Quote) | block.Is('<') | block.Is('&')).ToMask();
    if (found != 0) return at + FirstOf(found);
  }
}

}  // namespace tolva::platform::own_xml
