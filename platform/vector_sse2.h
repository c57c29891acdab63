// Sixteen bytes at a time, with SSE2 instructions. Include vector.h instead; vector_plain.h says
// what each member does.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

namespace tolva::platform {

class Sse2Bytes {
 public:
  static constexpr std::size_t kCount = 16;

  static Sse2Bytes Fill(char c) { return Sse2Bytes(_mm_set1_epi8(c)); }

  static Sse2Bytes Load(const char* at) {
    return Sse2Bytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)));
  }

  /// Packing saturates: what is too large becomes 0x7FFF and 0xFF, and what is negative as a signed
  /// number becomes 0.
  static Sse2Bytes LoadNarrowed(const wchar_t* at) {
    const auto* const parts = reinterpret_cast<const __m128i*>(at);
    const auto part = [parts](int i) { return _mm_loadu_si128(parts + i); };
    if constexpr (sizeof(wchar_t) == 2) {
      return Sse2Bytes(_mm_packus_epi16(part(0), part(1)));
    } else {
      return Sse2Bytes(
          _mm_packus_epi16(_mm_packs_epi32(part(0), part(1)), _mm_packs_epi32(part(2), part(3))));
    }
  }

  static Sse2Bytes LoadFourNarrowed(const wchar_t* at) {
    const __m128i zero = _mm_setzero_si128();
    const auto* const part = reinterpret_cast<const __m128i*>(at);
    if constexpr (sizeof(wchar_t) == 2) {
      return Sse2Bytes(_mm_packus_epi16(_mm_loadl_epi64(part), zero));
    } else {
      return Sse2Bytes(_mm_packus_epi16(_mm_packs_epi32(_mm_loadu_si128(part), zero), zero));
    }
  }

  void Store(char* at) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(at), bytes_); }

  void StoreWidened(wchar_t* at) const {
    const __m128i zero = _mm_setzero_si128();
    const __m128i halves[] = {_mm_unpacklo_epi8(bytes_, zero), _mm_unpackhi_epi8(bytes_, zero)};
    auto* to = reinterpret_cast<__m128i*>(at);
    for (const __m128i& half : halves) {
      if constexpr (sizeof(wchar_t) == 2) {
        _mm_storeu_si128(to++, half);
      } else {
        _mm_storeu_si128(to++, _mm_unpacklo_epi16(half, zero));
        _mm_storeu_si128(to++, _mm_unpackhi_epi16(half, zero));
      }
    }
  }

  Sse2Bytes Is(Sse2Bytes other) const { return Sse2Bytes(_mm_cmpeq_epi8(bytes_, other.bytes_)); }
  Sse2Bytes Is(char c) const { return Sse2Bytes(_mm_cmpeq_epi8(bytes_, _mm_set1_epi8(c))); }

  Sse2Bytes IsControl() const {
    return Sse2Bytes(_mm_cmpeq_epi8(_mm_min_epu8(bytes_, _mm_set1_epi8(0x1F)), bytes_));
  }

  Sse2Bytes IsSpace() const {
    const __m128i index = _mm_sub_epi8(bytes_, _mm_set1_epi8(1));
    return Sse2Bytes(_mm_cmpeq_epi8(_mm_min_epu8(index, _mm_set1_epi8(0x1F)), index));
  }

  /// Bytes that are not ASCII are negative as signed numbers.
  Sse2Bytes IsPrintable() const { return Sse2Bytes(_mm_cmpgt_epi8(bytes_, _mm_set1_epi8(0x1F))); }

  Sse2Bytes operator|(Sse2Bytes other) const {
    return Sse2Bytes(_mm_or_si128(bytes_, other.bytes_));
  }
  Sse2Bytes operator&(Sse2Bytes other) const {
    return Sse2Bytes(_mm_and_si128(bytes_, other.bytes_));
  }
  Sse2Bytes AndNot(Sse2Bytes other) const {
    return Sse2Bytes(_mm_andnot_si128(other.bytes_, bytes_));
  }

  std::uint32_t ToMask() const { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes_)); }

 private:
  explicit Sse2Bytes(__m128i bytes) : bytes_(bytes) {}

  __m128i bytes_;
};

}  // namespace tolva::platform
