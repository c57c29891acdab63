// The common part of the roots of the agent's configurations.
#pragma once

#include <tolva/node/configuration_root.h>

#include <string>

#include "node/node.h"

namespace tolva::node {

/// The base of a root's class `C`, which implements `I`.
template <class C, class I>
class ConfigurationRoot : public Node<C, I> {
 public:
  DWORD GetSchemaVersion() const override { return schemaVersion_; }
  ConfigResult SetSchemaVersion(const DWORD* value) override {
    return this->SetRequired(schemaVersion_, value);
  }
  const std::wstring& GetSN() const override { return sn_; }
  ConfigResult SetSN(const std::wstring* value) override { return this->SetRequired(sn_, value); }
  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override {
    return this->SetRequired(name_, value);
  }
  ConfigResult GetUpdateDate(std::wstring* out) const override { return updateDate_.Get(out); }
  ConfigResult SetUpdateDate(const std::wstring* value) override { return updateDate_.Set(value); }
  ConfigResult GetRefId(std::wstring* out) const override { return refId_.Get(out); }
  ConfigResult SetRefId(const std::wstring* value) override { return refId_.Set(value); }

 protected:
  static const Attribute kIdentity[];

  DWORD schemaVersion_ = 0;
  std::wstring sn_;
  std::wstring name_;
  Optional<std::wstring> updateDate_;
  Optional<std::wstring> refId_;
};

template <class C, class I>
constinit const Attribute ConfigurationRoot<C, I>::kIdentity[] = {
    Attr<&ConfigurationRoot::schemaVersion_>(L"SchemaVersion"),
    Attr<&ConfigurationRoot::sn_>(L"SN"),
    Attr<&ConfigurationRoot::name_>(L"Name"),
    Attr<&ConfigurationRoot::updateDate_>(L"UpdateDate"),
    Attr<&ConfigurationRoot::refId_>(L"RefId"),
};

}  // namespace tolva::node
