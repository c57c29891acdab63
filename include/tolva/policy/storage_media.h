// The channels through which data leaves by storage media: disks, discs, removable devices,
// network shares.
//
// How names are matched is the agent's business; they are carried as they stand.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/conditions.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// Element `DeviceRule`: an action for a removable device.
class IDeviceRule : public tolva::node::INode {
 public:
  virtual IDeviceRule& CopyFrom(const IDeviceRule& other) = 0;

  /// `Action`: a RuleAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `DeviceName`: the device's name. Optional.
  virtual ConfigResult GetDeviceName(std::wstring* out) const = 0;
  virtual ConfigResult SetDeviceName(const std::wstring* value) = 0;

  /// `SerialNumber`: its hardware serial number. Optional.
  virtual ConfigResult GetSerialNumber(std::wstring* out) const = 0;
  virtual ConfigResult SetSerialNumber(const std::wstring* value) = 0;

  /// `VendorID`: its vendor's identifier. Optional.
  virtual ConfigResult GetVendorID(std::wstring* out) const = 0;
  virtual ConfigResult SetVendorID(const std::wstring* value) = 0;
};

/// Element `RemoteDriveRule`: an action for a network share.
class IRemoteDriveRule : public tolva::node::INode {
 public:
  virtual IRemoteDriveRule& CopyFrom(const IRemoteDriveRule& other) = 0;

  /// `Action`: a RuleAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `ShareName`: the share's name. Optional.
  virtual ConfigResult GetShareName(std::wstring* out) const = 0;
  virtual ConfigResult SetShareName(const std::wstring* value) = 0;
};

/// Element `ILPFixedMedia`: fixed disks.
class IILPFixedMedia : public tolva::node::INode {
 public:
  virtual IILPFixedMedia& CopyFrom(const IILPFixedMedia& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// Children `OnlineApps`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ILPOpticalMedia`: optical media.
class IILPOpticalMedia : public tolva::node::INode {
 public:
  virtual IILPOpticalMedia& CopyFrom(const IILPOpticalMedia& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// The child `BypassedApps`. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;
};

/// Element `ILPRemovableMedia`: removable devices.
class IILPRemovableMedia : public tolva::node::INode {
 public:
  virtual IILPRemovableMedia& CopyFrom(const IILPRemovableMedia& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// The rules: children `DeviceRule`.
  virtual DWORD GetDeviceRuleCount() const = 0;
  virtual IDeviceRule* GetDeviceRuleAt(DWORD index) = 0;
  virtual ConfigResult AddDeviceRule(const IDeviceRule* item) = 0;
  virtual ConfigResult InsertDeviceRuleAt(DWORD index, const IDeviceRule* item) = 0;
  virtual void RemoveDeviceRuleAt(DWORD index) = 0;
  virtual void RemoveAllDeviceRule() = 0;

  /// The child `BypassedApps`. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;

  /// Children `OnlineApps`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ILPRemoteMedia`: network shares.
class IILPRemoteMedia : public tolva::node::INode {
 public:
  virtual IILPRemoteMedia& CopyFrom(const IILPRemoteMedia& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// The rules: children `RemoteDriveRule`.
  virtual DWORD GetRemoteDriveRuleCount() const = 0;
  virtual IRemoteDriveRule* GetRemoteDriveRuleAt(DWORD index) = 0;
  virtual ConfigResult AddRemoteDriveRule(const IRemoteDriveRule* item) = 0;
  virtual ConfigResult InsertRemoteDriveRuleAt(DWORD index, const IRemoteDriveRule* item) = 0;
  virtual void RemoveRemoteDriveRuleAt(DWORD index) = 0;
  virtual void RemoveAllRemoteDriveRule() = 0;

  /// The child `BypassedApps`. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;

  /// Children `OnlineApps`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IDeviceRule* DeviceRule_CreateNewInstance();
TOLVA_API IRemoteDriveRule* RemoteDriveRule_CreateNewInstance();
TOLVA_API IILPFixedMedia* ILPFixedMedia_CreateNewInstance();
TOLVA_API IILPOpticalMedia* ILPOpticalMedia_CreateNewInstance();
TOLVA_API IILPRemovableMedia* ILPRemovableMedia_CreateNewInstance();
TOLVA_API IILPRemoteMedia* ILPRemoteMedia_CreateNewInstance();

}  // namespace TolvaInterface
