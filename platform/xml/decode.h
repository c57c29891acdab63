// From the source text of a document to the values that it stands for.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/buffer.h"
#include "platform/xml/status.h"

namespace tolva::platform::own_xml {

/// A character or entity reference.
struct Reference {
  Status status;
  const char* end;     ///< after the semicolon
  char32_t character;  ///< what it stands for
};

/// Reads the reference whose '&' is at `at`. The text ends with a zero.
Reference ReadReference(const char* at);

/// How the value is made of the source text.
enum class ValueKind : std::uint8_t {
  kLiteral,    ///< CR LF and CR become LF (comments, CDATA sections, processing instructions)
  kText,       ///< likewise, and references are replaced
  kAttribute,  ///< CR LF, CR, LF and TAB become a space, and references are replaced
};

/// Appends the value of `source`, which is well-formed. `kReadAhead` readable bytes follow it, as
/// in an Input's window.
void AppendValue(std::string_view source, ValueKind kind, Buffer<char>& out);

}  // namespace tolva::platform::own_xml
