// The scalar types and result codes of all interfaces.
#pragma once

#include <cstdint>

/// An unsigned 32-bit number, the same type as in the Windows SDK. It also holds BOOL attributes.
#if defined(_WIN32)
using DWORD = unsigned long;
#else
using DWORD = std::uint32_t;
#endif

static_assert(sizeof(DWORD) == 4);

/// The result of an operation: one of the codes below. When memory runs out, an operation may throw
/// std::bad_alloc; it throws nothing else.
using ConfigResult = std::int32_t;

namespace tolva {

/// The operation succeeded.
inline constexpr ConfigResult kSuccess = 0;

/// Returned by the getter of an optional attribute or child that is absent. The caller's variable
/// is unchanged.
inline constexpr ConfigResult kAbsent = 1;

/// The operation failed. If the platform supplied a code, `tolvaGetLastError` returns it. A node
/// passes the reason to the diagnostic callback, unless the function says otherwise.
inline constexpr ConfigResult kFailed = -101;

/// A manager was given a null argument, or a string to read that is empty or too long; a node was
/// to read an element with another name; or a text element lacks its required text.
inline constexpr ConfigResult kInvalidArgument = -102;

/// Never returned. The thread's last-error value after a lookup of an attribute that is absent.
inline constexpr ConfigResult kAttributeAbsent = -104;

}  // namespace tolva
