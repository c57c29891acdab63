// What the rivals of the typed read and write know of the documents: the names in their own form,
// found with as few comparisons as the library makes. They fill and write the library's own nodes,
// so that everyone's result is the same.
#pragma once

#include <charconv>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "node/schema.h"

namespace tolva::bench {

struct Plan {
  struct AttributeRow {
    std::string name;
    const node::Attribute* row;
    std::vector<std::string> enum_texts;
  };
  struct ChildRow {
    std::string name;
    const node::Child* row;
    const Plan* plan;
  };

  const node::Schema* schema = nullptr;
  std::string name;
  std::vector<AttributeRow> attributes;
  std::vector<ChildRow> children;
};

/// The plans of a document's elements.
class Plans {
 public:
  explicit Plans(const node::Schema& root) : root_(Make(root)) {}
  const Plan& root() const { return *root_; }

 private:
  const Plan* Make(const node::Schema& schema) {
    std::unique_ptr<Plan>& plan = plans_[&schema];
    if (plan) return plan.get();
    plan = std::make_unique<Plan>();
    Plan* const made = plan.get();
    made->schema = &schema;
    made->name = schema.element.narrow();
    for (const node::Attribute& row : schema.attributes) {
      made->attributes.push_back({std::string(row.name.narrow()), &row, {}});
      for (const node::Name& text : row.enum_texts.texts) {
        made->attributes.back().enum_texts.emplace_back(text.narrow());
      }
    }
    for (const node::Child& row : schema.children) {
      made->children.push_back({std::string(row.name().narrow()), &row, Make(*row.schema)});
    }
    return made;
  }

  std::map<const node::Schema*, std::unique_ptr<Plan>> plans_;
  const Plan* root_;
};

/// The row of that name, sought from `next` on: writers keep to the order.
template <class Row>
const Row* FindRow(const std::vector<Row>& rows, std::string_view name, std::size_t& next) {
  for (std::size_t tried = 0; tried < rows.size(); ++tried) {
    if (next >= rows.size()) next = 0;
    const Row& row = rows[next];
    if (row.name == name) return &row;
    ++next;
  }
  return nullptr;
}

/// Fills nodes from names and values in UTF-8. `widen` makes a wide string of a value.
template <void (*widen)(std::string_view utf8, std::wstring& wide)>
class Filler {
 public:
  /// An element that is being read.
  struct Frame {
    const Plan* plan;  ///< null: nobody wants the element
    node::IElement* node;
    std::uint32_t found = 0;  ///< one bit for each kind of child
    std::size_t next_attribute = 0;
    std::size_t next_child = 0;
  };

  static bool StoreAttribute(Frame& frame, std::string_view name, std::string_view value) {
    const auto* const attribute = FindRow(frame.plan->attributes, name, frame.next_attribute);
    if (attribute == nullptr) return true;
    ++frame.next_attribute;
    const node::FieldRef field = attribute->row->locate(*frame.node);
    if (field.present != nullptr) *field.present = 1;
    switch (attribute->row->type) {
      case node::ValueType::kString:
        widen(value, *static_cast<std::wstring*>(field.value));
        return true;
      case node::ValueType::kEnum:
        for (std::size_t i = 0; i < attribute->enum_texts.size(); ++i) {
          if (attribute->enum_texts[i] != value) continue;
          *static_cast<DWORD*>(field.value) = static_cast<DWORD>(i);
          return true;
        }
        return false;
      case node::ValueType::kNumber:
        return ParseNumber(value, *static_cast<DWORD*>(field.value));
      default:
        return ParseNumber(value, *static_cast<std::uint64_t*>(field.value));
    }
  }

  static bool HasText(const Frame& frame) {
    return frame.plan != nullptr && frame.plan->schema->content.locate != nullptr;
  }

  static void StoreText(const Frame& frame, std::string_view text) {
    const node::FieldRef field = frame.plan->schema->content.locate(*frame.node);
    if (field.present != nullptr) *field.present = 1;
    widen(text, *static_cast<std::wstring*>(field.value));
  }

  static Frame MakeChild(Frame& frame, std::string_view name) {
    const auto* const child = FindRow(frame.plan->children, name, frame.next_child);
    if (child == nullptr) return {nullptr, nullptr};
    frame.found |= std::uint32_t{1} << frame.next_child;
    node::IElement& node = child->row->make(*frame.node);
    if (child->row->occurrence == node::Occurrence::kOptional) {
      *child->row->locate(*frame.node).present = 1;
    }
    return {child->plan, &node};
  }

  static bool IsComplete(const Frame& frame) {
    return frame.plan == nullptr || (frame.plan->schema->required_children & ~frame.found) == 0;
  }

 private:
  template <class Number>
  static bool ParseNumber(std::string_view text, Number& number) {
    std::uint64_t value = 0;
    const char* const end = text.data() + text.size();
    const bool is_parsed = std::from_chars(text.data(), end, value).ptr == end;
    number = static_cast<Number>(value);
    return is_parsed;
  }
};

}  // namespace tolva::bench
