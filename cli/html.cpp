// The HTML page. It can be read without its script, which folds, searches and follows links.
#include <algorithm>
#include <map>

#include "cli/markup.h"
#include "cli/places.h"
#include "cli/schemas.h"
#include "cli/text.h"
#include "cli/wording.h"
#include "page.h"

namespace tolva::cli {
namespace {

std::string Link(const std::string& anchor, std::string_view content,
                 std::string_view attributes = "") {
  return Tag("a",
             "href=\"#" + anchor + "\"" + (attributes.empty() ? "" : " ") + std::string(attributes),
             content);
}

std::string Code(std::string_view text) { return Tag("code", "", Escaped(text)); }

std::string BreakableCode(std::string_view text) { return Tag("code", "", Breakable(text)); }

std::string Badge(std::string_view kind, std::string_view text) {
  return Tag("span", "class=\"badge " + std::string(kind) + "\"", text);
}

std::string OccurrenceBadge(Occurrence occurrence) {
  const bool is_required = occurrence == Occurrence::kRequired;
  return Badge(is_required ? "required" : "plain", OccurrenceName(occurrence));
}

/// Writes one document.
class DocumentPage {
 public:
  explicit DocumentPage(const Document& document) : document_(document) {
    ForEachPlace(document, [this](const Place& place) {
      if (place.attribute == nullptr) paths_[place.element].push_back(place.path);
    });
    const bool is_signed = document.root().schema->dialect.numbers == node::Numbers::kSigned;
    greatest_ = is_signed ? 0x7FFFFFFF : 0xFFFFFFFF;
  }

  std::string Section() {
    const std::string name(document_.name);
    text_ = "<details class=\"document\" id=\"" + name + "\" open>\n<summary>" +
            Tag("h2", "", Escaped(document_.title)) +
            Tag("p", "class=\"facts\"",
                Code(document_.name) + " root " + Code("<" + document_.root().name + ">") + " " +
                    Count(document_.elements.size(), "element") + ", numbers to " +
                    std::to_string(greatest_)) +
            "</summary>\n";
    for (const auto& element : document_.elements) AddElement(*element);
    text_ += "</details>\n";
    return std::move(text_);
  }

  /// The elements as a tree of links.
  std::string Tree() {
    text_.clear();
    std::vector<const Element*> open;
    AddBranch(document_.root(), document_.root().name, open);
    return std::move(text_);
  }

 private:
  std::string Anchor(const Element& element) const {
    return std::string(document_.name) + "/" + element.id;
  }

  std::string Anchor(const Element& element, const std::string& row) const {
    return Anchor(element) + "/" + row;
  }

  void AddBranch(const Element& element, const std::string& name,
                 std::vector<const Element*>& open) {
    const std::string link = Link(Anchor(element), Breakable(name));
    const bool is_within_itself = std::ranges::find(open, &element) != open.end();
    if (element.children.empty() || is_within_itself) {
      text_ += Tag("li", "", link + (is_within_itself ? " ↺" : ""));
      return;
    }
    // The root and what is in it are shown; everything else is unfolded on request.
    text_ += std::string("<li><details") + (open.empty() ? " open" : "") + "><summary>" + link +
             "</summary><ul>";
    open.push_back(&element);
    for (const Child& child : element.children) AddBranch(*child.element, child.name, open);
    open.pop_back();
    text_ += "</ul></details></li>\n";
  }

  void AddElement(const Element& element) {
    text_ +=
        "<details class=\"element\" id=\"" + Anchor(element) + "\" data-name=\"" + element.name +
        "\" open>\n<summary>" + Tag("h3", "", Code("<" + element.name + ">")) +
        Tag("span", "class=\"sentence\"", Escaped(Sentence(element.sentence))) +
        Link(Anchor(element), "#", "class=\"anchor\" aria-label=\"Link to " + element.name + "\"") +
        "</summary>\n<div class=\"content\">\n";
    AddWhere(element);
    if (element.text.has_value()) {
      text_ += Tag("p", "", "Text: " + Escaped(TextSentence(element)));
    }
    if (element.attributes.empty() && element.children.empty() && !element.text.has_value()) {
      text_ += Tag("p", "", "The element is empty.");
    }
    AddAttributes(element);
    AddChildren(element);
    text_ += "</div>\n</details>\n";
  }

  /// Where an element is.
  void AddWhere(const Element& element) {
    const std::vector<std::string>& paths = paths_.at(&element);
    std::string where =
        Code(std::string(document_.name) + (paths.front().empty() ? "" : "/" + paths.front()));
    if (paths.size() > 1) {
      std::string others;
      for (std::size_t i = 1; i < paths.size(); ++i) {
        others += Tag("li", "", BreakableCode(std::string(document_.name) + "/" + paths[i]));
      }
      where += Tag("details", "class=\"more\"",
                   Tag("summary", "", "and " + Count(paths.size() - 1, "other place")) +
                       Tag("ul", "", others));
    }
    text_ += Tag("div", "class=\"path\"", where) + "\n";
  }

  void AddAttributes(const Element& element) {
    if (element.attributes.empty()) return;
    text_ += Tag("h4", "", "Attributes") + "\n<table><tbody>\n";
    for (const Attribute& attribute : element.attributes) {
      std::string badges = OccurrenceBadge(attribute.occurrence);
      if (attribute.is_secret) badges += Badge("secret", "secret");
      if (attribute.names_item) badges += Badge("plain", "names the item");
      std::string about;
      if (!attribute.sentence.empty()) {
        about += Tag("p", "", Escaped(Sentence(attribute.sentence)));
      }
      about += AboutValue(attribute.value);
      if (attribute.when_absent.has_value()) {
        about += Tag("p", "class=\"note\"", Escaped(AbsenceSentence(attribute)));
      }
      AddRow(element, attribute.name, BreakableCode(attribute.name), TypeName(attribute.value),
             badges, about);
    }
    text_ += "</tbody></table>\n";
  }

  std::string AboutValue(const Value& value) const {
    if (value.type == Value::Type::kNumber && value.greatest != greatest_) {
      return Tag("p", "class=\"note\"", "Up to " + std::to_string(value.greatest) + ".");
    }
    if (value.type != Value::Type::kEnum) return {};
    std::string texts;
    for (const std::string& text : value.texts) texts += Tag("li", "", Code(text));
    return Tag("ul", "class=\"texts\"", texts);
  }

  void AddChildren(const Element& element) {
    if (element.children.empty()) return;
    text_ += Tag("h4", "", "Children") + "\n<table><tbody>\n";
    for (const Child& child : element.children) {
      std::string badges = OccurrenceBadge(child.occurrence);
      if (child.names_item) badges += Badge("plain", "names the item");
      AddRow(element, child.name,
             Link(Anchor(*child.element), BreakableCode("<" + child.name + ">")), "", badges,
             child.sentence.empty() ? "" : Tag("p", "", Escaped(Sentence(child.sentence))));
    }
    text_ += "</tbody></table>\n";
  }

  void AddRow(const Element& element, const std::string& name, const std::string& heading,
              const std::string& type, const std::string& badges, const std::string& about) {
    const std::string anchor = Anchor(element, name);
    text_ +=
        "<tr id=\"" + anchor + "\" data-name=\"" + name + "\">" +
        Tag("th", "scope=\"row\"",
            heading + Link(anchor, "#", "class=\"anchor\" aria-label=\"Link to " + name + "\"")) +
        Tag("td", "class=\"facts\"", (type.empty() ? "" : Badge("type", type)) + badges) +
        Tag("td", "", about) + "</tr>\n";
  }

  const Document& document_;
  std::map<const Element*, std::vector<std::string>> paths_;
  std::uint64_t greatest_;  ///< most numbers of the document are read up to this one
  std::string text_;
};

constexpr std::string_view kTop =
    "<a class=\"skip\" href=\"#content\">Skip to the content</a>\n"
    "<header>\n"
    "<a class=\"brand\" href=\"#content\">Configuration documents</a>\n"
    "<div class=\"search\" role=\"search\">\n"
    "<input id=\"search\" type=\"search\" placeholder=\"Search names, values, descriptions\" "
    "autocomplete=\"off\" spellcheck=\"false\" role=\"combobox\" aria-label=\"Search\" "
    "aria-expanded=\"false\" aria-controls=\"results\" aria-autocomplete=\"list\">\n"
    "<kbd>/</kbd>\n"
    "<div id=\"results\" role=\"listbox\" aria-label=\"Results\" hidden></div>\n"
    "</div>\n"
    "<button id=\"unfold\" type=\"button\" aria-pressed=\"false\">Unfold all</button>\n"
    "</header>\n";

}  // namespace

std::string HtmlOf(DocumentList documents) {
  const std::string title = documents.size() == 1 ? std::string(documents.front()->title)
                                                  : std::string("Configuration documents");
  std::string navigation;
  std::string index;
  std::string sections;
  for (const Document* const document : documents) {
    DocumentPage page(*document);
    const std::string name(document->name);
    navigation +=
        Tag("details", "data-document=\"" + name + "\"",
            Tag("summary", "", Link(name, Escaped(document->title))) + Tag("ul", "", page.Tree())) +
        "\n";
    index +=
        Tag("li", "",
            Link(name, Tag("strong", "", Escaped(document->title)) +
                           Tag("span", "",
                               Code(name) + " " + Count(document->elements.size(), "element")))) +
        "\n";
    sections += page.Section();
  }
  return PageStart(title, kPageStyle) + std::string(kTop) +
         "<div class=\"layout\">\n<nav aria-label=\"Documents\">\n" + navigation +
         "</nav>\n<main id=\"content\" tabindex=\"-1\">\n" + Tag("h1", "", Escaped(title)) +
         "\n<p class=\"lead\">Attributes and children are listed in the order in which they are "
         "written. Children are read in any order. A number that is greater than stated is read as "
         "another one.</p>\n" +
         Tag("ul", "class=\"index\"", "\n" + index) + "\n" + sections + "</main>\n</div>\n" +
         PageEnd(kPageScript);
}

}  // namespace tolva::cli
