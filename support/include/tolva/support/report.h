// What loads and saves report.
#pragma once

#include <tolva/types.h>

#include <string>
#include <vector>

namespace tolva::support {

/// What the reports of `Load` and `Save` have in common.
struct Report {
  /// What the library call returned that decided: 0, -101 or -102. -101 as well when the support
  /// library itself found the fault.
  ConfigResult result = 0;

  /// The code of the failure, as `DescribeError` takes it: the library's last-error value, or the
  /// Windows error code that says what a system call's failure says, on every platform. 0 where
  /// there is none.
  DWORD error = 0;

  /// What went wrong, in one English sentence; empty when all went well.
  std::string message;

  /// The diagnostic texts of the library during this call, on this thread, in order. There may be
  /// some when all went well.
  std::vector<std::string> diagnostics;
};

}  // namespace tolva::support
