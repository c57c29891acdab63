// The installation settings: the features to enable, and how to install the agent. The getters of
// numbers store the value in `out` and return 0.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace IpbtConf {

/// Element `Feature`: the protection features to enable.
class IFeature : public tolva::node::INode {
 public:
  virtual IFeature& CopyFrom(const IFeature& other) = 0;

  /// `ILPEnable`: 1 if data-loss prevention is enabled, 0 if not. Required.
  virtual ConfigResult GetILPEnable(DWORD* out) const = 0;
  virtual ConfigResult SetILPEnable(const DWORD* value) = 0;

  /// `DiscoveryEnable`: 1 if discovery is enabled, 0 if not. Required.
  virtual ConfigResult GetDiscoveryEnable(DWORD* out) const = 0;
  virtual ConfigResult SetDiscoveryEnable(const DWORD* value) = 0;
};

/// Element `InstallSetting`: how to install the agent.
class IInstallSetting : public tolva::node::INode {
 public:
  virtual IInstallSetting& CopyFrom(const IInstallSetting& other) = 0;

  /// `InstallDirectory`: the directory in which to install the agent. Optional.
  virtual ConfigResult GetInstallDirectory(std::wstring* out) const = 0;
  virtual ConfigResult SetInstallDirectory(const std::wstring* value) = 0;

  /// `AutoReboot`: 1 if the installation restarts the machine, 0 if not. Required.
  virtual ConfigResult GetAutoReboot(DWORD* out) const = 0;
  virtual ConfigResult SetAutoReboot(const DWORD* value) = 0;

  /// `InstallStartMenu`: 1 if the installation adds an entry to the start menu, 0 if not. Required.
  virtual ConfigResult GetInstallStartMenu(DWORD* out) const = 0;
  virtual ConfigResult SetInstallStartMenu(const DWORD* value) = 0;
};

/// Element `InstallConfig`: the root of the installation settings.
class IInstallConfig : public tolva::node::INode {
 public:
  virtual IInstallConfig& CopyFrom(const IInstallConfig& other) = 0;

  /// `Feature`: the protection features to enable. Required.
  virtual IFeature* GetFeature() = 0;
  virtual ConfigResult SetFeature(const IFeature* child) = 0;

  /// `InstallSetting`: how to install the agent. Required.
  virtual IInstallSetting* GetInstallSetting() = 0;
  virtual ConfigResult SetInstallSetting(const IInstallSetting* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IFeature* Feature_CreateNewInstance();
TOLVA_API IInstallSetting* InstallSetting_CreateNewInstance();
TOLVA_API IInstallConfig* InstallConfig_CreateNewInstance();

}  // namespace IpbtConf
