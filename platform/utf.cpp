#include "platform/utf.h"

#include <algorithm>
#include <array>
#include <memory>

#include "platform/vector.h"

namespace tolva::platform {
namespace {

/// The number of bytes that are compared together.
constexpr std::size_t kStride = 4 * Bytes::kCount;

/// The length of a character that starts with a byte of 0x80 or more. 0 if it is malformed or XML
/// does not allow it; -1 if the buffer ends within it.
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

/// Skips 64 bytes at a time while they are printable ASCII and line feeds, as most text is.
std::size_t SkipUsual(const char* text, std::size_t at, std::size_t size) {
  const auto usual = [](const char* part) {
    const Bytes block = Bytes::Load(part);
    return block.IsPrintable() | block.Is('\n');
  };
  for (; at + kStride <= size; at += kStride) {
    const char* const part = text + at;
    const Bytes all = usual(part) & usual(part + Bytes::kCount) & usual(part + 2 * Bytes::kCount) &
                      usual(part + 3 * Bytes::kCount);
    if (all.ToMask() != kAllBytes) break;
  }
  return at;
}

/// Counts, of sixteen bytes, those before the first that is neither printable ASCII nor white
/// space.
unsigned CountPlain(const char* at) {
  const Bytes block = Bytes::Load(at);
  const Bytes plain = block.IsPrintable() | block.Is('\n') | block.Is('\r') | block.Is('\t');
  return FirstOf(~plain.ToMask());
}

/// Whether all bytes, and those that are looked at with the last ones, are ASCII.
bool IsAscii(std::string_view utf8) {
  for (std::size_t at = 0; at < utf8.size(); at += Bytes::kCount) {
    if (Bytes::Load(utf8.data() + at).ToMask() != 0) return false;
  }
  return true;
}

/// Converts to wide characters. There is room for as many as there are bytes, and for a block.
wchar_t* Widen(std::string_view utf8, wchar_t* to) {
  static_assert(kReadAhead >= Bytes::kCount);
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  while (at != end) {
    // All sixteen bytes are widened. Only the ASCII characters at the front are kept.
    Bytes block = Bytes::Load(at);
    block.StoreWidened(to);
    while (block.ToMask() == 0 && end - at > static_cast<std::ptrdiff_t>(Bytes::kCount)) {
      at += Bytes::kCount;
      to += Bytes::kCount;
      block = Bytes::Load(at);
      block.StoreWidened(to);
    }
    const auto ascii =
        std::min<std::size_t>(FirstOf(block.ToMask()), static_cast<std::size_t>(end - at));
    at += ascii;
    to += ascii;
    if (at != end) to = EncodeWide(TakeCodePoint(at), to);
  }
  return to;
}

}  // namespace

Utf8Prefix MeasureXmlUtf8(const char* text, std::size_t size) noexcept {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(text);
  std::size_t i = 0;
  while (i < size) {
    i = SkipUsual(text, i, size);
    const std::size_t stride_end = std::min(size, i + kStride);
    while (i < stride_end) {
      if (i + Bytes::kCount <= size) {
        const unsigned plain = CountPlain(text + i);
        i += plain;
        if (plain == Bytes::kCount) continue;
      }
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
  constexpr std::ptrdiff_t kCount = Bytes::kCount;
  while (at != end) {
    if (end - at >= kCount && Bytes::LoadNarrowed(at).IsPrintable().ToMask() == kAllBytes) {
      at += kCount;
      continue;
    }
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

void AssignWide(std::string_view utf8, std::wstring& text) {
  constexpr std::size_t kShort = 4 * Bytes::kCount;
  if (utf8.size() <= kShort) {
    // Most values are short and ASCII. The blocks also cover what follows the value.
    wchar_t wide[kShort];
    Mask others = 0;
    std::size_t done = 0;
    do {
      const Bytes block = Bytes::Load(utf8.data() + done);
      block.StoreWidened(wide + done);
      const std::size_t left = utf8.size() - done;
      const Mask counted = left >= Bytes::kCount ? kAllBytes : (Mask{1} << left) - 1;
      others |= block.ToMask() & counted;
      done += Bytes::kCount;
    } while (done < utf8.size());
    if (others == 0) {
      if (text.capacity() < utf8.size()) {
        text = std::wstring(wide, utf8.size());  // cheaper than growing
      } else {
        text.assign(wide, utf8.size());
      }
      return;
    }
  }
  if (IsAscii(utf8)) {
    text = std::wstring(utf8.begin(), utf8.end());
    return;
  }
  constexpr std::size_t kMedium = 1024;
  if (utf8.size() <= kMedium) {
    wchar_t wide[kMedium + Bytes::kCount];
    text.assign(wide, Widen(utf8, wide));
    return;
  }
  const auto wide = std::make_unique_for_overwrite<wchar_t[]>(utf8.size() + Bytes::kCount);
  text.assign(wide.get(), Widen(utf8, wide.get()));
}

void AppendUtf8(std::wstring_view wide, std::string& out) {
  constexpr std::ptrdiff_t kCount = Bytes::kCount;
  std::array<char, 1024> bytes;
  const char* const last = bytes.data() + bytes.size() - kCount;  // where a block still fits
  const wchar_t* at = wide.data();
  const wchar_t* const end = at + wide.size();
  while (at != end) {
    char* to = bytes.data();
    while (at != end && to <= last) {
      if (end - at >= kCount) {
        const Bytes block = Bytes::LoadNarrowed(at);
        // Negative values are narrowed to 0.
        if ((block.ToMask() | block.Is('\0').ToMask()) == 0) {
          block.Store(to);
          to += kCount;
          at += kCount;
          continue;
        }
      }
      char32_t c = TakeCodePoint(at, end);
      if (IsSurrogate(c) || c > kLastCodePoint) c = kReplacementCharacter;
      to = EncodeUtf8(c, to);
    }
    out.append(bytes.data(), to);
  }
}

}  // namespace tolva::platform
