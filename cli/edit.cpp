#include "cli/edit.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "cli/byte_form.h"
#include "cli/new.h"
#include "cli/session.h"
#include "cli/text.h"
#include "platform/utf.h"

namespace tolva::cli {
namespace {

using Kind = SourceContent::Kind;
using Content = std::vector<SourceContent>;

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kSpaces = " \t\r\n";

// ---- values ------------------------------------------------------------------------------------

/// Throws Trouble if a value is none that may stand there. `name` is that of the attribute or of
/// the element.
void Judge(const Value& value, const std::string& name, const std::string& text) {
  const platform::Utf8Prefix legal = platform::MeasureXmlUtf8(text.data(), text.size());
  if (legal.size != text.size()) {
    throw Trouble("the value of '" + name +
                  "' holds what is no character, or none that XML allows");
  }
  if (value.type == Value::Type::kText) return;
  const std::string what = name + "=\"" + Printable(text) + "\" is ";
  if (value.type == Value::Type::kEnum) {
    if (std::ranges::find(value.texts, text) != value.texts.end()) return;
    throw Trouble(what + "none of " + Enumerate(value.texts, "and") +
                  DidYouMean(text, value.texts));
  }
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (text.empty() || stop != end || error != std::errc() || number > value.greatest) {
    throw Trouble(what + "no number from 0 to " + std::to_string(value.greatest) + " in digits");
  }
}

// ---- layout ------------------------------------------------------------------------------------

/// Where the last line of white space begins, with the line end before it; npos: it has none.
std::size_t LastLine(std::string_view space) {
  const std::size_t at = space.find_last_of(kLineEnds);
  if (at == std::string_view::npos || at == 0 || space[at] != '\n') return at;
  return space[at - 1] == '\r' ? at - 1 : at;
}

/// What follows the last line end; nothing if there is none, or if it is not white space.
std::optional<std::string_view> IndentAtEnd(std::string_view text) {
  const std::size_t at = text.find_last_of(kLineEnds);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view line = text.substr(at + 1);
  if (line.find_first_not_of(" \t") != std::string_view::npos) return std::nullopt;
  return line;
}

bool StartsLine(const Content& content, std::size_t at) {
  return at < content.size() && content[at].kind == Kind::kSpace &&
         kLineEnds.find(content[at].text.front()) != std::string_view::npos;
}

/// Where the line ends on which the content before `at` stands, if nothing but comments follows on
/// it; otherwise `at`. White space is split there.
std::size_t EndOfLine(Content& content, std::size_t at) {
  for (std::size_t i = at; i < content.size(); ++i) {
    if (content[i].kind != Kind::kSpace && content[i].kind != Kind::kComment) return at;
    const std::string_view text = content[i].text;
    const std::size_t line = text.find_first_of(kLineEnds);
    if (line == std::string_view::npos) continue;
    if (content[i].kind == Kind::kComment) return at;
    if (line == 0) return i;
    content[i].text = text.substr(line);
    content.insert(content.begin() + static_cast<std::ptrdiff_t>(i),
                   {Kind::kSpace, text.substr(0, line)});
    return i + 1;
  }
  return at;
}

/// The white space before what stands there, if that is the first thing on its line.
std::optional<std::string_view> IndentAt(const Content& content, std::size_t at) {
  if (at == 0 || content[at - 1].kind != Kind::kSpace) return std::nullopt;
  return IndentAtEnd(content[at - 1].text);
}

std::size_t IndexOf(const SourceElement& element) {
  const Content& content = element.parent->content;
  const auto found = std::ranges::find_if(
      content, [&](const SourceContent& one) { return one.element.get() == &element; });
  return static_cast<std::size_t>(found - content.begin());
}

void Insert(Content& content, std::size_t at, SourceContent added) {
  content.insert(content.begin() + static_cast<std::ptrdiff_t>(at), std::move(added));
}

/// Makes an element with two tags of an empty tag.
void Open(SourceElement& element, Source& source) {
  if (!element.end_tag.empty()) return;
  element.tag_end = ">";
  element.end_tag = source.Keep("</" + std::string(element.name) + ">");
}

/// Where a child of the kind belongs by the tables: after the last of those that come before it.
std::size_t PlaceOf(const SourceElement& parent, const Element& table, const Child& child) {
  const auto rank_of = [&](std::string_view name) {
    return table.FindChild(name) - table.children.data();
  };
  const auto rank = rank_of(child.name);
  const Content& content = parent.content;
  std::ptrdiff_t nearest = -1;
  std::size_t place = 0;
  bool has_elements = false;
  for (std::size_t i = 0; i < content.size(); ++i) {
    if (content[i].element == nullptr) continue;
    has_elements = true;
    const std::string_view name = content[i].element->LocalName();
    if (table.FindChild(name) == nullptr) continue;
    const auto other = rank_of(name);
    if (other > rank || other < nearest) continue;
    nearest = other;
    place = i + 1;
  }
  if (has_elements) return place;
  // After comments.
  place = content.size();
  return place != 0 && content.back().kind == Kind::kSpace ? place - 1 : place;
}

/// Where an element belongs that is to have a number among those of its name.
std::size_t PlaceBefore(const SourceElement& next) {
  const Content& content = next.parent->content;
  for (std::size_t i = IndexOf(next); i != 0; --i) {
    if (content[i - 1].element != nullptr) return i;
  }
  return 0;
}

}  // namespace

// ---- values ------------------------------------------------------------------------------------

/// The source text of a value: of an attribute in these quotes, or of a text if `quote` is 0.
std::string Editor::Escaped(std::string_view value, char quote) const {
  const bool is_text = quote == '\0';
  const bool is_space = value.find_first_not_of(kSpaces) == std::string_view::npos;
  std::string text;
  const char* const end = value.data() + value.size();
  for (const char* at = value.data(); at != end;) {
    const char* const start = at;
    const char32_t c = platform::TakeCodePoint(at);
    // White space alone is no text, unless one is written as a reference.
    const bool is_referenced = is_text && is_space && start == value.data();
    if (c == '&') {
      text += "&amp;";
    } else if (c == '<') {
      text += "&lt;";
    } else if (c == '>') {
      text += "&gt;";
    } else if (!is_text && c == static_cast<unsigned char>(quote)) {
      text += quote == '"' ? "&quot;" : "&apos;";
    } else if (is_text && c == '\n' && !is_referenced && !source_.line_end().empty()) {
      text += source_.line_end();
    } else if (c == '\r' || (!is_text && (c == '\n' || c == '\t')) || is_referenced ||
               !source_.Has(c)) {
      text += ReferenceTo(c);
    } else {
      text.append(start, at);
    }
  }
  return text;
}

void Editor::SetAttribute(SourceElement& element, const Element& table, const Attribute& attribute,
                          const std::string& value) {
  Judge(attribute.value, attribute.name, value);
  SourceAttribute* const found = element.FindAttribute(attribute.name);
  if (found != nullptr) {
    if (ValueOf(*found) != value) found->value = source_.Keep(Escaped(value, found->quote()));
    return;
  }
  // After the nearest of those that the tables have before it; else before the first that they have
  // after it; else after all that are unknown.
  std::vector<SourceAttribute>& attributes = element.attributes;
  const SourceAttribute* neighbour = nullptr;
  bool is_past = false;
  bool is_before = false;
  for (const Attribute& other : table.attributes) {
    is_past = is_past || &other == &attribute;
    if (is_past && neighbour != nullptr) break;
    const SourceAttribute* const there = element.FindAttribute(other.name);
    if (there == nullptr) continue;
    neighbour = there;
    is_before = is_past;
  }
  if (neighbour == nullptr && !attributes.empty()) neighbour = &attributes.back();
  // It looks like its neighbour.
  SourceAttribute added = {" ", source_.Keep(attribute.name), "=\"", {}};
  std::ptrdiff_t place = 0;
  if (neighbour != nullptr) {
    added.space = neighbour->space;
    added.equals = neighbour->equals;
    place = neighbour - attributes.data() + (is_before ? 0 : 1);
  }
  added.value = source_.Keep(Escaped(value, added.quote()));
  attributes.insert(attributes.begin() + place, added);
}

void Editor::SetText(SourceElement& element, const Element& table, const std::string& value) {
  Judge(*table.text, table.name, value);
  if (value.empty() && !table.text->may_be_empty) {
    throw Trouble("the text of '" + table.name + "' cannot be empty" +
                  (table.is_text_required ? "" : "; --unset takes it away"));
  }
  SourceContent* const found = element.FindText();
  if (found != nullptr && ValueOf(*found) == value) return;
  Content& content = element.content;
  const bool is_section = found != nullptr && found->kind == Kind::kSection;
  bool fits = value.find("]]>") == std::string::npos && value.find('\r') == std::string::npos;
  const char* const end = value.data() + value.size();
  for (const char* at = value.data(); at != end;) {
    fits = source_.Has(platform::TakeCodePoint(at)) && fits;
  }
  if (is_section && fits) {
    std::string text = "<![CDATA[";
    for (const char c : value) {
      if (c == '\n' && !source_.line_end().empty()) {
        text += source_.line_end();
      } else {
        text += c;
      }
    }
    found->text = source_.Keep(text + "]]>");
    return;
  }
  if (is_section && content.size() > 1 &&
      (content[1].kind == Kind::kText || content[1].kind == Kind::kSpace)) {
    throw Trouble("the text of '" + table.name +
                  "' cannot hold this: a CDATA section, which cannot, begins it");
  }
  Open(element, source_);
  const SourceContent text = {Kind::kText, source_.Keep(Escaped(value, '\0'))};
  const bool replaces = is_section || (found != nullptr && found->kind == Kind::kText) ||
                        (!content.empty() && content.front().kind == Kind::kSpace);
  if (!replaces) Insert(content, 0, {});
  content.front().kind = text.kind;
  content.front().text = text.text;
  if (!value.empty()) return;
  // An empty text is nothing, and what follows it may count as the text then.
  content.erase(content.begin());
  const SourceContent* const next = element.FindText();
  if (next == nullptr || ValueOf(*next).empty()) return;
  throw Trouble("the text of '" + table.name +
                "' cannot be empty here: the library would take what follows it for the text");
}

void Editor::Set(std::string_view path, const std::string& value) {
  const Target target = ParseTarget(document_, path);
  if (target.attribute != nullptr) {
    SourceElement& element =
        SelectElement(source_, target, target.elements.size(), IfAbsent::kMayBeAdded);
    SetAttribute(element, *target.element, *target.attribute, value);
    return;
  }
  const Element& table = *target.element;
  if (!table.text.has_value()) {
    throw Trouble("'" + target.Spelling() +
                  "' is an element that has no text; its attributes are set one by one");
  }
  // Like an attribute, a text is added if it is absent.
  SourceElement& parent =
      SelectElement(source_, target, target.elements.size() - 1, IfAbsent::kMayBeAdded);
  const Target::ElementStep& step = target.elements.back();
  const bool is_plain = step.step.position == 0 && step.step.attribute.empty();
  const bool is_added = is_plain && step.child->occurrence != Occurrence::kRepeated &&
                        MatchesOf(parent, step).empty();
  const Element& parent_table = target.elements.size() == 1
                                    ? document_.root()
                                    : *target.elements[target.elements.size() - 2].child->element;
  SourceElement& element =
      is_added ? AddChild(parent, parent_table, *step.child, 0)
               : SelectElement(source_, target, target.elements.size(), IfAbsent::kMayBeAdded);
  SetText(element, table, value);
}

void Editor::Unset(std::string_view path) {
  const Target target = ParseTarget(document_, path);
  const bool is_text = target.attribute == nullptr;
  const std::string what = "'" + target.Spelling() + "'";
  if (is_text && !target.element->text.has_value()) {
    throw Trouble(what + " is an element; --remove removes it");
  }
  if (is_text ? target.element->is_text_required
              : target.attribute->occurrence == Occurrence::kRequired) {
    throw Trouble(what + " is required");
  }
  SourceElement& element = SelectElement(source_, target, target.elements.size(), IfAbsent::kFails);
  if (!is_text) {
    const SourceAttribute* const found = element.FindAttribute(target.attribute->name);
    if (found == nullptr) throw Trouble(AbsenceOf(source_, target));
    element.attributes.erase(element.attributes.begin() + (found - element.attributes.data()));
    return;
  }
  const SourceContent* const found = element.FindText();
  if (found == nullptr) throw Trouble(what + " has no text");
  if (found->kind != Kind::kComment) element.content.erase(element.content.begin());
  if (element.FindText() != nullptr) {
    throw Trouble("the text of " + what +
                  " cannot be taken away: the library would take for it what follows");
  }
}

// ---- elements ----------------------------------------------------------------------------------

/// The white space before the element, if it is the first thing on its line.
std::optional<std::string_view> Editor::IndentOf(const SourceElement& element) const {
  if (element.parent == nullptr) {
    return source_.prolog().empty() ? source_.prolog() : IndentAtEnd(source_.prolog());
  }
  return IndentAt(element.parent->content, IndexOf(element));
}

/// By how much what is in the element is indented.
std::string Editor::UnitOf(const SourceElement& parent) const {
  for (const SourceElement* one = &parent; one != nullptr; one = one->parent) {
    const std::optional<std::string_view> outer = IndentOf(*one);
    if (!outer.has_value()) continue;
    for (std::size_t i = 0; i < one->content.size(); ++i) {
      if (one->content[i].element == nullptr) continue;
      const std::optional<std::string_view> inner = IndentAt(one->content, i);
      if (inner.has_value() && inner->starts_with(*outer)) {
        return std::string(inner->substr(outer->size()));
      }
    }
  }
  return "  ";
}

/// Gives a new element the layout of the document. `line` is what its line begins with; empty: it
/// has no line of its own.
void Editor::Indent(SourceElement& element, std::string_view line, std::string_view unit) {
  if (line.empty()) {
    std::erase_if(element.content,
                  [](const SourceContent& one) { return one.kind == Kind::kSpace; });
  }
  const std::string_view outer = line;
  const std::string inner = std::string(line) + std::string(unit);
  for (std::size_t i = 0; i < element.content.size(); ++i) {
    SourceContent& one = element.content[i];
    if (one.element != nullptr) {
      Indent(*one.element, line.empty() ? line : source_.Keep(inner), unit);
    }
    if (one.kind != Kind::kSpace) continue;
    one.text = i + 1 == element.content.size() ? outer : source_.Keep(inner);
  }
}

/// The layout of an element that is added: that of another in the parent or, if there is none, of a
/// comment.
Editor::Layout Editor::LayoutIn(const SourceElement& parent, std::size_t place) const {
  Layout layout = {std::nullopt, UnitOf(parent)};
  const std::optional<std::string_view> outer = IndentOf(parent);
  const Content& content = parent.content;
  const bool is_first = std::ranges::none_of(
      content, [](const SourceContent& one) { return one.element != nullptr; });
  std::optional<std::string>& indent = layout.indent;
  for (std::size_t i = 0; i < content.size(); ++i) {
    const bool is_alike =
        is_first ? content[i].kind == Kind::kComment : content[i].element != nullptr;
    const auto found = is_alike ? IndentAt(content, i) : std::nullopt;
    if (found.has_value() && (i < place || !indent.has_value())) indent = *found;
  }
  if (!is_first || !outer.has_value()) return layout;
  if (!indent.has_value()) {
    indent = std::string(*outer) + layout.unit;
  } else if (indent->size() > outer->size() && indent->starts_with(*outer)) {
    layout.unit = indent->substr(outer->size());
  }
  return layout;
}

/// `number`: which one it becomes of those of its name; 0: the last.
SourceElement& Editor::AddChild(SourceElement& parent, const Element& table, const Child& child,
                                std::size_t number) {
  Content& content = parent.content;
  const std::vector<SourceElement*> others = parent.Children(child.name);
  const std::size_t place = number != 0 && number <= others.size()
                                ? PlaceBefore(*others[number - 1])
                                : PlaceOf(parent, table, child);
  const Layout layout = LayoutIn(parent, place);
  const bool was_empty = content.empty();
  const std::size_t at = was_empty ? 0 : EndOfLine(content, place);
  const bool has_line = layout.indent.has_value() && !source_.line_end().empty() &&
                        (was_empty || StartsLine(content, at));
  const std::string_view line = has_line
                                    ? source_.Keep(std::string(source_.line_end()) + *layout.indent)
                                    : std::string_view();
  std::unique_ptr<SourceElement> made = source_.ParseElement(NewElement(child));
  SourceElement& element = *made;
  element.parent = &parent;
  Indent(element, line, layout.unit);
  Open(parent, source_);
  Insert(content, at, {Kind::kElement, {}, std::move(made)});
  if (has_line) Insert(content, at, {Kind::kSpace, line});
  if (has_line && was_empty) {
    const std::string end = std::string(source_.line_end()) + std::string(*IndentOf(parent));
    content.push_back({Kind::kSpace, source_.Keep(end)});
  }
  return element;
}

/// Gives a new element what its step says of it.
void Editor::SetCondition(SourceElement& element, const Element& table, const Step& step) {
  if (step.attribute.empty()) return;
  const Attribute* const attribute = table.FindAttribute(step.attribute);
  if (attribute != nullptr) {
    SetAttribute(element, table, *attribute, step.value);
    return;
  }
  const Child& child = *table.FindChild(step.attribute);
  const std::vector<SourceElement*> children = element.Children(child.name);
  SourceElement& text = children.empty() ? AddChild(element, table, child, 0) : *children.back();
  SetText(text, *child.element, step.value);
}

void Editor::Add(std::string_view path) {
  const Target target = ParseTarget(document_, path);
  const std::string what = "'" + target.Spelling() + "'";
  if (target.attribute != nullptr) {
    throw Trouble(what + " is an attribute; " + target.attribute->name +
                  "=VALUE at the end of the "
                  "path adds it");
  }
  if (target.elements.empty()) throw Trouble("the root element is there already");
  const std::size_t depth = target.elements.size();
  const Target::ElementStep& last = target.elements.back();
  SourceElement& parent = SelectElement(source_, target, depth - 1, IfAbsent::kMayBeAdded);
  const Element& table = depth == 1 ? document_.root() : *target.elements[depth - 2].child->element;
  const std::size_t count = parent.Children(last.child->name).size();
  const bool is_repeated = last.child->occurrence == Occurrence::kRepeated;
  const std::size_t number = last.step.position;
  const bool is_there =
      is_repeated ? !last.step.attribute.empty() && !MatchesOf(parent, last).empty() : count != 0;
  if (is_there) throw Trouble(what + " is there already");
  if (number > count + 1) {
    throw Trouble(what + " cannot be added: there " + (count == 1 ? "is " : "are ") +
                  std::to_string(count));
  }
  SetCondition(AddChild(parent, table, *last.child, number), *last.child->element, last.step);
}

void Editor::Remove(std::string_view path) {
  const Target target = ParseTarget(document_, path);
  const std::string what = "'" + target.Spelling() + "'";
  if (target.attribute != nullptr) throw Trouble(what + " is an attribute; --unset removes it");
  if (target.elements.empty()) throw Trouble("the root element cannot be removed");
  const Target::ElementStep& last = target.elements.back();
  SourceElement& parent =
      SelectElement(source_, target, target.elements.size() - 1, IfAbsent::kFails);
  const std::size_t count = parent.Children(last.child->name).size();
  if (last.child->occurrence != Occurrence::kRepeated) {
    if (count > 1 && last.step.position == 0) {
      throw Trouble(what + " is there " + std::to_string(count) +
                    " times, and the last one counts: choose one, from [1] to [" +
                    std::to_string(count) + "]");
    }
    if (count == 1 && last.child->occurrence == Occurrence::kRequired) {
      throw Trouble(what + " is required");
    }
  }
  const SourceElement& element =
      SelectElement(source_, target, target.elements.size(), IfAbsent::kFails);

  Content& content = parent.content;
  std::size_t index = IndexOf(element);
  const std::size_t end = EndOfLine(content, index + 1);
  SourceContent* const before = index == 0 ? nullptr : &content[index - 1];
  const bool is_last = end == index + 1 || content[index + 1].kind == Kind::kSpace;
  const bool has_line = before != nullptr && before->kind == Kind::kSpace && end - index <= 2 &&
                        is_last && StartsLine(content, end) &&
                        IndentAtEnd(before->text).has_value();
  std::size_t removed = 1;
  if (has_line) {
    removed = end - index;
    before->text = before->text.substr(0, LastLine(before->text));
    if (before->text.empty()) {
      --index;
      ++removed;
    }
  }
  const auto first = content.begin() + static_cast<std::ptrdiff_t>(index);
  content.erase(first, first + static_cast<std::ptrdiff_t>(removed));
  const bool is_empty = std::ranges::all_of(
      content, [](const SourceContent& one) { return one.kind == Kind::kSpace; });
  if (has_line && is_empty) content.clear();
}

}  // namespace tolva::cli
