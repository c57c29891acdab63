// The classes of tolva/policy/discovery.h.
#pragma once

#include <tolva/policy/discovery.h>

#include <cstdint>
#include <string>

#include "node/accessors.h"
#include "policy/document.h"
#include "policy/schedules.h"

namespace TolvaInterface {

#pragma push_macro("GetDriveType")
#undef GetDriveType
class CFileFilter final : public Node<CFileFilter, IFileFilter> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Include, include_);
  TOLVA_OPTIONAL(std::wstring, Exclude, exclude_);
  TOLVA_OPTIONAL(DWORD, Age, age_);
  TOLVA_OPTIONAL(DWORD, ModifiedBefore, modifiedBefore_);
  TOLVA_OPTIONAL(std::wstring, MinDate, minDate_);
  TOLVA_OPTIONAL(std::wstring, MaxDate, maxDate_);
  TOLVA_OPTIONAL(std::uint64_t, MinSize, minSize_);
  TOLVA_OPTIONAL(std::uint64_t, MaxSize, maxSize_);
  TOLVA_OPTIONAL(std::wstring, DriveType, driveType_);
  TOLVA_OPTIONAL(DWORD, Recursive, recursive_);
};
#pragma pop_macro("GetDriveType")

class CDiscoveryAction final : public Node<CDiscoveryAction, IDiscoveryAction> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
};

class CDiscoverySettings final : public Node<CDiscoverySettings, IDiscoverySettings> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, FullScanInterval, fullScanInterval_);
  TOLVA_OPTIONAL(DWORD, PauseOnNotIdle, pauseOnNotIdle_);
  TOLVA_OPTIONAL(DWORD, IdleTimeout, idleTimeout_);
  TOLVA_OPTIONAL(DWORD, PauseOnBattery, pauseOnBattery_);
  TOLVA_OPTIONAL(DWORD, ScanMode, scanMode_);
  TOLVA_OPTIONAL(DWORD, PreserveFileAccessTime, preserveFileAccessTime_);
  TOLVA_OPTIONAL(DWORD, FullScanOnFingerprintUpdate, fullScanOnFingerprintUpdate_);
};

class CDiscoveryJob final : public Node<CDiscoveryJob, IDiscoveryJob> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Id, id_);
  TOLVA_NUMBER(Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_OPTIONAL(DWORD, Taskid, taskid_);
  TOLVA_CHILD(CSchedule, Schedule, schedule_);
  TOLVA_CHILD(CFileFilter, FileFilter, fileFilter_);
  TOLVA_CHILD(CDiscoveryAction, DiscoveryAction, discoveryAction_);
  TOLVA_CHILD(CDiscoverySettings, DiscoverySettings, discoverySettings_);
};

class CDiscoveryJobs final : public Node<CDiscoveryJobs, IDiscoveryJobs> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CDiscoveryJob, DiscoveryJob, discoveryJobs_);
};

class CDiscovery final : public Node<CDiscovery, IDiscovery> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CDiscoveryJobs, DiscoveryJobs, discoveryJobs_);
};

}  // namespace TolvaInterface
