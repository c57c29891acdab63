// The factories of all node classes.
#include <memory>

#include "exports/documents.h"

namespace {

/// A node with its default values.
template <class C>
std::unique_ptr<C> MakeNode() {
  auto node = std::make_unique<C>();
  node->Clear();
  return node;
}

}  // namespace

#define TOLVA_FACTORY(space, name, node, type) \
  space::type* space::name##_CreateNewInstance() { return MakeNode<space::node>().release(); }
#include "exports/factories.def"
#undef TOLVA_FACTORY
