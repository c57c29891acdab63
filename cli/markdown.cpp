#include "cli/schemas.h"
#include "cli/text.h"
#include "cli/wording.h"

namespace tolva::cli {
namespace {

std::string Code(std::string_view text) { return "`" + std::string(text) + "`"; }

/// The texts of an ENUM, and the type of everything else.
std::string TypeCell(const Value& value) {
  if (value.type != Value::Type::kEnum) {
    return value.type == Value::Type::kNumber ? "number to " + std::to_string(value.greatest)
                                              : TypeName(value);
  }
  std::vector<std::string> texts;
  for (const std::string& text : value.texts) texts.push_back(Code(text));
  return Enumerate(texts);
}

std::string OccurrenceCell(const Attribute& attribute) {
  if (!attribute.when_absent.has_value()) return OccurrenceName(attribute.occurrence);
  return "optional; absent: " + *attribute.when_absent;
}

void Append(const Document& document, const Element& element, std::string& text) {
  const auto anchor = [&](const Element& one) { return std::string(document.name) + "." + one.id; };
  text += "\n### <a id=\"" + anchor(element) + "\"></a>" + Code(element.name) + "\n";
  std::string about = Sentence(element.sentence);
  if (element.text.has_value()) about += (about.empty() ? "" : " ") + TextSentence(element);
  if (!about.empty()) text += "\n" + about + "\n";
  if (!element.attributes.empty()) {
    text += "\n| Attribute | Occurs | Type | Meaning |\n| --- | --- | --- | --- |\n";
    for (const Attribute& attribute : element.attributes) {
      text += "| " + Code(attribute.name) + " | " + OccurrenceCell(attribute) + " | " +
              TypeCell(attribute.value) + " | " + Sentence(attribute.sentence) + " |\n";
    }
  }
  if (!element.children.empty()) {
    text += "\n| Child | Occurs | Meaning |\n| --- | --- | --- |\n";
    for (const Child& child : element.children) {
      text += "| [" + Code(child.name) + "](#" + anchor(*child.element) + ") | " +
              OccurrenceName(child.occurrence) + " | " + Sentence(child.sentence) + " |\n";
    }
  }
}

}  // namespace

std::string MarkdownOf(DocumentList documents) {
  std::string text =
      "# Documents\n\n"
      "`tolva schema md` makes this page from the library's tables and the comments of its "
      "headers.\n"
      "Attributes and children are listed in the order in which they are written. Children are "
      "read\n"
      "in any order. The texts of an ENUM stand for 0, 1, 2 and so on. A number that is greater "
      "than\n"
      "stated is read as another one.\n";
  for (const Document* const document : documents) {
    text += "\n## " + std::string(document->title) + "\n\nDocument " + Code(document->name) +
            ", root " + Code(document->root().name) + ", namespace " + Code(document->space) +
            ", " + Count(document->elements.size(), "element") + ".\n";
    for (const auto& element : document->elements) Append(*document, *element, text);
  }
  return text;
}

}  // namespace tolva::cli
