// The classes of tolva/policy/storage_media.h.
#pragma once

#include <tolva/policy/storage_media.h>

#include <string>

#include "node/accessors.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

class CDeviceRule final : public Node<CDeviceRule, IDeviceRule> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
  TOLVA_OPTIONAL(std::wstring, DeviceName, deviceName_);
  TOLVA_OPTIONAL(std::wstring, SerialNumber, serialNumber_);
  TOLVA_OPTIONAL(std::wstring, VendorID, vendorID_);
};

class CRemoteDriveRule final : public Node<CRemoteDriveRule, IRemoteDriveRule> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
  TOLVA_OPTIONAL(std::wstring, ShareName, shareName_);
};

class CILPFixedMedia final : public Node<CILPFixedMedia, IILPFixedMedia> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
};

class CILPOpticalMedia final : public Node<CILPOpticalMedia, IILPOpticalMedia> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_OPTIONAL_CHILD(CBypassedApps, BypassedApps, bypassedApps_);
};

class CILPRemovableMedia final : public Node<CILPRemovableMedia, IILPRemovableMedia> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_CHILDREN(CDeviceRule, DeviceRule, deviceRules_);
  TOLVA_OPTIONAL_CHILD(CBypassedApps, BypassedApps, bypassedApps_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
};

class CILPRemoteMedia final : public Node<CILPRemoteMedia, IILPRemoteMedia> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_CHILDREN(CRemoteDriveRule, RemoteDriveRule, remoteDriveRules_);
  TOLVA_OPTIONAL_CHILD(CBypassedApps, BypassedApps, bypassedApps_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
};

}  // namespace TolvaInterface
