// The classes of tolva/installconf/install_config.h.
#pragma once

#include <tolva/installconf/install_config.h>

#include <string>

#include "installconf/document.h"
#include "node/accessors.h"

namespace IpbtConf {

class CFeature final : public Node<CFeature, IFeature> {
 public:
  static const Schema kSchema;

  TOLVA_STORED_NUMBER(ILPEnable, ilpEnable_);
  TOLVA_STORED_NUMBER(DiscoveryEnable, discoveryEnable_);
};

class CInstallSetting final : public Node<CInstallSetting, IInstallSetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, InstallDirectory, installDirectory_);
  TOLVA_STORED_NUMBER(AutoReboot, autoReboot_);
  TOLVA_STORED_NUMBER(InstallStartMenu, installStartMenu_);
};

class CInstallConfig final : public Node<CInstallConfig, IInstallConfig> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CFeature, Feature, feature_);
  TOLVA_CHILD(CInstallSetting, InstallSetting, installSetting_);
};

}  // namespace IpbtConf
