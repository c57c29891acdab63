// The classes of the Active Directory document, which three other documents embed.
#pragma once

#include <tolva/clientconfig/active_directory.h>

#include <string>

#include "node/accessors.h"

namespace ClientConfig {

class CDefaultDomain final : public tolva::node::Node<CDefaultDomain, IDefaultDomain> {
 public:
  static const tolva::node::Schema kSchema;

  TOLVA_STORED_NUMBER(Enabled, enabled_);
  TOLVA_STRING(Name, name_);
};

class CActiveDirectory final : public tolva::node::Node<CActiveDirectory, IActiveDirectory> {
 public:
  static const tolva::node::Schema kSchema;

  /// Copies nothing, unlike its child. (As a field of another class it is copied like any other.)
  IActiveDirectory& CopyFrom(const IActiveDirectory& /*other*/) override { return *this; }

  TOLVA_CHILD(CDefaultDomain, DefaultDomain, defaultDomain_);
  const CDefaultDomain& domain() const { return defaultDomain_; }
};

}  // namespace ClientConfig
