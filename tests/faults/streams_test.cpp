// Writers that fail, and disks that are full.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/files.h"
#include "support/nodes.h"
#include "support/writer_faults.h"

#if !defined(_WIN32)
#include <cerrno>

#include "support/file_size_limit.h"
#include "support/system_faults.h"
#endif

namespace tolva::test {
namespace {

std::unique_ptr<TolvaInterface::IILPClientConfiguration> ReadPolicy() {
  std::unique_ptr<TolvaInterface::IILPClientConfiguration> root(
      TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  EXPECT_EQ(ReadFile(*root, TOLVA_DOCUMENTS "/policy.xml"), 0);
  return root;
}

/// A call of the platform's writer that fails, and works again the next time: whatever it should
/// have written is lost, and whoever closes the document is told.
TEST(PassingFailures, OfTheWriterAreTold) {
  const auto root = ReadPolicy();
  const TempFile file;
  Diagnostics diagnostics;
  for (int n = 0;; ++n) {
    const ManagerPtr writer = OpenWriter(file);
    const WriterFault fault(n);
    root->WriteToXMLMgr(writer.get());  // 0 where the call was for an optional attribute
    if (!WriterFault::HasStruck()) break;
    ASSERT_LT(n, 10'000);
    tolvaSetLastError(0);
    ASSERT_EQ(writer->Close(), -101) << n;
    ASSERT_EQ(tolvaGetLastError(), WriterFault::kCode) << n;
    ASSERT_EQ(writer->Close(), 0) << n;        // nothing is held any more
    if (n == 0 || !WriterEscapes()) continue;  // not even the root
    // What was good is there, and well-formed.
    const ManagerPtr reader = MakeReader();
    ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
    ASSERT_EQ(tolvaReadToEnd(reader.get()), 0) << n;
  }
}

#if !defined(_WIN32)
/// A policy that takes many blocks to write.
std::unique_ptr<node::IElement> MakeLargePolicy() {
  auto root = ReadPolicy();
  TolvaInterface::ILocationArray& locations = *root->GetLocationArray();
  for (int i = 1; i < 60; ++i) EXPECT_EQ(locations.AddLocation(locations.GetLocationAt(0)), 0);
  return root;
}

/// Writes a node to a file: 0 when the write and `Close` both gave that.
ConfigResult WriteAndClose(const node::IElement& root, const TempFile& file) {
  const ManagerPtr writer = OpenWriter(file);
  const ConfigResult written = root.WriteToXMLMgr(writer.get());
  const ConfigResult closed = writer->Close();
  return written != 0 ? written : closed;
}

/// A disk that is full once: either the file is whole, or the caller has been told.
TEST(PassingFailures, OfTheDiskAreTold) {
  const auto root = MakeLargePolicy();
  const std::string whole = WriteFile(*root);
  ASSERT_GT(whole.size(), 130'000U);
  Diagnostics diagnostics;
  bool has_struck = true;
  for (int n = 0; has_struck; ++n) {
    const TempFile file;
    const SystemFault fault(SystemCall::kWrite, n, ENOSPC);
    tolvaSetLastError(0);
    const ConfigResult result = WriteAndClose(*root, file);
    has_struck = SystemFault::HasStruck();
    ASSERT_LT(n, 1000);
    ASSERT_EQ(result == 0, !has_struck) << n;
    ASSERT_EQ(tolvaGetLastError(), has_struck ? 0x80070070U : 0U) << n;
    ASSERT_TRUE(has_struck || file.Read() == whole) << n;
  }
}

/// Where a block ends does not matter: with each length of the document's first value another call
/// fills it.
TEST(PassingFailures, FallIntoAnyCall) {
  using namespace TolvaInterface;
  const auto root = MakeLargePolicy();
  auto& policy = static_cast<IILPClientConfiguration&>(*root);
  Diagnostics diagnostics;
  std::wstring name = policy.GetName();
  for (int shift = 0; shift < 2000; ++shift, name += L'x') {
    policy.SetName(&name);
    const TempFile file;
    const SystemFault fault(SystemCall::kWrite, 0, ENOSPC);
    ASSERT_NE(WriteAndClose(*root, file), 0) << shift;
  }
}

TEST(PassingFailures, OfAnInterruptedWriteAreNone) {
  const auto root = MakeLargePolicy();
  const TempFile file;
  for (const int n : {0, 1, 2}) {
    const SystemFault fault(SystemCall::kWrite, n, EINTR);
    EXPECT_EQ(WriteAndClose(*root, file), 0);
    EXPECT_TRUE(SystemFault::HasStruck());
    EXPECT_EQ(file.Read(), WriteFile(*root));
  }
}

TEST(FailingClose, IsTold) {
  const TempFile file;
  const ManagerPtr writer = OpenWriter(file);
  ASSERT_EQ(ReadPolicy()->WriteToXMLMgr(writer.get()), 0);
  const SystemFault fault(SystemCall::kClose, 0, EIO);
  for (int again = 0; again < 2; ++again) {
    tolvaSetLastError(0);
    EXPECT_EQ(writer->Close(), -101);
    EXPECT_EQ(tolvaGetLastError(), 0x8007045DU);
  }
  ASSERT_EQ(writer->OpenFile(file.Wide().c_str()), 0);
  ASSERT_EQ(ReadPolicy()->WriteToXMLMgr(writer.get()), 0);
  EXPECT_EQ(writer->Close(), 0);
}

/// Writes to a disk that has room for so many bytes: an error that says so, and what had room is
/// there.
void ExpectFullDisk(const node::IElement& root, const std::string& whole, std::size_t room) {
  const TempFile file;
  const ManagerPtr writer = OpenWriter(file);
  ConfigResult written = 0;
  ConfigResult closed = 0;
  DWORD error = 0;
  {
    const FileSizeLimit limit(room);
    Diagnostics diagnostics;
    tolvaSetLastError(0);
    written = root.WriteToXMLMgr(writer.get());
    EXPECT_TRUE(written == 0 || !diagnostics.Take().empty()) << room;
    closed = writer->Close();
    error = tolvaGetLastError();
    if (written == 0) {
      EXPECT_EQ(writer->Close(), -101) << room;
    }
  }
  ASSERT_EQ(closed, -101) << room;
  ASSERT_EQ(error & 0xFFFF0000U, 0x80070000U) << room;
  ASSERT_EQ(file.Read(), whole.substr(0, room));
  // With room again, the rest can be brought to the file.
  if (written == 0) {
    ASSERT_EQ(writer->Close(), 0) << room;
    ASSERT_EQ(file.Read(), whole);
  }
}

TEST(FullDisk, IsReportedWhereverItIsMet) {
  const auto example = ReadPolicy();
  const std::string one_block = WriteFile(*example);
  for (std::size_t room = 0; room < one_block.size(); ++room) {
    ExpectFullDisk(*example, one_block, room);
  }
  const auto large = MakeLargePolicy();
  const std::string blocks = WriteFile(*large);
  for (std::size_t room = 0; room < blocks.size(); room += 4093) {
    ExpectFullDisk(*large, blocks, room);
  }
}
#endif

}  // namespace
}  // namespace tolva::test
