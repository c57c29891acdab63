#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <set>

#include "cli/align.h"
#include "cli/diff_formats.h"
#include "cli/load.h"
#include "cli/places.h"
#include "cli/run.h"
#include "cli/text.h"
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
  std::set<std::size_t, std::greater<>> gone;  ///< from where they were, the last one first
  std::map<std::size_t, Json> placed;
};

std::string AsText(const Json& json) {
  return json.is_string() ? json.get<std::string>() : json.dump();
}

/// The arguments of `set` that make the new document from the old one and the changes. Values and
/// elements that are no items come first, under the paths that `diff` tells. What changes paths
/// follows: values that name items, and then lists, the deepest ones first.
class Commands {
 public:
  Commands(const Document& document, const Json& from, const Json& to, const Json& changes)
      : document_(document), from_(from), to_(to) {
    std::vector<const Json*> names;
    std::map<std::pair<std::ptrdiff_t, std::string>, ListEdit> lists;
    for (const Json& change : changes) {
      const std::string path = change["path"];
      std::vector<Step> steps = ParsePath(path);
      if (change.contains("old")) {
        EXPECT_EQ(from_.at(Json::json_pointer(Find(from_, steps))), change["old"]);
      }
      const std::vector<Step> new_steps = ParsePath(change.value("newPath", path));
      if (change.contains("new")) {
        EXPECT_EQ(to_.at(Json::json_pointer(Find(to_, new_steps))), change["new"]);
      }
      if (!change.contains("from") && !change.contains("to")) {
        const Place place = PlaceAt(path);
        if (place.attribute != nullptr && place.attribute->names_item) {
          names.push_back(&change);
        } else {
          Change(change, path);
        }
        continue;
      }
      steps.back().position = 0;
      steps.back().attribute.clear();
      const std::string list = Find(from_, steps);
      ListEdit& edit = lists[{-std::ranges::count(list, '/'), list}];
      if (change.contains("from")) edit.gone.insert(change["from"].get<std::size_t>());
      if (!change.contains("to")) continue;
      edit.placed[change["to"]] = to_.at(Json::json_pointer(Find(to_, new_steps)));
    }
    for (const Json* const change : names) {
      Change(*change, PathOf(Find(from_, ParsePath((*change)["path"].get<std::string>()))));
    }
    for (const auto& [place, edit] : lists) {
      const std::string list = PathOf(place.second);
      const auto numbered = [&](std::size_t i) { return list + "[" + std::to_string(i) + "]"; };
      for (const std::size_t number : edit.gone) {
        Add("--remove", numbered(number));
      }
      for (const auto& [number, item] : edit.placed) AddElement(numbered(number), item);
    }
  }

  std::vector<std::string> arguments;

 private:
  /// /Location/0/Name: Location[1]/Name
  static std::string PathOf(const std::string& pointer) {
    std::string path;
    for (std::size_t at = 1; at < pointer.size();) {
      const std::size_t end = std::min(pointer.find('/', at), pointer.size());
      const std::string step = pointer.substr(at, end - at);
      const bool is_number = step[0] >= '0' && step[0] <= '9';
      path += is_number ? "[" + std::to_string(std::stoul(step) + 1) + "]"
                        : (path.empty() ? "" : "/") + step;
      at = end + 1;
    }
    return path;
  }

  Place PlaceAt(const std::string& path) const {
    return FindPlace(std::string(document_.name) + "/" + path);
  }

  void Add(const std::string& option, const std::string& path) {
    arguments.insert(arguments.end(), {option, path});
  }

  /// Of a value, or an element that is no item.
  void Change(const Json& change, const std::string& path) {
    const bool is_element = change["what"] == "element";
    if (is_element && change["kind"] == "added") {
      AddElement(path, change["new"]);
    } else if (change["kind"] == "removed" || change["new"].is_null()) {
      Add(is_element ? "--remove" : "--unset", path);
    } else {
      arguments.push_back(path + "=" + AsText(change["new"]));
    }
  }

  void AddElement(const std::string& path, const Json& json) {
    Add("--add", path);
    Fill(*PlaceAt(path).element, path, json);
  }

  void Fill(const Element& element, const std::string& path, const Json& json) {
    if (element.text.has_value()) {
      if (json.is_null()) return Add("--unset", path);
      arguments.push_back(path + "=" + AsText(json));
    }
    for (const Attribute& attribute : element.attributes) {
      if (!json.contains(attribute.name)) continue;
      arguments.push_back(path + "/" + attribute.name + "=" + AsText(json[attribute.name]));
    }
    for (const Child& child : element.children) {
      if (!json.contains(child.name)) continue;
      const std::string name = path + "/" + child.name;
      const Json& value = json[child.name];
      if (child.occurrence == Occurrence::kRepeated) {
        for (std::size_t i = 0; i < value.size(); ++i) {
          AddElement(name + "[" + std::to_string(i + 1) + "]", value[i]);
        }
      } else if (child.occurrence == Occurrence::kRequired || child.is_always_written) {
        Fill(*child.element, name, value);
      } else {
        AddElement(name, value);
      }
    }
  }

  const Document& document_;
  const Json& from_;
  const Json& to_;
};

/// Makes the new document from the old one and the changes.
Json Applied(const Document& document, node::INode& from, const Json& changes, const Json& to) {
  const std::string& root = document.root().name;
  Json old = JsonOf(document, from)[root];
  const TempFile file(WrittenForm(document, from));
  std::vector<std::string> arguments = Commands(document, old, to[root], changes).arguments;
  if (arguments.empty()) return old;
  arguments.insert(arguments.begin(), {"set", NameOf(file.path())});
  const Outcome outcome = RunTool(arguments);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  return JsonOf(document, *LoadBytes(outcome.out, "set").root)[root];
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
    RandomContent(seed % 10).Fill(*document.root().schema, *from);
    const Json old_json = JsonOf(document, *from);
    Json new_json = old_json;
    if (seed % 8 != 0) Editor(seed).Edit(document.root(), new_json[root]);
    if (seed % 8 == 1) new_json = Shuffled(new_json, seed);
    const auto to = FromJson(new_json.dump(), "new", &document).root;
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
      const Json result = Applied(document, *from, diff["changes"], new_json);
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

/// Lists of messages, named by their IDs.
class Messages {
 public:
  explicit Messages(unsigned seed) : random_(seed) {
    while (items_.size() < 60) items_.push_back(New(items_.size()));
  }

  Json ToJson() const { return {{"EndPointMessage", {{"SchemaVersion", 1}, {"Message", items_}}}}; }

  void EditOnce(bool has_unique_names) {
    const std::size_t at = random_() % items_.size();
    Json item = items_[at];
    switch (random_() % 4) {
      case 0:
        items_[at]["Description"] = "other " + std::to_string(random_());
        return;
      case 1:
        item = New(has_unique_names ? random_() : random_() % 60);
        break;
      default:
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(at));
        if (random_() % 2 == 0) return;
    }
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(random_() % items_.size()), item);
  }

 private:
  Json New(std::size_t id) {
    const std::string text = std::to_string(random_() % 4);
    return {{"ID", id & 0x7FFFFFFF}, {"Content", text}, {"Description", text}};
  }

  std::mt19937 random_;
  std::vector<Json> items_;
};

TEST(Diff, TellsNoMoreThanWasDone) {
  const Document& document = *FindDocument("message-catalogue");
  for (unsigned seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    Messages messages(seed);
    const Json from = messages.ToJson();
    const bool has_unique_names = seed % 2 == 0;
    const unsigned edits = seed % 50;
    for (unsigned i = 0; i < edits; ++i) messages.EditOnce(has_unique_names);
    const Json to = messages.ToJson();
    const auto old_node = FromJson(from.dump(), "old", &document).root;
    const auto new_node = FromJson(to.dump(), "new", &document).root;
    const auto comparison = CompareNodes(document, *old_node, *new_node, ListOrder::kCounts);
    const Json changes =
        Json::parse(DiffJson(*comparison, {"old", "new"}, Secrets::kShown))["changes"];
    const std::string& root = document.root().name;
    ASSERT_EQ(Applied(document, *old_node, changes, to), to[root]) << changes.dump(1);
    if (has_unique_names) {
      ASSERT_LE(changes.size(), edits) << changes.dump(1);
    }
  }
}

// ---- the tool ----------------------------------------------------------------------------------

std::string ExampleOf(const std::string& document) {
  return TempFile::ReadFile(std::filesystem::path(TOLVA_DOCUMENTS) / (document + ".xml"));
}

Outcome Diff(const std::string& from, const std::string& to,
             const std::vector<std::string>& options = {}) {
  const TempFile old_file(from);
  const TempFile new_file(to);
  std::vector<std::string> arguments = {"diff", old_file.path().string(), new_file.path().string()};
  arguments.insert(arguments.end(), options.begin(), options.end());
  return RunTool(arguments);
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), by);
}

/// The lines that tell of changes.
std::string Told(const std::string& from, const std::string& to,
                 const std::vector<std::string>& options = {}) {
  const std::string text = Diff(from, to, options).out;
  return text.substr(0, text.find_last_of('\n', text.size() - 2) + 1);
}

/// A catalogue with messages "ID:Description", and localised ones.
std::string Catalogue(const std::vector<std::string>& messages, const std::string& localised = "") {
  std::string text = "<EndPointMessage SchemaVersion='1'>";
  for (const std::string& message : messages) {
    const std::size_t colon = message.find(':');
    text += "<Message ID='" + message.substr(0, colon) + "'><Content>c</Content><Description>" +
            message.substr(colon + 1) + "</Description></Message>";
  }
  return text + localised + "</EndPointMessage>";
}

TEST(Diff, TellsOneEditAsOneChange) {
  const std::string policy = ExampleOf("policy");
  const std::string media =
      "LocationArray/Location[Name=\"Office\"]/ILPProtection/ILPRemovableMedia/";
  const std::string rule = "<DeviceRule Action=\"BLOCK\" VendorID=\"090C\"/>";
  EXPECT_EQ(Told(policy, Replaced(policy, " Sid=\"11\"", " Sid=\"12\"")),
            "~ " + media + "Sid: 11 -> 12\n");
  EXPECT_EQ(Told(policy, Replaced(policy, rule, "")),
            "- " + media + "DeviceRule[VendorID=\"090C\"]:\n    Action=\"BLOCK\"\n");
  EXPECT_EQ(Told(Replaced(policy, rule, ""), policy),
            "+ " + media + "DeviceRule[VendorID=\"090C\"]:\n    Action=\"BLOCK\"\n");
  EXPECT_EQ(Told(policy, Replaced(policy, " SerialNumber=\"4C530001261215105\"", "")),
            "- " + media +
                "DeviceRule[DeviceName=\"Company stick\"]/SerialNumber: "
                "\"4C530001261215105\"\n");

  const std::string four = Catalogue({"1:a", "2:b", "3:c", "4:d"});
  EXPECT_EQ(Told(four, Catalogue({"2:b", "3:c", "4:d", "1:a"})),
            "> Message[ID=\"1\"]: from place 1 to 4\n");
  EXPECT_EQ(Told(four, Catalogue({"2:b", "3:c", "4:d", "1:a"}), {"--ignore-order"}), "");
  EXPECT_EQ(Told(four, Catalogue({"1:a", "2:b", "9:c", "4:d"})),
            "~ Message[ID=\"3\"]/ID: 3 -> 9\n");  // the same, under another name
  EXPECT_EQ(Told(four, Catalogue({"2:b", "3:c", "4:d", "9:a"})),
            "- Message[ID=\"1\"]: 2 elements in it\n"
            "+ Message[ID=\"9\"]: 2 elements in it\n");
  EXPECT_EQ(Told(four, Catalogue({"4:e", "1:a", "2:b", "3:c"})),
            "> Message[ID=\"4\"]: from place 4 to 1\n"
            "~ Message[ID=\"4\"]/Description: \"d\" -> \"e\"\n");
}

TEST(Diff, MatchesItemsThatShareANameOrHaveNone) {
  const std::string twice = Catalogue({"1:a", "1:a", "1:b", "1:a", "2:a"});
  EXPECT_EQ(Told(twice, Catalogue({"1:a", "1:a", "1:x", "1:a", "2:a"})),
            "~ Message[3]/Description: \"b\" -> \"x\"\n");
  EXPECT_EQ(Told(twice, Catalogue({"1:n", "1:a", "1:a", "1:b", "1:a", "2:a"})),
            "+ Message[1]: ID=\"1\", 2 elements in it\n");
  const auto localised = [](const std::vector<std::string>& catalogues) {
    std::string text = "<EndpointLocalMsg>";
    for (const std::string& one : catalogues) text += one;
    return Catalogue({}, text + "</EndpointLocalMsg>");
  };
  const std::string list = "EndpointLocalMsg[1]/EndPointMessage";
  const std::string a = Catalogue({"1:a", "2:a", "3:a"});
  const std::string b = Catalogue({"4:b"});
  const std::string c = Catalogue({"5:c", "6:c"});
  EXPECT_EQ(Told(localised({a, b, c}), localised({a, Catalogue({"7:n"}), c})),
            "- " + list + "[2]/Message[ID=\"4\"]: 2 elements in it\n" +  //
                "+ " + list + "[2]/Message[ID=\"7\"]: 2 elements in it\n");
  EXPECT_EQ(Told(localised({a, b, c}), localised({b, c, Catalogue({"1:a", "2:x", "3:a"})})),
            "> " + list + "[1]: from place 1 to 3\n~ " + list +
                "[1]/Message[ID=\"2\"]/Description: \"a\" -> \"x\"\n");
}

TEST(Diff, KeepsSecrets) {
  const auto with_key = [](const std::string& key, const std::string& old_keys) {
    const std::string policy = ExampleOf("policy");
    const std::size_t start = policy.find("<Encryption>");
    const std::size_t end = policy.find("</Encryption>");
    return policy.substr(0, start) + "<Encryption><PrimaryKey KeyID=\"1\" Key=\"" + key +
           "\" FileHeader=\"SECRET-0\"/>" + old_keys + policy.substr(end);
  };
  const std::string from = with_key("SECRET-1", "<OldKey KeyID='1' Key='SECRET-2'/>");
  const std::string to =
      with_key("SECRET-3", "<OldKey KeyID='2' Key='SECRET-4'/><OldKey KeyID='3' Key='SECRET-5'/>");
  for (const char* const format : {"text", "json", "html"}) {
    const Outcome hidden = Diff(from, to, {"--format", format});
    EXPECT_EQ(hidden.status, 1);
    EXPECT_EQ(hidden.out.find("SECRET"), std::string::npos) << hidden.out;
    const std::string shown = Diff(from, to, {"--format", format, "--show-secrets"}).out;
    for (const char* const secret : {"1", "2", "3", "4", "5"}) {
      EXPECT_NE(shown.find(secret), std::string::npos) << format;
    }
  }
  EXPECT_NE(Told(from, to).find("~ Encryption/PrimaryKey/Key: (a secret, changed)\n"),
            std::string::npos);
}

TEST(Diff, ShowsLongValuesAroundTheDifference) {
  const std::string left(300, 'l');
  const std::string right(300, 'r');
  const std::string told = Told(Catalogue({"1:" + left + "old\xC3\xA4" + right}),
                                Catalogue({"1:" + left + "old\xC3\xB6&#x202E;" + right}));
  EXPECT_EQ(told,
            "~ Message[ID=\"1\"]/Description:\n"
            "    - \"…lllllllllllllold\xC3\xA4rrrrrrrrrrrrrrrr…\"\n"
            "    + \"…lllllllllllllold\xC3\xB6\\xE2\\x80\\xAErrrrrrrrrrrrrrrr…\"\n");
}

TEST(Diff, SaysWhatCannotBeCompared) {
  const std::string policy = ExampleOf("policy");
  const Outcome other = Diff(policy, ExampleOf("ng"));
  EXPECT_EQ(other.status, 2);
  EXPECT_NE(other.err.find("documents of different kinds cannot be compared: "), std::string::npos);
  const Outcome broken = Diff(policy, policy.substr(0, 1000));
  EXPECT_EQ(broken.status, 2);
  EXPECT_EQ(broken.out, "");
  EXPECT_NE(broken.err.find("breaks off"), std::string::npos) << broken.err;
  EXPECT_EQ(RunTool({"diff", "-", "-"}).err,
            "tolva: standard input can only be one of the documents\n");
}

// ---- sequences ---------------------------------------------------------------------------------

std::vector<std::uint32_t> RandomSequence(std::mt19937& random, std::size_t size, unsigned kinds) {
  std::vector<std::uint32_t> sequence(size);
  for (std::uint32_t& one : sequence) one = static_cast<std::uint32_t>(random() % kinds);
  return sequence;
}

std::size_t LengthOfLongestCommon(const std::vector<std::uint32_t>& left,
                                  const std::vector<std::uint32_t>& right) {
  std::vector<std::size_t> row(right.size() + 1);
  for (const std::uint32_t one : left) {
    std::size_t diagonal = 0;
    for (std::size_t i = 0; i < right.size(); ++i) {
      const std::size_t next = one == right[i] ? diagonal + 1 : std::max(row[i], row[i + 1]);
      diagonal = row[i + 1];
      row[i + 1] = next;
    }
  }
  return row.back();
}

TEST(Align, FindsALongestCommonSubsequence) {
  std::mt19937 random(7);
  for (unsigned i = 0; i < 3000; ++i) {
    // Long ones with many differences need more than one search.
    const std::size_t size = i % 100 == 0 ? 2000 : 20;
    const unsigned kinds = 1 + i % 7 * (size == 20 ? 1U : 300U);
    const auto left = RandomSequence(random, random() % size, kinds);
    const auto right = RandomSequence(random, random() % size, kinds);
    const auto pairs = Align(left, right);
    for (std::size_t k = 0; k < pairs.size(); ++k) {
      ASSERT_EQ(left.at(pairs[k].first), right.at(pairs[k].second));
      if (k == 0) continue;
      ASSERT_LT(pairs[k - 1].first, pairs[k].first);
      ASSERT_LT(pairs[k - 1].second, pairs[k].second);
    }
    const std::size_t longest = LengthOfLongestCommon(left, right);
    ASSERT_GE(pairs.size(), size == 20 ? longest : longest / 2) << size;
  }
}

}  // namespace
}  // namespace tolva::test
