// Paths into documents: element and attribute names from the root's children on, such as
// LocationArray/Location[Name="Office"]/ILPProtection.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/tables.h"

namespace tolva::cli {

class Verb;

/// One name of a path, and which of several elements is meant: Name, Name[2], Name[Attribute="x"].
struct Step {
  std::string name;
  std::size_t position = 0;  ///< from 1; 0: not stated
  std::string attribute;     ///< empty: not stated
  std::string value;         ///< what the attribute has to be
};

/// Throws Trouble if the text is no path. An empty path, with no steps, is the root.
std::vector<Step> ParsePath(std::string_view path);

/// What stands at a path.
struct Place {
  const Document* document;
  std::string path;            ///< without the document; empty: the root
  const Element* element;      ///< the element, or the one that has the attribute
  const Attribute* attribute;  ///< null: an element
  const Child* child;          ///< how the element stands in its parent; null for the root
};

/// What DOCUMENT[/PATH] names. What the path says in brackets is ignored. Throws Trouble, with what
/// may have been meant, if nothing stands there.
Place FindPlace(std::string_view document_and_path);

/// Calls the function with each place of the document, parents first. An element within itself is
/// visited, and what is in it is not.
void ForEachPlace(const Document& document, const std::function<void(const Place&)>& visit);

/// The document with that short name or root element. Throws Trouble if there is none.
const Document& DocumentOf(std::string_view name);

/// The option --type of verbs that read documents: what each has to be.
class ExpectedType {
 public:
  void AddTo(Verb& verb);

  /// Null: it may be any document. Throws Trouble if there is none with that name.
  const Document* document() const { return name_.empty() ? nullptr : &DocumentOf(name_); }

 private:
  std::string name_;
};

}  // namespace tolva::cli
