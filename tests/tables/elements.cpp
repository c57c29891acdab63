#include "tables/elements.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "exports/documents.h"

namespace tolva::test {
namespace {

/// What a getter of something optional stores.
template <class C, class T>
T Stored(ConfigResult (C::*)(T*));
template <class C, class T>
T Stored(ConfigResult (C::*)(T*) const);

template <class T>
ConfigResult SetTo(T& value, auto set) {
  if constexpr (std::is_pointer_v<T>) {
    return set(value);
  } else {
    return set(&value);
  }
}

template <class I, class Getter, class Setter>
ConfigResult Transfer(I& from, I& to, Getter getter, Setter setter) {
  const auto set = [&](auto* value) { return (to.*setter)(value); };
  if constexpr (std::is_invocable_v<Getter, I&>) {
    auto value = (from.*getter)();
    return SetTo(value, set);
  } else {
    decltype(Stored(getter)) value{};
    if ((from.*getter)(nullptr) != 0) return (to.*setter)(nullptr);
    EXPECT_EQ((from.*getter)(&value), 0);
    return SetTo(value, set);
  }
}

template <class I, class Count, class At, class Add>
void TransferList(I& from, I& to, Count count, At at, Add add) {
  for (DWORD i = 0; i < (from.*count)(); ++i) EXPECT_EQ((to.*add)((from.*at)(i)), 0);
  EXPECT_EQ((from.*at)((from.*count)()), nullptr);
}

template <class I, class Count, class At, class Insert, class Remove, class RemoveAll>
void CheckList(I& node, Count count, At at, Insert insert, Remove remove, RemoveAll remove_all) {
  const DWORD size = (node.*count)();
  if (size == 0) return;
  auto* const first = (node.*at)(0);
  EXPECT_EQ((node.*insert)(0, nullptr), -101);
  EXPECT_EQ((node.*insert)(0, first), 0);
  EXPECT_EQ((node.*at)(1), first);
  (node.*remove)(size + 1);
  EXPECT_EQ((node.*count)(), size + 1);
  (node.*remove)(0);
  EXPECT_EQ((node.*at)(0), first);
  EXPECT_EQ((node.*insert)(99, first), 0);
  EXPECT_EQ((node.*count)(), size + 1);
  EXPECT_EQ((node.*at)(0), first);
  (node.*remove_all)();
  EXPECT_EQ((node.*count)(), 0U);
}

/// The accessors that the interface has: accessors.def names all that there are.
template <class I>
Element ElementOf(const char* name, const node::Schema& schema) {
  Element element{
      .name = name, .make = {}, .copy = {}, .schema = &schema, .values = {}, .lists = {}};
#define TOLVA_SETTER(name)                                                                         \
  if constexpr (requires(I & node) { node.Set##name(nullptr); }) {                                 \
    element.values.push_back(                                                                      \
        {L## #name, [](node::IElement& node) { return static_cast<I&>(node).Set##name(nullptr); }, \
         [](node::IElement& from, node::IElement& to) {                                            \
           return Transfer(static_cast<I&>(from), static_cast<I&>(to), &I::Get##name,              \
                           &I::Set##name);                                                         \
         }});                                                                                      \
  }
#define TOLVA_LIST(name)                                                                  \
  if constexpr (requires(I & node) { node.Add##name(nullptr); }) {                        \
    element.lists.push_back(                                                              \
        {L## #name,                                                                       \
         [](node::IElement& from, node::IElement& to) {                                   \
           TransferList(static_cast<I&>(from), static_cast<I&>(to), &I::Get##name##Count, \
                        &I::Get##name##At, &I::Add##name);                                \
         },                                                                               \
         [](node::IElement& node) {                                                       \
           CheckList(static_cast<I&>(node), &I::Get##name##Count, &I::Get##name##At,      \
                     &I::Insert##name##At, &I::Remove##name##At, &I::RemoveAll##name);    \
         }});                                                                             \
  }
#include "tables/accessors.def"
#undef TOLVA_SETTER
#undef TOLVA_LIST
  return element;
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
Element MakeElement(const char* name, const node::Schema& schema) {
  Element element = ElementOf<I>(name, schema);
  element.make = [] { return static_cast<node::INode*>(Create()); };
  element.copy = [](const node::IElement& node) {
    std::unique_ptr<I> copy(Create());
    Copy(*copy, static_cast<const I&>(node));
    return static_cast<node::INode*>(copy.release());
  };
  return element;
}

/// It exists within its parent alone.
TolvaInterface::IILPInLineProxy* MakeInlineProxy() {
  return std::make_unique<TolvaInterface::CILPInLineProxy>().release();
}

}  // namespace

std::vector<Element> AllElements() {
  return {
#define TOLVA_FACTORY(space, name, node, type)                                  \
  MakeElement<space::type, &space::name##_CreateNewInstance>(#space "::" #name, \
                                                             space::node::kSchema),
#include "exports/factories.def"
#undef TOLVA_FACTORY
      MakeElement<TolvaInterface::IILPInLineProxy, &MakeInlineProxy>(
          "TolvaInterface::ILPInLineProxy", TolvaInterface::CILPInLineProxy::kSchema),
  };
}

}  // namespace tolva::test
