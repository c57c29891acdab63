#include "cli/diff_compare.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

#include "cli/align.h"

namespace tolva::cli {
namespace {

using Index = Tree::Index;
using Range = Tree::Range;

// ---- likeness ----------------------------------------------------------------------------------

/// How much two elements have in common: `same` of `all`, in parts of a value.
struct Likeness {
  std::uint64_t same = 0;
  std::uint64_t all = 0;

  void Add(std::uint64_t more_same, std::uint64_t more_all) {
    same += more_same;
    all += more_all;
  }
};

constexpr std::uint64_t kWhole = 16;  ///< parts of a value

class LikenessMeter {
 public:
  LikenessMeter(const Tree& from, const Tree& to) : from_(from), to_(to) {}

  Likeness Measure(Index from, Index to) const {
    Likeness likeness;
    if (from_.Identity(from) == to_.Identity(to)) {
      AddSame(from, likeness);
      return likeness;
    }
    const Element& element = from_.ElementAt(from);
    if (element.text.has_value()) {
      AddValues(from_.Text(from), to_.Text(to), *element.text, likeness);
    }
    for (const Attribute& attribute : element.attributes) {
      const std::uint32_t old_value = from_.Value(from, attribute);
      const std::uint32_t new_value = to_.Value(to, attribute);
      // Names are alike only if they are the same.
      const bool is_like = old_value == new_value || !attribute.names_item;
      AddValues(old_value, new_value, attribute.value, likeness, is_like);
    }
    for (const Child& child : element.children) {
      AddChildren(from_.Children(from, child), to_.Children(to, child), likeness);
    }
    return likeness;
  }

 private:
  void AddValues(std::uint32_t from, std::uint32_t to, const Value& value, Likeness& likeness,
                 bool is_like = true) const {
    if (from == 0 && to == 0) return;
    if (from == to) {
      likeness.Add(kWhole, kWhole);
    } else if (from == 0 || to == 0 || !is_like || value.type != Value::Type::kText) {
      likeness.Add(0, kWhole);
    } else {
      likeness.Add(PartsInCommon(from_.pool().values[from], to_.pool().values[to]), kWhole);
    }
  }

  /// The share of what two texts have in common at their starts and ends.
  static std::uint64_t PartsInCommon(std::span<const char> from, std::span<const char> to) {
    constexpr std::size_t kMost = 1000;  // further characters are not looked at
    from = from.first(std::min(from.size(), kMost));
    to = to.first(std::min(to.size(), kMost));
    const auto [front, unused] = std::ranges::mismatch(from, to);
    const auto start = static_cast<std::size_t>(front - from.begin());
    const std::size_t shorter = std::min(from.size(), to.size());
    std::size_t end = 0;
    while (end < shorter - start && from[from.size() - 1 - end] == to[to.size() - 1 - end]) ++end;
    const auto longer = std::max<std::size_t>({from.size(), to.size(), 1});
    return (start + end) * kWhole / longer;
  }

  /// Equal elements at the starts and ends of both correspond, and the others in their order.
  void AddChildren(Range from, Range to, Likeness& likeness) const {
    while (from.count != 0 && to.count != 0 &&
           from_.Identity(from.first) == to_.Identity(to.first)) {
      AddSame(from.first, likeness);
      from = {from.first + 1, from.count - 1};
      to = {to.first + 1, to.count - 1};
    }
    while (from.count != 0 && to.count != 0 &&
           from_.Identity(from.first + from.count - 1) == to_.Identity(to.first + to.count - 1)) {
      AddSame(from.first + --from.count, likeness);
      --to.count;
    }
    const Index pairs = std::min(from.count, to.count);
    for (Index i = 0; i < pairs; ++i) {
      const Likeness one = Measure(from.first + i, to.first + i);
      likeness.Add(one.same, one.all);
    }
    AddRest(from_, from, pairs, likeness);
    AddRest(to_, to, pairs, likeness);
  }

  void AddSame(Index from, Likeness& likeness) const {
    const std::uint64_t weight = WeightOf(from_, from);
    likeness.Add(weight, weight);
  }

  static void AddRest(const Tree& tree, Range range, Index start, Likeness& likeness) {
    for (Index i = start; i < range.count; ++i) {
      likeness.Add(0, WeightOf(tree, range.first + i));
    }
  }

  static std::uint64_t WeightOf(const Tree& tree, Index index) {
    return kWhole * std::max<std::uint64_t>(tree.Size(index), 1);
  }

  const Tree& from_;
  const Tree& to_;
};

// ---- lists -------------------------------------------------------------------------------------

/// Finds the items of two lists that correspond. Positions are from 0.
class ListMatcher {
 public:
  ListMatcher(const Tree& from, Range from_items, const Tree& to, Range to_items)
      : from_(from),
        to_(to),
        from_items_(from_items),
        to_items_(to_items),
        partner_of_from_(from_items.count, Tree::kNone),
        partner_of_to_(to_items.count, Tree::kNone) {}

  void Match(ListOrder order) {
    if (order == ListOrder::kCounts) {
      MatchInPlace();
      MatchNamesInGaps();
    }
    MatchEqual(&Tree::Identity);
    MatchEqual(&Tree::Key);
    MatchAlike(order);
  }

  /// For each new item the position of the old one; kNone: there is none.
  const std::vector<Index>& PartnersOfNew() const { return partner_of_to_; }
  const std::vector<Index>& PartnersOfOld() const { return partner_of_from_; }

 private:
  using Numbers = std::vector<std::uint32_t>;
  using NumberOf = std::uint32_t (Tree::*)(Index) const;

  void Pair(Index from, Index to) {
    partner_of_from_[from] = to;
    partner_of_to_[to] = from;
  }

  bool IsFreeFrom(Index position) const { return partner_of_from_[position] == Tree::kNone; }
  bool IsFreeTo(Index position) const { return partner_of_to_[position] == Tree::kNone; }
  std::uint32_t KeyFrom(Index position) const { return from_.Key(from_items_.first + position); }
  std::uint32_t KeyTo(Index position) const { return to_.Key(to_items_.first + position); }

  static Numbers NumbersOf(const Tree& tree, Range items, NumberOf number) {
    Numbers numbers;
    numbers.reserve(items.count);
    for (Index i = 0; i < items.count; ++i) numbers.push_back((tree.*number)(items.first + i));
    return numbers;
  }

  /// Equal items that are in the same order on both sides.
  void MatchInPlace() {
    const Numbers old_items = NumbersOf(from_, from_items_, &Tree::Identity);
    const Numbers new_items = NumbersOf(to_, to_items_, &Tree::Identity);
    for (const auto& [from, to] : Align(old_items, new_items)) Pair(from, to);
  }

  /// Between two neighbours that have been matched in place, items of one name correspond in their
  /// order. This matters if several items of the list have the name.
  void MatchNamesInGaps() {
    Index from = 0;
    Index to = 0;
    while (from < from_items_.count && to < to_items_.count) {
      Index from_end = from;
      Index to_end = to;
      while (from_end < from_items_.count && IsFreeFrom(from_end)) ++from_end;
      while (to_end < to_items_.count && IsFreeTo(to_end)) ++to_end;
      MatchEqual(&Tree::Key, {from, from_end - from}, {to, to_end - to});
      from = from_end + 1;
      to = to_end + 1;
    }
  }

  void MatchEqual(NumberOf number) {
    MatchEqual(number, {0, from_items_.count}, {0, to_items_.count});
  }

  /// Free items whose numbers are equal correspond in their order.
  void MatchEqual(NumberOf number, Range from, Range to) {
    using Numbered = std::pair<std::uint32_t, Index>;
    std::vector<Numbered> old_items;
    std::vector<Numbered> new_items;
    if (from.count == 0 || to.count == 0) return;
    for (Index i = from.first; i < from.first + from.count; ++i) {
      const std::uint32_t one = (from_.*number)(from_items_.first + i);
      if (IsFreeFrom(i) && one != 0) old_items.emplace_back(one, i);
    }
    for (Index i = to.first; i < to.first + to.count; ++i) {
      const std::uint32_t one = (to_.*number)(to_items_.first + i);
      if (IsFreeTo(i) && one != 0) new_items.emplace_back(one, i);
    }
    std::ranges::sort(old_items);
    std::ranges::sort(new_items);
    auto old_item = old_items.begin();
    auto new_item = new_items.begin();
    while (old_item != old_items.end() && new_item != new_items.end()) {
      if (old_item->first == new_item->first) {
        Pair((old_item++)->second, (new_item++)->second);
      } else if (old_item->first < new_item->first) {
        ++old_item;
      } else {
        ++new_item;
      }
    }
  }

  // ---- what is left, by likeness ---------------------------------------------------------------

  struct Candidate {
    std::uint32_t unlikeness;  ///< in millionths
    std::uint32_t distance;
    Index from;
    Index to;
  };

  static constexpr std::uint32_t kMillion = 1'000'000;

  void MatchAlike(ListOrder order) {
    std::vector<Index> left;  ///< the old items that are free
    for (Index i = 0; i < from_items_.count; ++i) {
      if (IsFreeFrom(i)) left.push_back(i);
    }
    std::vector<Candidate> candidates;
    for (Index start = 0; start < to_items_.count && !left.empty(); ++start) {
      Index end = start;
      while (end < to_items_.count && IsFreeTo(end)) ++end;
      Range gap = GapOf(start, end);
      if (order == ListOrder::kIsIgnored) gap.count = 0;
      for (Index i = start; i < end; ++i) {
        AddCandidates(left, gap, i, end - start, i - start, candidates);
      }
      start = end;
    }
    std::ranges::sort(candidates, {}, [](const Candidate& one) {
      return std::tie(one.unlikeness, one.distance, one.from, one.to);
    });
    for (const Candidate& one : candidates) {
      if (IsFreeFrom(one.from) && IsFreeTo(one.to)) Pair(one.from, one.to);
    }
  }

  /// The free old items between the neighbours of new items. None, but where they would be, if the
  /// neighbours are not neighbours there.
  Range GapOf(Index start, Index end) const {
    const Index first = start == 0 ? 0 : partner_of_to_[start - 1] + 1;
    Index last = first;
    while (last < from_items_.count && IsFreeFrom(last)) ++last;
    const Index next = end == to_items_.count ? from_items_.count : partner_of_to_[end];
    return {first, last == next ? last - first : 0};
  }

  /// Looks for old items that are like a new one, the `number`-th of `count` in its gap. What has
  /// got another name is the same item only if it is in its place.
  void AddCandidates(const std::vector<Index>& left, Range gap, Index to, Index count, Index number,
                     std::vector<Candidate>& candidates) const {
    constexpr std::ptrdiff_t kBefore = 4;
    constexpr std::ptrdiff_t kAfter = 12;
    const Index expected = gap.first + number;
    const auto middle = std::ranges::lower_bound(left, expected);
    const auto first = middle - std::min(kBefore, middle - left.begin());
    const auto last = middle + std::min(kAfter, left.end() - middle);
    for (auto one = first; one != last; ++one) {
      const bool is_named = KeyFrom(*one) != 0 || KeyTo(to) != 0;
      const bool is_in_gap = *one >= gap.first && *one - gap.first < gap.count;
      if (is_named && !is_in_gap) continue;
      const Likeness likeness =
          LikenessMeter(from_, to_).Measure(from_items_.first + *one, to_items_.first + to);
      const bool is_like =
          is_named ? 2 * likeness.same > likeness.all : 2 * likeness.same >= likeness.all;
      const bool is_alone = is_in_gap && gap.count == 1 && count == 1;
      if (!is_like && (is_named || !is_alone)) continue;
      const std::uint64_t all = std::max<std::uint64_t>(likeness.all, 1);
      const auto unlikeness =
          static_cast<std::uint32_t>((likeness.all - likeness.same) * kMillion / all);
      const std::uint32_t distance = *one > expected ? *one - expected : expected - *one;
      candidates.push_back({unlikeness, distance, *one, to});
    }
  }

  const Tree& from_;
  const Tree& to_;
  const Range from_items_;
  const Range to_items_;
  std::vector<Index> partner_of_from_;
  std::vector<Index> partner_of_to_;
};

// ---- documents ---------------------------------------------------------------------------------

class Comparer {
 public:
  explicit Comparer(const Comparison& comparison)
      : from_(comparison.From()), to_(comparison.To()), order_(comparison.pool.order) {}

  /// Finds what differs in two elements that correspond.
  void AddChildren(Difference& difference) const {
    if (from_.Identity(difference.from) == to_.Identity(difference.to)) return;
    for (const Child& child : from_.ElementAt(difference.from).children) {
      const Range from = from_.Children(difference.from, child);
      const Range to = to_.Children(difference.to, child);
      if (child.occurrence == Occurrence::kRepeated) {
        AddItems(child, from, to, difference.children);
      } else if (from.count != 0 && to.count != 0) {
        AddPair(child, from.first, to.first, difference.children);
      } else {
        if (from.count != 0) difference.children.push_back({&child, from.first});
        if (to.count != 0) difference.children.push_back({&child, Tree::kNone, to.first});
      }
    }
  }

 private:
  void AddPair(const Child& child, Index from, Index to, std::vector<Difference>& out) const {
    if (from_.Identity(from) == to_.Identity(to)) return;
    out.push_back({&child, from, to});
    AddChildren(out.back());
  }

  bool AreEqual(Range from, Range to) const {
    if (from.count != to.count) return false;
    for (Index i = 0; i < from.count; ++i) {
      if (from_.Identity(from.first + i) != to_.Identity(to.first + i)) return false;
    }
    return true;
  }

  /// What is removed is told where it was, before what is added there, and the rest where it is.
  void AddItems(const Child& child, Range from, Range to, std::vector<Difference>& out) const {
    if (AreEqual(from, to)) return;
    ListMatcher matcher(from_, from, to_, to);
    matcher.Match(order_);
    const std::vector<bool> has_moved = Moves(matcher.PartnersOfNew());
    Index next = 0;  // old item
    const auto add_removed = [&](Index end) {
      for (; next < end; ++next) {
        if (matcher.PartnersOfOld()[next] != Tree::kNone) continue;
        out.push_back({&child, from.first + next, Tree::kNone, next, 0});
      }
    };
    for (Index i = 0; i < to.count; ++i) {
      const Index partner = matcher.PartnersOfNew()[i];
      if (partner == Tree::kNone) {
        Index end = next;
        while (end < from.count && matcher.PartnersOfOld()[end] == Tree::kNone) ++end;
        add_removed(end);
        out.push_back({&child, Tree::kNone, to.first + i, 0, i});
        continue;
      }
      if (!has_moved[i]) {
        add_removed(partner);
        next = partner + 1;
      }
      const Index old_item = from.first + partner;
      const Index new_item = to.first + i;
      if (!has_moved[i] && from_.Identity(old_item) == to_.Identity(new_item)) continue;
      out.push_back({&child, old_item, new_item, partner, i, has_moved[i]});
      AddChildren(out.back());
    }
    add_removed(from.count);
  }

  /// Which of the new items have changed places with others.
  std::vector<bool> Moves(const std::vector<Index>& partners) const {
    std::vector<bool> has_moved(partners.size());
    if (order_ == ListOrder::kIsIgnored) return has_moved;
    std::vector<Index> kept;
    for (const Index partner : partners) {
      if (partner != Tree::kNone) kept.push_back(partner);
    }
    const std::vector<bool> stays = LongestAscent(kept);
    std::size_t number = 0;
    for (std::size_t i = 0; i < partners.size(); ++i) {
      if (partners[i] != Tree::kNone) has_moved[i] = !stays[number++];
    }
    return has_moved;
  }

  const Tree& from_;
  const Tree& to_;
  const ListOrder order_;
};

}  // namespace

void Compare(Comparison& comparison) {
  comparison.root = {nullptr, Tree::kRoot, Tree::kRoot};
  Comparer(comparison).AddChildren(comparison.root);
}

}  // namespace tolva::cli
