// What the policy document reports when it cannot be written.
#include <gtest/gtest.h>

#include "policy/example.h"
#include "support/writer_faults.h"

namespace tolva::test {
namespace {

TEST(PolicyFaults, AreReportedLevelByLevel) { PolicyExample().ExpectWriteFaults(ReportsOfFault); }

}  // namespace
}  // namespace tolva::test
