#include "node/numbers.h"

#include <limits>

namespace tolva::node {
namespace {

struct Digits {
  std::uint64_t value;  ///< at most the given limit
  const wchar_t* end;
};

Digits ReadDigits(const wchar_t* text, std::uint64_t limit) {
  std::uint64_t value = 0;
  for (; *text >= L'0' && *text <= L'9'; ++text) {
    const auto digit = static_cast<std::uint64_t>(*text - L'0');
    value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
  }
  return {value, text};
}

/// The limit at which the conversion of a 32-bit number saturates.
std::uint64_t LimitOf(Numbers numbers) {
  return numbers == Numbers::kSigned
             ? static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())
             : static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
}

DWORD LowHalf(std::uint64_t value) { return static_cast<DWORD>(value & 0xFFFFFFFF); }

}  // namespace

const wchar_t* FormatLongNumber(std::uint64_t value, NumberText& text) {
  wchar_t* at = text.data() + text.size() - 1;
  *at = 0;
  do {
    *--at = static_cast<wchar_t>(L'0' + value % 10);
    value /= 10;
  } while (value != 0);
  return at;
}

const wchar_t* FormatNumber(DWORD value, Numbers numbers, NumberText& text) {
  const bool negative = numbers == Numbers::kSigned && value > 0x7FFFFFFF;
  if (!negative) return FormatLongNumber(value, text);
  const wchar_t* const digits = FormatLongNumber(0x100000000 - value, text);
  wchar_t* const sign = text.data() + (digits - text.data()) - 1;
  *sign = L'-';
  return sign;
}

bool ParseNumber(const wchar_t* text, Numbers numbers, DWORD* value) {
  const Digits digits = ReadDigits(text, LimitOf(numbers));
  if (*digits.end != 0) return false;
  *value = LowHalf(digits.value);
  return true;
}

bool ParseLongNumber(const wchar_t* text, std::uint64_t* value) {
  const Digits digits = ReadDigits(text, std::numeric_limits<std::uint64_t>::max());
  if (*digits.end != 0) return false;
  *value = digits.value;
  return true;
}

DWORD ParseLeadingDigits(const wchar_t* text, Numbers numbers) {
  return LowHalf(ReadDigits(text, LimitOf(numbers)).value);
}

}  // namespace tolva::node
