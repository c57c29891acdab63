// XML and HTML as text.
#pragma once

#include <string>
#include <string_view>

namespace tolva::cli {

/// Escapes what is markup in text and in attribute values.
inline std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += c;
        break;
    }
  }
  return escaped;
}

}  // namespace tolva::cli
