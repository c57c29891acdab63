// Every exported factory with the table of its element.
#pragma once

#include <string>
#include <vector>

#include "node/schema.h"

namespace tolva::test {

/// Setting something to null.
struct NullSetter {
  std::wstring name;  ///< of what is set
  ConfigResult (*call)(node::IElement& node);
};

struct Factory {
  const char* name;
  node::INode* (*make)();
  node::INode* (*copy)(const node::IElement& node);
  const node::Schema* schema;
  std::vector<NullSetter> null_setters;
};

std::vector<Factory> AllFactories();

}  // namespace tolva::test
