// What the Active Directory document reports when it cannot be written.
#include "clientconfig/active_directory.h"

#include <gtest/gtest.h>

#include "support/writer_faults.h"

namespace tolva::test {
namespace {

TEST(ActiveDirectoryFaults, AreReportedLevelByLevel) {
  const ClientConfig::CActiveDirectory root;
  const Texts none;
  const Texts expected[] = {
      {L"XMLManager: fail to add element: ActiveDirectory"},
      {L"XMLManager: failed to add element: DefaultDomain",
       L"XMLManager: write require element failed. element:DefaultDomain"},
      none,  // neither attribute is checked
      none,
      {L"XMLManager: fail to close element: DefaultDomain",
       L"XMLManager: write require element failed. element:DefaultDomain"},
      none,  // the line feed
      {L"XMLManager: fail to close element: ActiveDirectory"},
      none,
      none,
  };
  for (int n = 0; n < static_cast<int>(std::size(expected)); ++n) {
    ConfigResult result = 0;
    EXPECT_EQ(ReportsOfFault(root, n, &result), expected[n]) << n;
    EXPECT_EQ(result, expected[n].empty() ? 0 : -101) << n;
  }
}

}  // namespace
}  // namespace tolva::test
