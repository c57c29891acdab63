#include "tables/random_content.h"

#include <cstdint>
#include <iterator>

#include "support/capabilities.h"

namespace tolva::test {

using namespace node;

std::wstring RandomContent::String() {
  static const wchar_t* const pieces[] = {
      L"a", L"Z9", L" ", L"  ", L"\u00E9", L"\u20AC", L"\uFFFD", L"\U0001F600", L"<",
      L"&", L"\"", L"'", L">",  L"]]>",    L"\t",     L"\n",     L"\r",         L"\r\n",
  };
  constexpr unsigned kPlain = 8;  // the first ones need no escaping
  const unsigned limit = WriterEscapes() ? static_cast<unsigned>(std::size(pieces)) : kPlain;
  std::wstring text;
  for (unsigned count = Below(6); count != 0; --count) text += pieces[Below(limit)];
  if (Below(200) == 0) text.append(3000, L'x');
  return text;
}

void RandomContent::FillValue(ValueType type, const EnumTexts& texts, Numbers numbers,
                              const FieldRef& field) {
  switch (type) {
    case ValueType::kNumber: {
      const auto value = static_cast<DWORD>(Below(2) == 0 ? Below(10) : random_());
      // A signed one beyond this is written with a sign, and cannot be read.
      *static_cast<DWORD*>(field.value) = numbers == Numbers::kSigned ? value & 0x7FFFFFFF : value;
      break;
    }
    case ValueType::kEnum:
      *static_cast<DWORD*>(field.value) = Below(static_cast<unsigned>(texts.texts.size()));
      break;
    case ValueType::kLongNumber:
      *static_cast<std::uint64_t*>(field.value) =
          (static_cast<std::uint64_t>(random_()) << 32) | random_();
      break;
    case ValueType::kString:
      *static_cast<std::wstring*>(field.value) = String();
      break;
  }
}

void RandomContent::Fill(const Schema& table, IElement& node) {
  ++depth_;
  for (const Attribute& row : table.attributes) {
    const FieldRef field = row.locate(node);
    FillValue(row.type, row.enum_texts, table.dialect.numbers, field);
    if (field.present == nullptr) continue;
    // What reads as present when it is absent cannot be absent.
    const bool must_be = row.is_one_when_absent || row.is_present_when_clear;
    *field.present = must_be || Below(2) == 0 ? 1 : 0;
  }
  if (table.content.locate != nullptr) {
    const FieldRef field = table.content.locate(node);
    FillValue(table.content.type, {}, table.dialect.numbers, field);
    if (field.present != nullptr) {
      *field.present = !table.content.is_always_written || Below(2) == 0 ? 1 : 0;
    }
    // A text that is empty is none.
    if (table.content.type == ValueType::kString) {
      static_cast<std::wstring*>(field.value)->insert(0, L"t");
    }
  }
  for (const Child& row : table.children) {
    const ChildRef child = row.locate(node);
    if (child.items != nullptr) {
      child.items->RemoveAll();
      for (unsigned count = depth_ > 6 ? 0 : Below(3); count != 0; --count) {
        Fill(*row.schema, child.items->Append());
      }
      continue;
    }
    Fill(*row.schema, row.make(node));
    if (child.present != nullptr) *child.present = Below(4) == 0 ? 0 : 1;
  }
  --depth_;
}

namespace {

bool IsSame(ValueType type, const void* left, const void* right) {
  switch (type) {
    case ValueType::kLongNumber:
      return *static_cast<const std::uint64_t*>(left) == *static_cast<const std::uint64_t*>(right);
    case ValueType::kString:
      return *static_cast<const std::wstring*>(left) == *static_cast<const std::wstring*>(right);
    default:
      return *static_cast<const DWORD*>(left) == *static_cast<const DWORD*>(right);
  }
}

bool AreEqual(ValueType type, const FieldRef& left, const FieldRef& right) {
  const auto is_present = [](const FieldRef& field) {
    return field.present == nullptr || *field.present != 0;
  };
  if (!is_present(left) || !is_present(right)) return is_present(left) == is_present(right);
  return IsSame(type, left.value, right.value);
}

bool AreEqual(const Child& row, const ChildRef& left, const ChildRef& right) {
  if (left.items != nullptr) {
    if (left.items->Size() != right.items->Size()) return false;
    for (std::size_t i = 0; i < left.items->Size(); ++i) {
      if (!test::AreEqual(*row.schema, left.items->Item(i), right.items->Item(i))) return false;
    }
    return true;
  }
  if (left.present != nullptr) {
    if ((*left.present != 0) != (*right.present != 0)) return false;
    if (*left.present == 0) return true;
  }
  return test::AreEqual(*row.schema, *left.element, *right.element);
}

}  // namespace

bool AreEqual(const Schema& table, const IElement& left, const IElement& right) {
  auto& a = const_cast<IElement&>(left);  // located, not changed
  auto& b = const_cast<IElement&>(right);
  for (const Attribute& row : table.attributes) {
    if (!AreEqual(row.type, row.locate(a), row.locate(b))) return false;
  }
  if (table.content.locate != nullptr &&
      !AreEqual(table.content.type, table.content.locate(a), table.content.locate(b))) {
    return false;
  }
  for (const Child& row : table.children) {
    if (!AreEqual(row, row.locate(a), row.locate(b))) return false;
  }
  return true;
}

namespace {

bool IsDefault(ValueType type, const FieldRef& field) {
  const std::uint64_t zero = 0;
  const std::wstring empty;
  return type == ValueType::kString ? IsSame(type, field.value, &empty)
                                    : IsSame(type, field.value, &zero);
}

/// `before`: what the row keeps has to be the same; null: it may be anything.
bool IsCleared(const Attribute& row, const FieldRef& field, const FieldRef* before) {
  const bool value_holds = !row.keeps_value
                               ? IsDefault(row.type, field)
                               : before == nullptr || IsSame(row.type, field.value, before->value);
  if (!value_holds || field.present == nullptr) return value_holds;
  if (!row.keeps_presence) return *field.present == (row.is_present_when_clear ? 1U : 0U);
  return before == nullptr || *field.present == *before->present;
}

}  // namespace

bool IsCleared(const Schema& table, IElement& node, IElement* before) {
  for (const Attribute& row : table.attributes) {
    const FieldRef old = before == nullptr ? FieldRef() : row.locate(*before);
    if (!IsCleared(row, row.locate(node), before == nullptr ? nullptr : &old)) return false;
  }
  if (table.content.locate != nullptr) {
    const FieldRef field = table.content.locate(node);
    if (!IsDefault(table.content.type, field)) return false;
    if (field.present != nullptr && *field.present != 0) return false;
  }
  for (const Child& row : table.children) {
    const ChildRef child = row.locate(node);
    const ChildRef old = before == nullptr ? ChildRef() : row.locate(*before);
    if (child.items != nullptr) {
      if (child.items->Size() != 0) return false;
      continue;
    }
    if (child.present != nullptr) {
      const DWORD expected = !row.keeps_presence ? 0
                             : before == nullptr ? *child.present
                                                 : *old.present;
      if (*child.present != expected) return false;
    }
    if (child.element != nullptr && !IsCleared(*row.schema, *child.element, old.element)) {
      return false;
    }
  }
  return true;
}

}  // namespace tolva::test
