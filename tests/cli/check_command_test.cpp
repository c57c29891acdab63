// The verb `check` as its users see it: statuses, formats, folders, limits.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>

#include "cli/check_findings.h"
#include "cli/check_formats.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr const char* kGood =
    "<ActiveDirectory><DefaultDomain Enabled='1' Name='x'/></ActiveDirectory>";
constexpr const char* kWarned =
    "<ActiveDirectory>\n<DefaultDomain Enabled='1' Name='x' name='y'/>stray</ActiveDirectory>";
constexpr const char* kBad = "<ActiveDirectory><DefaultDomain Enabled='one'/></ActiveDirectory>";

/// A folder with documents.
class Checked : public testing::Test {
 protected:
  Checked() {
    fs::create_directories(folder_.path() / "deep");
    Add("1-bad.xml", kBad);
    Add("2-warned.xml", kWarned);
    Add("3-foreign.xml", "<html/>");
    Add("4-foreign.xml", "<!DOCTYPE html><html/>");
    Add("deep/good.xml", kGood);
  }

  std::string In(const std::string& name) const {
    return WithSlashes(cli::NameOf(folder_.path())) + "/" + name;
  }

  void Add(const std::string& name, std::string_view text) const {
    std::ofstream(folder_.path() / cli::PathOf(name), std::ios::binary) << text;
  }

  /// The output, without the folder's name.
  Outcome Check(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "check");
    Outcome outcome = RunTool(arguments);
    for (std::string* const text : {&outcome.out, &outcome.err}) {
      *text = WithSlashes(*text);
      for (std::size_t at = 0; (at = text->find(In(""), at)) != std::string::npos;) {
        text->erase(at, In("").size());
      }
    }
    return outcome;
  }

  const TempFile folder_;

 private:
  /// Paths as they are written elsewhere than on Windows, in JSON too.
  static std::string WithSlashes(const std::string& text) {
    static const std::regex kSeparator(R"re(\\\\|\\(?!"))re");
    return std::regex_replace(text, kSeparator, "/");
  }
};

TEST_F(Checked, TellsWhatItFinds) {
  const std::string bad =
      "1-bad.xml:1:42: error: Enabled=\"one\" is no number from 0 to 2147483647 in digits "
      "[bad-number]\n"
      "1-bad.xml:1:18: error: 'DefaultDomain' needs the attribute 'Name' [missing-attribute]\n";
  const std::string warned =
      "2-warned.xml:2:37: warning: attribute 'name' of 'DefaultDomain' is not known and ignored; "
      "did you mean 'Name'? [unknown-attribute]\n"
      "2-warned.xml:2:47: warning: text in 'ActiveDirectory' is ignored [text-ignored]\n";
  const Outcome all = Check({"-r", In("")});
  EXPECT_EQ(all.out, bad + warned + "3 files: 2 errors, 2 warnings; 2 skipped\n");
  EXPECT_EQ(all.err, "");
  EXPECT_EQ(all.status, 1);
  EXPECT_EQ(Check({In("2-warned.xml")}).status, 0);
  EXPECT_EQ(Check({"--strict", In("2-warned.xml")}).status, 1);
  EXPECT_EQ(Check({"--strict", In("deep/good.xml")}).status, 0);
  EXPECT_EQ(Check({"-r", "--strict", In("")}).out.substr(bad.size() + warned.size()),
            "3-foreign.xml:1:1: error: the root element 'html' is not that of a document of the "
            "agent [unknown-root]\n"
            "4-foreign.xml:1:1: error: the library refuses documents with a document type "
            "declaration [dtd]\n"
            "5 files: 4 errors, 2 warnings\n");
}

TEST_F(Checked, TellsOnceWhereADocumentEnds) {
  std::string deep = "<ActiveDirectory>";
  for (int i = 0; i < 256; ++i) deep += "<a>";
  const std::string declared = "<?xml version='1.0' ";
  const std::pair<std::string, const char*> cases[] = {
      {deep, "1:783: error: more than 256 elements are open [too-deep]"},
      {"<ActiveDirectory><a></b>",
       "1:21: error: the end tag 'b' does not match the start tag 'a' [not-well-formed]"},
      {declared + "encoding='EBCDIC'?><ActiveDirectory/>",
       "1:31: error: the encoding 'EBCDIC' is not supported; UTF-8, UTF-16, ISO-8859-1 and "
       "US-ASCII are [encoding]"},
      {"<?xml version='1.0.0' ?><ActiveDirectory/>",
       "1:16: error: the XML declaration is malformed here [not-well-formed]"},
      {declared + "standalone='maybe' ?><ActiveDirectory/>",
       "1:33: error: the XML declaration is malformed here [not-well-formed]"},
      {"<ActiveDirectory>\n<a b='\xFF'/>",
       "2:7: error: the bytes that follow here are no character of UTF-8 [encoding]"},
  };
  for (const auto& [text, finding] : cases) {
    Add("x.xml", text);
    EXPECT_EQ(Check({"--ignore", "unknown-element", In("x.xml")}).out,
              std::string("x.xml:") + finding + "\n1 file: 1 error, 0 warnings\n");
  }
}

TEST_F(Checked, TellsNoMoreThanIsWanted) {
  const std::string bad = In("1-bad.xml");
  const Outcome none = Check({"--ignore", "bad-number", "--ignore=missing-attribute", bad});
  EXPECT_EQ(none.out, "1 file: 0 errors, 0 warnings\n");
  EXPECT_EQ(none.status, 0);
  EXPECT_NE(Check({"--ignore", "bad-numbr", bad}).err.find("bad-numbr"), std::string::npos);
  const Outcome quiet = Check({"-q", bad});
  EXPECT_EQ(quiet.out + quiet.err, "");
  EXPECT_EQ(quiet.status, 1);
}

TEST_F(Checked, TellsTheRestWhenAFileCannotBeRead) {
  const Outcome outcome = Check({"--format=json", In("none.xml"), In("1-bad.xml"), In("deep")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 2);
  const Json json = Json::parse(outcome.out);
  EXPECT_EQ(json["notRead"], Json::parse(R"([
      {"message": "'deep' is a folder; -r reads the documents in it"},
      {"message": "'none.xml' cannot be read: the file does not exist", "file": "none.xml"}])"));
  EXPECT_EQ(json["errors"], 2);
}

/// Whatever a document and its name contain.
TEST_F(Checked, SendsNothingRawToATerminal) {
  // U+202E, which turns the direction of writing.
  const std::string turn = cli::ToUtf8(std::wstring(1, wchar_t{0x202E}));
  const std::string name = "evil\u009B" + turn + ".xml";
  Add("evil.xml",
      "<ActiveDirectory><DefaultDomain Enabled='&#x9B;&#x202E;x&#10;' "
      "Name='x'/></ActiveDirectory>");
  Add(name, "<ActiveDirectory><DefaultDomain Enabled='1' Name='x' \u0085='1'/></ActiveDirectory>");
  Add("long.xml", "<ActiveDirectory><" + std::string(5000, 'n') + "/></ActiveDirectory>");
  for (const std::string& format : cli::CheckFormats()) {
    const std::string out =
        Check({"--format", format, In("evil.xml"), In(name), In("long.xml")}).out;
    // See WithSlashes.
    EXPECT_TRUE(format != "text" || out.find("Enabled=\"/xC2/x9B") != std::string::npos) << out;
    for (const std::string& raw :
         {std::string("\u0085"), std::string("\u009B"), turn, std::string(67, 'n')}) {
      EXPECT_EQ(out.find(raw), std::string::npos) << format;
    }
  }
}

TEST_F(Checked, HasAFormForEachProgram) {
  const Json sarif = Json::parse(Check({"--format=sarif", "-r", In("")}).out);
  const Json& run = sarif["runs"][0];
  EXPECT_EQ(run["tool"]["driver"]["rules"].size(), cli::Codes().size());
  ASSERT_EQ(run["results"].size(), 4U);
  for (const Json& result : run["results"]) {
    const std::size_t rule = result["ruleIndex"];
    EXPECT_EQ(run["tool"]["driver"]["rules"][rule]["id"], result["ruleId"]);
  }
  EXPECT_EQ(run["results"][2]["locations"][0]["physicalLocation"]["region"]["startLine"], 2);
  Add("a,b%:\xC3\xA9.xml", kBad);
  const std::string github = Check({"--format=github", In("a,b%:\xC3\xA9.xml")}).out;
  EXPECT_NE(github.find("a%2Cb%25%3A\xC3\xA9.xml,line=1,col=42,title=bad-number::Enabled="),
            std::string::npos);
  const Json bad = Json::parse(Check({"--format=sarif", In("a,b%:\xC3\xA9.xml")}).out);
  const Json& place = bad["runs"][0]["results"][0]["locations"][0]["physicalLocation"];
  const std::string uri = place["artifactLocation"]["uri"];
  EXPECT_TRUE(uri.ends_with("/a,b%25%3A%C3%A9.xml")) << uri;
  const std::string junit = Check({"--format=junit", "-r", In("")}).out;
  EXPECT_NE(junit.find("<testcase classname=\"deep/good.xml\" name=\"check\"/>"),
            std::string::npos);
  EXPECT_NE(junit.find("<failure type=\"bad-number\" message=\"Enabled=&quot;one&quot; is"),
            std::string::npos);
}

/// Many files at once come in their order, and one that has much to tell does not mix with others.
TEST_F(Checked, KeepsTheOrderOfTheFiles) {
  std::string much = "<ActiveDirectory>";
  for (int i = 0; i < 10000; ++i) much += "\n<Unknown/>";
  Add("0-much.xml", much);
  std::vector<std::string> names = {"check"};
  for (int i = 0; i < 200; ++i) names.push_back(In(i % 50 == 0 ? "0-much.xml" : "1-bad.xml"));
  const std::string much_told = RunTool({"check", In("0-much.xml")}).out;
  const std::string bad_told = RunTool({"check", In("1-bad.xml")}).out;
  std::string expected;
  for (int i = 0; i < 200; ++i) {
    const std::string& told = i % 50 == 0 ? much_told : bad_told;
    expected += told.substr(0, told.rfind('\n', told.size() - 2) + 1);
  }
  EXPECT_EQ(RunTool(names).out, expected + "200 files: 396 errors, 40000 warnings\n");
}

}  // namespace
}  // namespace tolva::test
