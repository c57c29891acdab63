// Nodes full of random content, made by their tables.
#pragma once

#include <random>
#include <string>

#include "node/schema.h"

namespace tolva::test {

/// Content that a document can hold: what is written of it reads back as it is.
class RandomContent {
 public:
  explicit RandomContent(unsigned seed) : random_(seed) {}

  /// Fills a node. One that is filled again loses all that it held.
  void Fill(const node::Schema& table, node::IElement& node);

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
  std::wstring String();
  void FillValue(node::ValueType type, const node::EnumTexts& texts, node::Numbers numbers,
                 const node::FieldRef& field);

  std::mt19937 random_;
  int depth_ = 0;
};

/// Whether two nodes of a class hold the same.
bool AreEqual(const node::Schema& table, const node::IElement& left, const node::IElement& right);

/// Whether a node holds nothing but defaults, not even where it cannot be seen for now, apart from
/// what its table says that Clear keeps: this has to be what `before` has, which may be the node.
bool IsCleared(const node::Schema& table, node::IElement& node, node::IElement& before);

}  // namespace tolva::test
