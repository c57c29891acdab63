#include "platform/utf.h"

#include <algorithm>

#include "platform/vector.h"

namespace tolva::platform {
namespace {

/// The length of the well-formed, legal character that starts with a byte of 0x80 or more; 0 when
/// there is none; -1 when the buffer ends before that can be said.
int MeasureCharacter(const unsigned char* at, std::size_t size) {
  const unsigned lead = at[0];
  int length = 0;
  unsigned low = 0x80;
  unsigned high = 0xBF;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;   // overlong
    if (lead == 0xED) high = 0x9F;  // surrogates
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;   // overlong
    if (lead == 0xF4) high = 0x8F;  // beyond U+10FFFF
  } else {
    return 0;
  }
  for (int i = 1; i < length; ++i) {
    if (static_cast<std::size_t>(i) == size) return -1;
    if (at[i] < low || at[i] > high) return 0;
    low = 0x80;
    high = 0xBF;
  }
  const bool non_character = lead == 0xEF && at[1] == 0xBF && at[2] >= 0xBE;  // U+FFFE, U+FFFF
  return non_character ? 0 : length;
}

#if TOLVA_HAS_VECTORS
/// Widens sixteen ASCII bytes.
void Widen(Bytes ascii, wchar_t* out) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i halves[2] = {_mm_unpacklo_epi8(ascii.native(), zero),
                             _mm_unpackhi_epi8(ascii.native(), zero)};
  auto* at = reinterpret_cast<__m128i*>(out);
  for (const __m128i& half : halves) {
    if constexpr (sizeof(wchar_t) == 2) {
      _mm_storeu_si128(at++, half);
    } else {
      _mm_storeu_si128(at++, _mm_unpacklo_epi16(half, zero));
      _mm_storeu_si128(at++, _mm_unpackhi_epi16(half, zero));
    }
  }
}
#endif

wchar_t* EncodeWide(char32_t c, wchar_t* out) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (c > 0xFFFF) {
      *out++ = static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
      *out++ = static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
      return out;
    }
  }
  *out++ = static_cast<wchar_t>(c);
  return out;
}

}  // namespace

Utf8Prefix MeasureXmlUtf8(const char* text, std::size_t size) noexcept {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(text);
  constexpr std::size_t kAtOnce = 64;
  std::size_t i = 0;
  while (i < size) {
#if TOLVA_HAS_VECTORS
    // Mostly text is ASCII, and of the control characters line feeds alone are common.
    static_assert(kAtOnce == 4 * Bytes::kCount);
    for (; i + kAtOnce <= size; i += kAtOnce) {
      const auto unusual = [at = text + i](std::size_t part) {
        const Bytes block = Bytes::Load(at + part * Bytes::kCount);
        return block.IsBelowBlankOrNonAscii().Without(block.Is('\n'));
      };
      if ((unusual(0) | unusual(1) | unusual(2) | unusual(3)).ToMask() != 0) break;
    }
#endif
    // What the stretch holds that is not so common is looked at more closely.
    const std::size_t stretch = std::min(size, i + kAtOnce);
    while (i < stretch) {
#if TOLVA_HAS_VECTORS
      if (i + Bytes::kCount <= size) {
        const Bytes block = Bytes::Load(text + i);
        const Mask unusual = block.IsBelowBlankOrNonAscii()
                                 .Without(block.Is('\n') | block.Is('\r') | block.Is('\t'))
                                 .ToMask();
        if (unusual == 0) {
          i += Bytes::kCount;
          continue;
        }
        i += FirstOf(unusual);
      }
#endif
      if (bytes[i] < 0x80) {
        if (!IsXmlCharacter(bytes[i])) return {i, true};
        ++i;
      }
      while (i < size && bytes[i] >= 0x80) {
        const int length = MeasureCharacter(bytes + i, size - i);
        if (length <= 0) return {i, length == 0};
        i += static_cast<std::size_t>(length);
      }
    }
  }
  return {i, false};
}

const wchar_t* FindForbidden(const wchar_t* at, const wchar_t* end) noexcept {
  constexpr std::ptrdiff_t kCount = 16;
  while (at != end) {
#if TOLVA_HAS_VECTORS
    static_assert(kCount == Bytes::kCount);
    if (end - at >= kCount && Bytes::LoadNarrowed(at).IsBelowBlankOrNonAscii().ToMask() == 0) {
      at += kCount;
      continue;
    }
#endif
    const wchar_t* const stretch = at + std::min(kCount, end - at);
    while (at < stretch) {
      if (*at >= L' ' && *at < 0xD800) {  // almost always
        ++at;
        continue;
      }
      const wchar_t* const character = at;
      if (!IsXmlCharacter(TakeCodePoint(at, end))) return character;
    }
  }
  return end;
}

void AppendWide(std::string_view utf8, Buffer<wchar_t>& out) {
  // No character takes more units than it has bytes.
  wchar_t* const start = out.Room(utf8.size() + kReadAhead);
  wchar_t* to = start;
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  while (at != end) {
#if TOLVA_HAS_VECTORS
    static_assert(kReadAhead >= Bytes::kCount);
    Bytes block = Bytes::Load(at);
    for (; end - at > static_cast<std::ptrdiff_t>(Bytes::kCount) && block.IsAscii();
         block = Bytes::Load(at)) {
      Widen(block, to);
      at += Bytes::kCount;
      to += Bytes::kCount;
    }
    // The last ones are widened whatever they are; the ASCII characters at the front are kept.
    Widen(block, to);
    const Mask others = block.ToMask();
    const std::size_t ascii = std::min<std::size_t>(others == 0 ? Bytes::kCount : FirstOf(others),
                                                    static_cast<std::size_t>(end - at));
    at += ascii;
    to += ascii;
    if (ascii == Bytes::kCount || at == end) continue;
#endif
    if (static_cast<unsigned char>(*at) < 0x80) {
      *to++ = static_cast<wchar_t>(*at++);
    } else {
      to = EncodeWide(TakeCodePoint(at), to);
    }
  }
  out.Commit(static_cast<std::size_t>(to - start));
}

void AppendUtf8(std::wstring_view wide, std::string& out) {
  const wchar_t* at = wide.data();
  const wchar_t* const end = at + wide.size();
  while (at != end) {
    char bytes[4];
    char32_t c = TakeCodePoint(at, end);
    if (IsSurrogate(c) || c > kLastCodePoint) c = kReplacementCharacter;
    out.append(bytes, EncodeUtf8(c, bytes));
  }
}

}  // namespace tolva::platform
