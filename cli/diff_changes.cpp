#include "cli/diff_changes.h"

#include <algorithm>

#include "cli/text.h"

namespace tolva::cli {
namespace {

std::uint64_t UseOf(std::size_t attribute, std::uint32_t value) {
  return (static_cast<std::uint64_t>(attribute) << 32) | value;
}

/// Whether a path can hold the value, in one of the two kinds of quotes.
bool CanBeInPath(const std::string& value) {
  constexpr std::size_t kLongest = 100;
  const bool has_both =
      value.find('"') != std::string::npos && value.find('\'') != std::string::npos;
  return !has_both && value.size() <= kLongest && Printable(value) == value;
}

class ChangeLister {
 public:
  ChangeLister(const Comparison& comparison, const std::function<void(const Change&)>& visit)
      : comparison_(comparison), from_(comparison.From()), to_(comparison.To()), visit_(visit) {}

  void VisitPair(const Difference& pair, const std::string& path, const std::string& new_path) {
    ForEachValueChange(comparison_, pair, path, new_path, visit_);
    auto next = pair.children.begin();
    while (next != pair.children.end()) {
      const Child& child = *next->child;
      const StepWriter old_steps(from_, child, from_.Children(pair.from, child));
      const StepWriter new_steps(to_, child, to_.Children(pair.to, child));
      for (; next != pair.children.end() && next->child == &child; ++next) {
        const std::string old_step = next->IsAdded() ? "" : old_steps.Step(next->from_position);
        const std::string new_step = next->IsRemoved() ? "" : new_steps.Step(next->to_position);
        Visit(*next, Joined(path, next->IsAdded() ? new_step : old_step),
              next->IsRemoved() ? "" : Joined(new_path, new_step));
      }
    }
  }

 private:
  void Visit(const Difference& difference, const std::string& path, const std::string& new_path) {
    if (!difference.IsPair() || difference.has_moved) {
      const ChangeKind kind = difference.IsAdded()     ? ChangeKind::kAdded
                              : difference.IsRemoved() ? ChangeKind::kRemoved
                                                       : ChangeKind::kMoved;
      visit_({.kind = kind,
              .path = path,
              .new_path = new_path,
              .element = difference.child->element,
              .is_item = difference.child->occurrence == Occurrence::kRepeated,
              .from = difference.from,
              .to = difference.to,
              .from_position = difference.from_position,
              .to_position = difference.to_position});
    }
    if (difference.IsPair()) VisitPair(difference, path, new_path);
  }

  const Comparison& comparison_;
  const Tree& from_;
  const Tree& to_;
  const std::function<void(const Change&)>& visit_;
};

}  // namespace

std::string_view NameOf(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::kChanged:
      return "changed";
    case ChangeKind::kAdded:
      return "added";
    case ChangeKind::kRemoved:
      return "removed";
    default:
      return "moved";
  }
}

StepWriter::StepWriter(const Tree& tree, const Child& child, Tree::Range items)
    : tree_(tree), child_(child), items_(items) {
  if (child.occurrence != Occurrence::kRepeated) return;
  const auto& attributes = child.element->attributes;
  for (std::size_t i = 0; i < attributes.size(); ++i) {
    if (!attributes[i].names_item) continue;
    for (Tree::Index k = 0; k < items.count; ++k) {
      ++uses_[UseOf(i, tree.Value(items.first + k, attributes[i]))];
    }
  }
}

std::string StepWriter::Step(Tree::Index position) const {
  if (child_.occurrence != Occurrence::kRepeated) return child_.name;
  const auto& attributes = child_.element->attributes;
  for (std::size_t i = 0; i < attributes.size(); ++i) {
    if (!attributes[i].names_item) continue;
    const std::uint32_t value = tree_.Value(items_.first + position, attributes[i]);
    if (value == 0 || uses_.at(UseOf(i, value)) != 1) continue;
    const std::string text = *tree_.pool().Text(value);
    if (!CanBeInPath(text)) continue;
    const std::string quote = text.find('"') == std::string::npos ? "\"" : "'";
    return child_.name + "[" + attributes[i].name + "=" + quote + text + quote + "]";
  }
  return child_.name + "[" + std::to_string(position + 1) + "]";
}

std::string StepWriter::Label(Tree::Index position) const {
  if (child_.occurrence != Occurrence::kRepeated) return {};
  const Tree::Index item = items_.first + position;
  std::string label;
  const auto add = [&](std::uint32_t value) {
    const std::optional<std::string> text = tree_.pool().Text(value);
    if (text.has_value()) label += (label.empty() ? "" : ", ") + *text;
  };
  for (const Attribute& attribute : child_.element->attributes) {
    if (attribute.names_item) add(tree_.Value(item, attribute));
  }
  for (const Child& child : child_.element->children) {
    if (!child.names_item) continue;
    const Tree::Range range = tree_.Children(item, child);
    if (range.count != 0) add(tree_.Text(range.first));
  }
  return label;
}

std::string Joined(const std::string& path, const std::string& step) {
  return path.empty() ? step : path + "/" + step;
}

void ForEachValueChange(const Comparison& comparison, const Difference& pair,
                        const std::string& path, const std::string& new_path,
                        const std::function<void(const Change&)>& visit) {
  const Tree& from = comparison.From();
  const Tree& to = comparison.To();
  const Element& element = from.ElementAt(pair.from);
  Change change = {.kind = ChangeKind::kChanged,
                   .path = path,
                   .new_path = new_path,
                   .element = &element,
                   .from = pair.from,
                   .to = pair.to};
  if (element.text.has_value()) {
    change.value = &*element.text;
    change.old_value = from.Text(pair.from);
    change.new_value = to.Text(pair.to);
    if (change.old_value != change.new_value) visit(change);
    return;
  }
  for (const Attribute& attribute : element.attributes) {
    change.old_value = from.Value(pair.from, attribute);
    change.new_value = to.Value(pair.to, attribute);
    if (change.old_value == change.new_value) continue;
    change.attribute = &attribute;
    change.value = &attribute.value;
    change.kind = change.old_value == 0   ? ChangeKind::kAdded
                  : change.new_value == 0 ? ChangeKind::kRemoved
                                          : ChangeKind::kChanged;
    change.path = Joined(path, attribute.name);
    change.new_path = change.kind == ChangeKind::kRemoved ? "" : Joined(new_path, attribute.name);
    visit(change);
  }
}

void ForEachChange(const Comparison& comparison, const std::function<void(const Change&)>& visit) {
  ChangeLister(comparison, visit).VisitPair(comparison.root, "", "");
}

}  // namespace tolva::cli
