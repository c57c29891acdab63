#include "support/system_faults.h"

#if !defined(_WIN32)

#include <sys/stat.h>
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
using Open = int(const char* path, int flags, mode_t mode);
using Read = ssize_t(int file, void* bytes, std::size_t size);
using Write = ssize_t(int file, const void* bytes, std::size_t size);
using OfFile = int(int file);
using Stat = int(const char* path, struct stat* about);
using FStat = int(int file, struct stat* about);
using Rename = int(const char* from, const char* to);
using FChown = int(int file, uid_t owner, gid_t group);
using FChmod = int(int file, mode_t mode);
using FSetXAttr = int(int file, const char* name, const void* value, std::size_t size, int flags);
Open __real_open, __wrap_open;
Read __real_read, __wrap_read;
Write __real_write, __wrap_write;
OfFile __real_close, __wrap_close, __real_fsync, __wrap_fsync;
Stat __real_stat, __wrap_stat, __real_lstat, __wrap_lstat;
FStat __real_fstat, __wrap_fstat;
Rename __real_rename, __wrap_rename;
FChown __real_fchown, __wrap_fchown;
FChmod __real_fchmod, __wrap_fchmod;
FSetXAttr __real_fsetxattr, __wrap_fsetxattr;

// Who passes no mode leaves something there that `open` does not look at.
int __wrap_open(const char* path, int flags, mode_t mode) {
  return Fails(SystemCall::kOpen) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_read(int file, void* bytes, std::size_t size) {
  return Fails(SystemCall::kRead) ? -1 : __real_read(file, bytes, size);
}

ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
  return Fails(SystemCall::kWrite) ? -1 : __real_write(file, bytes, size);
}

int __wrap_close(int file) {
  const int result = __real_close(file);
  return Fails(SystemCall::kClose) ? -1 : result;
}

int __wrap_fsync(int file) { return Fails(SystemCall::kFsync) ? -1 : __real_fsync(file); }

int __wrap_stat(const char* path, struct stat* about) {
  return Fails(SystemCall::kStat) ? -1 : __real_stat(path, about);
}

int __wrap_lstat(const char* path, struct stat* about) {
  return Fails(SystemCall::kStat) ? -1 : __real_lstat(path, about);
}

int __wrap_fstat(int file, struct stat* about) {
  return Fails(SystemCall::kStat) ? -1 : __real_fstat(file, about);
}

int __wrap_rename(const char* from, const char* to) {
  return Fails(SystemCall::kRename) ? -1 : __real_rename(from, to);
}

int __wrap_fchown(int file, uid_t owner, gid_t group) {
  return Fails(SystemCall::kFchown) ? -1 : __real_fchown(file, owner, group);
}

int __wrap_fchmod(int file, mode_t mode) {
  return Fails(SystemCall::kFchmod) ? -1 : __real_fchmod(file, mode);
}

int __wrap_fsetxattr(int file, const char* name, const void* value, std::size_t size, int flags) {
  return Fails(SystemCall::kSetAttribute) ? -1 : __real_fsetxattr(file, name, value, size, flags);
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
