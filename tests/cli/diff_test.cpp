#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <set>
#include <sstream>

#include "cli/align.h"
#include "cli/layout.h"
#include "cli/places.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::json;
using Pointer = Json::json_pointer;

/// Without the order of lists.
Json Sorted(Json json) {
  if (!json.is_structured()) return json;
  for (Json& one : json) one = Sorted(one);
  if (json.is_array()) std::sort(json.begin(), json.end());
  return json;
}

std::string XmlOf(const Document& document, const Json& json) {
  return WrittenForm(document, *FromJson(json.dump(), "json", &document).root);
}

Outcome Diff(const TempFile& from, const TempFile& to, std::vector<std::string> options = {}) {
  options.insert(options.begin(), NameOf(to.path()));
  return RunOn(from, "diff", options);
}

/// The first document, changed here and there, with values, elements and items of the second.
Json Mixed(Json from, const Json& other, std::mt19937& random) {
  const auto happens = [&](unsigned one_of) { return random() % one_of == 0; };
  if (!from.is_structured()) return happens(8) ? other : from;
  if (from.is_object()) {
    Json result = Json::object();
    for (const auto& [name, value] : from.items()) {
      const bool is_required = other.contains(name);
      if (is_required) result[name] = Mixed(value, other[name], random);
      if (!is_required && !happens(12)) result[name] = value;
    }
    for (const auto& [name, value] : other.items()) {
      if (!from.contains(name) && happens(12)) result[name] = value;
    }
    return result;
  }
  for (Json& item : from) item = Mixed(item, other[random() % other.size()], random);
  while (happens(3)) {
    Json item = Mixed(from[random() % from.size()], other[random() % other.size()], random);
    from.insert(from.begin() + static_cast<int>(random() % (from.size() + 1)), item);
  }
  while (from.size() > 1 && happens(4)) from.erase(random() % from.size());
  if (happens(4)) std::shuffle(from.begin(), from.end(), random);
  return from;
}

/// What a path names: exactly one thing.
Pointer Find(const Json& root, const std::vector<Step>& path) {
  Pointer at;
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
  return at;
}

struct ListEdit {
  std::set<std::size_t, std::greater<>> gone;  ///< from where they were, the last one first
  std::map<std::size_t, Json> placed;
};

void Erase(Json& json, const Pointer& at) { json[at.parent_pointer()].erase(at.back()); }

/// Makes the new document from the old one and the changes.
Json Applied(const Json& from, const Json& to, const Json& changes) {
  Json result = from;
  std::map<std::string, ListEdit, std::greater<>> lists;  // those in other lists first
  for (const Json& change : changes) {
    const std::string path = change["path"];
    std::vector<Step> steps = ParsePath(path);
    const std::vector<Step> new_steps = ParsePath(change.value("newPath", path));
    if (change.contains("old")) {
      EXPECT_EQ(from.at(Find(from, steps)), change["old"]);
    }
    if (change.contains("new")) {
      EXPECT_EQ(to.at(Find(to, new_steps)), change["new"]);
    }
    if (!change.contains("from") && !change.contains("to")) {
      const Pointer at = Find(from, steps);
      result[at] = change.value("new", Json());
      if (change["kind"] == "removed" && change["what"] != "text") Erase(result, at);
      continue;
    }
    steps.back().position = 0;
    steps.back().attribute.clear();
    ListEdit& edit = lists[Find(from, steps).to_string()];
    if (change.contains("from")) edit.gone.insert(change["from"].get<std::size_t>());
    if (change.contains("to")) edit.placed[change["to"]] = to.at(Find(to, new_steps));
  }
  for (const auto& [list, edit] : lists) {
    const Pointer at(list);
    Json& items = result[at];
    if (items.is_null()) items = Json::array();
    for (const std::size_t number : edit.gone) items.erase(number - 1);
    for (const auto& [number, item] : edit.placed) {
      items.insert(items.begin() + static_cast<std::ptrdiff_t>(number - 1), item);
    }
    if (items.empty()) Erase(result, at);
  }
  return result;
}

class DiffOf : public testing::TestWithParam<std::size_t> {};

TEST_P(DiffOf, MakesTheNewDocumentFromTheOld) {
  const Document& document = Documents()[GetParam()];
  const std::string& root = document.root().name;
  int equal = 0;
  for (unsigned seed = 0; seed < 200 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const TempFile from(RandomDocument(document, seed % 10));
    const Json old_json = ReadJson(from.Read());
    const Json other_json = ReadJson(RandomDocument(document, 10 + seed % 9));
    Json new_json = seed % 8 == 0 ? old_json : Mixed(old_json, other_json, random);
    if (seed % 8 == 1) new_json = Sorted(new_json);
    const TempFile to(XmlOf(document, new_json));
    new_json = ReadJson(to.Read());
    equal += new_json == old_json ? 1 : 0;
    for (const bool is_ordered : {true, false}) {
      const auto told = [&](const Json& json) { return is_ordered ? json : Sorted(json); };
      const bool are_equal = told(old_json) == told(new_json);
      // --color=never is what holds anyway.
      const std::string order = is_ordered ? "--color=never" : "--ignore-order";
      const Outcome outcome = Diff(from, to, {"--format", "json", "--show-secrets", order});
      EXPECT_EQ(outcome.status, are_equal ? 0 : 1);
      const Json diff = Json::parse(outcome.out);
      EXPECT_EQ(diff["equal"], are_equal);
      EXPECT_EQ(diff["changes"].empty(), are_equal);
      const Json result = Applied(old_json[root], new_json[root], diff["changes"]);
      EXPECT_EQ(told(result), told(new_json[root])) << diff["changes"].dump(1);
      EXPECT_EQ(Diff(from, to, {order}).out.empty(), are_equal);
      std::vector<std::string> paths;
      for (const Json& change : diff["changes"]) {
        if (!change.value("old", Json()).is_null()) paths.push_back(change["path"]);
      }
      const Outcome found = RunOn(from, "get", paths);
      EXPECT_TRUE(found.status == 0 || paths.empty()) << found.err;
    }
  }
  EXPECT_GT(equal, 20);
}

INSTANTIATE_TEST_SUITE_P(AllDocuments, DiffOf, testing::Range<std::size_t>(0, Documents().size()));

/// A message is changed, added, removed or moved by each edit. Messages are named by their IDs.
TEST(Diff, TellsNoMoreThanWasDone) {
  const Document& document = *FindDocument("message-catalogue");
  for (unsigned seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    const bool has_unique_names = seed % 2 == 0;
    const unsigned edits = seed % 50;
    std::mt19937 random(seed);
    const auto make = [&](std::size_t id) -> Json {
      const std::string text = std::to_string(random() % 4);
      return {{"ID", id & 0x7FFFFFFF}, {"Content", text}, {"Description", text}};
    };
    std::vector<Json> items;
    while (items.size() < 60) items.push_back(make(items.size()));
    const auto catalogue = [&]() -> Json { return {{"SchemaVersion", 1}, {"Message", items}}; };
    const Json from = catalogue();
    for (unsigned i = 0; i < edits; ++i) {
      const auto at = items.begin() + static_cast<int>(random() % items.size());
      Json item = *at;
      const auto kind = random() % 5;
      if (kind == 0) (*at)["Description"] = "other " + std::to_string(random());
      if (kind == 1) item = make(has_unique_names ? random() : random() % 60);
      if (kind >= 2) items.erase(at);
      if (kind == 0 || kind == 4) continue;
      items.insert(items.begin() + static_cast<int>(random() % items.size()), item);
    }
    const Json to = catalogue();
    const TempFile old_file(XmlOf(document, {{"EndPointMessage", from}}));
    const TempFile new_file(XmlOf(document, {{"EndPointMessage", to}}));
    const Json changes = Json::parse(Diff(old_file, new_file, {"--format", "json"}).out)["changes"];
    ASSERT_EQ(Applied(from, to, changes), to) << changes.dump(1);
    ASSERT_TRUE(changes.size() <= edits || !has_unique_names) << changes.dump(1);
  }
}

// ---- the tool ----------------------------------------------------------------------------------

const std::string kPolicy = TempFile::ReadFile(TOLVA_DOCUMENTS "/policy.xml");

/// The lines that tell of changes.
std::string Told(const std::string& from, const std::string& to) {
  const std::string text = Diff(TempFile(from), TempFile(to)).out;
  return text.substr(0, text.find_last_of('\n', text.size() - 2) + 1);
}

/// A catalogue with messages, each its ID and ":Description", and localised ones.
std::string Catalogue(const std::string& messages, const std::string& localised = "") {
  std::string text = "<EndPointMessage SchemaVersion='1'>";
  std::istringstream words(messages);
  std::string id;
  std::string description;
  while (std::getline(words, id, ':') && words >> description) {
    words >> std::ws;
    text += "<Message ID='" + id + "'><Content>c</Content><Description>" + description +
            "</Description></Message>";
  }
  return text + localised + "</EndPointMessage>";
}

TEST(Diff, TellsOneEditAsOneChange) {
  const std::string device =
      "LocationArray/Location[Name=\"Office\"]/ILPProtection/ILPRemovableMedia/DeviceRule";
  const std::string rule = "<DeviceRule Action=\"BLOCK\" VendorID=\"090C\"/>";
  EXPECT_EQ(Told(Replaced(kPolicy, rule, ""), kPolicy),
            "+ " + device + "[VendorID=\"090C\"]:\n    Action=\"BLOCK\"\n");
  EXPECT_EQ(Told(kPolicy, Replaced(kPolicy, " SerialNumber=\"4C530001261215105\"", "")),
            "- " + device + "[DeviceName=\"Company stick\"]/SerialNumber: \"4C530001261215105\"\n");

  const std::array<const char*, 3> cases[] = {
      {"1:a 2:b 3:c 4:d", "2:b 3:c 4:d 1:a", "> Message[ID=\"1\"]: from place 1 to 4\n"},
      // The same, under another name.
      {"1:a 2:b 3:c 4:d", "1:a 2:b 9:c 4:d", "~ Message[ID=\"3\"]/ID: 3 -> 9\n"},
      {"1:a 2:b 3:c 4:d", "2:b 3:c 4:d 9:a",
       "- Message[ID=\"1\"]: 2 elements in it\n+ Message[ID=\"9\"]: 2 elements in it\n"},
      {"1:a 2:b 3:c 4:d", "4:e 1:a 2:b 3:c",
       "> Message[ID=\"4\"]: from place 4 to 1\n"
       "~ Message[ID=\"4\"]/Description: \"d\" -> \"e\"\n"},
      // Names that several items share.
      {"1:a 1:a 1:b 1:a 2:a", "1:a 1:a 1:x 1:a 2:a", "~ Message[3]/Description: \"b\" -> \"x\"\n"},
      {"1:a 1:a 1:b 1:a 2:a", "1:n 1:a 1:a 1:b 1:a 2:a",
       "+ Message[1]: ID=\"1\", 2 elements in it\n"},
  };
  for (const auto& [from, to, told] : cases) EXPECT_EQ(Told(Catalogue(from), Catalogue(to)), told);
}

TEST(Diff, MatchesItemsWithoutNames) {
  const auto localised = [](const std::string& catalogues) {
    return Catalogue("", "<EndpointLocalMsg>" + catalogues + "</EndpointLocalMsg>");
  };
  const std::string list = "EndpointLocalMsg[1]/EndPointMessage";
  const std::string a = Catalogue("1:a 2:a 3:a");
  const std::string b = Catalogue("4:b");
  const std::string c = Catalogue("5:c 6:c");
  EXPECT_EQ(Told(localised(a + b + c), localised(a + Catalogue("7:n") + c)),
            "- " + list + "[2]/Message[ID=\"4\"]: 2 elements in it\n" +  //
                "+ " + list + "[2]/Message[ID=\"7\"]: 2 elements in it\n");
  EXPECT_EQ(Told(localised(a + b + c), localised(b + c + Catalogue("1:a 2:x 3:a"))),
            "> " + list + "[1]: from place 1 to 3\n~ " + list +
                "[1]/Message[ID=\"2\"]/Description: \"a\" -> \"x\"\n");
}

TEST(Diff, KeepsSecrets) {
  const std::size_t end = kPolicy.find("</Encryption>");
  const auto with_keys = [&](const std::string& key, const std::string& old_keys) {
    return kPolicy.substr(0, kPolicy.find("<Encryption>")) +
           "<Encryption><PrimaryKey KeyID='1' FileHeader='SECRET-0' Key='" + key + "'/>" +
           old_keys + kPolicy.substr(end);
  };
  const TempFile from(with_keys("SECRET-1", "<OldKey KeyID='1' Key='SECRET-2'/>"));
  const TempFile to(with_keys(
      "SECRET-3", "<OldKey KeyID='2' Key='SECRET-4'/><OldKey KeyID='3' Key='SECRET-5'/>"));
  for (const char* const format : {"text", "json", "html"}) {
    const Outcome hidden = Diff(from, to, {"--format", format});
    EXPECT_EQ(hidden.status, 1);
    EXPECT_EQ(hidden.out.find("SECRET"), std::string::npos) << hidden.out;
    const std::string shown = Diff(from, to, {"--format", format, "--show-secrets"}).out;
    for (const char* const secret : {"1", "2", "3", "4", "5"}) {
      EXPECT_NE(shown.find(secret), std::string::npos) << format;
    }
  }
  EXPECT_NE(Diff(from, to).out.find("~ Encryption/PrimaryKey/Key: (a secret, changed)\n"),
            std::string::npos);
}

TEST(Diff, ShowsLongValuesAroundTheDifference) {
  const std::string left(300, 'l');
  const std::string right(300, 'r');
  const std::string told = Told(Catalogue("1:" + left + "old\xC3\xA4" + right),
                                Catalogue("1:" + left + "old\xC3\xB6&#x202E;" + right));
  EXPECT_EQ(told,
            "~ Message[ID=\"1\"]/Description:\n"
            "    - \"…lllllllllllllold\xC3\xA4rrrrrrrrrrrrrrrr…\"\n"
            "    + \"…lllllllllllllold\xC3\xB6\\xE2\\x80\\xAErrrrrrrrrrrrrrrr…\"\n");
}

TEST(Diff, SaysWhatCannotBeCompared) {
  const TempFile policy(kPolicy);
  const Outcome other = Diff(policy, TempFile(TempFile::ReadFile(TOLVA_DOCUMENTS "/ng.xml")));
  EXPECT_EQ(other.status, 2);
  EXPECT_NE(other.err.find("documents of different kinds cannot be compared: "), std::string::npos);
  const Outcome broken = Diff(policy, TempFile(kPolicy.substr(0, 1000)));
  EXPECT_EQ(broken.status, 2);
  EXPECT_EQ(broken.out, "");
  EXPECT_NE(broken.err.find("breaks off"), std::string::npos) << broken.err;
  EXPECT_EQ(RunTool({"diff", "-", "-"}).err,
            "tolva: standard input can only be one of the documents\n");
}

// ---- sequences ---------------------------------------------------------------------------------

using Sequence = std::vector<std::uint32_t>;

std::size_t LengthOfLongestCommon(const Sequence& left, const Sequence& right) {
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
    Sequence left(random() % size);
    Sequence right(random() % size);
    for (Sequence* const one : {&left, &right}) {
      std::ranges::generate(*one, [&] { return static_cast<std::uint32_t>(random() % kinds); });
    }
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
