#include "cli/json.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "cli/text.h"
#include "support/unicode.h"

namespace tolva::cli {

using Json = nlohmann::ordered_json;

std::string DumpJson(const nlohmann::ordered_json& json, int indent) {
  const std::string dumped =
      json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  std::string text;
  text.reserve(dumped.size());
  const char* const end = dumped.data() + dumped.size();
  for (const char* at = dumped.data(); at != end;) {
    const char* const start = at;
    const char32_t c = support::internal::TakeCodePoint(at, end);
    if (c < 0x7F || !IsControl(c)) {
      text.append(start, at);
    } else {
      // Within a string, and not beyond U+FFFF.
      std::array<char, 16> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u%04X", static_cast<unsigned>(c));
      text += escape.data();
    }
  }
  return text;
}

std::string JsonText(const nlohmann::ordered_json& json) {
  constexpr int kIndent = 2;
  return DumpJson(json, kIndent) + "\n";
}

nlohmann::ordered_json ValueToJson(const Value& value, const std::string& text) {
  if (value.type != Value::Type::kNumber || value.IsLong()) return text;
  return std::stoul(text);
}

nlohmann::ordered_json ElementToJson(const Element& element, const ElementView& view,
                                     Secrets secrets) {
  if (element.text.has_value()) {
    const std::optional<std::string> text = view.Text();
    // Of an optional text, an empty one is written as none.
    const bool is_none =
        !text.has_value() || (text->empty() && element.schema->content.is_optional);
    return is_none ? Json(nullptr) : ValueToJson(*element.text, *text);
  }
  Json json = Json::object();
  for (const Attribute& attribute : element.attributes) {
    const std::optional<std::string> value = view.ValueOf(attribute);
    if (!value.has_value()) continue;
    const bool is_hidden = attribute.is_secret && secrets == Secrets::kHidden;
    json[attribute.name] = is_hidden ? Json(nullptr) : ValueToJson(attribute.value, *value);
  }
  for (const Child& child : element.children) {
    view.ForEach(child, [&](const ElementView& one) {
      Json value = ElementToJson(*child.element, one, secrets);
      if (child.occurrence == Occurrence::kRepeated) {
        json[child.name].push_back(std::move(value));
      } else {
        json[child.name] = std::move(value);
      }
    });
  }
  return json;
}

nlohmann::ordered_json ToJson(const Document& document, const node::INode& root) {
  auto& node = const_cast<node::INode&>(root);  // located, not changed
  Json json = Json::object();
  json[document.root().name] =
      ElementToJson(document.root(), NodeView(document.root(), node), Secrets::kShown);
  return json;
}

}  // namespace tolva::cli
