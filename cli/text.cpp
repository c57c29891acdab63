#include "cli/text.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <type_traits>

#include "support/unicode.h"

namespace tolva::cli {
namespace {

using support::internal::kMalformed;
using support::internal::TakeCodePoint;

/// A path is wide on Windows, and bytes elsewhere.
template <class Text>
std::string NativeToUtf8(const Text& path) {
  if constexpr (std::is_same_v<Text, std::string>) {
    return path;
  } else {
    return ToUtf8(path);
  }
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

void AppendEscaped(std::string_view bytes, std::string& out) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += "\\x";
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
}

/// How many characters have to be inserted, removed, replaced or swapped with the next one. Letters
/// that differ in case are the same.
std::size_t Distance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> before_last(right.size() + 1);
  std::vector<std::size_t> last(right.size() + 1);
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 0; i < left.size(); ++i) {
    row[0] = i + 1;
    for (std::size_t k = 0; k < right.size(); ++k) {
      const bool is_same = Lower(left[i]) == Lower(right[k]);
      row[k + 1] = std::min({last[k] + (is_same ? 0 : 1), last[k + 1] + 1, row[k] + 1});
      const bool is_swapped = i > 0 && k > 0 && Lower(left[i]) == Lower(right[k - 1]) &&
                              Lower(left[i - 1]) == Lower(right[k]);
      if (is_swapped) row[k + 1] = std::min(row[k + 1], before_last[k - 1] + 1);
    }
    before_last.swap(last);
    last.swap(row);
  }
  return last[right.size()];
}

}  // namespace

std::filesystem::path PathOf(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string NameOf(const std::filesystem::path& path) { return NativeToUtf8(path.native()); }

bool IsControl(char32_t c) {
  struct Range {
    char32_t first;
    char32_t last;
  };
  constexpr Range kRanges[] = {
      {0x00, 0x1F},     {0x7F, 0x9F},                        // commands
      {0x61C, 0x61C},   {0x200E, 0x200F}, {0x202A, 0x202E},  // the direction of writing
      {0x2066, 0x2069},                                      // likewise
      {0x2028, 0x2029},                                      // ends of lines
      {0xFEFF, 0xFEFF},                                      // nothing that is seen
      {0xFFFE, 0xFFFF},                                      // no characters
  };
  return std::ranges::any_of(
      kRanges, [c](const Range& range) { return c >= range.first && c <= range.last; });
}

std::string Printable(std::string_view text) {
  std::string printable;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const char* const start = at;
    const char32_t c = TakeCodePoint(at, end);
    const std::string_view bytes(start, static_cast<std::size_t>(at - start));
    if (c == kMalformed || IsControl(c)) {
      AppendEscaped(bytes, printable);
    } else {
      printable += bytes;
    }
  }
  return printable;
}

std::string PrintableLines(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\t\n"), text.size());
    printable += Printable(text.substr(0, end));
    if (end != text.size()) printable += text[end];
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return printable;
}

std::size_t Columns(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Padded(std::string_view text, std::size_t width) {
  const std::size_t columns = Columns(text);
  std::string padded(text);
  if (columns < width) padded.append(width - columns, ' ');
  return padded;
}

std::vector<std::string> Wrap(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  std::string line;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (word.empty()) continue;
    if (!line.empty() && Columns(line) + 1 + Columns(word) > width) {
      lines.push_back(std::move(line));
      line.clear();
    }
    if (!line.empty()) line += ' ';
    line += word;
  }
  if (!line.empty()) lines.push_back(std::move(line));
  return lines;
}

std::string Paragraph(std::string_view text, std::size_t indent, std::size_t width) {
  constexpr std::size_t kLeast = 20;
  std::string paragraph;
  for (const std::string& line : Wrap(text, width > indent + kLeast ? width - indent : kLeast)) {
    paragraph.append(indent, ' ').append(line) += '\n';
  }
  return paragraph;
}

std::string Enumerate(std::span<const std::string> words, std::string_view last) {
  std::string all;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i != 0) all += i + 1 == words.size() ? " " + std::string(last) + " " : ", ";
    all += words[i];
  }
  return all;
}

std::string Sentence(std::string_view description) {
  std::string sentence(description);
  if (!sentence.empty() && sentence[0] >= 'a' && sentence[0] <= 'z') {
    sentence[0] = static_cast<char>(sentence[0] - 'a' + 'A');
  }
  return sentence;
}

std::string Count(std::size_t number, std::string_view noun) {
  return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

std::optional<std::string> Nearest(std::string_view name, std::span<const std::string> candidates) {
  constexpr std::size_t kLongest = 200;
  if (name.empty() || name.size() > kLongest) return std::nullopt;
  const std::string* nearest = nullptr;
  std::size_t least = std::max<std::size_t>(name.size() / 3, 1) + 1;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = Distance(name, candidate);
    // Nothing in common is not near, however short the names are.
    if (distance >= least || distance >= std::min(name.size(), candidate.size())) continue;
    least = distance;
    nearest = &candidate;
  }
  return nearest == nullptr ? std::nullopt : std::optional(*nearest);
}

std::string DidYouMean(std::string_view name, std::span<const std::string> candidates) {
  const std::optional<std::string> nearest = Nearest(name, candidates);
  return nearest.has_value() ? "; did you mean '" + *nearest + "'?" : std::string();
}

}  // namespace tolva::cli
