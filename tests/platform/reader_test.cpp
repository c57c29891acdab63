// The memory of the own layer's XML reader. tests/xml/reader_test.cpp shows how it reads.
#if !defined(_WIN32)

#include "platform/xml/reader.h"

#include <gtest/gtest.h>

#include <string>

#include "support/allocations.h"
#include "support/steps.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using platform::Name;

struct OneRow {
  Name name;
};
constexpr OneRow kOneRow[] = {{L"b"}};
const Names kNames(std::span<const OneRow>(kOneRow), &OneRow::name);

class Reader : public testing::Test {
 protected:
  /// Reads on to the end and asks for all that the cursor can tell.
  void ReadOn() {
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    while (steps.Take() && reader_.Read(&type) == S_OK) AskForAll();
  }

  void AskForAll() {
    XmlReader::Value value;
    EXPECT_EQ(reader_.GetLocalName(&value), S_OK);
    EXPECT_EQ(reader_.GetValue(&value), S_OK);
    reader_.FindAttributes(kNames);
    EXPECT_GE(reader_.GetAttribute(0, &value), S_OK);
  }

  XmlReader reader_;
};

TEST_F(Reader, SurvivesARunOutOfMemory) {
  // A text and a start tag that are larger than a block, and values that have to be decoded.
  std::string document = "<a b='&amp;'>" + std::string(200'000, 'x') + "&lt;<t";
  for (int i = 0; i < 10'000; ++i) document += " a" + std::to_string(i) + "='&#65;'";
  document += "/></a>";
  bool failed = true;
  for (std::size_t n = 0; failed; ++n) {
    ASSERT_LT(n, 1000U);
    TextStream stream(document, 1000);
    ASSERT_EQ(reader_.SetInput(&stream), S_OK);
    failed = RunsOutOfMemory(n, n % 2 == 1, [this] { ReadOn(); });
    // Whatever the cursor was doing, it can be asked and started again.
    AskForAll();
    ReadOn();
    ASSERT_EQ(reader_.SetInput(nullptr), S_OK);
    XmlNodeType type = XmlNodeType_None;
    ASSERT_EQ(reader_.Read(&type), E_UNEXPECTED);
  }
}

TEST_F(Reader, GivesMemoryBack) {
  const std::string value(std::size_t{8} << 20, 'v');
  std::string attributes = "<a";
  std::string declarations = "<a xmlns:p='u'";
  for (int i = 0; i < 100'000; ++i) {
    const std::string n = std::to_string(i);
    attributes += " a" + n + "=''";
    declarations += " xmlns:q" + n + "='u' p:a" + n + "=''";
  }
  const std::string documents[] = {"<a b='&amp;" + value + "'/>",
                                   "<a>&amp;" + value + "</a>",
                                   "<a xmlns:" + value + "='u'><b/></a>",
                                   "<a xmlns='" + value + "'/>",
                                   declarations + "/>",
                                   "<" + value + "></" + value + ">",
                                   attributes + "/>"};
  const std::size_t held = CountAllocations().bytes;
  for (const std::string& document : documents) {
    TextStream stream(document);
    ASSERT_EQ(reader_.SetInput(&stream), S_OK);
    ReadOn();
    ASSERT_EQ(reader_.SetInput(nullptr), S_OK);
    EXPECT_LT(CountAllocations().bytes - held, 4U * 256 * 1024) << document.substr(0, 10);
  }
}

}  // namespace
}  // namespace tolva::test

#endif
