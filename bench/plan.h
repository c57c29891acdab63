// What the rivals of the typed read and write are told of the documents: names as they want them,
// found as fast as the library finds them. They fill, and write, the library's own nodes.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
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
  std::uint32_t required = 0;  ///< a bit for each child that has to be there
};

/// The plans of a document's elements.
class Plans {
 public:
  explicit Plans(const node::Schema& root) : root_(Make(root)) {}
  const Plan& root() const { return *root_; }

 private:
  static std::string Narrow(std::wstring_view text) {
    std::string narrow;
    while (*text != 0) narrow += static_cast<char>(*text++);
    return narrow;
  }

  const Plan* Make(const node::Schema& schema) {
    std::unique_ptr<Plan>& plan = plans_[&schema];
    if (plan) return plan.get();
    plan = std::make_unique<Plan>();
    Plan* const made = plan.get();
    made->schema = &schema;
    made->name = Narrow(schema.element);
    for (const node::Attribute& row : schema.attributes) {
      made->attributes.push_back({Narrow(row.name), &row, {}});
      for (const node::Name& text : row.enum_texts.texts) {
        made->attributes.back().enum_texts.push_back(Narrow(text));
      }
    }
    std::uint32_t bit = 1;
    for (const node::Child& row : schema.children) {
      if (row.occurrence == node::Occurrence::kRequired) made->required |= bit;
      bit <<= 1;
      made->children.push_back({Narrow(row.name()), &row, Make(*row.schema)});
    }
    return made;
  }

  std::map<const node::Schema*, std::unique_ptr<Plan>> plans_;
  const Plan* root_;
};

/// Stores an attribute's value in a node. `Widen` makes wide strings of UTF-8.
template <class Widen>
bool StoreAttribute(const Plan::AttributeRow& attribute, const char* value, node::IElement& node,
                    Widen widen) {
  const node::FieldRef field = attribute.row->locate(node);
  if (field.present != nullptr) *field.present = 1;
  switch (attribute.row->type) {
    case node::ValueType::kString:
      widen(value, *static_cast<std::wstring*>(field.value));
      return true;
    case node::ValueType::kEnum:
      for (std::size_t i = 0; i < attribute.enum_texts.size(); ++i) {
        if (attribute.enum_texts[i] != value) continue;
        *static_cast<DWORD*>(field.value) = static_cast<DWORD>(i);
        return true;
      }
      return false;
    default:
      break;
  }
  char* end = nullptr;
  const unsigned long long number = std::strtoull(value, &end, 10);
  if (attribute.row->type == node::ValueType::kNumber) {
    *static_cast<DWORD*>(field.value) = static_cast<DWORD>(number);
  } else {
    *static_cast<std::uint64_t*>(field.value) = number;
  }
  return *end == '\0';
}

/// The row of that name, sought from where the last one was found: writers keep to the order.
template <class Row>
const Row* FindRow(const std::vector<Row>& rows, const char* name, std::size_t& next) {
  for (std::size_t tried = 0; tried < rows.size(); ++tried) {
    if (next >= rows.size()) next = 0;
    const Row& row = rows[next];
    if (row.name == name) return &row;
    ++next;
  }
  return nullptr;
}

}  // namespace tolva::bench
