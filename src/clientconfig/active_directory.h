// The classes of the Active Directory document, which three other documents embed.
#pragma once

#include <tolva/clientconfig/active_directory.h>

#include <string>

#include "node/node.h"

namespace ClientConfig {

class CDefaultDomain final : public tolva::node::Node<CDefaultDomain, IDefaultDomain> {
 public:
  static const tolva::node::Schema kSchema;

  ConfigResult GetEnabled(DWORD* out) const override { return tolva::node::Store(enabled_, out); }
  ConfigResult SetEnabled(const DWORD* value) override { return SetRequired(enabled_, value); }
  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override { return SetRequired(name_, value); }

 private:
  static const tolva::node::Attribute kAttributes[];

  DWORD enabled_ = 0;
  std::wstring name_;
};

class CActiveDirectory final : public tolva::node::Node<CActiveDirectory, IActiveDirectory> {
 public:
  static const tolva::node::Schema kSchema;

  /// The root copies nothing, unlike its child. (As a field of another document's class it is
  /// copied like any other.)
  IActiveDirectory& CopyFrom(const IActiveDirectory& /*other*/) override { return *this; }

  IDefaultDomain* GetDefaultDomain() override { return &defaultDomain_; }
  const CDefaultDomain& domain() const { return defaultDomain_; }
  ConfigResult SetDefaultDomain(const IDefaultDomain* child) override {
    return SetRequiredChild(defaultDomain_, child);
  }

 private:
  static const tolva::node::Child kChildren[];

  CDefaultDomain defaultDomain_;
};

}  // namespace ClientConfig
