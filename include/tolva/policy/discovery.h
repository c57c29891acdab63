// Discovery jobs: which files are searched for data, when, and what is done with them.
//
// Units, dates and patterns are carried as they stand: they are the agent's.
#pragma once

#include <cstdint>
#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/schedules.h>
#include <tolva/types.h>

namespace TolvaInterface {

#pragma push_macro("GetDriveType")
#undef GetDriveType
/// Element `FileFilter`: which files a job looks at.
class IFileFilter : public tolva::node::INode {
 public:
  virtual IFileFilter& CopyFrom(const IFileFilter& other) = 0;

  /// `Include`: patterns of files to look at. Required.
  virtual const std::wstring& GetInclude() const = 0;
  virtual ConfigResult SetInclude(const std::wstring* value) = 0;

  /// `Exclude`: patterns of files to leave out. Optional.
  virtual ConfigResult GetExclude(std::wstring* out) const = 0;
  virtual ConfigResult SetExclude(const std::wstring* value) = 0;

  /// `Age`. Optional.
  virtual ConfigResult GetAge(DWORD* out) const = 0;
  virtual ConfigResult SetAge(const DWORD* value) = 0;

  /// `ModifiedBefore`. Optional.
  virtual ConfigResult GetModifiedBefore(DWORD* out) const = 0;
  virtual ConfigResult SetModifiedBefore(const DWORD* value) = 0;

  /// `MinDate`. Optional.
  virtual ConfigResult GetMinDate(std::wstring* out) const = 0;
  virtual ConfigResult SetMinDate(const std::wstring* value) = 0;

  /// `MaxDate`. Optional.
  virtual ConfigResult GetMaxDate(std::wstring* out) const = 0;
  virtual ConfigResult SetMaxDate(const std::wstring* value) = 0;

  /// `MinSize`: the least size of a file. Optional.
  virtual ConfigResult GetMinSize(std::uint64_t* out) const = 0;
  virtual ConfigResult SetMinSize(const std::uint64_t* value) = 0;

  /// `MaxSize`: the greatest size of a file. Optional.
  virtual ConfigResult GetMaxSize(std::uint64_t* out) const = 0;
  virtual ConfigResult SetMaxSize(const std::uint64_t* value) = 0;

  /// `DriveType`: on which drives. Optional.
  virtual ConfigResult GetDriveType(std::wstring* out) const = 0;
  virtual ConfigResult SetDriveType(const std::wstring* value) = 0;
#if defined(_WIN32)
  ConfigResult GetDriveTypeW(std::wstring* out) const { return GetDriveType(out); }
  ConfigResult GetDriveTypeA(std::wstring* out) const { return GetDriveType(out); }
#endif

  /// `Recursive`: whether folders within folders are searched. Optional.
  virtual ConfigResult GetRecursive(DWORD* out) const = 0;
  virtual ConfigResult SetRecursive(const DWORD* value) = 0;
};
#pragma pop_macro("GetDriveType")

/// The values of `DiscoveryAction`'s `Action`.
enum DiscoveryAction : DWORD {
  kDiscoveryActionAnalyze = 0,  ///< "ANALYZE"
};

/// Element `DiscoveryAction`. `Clear` leaves `Action` as it was.
class IDiscoveryAction : public tolva::node::INode {
 public:
  virtual IDiscoveryAction& CopyFrom(const IDiscoveryAction& other) = 0;

  /// `Action`: a DiscoveryAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;
};

/// The values of `DiscoverySettings`'s `ScanMode`.
enum ScanMode : DWORD {
  kScanModeFull = 0,          ///< "FULL"
  kScanModeDifferential = 1,  ///< "DIFFERENTIAL"
  kScanModeAlternative = 2,   ///< "ALTERNATIVE"
};

/// Element `DiscoverySettings`: how a job proceeds.
class IDiscoverySettings : public tolva::node::INode {
 public:
  virtual IDiscoverySettings& CopyFrom(const IDiscoverySettings& other) = 0;

  /// `FullScanInterval`. Optional.
  virtual ConfigResult GetFullScanInterval(DWORD* out) const = 0;
  virtual ConfigResult SetFullScanInterval(const DWORD* value) = 0;

  /// `PauseOnNotIdle`: whether the job waits while the machine is used. Optional.
  virtual ConfigResult GetPauseOnNotIdle(DWORD* out) const = 0;
  virtual ConfigResult SetPauseOnNotIdle(const DWORD* value) = 0;

  /// `IdleTimeout`. Optional.
  virtual ConfigResult GetIdleTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetIdleTimeout(const DWORD* value) = 0;

  /// `PauseOnBattery`: whether it waits for mains. Optional.
  virtual ConfigResult GetPauseOnBattery(DWORD* out) const = 0;
  virtual ConfigResult SetPauseOnBattery(const DWORD* value) = 0;

  /// `ScanMode`: a ScanMode. Optional.
  virtual ConfigResult GetScanMode(DWORD* out) const = 0;
  virtual ConfigResult SetScanMode(const DWORD* value) = 0;

  /// `PreserveFileAccessTime`: whether files keep their time of access. Optional.
  virtual ConfigResult GetPreserveFileAccessTime(DWORD* out) const = 0;
  virtual ConfigResult SetPreserveFileAccessTime(const DWORD* value) = 0;

  /// `FullScanOnFingerprintUpdate`: whether new fingerprints lead to a full scan. Optional.
  virtual ConfigResult GetFullScanOnFingerprintUpdate(DWORD* out) const = 0;
  virtual ConfigResult SetFullScanOnFingerprintUpdate(const DWORD* value) = 0;
};

/// Element `DiscoveryJob`.
class IDiscoveryJob : public tolva::node::INode {
 public:
  virtual IDiscoveryJob& CopyFrom(const IDiscoveryJob& other) = 0;

  /// `Id`: the job's identifier. Required.
  virtual const std::wstring& GetId() const = 0;
  virtual ConfigResult SetId(const std::wstring* value) = 0;

  /// `Sid`: an identifier, carried unchanged. Required.
  virtual DWORD GetSid() const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `Taskid`: another one. Optional.
  virtual ConfigResult GetTaskid(DWORD* out) const = 0;
  virtual ConfigResult SetTaskid(const DWORD* value) = 0;

  /// The child `Schedule`. Required.
  virtual ISchedule* GetSchedule() = 0;
  virtual ConfigResult SetSchedule(const ISchedule* child) = 0;

  /// The child `FileFilter`. Required.
  virtual IFileFilter* GetFileFilter() = 0;
  virtual ConfigResult SetFileFilter(const IFileFilter* child) = 0;

  /// The child `DiscoveryAction`. Required.
  virtual IDiscoveryAction* GetDiscoveryAction() = 0;
  virtual ConfigResult SetDiscoveryAction(const IDiscoveryAction* child) = 0;

  /// The child `DiscoverySettings`. Required.
  virtual IDiscoverySettings* GetDiscoverySettings() = 0;
  virtual ConfigResult SetDiscoverySettings(const IDiscoverySettings* child) = 0;
};

/// Element `DiscoveryJobs`.
class IDiscoveryJobs : public tolva::node::INode {
 public:
  virtual IDiscoveryJobs& CopyFrom(const IDiscoveryJobs& other) = 0;

  /// Children `DiscoveryJob`.
  virtual DWORD GetDiscoveryJobCount() const = 0;
  virtual IDiscoveryJob* GetDiscoveryJobAt(DWORD index) = 0;
  virtual ConfigResult AddDiscoveryJob(const IDiscoveryJob* item) = 0;
  virtual ConfigResult InsertDiscoveryJobAt(DWORD index, const IDiscoveryJob* item) = 0;
  virtual void RemoveDiscoveryJobAt(DWORD index) = 0;
  virtual void RemoveAllDiscoveryJob() = 0;
};

/// Element `Discovery`.
class IDiscovery : public tolva::node::INode {
 public:
  virtual IDiscovery& CopyFrom(const IDiscovery& other) = 0;

  /// The child `DiscoveryJobs`. Required.
  virtual IDiscoveryJobs* GetDiscoveryJobs() = 0;
  virtual ConfigResult SetDiscoveryJobs(const IDiscoveryJobs* child) = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IFileFilter* FileFilter_CreateNewInstance();
TOLVA_API IDiscoveryAction* DiscoveryAction_CreateNewInstance();
TOLVA_API IDiscoverySettings* DiscoverySettings_CreateNewInstance();
TOLVA_API IDiscoveryJob* DiscoveryJob_CreateNewInstance();
TOLVA_API IDiscoveryJobs* DiscoveryJobs_CreateNewInstance();
TOLVA_API IDiscovery* Discovery_CreateNewInstance();

}  // namespace TolvaInterface
