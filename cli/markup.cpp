#include "cli/markup.h"

namespace tolva::cli {

std::string Tag(std::string_view name, std::string_view attributes, std::string_view content) {
  std::string tag = "<" + std::string(name);
  if (!attributes.empty()) tag += " " + std::string(attributes);
  return tag + ">" + std::string(content) + "</" + std::string(name) + ">";
}

std::string Breakable(std::string_view text) {
  std::string broken;
  char last = 'A';
  for (const char c : text) {
    const bool is_word = c >= 'A' && c <= 'Z' && last >= 'a' && last <= 'z';
    if (is_word || last == '/') broken += "<wbr>";
    broken += Escaped({&c, 1});
    last = c;
  }
  return broken;
}

std::string PageStart(std::string_view title, std::string_view style) {
  constexpr std::string_view kHead =
      "<!DOCTYPE html>\n"
      "<html lang=\"en\">\n"
      "<head>\n"
      "<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
      "'unsafe-inline'; script-src 'unsafe-inline'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      "<meta name=\"generator\" content=\"tolva " TOLVA_VERSION "\">\n";
  return std::string(kHead) + Tag("title", "", Escaped(title)) + "\n<style>\n" +
         std::string(style) + "</style>\n</head>\n<body>\n";
}

std::string PageEnd(std::string_view script) {
  return "<script>\n" + std::string(script) + "</script>\n</body>\n</html>\n";
}

}  // namespace tolva::cli
