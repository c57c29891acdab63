// On Windows the system has files, streams, UTF-8 conversion and the last-error value. Its own
// headers declare them.
#pragma once

#include <windows.h>
// (windows.h comes first)
#include <objidl.h>
#include <shlwapi.h>

namespace tolva::platform {}
