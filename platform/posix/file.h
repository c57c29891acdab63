// Opening files by wide path, and the Windows error codes of what can go wrong.
#pragma once

#include "platform/posix/system.h"

namespace tolva::platform::posix {

/// The Windows error code that says the same as an `errno` value.
DWORD ErrorOf(int error_number) noexcept;

/// Opens a file without ever waiting for another process; -1 with `*error` set. Directories are
/// refused with ERROR_ACCESS_DENIED.
int Open(const wchar_t* path, int flags, DWORD* error) noexcept;

}  // namespace tolva::platform::posix
