// On Windows the system supplies files, streams, UTF-8 conversion and the last-error cell: the
// declarations come from its headers, and the calls need no adapting.
#pragma once

#if !defined(NOMINMAX)
#define NOMINMAX
#endif

#include <windows.h>
// (windows.h comes first)
#include <objidl.h>
#include <shlwapi.h>

namespace tolva::platform {}
