// Every element's class as its callers know it, with the table of the element.
#pragma once

#include <string>
#include <vector>

#include "node/schema.h"

namespace tolva::test {

/// The accessors of an attribute, a text or a single child.
struct ValueAccessors {
  std::wstring name;  ///< of what is set

  ConfigResult (*set_null)(node::IElement& node);

  /// Gets it from one node and sets it in another; the setter's result.
  ConfigResult (*transfer)(node::IElement& from, node::IElement& to);
};

/// The accessors of a repeated child.
struct ListAccessors {
  std::wstring name;

  /// Adds the items of one node to another.
  void (*transfer)(node::IElement& from, node::IElement& to);

  /// Expects what holds for a list unless it is empty, and empties it.
  void (*check)(node::IElement& node);
};

struct Element {
  const char* name;
  node::INode* (*make)();
  node::INode* (*copy)(const node::IElement& node);
  const node::Schema* schema;
  std::vector<ValueAccessors> values;
  std::vector<ListAccessors> lists;
};

/// Those with an exported factory, and the one without that is a node.
std::vector<Element> AllElements();

}  // namespace tolva::test
