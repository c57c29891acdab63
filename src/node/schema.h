// The table of an element: what the engine, and any other code that goes through the elements,
// knows about it. A table is constant data, next to the class:
//
//   constexpr Attribute kTimeSlotAttributes[] = {
//       Attr<&CTimeSlot::weekday_>(L"Weekday"),
//       Attr<&CTimeSlot::startTime_>(L"StartTime"),
//   };
//   constinit const Schema CTimeSlot::kSchema = Checked({
//       .element = L"TimeSlot",
//       .dialect = kDialect,
//       .attributes = kTimeSlotAttributes,
//   });
//
// Rows are in write order. A read validates them in the same order. The type of the field decides
// what kind of row it is (fields.h). Whatever a row states beyond its name
// departs from the standard behavior. A row or table that contradicts itself does not compile.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "node/diagnostics.h"
#include "node/fields.h"
#include "node/numbers.h"
#include "platform/name.h"

namespace tolva::node {

using platform::Name;

template <class C, class I>
class Node;

/// What the elements of one document have in common.
struct Dialect {
  Numbers numbers;
  std::wstring_view null_writer;    ///< reported when a write gets a null manager
  std::wstring_view null_reader;    ///< reported when a read does
  std::wstring_view null_value;     ///< beginning of the report of a null value
  std::wstring_view absent_string;  ///< beginning of the report of a missing required string
};

/// The texts of an ENUM attribute. A value is an index into them.
struct EnumTexts {
  std::span<const Name> texts;
  Name otherwise = {};  ///< written for any other value
};

enum class ValueType : std::uint8_t { kNumber, kLongNumber, kString, kEnum };

/// Where a value is stored in a node.
struct FieldRef {
  void* value;     ///< DWORD, std::uint64_t or std::wstring
  DWORD* present;  ///< null: always present
};

/// A report text that replaces the standard one. An empty text means no report.
using OwnReport = std::optional<std::wstring_view>;

namespace internal {

/// Calling this is not a constant expression, so the table does not compile. The compiler's message
/// shows the reason.
void TableIsWrong(const char* reason);

consteval void Require(bool holds, const char* reason) {
  if (!holds) TableIsWrong(reason);
}

}  // namespace internal

/// One attribute of an element.
struct Attribute {
  Name name;
  ValueType type;
  bool is_optional;
  FieldRef (*locate)(IElement& node);
  EnumTexts enum_texts = {};

  bool may_be_absent = false;       ///< required, but its absence does not fail the read
  bool is_one_when_absent = false;  ///< when absent it reads as 1, and as present
  bool ignores_write_failure =
      false;  ///< required, but a failed write is no failure of the element

  // What Clear does with the field.
  bool is_present_when_clear = false;  ///< optional, but present after Clear
  bool keeps_value = false;            ///< Clear leaves the value alone
  bool keeps_presence = false;         ///< Clear leaves the presence flag alone

  OwnReport read_report = {};  ///< missing though required, or malformed

  // What programs that show documents to people know about the attribute.
  bool is_secret = false;   ///< key material or a password hash, which is not to be shown
  bool names_item = false;  ///< tells the items of a list apart, alone or with others

  consteval Attribute MayBeAbsent() const {
    internal::Require(!is_optional, "an optional attribute may be absent in any case");
    Attribute row = *this;
    row.may_be_absent = true;
    return row;
  }
  consteval Attribute OneWhenAbsent() const {
    internal::Require(is_optional && type == ValueType::kNumber,
                      "only an optional number can be 1 when it is absent");
    Attribute row = *this;
    row.is_one_when_absent = true;
    return row;
  }
  consteval Attribute IgnoresWriteFailure() const {
    internal::Require(!is_optional,
                      "a failed write of an optional attribute is ignored in any case");
    Attribute row = *this;
    row.ignores_write_failure = true;
    return row;
  }
  consteval Attribute PresentWhenClear() const {
    internal::Require(is_optional, "a required attribute has no presence flag");
    Attribute row = *this;
    row.is_present_when_clear = true;
    return row;
  }
  consteval Attribute KeepsValue() const {
    Attribute row = *this;
    row.keeps_value = true;
    return row;
  }
  consteval Attribute KeepsPresence() const {
    internal::Require(is_optional, "a required attribute has no presence flag");
    Attribute row = *this;
    row.keeps_presence = true;
    return row;
  }
  consteval Attribute ReadReport(std::wstring_view text) const {
    Attribute row = *this;
    row.read_report = text;
    return row;
  }
  consteval Attribute Secret() const {
    internal::Require(type == ValueType::kString, "only a string can be a secret");
    internal::Require(!names_item, "what names an item cannot be a secret");
    Attribute row = *this;
    row.is_secret = true;
    return row;
  }
  consteval Attribute NamesItem() const {
    internal::Require(!is_secret, "what names an item cannot be a secret");
    Attribute row = *this;
    row.names_item = true;
    return row;
  }
};

enum class Occurrence : std::uint8_t { kRequired, kOptional, kRepeated };

/// Where a child is stored in a node.
struct ChildRef {
  IElement* element;  ///< null if the child is repeated, or not created yet
  DWORD* present;     ///< null unless the child is optional
  ItemList* items;    ///< null unless the child is repeated
};

struct Schema;

/// One kind of child of an element.
struct Child {
  platform::KnownTag tag;
  Occurrence occurrence;
  const Schema* schema;  ///< the child's own table
  ChildRef (*locate)(IElement& node);
  IElement& (*make)(IElement& node);  ///< what to read into: the child, or a new item
  void (*clear)(IElement& node);      ///< clears the child, or removes all items
  bool reads_by_table;                ///< its class has no ReadFromXMLMgr of its own
  bool writes_by_table;               ///< nor a WriteToXMLMgr

  bool may_be_absent = false;      ///< required, but its absence does not fail the read
  bool is_reported_first = false;  ///< reported before missing children of earlier rows
  bool keeps_presence = false;     ///< Clear leaves the presence flag alone
  OwnReport write_report = {};
  OwnReport read_report = {};
  OwnReport absence_report = {};
  std::wstring_view before_write = {};  ///< reported before the child is written
  std::wstring_view after_write = {};   ///< reported after the child has been written

  bool names_item = false;  ///< a text element that tells the items of a list apart

  constexpr const Name& name() const { return tag.name; }

  consteval Child MayBeAbsent() const {
    internal::Require(occurrence == Occurrence::kRequired, "only a required child can be missing");
    Child row = *this;
    row.may_be_absent = true;
    return row;
  }
  consteval Child AbsenceReportedFirst() const {
    internal::Require(occurrence == Occurrence::kRequired, "only a required child can be missing");
    Child row = *this;
    row.is_reported_first = true;
    return row;
  }
  consteval Child KeepsPresence() const {
    internal::Require(occurrence == Occurrence::kOptional, "only an optional child has a flag");
    Child row = *this;
    row.keeps_presence = true;
    return row;
  }
  consteval Child WriteReport(std::wstring_view text) const {
    Child row = *this;
    row.write_report = text;
    return row;
  }
  consteval Child ReadReport(std::wstring_view text) const {
    Child row = *this;
    row.read_report = text;
    return row;
  }
  consteval Child AbsenceReport(std::wstring_view text) const {
    internal::Require(occurrence == Occurrence::kRequired, "only a required child can be missing");
    Child row = *this;
    row.absence_report = text;
    return row;
  }
  consteval Child NamesItem() const {
    internal::Require(occurrence == Occurrence::kRequired, "only a required child names an item");
    Child row = *this;
    row.names_item = true;
    return row;
  }
  consteval Child Announced(std::wstring_view before, std::wstring_view after) const {
    Child row = *this;
    row.before_write = before;
    row.after_write = after;
    return row;
  }
};

/// The text of an element whose value is its text. Accessors call it `Content`.
struct Content {
  ValueType type = ValueType::kString;
  bool is_optional = false;
  FieldRef (*locate)(IElement& node) = nullptr;  ///< null if the element has no text value

  bool takes_leading_digits = false;    ///< number: ignores what follows the digits
  bool is_always_written = false;       ///< optional: if absent, an empty tag is written
  bool stops_at_first_end_tag = false;  ///< a read stops there, even inside the element

  consteval Content LeadingDigits() const {
    internal::Require(type == ValueType::kNumber, "only a number has leading digits");
    Content text = *this;
    text.takes_leading_digits = true;
    return text;
  }
  consteval Content AlwaysWritten() const {
    internal::Require(is_optional, "a required text is always written");
    Content text = *this;
    text.is_always_written = true;
    return text;
  }
  consteval Content StopsAtFirstEndTag() const {
    Content text = *this;
    text.stops_at_first_end_tag = true;
    return text;
  }
};

/// An element.
struct Schema {
  /// A read keeps a bit for each kind of child that it has found.
  static constexpr std::size_t kMostChildren = 32;

  Name element;  ///< its name in the document
  const Dialect& dialect;
  std::span<const Attribute> attributes = {};
  std::span<const Child> children = {};
  Content content = {};

  std::wstring_view reported_as = {};  ///< its name in reports, if different
  bool closes_as_empty_tag = false;    ///< though it has children
  OwnReport add_report = {};
  OwnReport close_report = {};
  OwnReport null_writer_report = {};
  OwnReport null_reader_report = {};

  // What `Checked` adds.
  platform::Names attribute_names = {};
  platform::KnownTags child_tags = {};
  std::uint32_t required_children = 0;  ///< one bit for each row whose absence fails a read

  constexpr std::wstring_view ReportedName() const {
    return reported_as.empty() ? element.wide() : reported_as;
  }
};

/// Completes the table. Does not compile if the table is wrong.
consteval Schema Checked(Schema table) {
  using internal::Require;
  Require(table.attributes.size() <= platform::Names::kMost,
          "an element has 64 attributes at most");
  Require(table.children.size() <= Schema::kMostChildren,
          "an element has 32 kinds of children at most");
  const bool has_rows = !table.attributes.empty() || !table.children.empty();
  Require(!has_rows || table.content.locate == nullptr,
          "a text has neither attributes nor children");
  for (std::size_t i = 0; i < table.attributes.size(); ++i) {
    const std::wstring_view name = table.attributes[i].name;
    for (const Attribute& other : table.attributes.subspan(i + 1)) {
      Require(name != other.name.wide(), "two attributes have the same name");
    }
    for (const Child& child : table.children) {
      Require(name != child.name().wide(), "an attribute and a child have the same name");
    }
  }
  for (std::size_t i = 0; i < table.children.size(); ++i) {
    const std::wstring_view name = table.children[i].name();
    for (const Child& other : table.children.subspan(i + 1)) {
      Require(name != other.name().wide(), "two children have the same name");
    }
  }
  table.attribute_names = platform::Names(table.attributes, &Attribute::name);
  table.child_tags = platform::KnownTags(table.children, &Child::tag);
  for (std::size_t i = 0; i < table.children.size(); ++i) {
    const Child& row = table.children[i];
    const bool is_required = row.occurrence == Occurrence::kRequired && !row.may_be_absent;
    if (is_required) table.required_children |= std::uint32_t{1} << i;
  }
  return table;
}

// ---- rows --------------------------------------------------------------------------------------

namespace internal {

template <class>
struct MemberOf;

template <class ClassType, class FieldType>
struct MemberOf<FieldType ClassType::*> {
  using Class = ClassType;
  using Field = FieldType;
};

template <auto Member>
using ClassOf = typename MemberOf<decltype(Member)>::Class;
template <auto Member>
using TypeOfField = typename MemberOf<decltype(Member)>::Field;

/// What the type of a field says about its row.
template <class T>
struct FieldTraits {
  using Value = T;
  static constexpr bool kIsOptional = false;
  static FieldRef Locate(T& field) { return {&field, nullptr}; }
};

template <class T>
struct FieldTraits<Optional<T>> {
  using Value = T;
  static constexpr bool kIsOptional = true;
  static FieldRef Locate(Optional<T>& field) { return {&field.value, &field.present}; }
};

template <class Value>
constexpr ValueType TypeOf() {
  if constexpr (std::same_as<Value, DWORD>) return ValueType::kNumber;
  if constexpr (std::same_as<Value, std::uint64_t>) return ValueType::kLongNumber;
  if constexpr (std::same_as<Value, std::wstring>) return ValueType::kString;
}

// The functions below have the class and the type of the field as parameters that nobody states:
// in the names that some compilers give to functions, a pointer to a member is no more than an
// offset.

template <auto Member, class Class = ClassOf<Member>, class Field = TypeOfField<Member>>
Field& FieldOf(IElement& node) {
  return static_cast<Class&>(node).*Member;
}

template <auto Member, class Class = ClassOf<Member>, class Field = TypeOfField<Member>>
FieldRef LocateField(IElement& node) {
  return FieldTraits<Field>::Locate(FieldOf<Member>(node));
}

template <auto Member>
constexpr Attribute PlainRow(const Name& name) {
  using Traits = FieldTraits<TypeOfField<Member>>;
  return {name, TypeOf<typename Traits::Value>(), Traits::kIsOptional, &LocateField<Member>};
}

template <class C>
struct ChildTraits {
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kRequired;
  static ChildRef Locate(C& child) { return {&child, nullptr, nullptr}; }
  static IElement& Make(C& child) { return child; }
  static void Clear(C& child) { child.Clear(); }
};

template <class C>
struct ChildTraits<OptionalChild<C>> {
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kOptional;
  static ChildRef Locate(OptionalChild<C>& field) {
    return {&field.child, &field.present, nullptr};
  }
  static IElement& Make(OptionalChild<C>& field) { return field.child; }
  static void Clear(OptionalChild<C>& field) { field.child.Clear(); }
};

template <class C>
struct ChildTraits<LazyChild<C>> {
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kOptional;
  static ChildRef Locate(LazyChild<C>& field) { return {field.Find(), &field.present(), nullptr}; }
  static IElement& Make(LazyChild<C>& field) { return field.Made(); }
  static void Clear(LazyChild<C>& field) {
    if (field.Find() != nullptr) field.Find()->Clear();
  }
};

template <class C>
constexpr bool ReadsByTable() {
  if constexpr (requires { typename C::Interface; }) {
    return std::same_as<decltype(&C::ReadFromXMLMgr),
                        decltype(&Node<C, typename C::Interface>::ReadFromXMLMgr)>;
  } else {
    return false;
  }
}

template <class C>
constexpr bool WritesByTable() {
  if constexpr (requires { typename C::Interface; }) {
    return std::same_as<decltype(&C::WriteToXMLMgr),
                        decltype(&Node<C, typename C::Interface>::WriteToXMLMgr)>;
  } else {
    return false;
  }
}

template <class C, class I>
struct ChildTraits<ChildList<C, I>> {
  static_assert(ReadsByTable<C>(), "items are read by their tables");
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kRepeated;
  static ChildRef Locate(ChildList<C, I>& items) { return {nullptr, nullptr, &items}; }
  static IElement& Make(ChildList<C, I>& items) { return items.Append(); }
  static void Clear(ChildList<C, I>& items) { items.RemoveAll(); }
};

template <auto Member, class Class = ClassOf<Member>, class Field = TypeOfField<Member>>
ChildRef LocateChild(IElement& node) {
  return ChildTraits<Field>::Locate(FieldOf<Member>(node));
}

template <auto Member, class Class = ClassOf<Member>, class Field = TypeOfField<Member>>
IElement& MakeChild(IElement& node) {
  return ChildTraits<Field>::Make(FieldOf<Member>(node));
}

template <auto Member, class Class = ClassOf<Member>, class Field = TypeOfField<Member>>
void ClearChild(IElement& node) {
  ChildTraits<Field>::Clear(FieldOf<Member>(node));
}

}  // namespace internal

/// The row of a number or string attribute.
template <auto Member>
consteval Attribute Attr(Name name) {
  return internal::PlainRow<Member>(name);
}

/// The row of an ENUM attribute.
template <auto Member>
consteval Attribute Attr(Name name, EnumTexts texts) {
  Attribute row = internal::PlainRow<Member>(name);
  internal::Require(row.type == ValueType::kNumber, "the field of an ENUM is a DWORD");
  internal::Require(!texts.texts.empty(), "an ENUM has texts");
  for (std::size_t i = 0; i < texts.texts.size(); ++i) {
    const std::wstring_view text = texts.texts[i];
    for (const Name& other : texts.texts.subspan(i + 1)) {
      internal::Require(text != other.wide(), "two values of an ENUM have the same text");
    }
  }
  row.type = ValueType::kEnum;
  row.enum_texts = texts;
  return row;
}

/// The row of a child.
template <auto Member>
consteval Child Elem(Name name) {
  using Traits = internal::ChildTraits<internal::TypeOfField<Member>>;
  using Element = typename Traits::Element;
  return {{name, &Element::kSchema.attribute_names},
          Traits::kOccurrence,
          &Element::kSchema,
          &internal::LocateChild<Member>,
          &internal::MakeChild<Member>,
          &internal::ClearChild<Member>,
          internal::ReadsByTable<Element>(),
          internal::WritesByTable<Element>()};
}

/// The value of an element that consists of text.
template <auto Member>
consteval Content TextOf() {
  using Traits = internal::FieldTraits<internal::TypeOfField<Member>>;
  return {internal::TypeOf<typename Traits::Value>(), Traits::kIsOptional,
          &internal::LocateField<Member>};
}

}  // namespace tolva::node
