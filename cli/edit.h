// Changes to a document that leave everything else in it as it is, byte for byte.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/select.h"
#include "cli/source.h"

namespace tolva::cli {

/// Changes the source of a document, one change after the other: each sees the document as it then
/// is. A change that is not possible throws Trouble; the source is then of no use any more.
class Editor {
 public:
  Editor(Source& source, const Document& document) : source_(source), document_(document) {}

  /// Gives an attribute, or an element that consists of text, a value. It is added if it is absent,
  /// where the tables say, but not the element that it belongs to.
  void Set(std::string_view path, const std::string& value);

  /// Removes an attribute, or the text of an element.
  void Unset(std::string_view path);

  /// Adds an element as `tolva new` makes it. One of a list is added at its end or, as
  /// Name[2], as the second. Name[Attribute="value"] gives it an attribute or a text.
  void Add(std::string_view path);

  /// Removes an element, and its line if there is nothing else on it.
  void Remove(std::string_view path);

 private:
  struct Layout {
    std::optional<std::string> indent;  ///< of its line; nothing: it has no line of its own
    std::string unit;                   ///< by which what is in it is indented
  };

  void SetAttribute(SourceElement& element, const Element& table, const Attribute& attribute,
                    const std::string& value);
  void SetText(SourceElement& element, const Element& table, const std::string& value);
  void SetCondition(SourceElement& element, const Element& table, const Step& step);
  SourceElement& AddChild(SourceElement& parent, const Element& table, const Child& child,
                          std::size_t number);
  void Indent(SourceElement& element, std::string_view line, std::string_view unit);
  std::optional<std::string_view> IndentOf(const SourceElement& element) const;
  std::string UnitOf(const SourceElement& parent) const;
  Layout LayoutIn(const SourceElement& parent, std::size_t place) const;
  std::string Escaped(std::string_view value, char quote) const;

  Source& source_;
  const Document& document_;
};

}  // namespace tolva::cli
