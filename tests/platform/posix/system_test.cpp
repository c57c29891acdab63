// The Windows interfaces of platform/posix: error codes, streams, text.
#include "platform/posix/system.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/com_ptr.h"
#include "platform/open_to_read.h"
#include "support/files.h"
#include "support/managers.h"
#include "support/system_faults.h"

namespace tolva::test {
namespace {

using namespace platform;

/// The last error of an open for reading.
DWORD ErrorOfReading(const std::wstring& path) {
  ComPtr<IStream> stream;
  SetLastError(kUntouched);
  EXPECT_FALSE(OpenToRead(path.c_str(), stream.Receive()));
  EXPECT_FALSE(stream);
  return GetLastError();
}

HRESULT OpenToWrite(const std::wstring& path) {
  ComPtr<IStream> stream;
  return SHCreateStreamOnFileW(path.c_str(), STGM_CREATE | STGM_WRITE, stream.Receive());
}

TEST(Posix, OpensFilesWithTheErrorsOfWindows) {
  const TempFile file("x");
  const TempFile loop;
  std::filesystem::create_symlink(loop.path(), loop.path());
  EXPECT_EQ(ErrorOfReading(L"no-such-file"), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(ErrorOfReading(L"/no-such-file"), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(ErrorOfReading(file.Wide() + L"/x"), ERROR_PATH_NOT_FOUND);
  EXPECT_EQ(ErrorOfReading(loop.Wide()), ERROR_PATH_NOT_FOUND);
  EXPECT_EQ(ErrorOfReading(std::wstring(300, 'n')), ERROR_FILENAME_EXCED_RANGE);
  EXPECT_EQ(OpenToWrite(file.Wide() + L"/x"), HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND));

  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
  const rlimit none{0, limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  const DWORD without_descriptors = ErrorOfReading(file.Wide());
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
  EXPECT_EQ(without_descriptors, ERROR_TOO_MANY_OPEN_FILES);

  for (const auto& [error_number, expected] : {std::pair{ENFILE, ERROR_TOO_MANY_OPEN_FILES},
                                               {EACCES, ERROR_ACCESS_DENIED},
                                               {EPERM, ERROR_ACCESS_DENIED},
                                               {EROFS, ERROR_ACCESS_DENIED},
                                               {ETXTBSY, ERROR_ACCESS_DENIED},
                                               {ENOMEM, ERROR_NOT_ENOUGH_MEMORY},
                                               {EDQUOT, ERROR_DISK_FULL},
                                               {EXDEV, ERROR_GEN_FAILURE}}) {
    const SystemFault fault(SystemCall::kOpen, 0, error_number);
    EXPECT_EQ(ErrorOfReading(file.Wide()), expected);
  }
}

TEST(Posix, RefusesWhatIsNoFile) {
  const TempFile pipe;
  ASSERT_EQ(mkfifo(pipe.path().c_str(), 0600), 0);
  EXPECT_EQ(ErrorOfReading(L"/dev/null"), kUntouched);
  EXPECT_EQ(OpenToWrite(L"/dev/null"), S_OK);
  EXPECT_EQ(ErrorOfReading(pipe.Wide()), kUntouched);
  EXPECT_EQ(OpenToWrite(pipe.Wide()), HRESULT_FROM_WIN32(ERROR_GEN_FAILURE));
  const int reader = open(pipe.path().c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(OpenToWrite(pipe.Wide()), HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
  close(reader);
}

TEST(Posix, ReportsWhatAStreamMeets) {
  char bytes[4];
  ULONG count = 1;
  ComPtr<IStream> stream;
  const TempFile file("text");
  {
    ASSERT_TRUE(OpenToRead(file.Wide().c_str(), stream.Receive()));
    const SystemFault broken(SystemCall::kRead, 0, EIO);
    EXPECT_EQ(stream->Read(bytes, sizeof bytes, &count), HRESULT_FROM_WIN32(ERROR_IO_DEVICE));
    EXPECT_EQ(count, 0U);
    const SystemFault interrupted(SystemCall::kRead, 0, EINTR);
    EXPECT_EQ(stream->Read(bytes, sizeof bytes, &count), S_OK);
    EXPECT_EQ(count, sizeof bytes);
  }
  const DWORD mode = STGM_CREATE | STGM_WRITE;
  ASSERT_EQ(SHCreateStreamOnFileW(file.Wide().c_str(), mode, stream.Receive()), S_OK);
  const SystemFault interrupted(SystemCall::kClose, 0, EINTR);
  EXPECT_EQ(stream->Commit(STGC_DEFAULT), S_OK);
}

TEST(Posix, ConvertsTextToAStream) {
  // A pair of surrogates in every place of a piece, and what is no character.
  for (std::size_t shift = 4090; shift != 4100; ++shift) {
    const std::wstring wide = std::wstring(shift, L'x') + L"\xD83D\xDE00\u00E9\U0001F600\xD800y" +
                              std::wstring(1, 0x110000) + std::wstring(20, L'z');
    const std::string expected =
        std::string(shift, 'x') +
        "\xF0\x9F\x98\x80\xC3\xA9\xF0\x9F\x98\x80\xEF\xBF\xBDy\xEF\xBF\xBD" + std::string(20, 'z') +
        '\0';
    ComPtr<IStream> stream;
    ASSERT_EQ(OpenText(wide.c_str(), stream.Receive()), S_OK);
    std::string text;
    char bytes[7];
    ULONG count = 0;
    while (stream->Read(bytes, sizeof bytes, &count) == S_OK) text.append(bytes, count);
    text.append(bytes, count);
    EXPECT_EQ(text, expected) << shift;
  }
}

}  // namespace
}  // namespace tolva::test
