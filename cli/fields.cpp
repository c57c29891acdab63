#include "cli/fields.h"

#include "cli/text.h"

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

}  // namespace tolva::cli
