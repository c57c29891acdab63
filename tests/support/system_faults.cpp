#include "support/system_faults.h"

#if !defined(_WIN32)

#include <sys/types.h>

#include <atomic>
#include <cerrno>
#include <cstddef>

namespace {

using tolva::test::SystemCall;

std::atomic<SystemCall> faulty_call = SystemCall::kWrite;
std::atomic<int> calls_until_fault = -1;
std::atomic<int> fault = 0;
std::atomic<bool> has_struck = false;

bool Fails(SystemCall call) {
  if (call != faulty_call || calls_until_fault < 0 || calls_until_fault-- != 0) return false;
  has_struck = true;
  errno = fault;
  return true;
}

}  // namespace

// The linker turns calls of `f` into calls of `__wrap_f`, and `__real_f` into `f`.
extern "C" {
ssize_t __real_write(int file, const void* bytes, std::size_t size);
int __real_close(int file);

ssize_t __wrap_write(int file, const void* bytes, std::size_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
  return Fails(SystemCall::kWrite) ? -1 : __real_write(file, bytes, size);
}

int __wrap_close(int file);
int __wrap_close(int file) {
  const int result = __real_close(file);
  return Fails(SystemCall::kClose) ? -1 : result;
}
}

namespace tolva::test {

SystemFault::SystemFault(SystemCall call, int n, int error_number) {
  faulty_call = call;
  fault = error_number;
  has_struck = false;
  calls_until_fault = n;
}

SystemFault::~SystemFault() { calls_until_fault = -1; }

bool SystemFault::HasStruck() { return has_struck; }

}  // namespace tolva::test

#endif
