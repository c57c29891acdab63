// The verb `check` as its users see it: statuses, formats, folders, limits.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/check_findings.h"
#include "cli/check_formats.h"
#include "cli/run.h"
#include "cli/text.h"
#include "support/files.h"

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
  static std::string WithSlashes(std::string_view text) {
    std::string result;
    while (!text.empty()) {
      const bool is_escaped = text.starts_with("\\\\");
      const bool is_separator = is_escaped || (text[0] == '\\' && !text.starts_with("\\\""));
      result += is_separator ? '/' : text[0];
      text.remove_prefix(is_escaped ? 2 : 1);
    }
    return result;
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
  Add("deep.xml", deep);
  Add("open.xml", "<ActiveDirectory><a></b>");
  Add("code.xml", "<?xml version='1.0' encoding='EBCDIC'?><ActiveDirectory/>");
  Add("version.xml", "<?xml version='1.0.0' ?><ActiveDirectory/>");
  Add("alone.xml", "<?xml version='1.0' standalone='maybe' ?><ActiveDirectory/>");
  Add("bytes.xml", "<ActiveDirectory>\n<a b='\xFF'/>");
  const Outcome outcome =
      Check({"--ignore", "unknown-element", In("deep.xml"), In("open.xml"), In("code.xml"),
             In("version.xml"), In("alone.xml"), In("bytes.xml")});
  EXPECT_EQ(
      outcome.out,
      "deep.xml:1:783: error: more than 256 elements are open [too-deep]\n"
      "open.xml:1:21: error: the end tag 'b' does not match the start tag 'a' [not-well-formed]\n"
      "code.xml:1:31: error: the encoding 'EBCDIC' is not supported; UTF-8, UTF-16, "
      "ISO-8859-1 and US-ASCII are [encoding]\n"
      "version.xml:1:16: error: the XML declaration is malformed here [not-well-formed]\n"
      "alone.xml:1:33: error: the XML declaration is malformed here [not-well-formed]\n"
      "bytes.xml:2:7: error: the bytes that follow here are no character of UTF-8 "
      "[encoding]\n"
      "6 files: 6 errors, 0 warnings\n");
}

TEST_F(Checked, TellsNoMoreThanIsWanted) {
  const std::string bad = In("1-bad.xml");
  EXPECT_EQ(Check({"--ignore", "bad-number", "--ignore=missing-attribute", bad}).out,
            "1 file: 0 errors, 0 warnings\n");
  EXPECT_EQ(Check({"--ignore", "bad-number", "--ignore=missing-attribute", bad}).status, 0);
  EXPECT_NE(Check({"--ignore", "bad-numbr", bad}).err.find("bad-numbr"), std::string::npos);
  const Outcome limited = Check({"--max-findings", "1", "-r", In("")});
  EXPECT_EQ(std::ranges::count(limited.out, '\n'), 2);
  EXPECT_NE(limited.out.find("2 errors, 2 warnings (1 shown)"), std::string::npos);
  const Outcome quiet = Check({"-q", bad});
  EXPECT_EQ(quiet.out + quiet.err, "");
  EXPECT_EQ(quiet.status, 1);
  const Outcome other = Check({"--type", "policy", In("deep/good.xml")});
  EXPECT_EQ(other.out.substr(0, other.out.find('\n')),
            "deep/good.xml:1:1: error: the root element is 'ActiveDirectory', not "
            "'ILPClientConfiguration' [unknown-root]");
}

TEST_F(Checked, TellsTheRestWhenAFileCannotBeRead) {
  const Outcome outcome = Check({In("none.xml"), In("1-bad.xml"), In("deep")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.out.find("1 file: 2 errors, 0 warnings; 2 not read"), std::string::npos);
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 2);
  const Json json = Json::parse(Check({"--format=json", In("none.xml"), In("1-bad.xml")}).out);
  EXPECT_EQ(json["version"], 1);
  EXPECT_EQ(json["findings"][0]["path"], "DefaultDomain/Enabled");
  EXPECT_EQ(json["findings"][0]["offset"], 41);
  EXPECT_EQ(json["notRead"][0]["file"], "none.xml");
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
    if (format == "text") {
      EXPECT_NE(out.find("Enabled=\"/xC2/x9B"), std::string::npos) << out;  // see WithSlashes
    }
    EXPECT_EQ(out.find("\u0085"), std::string::npos) << format;
    EXPECT_EQ(out.find("\u009B"), std::string::npos) << format;
    EXPECT_EQ(out.find(turn), std::string::npos) << format;
    EXPECT_EQ(out.find("nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn"),
              std::string::npos)
        << format;
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
  const std::string uri =
      bad["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"];
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
  Add("deep/0-much.xml", much);
  Add("deep/1-much.xml", much);
  std::vector<std::string> names;
  names.reserve(202);
  for (int i = 0; i < 200; ++i) names.push_back(In(i % 50 == 0 ? "deep/1-much.xml" : "1-bad.xml"));
  names.insert(names.begin(), In("deep/0-much.xml"));
  names.insert(names.begin(), "check");
  const std::string once = RunTool(names).out;
  std::vector<std::string> order;
  std::uint64_t lines = 0;
  for (std::size_t at = 0; at < once.size(); at = once.find('\n', at) + 1, ++lines) {
    const std::string name = once.substr(at, once.find("xml:", at) - at);
    if (order.empty() || order.back() != name) order.push_back(name);
  }
  EXPECT_EQ(lines, 5 * 10001 + 196 * 2 + 1U);
  EXPECT_EQ(order.size(), 1 + 1 + 2 * 4U);  // the first two, alternating, and the last line
}

}  // namespace
}  // namespace tolva::test
