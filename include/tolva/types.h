// The scalar types and result codes that every interface of the library uses.
#pragma once

#include <cstdint>

/// 32-bit unsigned number, as the Windows SDK defines it; BOOL attributes are held in it too.
#if defined(_WIN32)
using DWORD = unsigned long;
#else
using DWORD = std::uint32_t;
#endif

static_assert(sizeof(DWORD) == 4);

/// Result of an operation: 0 or one of the codes below. The getter of an optional value answers 1
/// when the value is absent. When memory runs out, an operation gives no result but throws
/// std::bad_alloc; it throws nothing else.
using ConfigResult = std::int32_t;

namespace tolva {

/// The operation did what it was asked.
inline constexpr ConfigResult kSuccess = 0;

/// An optional attribute or child is absent; the caller's variable is untouched.
inline constexpr ConfigResult kAbsent = 1;

/// The operation failed. Where the platform supplied a failure code, `tolvaGetLastError` has it;
/// where a node failed, the diagnostic callback was told why, unless the function says otherwise.
inline constexpr ConfigResult kFailed = -101;

/// A manager was given a null argument, or an empty text to read; a node was asked to read an
/// element of another name; or a text element had no text where it needs one.
inline constexpr ConfigResult kInvalidArgument = -102;

/// Never returned: the thread's last-error value after an absent attribute was asked for.
inline constexpr ConfigResult kAttributeAbsent = -104;

}  // namespace tolva
