// MinGW's header of this name, with the macros that Microsoft's has and MinGW's lacks: code that
// compiles with them compiles with the Windows SDK.
#pragma once

#include_next <rpcndr.h>

#define small char
#define hyper __int64
