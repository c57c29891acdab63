#include "cli/fields.h"

#include <algorithm>

#include "cli/text.h"
#include "node/numbers.h"

namespace tolva::cli {
namespace {

bool IsPresent(const DWORD* present) { return present == nullptr || *present != 0; }

std::optional<std::string> Read(const Value& value, const node::FieldRef& field) {
  if (!IsPresent(field.present)) return std::nullopt;
  switch (value.type) {
    case Value::Type::kText:
      return ToUtf8(*static_cast<const std::wstring*>(field.value));
    case Value::Type::kEnum:
      return value.texts.at(*static_cast<const DWORD*>(field.value));
    default:
      return std::to_string(value.IsLong() ? *static_cast<const std::uint64_t*>(field.value)
                                           : *static_cast<const DWORD*>(field.value));
  }
}

}  // namespace

std::optional<std::string> NodeView::ValueOf(const Attribute& attribute) const {
  return Read(attribute.value, attribute.row->locate(node_));
}

std::optional<std::string> NodeView::Text() const {
  return Read(*element_.text, element_.schema->content.locate(node_));
}

void NodeView::ForEach(const Child& child,
                       const std::function<void(const ElementView&)>& visit) const {
  const node::ChildRef found = child.row->locate(node_);
  if (found.items == nullptr) {
    if (IsPresent(found.present)) visit(NodeView(*child.element, *found.element));
    return;
  }
  for (std::size_t i = 0; i < found.items->Size(); ++i) {
    // Located, not changed.
    visit(NodeView(*child.element, const_cast<node::IElement&>(found.items->Item(i))));
  }
}

std::optional<std::string> NumberAsRead(const Element& element, const Value& value,
                                        std::string_view text) {
  const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
  if (end != text.size() && !value.takes_leading_digits) return std::nullopt;
  const std::string_view digits = text.substr(0, end);
  if (!value.IsLong()) {
    return std::to_string(node::ParseLeadingDigits(digits, element.schema->dialect.numbers));
  }
  std::uint64_t number = 0;
  node::ParseLongNumber(digits, &number);
  return std::to_string(number);
}

}  // namespace tolva::cli
