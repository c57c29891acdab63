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

std::wstring TextOf(ValueType type, const void* value) {
  switch (type) {
    case ValueType::kLongNumber:
      return std::to_wstring(*static_cast<const std::uint64_t*>(value));
    case ValueType::kString:
      return *static_cast<const std::wstring*>(value);
    default:
      return std::to_wstring(*static_cast<const DWORD*>(value));
  }
}

/// All that a node shows, with marks that no value contains.
std::wstring ContentOf(const Schema& table, IElement& node) {
  std::wstring content;
  const auto add = [&content](ValueType type, const FieldRef& field) {
    const bool is_absent = field.present != nullptr && *field.present == 0;
    content += is_absent ? L"\1" : TextOf(type, field.value) + L"\2";
  };
  for (const Attribute& row : table.attributes) add(row.type, row.locate(node));
  if (table.content.locate != nullptr) add(table.content.type, table.content.locate(node));
  for (const Child& row : table.children) {
    const ChildRef child = row.locate(node);
    if (child.items != nullptr) {
      for (std::size_t i = 0; i < child.items->Size(); ++i) {
        content += ContentOf(*row.schema, const_cast<IElement&>(child.items->Item(i)));
      }
    } else if (child.present == nullptr || *child.present != 0) {
      content += ContentOf(*row.schema, *child.element);
    }
    content += L'\3';
  }
  return content + L'\4';
}

}  // namespace

bool AreEqual(const Schema& table, const IElement& left, const IElement& right) {
  // They are located, not changed.
  return ContentOf(table, const_cast<IElement&>(left)) ==
         ContentOf(table, const_cast<IElement&>(right));
}

namespace {

bool IsDefault(ValueType type, const FieldRef& field) {
  return TextOf(type, field.value) == (type == ValueType::kString ? L"" : L"0");
}

bool IsCleared(const Attribute& row, const FieldRef& field, const FieldRef& before) {
  const bool value_holds = row.keeps_value
                               ? TextOf(row.type, field.value) == TextOf(row.type, before.value)
                               : IsDefault(row.type, field);
  if (!value_holds || field.present == nullptr) return value_holds;
  const DWORD cleared = row.is_present_when_clear ? 1 : 0;
  return *field.present == (row.keeps_presence ? *before.present : cleared);
}

}  // namespace

bool IsCleared(const Schema& table, IElement& node, IElement& before) {
  for (const Attribute& row : table.attributes) {
    if (!IsCleared(row, row.locate(node), row.locate(before))) return false;
  }
  if (table.content.locate != nullptr) {
    const FieldRef field = table.content.locate(node);
    if (!IsDefault(table.content.type, field)) return false;
    if (field.present != nullptr && *field.present != 0) return false;
  }
  for (const Child& row : table.children) {
    const ChildRef child = row.locate(node);
    const ChildRef old = row.locate(before);
    if (child.items != nullptr) {
      if (child.items->Size() != 0) return false;
      continue;
    }
    if (child.present != nullptr && *child.present != (row.keeps_presence ? *old.present : 0)) {
      return false;
    }
    if (child.element != nullptr && !IsCleared(*row.schema, *child.element, *old.element)) {
      return false;
    }
  }
  return true;
}

}  // namespace tolva::test
