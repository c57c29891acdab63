// The table of an element: what the engine, and any other code that goes through the elements,
// knows of it. A table is constant data, written beside its class:
//
//   constinit const Attribute CTimeSlot::kAttributes[] = {
//       Attr<&CTimeSlot::weekday_>(L"Weekday"),
//       Attr<&CTimeSlot::startTime_>(L"StartTime"),
//   };
//   constinit const Schema CTimeSlot::kSchema = {
//       .element = L"TimeSlot", .dialect = kPolicy, .attributes = kAttributes};
//
// The rows stand in write order, which is also the order in which a read judges them. The type of
// the field says what a row is (fields.h); what a row says beyond its name departs from the rule.
#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "node/diagnostics.h"
#include "node/fields.h"
#include "node/numbers.h"

namespace tolva::node {

template <class C, class I>
class Node;

/// What the elements of one document have in common.
struct Dialect {
  Numbers numbers;
  std::wstring_view null_writer;    ///< told of a null manager
  std::wstring_view null_reader;    ///< likewise
  std::wstring_view null_value;     ///< how the report of a null value begins
  std::wstring_view absent_string;  ///< how the report of an absent required string begins
};

/// The texts of an ENUM attribute; a value is an index.
struct EnumTexts {
  std::span<const wchar_t* const> texts;
  const wchar_t* otherwise = L"";  ///< written for a value beyond them
};

enum class ValueType : std::uint8_t { kNumber, kLongNumber, kString, kEnum };

/// Where a value lies in a node.
struct FieldRef {
  void* value;     ///< DWORD, std::uint64_t or std::wstring
  DWORD* present;  ///< null: always present
};

/// A report that replaces the one of the rule; unset: the rule's.
class OwnText {
 public:
  constexpr OwnText() = default;
  /// An empty text is silence.
  constexpr explicit OwnText(std::wstring_view text) : text_(text) {}

  constexpr bool IsSet() const { return text_.data() != nullptr; }
  constexpr std::wstring_view Get() const { return text_; }

 private:
  std::wstring_view text_;
};

/// One attribute of an element.
struct Attribute {
  const wchar_t* name;
  ValueType type;
  bool is_optional;
  FieldRef (*locate)(IElement& node);
  EnumTexts enum_texts = {};

  bool is_write_checked = true;        ///< a failed write ends the element's; required ones only
  bool is_kept_when_absent = false;    ///< required, but its absence is no fault
  bool is_one_when_absent = false;     ///< an absent switch reads as 1, and as present
  bool is_present_when_clear = false;  ///< optional, but cleared it is present
  OwnText read_fault = {};             ///< absent where required, or malformed

  constexpr Attribute Unchecked() const {
    Attribute row = *this;
    row.is_write_checked = false;
    return row;
  }
  constexpr Attribute KeptWhenAbsent() const {
    Attribute row = *this;
    row.is_kept_when_absent = true;
    return row;
  }
  constexpr Attribute OneWhenAbsent() const {
    Attribute row = *this;
    row.is_one_when_absent = true;
    return row;
  }
  constexpr Attribute PresentWhenClear() const {
    Attribute row = *this;
    row.is_present_when_clear = true;
    return row;
  }
  constexpr Attribute ReadFault(const wchar_t* text) const {
    Attribute row = *this;
    row.read_fault = OwnText(text);
    return row;
  }
};

enum class Occurrence : std::uint8_t { kRequired, kOptional, kRepeated };

/// Where a child lies in a node.
struct ChildRef {
  IElement* element;  ///< the child; null: it is repeated, or absent and has not been made
  DWORD* present;     ///< for an optional one
  ItemList* items;    ///< for a repeated one
};

struct Schema;

/// One child of an element, or one kind of children.
struct Child {
  const wchar_t* name;
  Occurrence occurrence;
  const Schema* schema;  ///< the child's own table
  ChildRef (*locate)(IElement& node);
  IElement& (*make)(IElement& node);  ///< what is read into: the child, or a new item
  void (*clear)(IElement& node);

  bool is_missed_first = false;  ///< its absence is reported before that of the rows above it
  bool is_dispensable = false;   ///< required and always written, but its absence is no fault
  OwnText write_fault = {};
  OwnText read_fault = {};
  OwnText missing = {};
  std::wstring_view before_write = {};  ///< told before it is written
  std::wstring_view after_write = {};   ///< told when it has been

  constexpr Child MissedFirst() const {
    Child row = *this;
    row.is_missed_first = true;
    return row;
  }
  constexpr Child MayBeMissing() const {
    Child row = *this;
    row.is_dispensable = true;
    return row;
  }
  constexpr Child WriteFault(const wchar_t* text) const {
    Child row = *this;
    row.write_fault = OwnText(text);
    return row;
  }
  constexpr Child ReadFault(const wchar_t* text) const {
    Child row = *this;
    row.read_fault = OwnText(text);
    return row;
  }
  constexpr Child Missing(const wchar_t* text) const {
    Child row = *this;
    row.missing = OwnText(text);
    return row;
  }
  constexpr Child Announced(const wchar_t* before, const wchar_t* after) const {
    Child row = *this;
    row.before_write = before;
    row.after_write = after;
    return row;
  }
};

/// The text of an element that has its value there. Accessors call it `Content`.
struct Content {
  ValueType type = ValueType::kString;
  bool is_optional = false;
  FieldRef (*locate)(IElement& node) = nullptr;  ///< null: the element has no such value

  bool takes_leading_digits = false;    ///< a number: whatever follows its digits is ignored
  bool is_always_written = false;       ///< optional: absent, it is written as an empty tag
  bool stops_at_first_end_tag = false;  ///< a read ends there, even within the element

  constexpr Content LeadingDigits() const {
    Content text = *this;
    text.takes_leading_digits = true;
    return text;
  }
  constexpr Content AlwaysWritten() const {
    Content text = *this;
    text.is_always_written = true;
    return text;
  }
  constexpr Content StopsAtFirstEndTag() const {
    Content text = *this;
    text.stops_at_first_end_tag = true;
    return text;
  }
};

/// An element.
struct Schema {
  const wchar_t* element;  ///< its name in the document
  const Dialect& dialect;
  std::span<const Attribute> attributes = {};
  std::span<const Child> children = {};
  Content content = {};

  const wchar_t* reported_as = nullptr;  ///< its name in reports, where that is another
  bool is_closed_empty = false;          ///< with children, but ended like an element without
  OwnText add_fault = {};
  OwnText close_fault = {};
  OwnText null_writer = {};
  OwnText null_reader = {};

  constexpr std::wstring_view ReportedName() const {
    return reported_as == nullptr ? element : reported_as;
  }
};

// ---- rows --------------------------------------------------------------------------------------

namespace internal {

template <class>
struct MemberOf;

template <class ClassType, class FieldType>
struct MemberOf<FieldType ClassType::*> {
  using Class = ClassType;
  using Field = FieldType;
};

/// What a field's type tells of its row.
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

template <auto Member>
auto& FieldOf(IElement& node) {
  using Class = typename MemberOf<decltype(Member)>::Class;
  return static_cast<Class&>(node).*Member;
}

template <auto Member>
FieldRef LocateField(IElement& node) {
  using Field = typename MemberOf<decltype(Member)>::Field;
  return FieldTraits<Field>::Locate(FieldOf<Member>(node));
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
  static void Clear(OptionalChild<C>& field) {
    field.present = 0;
    field.child.Clear();
  }
};

template <class C>
struct ChildTraits<LazyChild<C>> {
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kOptional;
  static ChildRef Locate(LazyChild<C>& field) { return {field.Find(), &field.present(), nullptr}; }
  static IElement& Make(LazyChild<C>& field) { return field.Made(); }
  static void Clear(LazyChild<C>& field) { field.Clear(); }
};

template <class C, class I>
struct ChildTraits<ChildList<C, I>> {
  static_assert(std::same_as<decltype(&C::ReadFromXMLMgr),
                             decltype(&Node<C, typename C::Interface>::ReadFromXMLMgr)>,
                "items are read by their tables");
  using Element = C;
  static constexpr Occurrence kOccurrence = Occurrence::kRepeated;
  static ChildRef Locate(ChildList<C, I>& items) { return {nullptr, nullptr, &items}; }
  static IElement& Make(ChildList<C, I>& items) { return items.Append(); }
  static void Clear(ChildList<C, I>& items) { items.RemoveAll(); }
};

template <auto Member>
ChildRef LocateChild(IElement& node) {
  return ChildTraits<typename MemberOf<decltype(Member)>::Field>::Locate(FieldOf<Member>(node));
}

template <auto Member>
IElement& MakeChild(IElement& node) {
  return ChildTraits<typename MemberOf<decltype(Member)>::Field>::Make(FieldOf<Member>(node));
}

template <auto Member>
void ClearChild(IElement& node) {
  ChildTraits<typename MemberOf<decltype(Member)>::Field>::Clear(FieldOf<Member>(node));
}

}  // namespace internal

/// The row of a number or string attribute.
template <auto Member>
constexpr Attribute Attr(const wchar_t* name) {
  using Traits = internal::FieldTraits<typename internal::MemberOf<decltype(Member)>::Field>;
  return {name, internal::TypeOf<typename Traits::Value>(), Traits::kIsOptional,
          &internal::LocateField<Member>};
}

/// The row of an ENUM attribute.
template <auto Member>
constexpr Attribute Attr(const wchar_t* name, EnumTexts texts) {
  Attribute row = Attr<Member>(name);
  row.type = ValueType::kEnum;
  row.enum_texts = texts;
  return row;
}

/// The row of a child.
template <auto Member>
constexpr Child Elem(const wchar_t* name) {
  using Traits = internal::ChildTraits<typename internal::MemberOf<decltype(Member)>::Field>;
  return {name,
          Traits::kOccurrence,
          &Traits::Element::kSchema,
          &internal::LocateChild<Member>,
          &internal::MakeChild<Member>,
          &internal::ClearChild<Member>};
}

/// The value of an element that consists of text.
template <auto Member>
constexpr Content TextOf() {
  using Traits = internal::FieldTraits<typename internal::MemberOf<decltype(Member)>::Field>;
  return {internal::TypeOf<typename Traits::Value>(), Traits::kIsOptional,
          &internal::LocateField<Member>};
}

}  // namespace tolva::node
