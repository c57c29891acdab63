#include "node/numbers.h"

#include <limits>

namespace tolva::node {
namespace {

using Character = Value::value_type;

struct Digits {
  std::uint64_t value;  ///< at most the given limit
  std::size_t count;
};

Digits ReadDigits(Value text, std::uint64_t limit) {
  constexpr std::size_t kAlwaysWithinLimits = 9;
  std::uint64_t value = 0;
  std::size_t count = 0;
  for (; count < text.size() && count < kAlwaysWithinLimits; ++count) {
    const auto digit = static_cast<std::uint64_t>(text[count]) - '0';
    if (digit > 9) return {value, count};
    value = value * 10 + digit;
  }
  for (; count < text.size(); ++count) {
    const auto digit = static_cast<std::uint64_t>(text[count]) - '0';
    if (digit > 9) break;
    value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
  }
  return {value, count};
}

/// The limit at which the conversion of a 32-bit number saturates.
std::uint64_t LimitOf(Numbers numbers) {
  return numbers == Numbers::kSigned
             ? static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())
             : static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
}

DWORD LowHalf(std::uint64_t value) { return static_cast<DWORD>(value & 0xFFFFFFFF); }

/// The digits "00" to "99".
constexpr auto kPairs = [] {
  std::array<Character, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<Character>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<Character>('0' + i % 10);
  }
  return pairs;
}();

}  // namespace

Value FormatLongNumber(std::uint64_t value, NumberText& text) {
  std::size_t at = text.size() - 1;
  text[at] = 0;
  while (value >= 10) {
    const std::size_t pair = 2 * static_cast<std::size_t>(value % 100);
    value /= 100;
    text[--at] = kPairs[pair + 1];
    text[--at] = kPairs[pair];
  }
  if (value != 0 || at == text.size() - 1) text[--at] = static_cast<Character>('0' + value);
  return {&text[at], text.size() - 1 - at};
}

Value FormatNumber(DWORD value, Numbers numbers, NumberText& text) {
  const bool is_negative = numbers == Numbers::kSigned && value > 0x7FFFFFFF;
  if (!is_negative) return FormatLongNumber(value, text);
  const Value digits = FormatLongNumber(0x100000000 - value, text);
  const std::size_t sign = text.size() - 2 - digits.size();
  text[sign] = '-';
  return {&text[sign], digits.size() + 1};
}

bool ParseNumber(Value text, Numbers numbers, DWORD* value) {
  const Digits digits = ReadDigits(text, LimitOf(numbers));
  if (digits.count != text.size()) return false;
  *value = LowHalf(digits.value);
  return true;
}

bool ParseLongNumber(Value text, std::uint64_t* value) {
  const Digits digits = ReadDigits(text, std::numeric_limits<std::uint64_t>::max());
  if (digits.count != text.size()) return false;
  *value = digits.value;
  return true;
}

DWORD ParseLeadingDigits(Value text, Numbers numbers) {
  return LowHalf(ReadDigits(text, LimitOf(numbers)).value);
}

}  // namespace tolva::node
