#include "node/numbers.h"

#include <gtest/gtest.h>

#include "support/values.h"

namespace tolva::test {
namespace {

using node::Numbers;

TEST(Numbers, AreDigitsAlone) {
  constexpr struct {
    const wchar_t* text;
    DWORD as_signed;
    DWORD as_unsigned;
  } kReadings[] = {{L"", 0, 0},
                   {L"007", 7, 7},
                   {L"2147483647", 2147483647, 2147483647},
                   {L"2147483648", 2147483647, 2147483648},
                   {L"4294967295", 2147483647, 4294967295},
                   {L"4294967296", 2147483647, 0},
                   {L"4294967303", 2147483647, 7},
                   {L"9223372036854775807", 2147483647, 4294967295},
                   {L"9223372036854775808", 2147483647, 4294967295},
                   {L"99999999999999999999999999999999", 2147483647, 4294967295},
                   {L"00000000000000000000000000000000000000000000000005", 5, 5}};
  for (const auto& one : kReadings) {
    DWORD value = 1;
    EXPECT_TRUE(node::ParseNumber(ValueOf(one.text), Numbers::kSigned, &value));
    EXPECT_EQ(value, one.as_signed) << one.text;
    EXPECT_TRUE(node::ParseNumber(ValueOf(one.text), Numbers::kUnsigned, &value));
    EXPECT_EQ(value, one.as_unsigned) << one.text;
  }
  for (const wchar_t* const text : {L"+1", L"-1", L" 1", L"1 ", L"1\t", L"0x1", L"12a", L"1.0",
                                    L"\u0661", L"\uFF11", L"\u00B2"}) {
    DWORD value = 4711;
    std::uint64_t long_value = 4711;
    EXPECT_FALSE(node::ParseNumber(ValueOf(text), Numbers::kSigned, &value)) << text;
    EXPECT_FALSE(node::ParseNumber(ValueOf(text), Numbers::kUnsigned, &value)) << text;
    EXPECT_FALSE(node::ParseLongNumber(ValueOf(text), &long_value)) << text;
    EXPECT_EQ(value, 4711U);
  }
  std::uint64_t value = 0;
  EXPECT_TRUE(node::ParseLongNumber(ValueOf(L"18446744073709551614"), &value));
  EXPECT_EQ(value, 18446744073709551614U);
  EXPECT_TRUE(node::ParseLongNumber(ValueOf(L"18446744073709551616"), &value));
  EXPECT_EQ(value, 18446744073709551615U);
}

TEST(Numbers, AreWrittenWithOrWithoutASign) {
  node::NumberText text;
  EXPECT_EQ(node::FormatNumber(2147483648, Numbers::kSigned, text), ValueOf(L"-2147483648"));
  EXPECT_EQ(node::FormatNumber(4294967295, Numbers::kSigned, text), ValueOf(L"-1"));
  EXPECT_EQ(node::FormatNumber(4294967295, Numbers::kUnsigned, text), ValueOf(L"4294967295"));
  EXPECT_EQ(node::FormatLongNumber(18446744073709551615U, text), ValueOf(L"18446744073709551615"));
}

}  // namespace
}  // namespace tolva::test
