// What the root elements of the configurations have in common.
#pragma once

#include <tolva/node/configuration_root.h>

#include <string>

#include "node/accessors.h"

namespace tolva::node {

/// Base of a root's class `C`, which implements `I`.
template <class C, class I>
class ConfigurationRoot : public Node<C, I> {
 public:
  TOLVA_NUMBER(SchemaVersion, schemaVersion_);
  TOLVA_STRING(SN, sn_);
  TOLVA_STRING(Name, name_);
  TOLVA_OPTIONAL(std::wstring, UpdateDate, updateDate_);
  TOLVA_OPTIONAL(std::wstring, RefId, refId_);
};

template <class C>
inline constexpr Attribute kIdentityAttributes[] = {
    Attr<&C::schemaVersion_>(L"SchemaVersion"),
    Attr<&C::sn_>(L"SN"),
    Attr<&C::name_>(L"Name"),
    Attr<&C::updateDate_>(L"UpdateDate"),
    Attr<&C::refId_>(L"RefId"),
};

}  // namespace tolva::node
