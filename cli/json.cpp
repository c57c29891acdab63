#include "cli/json.h"

#include <nlohmann/json.hpp>

#include "cli/text.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

Json ValueToJson(const Value& value, const node::FieldRef& field) {
  switch (value.type) {
    case Value::Type::kText:
      return ToUtf8(*static_cast<const std::wstring*>(field.value));
    case Value::Type::kEnum:
      return value.texts.at(*static_cast<const DWORD*>(field.value));
    default:
      if (value.IsLong()) return std::to_string(*static_cast<const std::uint64_t*>(field.value));
      return *static_cast<const DWORD*>(field.value);
  }
}

bool IsPresent(const DWORD* present) { return present == nullptr || *present != 0; }

Json ElementToJson(const Element& element, node::IElement& node) {
  if (element.text.has_value()) {
    const node::FieldRef field = element.schema->content.locate(node);
    if (!IsPresent(field.present)) return nullptr;
    Json json = ValueToJson(*element.text, field);
    // Of an optional text, an empty one is written as none.
    const auto* const text = json.get_ptr<const std::string*>();
    const bool is_none = element.schema->content.is_optional && text != nullptr && text->empty();
    return is_none ? Json(nullptr) : json;
  }
  Json json = Json::object();
  for (const Attribute& attribute : element.attributes) {
    const node::FieldRef field = attribute.row->locate(node);
    if (IsPresent(field.present)) json[attribute.name] = ValueToJson(attribute.value, field);
  }
  for (const Child& child : element.children) {
    const node::ChildRef found = child.row->locate(node);
    if (found.items == nullptr) {
      if (!IsPresent(found.present)) continue;
      json[child.name] = ElementToJson(*child.element, *found.element);
      continue;
    }
    for (std::size_t i = 0; i < found.items->Size(); ++i) {
      // Located, not changed.
      auto& item = const_cast<node::IElement&>(found.items->Item(i));
      json[child.name].push_back(ElementToJson(*child.element, item));
    }
  }
  return json;
}

}  // namespace

nlohmann::ordered_json ToJson(const Document& document, const node::INode& root) {
  auto& node = const_cast<node::INode&>(root);  // located, not changed
  Json json = Json::object();
  json[document.root().name] = ElementToJson(document.root(), node);
  return json;
}

}  // namespace tolva::cli
