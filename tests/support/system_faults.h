// Calls of the operating system that fail once. The test program is linked so that the library's
// calls come here first.
#pragma once

#if !defined(_WIN32)

namespace tolva::test {

enum class SystemCall { kWrite, kClose };

/// While it lives, the n-th call from its making on (0: the next) fails with an `errno` value, and
/// does nothing, but for `close`, which always closes. The calls after it succeed.
class SystemFault {
 public:
  SystemFault(SystemCall call, int n, int error_number);
  SystemFault(const SystemFault&) = delete;
  SystemFault& operator=(const SystemFault&) = delete;
  ~SystemFault();

  /// The call has failed.
  static bool HasStruck();
};

}  // namespace tolva::test

#endif
