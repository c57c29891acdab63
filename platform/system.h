// The platform without the XML reader and writer.
#pragma once

#if defined(_WIN32)
#include "platform/windows/system.h"
#else
#include "platform/posix/system.h"
#endif
