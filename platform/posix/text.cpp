#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>

#include "platform/posix/system.h"
#include "platform/utf.h"
#include "platform/vector.h"

namespace tolva::platform {

int WideCharToMultiByte(UINT /*code_page*/, DWORD /*flags*/, const wchar_t* text, int length,
                        char* buffer, int capacity, const char* /*default_char*/,
                        BOOL* /*default_used*/) noexcept {
  // The size of the result has to fit into an int even if there is no buffer.
  const auto room = static_cast<std::size_t>(buffer == nullptr ? std::numeric_limits<int>::max()
                                                               : std::max(capacity, 0));
  std::size_t size = 0;
  const wchar_t* at = text;
  const wchar_t* const end = text + length;
  constexpr std::ptrdiff_t kCount = Bytes::kCount;
  while (at != end) {
    if (end - at >= kCount && room - size >= Bytes::kCount) {
      const Bytes block = Bytes::LoadNarrowed(at);
      // Negative values are narrowed to 0.
      if ((block.ToMask() | block.Is('\0').ToMask()) == 0) {
        if (buffer != nullptr) block.Store(buffer + size);
        size += Bytes::kCount;
        at += kCount;
        continue;
      }
    }
    const auto unit = static_cast<char32_t>(*at);
    if (unit < 0x80) {  // almost always
      if (size == room) return 0;
      if (buffer != nullptr) buffer[size] = static_cast<char>(unit);
      ++size;
      ++at;
      continue;
    }
    char bytes[4];
    char32_t c = TakeCodePoint(at, end);
    if (IsSurrogate(c) || c > kLastCodePoint) c = kReplacementCharacter;
    const auto count = static_cast<std::size_t>(EncodeUtf8(c, bytes) - bytes);
    if (room - size < count) return 0;
    if (buffer != nullptr) std::memcpy(buffer + size, bytes, count);
    size += count;
  }
  return static_cast<int>(size);
}

}  // namespace tolva::platform
