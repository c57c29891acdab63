// The factories of all node classes.
#include <memory>

#include "analysisdetails/analysis_details.h"
#include "ciconf/client_configuration.h"
#include "clientconfig/active_directory.h"
#include "globalconf/client_configuration.h"
#include "installconf/install_config.h"
#include "messageconf/message_catalogue.h"
#include "ngconf/client_configuration.h"
#include "patchhistory/patch_history.h"
#include "policy/policy.h"
#include "proxyconf/client_configuration.h"
#include "rfconf/client_configuration.h"

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
