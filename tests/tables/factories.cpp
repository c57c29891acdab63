#include "tables/factories.h"

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

namespace tolva::test {
namespace {

/// Whichever setters the interface has: setters.def has the names of all that there are.
template <class I>
std::vector<NullSetter> NullSettersOf() {
  std::vector<NullSetter> setters;
#define TOLVA_SETTER(name)                                                \
  if constexpr (requires(I & node) { node.Set##name(nullptr); }) {        \
    setters.push_back({L## #name, [](node::IElement& node) {              \
                         return static_cast<I&>(node).Set##name(nullptr); \
                       }});                                               \
  }
#include "tables/setters.def"
#undef TOLVA_SETTER
  return setters;
}

template <class I>
void Copy(I& to, const I& from) {
  to.CopyFrom(from);
}

/// The one whose `CopyFrom` does nothing.
void Copy(ClientConfig::IActiveDirectory& to, const ClientConfig::IActiveDirectory& from) {
  to.SetDefaultDomain(const_cast<ClientConfig::IActiveDirectory&>(from).GetDefaultDomain());
}

template <class I, auto Create>
Factory MakeFactory(const char* name, const node::Schema& schema) {
  return {name, [] { return static_cast<node::INode*>(Create()); },
          [](const node::IElement& node) {
            I* const copy = Create();
            Copy(*copy, static_cast<const I&>(node));
            return static_cast<node::INode*>(copy);
          },
          &schema, NullSettersOf<I>()};
}

}  // namespace

std::vector<Factory> AllFactories() {
  return {
#define TOLVA_FACTORY(space, name, node, type)                                  \
  MakeFactory<space::type, &space::name##_CreateNewInstance>(#space "::" #name, \
                                                             space::node::kSchema),
#include "exports/factories.def"
#undef TOLVA_FACTORY
  };
}

}  // namespace tolva::test
