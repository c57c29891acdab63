// Changes in place where folders are read-only, links lead in circles and processes are killed.
#if !defined(_WIN32)

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "cli/run.h"
#include "support/file_size_limit.h"
#include "support/files.h"

namespace tolva::test {
namespace {

namespace fs = std::filesystem;

class SetInFolder : public testing::Test {
 protected:
  SetInFolder() {
    fs::create_directory(folder_.path());
    fs::copy(TOLVA_DOCUMENTS "/active-directory.xml", File());
  }

  fs::path File() const { return folder_.path() / "file.xml"; }
  std::string Content() const { return TempFile::ReadFile(File()); }

  Outcome Set(const std::string& name, const fs::path& file) const {
    return RunTool({"set", "-i", file.string(), "DefaultDomain/Name=" + name});
  }

  const TempFile folder_;
};

TEST_F(SetInFolder, KeepsTheFileThatCannotBeReplaced) {
  const std::string before = Content();
  constexpr uid_t kNobody = 65534;
  const bool is_root = geteuid() == 0;
  ASSERT_EQ(chmod(File().c_str(), 0666) | chmod(folder_.path().c_str(), 0555), 0);
  ASSERT_TRUE(!is_root || seteuid(kNobody) == 0);
  const Outcome outcome = Set("x", File());
  ASSERT_TRUE(!is_root || seteuid(0) == 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.err.find("is not written: "), std::string::npos) << outcome.err;
  EXPECT_EQ(Content(), before);

  fs::create_symlink("loop.xml", folder_.path() / "loop.xml");
  EXPECT_EQ(Set("x", folder_.path() / "loop.xml").status, 2);
  fs::create_symlink("file.xml", folder_.path() / "link.xml");
  ASSERT_EQ(chmod(File().c_str(), 0640), 0);
  EXPECT_EQ(Set("x", folder_.path() / "link.xml").status, 0);
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "link.xml"));
  EXPECT_NE(Content(), before);
  struct stat about {};
  ASSERT_EQ(stat(File().c_str(), &about), 0);
  EXPECT_EQ(about.st_mode & 07777U, 0640U);
}

TEST_F(SetInFolder, KeepsTheFileWhenTheDiskIsFullAtAnyByte) {
  const std::string before = Content();
  const std::string longer(40, 'x');
  ASSERT_EQ(Set(longer, File()).status, 0);
  const std::string after = Content();
  for (std::size_t room = 0; room < after.size(); ++room) {
    std::ofstream(File(), std::ios::binary) << before;
    Outcome outcome;
    {
      const FileSizeLimit limit(room);
      outcome = Set(longer, File());
    }
    ASSERT_EQ(outcome.status, 2) << room;
    ASSERT_NE(outcome.err.find("is not written: "), std::string::npos) << outcome.err;
    ASSERT_EQ(Content(), before) << room;
    ASSERT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 1) << room;
  }
}

/// A process that changes the file in a loop is killed: the file is one of the two, every time.
TEST_F(SetInFolder, SurvivesAKill) {
  const std::string second(5000, 'x');
  ASSERT_EQ(Set(second, File()).status, 0);
  const std::string large = Content();
  const auto start = std::chrono::steady_clock::now();
  ASSERT_EQ(Set("first", File()).status, 0);
  const std::chrono::duration<double, std::micro> once = std::chrono::steady_clock::now() - start;
  const std::string small = Content();
  std::size_t left_over = 0;
  for (int i = 0; i < 60 || left_over < 5; ++i) {
    ASSERT_LT(i, 1000) << "the kills do not come in the middle";
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      while (Set(second, File()).status + Set("first", File()).status == 0) {
      }
      _exit(1);
    }
    usleep(static_cast<useconds_t>(once.count() * (1 + (i % 60) / 20.0)));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(Content() == small || Content() == large) << i;
    for (const auto& entry : fs::directory_iterator(folder_.path())) {
      if (entry.path().extension() == ".tmp") left_over += fs::remove(entry.path()) ? 1U : 0U;
    }
  }
}

}  // namespace
}  // namespace tolva::test

#endif
