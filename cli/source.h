// A document as it is written: a tree of pieces of its text, which can be changed one at a time.
//
// The pieces put together are the text again, so whatever is not changed stays as it is: white
// space, comments, quotes, references, line ends. Text that is decoded and encoded again is the
// same bytes in each of the encodings, so this holds for the bytes of the document as well.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/tables.h"
#include "platform/xml/input.h"
#include "platform/xml/position.h"

namespace tolva::cli {

using platform::own_xml::Position;

/// An attribute. Its text is the four pieces and the quote again.
struct SourceAttribute {
  std::string_view space;   ///< before the name
  std::string_view name;    ///< with its prefix
  std::string_view equals;  ///< with white space around it, and with the first quote
  std::string_view value;   ///< as it is written, between the quotes

  char quote() const { return equals.back(); }
};

struct SourceElement;

/// What stands in an element: a piece of text, or an element.
struct SourceContent {
  enum class Kind : std::uint8_t {
    kElement,
    kText,     ///< characters and references
    kSpace,    ///< white space alone, none of it as a reference
    kSection,  ///< a CDATA section
    kComment,  ///< a comment or processing instruction
  };

  Kind kind;
  std::string_view text;  ///< with its markup; empty for an element
  std::unique_ptr<SourceElement> element = nullptr;
};

/// An element. Its text is '<', the pieces in this order, and so on for what is in it.
struct SourceElement {
  SourceElement* parent = nullptr;  ///< null for the root
  std::string_view name = {};       ///< with its prefix
  std::vector<SourceAttribute> attributes = {};
  std::string_view tag_end = {};  ///< of the start tag, after the last attribute: ">", " />"
  std::vector<SourceContent> content = {};
  std::string_view end_tag = {};  ///< empty: the element is an empty tag

  /// The name without its prefix: that which the library looks at.
  std::string_view LocalName() const;

  SourceAttribute* FindAttribute(std::string_view attribute);

  /// What the library reads as the text of the element: its first piece, if that is no white space
  /// and no element. Null: there is none.
  SourceContent* FindText();

  /// The elements of that name in this one.
  std::vector<SourceElement*> Children(std::string_view local_name) const;
};

/// What a piece of content or the value of an attribute stands for, in UTF-8.
std::string ValueOf(const SourceContent& content);
std::string ValueOf(const SourceAttribute& attribute);

class Source {
 public:
  /// Parses a document. `name` is what messages call it; `bytes` have to live as long as the
  /// object. Throws Trouble, and says where, if they are not well-formed. Time and memory are
  /// linear in their size.
  Source(std::string name, std::string_view bytes);
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  ~Source();

  SourceElement& root() { return *root_; }

  const std::string& name() const { return name_; }

  /// The document by whose root element this one is recognised. Throws Trouble if there is none, or
  /// not the one that is expected; null: any.
  const Document& Recognise(const Document* expected) const;

  /// The document as it is now, in its encoding.
  std::string Bytes() const;

  /// Where a piece of the document is that has not been changed. Fast if the calls go forward.
  Position PositionOf(std::string_view piece);

  /// Keeps text for pieces of the tree, as long as the object lives.
  std::string_view Keep(std::string text);

  /// Parses an element in UTF-8, for the tree.
  std::unique_ptr<SourceElement> ParseElement(std::string_view text);

  /// Whether the encoding of the document has the character.
  bool Has(char32_t character) const;

  /// The first line end of the document; empty if it is all one line.
  std::string_view line_end() const { return line_end_; }

  /// What stands before the root element.
  std::string_view prolog() const { return prolog_; }

 private:
  struct Text;

  const std::string name_;
  const std::string_view bytes_;
  std::vector<std::unique_ptr<const Text>>
      texts_;  ///< the document's, and those of elements that were added
  std::deque<std::string> kept_;
  std::unique_ptr<platform::own_xml::PositionCounter> positions_;
  std::string_view prolog_;
  std::unique_ptr<SourceElement> root_;
  std::string_view epilog_;
  std::string_view line_end_;
};

/// The text of an element, in UTF-8.
std::string TextOf(const SourceElement& element);

}  // namespace tolva::cli
