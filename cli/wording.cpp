#include "cli/wording.h"

#include "cli/text.h"

namespace tolva::cli {

std::string TypeName(const Value& value) {
  switch (value.type) {
    case Value::Type::kNumber:
      return value.IsLong() ? "64-bit number" : "number";
    case Value::Type::kEnum:
      return "ENUM";
    default:
      return "text";
  }
}

std::string TypeSentence(const Value& value) {
  switch (value.type) {
    case Value::Type::kNumber: {
      std::string sentence =
          "A number from 0 to " + std::to_string(value.greatest) + ", in digits.";
      if (value.takes_leading_digits) sentence += " What follows the digits is ignored.";
      return sentence;
    }
    case Value::Type::kEnum:
      return "One of " + Enumerate(value.texts) + ".";
    default:
      return "Any text.";
  }
}

std::string OccurrenceName(Occurrence occurrence) {
  switch (occurrence) {
    case Occurrence::kRequired:
      return "required";
    case Occurrence::kOptional:
      return "optional";
    default:
      return "any number";
  }
}

std::string AbsenceSentence(const Attribute& attribute) {
  if (!attribute.when_absent.has_value()) {
    return attribute.occurrence == Occurrence::kRequired
               ? "Without it, the library refuses the document."
               : "It may be absent.";
  }
  return attribute.when_absent->empty()
             ? "If it is absent, it counts as empty."
             : "If it is absent, " + *attribute.when_absent + " applies.";
}

std::string TextSentence(const Element& element) {
  const Value& value = *element.text;
  if (value.type == Value::Type::kText && !element.is_text_required) {
    return value.may_be_empty ? "Any text." : "Any text; an empty one counts as none.";
  }
  const std::string sentence =
      value.type == Value::Type::kText ? "Any text but an empty one." : TypeSentence(value);
  return sentence + " Without it, the library refuses the document.";
}

std::vector<std::string> NamesOfItem(const Element& element) {
  std::vector<std::string> names;
  for (const Attribute& attribute : element.attributes) {
    if (attribute.names_item) names.push_back(attribute.name);
  }
  for (const Child& child : element.children) {
    if (child.names_item) names.push_back(child.name);
  }
  return names;
}

}  // namespace tolva::cli
