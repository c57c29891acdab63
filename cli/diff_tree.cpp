#include "cli/diff_tree.h"

#include <algorithm>

namespace tolva::cli {

Tree::Tree(const Document& document, node::INode& root, Pool& pool) : pool_(pool) {
  nodes_.resize(1);
  Fill(kRoot, document.root(), NodeView(document.root(), root));
}

std::uint32_t Tree::Value(Index index, const Attribute& attribute) const {
  const Node& node = nodes_[index];
  return slots_[node.slots +
                static_cast<std::size_t>(&attribute - node.element->attributes.data())];
}

Tree::Range Tree::Children(Index index, const Child& child) const {
  const Node& node = nodes_[index];
  const auto number = static_cast<std::size_t>(&child - node.element->children.data());
  const std::size_t slot = node.slots + node.element->attributes.size() + 2 * number;
  return {slots_[slot], slots_[slot + 1]};
}

void Tree::Fill(Index index, const Element& element, const ElementView& view) {
  const std::size_t slots = slots_.size();
  if (slots > kNone - 0x10000) throw Trouble("the documents are too large");
  nodes_[index] = {&element, static_cast<std::uint32_t>(slots), 0, 0, 0};
  std::uint32_t size = 0;
  const auto add = [&](const std::optional<std::string>& value) {
    slots_.push_back(Intern(value));
    if (value.has_value()) ++size;
  };
  if (element.text.has_value()) add(view.Text());
  for (const Attribute& attribute : element.attributes) add(view.ValueOf(attribute));
  std::size_t slot = slots_.size();
  slots_.resize(slot + 2 * element.children.size());
  for (const Child& child : element.children) {
    const Range range = AddChildren(child, view);
    slots_[slot++] = range.first;
    slots_[slot++] = range.count;
    for (Index i = 0; i < range.count; ++i) size += std::max(nodes_[range.first + i].size, 1U);
  }
  nodes_[index].size = size;
  nodes_[index].identity = IdentityOf(index);
  nodes_[index].key = KeyOf(index);
}

Tree::Range Tree::AddChildren(const Child& child, const ElementView& view) {
  const std::size_t first = nodes_.size();
  view.ForEach(child, [this](const ElementView& /*one*/) { nodes_.emplace_back(); });
  if (nodes_.size() >= kNone) throw Trouble("the documents are too large");
  auto index = static_cast<Index>(first);
  view.ForEach(child, [&](const ElementView& one) { Fill(index++, *child.element, one); });
  return {static_cast<Index>(first), static_cast<Index>(index - first)};
}

std::uint32_t Tree::IdentityOf(Index index) {
  const Element& element = ElementAt(index);
  std::vector<std::uint32_t> sequence;
  if (element.text.has_value()) sequence.push_back(Text(index));
  for (const Attribute& attribute : element.attributes) {
    sequence.push_back(Value(index, attribute));
  }
  for (const Child& child : element.children) {
    const Range range = Children(index, child);
    sequence.push_back(range.count);
    const std::size_t start = sequence.size();
    for (Index i = 0; i < range.count; ++i) sequence.push_back(Identity(range.first + i));
    if (pool_.order == ListOrder::kIsIgnored) {
      std::sort(sequence.begin() + static_cast<std::ptrdiff_t>(start), sequence.end());
    }
  }
  return pool_.sequences.Intern(sequence);
}

std::uint32_t Tree::KeyOf(Index index) {
  const Element& element = ElementAt(index);
  std::vector<std::uint32_t> sequence;
  for (const Attribute& attribute : element.attributes) {
    if (attribute.names_item) sequence.push_back(Value(index, attribute));
  }
  for (const Child& child : element.children) {
    if (!child.names_item) continue;
    const Range range = Children(index, child);
    sequence.push_back(range.count == 0 ? 0 : Text(range.first));
  }
  const bool is_named = std::ranges::any_of(sequence, [](std::uint32_t one) { return one != 0; });
  return is_named ? pool_.sequences.Intern(sequence) : 0;
}

std::uint32_t Tree::Intern(const std::optional<std::string>& value) {
  return value.has_value() ? pool_.values.Intern(*value) : 0;
}

std::optional<std::string> TreeView::ValueOf(const Attribute& attribute) const {
  return tree_.pool().Text(tree_.Value(index_, attribute));
}

std::optional<std::string> TreeView::Text() const { return tree_.pool().Text(tree_.Text(index_)); }

void TreeView::ForEach(const Child& child,
                       const std::function<void(const ElementView&)>& visit) const {
  const Tree::Range range = tree_.Children(index_, child);
  for (Tree::Index i = 0; i < range.count; ++i) visit(TreeView(tree_, range.first + i));
}

}  // namespace tolva::cli
