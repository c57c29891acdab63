// From the text of a document to the value that it stands for.
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

/// Reads the reference that starts with the '&' at `at`, in text that ends with zero.
Reference ReadReference(const char* at);

/// What has to be done to a value's text.
enum class ValueKind : std::uint8_t {
  kLiteral,    ///< line ends: CR LF and CR become LF (comments, CDATA, processing instructions)
  kText,       ///< line ends and references
  kAttribute,  ///< line ends, TAB and LF become blanks; references
};

/// Appends the value of `raw`, which has been found well-formed and has `kReadAhead` readable bytes
/// behind it, as everything in an Input's window has.
void AppendValue(std::string_view raw, ValueKind kind, Buffer<char>& out);

}  // namespace tolva::platform::own_xml
