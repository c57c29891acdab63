// Which elements of two sequences correspond.
#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tolva::cli {

/// An index into the old sequence, and one into the new.
using IndexPair = std::pair<std::uint32_t, std::uint32_t>;

/// Pairs of equal elements that are in the same order on both sides: as many as can be, or nearly
/// so if the sequences differ much. The time grows with the length, and with the number of
/// differences up to a limit.
std::vector<IndexPair> Align(std::span<const std::uint32_t> from,
                             std::span<const std::uint32_t> to);

/// Whether each of the numbers, which differ, is in a longest ascending subsequence.
std::vector<bool> LongestAscent(std::span<const std::uint32_t> numbers);

}  // namespace tolva::cli
