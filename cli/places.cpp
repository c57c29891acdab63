#include "cli/places.h"

#include <algorithm>
#include <charconv>

#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"

namespace tolva::cli {
namespace {

/// Takes what is in brackets off the front of the rest of a path.
class SelectorParser {
 public:
  SelectorParser(std::string_view path, std::string_view& rest) : path_(path), rest_(rest) {}

  void Parse(Step& step) {
    rest_.remove_prefix(1);
    if (!rest_.empty() && rest_[0] >= '0' && rest_[0] <= '9') {
      ParsePosition(step);
    } else {
      ParseCondition(step);
    }
    Take(']');
  }

 private:
  [[noreturn]] void Fail() const {
    throw Trouble("'" + Printable(path_) +
                  "' is no path: brackets hold a number from 1, or Attribute=\"value\"");
  }

  void Take(char expected) {
    if (rest_.empty() || rest_[0] != expected) Fail();
    rest_.remove_prefix(1);
  }

  void ParsePosition(Step& step) {
    const char* const end = rest_.data() + rest_.size();
    const auto [stop, error] = std::from_chars(rest_.data(), end, step.position);
    if (error != std::errc() || step.position == 0) Fail();
    rest_.remove_prefix(static_cast<std::size_t>(stop - rest_.data()));
  }

  void ParseCondition(Step& step) {
    const std::size_t equals = rest_.find('=');
    if (equals == 0 || equals == std::string_view::npos || equals + 1 == rest_.size()) Fail();
    step.attribute = rest_.substr(0, equals);
    rest_.remove_prefix(equals + 1);
    const char quote = rest_[0];
    if (quote != '"' && quote != '\'') {  // shells take quotes away
      const std::size_t end = rest_.find_first_of("]\"'");
      if (end == 0 || end == std::string_view::npos || rest_[end] != ']') Fail();
      step.value = rest_.substr(0, end);
      rest_.remove_prefix(end);
      return;
    }
    const std::size_t end = rest_.find(quote, 1);
    if (end == std::string_view::npos) Fail();
    step.value = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
  }

  const std::string_view path_;
  std::string_view& rest_;
};

std::vector<std::string> DocumentNames() {
  std::vector<std::string> names;
  for (const Document& document : Documents()) names.emplace_back(document.name);
  return names;
}

std::vector<std::string> NamesIn(const Element& element) {
  std::vector<std::string> names;
  for (const Attribute& attribute : element.attributes) names.push_back(attribute.name);
  for (const Child& child : element.children) names.push_back(child.name);
  return names;
}

/// "; did you mean 'policy/Log'?": the first place of that name, or of one that is near, below the
/// place that is given; or nothing.
std::string DidYouMeanBelow(const Place& above, std::string_view name) {
  const std::string prefix = above.path.empty() ? "" : above.path + "/";
  std::vector<std::string> names;
  std::vector<std::string> paths;
  ForEachPlace(*above.document, [&](const Place& place) {
    if (!place.path.starts_with(prefix) || place.path.empty()) return;
    names.push_back(place.path.substr(place.path.find_last_of('/') + 1));
    paths.push_back(std::string(place.document->name) + "/" + place.path);
  });
  const std::optional<std::string> nearest = Nearest(name, names);
  if (!nearest.has_value()) return {};
  const auto index = std::ranges::find(names, *nearest) - names.begin();
  return "; did you mean '" + paths[static_cast<std::size_t>(index)] + "'?";
}

[[noreturn]] void FailUnknown(const Place& place, const std::string& name) {
  const std::string parent =
      std::string(place.document->name) + (place.path.empty() ? "" : "/" + place.path);
  if (place.attribute != nullptr) {
    throw Trouble("'" + parent + "' is an attribute: nothing is in it");
  }
  const std::vector<std::string> names = NamesIn(*place.element);
  if (names.empty()) throw Trouble("'" + parent + "' has neither attributes nor children");
  std::string hint = DidYouMean(name, names);
  if (hint.empty()) hint = DidYouMeanBelow(place, name);
  if (hint.empty()) hint = "; it has " + Enumerate(names, "and");
  throw Trouble("'" + parent + "' has no '" + Printable(name) + "'" + hint);
}

void Visit(const Place& place, std::vector<const Element*>& open,
           const std::function<void(const Place&)>& visit) {
  visit(place);
  if (std::ranges::find(open, place.element) != open.end()) return;
  open.push_back(place.element);
  const std::string prefix = place.path.empty() ? "" : place.path + "/";
  for (const Attribute& attribute : place.element->attributes) {
    visit({place.document, prefix + attribute.name, place.element, &attribute, nullptr});
  }
  for (const Child& child : place.element->children) {
    Visit({place.document, prefix + child.name, child.element, nullptr, &child}, open, visit);
  }
  open.pop_back();
}

}  // namespace

std::vector<Step> ParsePath(std::string_view path) {
  std::vector<Step> steps;
  std::string_view rest = path;
  while (!rest.empty()) {
    Step step;
    const std::size_t end = std::min(rest.find_first_of("/["), rest.size());
    step.name = rest.substr(0, end);
    if (step.name.empty()) throw Trouble("'" + Printable(path) + "' is no path: a name is missing");
    rest.remove_prefix(end);
    if (!rest.empty() && rest[0] == '[') SelectorParser(path, rest).Parse(step);
    if (!rest.empty() && rest[0] != '/') {
      throw Trouble("'" + Printable(path) + "' is no path: '/' is missing after ']'");
    }
    if (!rest.empty()) rest.remove_prefix(1);
    steps.push_back(std::move(step));
  }
  return steps;
}

const Document& DocumentOf(std::string_view name) {
  const Document* const document = FindDocument(name);
  if (document != nullptr) return *document;
  const std::vector<std::string> names = DocumentNames();
  std::string hint = DidYouMean(name, names);
  for (const Document& one : Documents()) {
    if (hint.empty()) hint = DidYouMeanBelow({&one, "", &one.root(), nullptr, nullptr}, name);
  }
  if (hint.empty()) hint = "; there are " + Enumerate(names, "and");
  throw Trouble("there is no document '" + Printable(name) + "'" + hint);
}

void ExpectedType::AddTo(Verb& verb) {
  verb.Add("--type", "DOCUMENT", name_, "what each file has to be.");
}

Place FindPlace(std::string_view document_and_path) {
  const std::size_t end = std::min(document_and_path.find('/'), document_and_path.size());
  const Document& document = DocumentOf(document_and_path.substr(0, end));
  document_and_path.remove_prefix(std::min(end + 1, document_and_path.size()));
  Place place = {&document, "", &document.root(), nullptr, nullptr};
  for (const Step& step : ParsePath(document_and_path)) {
    const bool is_element = place.attribute == nullptr;
    const Attribute* const attribute =
        is_element ? place.element->FindAttribute(step.name) : nullptr;
    const Child* const child = is_element ? place.element->FindChild(step.name) : nullptr;
    if (attribute == nullptr && child == nullptr) FailUnknown(place, step.name);
    place.path += (place.path.empty() ? "" : "/") + step.name;
    place.attribute = attribute;
    place.child = child;
    if (child != nullptr) place.element = child->element;
  }
  return place;
}

void ForEachPlace(const Document& document, const std::function<void(const Place&)>& visit) {
  std::vector<const Element*> open;
  Visit({&document, "", &document.root(), nullptr, nullptr}, open, visit);
}

}  // namespace tolva::cli
