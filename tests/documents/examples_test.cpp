// What holds for the example of every document.
#include <gtest/gtest.h>

#include "documents/examples.h"
#include "support/capabilities.h"

namespace tolva::test {
namespace {

class Document : public testing::TestWithParam<NamedExample> {};

TEST_P(Document, IsReadAndWritten) { GetParam().make().ExpectRoundTrip(); }

TEST_P(Document, HasItsFaultsReported) { GetParam().make().ExpectReadFaults(); }

TEST_P(Document, EndsWhereTheInputEnds) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  GetParam().make().ExpectTruncation();
}

INSTANTIATE_TEST_SUITE_P(All, Document, testing::ValuesIn(kExamples), NameOfExample);

}  // namespace
}  // namespace tolva::test
