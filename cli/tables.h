// What the library's tables say of the documents, in UTF-8. Nothing else of the tool looks into the
// rows of the tables, except to locate fields in nodes (fields.cpp, json.cpp).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/sentences.h"
#include "node/schema.h"

namespace tolva::cli {

/// What the value of an attribute, or the text of an element, may be.
struct Value {
  enum class Type : std::uint8_t { kText, kNumber, kEnum };

  Type type = Type::kText;
  std::uint64_t greatest = 0;           ///< number: a greater one is read as another number
  std::vector<std::string> texts = {};  ///< ENUM: those that are allowed
  bool may_be_empty = true;             ///< text: if empty, it counts as what is there
  bool takes_leading_digits = false;    ///< number: whatever follows the digits is ignored

  /// Whether the number has 64 bits.
  bool IsLong() const { return greatest > 0xFFFFFFFF; }
};

struct Attribute {
  std::string name;
  Value value;
  Occurrence occurrence;                   ///< kRequired or kOptional
  std::optional<std::string> when_absent;  ///< what absence stands for; the library then writes it
  bool is_secret;
  bool names_item;
  std::string_view sentence;  ///< as in RowSentence
  const node::Attribute* row;
};

struct Element;

struct Child {
  std::string name;
  Occurrence occurrence;
  bool is_always_written;  ///< by the library, even if it was absent
  bool names_item;
  std::string_view sentence;  ///< what the element is in this parent
  const Element* element;
  const node::Child* row;
};

/// One kind of element of a document.
struct Element {
  std::string name;
  std::string id;  ///< the name; "Parent.Name" if elements of the document share the name
  std::string_view sentence;
  std::vector<Attribute> attributes;  ///< in write order
  std::vector<Child> children;        ///< in write order
  std::optional<Value> text;          ///< the element's value is its text
  bool is_text_required = false;      ///< the element is refused without a text
  const node::Schema* schema = nullptr;

  const Attribute* FindAttribute(std::string_view attribute) const;
  const Child* FindChild(std::string_view child) const;

  /// Whether the library does not write the element if it has no text.
  bool IsLostWithoutText() const {
    return schema->content.is_optional && !schema->content.is_always_written;
  }
};

struct Document {
  std::string_view name;                                 ///< "policy"
  std::string_view title;                                ///< "Endpoint data-loss-prevention policy"
  std::string_view space;                                ///< the namespace of the interfaces
  std::unique_ptr<node::INode> (*make)();                ///< a new root node
  std::vector<std::unique_ptr<const Element>> elements;  ///< parents first, each once

  const Element& root() const { return *elements.front(); }
};

/// All documents.
std::span<const Document> Documents();

/// The document with that short name or that root element, or null.
const Document* FindDocument(std::string_view name);

}  // namespace tolva::cli
