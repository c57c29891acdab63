#include "cli/align.h"

#include <algorithm>
#include <cstddef>

namespace tolva::cli {
namespace {

using Sequence = std::span<const std::uint32_t>;

std::vector<std::uint32_t> Sorted(Sequence sequence) {
  std::vector<std::uint32_t> sorted(sequence.begin(), sequence.end());
  std::ranges::sort(sorted);
  return sorted;
}

/// The elements that occur in `other`, too, and where they were.
struct Common {
  Common(Sequence sequence, Sequence other, std::uint32_t offset) {
    const std::vector<std::uint32_t> known = Sorted(other);
    for (std::uint32_t i = 0; i < sequence.size(); ++i) {
      if (!std::ranges::binary_search(known, sequence[i])) continue;
      elements.push_back(sequence[i]);
      indexes.push_back(offset + i);
    }
  }

  std::vector<std::uint32_t> elements;
  std::vector<std::uint32_t> indexes;
};

/// Searches for a shortest way from the start of two sequences to their ends, as Myers describes:
/// a step leaves out an element of one of them, and equal elements cost nothing. After kMostSteps
/// it keeps the way that has come farthest, and starts anew from there.
class ShortestWay {
 public:
  ShortestWay(Sequence from, Sequence to) : from_(from), to_(to), reached_(2 * kMostSteps + 3) {}

  /// Ascending.
  std::vector<IndexPair> Pairs() {
    while (x_ < Length(from_) && y_ < Length(to_)) Advance();
    return std::move(pairs_);
  }

 private:
  using Signed = std::ptrdiff_t;

  static constexpr Signed kMostSteps = 256;

  /// Remains negative after a step.
  static constexpr Signed kUnreached = -2;

  static Signed Length(Sequence sequence) { return static_cast<Signed>(sequence.size()); }

  /// How far, in the old sequence and from the start on, ways have come on a diagonal.
  Signed& Reached(Signed diagonal) {
    return reached_[static_cast<std::size_t>(diagonal + kMostSteps + 1)];
  }

  /// The farthest that a way comes on the diagonal with a last step from one beside it.
  Signed Step(Signed steps, Signed diagonal) {
    const bool is_down =
        diagonal == -steps || (diagonal != steps && Reached(diagonal - 1) < Reached(diagonal + 1));
    return is_down ? Reached(diagonal + 1) : Reached(diagonal - 1) + 1;
  }

  Signed Slide(Signed x, Signed diagonal) const {
    Signed y = x - diagonal;
    while (x_ + x < Length(from_) && y_ + y < Length(to_) &&
           from_[static_cast<std::size_t>(x_ + x)] == to_[static_cast<std::size_t>(y_ + y)]) {
      ++x;
      ++y;
    }
    return x;
  }

  /// Goes to the ends, or as far as kMostSteps lead.
  void Advance() {
    history_.clear();
    Reached(1) = 0;
    const Signed width = Length(from_) - x_;
    const Signed height = Length(to_) - y_;
    for (Signed steps = 0; steps <= kMostSteps; ++steps) {
      Signed best = 0;
      Signed best_sum = -1;
      for (Signed diagonal = -steps; diagonal <= steps; diagonal += 2) {
        Signed x = Step(steps, diagonal);
        if (x < 0 || x > width || x - diagonal > height) {
          Reached(diagonal) = kUnreached;
          continue;
        }
        x = Slide(x, diagonal);
        Reached(diagonal) = x;
        if (2 * x - diagonal <= best_sum) continue;
        best_sum = 2 * x - diagonal;
        best = diagonal;
      }
      const auto middle = reached_.begin() + kMostSteps + 1;
      history_.emplace_back(middle - steps, middle + steps + 1);
      if (best_sum == width + height || steps == kMostSteps) {
        Keep(steps, best);
        return;
      }
    }
  }

  /// The way, back from where it has come, is kept.
  void Keep(Signed steps, Signed diagonal) {
    const auto at = [this](Signed step, Signed one) {
      return history_[static_cast<std::size_t>(step)][static_cast<std::size_t>(one + step)];
    };
    const std::size_t start = pairs_.size();
    Signed x = at(steps, diagonal);
    const Signed end_x = x_ + x;
    const Signed end_y = y_ + x - diagonal;
    for (Signed step = steps; step >= 0; --step) {
      Signed before = 0;
      Signed last = diagonal;
      if (step != 0) {
        const bool is_down =
            diagonal == -step || (diagonal != step && ReachedBefore(step, diagonal - 1) <
                                                          ReachedBefore(step, diagonal + 1));
        last = is_down ? diagonal + 1 : diagonal - 1;
        before = at(step - 1, last) + (is_down ? 0 : 1);
      }
      for (; x > before; --x) {
        pairs_.emplace_back(static_cast<std::uint32_t>(x_ + x - 1),
                            static_cast<std::uint32_t>(y_ + x - 1 - diagonal));
      }
      if (step != 0) x = at(step - 1, last);
      diagonal = last;
    }
    std::reverse(pairs_.begin() + static_cast<std::ptrdiff_t>(start), pairs_.end());
    x_ = end_x;
    y_ = end_y;
  }

  Signed ReachedBefore(Signed step, Signed diagonal) const {
    return history_[static_cast<std::size_t>(step - 1)]
                   [static_cast<std::size_t>(diagonal + step - 1)];
  }

  const Sequence from_;
  const Sequence to_;
  Signed x_ = 0;  ///< the start of the way, in the old sequence
  Signed y_ = 0;  ///< and in the new one
  std::vector<Signed> reached_;
  std::vector<std::vector<Signed>> history_;  ///< what was reached after so many steps
  std::vector<IndexPair> pairs_;
};

}  // namespace

std::vector<IndexPair> Align(Sequence from, Sequence to) {
  const auto shorter = static_cast<std::uint32_t>(std::min(from.size(), to.size()));
  std::uint32_t start = 0;
  while (start < shorter && from[start] == to[start]) ++start;
  std::uint32_t end = 0;
  while (end < shorter - start && from[from.size() - 1 - end] == to[to.size() - 1 - end]) ++end;

  std::vector<IndexPair> pairs;
  for (std::uint32_t i = 0; i < start; ++i) pairs.emplace_back(i, i);
  const Sequence from_middle = from.subspan(start, from.size() - start - end);
  const Sequence to_middle = to.subspan(start, to.size() - start - end);
  const Common from_common(from_middle, to_middle, start);
  const Common to_common(to_middle, from_middle, start);
  if (!from_common.elements.empty()) {
    for (const auto& [x, y] : ShortestWay(from_common.elements, to_common.elements).Pairs()) {
      pairs.emplace_back(from_common.indexes[x], to_common.indexes[y]);
    }
  }
  for (std::uint32_t i = end; i != 0; --i) {
    pairs.emplace_back(static_cast<std::uint32_t>(from.size()) - i,
                       static_cast<std::uint32_t>(to.size()) - i);
  }
  return pairs;
}

std::vector<bool> LongestAscent(Sequence numbers) {
  constexpr auto kNone = static_cast<std::size_t>(-1);
  std::vector<std::size_t> ends;  ///< of the ascents of each length, that with the least end
  std::vector<std::size_t> before(numbers.size(), kNone);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto at = std::ranges::lower_bound(ends, numbers[i], {},
                                             [&](std::size_t end) { return numbers[end]; });
    if (at != ends.begin()) before[i] = *(at - 1);
    if (at == ends.end()) {
      ends.push_back(i);
    } else {
      *at = i;
    }
  }
  std::vector<bool> is_in(numbers.size());
  for (std::size_t i = ends.empty() ? kNone : ends.back(); i != kNone; i = before[i]) {
    is_in[i] = true;
  }
  return is_in;
}

}  // namespace tolva::cli
