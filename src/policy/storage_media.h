// The classes of tolva/policy/storage_media.h.
#pragma once

#include <tolva/policy/storage_media.h>

#include <string>

#include "node/node.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

class CDeviceRule final : public Node<CDeviceRule, IDeviceRule> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }
  ConfigResult GetDeviceName(std::wstring* out) const override { return deviceName_.Get(out); }
  ConfigResult SetDeviceName(const std::wstring* value) override { return deviceName_.Set(value); }
  ConfigResult GetSerialNumber(std::wstring* out) const override { return serialNumber_.Get(out); }
  ConfigResult SetSerialNumber(const std::wstring* value) override {
    return serialNumber_.Set(value);
  }
  ConfigResult GetVendorID(std::wstring* out) const override { return vendorID_.Get(out); }
  ConfigResult SetVendorID(const std::wstring* value) override { return vendorID_.Set(value); }

 private:
  static const Attribute kAttributes[];

  DWORD action_ = 0;
  Optional<std::wstring> deviceName_;
  Optional<std::wstring> serialNumber_;
  Optional<std::wstring> vendorID_;
};

class CRemoteDriveRule final : public Node<CRemoteDriveRule, IRemoteDriveRule> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }
  ConfigResult GetShareName(std::wstring* out) const override { return shareName_.Get(out); }
  ConfigResult SetShareName(const std::wstring* value) override { return shareName_.Set(value); }

 private:
  static const Attribute kAttributes[];

  DWORD action_ = 0;
  Optional<std::wstring> shareName_;
};

class CILPFixedMedia final : public Node<CILPFixedMedia, IILPFixedMedia> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  ChildList<COnlineApps> onlineApps_;
};

class CILPOpticalMedia final : public Node<CILPOpticalMedia, IILPOpticalMedia> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  ConfigResult GetBypassedApps(IBypassedApps** out) override { return bypassedApps_.Get(out); }
  ConfigResult SetBypassedApps(const IBypassedApps* child) override {
    return bypassedApps_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  OptionalChild<CBypassedApps> bypassedApps_;
};

class CILPRemovableMedia final : public Node<CILPRemovableMedia, IILPRemovableMedia> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  DWORD GetDeviceRuleCount() const override { return deviceRules_.Count(); }
  IDeviceRule* GetDeviceRuleAt(DWORD index) override { return deviceRules_.At(index); }
  ConfigResult AddDeviceRule(const IDeviceRule* item) override { return deviceRules_.Add(item); }
  ConfigResult InsertDeviceRuleAt(DWORD index, const IDeviceRule* item) override {
    return deviceRules_.InsertAt(index, item);
  }
  void RemoveDeviceRuleAt(DWORD index) override { deviceRules_.RemoveAt(index); }
  void RemoveAllDeviceRule() override { deviceRules_.RemoveAll(); }
  ConfigResult GetBypassedApps(IBypassedApps** out) override { return bypassedApps_.Get(out); }
  ConfigResult SetBypassedApps(const IBypassedApps* child) override {
    return bypassedApps_.Set(child);
  }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  ChildList<CDeviceRule> deviceRules_;
  OptionalChild<CBypassedApps> bypassedApps_;
  ChildList<COnlineApps> onlineApps_;
};

class CILPRemoteMedia final : public Node<CILPRemoteMedia, IILPRemoteMedia> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  DWORD GetRemoteDriveRuleCount() const override { return remoteDriveRules_.Count(); }
  IRemoteDriveRule* GetRemoteDriveRuleAt(DWORD index) override {
    return remoteDriveRules_.At(index);
  }
  ConfigResult AddRemoteDriveRule(const IRemoteDriveRule* item) override {
    return remoteDriveRules_.Add(item);
  }
  ConfigResult InsertRemoteDriveRuleAt(DWORD index, const IRemoteDriveRule* item) override {
    return remoteDriveRules_.InsertAt(index, item);
  }
  void RemoveRemoteDriveRuleAt(DWORD index) override { remoteDriveRules_.RemoveAt(index); }
  void RemoveAllRemoteDriveRule() override { remoteDriveRules_.RemoveAll(); }
  ConfigResult GetBypassedApps(IBypassedApps** out) override { return bypassedApps_.Get(out); }
  ConfigResult SetBypassedApps(const IBypassedApps* child) override {
    return bypassedApps_.Set(child);
  }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  ChildList<CRemoteDriveRule> remoteDriveRules_;
  OptionalChild<CBypassedApps> bypassedApps_;
  ChildList<COnlineApps> onlineApps_;
};

}  // namespace TolvaInterface
