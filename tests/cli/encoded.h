// Text in the encodings of documents.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/utf.h"

namespace tolva::test {

inline std::u32string CodePoints(std::string_view utf8) {
  std::u32string text;
  const std::string terminated(utf8);
  for (const char* at = terminated.c_str(); *at != '\0';) text += platform::TakeCodePoint(at);
  return text;
}

/// UTF-8, ISO-8859-1, UTF-16LE or UTF-16BE, without a byte order mark.
inline std::string Encoded(std::u32string_view text, std::string_view encoding) {
  std::string bytes;
  for (const char32_t c : text) {
    if (encoding == "UTF-8") {
      std::array<char, 4> room = {};
      bytes.append(room.data(), platform::EncodeUtf8(c, room.data()));
    } else if (encoding == "ISO-8859-1") {
      bytes += static_cast<char>(c);
    } else {
      const auto add = [&](char32_t unit) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += encoding == "UTF-16LE" ? low : high;
        bytes += encoding == "UTF-16LE" ? high : low;
      };
      if (c > 0xFFFF) add(0xD800 + ((c - 0x10000) >> 10));
      add(c > 0xFFFF ? 0xDC00 + (c & 0x3FF) : c);
    }
  }
  return bytes;
}

}  // namespace tolva::test
