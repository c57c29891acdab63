// What differs between two documents.
#pragma once

#include <memory>
#include <vector>

#include "cli/diff_tree.h"

namespace tolva::cli {

/// Two elements that correspond and differ or have moved, or one that is on one side alone.
struct Difference {
  const Child* child = nullptr;  ///< null: the roots
  Tree::Index from = Tree::kNone;
  Tree::Index to = Tree::kNone;
  std::uint32_t from_position = 0;  ///< among the elements of that kind, from 0
  std::uint32_t to_position = 0;
  bool has_moved = false;                 ///< relative to the other items of its list
  std::vector<Difference> children = {};  ///< of elements that correspond, in an order for readers

  bool IsAdded() const { return from == Tree::kNone; }
  bool IsRemoved() const { return to == Tree::kNone; }
  bool IsPair() const { return !IsAdded() && !IsRemoved(); }
};

/// Two documents of one kind, and how they differ.
class Comparison {
 public:
  Comparison(const Document& kind, ListOrder order) : document(kind), pool(order) {}
  Comparison(const Comparison&) = delete;
  Comparison& operator=(const Comparison&) = delete;

  const Tree& From() const { return *from; }
  const Tree& To() const { return *to; }
  bool AreEqual() const { return from->Identity(Tree::kRoot) == to->Identity(Tree::kRoot); }

  const Document& document;
  Pool pool;
  std::unique_ptr<const Tree> from;
  std::unique_ptr<const Tree> to;
  Difference root;  ///< has children, or attributes that differ, unless the documents are equal
};

/// Finds the differences, once both trees are there. Items of lists are matched if they have the
/// same name or are equal, and the rest by likeness.
///
/// Memory is linear. Time, too, apart from lists in which many items have changed places.
void Compare(Comparison& comparison);

}  // namespace tolva::cli
