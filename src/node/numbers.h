// Numbers as attribute values.
#pragma once

#include <tolva/types.h>

#include <array>
#include <cstdint>

namespace tolva::node {

/// How a 32-bit number is written and read.
enum class Numbers : std::uint8_t {
  kSigned,    ///< written with a sign from 2147483648 up; reading saturates at 2147483647
  kUnsigned,  ///< reading goes through 63 bits, saturating, and keeps the low 32
};

/// Room for the longest number with its sign and a terminating zero.
using NumberText = std::array<wchar_t, 24>;

const wchar_t* FormatNumber(DWORD value, Numbers numbers, NumberText& text);
const wchar_t* FormatLongNumber(std::uint64_t value, NumberText& text);

// A number is any quantity of digits '0' to '9'; an empty text reads as 0. Parsing fails on any
// other character, including signs and spaces, and then leaves `*value` unchanged.

bool ParseNumber(const wchar_t* text, Numbers numbers, DWORD* value);
bool ParseLongNumber(const wchar_t* text, std::uint64_t* value);

/// The value of the leading digits. Ignores whatever follows them.
DWORD ParseLeadingDigits(const wchar_t* text, Numbers numbers);

}  // namespace tolva::node
