// Sixteen bytes at a time: every byte in every place, by both implementations.
#include "platform/vector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "platform/vector_plain.h"

namespace tolva::platform {
namespace {

/// The mask of the characters that meet a condition, found one by one.
template <class Condition>
Mask MaskOf(const char* block, Condition condition) {
  Mask mask = 0;
  for (unsigned i = 0; i < 16; ++i) {
    if (condition(static_cast<unsigned char>(block[i]))) mask |= Mask{1} << i;
  }
  return mask;
}

template <class Implementation>
class BytesTest : public testing::Test {};

using Implementations = testing::Types<Bytes, PlainBytes>;
TYPED_TEST_SUITE(BytesTest, Implementations, );

TYPED_TEST(BytesTest, ComparesEachByte) {
  using Bytes = TypeParam;
  std::string text;
  for (int c = 0; c < 256 + 16; ++c) text += static_cast<char>(c);
  for (const char* at = text.data(); at != text.data() + 256; ++at) {
    const Bytes block = Bytes::Load(at);
    const Mask control = MaskOf(at, [](unsigned c) { return c < 0x20; });
    const Mask non_ascii = MaskOf(at, [](unsigned c) { return c >= 0x80; });
    const Mask space = MaskOf(at, [](unsigned c) { return c >= 1 && c <= ' '; });
    EXPECT_EQ(block.ToMask(), non_ascii);
    EXPECT_EQ(block.IsControl().ToMask(), control);
    EXPECT_EQ(block.IsPrintable().ToMask(), kAllBytes & ~control & ~non_ascii);
    EXPECT_EQ(block.IsPrintable().AndNot(block.IsSpace()).ToMask(),
              kAllBytes & ~control & ~non_ascii & ~space);
    EXPECT_EQ((block.IsPrintable() & block.Is('a')).ToMask(), block.Is('a').ToMask());
    EXPECT_EQ((block.IsPrintable() & block.Is('\n')).ToMask(), 0U);
    EXPECT_EQ(block.IsSpace().ToMask(), space);
    EXPECT_EQ((block.Is('z') | block.Is('\xFF')).ToMask(),
              MaskOf(at, [](unsigned c) { return c == 'z' || c == 0xFF; }));
    EXPECT_EQ(block.Is(Bytes::Load(text.data() + 100)).ToMask(),
              at == text.data() + 100 ? kAllBytes : 0U);
  }
  EXPECT_EQ(FirstOf(0), 16U);
  EXPECT_EQ(FirstOf(0x8000), 15U);
  EXPECT_EQ(FirstOf(kAllBytes), 0U);
}

TYPED_TEST(BytesTest, KeepsAsciiWhenNarrowedAndWidened) {
  using Bytes = TypeParam;
  for (const std::uint32_t c : {0x00U, 0x1FU, 0x20U, 0x7FU, 0x80U, 0xFFU, 0x141U, 0x7F41U, 0x8041U,
                                0xFFFFU, 0x10041U, 0x7FFFFF41U, 0x80000041U, 0xFFFFFFFFU}) {
    for (std::size_t place = 0; place < Bytes::kCount; ++place) {
      std::array<wchar_t, Bytes::kCount> wide{};
      wide.fill(L'a');
      wide[place] = static_cast<wchar_t>(c);
      const Bytes block = Bytes::LoadNarrowed(wide.data());
      const Bytes four = Bytes::LoadFourNarrowed(wide.data());
      EXPECT_EQ(four.IsPrintable().ToMask(), block.IsPrintable().ToMask() & 0xFU) << std::hex << c;
      EXPECT_EQ(four.Is('a').ToMask(), block.Is('a').ToMask() & 0xFU) << std::hex << c;
      if (static_cast<char32_t>(wide[place]) >= 0x80) {
        EXPECT_EQ(block.IsPrintable().ToMask(), kAllBytes & ~(Mask{1} << place)) << std::hex << c;
        continue;
      }
      std::array<char, Bytes::kCount> stored{};
      block.Store(stored.data());
      EXPECT_TRUE(std::equal(wide.begin(), wide.end(), stored.begin())) << std::hex << c;
      std::array<wchar_t, Bytes::kCount> widened{};
      block.StoreWidened(widened.data());
      EXPECT_EQ(widened, wide) << std::hex << c;
    }
  }
}

}  // namespace
}  // namespace tolva::platform
