// The tool as a whole: statuses, streams and options that verbs have in common.
#include <gtest/gtest.h>

#include <csignal>
#include <nlohmann/json.hpp>

#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/places.h"
#include "cli/progress.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;

TEST(Tool, SaysHowItIsUsed) {
  const Outcome help = RunTool({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.err, "");
  for (const char* const verb : {"check", "diff", "explain", "schema", "new", "completion"}) {
    EXPECT_NE(help.out.find("\n  " + std::string(verb) + " "), std::string::npos) << verb;
    const Outcome own = RunTool({verb, "--help"});
    EXPECT_EQ(own.status, 0);
    EXPECT_TRUE(own.out.starts_with("Usage: tolva " + std::string(verb))) << own.out;
    EXPECT_NE(own.out.find("Examples:"), std::string::npos) << verb;
  }
  EXPECT_EQ(RunTool({"--version"}).out.substr(0, 6), "tolva ");
  EXPECT_EQ(RunTool({}).status, 2);
  EXPECT_EQ(RunTool({}).out, "");
}

TEST(Tool, SaysWhatIsWrongWithACommandLine) {
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"expain"}, "there is no verb 'expain'; did you mean 'explain'?"},
      {{"explain", "--fomat=json"}, "there is no option '--fomat=json'; did you mean '--format'?"},
      {{"explain", "--format", "xml"}, "--format: 'xml' is none of text and json"},
      {{"explain", "-v"}, "there is no option '-v'"},
      {{"explain", "-t", "--depth", "\x1B"}, "--depth: '\\x1B' is no number from 1 to 999"},
      {{"new"}, "'tolva new' needs DOCUMENT"},
      {{"new", "policy", "-o"}, "--output needs FILE"},
      {{"new", "policy", "-o", "a", "-o", "b"}, "--output is given more than once"},
      {{"new", "policy", "ng"}, "there is no place for the argument 'ng'"},
      {{"new", "policy", "check"}, "there is no place for the argument 'check'"},
      {{"new", "policy", "new"}, "there is no place for the argument 'new'"},
      {{"explain", "explain"}, "there is no document 'explain'; "},
      {{"explain", "--", "--tree"}, "there is no document '--tree'; "},
      {{"explain", "\x1B[31m\xFF"}, "there is no document '\\x1B[31m\\xFF'; "}};
  for (const auto& [arguments, fault] : cases) {
    const Outcome outcome = RunTool(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    const bool is_front = fault.ends_with("; ");
    EXPECT_EQ(outcome.err.substr(0, is_front ? fault.size() + 7 : outcome.err.find('\n')),
              "tolva: " + fault);
  }
}

TEST(Tool, ColoursOnRequest) {
  EXPECT_EQ(RunTool({"explain", "policy"}).out.find('\x1B'), std::string::npos);
  const std::string coloured = RunTool({"explain", "policy", "--color=always"}).out;
  EXPECT_NE(coloured.find('\x1B'), std::string::npos);
}

/// Whatever the width, no line is longer, unless a single word is.
TEST(Explain, FitsTheTerminal) {
  for (const std::size_t width : {40U, 60U, 80U, 200U}) {
    for (const Document& document : Documents()) {
      ForEachPlace(document, [&](const Place& place) {
        const std::string path = std::string(document.name) + "/" + place.path;
        const Outcome outcome = RunTool({"explain", path}, width);
        EXPECT_EQ(outcome.status, 0);
        std::string_view rest = outcome.out;
        while (!rest.empty()) {
          const std::string_view line = rest.substr(0, rest.find('\n'));
          rest.remove_prefix(line.size() + 1);
          const std::size_t start = line.find_first_not_of(' ');
          const bool is_word = line.find(' ', start) == std::string_view::npos;
          EXPECT_TRUE(Columns(line) <= width || is_word) << width << ": " << line;
          EXPECT_FALSE(line.ends_with(' ')) << line;
        }
      });
    }
  }
}

TEST(Explain, TellsProgramsEverything) {
  const auto json = [](const std::vector<std::string>& arguments) {
    std::vector<std::string> all = {"explain", "--format=json"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return Json::parse(RunTool(all).out);
  };
  EXPECT_EQ(json({})["documents"].size(), 11U);
  const Json mode = json({"policy/UserInterface/Mode"});
  EXPECT_EQ(mode["version"], 1);
  EXPECT_EQ(mode["kind"], "attribute");
  EXPECT_EQ(mode["values"], Json::array({"NORMAL", "SILENT", "UNATTENDED"}));
  const Json root = json({"policy", "--tree"});
  EXPECT_EQ(root["attributes"].size(), 6U);
  EXPECT_EQ(root["children"][0]["children"][0]["attributes"][0]["namesItem"], true);
  EXPECT_FALSE(json({"policy"})["children"][0].contains("children"));
  EXPECT_EQ(json({"proxy/ProxySetting/PACFile"})["attributes"][0]["name"], "URL");
  EXPECT_EQ(json({"--find", "password"})["places"].size(), 4U);
  EXPECT_EQ(RunTool({"explain", "ng", "--find", "password"}).status, 1);
}

TEST(Destination, KeepsWhatIsThere) {
  const TempFile file;
  const std::string path = NameOf(file.path());
  EXPECT_EQ(RunTool({"new", "ci", "-o", path}).status, 0);
  const std::string made = RunTool({"new", "ci", "-o", "-"}).out;
  const auto refused = RunTool({"new", "ng", "-o", path});
  EXPECT_EQ(refused.err, "tolva: '" + path + "' exists; --force replaces it\n");
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(RunTool({"new", "ng", "-o", path + "/x"}).status, 2);
  EXPECT_EQ(file.Read(), made);
  EXPECT_EQ(RunTool({"new", "ng", "-o", path, "--force"}).status, 0);
  EXPECT_NE(file.Read(), made);
}

/// A stream whose reader has gone, or whose disk is full.
class BrokenStream final : public Stream {
 public:
  explicit BrokenStream(bool is_closed) : is_closed_(is_closed) {}
  void Write(std::string_view /*text*/) override {
    if (is_closed_) throw ClosedPipe();
    throw Trouble("the output cannot be written");
  }

 private:
  const bool is_closed_;
};

TEST(Tool, EndsQuietlyWhenNobodyReads) {
  TextOutput err;
  BrokenStream closed(true);
  EXPECT_EQ(cli::Run({"explain"}, closed, err), 2);
  EXPECT_EQ(err.text(), "");
  BrokenStream full(false);
  EXPECT_EQ(cli::Run({"explain"}, full, err), 2);
  EXPECT_EQ(err.text(), "tolva: the output cannot be written\n");
  EXPECT_EQ(cli::Run({"explain"}, full, full), 2);
}

TEST(Progress, IsALineOnATerminal) {
  TerminalOutput terminal;
  Progress progress(terminal, {.bytes = 200, .files = 3}, std::chrono::seconds(0));
  progress.Add({.bytes = 50, .files = 1});
  EXPECT_EQ(terminal.text(), "\r\x1B[K25 %, 1 of 3 files");
  terminal.Clear();
  progress.StepAside([&] { terminal.Write("text"); });
  progress.StepAside([&] { terminal.Write("more"); });
  EXPECT_EQ(terminal.text(), "\r\x1B[Ktextmore");

  Progress later(terminal, {}, std::chrono::hours(1));
  TextOutput file;
  Progress unseen(file, {}, std::chrono::seconds(0));
  for (Progress* const silent : {&later, &unseen}) silent->Add({.bytes = 1});
  EXPECT_EQ(terminal.text(), "\r\x1B[Ktextmore");
  EXPECT_EQ(file.text(), "");
}

#if !defined(_WIN32)
TEST(Interrupt, EndsAReadAndNotTheProcess) {
  TerminalOutput terminal;
  Progress progress(terminal, {});
  const auto stream = Watch(*StreamOf("text").Get(), progress);
  char byte = 0;
  ULONG count = 0;
  CatchInterrupt();
  EXPECT_EQ(stream->Read(&byte, 1, &count), S_OK);
  std::raise(SIGINT);
  EXPECT_EQ(ReasonOf(stream->Read(&byte, 1, &count)), "it was interrupted");
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGTERM, SIG_DFL);
  CatchInterrupt();
  EXPECT_FALSE(IsInterrupted());
}
#endif

}  // namespace
}  // namespace tolva::test
