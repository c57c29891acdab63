#include "cli/line_diff.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>
#include <vector>

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

/// Marks the lines that are removed and added, by Myers' algorithm in linear space: the middle of a
/// shortest path through the grid of both texts is found from its two ends, and then the paths to
/// the middle and from it on.
class LineMarker {
 public:
  LineMarker(const Lines& before, const Lines& after)
      : removed(before.size()), added(after.size()), before_(before), after_(after) {
    Mark(0, Size(before), 0, Size(after));
  }

  std::vector<bool> removed;
  std::vector<bool> added;

 private:
  using Index = std::ptrdiff_t;

  /// After so many steps from either end, the furthest point that has been reached will do.
  static constexpr Index kMostSteps = 256;

  static Index Size(const Lines& lines) { return static_cast<Index>(lines.size()); }
  static std::size_t At(Index index) { return static_cast<std::size_t>(index); }

  /// A part of both texts.
  struct Box {
    Index left;
    Index right;
    Index top;
    Index bottom;
  };

  struct Point {
    Index x;
    Index y;
  };

  /// How far paths have come from one end of a box, on each diagonal x - y.
  struct Front {
    bool is_backward;  ///< from the end; x and y count from there
    std::vector<Index> furthest = {};

    Index& At(Index diagonal) { return furthest[LineMarker::At(diagonal + kMostSteps + 1)]; }
  };

  static constexpr Index kNone = -1;

  bool IsSame(Index before, Index after) const { return before_[At(before)] == after_[At(after)]; }

  void Mark(Index left, Index right, Index top, Index bottom) {
    for (;;) {
      while (left < right && top < bottom && IsSame(left, top)) ++left, ++top;
      while (left < right && top < bottom && IsSame(right - 1, bottom - 1)) --right, --bottom;
      if (left == right || top == bottom) break;
      const Point middle = FindMiddle({left, right, top, bottom});
      Mark(left, middle.x, top, middle.y);
      left = middle.x;
      top = middle.y;
    }
    std::fill(removed.begin() + left, removed.begin() + right, true);
    std::fill(added.begin() + top, added.begin() + bottom, true);
  }

  /// A point on a shortest path, or, if that is long, on a short one. The texts in the box differ
  /// in their first and last lines, so it is none of the path's ends.
  Point FindMiddle(const Box& box) {
    for (Front* const front : {&forward_, &backward_}) {
      front->furthest.assign(At(2 * kMostSteps + 3), kNone);
    }
    const Index delta = (box.right - box.left) - (box.bottom - box.top);
    for (Index steps = 0; steps <= kMostSteps; ++steps) {
      for (Front* const front : {&forward_, &backward_}) {
        Front& other = front->is_backward ? forward_ : backward_;
        // The last of the steps was the other front's if the path has an even number of them.
        const bool may_meet = (delta % 2 == 0) == front->is_backward;
        for (Index k = -steps; k <= steps; k += 2) {
          const Index x = Advance(*front, k, steps, box);
          const bool is_reachable = x != kNone && may_meet && std::abs(delta - k) <= kMostSteps;
          const Index met = is_reachable ? other.At(delta - k) : kNone;
          if (met == kNone || x + met < box.right - box.left) continue;
          return front->is_backward ? Point{box.right - x, box.bottom - (x - k)}
                                    : Point{box.left + x, box.top + (x - k)};
        }
      }
    }
    Point furthest = {box.left, box.top};
    for (Index k = -kMostSteps; k <= kMostSteps; k += 2) {
      const Index x = forward_.At(k);
      if (x == kNone || 2 * x - k <= furthest.x - box.left + furthest.y - box.top) continue;
      furthest = {box.left + x, box.top + (x - k)};
    }
    return furthest;
  }

  /// Takes a step to a diagonal, and goes along it as far as lines are the same.
  Index Advance(Front& front, Index k, Index steps, const Box& box) const {
    const Index width = box.right - box.left;
    const Index height = box.bottom - box.top;
    const Index before = front.At(k - 1);
    const Index above = front.At(k + 1);
    Index x = steps == 0 ? 0 : front.At(k);
    if (before != kNone && before < width) x = std::max(x, before + 1);
    if (above != kNone && above - k <= height) x = std::max(x, above);
    const auto is_same = [&](Index at) {
      return front.is_backward ? IsSame(box.right - 1 - at, box.bottom - 1 - (at - k))
                               : IsSame(box.left + at, box.top + (at - k));
    };
    while (x != kNone && x < width && x - k < height && is_same(x)) ++x;
    front.At(k) = x;
    return x;
  }

  const Lines& before_;
  const Lines& after_;
  Front forward_ = {false};
  Front backward_ = {true};
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
  const LineMarker marks_;
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
