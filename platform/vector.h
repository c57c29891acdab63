// Sixteen bytes at a time: SSE2 where the compiler has it, which on x86-64 is always. Code that
// uses this has a plain loop for the rest of a run, and that loop alone elsewhere.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define TOLVA_HAS_VECTORS 1
#else
#define TOLVA_HAS_VECTORS 0
#endif

#if TOLVA_HAS_VECTORS
namespace tolva::platform {

/// One bit for each of sixteen bytes.
using Mask = std::uint32_t;

class Bytes {
 public:
  static constexpr std::size_t kCount = 16;

  static Bytes Load(const char* at) {
    return Bytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)));
  }

  /// Sixteen wide characters; those beyond ASCII become something that is no printable ASCII.
  static Bytes LoadNarrowed(const wchar_t* at) {
    const auto* const parts = reinterpret_cast<const __m128i*>(at);
    const auto part = [parts](int i) { return _mm_loadu_si128(parts + i); };
    if constexpr (sizeof(wchar_t) == 2) {
      return Bytes(_mm_packus_epi16(part(0), part(1)));
    } else {
      return Bytes(
          _mm_packus_epi16(_mm_packs_epi32(part(0), part(1)), _mm_packs_epi32(part(2), part(3))));
    }
  }

  void Store(char* at) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(at), bytes_); }

  Bytes Is(Bytes other) const { return Bytes(_mm_cmpeq_epi8(bytes_, other.bytes_)); }
  Bytes Is(char c) const { return Bytes(_mm_cmpeq_epi8(bytes_, _mm_set1_epi8(c))); }

  /// Control characters and all bytes outside ASCII: as signed numbers, those below a blank.
  Bytes IsBelowBlankOrNonAscii() const {
    return Bytes(_mm_cmplt_epi8(bytes_, _mm_set1_epi8(0x20)));
  }

  /// Control characters alone.
  Bytes IsBelowBlank() const {
    return Bytes(_mm_cmpeq_epi8(_mm_min_epu8(bytes_, _mm_set1_epi8(0x1F)), bytes_));
  }

  /// 'a' to 'z' and 'A' to 'Z'.
  Bytes IsLetter() const {
    const __m128i index =
        _mm_sub_epi8(_mm_or_si128(bytes_, _mm_set1_epi8(0x20)), _mm_set1_epi8('a'));
    return Bytes(_mm_cmpeq_epi8(_mm_min_epu8(index, _mm_set1_epi8(25)), index));
  }

  Bytes operator|(Bytes other) const { return Bytes(_mm_or_si128(bytes_, other.bytes_)); }

  /// What is set here and not there.
  Bytes Without(Bytes other) const { return Bytes(_mm_andnot_si128(other.bytes_, bytes_)); }

  Mask ToMask() const { return static_cast<Mask>(_mm_movemask_epi8(bytes_)); }

  bool IsAscii() const { return ToMask() == 0; }

  __m128i native() const { return bytes_; }

 private:
  explicit Bytes(__m128i bytes) : bytes_(bytes) {}

  __m128i bytes_;
};

inline constexpr Mask kAll = 0xFFFF;

inline unsigned FirstOf(Mask mask) { return static_cast<unsigned>(std::countr_zero(mask)); }

}  // namespace tolva::platform
#endif
