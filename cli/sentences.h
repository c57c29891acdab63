// What the public headers say about elements, attributes and children. The build takes the
// sentences out of the headers' comments (sentences.awk).
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tolva::cli {

/// How often something occurs in a document that the library reads.
enum class Occurrence : std::uint8_t { kRequired, kOptional, kRepeated };

/// What a header says of an attribute or child.
struct RowSentence {
  std::string_view name;
  Occurrence occurrence;
  std::string_view text;  ///< begins with a small letter, ends with a full stop; may be empty
};

/// What a header says of an element, or of a base of several.
struct ClassSentence {
  std::string_view interface_name;  ///< with its namespace: "TolvaInterface::ITimeSlot"
  std::string_view base;            ///< the interface that it inherits from
  std::string_view element;         ///< empty: a base
  std::string_view parent;          ///< empty unless elements of one name differ by their parents
  std::string_view text;
  std::span<const RowSentence> rows;
};

std::span<const ClassSentence> AllClasses();

/// The class with that interface, or null.
const ClassSentence* FindClass(std::string_view interface_name);

/// What is said of a row of the class or of its bases, or null.
const RowSentence* FindRow(const ClassSentence& element, std::string_view name);

}  // namespace tolva::cli
