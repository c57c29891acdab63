#include "platform/xml/encoding.h"

#include <algorithm>
#include <iterator>

#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

using namespace std::string_view_literals;

/// Stands for what is no character.
constexpr char kNoCharacter = '\xFF';

Conversion ConvertLatin1(std::string_view bytes, char* out) {
  for (const char c : bytes) out = EncodeUtf8(static_cast<unsigned char>(c), out);
  return {bytes.size(), out};
}

Conversion ConvertAscii(std::string_view bytes, char* out) {
  for (const char c : bytes) *out++ = IsAscii(c) ? c : kNoCharacter;
  return {bytes.size(), out};
}

/// `High` and `Low` are the places of a unit's bytes.
template <std::size_t High, std::size_t Low>
Conversion ConvertUtf16(std::string_view bytes, char* out) {
  const auto unit = [bytes](std::size_t at) {
    return static_cast<char32_t>(static_cast<unsigned char>(bytes[at + High]) << 8 |
                                 static_cast<unsigned char>(bytes[at + Low]));
  };
  std::size_t at = 0;
  while (at + 2 <= bytes.size()) {
    const char32_t first = unit(at);
    if (!IsSurrogate(first)) {
      out = EncodeUtf8(first, out);
      at += 2;
      continue;
    }
    if (at + 4 > bytes.size()) break;  // the other half is still to come
    const char32_t second = unit(at + 2);
    if (!IsHighSurrogate(first) || !IsLowSurrogate(second)) {
      *out++ = kNoCharacter;
      break;
    }
    out = EncodeUtf8(CombineSurrogates(first, second), out);
    at += 4;
  }
  return {at, out};
}

constexpr Encoding kEncodings[] = {
    {"UTF-8", "", "\xEF\xBB\xBF", "", 1, nullptr},
    {"UTF-16", "UTF-16LE", "\xFF\xFE", "<\0"sv, 2, ConvertUtf16<1, 0>},
    {"UTF-16", "UTF-16BE", "\xFE\xFF", "\0<"sv, 2, ConvertUtf16<0, 1>},
    {"ISO-8859-1", "", "", "", 1, ConvertLatin1},
    {"US-ASCII", "", "", "", 1, ConvertAscii},
};

constexpr char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToLower(x) == ToLower(y); });
}

/// The value of the pseudo-attribute `encoding` of an XML declaration; empty if there is none. The
/// declaration is validated later.
std::string_view FindEncodingName(std::string_view declaration) {
  const std::size_t word = declaration.find("encoding");
  if (word == std::string_view::npos) return {};
  const std::size_t start = declaration.find_first_of("'\"", word);
  if (start == std::string_view::npos) return {};
  const std::size_t end = declaration.find(declaration[start], start + 1);
  if (end == std::string_view::npos) return {};
  return declaration.substr(start + 1, end - start - 1);
}

}  // namespace

const Encoding& kUtf8 = kEncodings[0];

bool Encoding::HasName(std::string_view declared) const {
  return EqualsIgnoringCase(declared, name) ||
         (!alias.empty() && EqualsIgnoringCase(declared, alias));
}

const Encoding* DetectEncoding(std::string_view start) {
  for (const Encoding& encoding : kEncodings) {
    const std::string_view mark = encoding.byte_order_mark;
    if (!mark.empty() && start.starts_with(mark)) return &encoding;
  }
  for (const Encoding& encoding : kEncodings) {
    const std::string_view first = encoding.first_bytes;
    if (!first.empty() && start.starts_with(first)) return &encoding;
  }
  return nullptr;
}

const Encoding& DeclaredEncoding(std::string_view declaration) {
  const std::string_view name = FindEncodingName(declaration);
  for (const Encoding& encoding : kEncodings) {
    if (encoding.byte_order_mark.empty() && encoding.HasName(name)) return encoding;
  }
  return kUtf8;
}

bool IsSupportedEncoding(std::string_view name) {
  return std::any_of(std::begin(kEncodings), std::end(kEncodings),
                     [name](const Encoding& encoding) { return encoding.HasName(name); });
}

}  // namespace tolva::platform::own_xml
