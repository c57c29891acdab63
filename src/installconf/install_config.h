// The classes of tolva/installconf/install_config.h.
#pragma once

#include <tolva/installconf/install_config.h>

#include <string>

#include "installconf/document.h"
#include "node/node.h"

namespace IpbtConf {

class CFeature final : public Node<CFeature, IFeature> {
 public:
  static const Schema kSchema;

  ConfigResult GetILPEnable(DWORD* out) const override { return Store(ilpEnable_, out); }
  ConfigResult SetILPEnable(const DWORD* value) override { return SetRequired(ilpEnable_, value); }
  ConfigResult GetDiscoveryEnable(DWORD* out) const override {
    return Store(discoveryEnable_, out);
  }
  ConfigResult SetDiscoveryEnable(const DWORD* value) override {
    return SetRequired(discoveryEnable_, value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD ilpEnable_ = 0;
  DWORD discoveryEnable_ = 0;
};

class CInstallSetting final : public Node<CInstallSetting, IInstallSetting> {
 public:
  static const Schema kSchema;

  ConfigResult GetInstallDirectory(std::wstring* out) const override {
    return installDirectory_.Get(out);
  }
  ConfigResult SetInstallDirectory(const std::wstring* value) override {
    return installDirectory_.Set(value);
  }
  ConfigResult GetAutoReboot(DWORD* out) const override { return Store(autoReboot_, out); }
  ConfigResult SetAutoReboot(const DWORD* value) override {
    return SetRequired(autoReboot_, value);
  }
  ConfigResult GetInstallStartMenu(DWORD* out) const override {
    return Store(installStartMenu_, out);
  }
  ConfigResult SetInstallStartMenu(const DWORD* value) override {
    return SetRequired(installStartMenu_, value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> installDirectory_;
  DWORD autoReboot_ = 0;
  DWORD installStartMenu_ = 0;
};

class CInstallConfig final : public Node<CInstallConfig, IInstallConfig> {
 public:
  static const Schema kSchema;

  IFeature* GetFeature() override { return &feature_; }
  ConfigResult SetFeature(const IFeature* child) override {
    return SetRequiredChild(feature_, child);
  }
  IInstallSetting* GetInstallSetting() override { return &installSetting_; }
  ConfigResult SetInstallSetting(const IInstallSetting* child) override {
    return SetRequiredChild(installSetting_, child);
  }

 private:
  static const Child kChildren[];

  CFeature feature_;
  CInstallSetting installSetting_;
};

}  // namespace IpbtConf
