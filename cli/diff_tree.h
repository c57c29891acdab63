// What a document holds, in a form that is small and quickly compared.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/fields.h"
#include "cli/interner.h"
#include "cli/tables.h"

namespace tolva::cli {

enum class ListOrder : bool { kCounts, kIsIgnored };

/// Numbers for what several documents hold. Equal values have equal numbers.
struct Pool {
  explicit Pool(ListOrder list_order) : order(list_order) {}

  /// A value by its number; 0: it is absent.
  std::optional<std::string> Text(std::uint32_t value) const {
    if (value == 0) return std::nullopt;
    const auto text = values[value];
    return std::string(text.begin(), text.end());
  }

  const ListOrder order;
  Interner<char> values;
  Interner<std::uint32_t> sequences;  ///< of values and of elements
};

/// One document. Elements have indexes; those of one list follow one another.
class Tree {
 public:
  using Index = std::uint32_t;

  static constexpr Index kNone = 0xFFFFFFFF;
  static constexpr Index kRoot = 0;

  struct Range {
    Index first;
    Index count;
  };

  /// The pool has to live as long as the tree; the node need not.
  Tree(const Document& document, node::INode& root, Pool& pool);

  const Element& ElementAt(Index index) const { return *nodes_[index].element; }

  /// The number of a value in the pool; 0: it is absent.
  std::uint32_t Value(Index index, const Attribute& attribute) const;
  std::uint32_t Text(Index index) const { return slots_[nodes_[index].slots]; }

  /// The elements of a kind of child.
  Range Children(Index index, const Child& child) const;

  /// Elements of one kind hold the same if, and only if, these numbers are equal.
  std::uint32_t Identity(Index index) const { return nodes_[index].identity; }

  /// What names the item of a list, as a number; 0: nothing does.
  std::uint32_t Key(Index index) const { return nodes_[index].key; }

  /// How many values, and elements without any, are in the element.
  std::uint32_t Size(Index index) const { return nodes_[index].size; }

  const Pool& pool() const { return pool_; }

 private:
  struct Node {
    const Element* element;
    std::uint32_t slots;  ///< the first of: values of attributes, the text's, ranges of children
    std::uint32_t identity;
    std::uint32_t key;
    std::uint32_t size;
  };

  void Fill(Index index, const Element& element, const ElementView& view);
  Range AddChildren(const Child& child, const ElementView& view);
  std::uint32_t IdentityOf(Index index);
  std::uint32_t KeyOf(Index index);
  std::uint32_t Intern(const std::optional<std::string>& value);

  Pool& pool_;
  std::vector<Node> nodes_;
  std::vector<std::uint32_t> slots_;
};

/// An element of a tree.
class TreeView final : public ElementView {
 public:
  TreeView(const Tree& tree, Tree::Index index) : tree_(tree), index_(index) {}

  std::optional<std::string> ValueOf(const Attribute& attribute) const override;
  std::optional<std::string> Text() const override;
  void ForEach(const Child& child,
               const std::function<void(const ElementView&)>& visit) const override;

 private:
  const Tree& tree_;
  const Tree::Index index_;
};

}  // namespace tolva::cli
