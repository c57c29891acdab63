// The installation settings: which features are enabled, and how the agent is installed. Getters
// of numbers store the value and return 0.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace IpbtConf {

/// Element `Feature`.
class IFeature : public tolva::node::INode {
 public:
  virtual IFeature& CopyFrom(const IFeature& other) = 0;

  /// `ILPEnable`: whether data-loss prevention is enabled. Required.
  virtual ConfigResult GetILPEnable(DWORD* out) const = 0;
  virtual ConfigResult SetILPEnable(const DWORD* value) = 0;

  /// `DiscoveryEnable`: whether discovery is. Required.
  virtual ConfigResult GetDiscoveryEnable(DWORD* out) const = 0;
  virtual ConfigResult SetDiscoveryEnable(const DWORD* value) = 0;
};

/// Element `InstallSetting`.
class IInstallSetting : public tolva::node::INode {
 public:
  virtual IInstallSetting& CopyFrom(const IInstallSetting& other) = 0;

  /// `InstallDirectory`: where to install. Optional.
  virtual ConfigResult GetInstallDirectory(std::wstring* out) const = 0;
  virtual ConfigResult SetInstallDirectory(const std::wstring* value) = 0;

  /// `AutoReboot`: whether the machine is restarted. Required.
  virtual ConfigResult GetAutoReboot(DWORD* out) const = 0;
  virtual ConfigResult SetAutoReboot(const DWORD* value) = 0;

  /// `InstallStartMenu`: whether the start menu has an entry. Required.
  virtual ConfigResult GetInstallStartMenu(DWORD* out) const = 0;
  virtual ConfigResult SetInstallStartMenu(const DWORD* value) = 0;
};

/// Element `InstallConfig`, the root.
class IInstallConfig : public tolva::node::INode {
 public:
  virtual IInstallConfig& CopyFrom(const IInstallConfig& other) = 0;

  /// The child `Feature`. Required.
  virtual IFeature* GetFeature() = 0;
  virtual ConfigResult SetFeature(const IFeature* child) = 0;

  /// The child `InstallSetting`. Required.
  virtual IInstallSetting* GetInstallSetting() = 0;
  virtual ConfigResult SetInstallSetting(const IInstallSetting* child) = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IFeature* Feature_CreateNewInstance();
TOLVA_API IInstallSetting* InstallSetting_CreateNewInstance();
TOLVA_API IInstallConfig* InstallConfig_CreateNewInstance();

}  // namespace IpbtConf
