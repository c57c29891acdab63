// What every document reports when it cannot be written.
#include <gtest/gtest.h>

#include "documents/examples.h"
#include "support/writer_faults.h"

namespace tolva::test {
namespace {

class DocumentFaults : public testing::TestWithParam<NamedExample> {};

TEST_P(DocumentFaults, AreReportedLevelByLevel) {
  GetParam().make().ExpectWriteFaults(ReportsOfFault);
}

INSTANTIATE_TEST_SUITE_P(All, DocumentFaults, testing::ValuesIn(kExamples), NameOfExample);

}  // namespace
}  // namespace tolva::test
