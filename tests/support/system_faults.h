// Calls of the operating system that fail once. The test program is linked so that the calls of
// what is linked into it come here first (tests/CMakeLists.txt names them).
#pragma once

#if !defined(_WIN32)

namespace tolva::test {

enum class SystemCall {
  kOpen,
  kRead,
  kWrite,
  kClose,
  kStat,  ///< stat, lstat and fstat
  kFsync,
  kRename,
  kFchown,
  kFchmod,
  kSetAttribute,  ///< fsetxattr
};

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
