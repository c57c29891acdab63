#include "cli/select.h"

#include <algorithm>
#include <span>

#include "cli/fields.h"
#include "cli/session.h"
#include "cli/text.h"
#include "cli/wording.h"

namespace tolva::cli {
namespace {

std::string Spelled(const Step& step) {
  std::string text = step.name;
  if (step.position != 0) text += "[" + std::to_string(step.position) + "]";
  if (!step.attribute.empty()) {
    const char* const quote = step.value.find('"') == std::string::npos ? "\"" : "'";
    text += "[" + step.attribute + "=" + quote + step.value + quote + "]";
  }
  return Printable(text);
}

/// A path of the tables, as FindPlace takes it.
std::string TablePath(const Target& target) {
  std::string path(target.document->name);
  for (const Target::ElementStep& one : target.elements) path += "/" + one.child->name;
  return path;
}

/// Throws Trouble if elements of this kind cannot be told apart by that name.
void CheckCondition(const Target& target, const Step& step) {
  if (step.attribute.empty()) return;
  const Element& element = *target.element;
  if (element.FindAttribute(step.attribute) != nullptr) return;
  const Child* const child = element.FindChild(step.attribute);
  if (child != nullptr && child->element->text.has_value()) return;
  const std::string path = TablePath(target) + "/" + step.attribute;
  FindPlace(path);
  throw Trouble("'" + path + "' is neither an attribute nor a text");
}

/// Where the step of a path leads from an element that is there.
std::string ChoiceIn(const SourceElement& parent, const Target::ElementStep& step) {
  const std::vector<Numbered> matches = MatchesOf(parent, step);
  const Element& element = *step.child->element;
  std::string choice = "choose one, from [" + std::to_string(matches.front().number) + "] to [" +
                       std::to_string(matches.back().number) + "]";
  for (const std::string& name : NamesOfItem(element)) {
    const std::optional<std::string> value = ValueIn(*matches.front().element, element, name);
    if (!value.has_value()) continue;
    Step example = step.step;
    example.position = 0;
    example.attribute = name;
    example.value = *value;
    return choice + ", or by name, such as " + Spelled(example);
  }
  return choice;
}

/// "; did you mean Location[Name="Office"]?", if the step says what names an item.
std::string NearestItem(const SourceElement& parent, const Target::ElementStep& step) {
  const std::vector<std::string> names = NamesOfItem(*step.child->element);
  if (std::ranges::find(names, step.step.attribute) == names.end()) return {};
  std::vector<std::string> values;
  for (SourceElement* const one : parent.Children(step.child->name)) {
    std::optional<std::string> value = ValueIn(*one, *step.child->element, step.step.attribute);
    if (value.has_value()) values.push_back(*std::move(value));
  }
  const std::optional<std::string> nearest = Nearest(step.step.value, values);
  if (!nearest.has_value()) return {};
  Step meant = step.step;
  meant.value = *nearest;
  return "; did you mean '" + Spelled(meant) + "'?";
}

/// Whether it is the element that a step names: texts have to be the same, numbers equal.
bool IsNamed(SourceElement& element, const Element& table, const Step& step) {
  const std::optional<std::string> text = ValueIn(element, table, step.attribute);
  if (!text.has_value() || *text == step.value) return text.has_value();
  const Attribute* const attribute = table.FindAttribute(step.attribute);
  const Element& owner = attribute != nullptr ? table : *table.FindChild(step.attribute)->element;
  const Value& value = attribute != nullptr ? attribute->value : *owner.text;
  if (value.type != Value::Type::kNumber) return false;
  const std::optional<std::string> number = NumberAsRead(owner, value, *text);
  return number.has_value() && number == NumberAsRead(owner, value, step.value);
}

/// All that the first steps of a path name.
std::vector<Found> SelectElements(Source& source, const Target& target, std::size_t steps) {
  std::vector<Found> found = {{.element = &source.root()}};
  for (const Target::ElementStep& step : std::span(target.elements).first(steps)) {
    std::vector<Found> next;
    for (const Found& one : found) {
      for (const Numbered& match : MatchesOf(*one.element, step)) {
        next.push_back({.element = match.element,
                        .numbers = one.numbers,
                        .counts = one.counts && match.counts});
        next.back().numbers.push_back(match.number);
      }
    }
    found = std::move(next);
  }
  return found;
}

/// The document's name in a message.
std::string Named(const Source& source) { return "'" + Printable(source.name()) + "'"; }

}  // namespace

// ---- paths -------------------------------------------------------------------------------------

std::string Target::Spelling(std::size_t elements_count) const {
  std::string path;
  for (std::size_t i = 0; i < elements_count; ++i) {
    path += (i == 0 ? "" : "/") + Spelled(elements[i].step);
  }
  return path;
}

std::string Target::Spelling() const {
  std::string path = Spelling(elements.size());
  if (attribute == nullptr) return path;
  return path.empty() ? attribute->name : path + "/" + attribute->name;
}

Target ParseTarget(const Document& document, std::string_view path) {
  const std::string_view first = path.substr(0, path.find('/'));
  const bool is_document = first == document.name || first == document.root().name;
  const bool is_place = document.root().FindAttribute(first) != nullptr ||
                        document.root().FindChild(first) != nullptr;
  if (is_document && !is_place) path.remove_prefix(std::min(first.size() + 1, path.size()));

  FindPlace(std::string(document.name) + "/" + std::string(path));
  Target target = {&document, {}, &document.root(), nullptr};
  for (Step& step : ParsePath(path)) {
    target.attribute = target.element->FindAttribute(step.name);
    if (target.attribute != nullptr) {
      if (step.position == 0 && step.attribute.empty()) continue;
      throw Trouble("'" + Printable(step.name) + "' is an attribute: it takes no brackets");
    }
    const Child* const child = target.element->FindChild(step.name);
    target.element = child->element;
    target.elements.push_back({std::move(step), child});
    CheckCondition(target, target.elements.back().step);
  }
  return target;
}

// ---- the source --------------------------------------------------------------------------------

std::optional<std::string> ValueIn(SourceElement& element, const Element& table,
                                   std::string_view name) {
  const Attribute* const attribute = table.FindAttribute(name);
  if (attribute != nullptr) {
    const SourceAttribute* const found = element.FindAttribute(name);
    return found != nullptr ? ValueOf(*found) : attribute->when_absent;
  }
  const std::vector<SourceElement*> children = element.Children(name);
  if (children.empty()) return std::nullopt;
  const SourceContent* const text = children.back()->FindText();
  if (text == nullptr) return std::nullopt;
  return ValueOf(*text);
}

std::vector<Numbered> MatchesOf(const SourceElement& parent, const Target::ElementStep& step) {
  const bool is_repeated = step.child->occurrence == Occurrence::kRepeated;
  const std::vector<SourceElement*> elements = parent.Children(step.child->name);
  const Step& wanted = step.step;
  std::vector<Numbered> matches;
  for (std::size_t number = 1; number <= elements.size(); ++number) {
    SourceElement& element = *elements[number - 1];
    const bool counts = is_repeated || number == elements.size();
    const bool is_wanted = wanted.position != 0 ? number == wanted.position
                           : !wanted.attribute.empty()
                               ? counts && IsNamed(element, *step.child->element, wanted)
                               : counts;
    if (is_wanted) matches.push_back({&element, number, counts});
  }
  return matches;
}

std::vector<Found> Select(Source& source, const Target& target) {
  std::vector<Found> found = SelectElements(source, target, target.elements.size());
  if (target.attribute == nullptr) return found;
  for (Found& one : found) one.attribute = one.element->FindAttribute(target.attribute->name);
  std::erase_if(found, [](const Found& one) { return one.attribute == nullptr; });
  return found;
}

std::string AbsenceOf(Source& source, const Target& target) {
  std::vector<SourceElement*> elements = {&source.root()};
  for (std::size_t i = 0; i < target.elements.size(); ++i) {
    std::vector<SourceElement*> next;
    for (SourceElement* const one : elements) {
      for (const Numbered& match : MatchesOf(*one, target.elements[i])) {
        next.push_back(match.element);
      }
    }
    if (next.empty()) {
      return Named(source) + " has no '" + target.Spelling(i + 1) + "'" +
             NearestItem(*elements.front(), target.elements[i]);
    }
    elements = std::move(next);
  }
  return Named(source) + " has no '" + target.Spelling() + "'";
}

SourceElement& SelectElement(Source& source, const Target& target, std::size_t steps,
                             IfAbsent if_absent) {
  const std::vector<Found> found = SelectElements(source, target, steps);
  if (found.size() == 1) return *found.front().element;
  SourceElement* element = &source.root();
  for (std::size_t i = 0; i < steps; ++i) {
    const Target::ElementStep& step = target.elements[i];
    const std::vector<Numbered> matches = MatchesOf(*element, step);
    if (matches.size() == 1) {
      element = matches.front().element;
      continue;
    }
    const std::string path = "'" + target.Spelling(i + 1) + "'";
    if (!matches.empty()) {
      throw Trouble(path + " names " + std::to_string(matches.size()) + " elements in " +
                    Named(source) + ": " + ChoiceIn(*element, step));
    }
    const std::string hint = NearestItem(*element, step);
    throw Trouble(Named(source) + " has no " + path +
                  (hint.empty() && if_absent == IfAbsent::kMayBeAdded
                       ? "; --add " + path + " adds it"
                       : hint));
  }
  return *element;
}

}  // namespace tolva::cli
