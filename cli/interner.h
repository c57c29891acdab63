// Sequences by number: equal ones have the same.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>
#include <span>
#include <type_traits>
#include <vector>

#include "cli/session.h"

namespace tolva::cli {

inline std::uint64_t RandomOddNumber() {
  std::random_device random;
  return (static_cast<std::uint64_t>(random()) << 32) | random() | 1;
}

/// Keeps each sequence once. Numbers are from 1 on, in the order of the first occurrence.
template <class T>
class Interner {
 public:
  using Number = std::uint32_t;

  Number Intern(std::span<const T> sequence) {
    if (2 * (hashes_.size() + 1) > places_.size()) Grow();
    const std::uint64_t hash = MakeHashKey(sequence);
    std::size_t place = PlaceOf(hash);
    for (; places_[place] != 0; place = Next(place)) {
      const Number number = places_[place];
      if (hashes_[number - 1] == hash && std::ranges::equal((*this)[number], sequence)) {
        return number;
      }
    }
    if (hashes_.size() == std::numeric_limits<Number>::max() - 1) {
      throw Trouble("the documents are too large");
    }
    items_.insert(items_.end(), sequence.begin(), sequence.end());
    ends_.push_back(items_.size());
    hashes_.push_back(hash);
    return places_[place] = static_cast<Number>(hashes_.size());
  }

  std::span<const T> operator[](Number number) const {
    const std::size_t start = number == 1 ? 0 : ends_[number - 2];
    return std::span(items_).subspan(start, ends_[number - 1] - start);
  }

 private:
  /// Nobody can make documents whose sequences collide: the factor is a secret of the process.
  static std::uint64_t MakeHashKey(std::span<const T> sequence) {
    static const std::uint64_t factor = RandomOddNumber();
    std::uint64_t hash = factor ^ sequence.size();
    for (const T one : sequence) {
      hash = (hash ^ static_cast<std::make_unsigned_t<T>>(one)) * factor;
      hash ^= hash >> 29;
    }
    return hash;
  }

  std::size_t PlaceOf(std::uint64_t hash) const { return (hash >> 7) & (places_.size() - 1); }
  std::size_t Next(std::size_t place) const { return (place + 1) & (places_.size() - 1); }

  void Grow() {
    constexpr std::size_t kLeast = 1024;
    places_.assign(std::max(kLeast, 2 * places_.size()), 0);
    for (std::size_t i = 0; i < hashes_.size(); ++i) {
      std::size_t place = PlaceOf(hashes_[i]);
      while (places_[place] != 0) place = Next(place);
      places_[place] = static_cast<Number>(i + 1);
    }
  }

  std::vector<T> items_;           ///< of all sequences, one after the other
  std::vector<std::size_t> ends_;  ///< where each ends
  std::vector<std::uint64_t> hashes_;
  std::vector<Number> places_;  ///< a power of two, at least half of them free: 0
};

}  // namespace tolva::cli
