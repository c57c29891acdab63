// Links, modes, owners, failing system calls and killed processes.
#if !defined(_WIN32)

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <tolva/support.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "callers/folder.h"
#include "support/allocations.h"
#include "support/file_size_limit.h"
#include "support/system_faults.h"

namespace tolva::support {
namespace {

namespace fs = std::filesystem;
using test::SystemCall;
using test::SystemFault;

constexpr uid_t kNobody = 65534;

class PosixSave : public testing::Test, protected test::Folder {
 protected:
  struct stat About(const char* name) const {
    struct stat about {};
    EXPECT_EQ(stat(In(name).c_str(), &about), 0);
    return about;
  }
};

TEST_F(PosixSave, KeepsLinks) {
  fs::create_directory(In("folder"));
  fs::create_symlink("folder/file", In("first"));
  fs::create_symlink("first", In("second"));
  for (const char* const content : {"new", "newer"}) {  // a dangling link, then one that leads on
    EXPECT_TRUE(SaveBytes(content, In("second")));
    EXPECT_EQ(Content("folder/file"), content);
  }
  EXPECT_TRUE(fs::is_symlink(In("first")) && fs::is_symlink(In("second")));
  fs::create_symlink("loop", In("circle"));
  fs::create_symlink("circle", In("loop"));
  EXPECT_EQ(SaveBytes("new", In("loop")).error, 1921U);
  EXPECT_EQ(Count(), 5);
}

TEST_F(PosixSave, KeepsModeAndOwner) {
  const mode_t before = umask(027);
  EXPECT_TRUE(SaveBytes("new", In("file")));
  umask(before);
  EXPECT_EQ(About("file").st_mode & 07777U, 0640U);
  const bool is_root = geteuid() == 0;
  ASSERT_TRUE(!is_root || chown(In("file").c_str(), kNobody, 1) == 0);
  ASSERT_EQ(chmod(In("file").c_str(), 04751), 0);
  const bool has_attributes = setxattr(In("file").c_str(), "user.tolva", "x", 1, 0) == 0;
  setxattr(In("file").c_str(), "trusted.tolva", "x", 1, 0);  // which is not the user's
  EXPECT_TRUE(SaveBytes("newer", In("file")));
  EXPECT_LT(getxattr(In("file").c_str(), "trusted.tolva", nullptr, 0), 0);
  const struct stat after = About("file");
  EXPECT_EQ(after.st_mode & 07777U, 04751U);
  EXPECT_TRUE(!is_root || (after.st_uid == kNobody && after.st_gid == 1));
  char value = 0;
  EXPECT_TRUE(!has_attributes || getxattr(In("file").c_str(), "user.tolva", &value, 1) == 1);
}

/// An access list for `user`, as the system takes it: the owner and `user` may do all.
std::string AccessListFor(std::uint32_t user) {
  struct Entry {
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
  };
  const Entry entries[] = {
      {0x01, 7, ~0U}, {0x02, 7, user}, {0x04, 0, ~0U}, {0x10, 7, ~0U}, {0x20, 0, ~0U}};
  std::string list("\x02\0\0\0", 4);
  return list.append(reinterpret_cast<const char*>(entries), sizeof entries);
}

/// A file has the access list that it had, and no other.
TEST_F(PosixSave, KeepsTheAccessList) {
  constexpr const char* kName = "system.posix_acl_access";
  ASSERT_TRUE(SaveBytes("old", In("with")) && SaveBytes("old", In("without")));
  const std::string list = AccessListFor(kNobody);
  const auto set = [&list](const fs::path& path, const char* name) {
    return setxattr(path.c_str(), name, list.data(), list.size(), 0) == 0;
  };
  if (!set(In("with"), kName)) GTEST_SKIP() << "the file system has no access lists";
  ASSERT_TRUE(set(In("."), "system.posix_acl_default"));
  std::string kept(list.size(), '\0');
  EXPECT_TRUE(SaveBytes("new", In("with")));
  EXPECT_EQ(getxattr(In("with").c_str(), kName, kept.data(), kept.size()),
            static_cast<ssize_t>(list.size()));
  EXPECT_EQ(kept, list);
  EXPECT_TRUE(SaveBytes("new", In("without")));
  EXPECT_LT(getxattr(In("without").c_str(), kName, nullptr, 0), 0);
  EXPECT_EQ(About("without").st_mode & 0777U, 0644U);
}

TEST_F(PosixSave, RefusesWhatIsNotToBeReplaced) {
  ASSERT_EQ(mkfifo(In("pipe").c_str(), 0666), 0);
  const int removed = open(In("removed").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  fs::remove(In("removed"));
  fs::create_symlink("/proc/self/fd/" + std::to_string(removed), In("magic"));
  for (const fs::path& path : {In("pipe"), In("magic"), fs::path("/dev/null")}) {
    EXPECT_EQ(SaveBytes("new", path).outcome, SaveOutcome::kTargetRefused) << path;
  }
  close(removed);
  const auto root = MakeNode(&ClientConfig::ActiveDir_CreateNewInstance);
  EXPECT_EQ(Save(*root, In("Z\xFCrich")).error, 123U);

  // As somebody who may make files there, but not write this one; and not give files away.
  ASSERT_TRUE(SaveBytes("old", In("read-only")) && SaveBytes("old", In("of-others")));
  ASSERT_EQ(chmod(In("read-only").c_str(), 0444) | chmod(In("of-others").c_str(), 0666), 0);
  const bool is_root = geteuid() == 0;
  ASSERT_TRUE(!is_root || (chmod(In(".").c_str(), 0777) | seteuid(kNobody)) == 0);
  const SaveReport read_only = SaveBytes("new", In("read-only"));
  const SaveReport of_others = SaveBytes("new", In("of-others"));
  ASSERT_TRUE(!is_root || seteuid(0) == 0);
  EXPECT_EQ(read_only.outcome, SaveOutcome::kTargetRefused);
  EXPECT_EQ(Content("read-only"), "old");
  if (is_root) {
    EXPECT_EQ(of_others.message,
              "The file cannot be replaced: its owner, mode or access list cannot be kept.");
    EXPECT_EQ(Content("of-others"), "old");
  }
  EXPECT_EQ(Count(), 4);
}

std::unique_ptr<ClientConfig::IActiveDirectory> MakeDomain(const std::wstring& name) {
  auto root = MakeNode(&ClientConfig::ActiveDir_CreateNewInstance);
  root->GetDefaultDomain()->SetName(&name);
  return root;
}

/// Each system call fails in turn: the file is the old one or the new one, as the report says.
TEST_F(PosixSave, SurvivesEveryFailingCall) {
  const auto root = MakeDomain(L"new");
  ASSERT_TRUE(Save(*root, In("whole")));
  const std::string whole = Content("whole");
  using enum SystemCall;
  for (const bool as_bytes : {false, true}) {
    for (const SystemCall call :
         {kOpen, kRead, kWrite, kClose, kStat, kFsync, kRename, kFchown, kFchmod, kSetAttribute}) {
      bool has_struck = true;
      int n = 0;
      for (; has_struck; ++n) {
        ASSERT_TRUE(SaveBytes("old", In("file")));
        ASSERT_EQ(chmod(In("file").c_str(), 0600), 0);
        ASSERT_TRUE(geteuid() != 0 || chown(In("file").c_str(), kNobody, kNobody) == 0);
        setxattr(In("file").c_str(), "user.tolva", "x", 1, 0);
        SaveReport report;
        {
          const SystemFault fault(call, n, EIO);
          report = as_bytes ? SaveBytes(whole, In("file")) : Save(*root, In("file"));
          has_struck = SystemFault::HasStruck();
        }
        const bool is_new = report || report.outcome == SaveOutcome::kNotFlushed;
        ASSERT_EQ(Content("file"), is_new ? whole : "old") << n;
        const bool is_about_folder =
            report.message.find("but its folder cannot be brought") != std::string::npos;
        ASSERT_EQ(is_about_folder, report.outcome == SaveOutcome::kNotFlushed) << report.message;
        // A file that was only read may be closed as it likes.
        ASSERT_TRUE(!has_struck || !report || call == SystemCall::kClose) << n;
        ASSERT_TRUE(report || report.error == 1117) << n << ": " << report.message;
        ASSERT_EQ(Count(), 2) << n;
      }
      // The library's own calls are not seen: `Save` itself only reads.
      const bool is_used = as_bytes || call != SystemCall::kWrite;
      const bool depends = call == SystemCall::kFchown || call == SystemCall::kSetAttribute;
      EXPECT_TRUE(depends || is_used == (n > 1)) << static_cast<int>(call);
    }
  }
}

TEST_F(PosixSave, TriesAgain) {
  for (const auto& [call, error] :
       {std::pair(SystemCall::kOpen, EEXIST),  // the name is taken
        std::pair(SystemCall::kWrite, EINTR), std::pair(SystemCall::kFsync, EINTR)}) {
    const SystemFault fault(call, 0, error);
    EXPECT_TRUE(SaveBytes("new", In("file")));
    EXPECT_TRUE(SystemFault::HasStruck());
  }
}

/// Memory runs out at every point in turn.
TEST_F(PosixSave, SurvivesFailingAllocations) {
  const auto root = MakeDomain(L"new");
  const fs::path file = In("file");
  ASSERT_TRUE(SaveBytes("old", file));
  std::size_t n = 0;
  for (bool failed = true; failed; ++n) {
    SaveReport report;
    failed = test::RunsOutOfMemory(n, false, [&] { report = Save(*root, file); }) || !report;
    ASSERT_EQ(Content("file") == "old", failed) << n;
    ASSERT_EQ(Count(), 1) << n;
  }
  // Under valgrind all allocations are its own, and none fails.
  EXPECT_TRUE(n > 30 || test::CountAllocations().calls == 0) << n;
}

TEST_F(PosixSave, TellsAFullDisk) {
  const auto root = MakeDomain(L"new");
  ASSERT_TRUE(Save(*root, In("file")));
  const std::string whole = Content("file");
  ASSERT_TRUE(SaveBytes("old", In("file")));
  std::vector<SaveReport> reports;
  for (std::size_t room = 0; room < whole.size(); ++room) {
    const test::FileSizeLimit limit(room);
    reports.push_back(Save(*root, In("file")));
    reports.push_back(SaveBytes(whole, In("file")));
    ASSERT_EQ(Content("file"), "old") << room;
    ASSERT_EQ(Count(), 1) << room;
  }
  {
    const SystemFault fault(SystemCall::kClose, 0, EIO);  // as some file systems tell it
    reports.push_back(SaveBytes("new", In("file")));
  }
  for (const SaveReport& report : reports) {
    EXPECT_EQ(report.outcome, SaveOutcome::kNotWritten);
    EXPECT_NE(report.error, 0U);
  }
  EXPECT_EQ(Content("file"), "old");
}

/// A process that saves in a loop is killed: the file is one of the two, every time.
TEST_F(PosixSave, SurvivesAKill) {
  const auto first = MakeDomain(L"first");
  const std::string second(5000, 'x');
  ASSERT_TRUE(Save(*first, In("first")) && Save(*first, In("file")));
  std::size_t left_over = 0;
  for (int i = 0; i < 100; ++i) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (bool saved = true;;) {
        saved = saved && SaveBytes(second, In("file")) && Save(*first, In("file"));
      }
    }
    usleep(static_cast<useconds_t>(1000 + i * 137));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string content = Content("file");
    ASSERT_TRUE(content == Content("first") || content == second) << i;
    for (const auto& entry : fs::directory_iterator(In("."))) {
      if (entry.path().extension() == ".tmp") left_over += fs::remove(entry.path()) ? 1U : 0U;
    }
  }
  EXPECT_GT(left_over, 10U);  // the kills come in the middle
}

}  // namespace
}  // namespace tolva::support

#endif
