#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <random>

#include "cli/edit.h"
#include "cli/layout.h"
#include "cli/run_on.h"

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

  std::vector<Place> values;
  std::vector<Place> items;

 private:
  void Collect(const Element& element, const Json& json, const std::string& path,
               const Pointer& pointer) {
    const std::string prefix = path.empty() ? "" : path + "/";
    if (element.text.has_value()) {
      values.push_back({path, pointer, !json.is_null(), &*element.text, true});
      return;
    }
    for (const Attribute& attribute : element.attributes) {
      const bool is_free =
          attribute.occurrence == Occurrence::kOptional && !attribute.when_absent.has_value();
      values.push_back({prefix + attribute.name, pointer / attribute.name,
                        json.contains(attribute.name), &attribute.value, false, is_free});
    }
    for (const Child& child : element.children) {
      const std::string name = prefix + child.name;
      const Pointer at = pointer / child.name;
      const bool is_repeated = child.occurrence == Occurrence::kRepeated;
      const bool is_there = json.contains(child.name);
      if ((is_repeated || !is_there) && !element.schema->closes_as_empty_tag) {
        items.push_back({name, at, is_there, nullptr, false, false, is_repeated});
      }
      if (is_there && !is_repeated) Collect(*child.element, json[child.name], name, at);
      for (std::size_t i = 0; is_there && is_repeated && i < json[child.name].size(); ++i) {
        Collect(*child.element, json[child.name][i], name + "[" + std::to_string(i + 1) + "]",
                at / i);
      }
    }
  }
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

/// A change does what it says, nothing else, and can be taken back, byte for byte, whatever the
/// document looks like. A change after others does what it does alone. In a document that looks as
/// the library writes it, what is added stands where the library would write it, and looks as it
/// would.
TEST(Set, ChangesNothingElse) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 40; ++seed) {
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      Random random(seed);
      const std::string written = RandomDocument(document, seed);
      const bool is_as_written = seed % 4 == 3;
      bool has_removed = false;  // removing an element may leave line ends
      std::string bytes = written;
      if (!is_as_written) {
        bytes = FormEncoder(FormOfSeed(seed))
                    .Encode(Layout(Layout::Kind::kComments, seed).Change(written));
      }
      Source source("test.xml", bytes);
      Editor editor(source, document);
      ASSERT_EQ(source.Bytes(), bytes);
      std::string now = bytes;
      Json json = ReadJson(now);
      ASSERT_EQ(json, ReadJson(written));
      for (int i = 0; i < 20; ++i) {
        const Places places(document, json);
        const bool is_item = !places.items.empty() && random() % 3 == 0;
        const std::vector<Place>& all = is_item ? places.items : places.values;
        const Place& place = all[random() % all.size()];
        const Pointer& at = place.pointer;
        const std::size_t count = place.is_repeated && place.is_there ? json[at].size() : 0;
        const std::size_t number = place.is_repeated ? 1 + random() % (count + 1) : 0;
        const bool may_remove =
            is_item ? is_as_written && number != 0 && number <= count : place.is_free;
        const bool removes = may_remove && place.is_there && i >= 10 && random() % 4 == 0;
        const std::string path =
            place.path + (number == 0 ? "" : "[" + std::to_string(number) + "]");
        const std::string value = is_item ? "" : RandomValue(place, random);
        SCOPED_TRACE((removes ? "without " : "") + path + "=" + Printable(value));
        const auto change = [&](Editor& with) {
          if (is_item) return removes ? with.Remove(path) : with.Add(path);
          removes ? with.Unset(path) : with.Set(path, value);
        };
        const auto undo = [&](Editor& with) {
          if (is_item) return with.Remove(path);
          place.is_there ? with.Set(path, AsText(json[at])) : with.Unset(path);
        };
        const std::string before = std::exchange(now, Edited(now, change));
        change(editor);
        ASSERT_EQ(source.Bytes(), now);
        has_removed = has_removed || (is_item && removes);
        const bool can_be_undone =
            !removes && !has_removed && (is_item || place.is_there || !place.is_text);
        if (can_be_undone) {
          ASSERT_EQ(Edited(now, undo), before);
        }

        Json wanted = std::exchange(json, ReadJson(now));
        if (place.is_repeated) {
          Json items = (removes ? wanted : json)[at];
          items.erase(number - 1);
          ASSERT_EQ(items, (removes ? json : wanted).value(at, Json::array()));
        } else if (removes) {
          wanted[at.parent_pointer()].erase(at.back());
          ASSERT_EQ(json, wanted);
        } else if (!is_item) {
          ASSERT_EQ(AsText(json[at]), value);
          if (place.is_there) {
            wanted[at] = json[at];
            ASSERT_EQ(json, wanted);
          }
        }
        if (!is_as_written || has_removed) continue;
        ASSERT_EQ(WrittenForm(document, *LoadBytes(now, "test.xml").root), now);
      }
    }
  }
}

// ---- texts, layouts ----------------------------------------------------------------------------

/// The catalogue with one message after changes, without what is around what may change.
std::string Catalogue(const std::string& content, const std::vector<std::string>& changes) {
  const std::string head = "<EndPointMessage SchemaVersion='1'>";
  const TempFile file(head + content + "</EndPointMessage>");
  const Outcome outcome = RunOn(file, "set", changes);
  if (outcome.status != 0) {
    return outcome.err.substr(0, outcome.err.find(NameOf(file.path()))) +
           outcome.err.substr(std::min(outcome.err.find("xml'"), outcome.err.size()));
  }
  return outcome.out.substr(head.size(), outcome.out.size() - head.size() - 18);
}

TEST(Set, FindsTheTextThatIsRead) {
  constexpr std::array<const char*, 3> kCases[] = {
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
  const auto message = [](const std::string& text) {
    return "<Message ID='1'>" + text + "</Message>";
  };
  for (const auto& [before, value, after] : kCases) {
    EXPECT_EQ(Catalogue(message(before), {std::string("Message/Description=") + value}),
              message(after));
  }
  EXPECT_EQ(
      Catalogue(message("<Description><![CDATA[a]]>b</Description>"), {"Message/Description=]]>"}),
      "tolva: the text of 'Description' cannot hold this: a CDATA section, which cannot, "
      "begins it\n");
  std::string details = RunTool({"new", "analysis-details", "--full"}).out;
  details.insert(details.find("</customDisplayText>"), "<!--b-->");
  EXPECT_EQ(
      RunOn(TempFile(details), "set", {"violations/violation/customDisplayText="}).err,
      "tolva: the text of 'customDisplayText' cannot be empty here: the library would take what "
      "follows it for the text\n");
  EXPECT_EQ(Catalogue(message("<Content> </Content>"), {"--unset", "Message/Content"}),
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
  EXPECT_EQ(Catalogue("<Message ID='1'/>",
                      {"Message/ID=2", "--add", "Message", "--remove", "Message[1]"}),
            "<Message ID=\"0\"><Content>Content</Content>" + text + "</Message>");
  EXPECT_EQ(Catalogue(start + first + end, {"--remove", "Message"}),
            "\r\n\t<!-- all -->\r\n\t" + end);
}

// ---- the command -------------------------------------------------------------------------------

class SetFile : public testing::Test {
 protected:
  SetFile() : file_(TempFile::ReadFile(TOLVA_DOCUMENTS "/policy.xml")) {}

  std::string name() const { return NameOf(file_.path()); }

  Outcome Run(const std::string& verb, const std::vector<std::string>& arguments) const {
    return RunOn(file_, verb, arguments);
  }

  const TempFile file_;
};

TEST_F(SetFile, RefusesWhatCannotBe) {
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"SchemaVersion=4294967296"}, "no number from 0 to 4294967295 in digits"},
      {{"Name=a\x01"}, "the value of 'Name' holds what is no character"},
      {{"Encryption/PrimaryKey/Key=secret\xC3"}, "tolva: the value of 'Key' holds"},
      {{"UserInterface/Mod=SILENT"}, "did you mean 'Mode'?"},
      {{"UserInterface=x"}, "'UserInterface' is an element that has no text"},
      {{"LocationArray/Location[Name=\"Ofice\"]/Desc=x"},
       "did you mean 'Location[Name=\"Office\"]'?"},
      {{"LocationArray/Location[Nam=\"Office\"]/Desc=x"}, "has no 'Nam'; did you mean 'Name'?"},
      {{"Name[1]=x"}, "'Name' is an attribute: it takes no brackets"},
      {{"Name=good", "--unset", "Name"}, "'Name' is required"},
      {{"--remove", "LocationArray"}, "is required"},
      {{"--unset", "BypassVersion", "--unset", "BypassVersion"}, "has no 'BypassVersion'"},
      {{"--unset", "Log"}, "'Log' is an element; --remove removes it"},
      {{"--remove", "Log/MaxLogSize"}, "is an attribute; --unset removes it"},
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
  for (auto [arguments, message] : cases) {
    arguments.insert(arguments.begin(), "-i");
    const Outcome outcome = Run("set", arguments);
    EXPECT_EQ(outcome.status, 2) << message;
    EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.find("secret"), std::string::npos);
    EXPECT_EQ(outcome.out + file_.Read(), before) << message;
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
  const Outcome refused = Run("set", {"-i", "Name=x"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_NE(refused.err.find("is not written: the file cannot be replaced"), std::string::npos);
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
