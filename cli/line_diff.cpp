#include "cli/line_diff.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "cli/align.h"

namespace tolva::cli {
namespace {

using Lines = std::vector<std::string_view>;

/// Each with its line feed, which the last may lack.
Lines LinesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t size = end == std::string_view::npos ? text.size() : end + 1;
    lines.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

/// Which lines are removed and added.
class LineMarks {
 public:
  LineMarks(const Lines& before, const Lines& after)
      : removed(before.size(), true), added(after.size(), true) {
    for (const auto& [old_line, new_line] : Align(NumbersOf(before), NumbersOf(after))) {
      removed[old_line] = false;
      added[new_line] = false;
    }
  }

  std::vector<bool> removed;
  std::vector<bool> added;

 private:
  /// Lines that are the same have the same number.
  std::vector<std::uint32_t> NumbersOf(const Lines& lines) {
    std::vector<std::uint32_t> numbers;
    for (const std::string_view line : lines) {
      const auto next = static_cast<std::uint32_t>(numbers_.size());
      numbers.push_back(numbers_.try_emplace(line, next).first->second);
    }
    return numbers;
  }

  std::unordered_map<std::string_view, std::uint32_t> numbers_;
};

class HunkWriter {
 public:
  HunkWriter(const Lines& before, const Lines& after, const Style& style)
      : before_(before), after_(after), marks_(before, after), style_(style) {}

  std::string Write() {
    while (SkipEqual()) WriteHunk();
    return std::move(text_);
  }

 private:
  static constexpr std::size_t kContext = 3;

  bool IsRemoved(std::size_t line) const { return line < before_.size() && marks_.removed[line]; }
  bool IsAdded(std::size_t line) const { return line < after_.size() && marks_.added[line]; }
  bool IsChanged() const { return IsRemoved(left_) || IsAdded(right_); }

  bool SkipEqual() {
    while (left_ < before_.size() && !IsChanged()) ++left_, ++right_;
    return IsChanged();
  }

  void WriteHunk() {
    const std::size_t context = std::min(kContext, left_ - end_of_hunk_);
    left_ -= context;
    right_ -= context;
    const std::size_t left = left_;
    const std::size_t right = right_;
    std::string lines;
    // Up to so many equal lines that the next change would have a hunk of its own.
    for (std::size_t equal = 0; equal <= 2 * kContext;) {
      if (IsRemoved(left_)) {
        lines += style_.Error("-" + Take(before_, left_));
        equal = 0;
      } else if (IsAdded(right_)) {
        lines += style_.Literal("+" + Take(after_, right_));
        equal = 0;
      } else if (left_ < before_.size() && (equal < kContext || HasChangeWithin(equal))) {
        lines += " " + Take(before_, left_);
        ++right_;
        ++equal;
      } else {
        break;
      }
      lines += Ending();
    }
    text_ += style_.Name("@@ -" + Range(left, left_) + " +" + Range(right, right_) + " @@") + "\n" +
             lines;
    end_of_hunk_ = left_;
  }

  /// Whether the next change is so near that its context touches what has been written.
  bool HasChangeWithin(std::size_t equal) const {
    for (std::size_t i = 0; i <= 2 * kContext - equal; ++i) {
      if (IsRemoved(left_ + i) || IsAdded(right_ + i)) return true;
    }
    return false;
  }

  /// The next line without its line feed, which is left for `Ending`.
  std::string Take(const Lines& lines, std::size_t& index) {
    std::string_view line = lines[index++];
    has_line_feed_ = line.ends_with('\n');
    if (has_line_feed_) line.remove_suffix(1);
    return std::string(line);
  }

  std::string Ending() const { return has_line_feed_ ? "\n" : "\n\\ No newline at end of file\n"; }

  static std::string Range(std::size_t from, std::size_t to) {
    const std::size_t count = to - from;
    return std::to_string(count == 0 ? from : from + 1) + "," + std::to_string(count);
  }

  const Lines& before_;
  const Lines& after_;
  const LineMarks marks_;
  const Style& style_;
  std::string text_;
  std::size_t left_ = 0;
  std::size_t right_ = 0;
  std::size_t end_of_hunk_ = 0;  ///< before it, on the left side
  bool has_line_feed_ = false;
};

}  // namespace

std::string UnifiedDiff(std::string_view before, std::string_view after,
                        const std::string& before_name, const std::string& after_name,
                        const Style& style) {
  if (before == after) return {};
  return style.Heading("--- " + before_name) + "\n" + style.Heading("+++ " + after_name) + "\n" +
         HunkWriter(LinesOf(before), LinesOf(after), style).Write();
}

}  // namespace tolva::cli
