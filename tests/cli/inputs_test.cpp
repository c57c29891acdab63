#include "cli/inputs.h"

#include <gtest/gtest.h>

#include <fstream>

#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;
namespace fs = std::filesystem;

/// A folder of documents, and of other things.
class Inputs : public testing::Test {
 protected:
  Inputs() {
    fs::create_directories(root_.path() / "b" / "deep");
    for (const char* const name : {"c.xml", "a.XML", "b/deep/d.xml", "b/notes.txt", "e.xml.bak"}) {
      std::ofstream(root_.path() / name) << name;
    }
  }

  std::string In(const std::string& name) const { return NameOf(root_.path() / PathOf(name)); }

  /// The names that are found, without the folder's, and what is reported.
  std::vector<std::string> Find(const InputOptions& options) {
    reports_.clear();
    std::vector<std::string> names;
    for (const Input& input :
         FindInputs(options, [this](const std::string& text) { reports_.push_back(text); })) {
      const fs::path within = PathOf(input.name).lexically_relative(root_.path());
      names.push_back(input.is_from_folder ? NameOf(within.generic_string()) : input.name);
    }
    return names;
  }

  const TempFile root_;
  std::vector<std::string> reports_;
};

using Names = std::vector<std::string>;

TEST_F(Inputs, AreFoundInFolders) {
  EXPECT_EQ(Find({.names = {In("")}, .is_recursive = true}),
            (Names{"a.XML", "b/deep/d.xml", "c.xml"}));
  EXPECT_EQ(reports_, Names());
  // One folder twice, by two names, is one.
  EXPECT_EQ(Find({.names = {In("b"), In("b/deep/.."), In("b/deep")}, .is_recursive = true}),
            (Names{"b/deep/d.xml"}));
  EXPECT_EQ(Find({.names = {In("b")}}), Names());
  EXPECT_EQ(reports_, (Names{"'" + In("b") + "' is a folder; -r reads the documents in it"}));
  // What is named is taken whatever it is called, and if it is not there as well.
  EXPECT_EQ(Find({.names = {"-", "none", "e.xml.bak"}, .stdin_name = "in.xml"}),
            (Names{"in.xml", "none", "e.xml.bak"}));
}

TEST_F(Inputs, LeadNowhereInCircles) {
  std::error_code error;
  fs::create_directory_symlink(root_.path(), root_.path() / "b" / "up", error);
  fs::create_symlink("loop.xml", root_.path() / "loop.xml", error);
  if (error) GTEST_SKIP() << "no symbolic links";
  EXPECT_EQ(Find({.names = {In("")}, .is_recursive = true}),
            (Names{"a.XML", "b/deep/d.xml", "c.xml", "loop.xml"}));
  EXPECT_THROW(OpenInput({.name = In("loop.xml")}), Trouble);
}

TEST_F(Inputs, ThatAreNotThere) {
  const auto ran = RunTool({"get", In("no\u009B"), "Name"});
  EXPECT_EQ(ran.err,
            "tolva: '" + In("no\\xC2\\x9B") + "' cannot be read: the file does not exist\n");
  EXPECT_EQ(ran.status, 2);
}

}  // namespace
}  // namespace tolva::test
