// Numbers as attribute values.
#pragma once

#include <tolva/types.h>

#include <array>
#include <cstdint>

#include "platform/platform.h"

namespace tolva::node {

/// How a 32-bit number is written and read.
enum class Numbers : std::uint8_t {
  kSigned,    ///< written with a sign from 2147483648 up; reading saturates at 2147483647
  kUnsigned,  ///< reading goes through 63 bits, saturating, and keeps the low 32
};

/// A value in the form that the platform's reader and writer use.
using Value = platform::XmlReader::Value;

/// Room for the longest number with its sign and a terminating zero.
using NumberText = std::array<Value::value_type, 24>;

// The text is in the buffer, and zero-terminated.

Value FormatNumber(DWORD value, Numbers numbers, NumberText& text);
Value FormatLongNumber(std::uint64_t value, NumberText& text);

// A number is any quantity of digits '0' to '9'; an empty text reads as 0. Parsing fails on any
// other character, including signs and spaces, and then leaves `*value` unchanged.

bool ParseNumber(Value text, Numbers numbers, DWORD* value);
bool ParseLongNumber(Value text, std::uint64_t* value);

/// The value of the leading digits. Ignores whatever follows them.
DWORD ParseLeadingDigits(Value text, Numbers numbers);

}  // namespace tolva::node
