// explain: what stands at a place of a document, for people.
#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/json.h"
#include "cli/places.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"
#include "cli/wording.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kAllLevels = 999;

struct Options {
  std::string place;
  std::string word;  ///< --find
  bool is_tree = false;
  std::uint64_t depth = kAllLevels;
};

// ---- text --------------------------------------------------------------------------------------

/// A line of a table.
struct Row {
  std::string name;
  std::string type;
  std::string occurrence;
  std::vector<std::string> sentences;
};

/// A table with a heading. The sentences are beside the other columns, or below them if the
/// terminal is narrow; on a very narrow one, types and occurrences are below the names.
class Table {
 public:
  Table(std::string heading, const Style& style, std::size_t width)
      : heading_(std::move(heading)), style_(style), width_(width) {}

  void Add(Row row) { rows_.push_back(std::move(row)); }

  std::string Text() const {
    if (rows_.empty()) return {};
    constexpr std::size_t kLeastForSentences = 34;
    const std::size_t name = WidthOf(&Row::name);
    const std::size_t type = WidthOf(&Row::type);
    const std::size_t occurrence = WidthOf(&Row::occurrence);
    const std::size_t indent = kIndent + name + type + occurrence;
    const bool is_beside = indent + kLeastForSentences <= width_;
    const bool is_stacked = indent > width_;
    std::string text = "\n" + style_.Heading(heading_) + "\n";
    for (const Row& row : rows_) {
      text += std::string(kIndent, ' ') + style_.Name(row.name);
      std::size_t column = kIndent + Columns(row.name);
      if (is_stacked) {
        text += "\n" + std::string(kDeepIndent, ' ') + row.type + (row.type.empty() ? "" : ", ") +
                row.occurrence + "\n";
      } else {
        Append(row.type, row.type, kIndent + name, column, text);
        Append(row.occurrence, Occurrence(row.occurrence), kIndent + name + type, column, text);
      }
      std::string sentences;
      for (const std::string& sentence : row.sentences) {
        sentences += Paragraph(sentence, is_beside ? indent : kDeepIndent, width_);
      }
      if (is_beside && !sentences.empty()) {
        text += sentences.substr(column);
      } else {
        text += (is_stacked ? "" : "\n") + sentences;
      }
    }
    return text;
  }

 private:
  static constexpr std::size_t kIndent = 2;
  static constexpr std::size_t kDeepIndent = 6;

  /// Columns are two spaces apart.
  std::size_t WidthOf(std::string Row::*cell) const {
    std::size_t width = 0;
    for (const Row& row : rows_) width = std::max(width, Columns(row.*cell));
    return width == 0 ? 0 : width + 2;
  }

  /// Appends a cell, if there is something in it.
  static void Append(const std::string& cell, const std::string& styled, std::size_t at,
                     std::size_t& column, std::string& text) {
    if (cell.empty()) return;
    text += std::string(at - column, ' ') + styled;
    column = at + Columns(cell);
  }

  std::string Occurrence(const std::string& cell) const {
    return cell == "required" ? style_.Required(cell) : cell;
  }

  const std::string heading_;
  const Style& style_;
  const std::size_t width_;
  std::vector<Row> rows_;
};

std::vector<std::string> SentencesOf(const Attribute& attribute) {
  std::vector<std::string> sentences;
  if (!attribute.sentence.empty()) sentences.push_back(Sentence(attribute.sentence));
  if (attribute.value.type == Value::Type::kEnum) {
    sentences.push_back(Enumerate(attribute.value.texts) + ".");
  }
  const bool is_said = attribute.sentence.find("absent") != std::string_view::npos;
  if (attribute.when_absent.has_value() && !is_said) {
    sentences.push_back(AbsenceSentence(attribute));
  }
  return sentences;
}

std::string FullPath(const Place& place) {
  return std::string(place.document->name) + (place.path.empty() ? "" : "/" + place.path);
}

/// The name of a place, and beside it what it is.
std::string Title(const Place& place, const std::string& kind, const Style& style,
                  std::size_t width) {
  const std::string path = FullPath(place);
  const std::size_t used = Columns(path) + Columns(kind);
  if (used + 2 > width) return style.Name(path) + "\n" + style.Faint(kind) + "\n";
  return style.Name(path) + std::string(width - used, ' ') + style.Faint(kind) + "\n";
}

std::string Prose(const std::string& text, std::size_t width) {
  return text.empty() ? "" : "\n" + Paragraph(text, 2, width);
}

std::string DescribeAttribute(const Place& place, const Style& style, std::size_t width) {
  const Attribute& attribute = *place.attribute;
  constexpr std::size_t kColumn = 12;
  std::string text =
      Title(place, OccurrenceName(attribute.occurrence) + " attribute", style, width) +
      Prose(Sentence(attribute.sentence), width) + "\n";
  const auto add = [&](const std::string& label, const std::string& sentence) {
    const std::string lines = Paragraph(sentence, kColumn, width);
    text += "  " + style.Heading(label) + lines.substr(2 + label.size());
  };
  add("Value", TypeSentence(attribute.value));
  if (attribute.occurrence == Occurrence::kRequired || attribute.when_absent.has_value()) {
    add("Absent", AbsenceSentence(attribute));
  }
  if (attribute.is_secret) add("Secret", "Its value is only shown on request.");
  if (attribute.names_item) {
    const std::vector<std::string> names = NamesOfItem(*place.element);
    add("In lists", names.size() == 1
                        ? "It tells the items of a list apart."
                        : Enumerate(names, "and") + " tell the items of a list apart.");
  }
  return text;
}

std::string DescribeElement(const Place& place, const Style& style, std::size_t width) {
  const Element& element = *place.element;
  const std::string kind =
      place.child == nullptr
          ? "root element " + element.name
          : OccurrenceName(place.child->occurrence) +
                (place.child->occurrence == Occurrence::kRepeated ? " of elements" : " element");
  std::string text = Title(place, kind, style, width);
  if (place.child == nullptr) text += Prose(std::string(place.document->title) + ".", width);
  text += Prose(Sentence(element.sentence), width);
  if (element.text.has_value()) text += Prose(TextSentence(element), width);

  Table attributes("Attributes", style, width);
  for (const Attribute& attribute : element.attributes) {
    attributes.Add({attribute.name, TypeName(attribute.value), OccurrenceName(attribute.occurrence),
                    SentencesOf(attribute)});
  }
  Table children("Children", style, width);
  for (const Child& child : element.children) {
    std::vector<std::string> sentences;
    if (!child.sentence.empty()) sentences.push_back(Sentence(child.sentence));
    children.Add({child.name, "", OccurrenceName(child.occurrence), std::move(sentences)});
  }
  return text + attributes.Text() + children.Text();
}

std::string DescribeDocuments(const Style& style, std::size_t width) {
  Table documents("Documents", style, width);
  for (const Document& document : Documents()) {
    documents.Add({std::string(document.name),
                   "",
                   "",
                   {std::string(document.title) + ", <" + document.root().name + ">"}});
  }
  // The first line of a table is empty.
  return documents.Text().substr(1) + "\n" +
         Paragraph(
             "'tolva explain policy' explains one, and 'tolva explain policy/Log' what is in "
             "it.",
             0, width);
}

/// The elements and attributes below a place, as a tree.
class Tree {
 public:
  Tree(const Style& style, std::size_t width, std::size_t depth)
      : style_(style), width_(width), depth_(depth) {}

  std::string Of(const Place& place) {
    if (place.attribute == nullptr) Add(*place.element, "", 1);
    std::size_t column = 0;
    for (const Line& line : lines_) column = std::max(column, line.Width() + 2);
    column = std::min(column, width_ * 3 / 5);
    std::string text = style_.Name(FullPath(place)) + "\n";
    for (const Line& line : lines_) {
      const std::size_t fill = column > line.Width() + 2 ? column - line.Width() : 2;
      text += style_.Faint(line.lead) +
              (line.name.starts_with("<") ? style_.Name(line.name) : style_.Literal(line.name)) +
              std::string(fill, ' ') + style_.Faint(line.words) + "\n";
    }
    return text;
  }

 private:
  void Add(const Element& element, const std::string& indent, std::size_t level) {
    if (std::ranges::find(open_, &element) != open_.end()) return;
    if (level > depth_) return;
    open_.push_back(&element);
    for (const Attribute& attribute : element.attributes) {
      const bool is_last = &attribute == &element.attributes.back() && element.children.empty();
      std::string type = TypeName(attribute.value);
      if (attribute.value.type == Value::Type::kEnum) type = Enumerate(attribute.value.texts);
      AddLine(indent, is_last, attribute.name, attribute.occurrence, type);
    }
    for (const Child& child : element.children) {
      const bool is_last = &child == &element.children.back();
      const bool is_within_itself = std::ranges::find(open_, child.element) != open_.end();
      const std::string type = child.element->text.has_value() ? TypeName(*child.element->text)
                               : is_within_itself              ? "as above"
                                                               : "";
      AddLine(indent, is_last, "<" + child.name + ">", child.occurrence, type);
      Add(*child.element, indent + (is_last ? "   " : "│  "), level + 1);
    }
    open_.pop_back();
  }

  void AddLine(const std::string& indent, bool is_last, const std::string& name,
               Occurrence occurrence, const std::string& type) {
    const std::string occurs = OccurrenceName(occurrence);
    lines_.push_back(
        {indent + (is_last ? "└─ " : "├─ "), name, type.empty() ? occurs : type + ", " + occurs});
  }

  struct Line {
    std::string lead;
    std::string name;
    std::string words;

    std::size_t Width() const { return Columns(lead) + Columns(name); }
  };

  const Style& style_;
  const std::size_t width_;
  const std::size_t depth_;
  std::vector<const Element*> open_;
  std::vector<Line> lines_;
};

// ---- JSON --------------------------------------------------------------------------------------

std::string OccurrenceWord(Occurrence occurrence) {
  return occurrence == Occurrence::kRepeated ? "repeated" : OccurrenceName(occurrence);
}

void AddValue(const Value& value, Json& json) {
  switch (value.type) {
    case Value::Type::kNumber:
      json["type"] = "number";
      json["minimum"] = 0;
      json["maximum"] = value.greatest;
      break;
    case Value::Type::kEnum:
      json["type"] = "enum";
      json["values"] = value.texts;
      break;
    default:
      json["type"] = "text";
      break;
  }
}

void AddSentence(std::string_view sentence, Json& json) {
  if (!sentence.empty()) json["description"] = Sentence(sentence);
}

Json JsonOf(const Attribute& attribute) {
  Json json = {{"name", attribute.name}};
  AddSentence(attribute.sentence, json);
  AddValue(attribute.value, json);
  json["occurrence"] = OccurrenceWord(attribute.occurrence);
  if (attribute.when_absent.has_value()) json["whenAbsent"] = *attribute.when_absent;
  json["secret"] = attribute.is_secret;
  json["namesItem"] = attribute.names_item;
  return json;
}

Json JsonOf(const Child& child) {
  Json json = {{"name", child.name}};
  AddSentence(child.sentence, json);
  json["occurrence"] = OccurrenceWord(child.occurrence);
  json["namesItem"] = child.names_item;
  return json;
}

/// Adds what is in an element. Of its children, `levels` are told in the same way; an element
/// within itself is not.
void AddContent(const Element& element, std::size_t levels, std::vector<const Element*>& open,
                Json& json) {
  if (element.text.has_value()) {
    AddValue(*element.text, json["text"]);
    json["text"]["required"] = element.is_text_required;
  }
  json["attributes"] = Json::array();
  for (const Attribute& attribute : element.attributes) {
    json["attributes"].push_back(JsonOf(attribute));
  }
  open.push_back(&element);
  json["children"] = Json::array();
  for (const Child& child : element.children) {
    Json below = JsonOf(child);
    const bool is_within_itself = std::ranges::find(open, child.element) != open.end();
    if (levels != 0 && !is_within_itself) AddContent(*child.element, levels - 1, open, below);
    json["children"].push_back(std::move(below));
  }
  open.pop_back();
}

Json JsonOf(const Document& document) {
  return {{"name", document.name}, {"title", document.title}, {"root", document.root().name}};
}

/// What is known of a place, with so many levels below its children.
Json JsonOf(const Place& place, std::size_t levels) {
  Json json = {{"document", place.document->name}, {"path", place.path}};
  if (place.attribute != nullptr) {
    json["kind"] = "attribute";
    json.update(JsonOf(*place.attribute));
    return json;
  }
  const Element& element = *place.element;
  json["kind"] = "element";
  json["name"] = element.name;
  AddSentence(element.sentence, json);
  json["occurrence"] =
      OccurrenceWord(place.child == nullptr ? Occurrence::kRequired : place.child->occurrence);
  std::vector<const Element*> open;
  AddContent(element, levels, open, json);
  return json;
}

// ---- the verb ----------------------------------------------------------------------------------

/// Whatever the case of the letters.
bool Contains(std::string_view text, std::string_view word) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  const auto is_same = [lower](char left, char right) { return lower(left) == lower(right); };
  return std::search(text.begin(), text.end(), word.begin(), word.end(), is_same) != text.end();
}

/// The sentence about what stands at a place.
std::string_view SentenceAt(const Place& place) {
  if (place.attribute != nullptr) return place.attribute->sentence;
  return place.child != nullptr ? place.child->sentence : place.element->sentence;
}

bool Mentions(const Place& place, std::string_view word) {
  const std::string_view path = place.path;
  const std::string_view name = path.substr(path.find_last_of('/') + 1);
  if (Contains(name, word) || Contains(SentenceAt(place), word)) return true;
  return place.attribute != nullptr &&
         std::ranges::any_of(place.attribute->value.texts,
                             [&](const std::string& text) { return Contains(text, word); });
}

/// The places of all documents, or below one, that mention a word.
std::vector<Place> FindWord(const Options& options) {
  std::vector<Place> found;
  const auto look_in = [&](const Document& document, const std::string& below) {
    ForEachPlace(document, [&](const Place& place) {
      const bool is_below = below.empty() || place.path.starts_with(below + "/");
      if (is_below && Mentions(place, options.word)) found.push_back(place);
    });
  };
  if (!options.place.empty()) {
    const Place place = FindPlace(options.place);
    look_in(*place.document, place.path);
  } else {
    for (const Document& document : Documents()) look_in(document, "");
  }
  return found;
}

int PrintWord(Session& session, const Options& options) {
  const std::vector<Place> found = FindWord(options);
  if (session.IsJson()) {
    Json places = Json::array();
    for (const Place& place : found) places.push_back(JsonOf(place, 0));
    session.out.Write(JsonText({{"version", kJsonVersion}, {"places", places}}));
  } else {
    const Style style = session.OutStyle();
    for (const Place& place : found) {
      session.out.Write(style.Name(FullPath(place)) + "\n" +
                        Paragraph(Sentence(SentenceAt(place)), 4, session.TextWidth()));
    }
    if (found.empty()) session.err.Write("Nothing mentions '" + Printable(options.word) + "'.\n");
  }
  return found.empty() ? kFindings : kFine;
}

int Explain(Session& session, const Options& options) {
  if (!options.word.empty()) return PrintWord(session, options);
  const Style style = session.OutStyle();
  const std::size_t width = session.TextWidth();
  if (options.place.empty()) {
    Json documents = Json::array();
    for (const Document& document : Documents()) documents.push_back(JsonOf(document));
    session.out.Write(session.IsJson()
                          ? JsonText({{"version", kJsonVersion}, {"documents", documents}})
                          : DescribeDocuments(style, width));
    return kFine;
  }
  const Place place = FindPlace(options.place);
  if (session.IsJson()) {
    Json json = {{"version", kJsonVersion}};
    json.update(JsonOf(place, options.is_tree ? options.depth - 1 : 0));
    session.out.Write(JsonText(json));
  } else if (options.is_tree) {
    session.out.Write(Tree(style, width, options.depth).Of(place));
  } else {
    session.out.Write(place.attribute != nullptr ? DescribeAttribute(place, style, width)
                                                 : DescribeElement(place, style, width));
  }
  return kFine;
}

std::string FaultOfDepth(const std::string& depth) {
  const bool is_number = !depth.empty() && depth.size() <= 3 &&
                         depth.find_first_not_of("0123456789") == std::string::npos;
  return is_number && std::stoul(depth) != 0
             ? ""
             : "'" + depth + "' is no number from 1 to " + std::to_string(kAllLevels);
}

}  // namespace

void AddExplain(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "explain",
      "Explains a document, an element or an attribute: its type, how often it occurs, what is in "
      "it.\n\n"
      "A path names elements, and at its end perhaps an attribute, from the root's children on. "
      "What it says in brackets is ignored, so a path from a message can be pasted.");
  const auto options = std::make_shared<Options>();
  verb.Add("place", "DOCUMENT[/PATH]", options->place,
           "what to explain, such as policy/LocationArray/Location. Without it, the "
           "documents are listed.");
  const Option tree =
      verb.AddFlag("-t,--tree", options->is_tree, "shows everything below, as a tree.");
  verb.Add("--depth", "N", options->depth, "how many levels the tree has.")
      .Check(&FaultOfDepth)
      .Need(tree);
  verb.Add("--find", "WORD", options->word,
           "lists the places whose names or descriptions have this word. The exit status "
           "is 1 if there is none.");
  AddCommonOptions(verb, session, {"text", "json"});
  verb.SetExamples(
      "tolva explain policy/LocationArray/Location\n"
      "tolva explain policy/UserInterface/Mode\n"
      "tolva explain policy --tree --depth 2\n"
      "tolva explain --find bypass");
  verb.SetAction(session, [&session, options] { return Explain(session, *options); });
}

}  // namespace tolva::cli
