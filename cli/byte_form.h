// How a document's text is put into bytes: its encoding, byte order mark and line ends.
#pragma once

#include <string>
#include <string_view>

#include "cli/files.h"
#include "platform/xml/encoding.h"

namespace tolva::cli {

struct ByteForm {
  const platform::own_xml::Encoding* encoding = &platform::own_xml::kUtf8;
  bool has_mark = false;             ///< a byte order mark
  std::string_view line_end = "\n";  ///< the first one
};

/// The form of a document in an encoding that the library reads.
ByteForm FormOf(ISequentialStream& stream);

/// The text of such a document, in UTF-8 and with LF as line end. What is no character becomes a
/// byte that is not UTF-8.
std::string TextOf(std::string_view bytes, const ByteForm& form);

/// The reference to a character: "&#x20AC;".
std::string ReferenceTo(char32_t c);

/// Puts what the library writes into another form, part by part. Characters that the encoding lacks
/// become references.
class FormEncoder {
 public:
  explicit FormEncoder(const ByteForm& form) : form_(form) {}

  /// The first part has the whole XML declaration; each has whole characters.
  std::string Encode(std::string_view part);

 private:
  void Append(char32_t c, std::string& bytes) const;
  void AppendUnits(char32_t c, std::string& bytes) const;
  std::string WithDeclaration(std::string_view part) const;

  const ByteForm form_;
  bool is_first_ = true;
};

}  // namespace tolva::cli
