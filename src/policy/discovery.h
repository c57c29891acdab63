// The classes of tolva/policy/discovery.h.
#pragma once

#include <tolva/policy/discovery.h>

#include <cstdint>
#include <string>

#include "node/node.h"
#include "policy/document.h"
#include "policy/schedules.h"

namespace TolvaInterface {

#pragma push_macro("GetDriveType")
#undef GetDriveType
class CFileFilter final : public Node<CFileFilter, IFileFilter> {
 public:
  static const Schema kSchema;

  const std::wstring& GetInclude() const override { return include_; }
  ConfigResult SetInclude(const std::wstring* value) override {
    return SetRequired(include_, value);
  }
  ConfigResult GetExclude(std::wstring* out) const override { return exclude_.Get(out); }
  ConfigResult SetExclude(const std::wstring* value) override { return exclude_.Set(value); }
  ConfigResult GetAge(DWORD* out) const override { return age_.Get(out); }
  ConfigResult SetAge(const DWORD* value) override { return age_.Set(value); }
  ConfigResult GetModifiedBefore(DWORD* out) const override { return modifiedBefore_.Get(out); }
  ConfigResult SetModifiedBefore(const DWORD* value) override { return modifiedBefore_.Set(value); }
  ConfigResult GetMinDate(std::wstring* out) const override { return minDate_.Get(out); }
  ConfigResult SetMinDate(const std::wstring* value) override { return minDate_.Set(value); }
  ConfigResult GetMaxDate(std::wstring* out) const override { return maxDate_.Get(out); }
  ConfigResult SetMaxDate(const std::wstring* value) override { return maxDate_.Set(value); }
  ConfigResult GetMinSize(std::uint64_t* out) const override { return minSize_.Get(out); }
  ConfigResult SetMinSize(const std::uint64_t* value) override { return minSize_.Set(value); }
  ConfigResult GetMaxSize(std::uint64_t* out) const override { return maxSize_.Get(out); }
  ConfigResult SetMaxSize(const std::uint64_t* value) override { return maxSize_.Set(value); }
  ConfigResult GetDriveType(std::wstring* out) const override { return driveType_.Get(out); }
  ConfigResult SetDriveType(const std::wstring* value) override { return driveType_.Set(value); }
  ConfigResult GetRecursive(DWORD* out) const override { return recursive_.Get(out); }
  ConfigResult SetRecursive(const DWORD* value) override { return recursive_.Set(value); }

 private:
  static const Attribute kAttributes[];

  std::wstring include_;
  Optional<std::wstring> exclude_;
  Optional<DWORD> age_;
  Optional<DWORD> modifiedBefore_;
  Optional<std::wstring> minDate_;
  Optional<std::wstring> maxDate_;
  Optional<std::uint64_t> minSize_;
  Optional<std::uint64_t> maxSize_;
  Optional<std::wstring> driveType_;
  Optional<DWORD> recursive_;
};
#pragma pop_macro("GetDriveType")

class CDiscoveryAction final : public Node<CDiscoveryAction, IDiscoveryAction> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }

  /// Does nothing: the action stays.
  void Clear() override {}

 private:
  static const Attribute kAttributes[];

  DWORD action_ = 0;
};

class CDiscoverySettings final : public Node<CDiscoverySettings, IDiscoverySettings> {
 public:
  static const Schema kSchema;

  ConfigResult GetFullScanInterval(DWORD* out) const override { return fullScanInterval_.Get(out); }
  ConfigResult SetFullScanInterval(const DWORD* value) override {
    return fullScanInterval_.Set(value);
  }
  ConfigResult GetPauseOnNotIdle(DWORD* out) const override { return pauseOnNotIdle_.Get(out); }
  ConfigResult SetPauseOnNotIdle(const DWORD* value) override { return pauseOnNotIdle_.Set(value); }
  ConfigResult GetIdleTimeout(DWORD* out) const override { return idleTimeout_.Get(out); }
  ConfigResult SetIdleTimeout(const DWORD* value) override { return idleTimeout_.Set(value); }
  ConfigResult GetPauseOnBattery(DWORD* out) const override { return pauseOnBattery_.Get(out); }
  ConfigResult SetPauseOnBattery(const DWORD* value) override { return pauseOnBattery_.Set(value); }
  ConfigResult GetScanMode(DWORD* out) const override { return scanMode_.Get(out); }
  ConfigResult SetScanMode(const DWORD* value) override { return scanMode_.Set(value); }
  ConfigResult GetPreserveFileAccessTime(DWORD* out) const override {
    return preserveFileAccessTime_.Get(out);
  }
  ConfigResult SetPreserveFileAccessTime(const DWORD* value) override {
    return preserveFileAccessTime_.Set(value);
  }
  ConfigResult GetFullScanOnFingerprintUpdate(DWORD* out) const override {
    return fullScanOnFingerprintUpdate_.Get(out);
  }
  ConfigResult SetFullScanOnFingerprintUpdate(const DWORD* value) override {
    return fullScanOnFingerprintUpdate_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> fullScanInterval_;
  Optional<DWORD> pauseOnNotIdle_;
  Optional<DWORD> idleTimeout_;
  Optional<DWORD> pauseOnBattery_;
  Optional<DWORD> scanMode_;
  Optional<DWORD> preserveFileAccessTime_;
  Optional<DWORD> fullScanOnFingerprintUpdate_;
};

class CDiscoveryJob final : public Node<CDiscoveryJob, IDiscoveryJob> {
 public:
  static const Schema kSchema;

  const std::wstring& GetId() const override { return id_; }
  ConfigResult SetId(const std::wstring* value) override { return SetRequired(id_, value); }
  DWORD GetSid() const override { return sid_; }
  ConfigResult SetSid(const DWORD* value) override { return SetRequired(sid_, value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  ConfigResult GetTaskid(DWORD* out) const override { return taskid_.Get(out); }
  ConfigResult SetTaskid(const DWORD* value) override { return taskid_.Set(value); }
  ISchedule* GetSchedule() override { return &schedule_; }
  ConfigResult SetSchedule(const ISchedule* child) override {
    return SetRequiredChild(schedule_, child);
  }
  IFileFilter* GetFileFilter() override { return &fileFilter_; }
  ConfigResult SetFileFilter(const IFileFilter* child) override {
    return SetRequiredChild(fileFilter_, child);
  }
  IDiscoveryAction* GetDiscoveryAction() override { return &discoveryAction_; }
  ConfigResult SetDiscoveryAction(const IDiscoveryAction* child) override {
    return SetRequiredChild(discoveryAction_, child);
  }
  IDiscoverySettings* GetDiscoverySettings() override { return &discoverySettings_; }
  ConfigResult SetDiscoverySettings(const IDiscoverySettings* child) override {
    return SetRequiredChild(discoverySettings_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  std::wstring id_;
  DWORD sid_ = 0;
  Optional<DWORD> cid_;
  Optional<DWORD> taskid_;
  CSchedule schedule_;
  CFileFilter fileFilter_;
  CDiscoveryAction discoveryAction_;
  CDiscoverySettings discoverySettings_;
};

class CDiscoveryJobs final : public Node<CDiscoveryJobs, IDiscoveryJobs> {
 public:
  static const Schema kSchema;

  DWORD GetDiscoveryJobCount() const override { return discoveryJobs_.Count(); }
  IDiscoveryJob* GetDiscoveryJobAt(DWORD index) override { return discoveryJobs_.At(index); }
  ConfigResult AddDiscoveryJob(const IDiscoveryJob* item) override {
    return discoveryJobs_.Add(item);
  }
  ConfigResult InsertDiscoveryJobAt(DWORD index, const IDiscoveryJob* item) override {
    return discoveryJobs_.InsertAt(index, item);
  }
  void RemoveDiscoveryJobAt(DWORD index) override { discoveryJobs_.RemoveAt(index); }
  void RemoveAllDiscoveryJob() override { discoveryJobs_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CDiscoveryJob> discoveryJobs_;
};

class CDiscovery final : public Node<CDiscovery, IDiscovery> {
 public:
  static const Schema kSchema;

  IDiscoveryJobs* GetDiscoveryJobs() override { return &discoveryJobs_; }
  ConfigResult SetDiscoveryJobs(const IDiscoveryJobs* child) override {
    return SetRequiredChild(discoveryJobs_, child);
  }

 private:
  static const Child kChildren[];

  CDiscoveryJobs discoveryJobs_;
};

}  // namespace TolvaInterface
