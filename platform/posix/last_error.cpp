#include "platform/posix/system.h"

namespace tolva::platform {
namespace {

thread_local DWORD last_error = 0;

}  // namespace

DWORD GetLastError() noexcept { return last_error; }

void SetLastError(DWORD error) noexcept { last_error = error; }

}  // namespace tolva::platform
