// The channels through which data can leave the endpoint by storage media: fixed disks, optical
// media, removable devices and network shares. The library does not interpret the names; how they
// are matched is up to the agent.
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

  /// `Action`: what happens to an operation: it is allowed, blocked, or left to the action of the
  /// content policy. Required.
  ///
  /// The value is a RuleAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `DeviceName`: the name of the device. Optional.
  virtual ConfigResult GetDeviceName(std::wstring* out) const = 0;
  virtual ConfigResult SetDeviceName(const std::wstring* value) = 0;

  /// `SerialNumber`: the hardware serial number of the device. Optional.
  virtual ConfigResult GetSerialNumber(std::wstring* out) const = 0;
  virtual ConfigResult SetSerialNumber(const std::wstring* value) = 0;

  /// `VendorID`: the vendor identifier of the device. Optional.
  virtual ConfigResult GetVendorID(std::wstring* out) const = 0;
  virtual ConfigResult SetVendorID(const std::wstring* value) = 0;
};

/// Element `RemoteDriveRule`: an action for a network share.
class IRemoteDriveRule : public tolva::node::INode {
 public:
  virtual IRemoteDriveRule& CopyFrom(const IRemoteDriveRule& other) = 0;

  /// `Action`: what happens to an operation: it is allowed, blocked, or left to the action of the
  /// content policy. Required.
  ///
  /// The value is a RuleAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `ShareName`: the name of the share. Optional.
  virtual ConfigResult GetShareName(std::wstring* out) const = 0;
  virtual ConfigResult SetShareName(const std::wstring* value) = 0;
};

/// Element `ILPFixedMedia`: the rules for fixed disks.
class IILPFixedMedia : public tolva::node::INode {
 public:
  virtual IILPFixedMedia& CopyFrom(const IILPFixedMedia& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ILPOpticalMedia`: the rules for optical media.
class IILPOpticalMedia : public tolva::node::INode {
 public:
  virtual IILPOpticalMedia& CopyFrom(const IILPOpticalMedia& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `BypassedApps`: the applications to which the channel does not apply. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;
};

/// Element `ILPRemovableMedia`: the rules for removable devices.
class IILPRemovableMedia : public tolva::node::INode {
 public:
  virtual IILPRemovableMedia& CopyFrom(const IILPRemovableMedia& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `DeviceRule`: an action for a removable device. Repeated.
  virtual DWORD GetDeviceRuleCount() const = 0;
  virtual IDeviceRule* GetDeviceRuleAt(DWORD index) = 0;
  virtual ConfigResult AddDeviceRule(const IDeviceRule* item) = 0;
  virtual ConfigResult InsertDeviceRuleAt(DWORD index, const IDeviceRule* item) = 0;
  virtual void RemoveDeviceRuleAt(DWORD index) = 0;
  virtual void RemoveAllDeviceRule() = 0;

  /// `BypassedApps`: the applications to which the channel does not apply. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ILPRemoteMedia`: the rules for network shares.
class IILPRemoteMedia : public tolva::node::INode {
 public:
  virtual IILPRemoteMedia& CopyFrom(const IILPRemoteMedia& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `RemoteDriveRule`: an action for a network share. Repeated.
  virtual DWORD GetRemoteDriveRuleCount() const = 0;
  virtual IRemoteDriveRule* GetRemoteDriveRuleAt(DWORD index) = 0;
  virtual ConfigResult AddRemoteDriveRule(const IRemoteDriveRule* item) = 0;
  virtual ConfigResult InsertRemoteDriveRuleAt(DWORD index, const IRemoteDriveRule* item) = 0;
  virtual void RemoveRemoteDriveRuleAt(DWORD index) = 0;
  virtual void RemoveAllRemoteDriveRule() = 0;

  /// `BypassedApps`: the applications to which the channel does not apply. Optional.
  virtual ConfigResult GetBypassedApps(IBypassedApps** out) = 0;
  virtual ConfigResult SetBypassedApps(const IBypassedApps* child) = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IDeviceRule* DeviceRule_CreateNewInstance();
TOLVA_API IRemoteDriveRule* RemoteDriveRule_CreateNewInstance();
TOLVA_API IILPFixedMedia* ILPFixedMedia_CreateNewInstance();
TOLVA_API IILPOpticalMedia* ILPOpticalMedia_CreateNewInstance();
TOLVA_API IILPRemovableMedia* ILPRemovableMedia_CreateNewInstance();
TOLVA_API IILPRemoteMedia* ILPRemoteMedia_CreateNewInstance();

}  // namespace TolvaInterface
