#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <random>

#include "cli/edit.h"
#include "cli/json.h"
#include "cli/layout.h"
#include "cli/run.h"
#include "cli/text.h"
#include "support/files.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;
using Pointer = Json::json_pointer;
using Random = std::mt19937;

// ---- places ------------------------------------------------------------------------------------

struct Place {
  std::string path;
  Pointer pointer;
  bool is_there;
  const Value* value = nullptr;  ///< null: an element that may be added
  bool is_text = false;          ///< the value is that of an element
  bool is_free = false;          ///< an optional attribute whose absence stands for nothing
  bool is_repeated = false;
};

/// The places of a document by its JSON form: those with a value, and elements that may be added.
class Places {
 public:
  Places(const Document& document, const Json& json) {
    const std::string& root = document.root().name;
    Collect(document.root(), json[root], "", Pointer("/" + root));
  }

  const Place& Value(Random& random) const { return values_[random() % values_.size()]; }
  const Place& Item(Random& random) const { return items_[random() % items_.size()]; }
  bool HasItems() const { return !items_.empty(); }

 private:
  void Collect(const Element& element, const Json& json, const std::string& path,
               const Pointer& pointer) {
    const std::string prefix = path.empty() ? "" : path + "/";
    if (element.text.has_value()) {
      values_.push_back({path, pointer, !json.is_null(), &*element.text, true});
      return;
    }
    for (const Attribute& attribute : element.attributes) {
      const bool is_free =
          attribute.occurrence == Occurrence::kOptional && !attribute.when_absent.has_value();
      values_.push_back({prefix + attribute.name, pointer / attribute.name,
                         json.contains(attribute.name), &attribute.value, false, is_free});
    }
    for (const Child& child : element.children) {
      const std::string name = prefix + child.name;
      const Pointer at = pointer / child.name;
      const bool is_repeated = child.occurrence == Occurrence::kRepeated;
      const bool is_there = json.contains(child.name);
      if ((is_repeated || !is_there) && !element.schema->closes_as_empty_tag) {
        items_.push_back(
            {.path = name, .pointer = at, .is_there = is_there, .is_repeated = is_repeated});
      }
      if (is_there && !is_repeated) Collect(*child.element, json[child.name], name, at);
      for (std::size_t i = 0; is_there && is_repeated && i < json[child.name].size(); ++i) {
        Collect(*child.element, json[child.name][i], name + "[" + std::to_string(i + 1) + "]",
                at / i);
      }
    }
  }

  std::vector<Place> values_;
  std::vector<Place> items_;
};

std::string AsText(const Json& json) {
  return json.is_string() ? json.get<std::string>() : json.dump();
}

std::string RandomValue(const Place& place, Random& random) {
  static constexpr const char* kPieces[] = {"a", " ", "\t", "\n", "\r", "<",   "&",
                                            ">", "'", "\"", "é",  "€",  "]]>", "\U0001F600"};
  const Value& value = *place.value;
  if (value.type == Value::Type::kEnum) return value.texts[random() % value.texts.size()];
  if (value.type == Value::Type::kNumber) return std::to_string(random() % value.greatest);
  std::string text = place.is_text && !value.may_be_empty ? " " : "";
  const auto count = random() % 6;
  for (unsigned i = 0; i < count; ++i) text += kPieces[random() % std::size(kPieces)];
  return text;
}

std::string Edited(const std::string& bytes, const std::function<void(Editor&)>& edit) {
  Source source("test.xml", bytes);
  Editor editor(source, source.Recognise(nullptr));
  edit(editor);
  return source.Bytes();
}

Json ReadJson(const std::string& bytes) {
  const Loaded loaded = LoadBytes(bytes, "test.xml");
  return ToJson(*loaded.document, *loaded.root);
}

/// What the second text has in place of the first one's.
std::string Changed(const std::string& before, const std::string& after) {
  const auto start = std::ranges::mismatch(before, after).in1 - before.begin();
  const auto size = std::min(before.size(), after.size()) - static_cast<std::size_t>(start);
  std::size_t same = 0;
  while (same < size && before[before.size() - 1 - same] == after[after.size() - 1 - same]) ++same;
  return before.substr(static_cast<std::size_t>(start),
                       before.size() - same - static_cast<std::size_t>(start));
}

std::string RootText(const std::string& bytes) {
  Source source("test.xml", bytes);
  return TextOf(source.root());
}

/// A change does what it says, nothing else, and can be taken back, byte for byte, whatever the
/// document looks like.
TEST(Set, ChangesNothingElse) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 24; ++seed) {
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      Random random(seed);
      const std::string written = RandomDocument(document, seed);
      const std::string bytes = FormEncoder(FormOfSeed(seed))
                                    .Encode(Layout(Layout::Kind::kComments, seed).Change(written));
      const Json json = ReadJson(bytes);
      ASSERT_EQ(json, ReadJson(written));
      ASSERT_EQ(Edited(bytes, [](Editor&) {}), bytes);
      const Places places(document, json);
      for (int i = 0; i < 12; ++i) {
        const Place& place = places.Value(random);
        const std::string value = RandomValue(place, random);
        SCOPED_TRACE(place.path + "=" + Printable(value));
        Json wanted = json;
        wanted[place.pointer] = json.contains(place.pointer) && json[place.pointer].is_number()
                                    ? Json::parse(value)
                                    : Json(value);
        const std::string after =
            Edited(bytes, [&](Editor& editor) { editor.Set(place.path, value); });
        const Json read = ReadJson(after);
        if (place.is_there) {
          ASSERT_EQ(read, wanted);
          const std::string old = AsText(json[place.pointer]);
          ASSERT_EQ(Changed(RootText(bytes), RootText(after)).find_first_of("<>"),
                    std::string::npos);
          ASSERT_EQ(Edited(after, [&](Editor& editor) { editor.Set(place.path, old); }), bytes);
          if (!place.is_free) continue;
          wanted = json[place.pointer.parent_pointer()];
          wanted.erase(place.pointer.back());
          const auto unset = Edited(bytes, [&](Editor& editor) { editor.Unset(place.path); });
          ASSERT_EQ(ReadJson(unset)[place.pointer.parent_pointer()], wanted);
        } else {
          ASSERT_EQ(AsText(read[place.pointer]), value);
          if (place.is_text) continue;
          ASSERT_EQ(Edited(after, [&](Editor& editor) { editor.Unset(place.path); }), bytes);
        }
      }
      for (int i = 0; i < 6 && places.HasItems(); ++i) {
        const Place& place = places.Item(random);
        const std::size_t count = place.is_there ? json[place.pointer].size() : 0;
        const std::size_t number = place.is_repeated ? 1 + random() % (count + 1) : 0;
        const std::string path =
            place.path + (number == 0 ? "" : "[" + std::to_string(number) + "]");
        SCOPED_TRACE(path);
        const std::string after = Edited(bytes, [&](Editor& editor) { editor.Add(path); });
        Json read = ReadJson(after)[place.pointer];
        if (place.is_repeated) {
          read.erase(number - 1);
          ASSERT_EQ(read, count == 0 ? Json::array() : json[place.pointer]);
        }
        ASSERT_EQ(Edited(after, [&](Editor& editor) { editor.Remove(path); }), bytes);
      }
    }
  }
}

/// What is added stands where the library would write it, and looks as it would.
TEST(Set, KeepsTheLibrarysForm) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 10; ++seed) {
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      Random random(seed);
      const std::string bytes = RandomDocument(document, seed);
      const Places places(document, ReadJson(bytes));
      for (int i = 0; i < 10; ++i) {
        const Place& place = places.Value(random);
        const std::string value = RandomValue(place, random);
        const std::string after = Edited(bytes, [&](Editor& editor) {
          editor.Set(place.path, value);
          if (places.HasItems()) editor.Add(places.Item(random).path);
        });
        const Loaded loaded = LoadBytes(after, "test.xml");
        ASSERT_EQ(WrittenForm(document, *loaded.root), after) << place.path;
      }
    }
  }
}

// ---- texts, layouts ----------------------------------------------------------------------------

/// The catalogue with one message after changes, without what is around what may change.
std::string Catalogue(const std::string& content, const std::vector<std::string>& changes) {
  const std::string head = "<EndPointMessage SchemaVersion='1'>";
  const TempFile file(head + content + "</EndPointMessage>");
  std::vector<std::string> arguments = {"set", NameOf(file.path())};
  arguments.insert(arguments.end(), changes.begin(), changes.end());
  const Outcome outcome = RunTool(arguments);
  if (outcome.status != 0) {
    return outcome.err.substr(0, outcome.err.find(NameOf(file.path()))) +
           outcome.err.substr(std::min(outcome.err.find("xml'"), outcome.err.size()));
  }
  return outcome.out.substr(head.size(), outcome.out.size() - head.size() - 18);
}

TEST(Set, FindsTheTextThatIsRead) {
  struct Case {
    const char* before;
    const char* value;
    const char* after;
  };
  constexpr Case kCases[] = {
      {"<Description/>", "x", "<Description>x</Description>"},
      {"<Description ><!--c-->y</Description>", "x", "<Description >x<!--c-->y</Description>"},
      {"<Description> \n <!--c--></Description>", "x", "<Description>x<!--c--></Description>"},
      {"<Description>a<!--c-->b</Description>", "x", "<Description>x<!--c-->b</Description>"},
      {"<Description><![CDATA[a]]>b</Description>", "<&>",
       "<Description><![CDATA[<&>]]>b</Description>"},
      {"<Description><![CDATA[a]]></Description>", "]]>", "<Description>]]&gt;</Description>"},
      {"<Description>&#97;</Description>", "a", "<Description>&#97;</Description>"},
      {"<Description>a</Description>", " ", "<Description>&#x20;</Description>"},
      {"<Description>a</Description><Description>b</Description>", "x",
       "<Description>a</Description><Description>x</Description>"},
      {"", "x", "<Description>x</Description>"},
  };
  for (const Case& one : kCases) {
    const auto message = [](const std::string& text) {
      return "<Message ID='1'>" + text + "</Message>";
    };
    EXPECT_EQ(Catalogue(message(one.before), {std::string("Message/Description=") + one.value}),
              message(one.after));
  }
  EXPECT_EQ(Catalogue("<Message ID='1'><Description><![CDATA[a]]>b</Description></Message>",
                      {"Message/Description=]]>"}),
            "tolva: the text of 'Description' cannot hold this: a CDATA section, which cannot, "
            "begins it\n");
  std::string details = RunTool({"new", "analysis-details", "--full"}).out;
  details.insert(details.find("</customDisplayText>"), "<!--b-->");
  const TempFile file(details);
  EXPECT_EQ(
      RunTool({"set", cli::NameOf(file.path()), "violations/violation/customDisplayText="}).err,
      "tolva: the text of 'customDisplayText' cannot be empty here: the library would take what "
      "follows it for the text\n");
  EXPECT_EQ(
      Catalogue("<Message ID='1'><Content> </Content></Message>", {"--unset", "Message/Content"}),
      "tolva: 'Message/Content' has no text\n");
}

TEST(Set, FollowsTheLayout) {
  const std::string start = "\r\n\t<!-- all -->\r\n\t";
  const std::string first = "<Message\r\n\t\tID='1'> <!-- first -->\r\n\t</Message>";
  const std::string text = "<Description>Description</Description>";
  const std::string made = "\r\n\t\t<Content>Content</Content>\r\n\t\t" + text + "\r\n\t</Message>";
  const std::string end = " <!-- one -->\r\n";
  EXPECT_EQ(Catalogue(start + first + end, {"--add", "Message[ID=\"7\"]"}),
            start + first + " <!-- one -->\r\n\t<Message ID=\"7\">" + made + "\r\n");
  EXPECT_EQ(Catalogue(start + first + end, {"--add=Message[1]", "Message[1]/ID=7"}),
            "\r\n\t<Message ID=\"7\">" + made + start + first + end);
  EXPECT_EQ(Catalogue(start + "\r\n", {"--add", "Message", "Message/ID=7"}),
            start.substr(0, start.size() - 3) + "\r\n\t<Message ID=\"7\">" + made +
                start.substr(start.size() - 3) + "\r\n");
  EXPECT_EQ(Catalogue("<Message ID='1'><Content>a]=b</Content></Message>",
                      {"Message[Content=\"a]=b\"]/ID=2"}),
            "<Message ID='2'><Content>a]=b</Content></Message>");
  EXPECT_EQ(Catalogue("<Message ID='007'/><Message ID='7x'/>", {"Message[ID=\"07\"]/ID=8"}),
            "<Message ID='8'/><Message ID='7x'/>");
  EXPECT_EQ(Catalogue(start + first + end, {"--remove", "Message"}),
            "\r\n\t<!-- all -->\r\n\t" + end);
}

// ---- the command -------------------------------------------------------------------------------

class SetFile : public testing::Test {
 protected:
  SetFile() : file_(TempFile::ReadFile(TOLVA_DOCUMENTS "/policy.xml")) {}

  std::string name() const { return NameOf(file_.path()); }

  Outcome Run(const std::string& verb, std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {verb, name()});
    return RunTool(arguments);
  }

  const TempFile file_;
};

TEST_F(SetFile, RefusesWhatCannotBe) {
  struct Case {
    std::vector<std::string> changes;
    const char* message;
  };
  const Case cases[] = {
      {{"UserInterface/Mode=Normal"},
       "none of NORMAL, SILENT and UNATTENDED; did you mean 'NORMAL'"},
      {{"SchemaVersion=4294967296"}, "no number from 0 to 4294967295 in digits"},
      {{"Name=a\x01"}, "the value of 'Name' holds what is no character"},
      {{"Encryption/PrimaryKey/Key=secret\xC3"}, "tolva: the value of 'Key' holds"},
      {{"UserInterface/Mod=SILENT"}, "did you mean 'Mode'?"},
      {{"UserInterface=x"}, "'UserInterface' is an element that has no text"},
      {{"LocationArray/Location/Desc=x"},
       ": choose one, from [1] to [2], or by name, such as Location[Name=\"Office\"]"},
      {{"LocationArray/Location[Name=\"Ofice\"]/Desc=x"},
       "did you mean 'Location[Name=\"Office\"]'?"},
      {{"LocationArray/Location[Nam=\"Office\"]/Desc=x"}, "has no 'Nam'; did you mean 'Name'?"},
      {{"LocationArray/Location[2]/ILPProtection/ILPPrinter/Sid=1"},
       "; --add 'LocationArray/Location[2]/ILPProtection/ILPPrinter' adds it"},
      {{"Name[1]=x"}, "'Name' is an attribute: it takes no brackets"},
      {{"Name=good", "--unset", "Name"}, "'Name' is required"},
      {{"--unset", "BypassVersion", "--unset", "BypassVersion"}, "has no 'BypassVersion'"},
      {{"--unset", "Log"}, "'Log' is an element; --remove removes it"},
      {{"--remove", "Log/MaxLogSize"}, "is an attribute; --unset removes it"},
      {{"--remove", "LocationArray"}, "'LocationArray' is required"},
      {{"--remove", ""}, "the root element cannot be removed"},
      {{"--add", "Log"}, "'Log' is there already"},
      {{"--add", "LocationArray/Location[Name='Office']"}, "is there already"},
      {{"--add", "LocationArray/Location[4]"}, "cannot be added: there are 2"},
      {{"[]"}, "no path"},
      {{}, "needs PATH=VALUE, --unset, --add or --remove"},
      {{"--type", "ng", "Name=x"}, ":3:1: the root element is 'ILPClientConfiguration', not"},
      {{"-o", name(), "Name=x"}, "--in-place excludes --output"},
  };
  const std::string before = file_.Read();
  for (const Case& one : cases) {
    std::vector<std::string> arguments = one.changes;
    arguments.insert(arguments.begin(), "-i");
    const Outcome outcome = Run("set", arguments);
    EXPECT_EQ(outcome.status, 2) << one.message;
    EXPECT_NE(outcome.err.find(one.message), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.find("secret"), std::string::npos);
    EXPECT_EQ(outcome.out + file_.Read(), before) << one.message;
  }
}

TEST_F(SetFile, WritesInPlace) {
  const std::string before = file_.Read();
  const auto time = std::filesystem::last_write_time(file_.path()) - std::chrono::hours(1);
  std::filesystem::last_write_time(file_.path(), time);
  EXPECT_EQ(Run("set", {"-i", "UserInterface/Mode=NORMAL"}).status, 0);
  EXPECT_EQ(std::filesystem::last_write_time(file_.path()), time);  // nothing to write
  const Outcome printed = Run("set", {"UserInterface/Mode=SILENT"});
  EXPECT_EQ(file_.Read(), before);
  EXPECT_EQ(Run("set", {"-i", "UserInterface/Mode=SILENT"}).out, "");
  EXPECT_EQ(file_.Read(), printed.out);

  const TempFile other;
  std::filesystem::create_hard_link(file_.path(), other.path());
  EXPECT_EQ(Run("set", {"-i", "Name=x"}).status, 2);
  EXPECT_EQ(file_.Read(), printed.out);
  EXPECT_EQ(Run("set", {"-i", "--force", "Name=x"}).status, 0);
  EXPECT_EQ(other.Read(), printed.out);
  EXPECT_EQ(Run("get", {"Name"}).out, "x\n");
  EXPECT_THROW(ReplaceFile({.name = name()}, "what another has read", "new", false), Trouble);
  EXPECT_EQ(Run("get", {"Name"}).out, "x\n");
}

/// What the library reads stays so, and what it refuses may be repaired step by step.
TEST_F(SetFile, LeavesADocument) {
  std::string deep = "<EndPointMessage SchemaVersion='1'>";
  std::string path;
  for (int i = 0; i < 127; ++i) {
    deep += "<EndpointLocalMsg><EndPointMessage SchemaVersion='1'>";
    path += "EndpointLocalMsg/EndPointMessage/";
  }
  for (int i = 0; i < 127; ++i) deep += "</EndPointMessage></EndpointLocalMsg>";
  file_.Write(deep + "</EndPointMessage>");
  const Outcome outcome = Run("set", {"--add", path + "EndpointLocalMsg", "--add",
                                      path + "EndpointLocalMsg/EndPointMessage"});
  EXPECT_NE(outcome.err.find("the library would refuse the document: "), std::string::npos)
      << outcome.err.substr(0, 200);

  file_.Write("<ActiveDirectory><DefaultDomain Enabled='maybe'/></ActiveDirectory>");
  EXPECT_EQ(Run("set", {"-i", "DefaultDomain/Enabled=1"}).status, 0);
  EXPECT_EQ(Run("set", {"-i", "DefaultDomain/Name=x"}).status, 0);
  EXPECT_EQ(RunTool({"check", name()}).status, 0);
  for (const char* const bytes : {"", "<ActiveDirectory>", "<a/>", "\xFF\xFE<"}) {
    file_.Write(bytes);
    EXPECT_EQ(Run("set", {"-i", "DefaultDomain/Name=x"}).status, 2);
    EXPECT_EQ(Run("get", {"DefaultDomain/Name"}).status, 2);
    EXPECT_EQ(file_.Read(), bytes);
  }
}

// ---- get ---------------------------------------------------------------------------------------

TEST_F(SetFile, Gets) {
  EXPECT_EQ(Run("get", {"LocationArray/Location/Name", "policy/Log"}).out,
            "Office\nElsewhere\n<Log MaxLogSize=\"16777216\"/>\n");
  const Outcome absent = Run("get", {"LocationArray/Location[3]", "Log/MaxLogSize"});
  EXPECT_EQ(absent.status, 1);
  EXPECT_EQ(absent.out, "16777216\n");
  EXPECT_EQ(absent.err, "tolva: '" + name() + "' has no 'LocationArray/Location[3]'\n");
  EXPECT_EQ(Run("get", {"Log/MaxLogSiz"}).status, 2);

  const std::string json =
      Run("get", {"--format", "json", "LocationArray/Location[9]", "Log/MaxLogSize"}).out;
  EXPECT_EQ(Json::parse(json)["results"], Json::parse(R"([
      {"path": "LocationArray/Location[9]", "matches": []},
      {"path": "Log/MaxLogSize", "matches": [
        {"path": "Log/MaxLogSize", "line": 109, "column": 8, "offset": 5747,
         "value": 16777216}]}])"));

  // The last one counts. What absence stands for is not in the file.
  file_.Write(
      "<ICIClientConfiguration SchemaVersion='1' SN='' Name=''>"
      "<ClientSetting/><ClientSetting EnableTelemetry='0'/></ICIClientConfiguration>");
  EXPECT_EQ(Run("get", {"ClientSetting/EnableTelemetry"}).out, "0\n");
  EXPECT_EQ(Run("get", {"ClientSetting"}).out, "<ClientSetting EnableTelemetry='0'/>\n");
  EXPECT_EQ(Run("get", {"ClientSetting[1]/EnableTelemetry"}).err,
            "tolva: '" + name() + "' has no 'ClientSetting[1]/EnableTelemetry'; 0 applies\n");
  EXPECT_EQ(Run("get", {"SN"}).out, "\n");
}

}  // namespace
}  // namespace tolva::test
