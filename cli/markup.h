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

/// `<name attributes>content</name>`.
std::string Tag(std::string_view name, std::string_view attributes, std::string_view content);

/// A name or path that may be broken after a slash, and where a word begins within a name.
std::string Breakable(std::string_view text);

/// The start of a page that needs nothing else, up to and with the start tag of its body.
std::string PageStart(std::string_view title, std::string_view style);

/// The end of the page.
std::string PageEnd(std::string_view script);

}  // namespace tolva::cli
