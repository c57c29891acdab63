#include "platform/xml/decode.h"

#include <algorithm>

#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

struct Entity {
  std::string_view name;
  char character;
};

constexpr Entity kEntities[] = {
    {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''},
};

/// The value of a hexadecimal digit; otherwise 255.
unsigned DigitOf(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  return 255;
}

/// `at` is after "&#".
Reference ReadCharacterReference(const char* at) {
  const bool hexadecimal = *at == 'x';
  if (hexadecimal) ++at;
  const unsigned base = hexadecimal ? 16 : 10;
  const char* const digits = at;
  char32_t c = 0;
  for (; DigitOf(*at) < base; ++at) {
    // A value beyond the last code point stays beyond it, however many digits follow.
    if (c <= kLastCodePoint) c = c * base + DigitOf(*at);
  }
  if (*at == '\0') return {kMoreInput, at, 0};
  if (at == digits) return {hexadecimal ? WC_E_HEXDIGIT : WC_E_DIGIT, at, 0};
  if (*at != ';') return {WC_E_SEMICOLON, at, 0};
  if (!IsXmlCharacter(c)) return {WC_E_XMLCHARACTER, at, 0};
  return {kDone, at + 1, c};
}

/// Finds the first character that does not stand for itself, or `end`.
const char* FindSpecial(const char* at, const char* end, ValueKind kind) {
  const char reference = kind == ValueKind::kLiteral ? '\r' : '&';
  const char line_feed = kind == ValueKind::kAttribute ? '\n' : '\r';
  const char tab = kind == ValueKind::kAttribute ? '\t' : '\r';
  static_assert(kReadAhead >= Bytes::kCount);
  for (; at < end; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const Mask found =
        (block.Is('\r') | block.Is(reference) | block.Is(line_feed) | block.Is(tab)).ToMask();
    if (found != 0) return std::min(at + FirstOf(found), end);
  }
  return end;
}

}  // namespace

Reference ReadReference(const char* at) {
  ++at;
  if (*at == '#') return ReadCharacterReference(at + 1);
  const char* const end = SkipName(at);
  if (*end == '\0') return {kMoreInput, end, 0};
  if (end == at) return {WC_E_NAME, end, 0};
  if (*end != ';') return {WC_E_SEMICOLON, end, 0};
  const std::string_view name(at, static_cast<std::size_t>(end - at));
  for (const Entity& entity : kEntities) {
    if (entity.name == name) return {kDone, end + 1, static_cast<char32_t>(entity.character)};
  }
  return {WC_E_UNDECLAREDENTITY, end, 0};
}

void AppendValue(std::string_view source, ValueKind kind, Buffer<char>& out) {
  const char* at = source.data();
  const char* const end = at + source.size();
  while (at != end) {
    const char* const special = FindSpecial(at, end, kind);
    out.Append(at, static_cast<std::size_t>(special - at));
    at = special;
    if (at == end) return;
    if (*at == '&') {
      const Reference reference = ReadReference(at);
      char* const room = out.Room(4);
      out.Commit(static_cast<std::size_t>(EncodeUtf8(reference.character, room) - room));
      at = reference.end;
      continue;
    }
    if (*at == '\r' && at + 1 != end && at[1] == '\n') ++at;
    ++at;
    out.Append(kind == ValueKind::kAttribute ? ' ' : '\n');
  }
}

}  // namespace tolva::platform::own_xml
