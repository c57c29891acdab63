// JSON Schema (2020-12) of the JSON form of the documents.
#include <nlohmann/json.hpp>

#include "cli/schemas.h"
#include "cli/text.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

void AddDescription(std::string_view sentence, Json& schema) {
  if (!sentence.empty()) schema["description"] = Sentence(sentence);
}

void AddValue(const Value& value, Json& schema) {
  switch (value.type) {
    case Value::Type::kEnum:
      schema["enum"] = value.texts;
      break;
    case Value::Type::kText:
      schema["type"] = "string";
      break;
    case Value::Type::kNumber:
      // Programs that hold numbers as floating point would change one of 64 bits.
      if (value.IsLong()) {
        schema["type"] = "string";
        schema["pattern"] = "^(0|[1-9][0-9]{0,19})$";
      } else {
        schema["type"] = "integer";
        schema["minimum"] = 0;
        schema["maximum"] = value.greatest;
      }
      break;
  }
}

Json SchemaOf(const Attribute& attribute) {
  Json schema = Json::object();
  AddDescription(attribute.sentence, schema);
  AddValue(attribute.value, schema);
  if (attribute.when_absent.has_value()) {
    const bool is_number = attribute.value.type == Value::Type::kNumber;
    schema["default"] =
        is_number ? Json(std::stoul(*attribute.when_absent)) : Json(*attribute.when_absent);
  }
  return schema;
}

/// A text element is its text; null if it has none.
Json SchemaOfText(const Element& element) {
  Json schema = Json::object();
  AddDescription(element.sentence, schema);
  AddValue(*element.text, schema);
  if (element.text->type != Value::Type::kText) return schema;
  if (!element.text->may_be_empty) schema["minLength"] = 1;
  if (!element.is_text_required && !element.text->may_be_empty) {
    schema["type"] = Json::array({"string", "null"});
  }
  return schema;
}

class SchemaWriter {
 public:
  explicit SchemaWriter(DocumentList documents) : documents_(documents) {}

  Json Write() const {
    Json schema = {{"$schema", "https://json-schema.org/draft/2020-12/schema"}};
    if (documents_.size() == 1) schema["title"] = documents_.front()->title;
    schema["type"] = "object";
    schema["properties"]["$schema"] = {{"type", "string"},
                                       {"description", "The JSON Schema of the document."}};
    Json roots = Json::array();
    Json definitions = Json::object();
    for (const Document* const document : documents_) {
      const Element& root = document->root();
      schema["properties"][root.name] = Reference(*document, root);
      roots.push_back({{"required", Json::array({root.name})}});
      for (const auto& element : document->elements) {
        definitions[SchemaName(documents_, *document, *element)] = SchemaOf(*document, *element);
      }
    }
    if (roots.size() == 1) {
      schema["required"] = roots[0]["required"];
    } else {
      schema["oneOf"] = std::move(roots);
    }
    schema["additionalProperties"] = false;
    schema["$defs"] = std::move(definitions);
    return schema;
  }

 private:
  Json Reference(const Document& document, const Element& element) const {
    return {{"$ref", "#/$defs/" + SchemaName(documents_, document, element)}};
  }

  Json SchemaOf(const Document& document, const Element& element) const {
    if (element.text.has_value()) return SchemaOfText(element);
    Json schema = Json::object();
    AddDescription(element.sentence, schema);
    schema["type"] = "object";
    schema["properties"] = Json::object();
    Json required = Json::array();
    for (const Attribute& attribute : element.attributes) {
      schema["properties"][attribute.name] = cli::SchemaOf(attribute);
      if (attribute.occurrence == Occurrence::kRequired) required.push_back(attribute.name);
    }
    for (const Child& child : element.children) {
      Json one = Reference(document, *child.element);
      if (child.occurrence == Occurrence::kRepeated) one = {{"type", "array"}, {"items", one}};
      AddDescription(child.sentence, one);
      schema["properties"][child.name] = std::move(one);
      if (child.occurrence == Occurrence::kRequired) required.push_back(child.name);
    }
    if (!required.empty()) schema["required"] = std::move(required);
    schema["additionalProperties"] = false;
    return schema;
  }

  const DocumentList documents_;
};

}  // namespace

nlohmann::ordered_json JsonSchemaOf(DocumentList documents) {
  return SchemaWriter(documents).Write();
}

}  // namespace tolva::cli
