// The differences of two documents as a list of changes, with paths.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "cli/diff_compare.h"

namespace tolva::cli {

enum class ChangeKind : std::uint8_t { kChanged, kAdded, kRemoved, kMoved };

/// "changed", "added", "removed", "moved".
std::string_view NameOf(ChangeKind kind);

inline constexpr ChangeKind kChangeKinds[] = {ChangeKind::kChanged, ChangeKind::kAdded,
                                              ChangeKind::kRemoved, ChangeKind::kMoved};

/// What is meant: an attribute, the text of an element, or an element with all that is in it.
/// Elements are added, removed or moved. Texts are changed.
struct Change {
  ChangeKind kind;
  std::string path;                      ///< in the old document; the last name of what is added
                                         ///< is as in the new one
  std::string new_path;                  ///< in the new document; empty if it is not there
  const Element* element;                ///< the element, or the one that has the attribute
  const Attribute* attribute = nullptr;  ///< null: the element or its text
  bool is_item = false;                  ///< the element is that of a list
  const Value* value = nullptr;          ///< of the attribute or text; null: the element
  std::uint32_t old_value = 0;           ///< in the pool
  std::uint32_t new_value = 0;
  Tree::Index from = Tree::kNone;  ///< the element
  Tree::Index to = Tree::kNone;
  std::uint32_t from_position = 0;  ///< of an item in its list, from 0
  std::uint32_t to_position = 0;

  bool IsSecret() const { return attribute != nullptr && attribute->is_secret; }
};

/// Writes the steps of paths to the children of one kind. Items of a list are told by what names
/// them if a path can say so and no other item of the list has that name, else by their positions.
class StepWriter {
 public:
  StepWriter(const Tree& tree, const Child& child, Tree::Range items);

  /// `Location[Name="Office"]`, `Location[2]`; of a child that is no item, its name.
  std::string Step(Tree::Index position) const;

  /// What names the item, for people: "Office"; empty if nothing does.
  std::string Label(Tree::Index position) const;

 private:
  const Tree& tree_;
  const Child& child_;
  const Tree::Range items_;
  std::unordered_map<std::uint64_t, std::size_t> uses_;  ///< of values that name items
};

/// Path and step.
std::string Joined(const std::string& path, const std::string& step);

/// Calls the functions with what differs in two elements that correspond, leaving out what is in
/// their children: the change of the text, and of each attribute.
void ForEachValueChange(const Comparison& comparison, const Difference& pair,
                        const std::string& path, const std::string& new_path,
                        const std::function<void(const Change&)>& visit);

/// Calls the function with each change, in the order in which documents are written.
void ForEachChange(const Comparison& comparison, const std::function<void(const Change&)>& visit);

}  // namespace tolva::cli
