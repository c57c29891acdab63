// Opens files by wide path, and translates errors to those of Windows.
#pragma once

#include <sys/stat.h>

#include "platform/posix/system.h"

namespace tolva::platform::posix {

/// The Windows error code for an `errno` value other than ENOENT, which has two.
DWORD ErrorOf(int error_number) noexcept;

/// Opens a file without waiting for other processes. Returns its descriptor and sets `*about`, or
/// returns -1 and sets `*error`. A directory fails with ERROR_ACCESS_DENIED.
int Open(const wchar_t* path, int flags, struct stat* about, DWORD* error) noexcept;

}  // namespace tolva::platform::posix
