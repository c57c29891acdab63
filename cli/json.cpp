#include "cli/json.h"

#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>
#include <optional>

#include "cli/session.h"
#include "cli/text.h"
#include "platform/utf.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

class JsonReader {
 public:
  void ReadDocument(const Document& document, const Json& json, node::IElement& root) {
    Require(json.is_object(), "has to be an object");
    for (const auto& [name, value] : json.items()) {
      if (name == document.root().name || (name == "$schema" && value.is_string())) continue;
      Fail("has no place for '" + Printable(name) + "'; its member is '" + document.root().name +
           "'");
    }
    const auto found = json.find(document.root().name);
    Require(found != json.end(), "needs the member '" + document.root().name + "'");
    const Step step(*this, document.root().name);
    ReadElement(document.root(), *found, root);
  }

 private:
  /// Is at a member or item as long as it lives.
  class Step {
   public:
    Step(JsonReader& reader, std::string_view name) : reader_(reader), size_(reader.at_.size()) {
      reader.at_.append("/").append(name);
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step() { reader_.at_.resize(size_); }

   private:
    JsonReader& reader_;
    const std::size_t size_;
  };

  [[noreturn]] void Fail(const std::string& reason) const {
    throw Trouble("'" + (at_.empty() ? "/" : Printable(at_)) + "' " + reason);
  }

  void Require(bool holds, const std::string& reason) const {
    if (!holds) Fail(reason);
  }

  void ReadElement(const Element& element, const Json& json, node::IElement& node) {
    if (element.text.has_value()) {
      ReadText(element, json, node);
      return;
    }
    Require(json.is_object(), "has to be an object");
    for (const auto& member : json.items()) {
      const std::string& name = member.key();
      const bool is_known =
          element.FindAttribute(name) != nullptr || element.FindChild(name) != nullptr;
      Require(is_known, "has no place for '" + Printable(name) + "'");
    }
    for (const Attribute& attribute : element.attributes) ReadAttribute(attribute, json, node);
    for (const Child& child : element.children) ReadChild(child, json, node);
  }

  void ReadAttribute(const Attribute& attribute, const Json& json, node::IElement& node) {
    const node::FieldRef field = attribute.row->locate(node);
    const auto found = json.find(attribute.name);
    if (found == json.end()) {
      Require(attribute.occurrence != Occurrence::kRequired, "needs '" + attribute.name + "'");
      if (!attribute.when_absent.has_value()) return;
      SetPresent(field.present);
      ReadValue(attribute.value, AbsentValue(attribute), field);
      return;
    }
    const Step step(*this, attribute.name);
    SetPresent(field.present);
    ReadValue(attribute.value, *found, field);
  }

  static Json AbsentValue(const Attribute& attribute) {
    const bool is_number = attribute.value.type == Value::Type::kNumber;
    return is_number ? Json(std::stoul(*attribute.when_absent)) : Json(*attribute.when_absent);
  }

  void ReadChild(const Child& child, const Json& json, node::IElement& node) {
    const auto found = json.find(child.name);
    if (found == json.end()) {
      Require(child.occurrence != Occurrence::kRequired, "needs '" + child.name + "'");
      return;
    }
    const Step step(*this, child.name);
    if (child.occurrence == Occurrence::kRepeated) {
      Require(found->is_array(), "has to be an array");
      for (std::size_t i = 0; i < found->size(); ++i) {
        const Step item(*this, std::to_string(i));
        ReadElement(*child.element, (*found)[i], child.row->make(node));
      }
      return;
    }
    ReadElement(*child.element, *found, child.row->make(node));
    SetPresent(child.row->locate(node).present);
  }

  void ReadText(const Element& element, const Json& json, node::IElement& node) {
    const node::FieldRef field = element.schema->content.locate(node);
    const bool may_be_null = !element.is_text_required && !element.text->may_be_empty;
    if (json.is_null() && may_be_null) return;
    SetPresent(field.present);
    ReadValue(*element.text, json, field);
    const bool is_empty = json.is_string() && json.get_ref<const std::string&>().empty();
    Require(!is_empty || element.text->may_be_empty, "cannot be empty");
  }

  void ReadValue(const Value& value, const Json& json, const node::FieldRef& field) {
    switch (value.type) {
      case Value::Type::kText: {
        Require(json.is_string(), "has to be a string");
        const std::wstring text = ToWide(json.get_ref<const std::string&>());
        const wchar_t* const end = text.data() + text.size();
        Require(platform::FindForbidden(text.data(), end) == end,
                "holds a character that XML does not allow");
        *static_cast<std::wstring*>(field.value) = text;
        break;
      }
      case Value::Type::kEnum: {
        const auto found = json.is_string()
                               ? std::ranges::find(value.texts, json.get_ref<const std::string&>())
                               : value.texts.end();
        Require(found != value.texts.end(), "has to be one of " + Enumerate(value.texts));
        *static_cast<DWORD*>(field.value) = static_cast<DWORD>(found - value.texts.begin());
        break;
      }
      case Value::Type::kNumber:
        if (value.IsLong()) {
          *static_cast<std::uint64_t*>(field.value) = LongNumber(json);
        } else {
          *static_cast<DWORD*>(field.value) = static_cast<DWORD>(Number(json, value.greatest));
        }
        break;
    }
  }

  std::uint64_t Number(const Json& json, std::uint64_t greatest) const {
    // 1.0 is a whole number, too.
    const double number = json.is_number() ? json.get<double>() : -1;
    const auto limit = static_cast<double>(greatest);
    Require(number >= 0 && number <= limit &&
                number == static_cast<double>(static_cast<std::uint64_t>(number)),
            "has to be a number from 0 to " + std::to_string(greatest));
    return static_cast<std::uint64_t>(number);
  }

  std::uint64_t LongNumber(const Json& json) const {
    std::uint64_t number = 0;
    bool is_number = json.is_string();
    if (is_number) {
      const auto& text = json.get_ref<const std::string&>();
      const char* const end = text.data() + text.size();
      const auto [stop, error] = std::from_chars(text.data(), end, number);
      is_number = !text.empty() && stop == end && error == std::errc() &&
                  (text.size() == 1 || text[0] != '0');
    }
    Require(is_number, "has to be a string that holds a 64-bit number");
    return number;
  }

  static void SetPresent(DWORD* present) {
    if (present != nullptr) *present = 1;
  }

  std::string at_;  ///< where the reader is, as a JSON pointer
};

}  // namespace

nlohmann::ordered_json ValueToJson(const Value& value, const std::string& text) {
  if (value.type != Value::Type::kNumber || value.IsLong()) return text;
  return std::stoul(text);
}

nlohmann::ordered_json ElementToJson(const Element& element, const ElementView& view,
                                     Secrets secrets) {
  if (element.text.has_value()) {
    const std::optional<std::string> text = view.Text();
    return text.has_value() ? ValueToJson(*element.text, *text) : Json(nullptr);
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

void FromJson(const Document& document, const nlohmann::ordered_json& json, node::INode& root) {
  root.Clear();
  JsonReader().ReadDocument(document, json, root);
}

}  // namespace tolva::cli
