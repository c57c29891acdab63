// The encodings that a document may be in.
#pragma once

#include <cstddef>
#include <string_view>

namespace tolva::platform::own_xml {

/// How far a conversion to UTF-8 came.
struct Conversion {
  std::size_t used;  ///< bytes that have been converted
  char* end;         ///< where the UTF-8 ends
};

/// An encoding, and how it is recognised.
struct Encoding {
  std::string_view name;             ///< in an XML declaration
  std::string_view alias;            ///< another such name; empty if there is none
  std::string_view byte_order_mark;  ///< empty if there is none
  std::string_view first_bytes;      ///< of a document without a byte order mark; empty if they are
                                     ///< those of ASCII
  std::size_t unit_size;             ///< bytes; a character has one unit, in UTF-8 up to four, in
                                     ///< UTF-16 two beyond U+FFFF

  /// Converts the whole characters at the front of `bytes` to UTF-8. Writes no more than two bytes
  /// for each byte, and one more. Where it finds no character, it writes a byte that is not UTF-8;
  /// what comes after that is of no interest. Null for UTF-8 itself.
  Conversion (*convert)(std::string_view bytes, char* out);

  /// Whether an XML declaration may give the encoding this name, in upper or lower case.
  bool HasName(std::string_view declared) const;
};

extern const Encoding& kUtf8;

/// The encoding that a document shows by its byte order mark or its first bytes, four at most; null
/// if it starts as ASCII does.
const Encoding* DetectEncoding(std::string_view start);

/// The encoding of a document that starts as ASCII does, by its XML declaration. Any other text
/// gives UTF-8.
const Encoding& DeclaredEncoding(std::string_view declaration);

/// Whether any encoding has this name.
bool IsSupportedEncoding(std::string_view name);

}  // namespace tolva::platform::own_xml
