#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <set>

#include "cli/diff_formats.h"
#include "cli/places.h"
#include "cli/run.h"
#include "support/files.h"
#include "tables/random_content.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::json;

/// Without the order of lists.
Json Sorted(Json json) {
  if (!json.is_structured()) return json;
  for (Json& one : json) one = Sorted(one);
  if (json.is_array()) std::sort(json.begin(), json.end());
  return json;
}

Json JsonOf(const Document& document, node::INode& root) {
  return Json::parse(ToJson(document, root).dump());
}

Json Shuffled(Json json, unsigned seed) {
  if (!json.is_structured()) return json;
  for (Json& one : json) one = Shuffled(one, seed);
  if (json.is_array()) std::shuffle(json.begin(), json.end(), std::mt19937(seed));
  return json;
}

/// Changes a document in JSON here and there.
class Editor {
 public:
  explicit Editor(unsigned seed) : random_(seed) {}

  void Edit(const Element& element, Json& json) {
    if (element.text.has_value()) {
      if (Happens(8)) json = NewValue(*element.text);
      return;
    }
    for (const Attribute& attribute : element.attributes) {
      const bool may_go =
          attribute.occurrence == Occurrence::kOptional && !attribute.when_absent.has_value();
      if (!Happens(12)) continue;
      json[attribute.name] = NewValue(attribute.value);
      if (may_go && Happens(2)) json.erase(attribute.name);
    }
    for (const Child& child : element.children) {
      if (!json.contains(child.name)) continue;
      Json& value = json[child.name];
      if (child.occurrence != Occurrence::kRepeated) {
        Edit(*child.element, value);
        if (child.occurrence == Occurrence::kOptional && !child.is_always_written && Happens(12)) {
          json.erase(child.name);
        }
        continue;
      }
      for (Json& one : value) Edit(*child.element, one);
      while (!value.empty() && Happens(3)) {
        Json item = value.at(random_() % value.size());
        Edit(*child.element, item);
        value.insert(value.begin() + Below(value.size() + 1), item);
      }
      while (!value.empty() && Happens(4)) value.erase(random_() % value.size());
      if (Happens(4)) std::shuffle(value.begin(), value.end(), random_);
      if (value.empty()) json.erase(child.name);
    }
  }

 private:
  bool Happens(unsigned one_of) { return random_() % one_of == 0; }
  std::ptrdiff_t Below(std::size_t limit) { return static_cast<std::ptrdiff_t>(random_() % limit); }

  Json NewValue(const cli::Value& value) {
    if (value.type == cli::Value::Type::kEnum) return value.texts[random_() % value.texts.size()];
    if (value.type == cli::Value::Type::kText) return "t" + std::to_string(Below(9));
    return value.IsLong() ? Json(std::to_string(Below(9))) : Json(Below(9));
  }

  std::mt19937 random_;
};

/// What a path names: exactly one thing.
std::string Find(const Json& root, const std::vector<Step>& path) {
  Json::json_pointer at;
  for (const Step& step : path) {
    at /= step.name;
    if (step.position != 0) at /= step.position - 1;
    if (step.attribute.empty()) continue;
    std::vector<std::size_t> found;
    const Json& items = root.at(at);
    for (std::size_t i = 0; i < items.size(); ++i) {
      const Json value = items[i].value(step.attribute, Json());
      const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
      if (text == step.value) found.push_back(i);
    }
    EXPECT_EQ(found.size(), 1U) << at << " " << step.value;
    at /= found.at(0);
  }
  return at.to_string();
}

struct ListEdit {
  std::set<std::size_t> gone;  ///< from where they were
  std::map<std::size_t, Json> placed;
};

Json Edited(const Json& items, const ListEdit& edit) {
  Json result = Json::array();
  std::size_t next = 0;
  const std::size_t size = items.size() + edit.placed.size() - edit.gone.size();
  while (result.size() < size) {
    const auto placed = edit.placed.find(result.size() + 1);
    while (edit.gone.contains(next + 1)) ++next;
    result.push_back(placed != edit.placed.end() ? placed->second : items.at(next++));
  }
  return result;
}

/// Makes the new document from the old one and the changes.
Json Applied(Json json, const Json& changes, const Json& to) {
  using Pointer = Json::json_pointer;
  const Json from = json;
  std::map<std::pair<std::ptrdiff_t, std::string>, ListEdit> edits;  // the deepest lists first
  std::vector<std::pair<ListEdit*, const Json*>> moves;
  for (const Json& change : changes) {
    const std::string kind = change["kind"];
    const std::string path = change["path"];
    std::vector<Step> steps = ParsePath(path);
    if (change.contains("new")) {
      EXPECT_EQ(to.at(Pointer(Find(to, ParsePath(change.value("newPath", path))))), change["new"]);
    }
    if (change.contains("old")) {
      EXPECT_EQ(from.at(Pointer(Find(from, steps))), change["old"]);
    }
    if (!change.contains("from") && !change.contains("to")) {
      const Pointer at(Find(from, steps));
      if (kind == "removed") {
        json[at.parent_pointer()].erase(at.back());
      } else {
        json[at] = change["new"];
      }
      continue;
    }
    steps.back().position = 0;
    steps.back().attribute.clear();
    const std::string list = Find(from, steps);
    ListEdit& edit = edits[{-std::ranges::count(list, '/'), list}];
    if (kind != "added") edit.gone.insert(change["from"].get<std::size_t>());
    if (kind == "added") edit.placed[change["to"]] = change["new"];
    if (kind == "moved") moves.emplace_back(&edit, &change);
  }
  for (auto& [place, edit] : edits) {
    const Pointer list(place.second);
    Json items = json.contains(list) ? json.at(list) : Json::array();
    for (const auto& [moved, change] : moves) {
      if (moved == &edit)
        edit.placed[(*change)["to"]] = items.at((*change)["from"].get<std::size_t>() - 1);
    }
    items = Edited(items, edit);
    if (items.empty()) {
      json[list.parent_pointer()].erase(list.back());
    } else {
      json[list] = items;
    }
  }
  return json;
}

std::unique_ptr<Comparison> CompareNodes(const Document& document, node::INode& from,
                                         node::INode& to, ListOrder order) {
  auto comparison = std::make_unique<Comparison>(document, order);
  comparison->from = std::make_unique<const Tree>(document, from, comparison->pool);
  comparison->to = std::make_unique<const Tree>(document, to, comparison->pool);
  Compare(*comparison);
  return comparison;
}

class DiffOf : public testing::TestWithParam<std::string_view> {};

TEST_P(DiffOf, MakesTheNewDocumentFromTheOld) {
  const Document& document = *FindDocument(GetParam());
  const std::string& root = document.root().name;
  int equal = 0;
  for (unsigned seed = 0; seed < 200; ++seed) {
    SCOPED_TRACE(seed);
    const auto from = document.make();
    const auto to = document.make();
    RandomContent(seed % 10).Fill(*document.root().schema, *from);
    const Json old_json = JsonOf(document, *from);
    Json new_json = old_json;
    if (seed % 8 != 0) Editor(seed).Edit(document.root(), new_json[root]);
    if (seed % 8 == 1) new_json = Shuffled(new_json, seed);
    FromJson(document, nlohmann::ordered_json::parse(new_json.dump()), *to);
    new_json = JsonOf(document, *to);
    equal += new_json == old_json ? 1 : 0;
    for (const ListOrder order : {ListOrder::kCounts, ListOrder::kIsIgnored}) {
      const auto told = [&](const Json& json) {
        return order == ListOrder::kCounts ? json : Sorted(json);
      };
      const auto comparison = CompareNodes(document, *from, *to, order);
      const bool are_equal = told(old_json) == told(new_json);
      EXPECT_EQ(comparison->AreEqual(), are_equal);
      const Json diff = Json::parse(DiffJson(*comparison, {"old", "new"}, Secrets::kShown));
      EXPECT_EQ(diff["equal"], are_equal);
      EXPECT_EQ(diff["changes"].empty(), are_equal);
      const Json result = Applied(old_json[root], diff["changes"], new_json[root]);
      EXPECT_EQ(told(result), told(new_json[root])) << diff["changes"].dump(1);
      const std::string text = DiffText(*comparison, Secrets::kShown, Style(false), 80);
      EXPECT_EQ(text.empty(), are_equal);
    }
    if (HasFailure()) break;
  }
  EXPECT_GT(equal, 20);
}

INSTANTIATE_TEST_SUITE_P(AllDocuments, DiffOf, testing::ValuesIn([] {
                           std::vector<std::string_view> names;
                           for (const Document& one : Documents()) names.push_back(one.name);
                           return names;
                         }()));

}  // namespace
}  // namespace tolva::test
