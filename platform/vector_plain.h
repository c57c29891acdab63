// Sixteen bytes at a time, in portable C++. Include vector.h instead.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tolva::platform {

/// A block of sixteen bytes, for scans that look for certain characters. A comparison gives a block
/// in which the top bit of each byte says whether it matches.
class PlainBytes {
 public:
  static constexpr std::size_t kCount = 16;

  static PlainBytes Fill(char c) {
    const Word all = kOnes * static_cast<unsigned char>(c);
    return {all, all};
  }

  /// Reads sixteen bytes, at any alignment.
  static PlainBytes Load(const char* at) {
    return Make([at](std::size_t i) { return static_cast<unsigned char>(at[i]); });
  }

  /// Reads sixteen wide characters. ASCII characters keep their value; every other character
  /// becomes a byte that is not printable.
  static PlainBytes LoadNarrowed(const wchar_t* at) {
    return Make([at](std::size_t i) {
      const auto c = static_cast<char32_t>(at[i]);
      return static_cast<unsigned char>(c < 0x80 ? c : 0xFF);
    });
  }

  /// Reads four wide characters in the same way. The bytes after them are 0.
  static PlainBytes LoadFourNarrowed(const wchar_t* at) {
    return Make([at](std::size_t i) {
      const auto c = i < 4 ? static_cast<char32_t>(at[i]) : 0;
      return static_cast<unsigned char>(c < 0x80 ? c : 0xFF);
    });
  }

  /// Writes sixteen bytes, at any alignment.
  void Store(char* at) const {
    for (std::size_t i = 0; i < kCount; ++i) at[i] = static_cast<char>(Byte(i));
  }

  /// Writes each byte as a wide character.
  void StoreWidened(wchar_t* at) const {
    for (std::size_t i = 0; i < kCount; ++i) at[i] = static_cast<wchar_t>(Byte(i));
  }

  PlainBytes Is(PlainBytes other) const {
    return {ZeroBytes(low_ ^ other.low_), ZeroBytes(high_ ^ other.high_)};
  }

  PlainBytes Is(char c) const { return Is(Fill(c)); }

  /// The control characters below space.
  PlainBytes IsControl() const {
    return {ZeroBytes(low_ & kOnes * 0xE0), ZeroBytes(high_ & kOnes * 0xE0)};
  }

  /// Space and the control characters below it, but not zero. Of the characters that XML allows,
  /// these are white space.
  PlainBytes IsSpace() const { return {Spaces(low_), Spaces(high_)}; }

  /// The ASCII characters from space on.
  PlainBytes IsPrintable() const { return PlainBytes(kTops, kTops).AndNot(IsControl() | *this); }

  PlainBytes operator|(PlainBytes other) const { return {low_ | other.low_, high_ | other.high_}; }

  PlainBytes operator&(PlainBytes other) const { return {low_ & other.low_, high_ & other.high_}; }

  /// The bits that are set here and not in `other`.
  PlainBytes AndNot(PlainBytes other) const { return {low_ & ~other.low_, high_ & ~other.high_}; }

  /// The top bit of each byte: after a comparison, which bytes match; before one, which bytes are
  /// not ASCII.
  std::uint32_t ToMask() const { return TopBits(low_) | TopBits(high_) << 8; }

 private:
  using Word = std::uint64_t;

  static constexpr Word kOnes = 0x0101010101010101;
  static constexpr Word kTops = kOnes * 0x80;
  static constexpr Word kRests = kOnes * 0x7F;

  PlainBytes(Word low, Word high) : low_(low), high_(high) {}

  /// The first byte becomes the lowest, whatever the machine's byte order.
  template <class ByteAt>
  static PlainBytes Make(ByteAt byte_at) {
    PlainBytes bytes(0, 0);
    for (std::size_t i = 0; i < 8; ++i) {
      bytes.low_ |= Word{byte_at(i)} << 8 * i;
      bytes.high_ |= Word{byte_at(i + 8)} << 8 * i;
    }
    return bytes;
  }

  unsigned char Byte(std::size_t i) const {
    return static_cast<unsigned char>((i < 8 ? low_ : high_) >> 8 * (i % 8) & 0xFF);
  }

  /// Sets the top bits of the bytes that are zero: adding 0x7F to seven bits carries into the
  /// eighth unless they are all clear, and never into the next byte.
  static Word ZeroBytes(Word word) { return ~(((word & kRests) + kRests) | word) & kTops; }

  static Word Spaces(Word word) {
    const Word rest = word & kRests;
    const Word after_space = rest + kOnes * (0x80 - ' ' - 1);
    return (rest + kRests) & ~after_space & ~word & kTops;
  }

  /// Gathers the top bits: the multiplication moves the one of byte i to bit 56 + i.
  static std::uint32_t TopBits(Word word) {
    return static_cast<std::uint32_t>(((word & kTops) >> 7) * 0x0102040810204080 >> 56);
  }

  Word low_;
  Word high_;
};

}  // namespace tolva::platform
