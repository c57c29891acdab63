// Documents from streams that fail, and onto disks that are full.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "documents/examples.h"
#include "platform/platform.h"
#include "support/files.h"
#include "support/nodes.h"
#include "support/streams.h"

#if !defined(_WIN32)
#include <sys/resource.h>

#include <csignal>
#endif

namespace tolva::test {
namespace {

#if defined(TOLVA_OWN_XML_LAYER)
class FailingStreams : public testing::TestWithParam<NamedExample> {};

/// The types of the nodes that come, and what comes behind them.
std::pair<std::vector<int>, HRESULT> NodesOf(StackStream& stream) {
  void* made = nullptr;
  EXPECT_EQ(CreateXmlReader(kIidXmlReader, &made, nullptr), S_OK);
  ComPtr<IXmlReader> reader;
  reader.Attach(static_cast<IXmlReader*>(made));
  EXPECT_EQ(reader->SetInput(&stream), S_OK);
  std::vector<int> types;
  XmlNodeType type = XmlNodeType_None;
  HRESULT result = S_OK;
  while ((result = reader->Read(&type)) == S_OK) types.push_back(type);
  return {types, result};
}

/// A stream that fails at any byte is reported for what it is, behind the nodes before it.
TEST_P(FailingStreams, AreReportedBehindWhatTheyGave) {
  const std::string document = WriteFile(*GetParam().make().Read());
  TextStream whole(document);
  const auto [all, end] = NodesOf(whole);
  EXPECT_EQ(end, S_FALSE);
  for (const std::size_t block : {std::size_t{13}, document.size()}) {
    for (std::size_t at = 0; at < document.size(); ++at) {
      TextStream stream(document, block);
      stream.fail_at = at;
      const auto [types, result] = NodesOf(stream);
      ASSERT_EQ(result, E_FAIL) << at;
      // What the failure cut off may be of another type: blanks in front of a text.
      ASSERT_LE(types.size(), all.size());
      for (std::size_t i = 0; i + 1 < types.size(); ++i) ASSERT_EQ(types[i], all[i]) << at;
      ASSERT_EQ(stream.references, 1U);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, FailingStreams, testing::ValuesIn(kExamples), NameOfExample);
#endif

#if !defined(_WIN32)
/// While it lives, no file grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = size;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_ = {};
};

/// Writes to a disk that has room for so many bytes: an error that says so, and what had room is
/// there.
void ExpectFullDisk(const node::IElement& root, const std::string& whole, std::size_t room) {
  const TempFile file;
  const std::wstring path = file.Wide();
  const ManagerPtr writer = MakeWriter();
  ConfigResult written = 0;
  ConfigResult closed = 0;
  DWORD error = 0;
  {
    const FileSizeLimit limit(room);
    ASSERT_EQ(writer->OpenFile(path.c_str()), 0);
    Diagnostics diagnostics;
    tolvaSetLastError(0);
    written = root.WriteToXMLMgr(writer.get());
    EXPECT_TRUE(written == 0 || !diagnostics.Take().empty()) << room;
    closed = writer->Close();
    error = tolvaGetLastError();
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
  using namespace TolvaInterface;
  const Example::Node root = PolicyExample().Read();
  const std::string small = WriteFile(*root);
  for (std::size_t room = 0; room < small.size(); ++room) ExpectFullDisk(*root, small, room);

  // Of many blocks.
  ILocationArray& locations = *static_cast<IILPClientConfiguration&>(*root).GetLocationArray();
  while (locations.GetLocationCount() < 60) locations.AddLocation(locations.GetLocationAt(0));
  const std::string large = WriteFile(*root);
  ASSERT_GT(large.size(), 130'000U);
  for (std::size_t room = 0; room < large.size(); room += 4093) ExpectFullDisk(*root, large, room);
}
#endif

}  // namespace
}  // namespace tolva::test
