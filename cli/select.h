// What a path means in a document: the elements and attributes of its source that it names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/places.h"
#include "cli/source.h"

namespace tolva::cli {

/// A path, and what its steps are by the tables.
struct Target {
  struct ElementStep {
    Step step;
    const Child* child;
  };

  const Document* document;
  std::vector<ElementStep> elements;  ///< from the root's children on
  const Element* element;             ///< the element, or the one that has the attribute
  const Attribute* attribute;         ///< null: the path names an element

  /// How the element stands in its parent; null for the root.
  const Child* child() const { return elements.empty() ? nullptr : elements.back().child; }

  /// The first steps of the path, as they are written.
  std::string Spelling(std::size_t elements_count) const;
  std::string Spelling() const;
};

/// Throws Trouble, with what may have been meant, if the tables do not know what the path names. It
/// may begin with the name of the document, as the paths of `explain` do.
Target ParseTarget(const Document& document, std::string_view path);

/// Something in the source that a path names.
struct Found {
  SourceElement* element = nullptr;
  SourceAttribute* attribute = nullptr;   ///< null: the element
  std::vector<std::size_t> numbers = {};  ///< of each step's element, among those of its name
  bool counts = true;                     ///< the library reads it, and none after it in its place
};

/// All that a path names, in the order of the document. A step without brackets means all of the
/// elements if they may be repeated. Of others the last one counts, as the library reads.
std::vector<Found> Select(Source& source, const Target& target);

enum class IfAbsent : bool {
  kFails,
  kMayBeAdded,  ///< the message says how
};

/// The one element that the first `steps` steps of a path name. Throws Trouble if there is none, or
/// several: then it says how to choose one.
SourceElement& SelectElement(Source& source, const Target& target, std::size_t steps,
                             IfAbsent if_absent);

/// The elements in a parent that a step names, each with its number.
struct Numbered {
  SourceElement* element;
  std::size_t number;
  bool counts;  ///< no other one counts in its place
};
std::vector<Numbered> MatchesOf(const SourceElement& parent, const Target::ElementStep& step);

/// Says what of the path is not in the document: "'policy.xml' has no 'LocationArray/Location'".
std::string AbsenceOf(Source& source, const Target& target);

/// What the library reads of an attribute, or of a child that consists of text; if it is absent,
/// what that stands for.
std::optional<std::string> ValueIn(SourceElement& element, const Element& table,
                                   std::string_view name);

}  // namespace tolva::cli
