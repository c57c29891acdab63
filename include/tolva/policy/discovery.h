// Discovery jobs: which files the agent searches for data, when, and what it does with them. The
// library does not interpret numbers, dates and patterns; the agent defines their units and
// formats.
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
/// Element `FileFilter`: the files that a discovery job searches.
class IFileFilter : public tolva::node::INode {
 public:
  virtual IFileFilter& CopyFrom(const IFileFilter& other) = 0;

  /// `Include`: the patterns of the files to search. Required.
  virtual const std::wstring& GetInclude() const = 0;
  virtual ConfigResult SetInclude(const std::wstring* value) = 0;

  /// `Exclude`: the patterns of the files to leave out. Optional.
  virtual ConfigResult GetExclude(std::wstring* out) const = 0;
  virtual ConfigResult SetExclude(const std::wstring* value) = 0;

  /// `Age`: a limit on the age of a file. Optional.
  virtual ConfigResult GetAge(DWORD* out) const = 0;
  virtual ConfigResult SetAge(const DWORD* value) = 0;

  /// `ModifiedBefore`: a limit on the time when a file was last modified. Optional.
  virtual ConfigResult GetModifiedBefore(DWORD* out) const = 0;
  virtual ConfigResult SetModifiedBefore(const DWORD* value) = 0;

  /// `MinDate`: the earliest date of a file. Optional.
  virtual ConfigResult GetMinDate(std::wstring* out) const = 0;
  virtual ConfigResult SetMinDate(const std::wstring* value) = 0;

  /// `MaxDate`: the latest date of a file. Optional.
  virtual ConfigResult GetMaxDate(std::wstring* out) const = 0;
  virtual ConfigResult SetMaxDate(const std::wstring* value) = 0;

  /// `MinSize`: the smallest size of a file. Optional.
  ///
  /// A 64-bit number. Reading saturates at 18446744073709551615.
  virtual ConfigResult GetMinSize(std::uint64_t* out) const = 0;
  virtual ConfigResult SetMinSize(const std::uint64_t* value) = 0;

  /// `MaxSize`: the largest size of a file. Optional.
  ///
  /// A 64-bit number. Reading saturates at 18446744073709551615.
  virtual ConfigResult GetMaxSize(std::uint64_t* out) const = 0;
  virtual ConfigResult SetMaxSize(const std::uint64_t* value) = 0;

  /// `DriveType`: the type of the drives to search. Optional.
  virtual ConfigResult GetDriveType(std::wstring* out) const = 0;
  virtual ConfigResult SetDriveType(const std::wstring* value) = 0;
#if defined(_WIN32)
  ConfigResult GetDriveTypeW(std::wstring* out) const { return GetDriveType(out); }
  ConfigResult GetDriveTypeA(std::wstring* out) const { return GetDriveType(out); }
#endif

  /// `Recursive`: 1 if subfolders are searched, 0 if not. Optional.
  virtual ConfigResult GetRecursive(DWORD* out) const = 0;
  virtual ConfigResult SetRecursive(const DWORD* value) = 0;
};
#pragma pop_macro("GetDriveType")

/// The values of the attribute `Action` of `DiscoveryAction`.
enum DiscoveryAction : DWORD {
  kDiscoveryActionAnalyze = 0,  ///< "ANALYZE"
};

/// Element `DiscoveryAction`: what a discovery job does with a file.
///
/// `Clear` keeps `Action`, which is 0 in a new node.
class IDiscoveryAction : public tolva::node::INode {
 public:
  virtual IDiscoveryAction& CopyFrom(const IDiscoveryAction& other) = 0;

  /// `Action`: what the job does with a file. Required.
  ///
  /// The value is a DiscoveryAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;
};

/// The values of the attribute `ScanMode` of `DiscoverySettings`.
enum ScanMode : DWORD {
  kScanModeFull = 0,          ///< "FULL"
  kScanModeDifferential = 1,  ///< "DIFFERENTIAL"
  kScanModeAlternative = 2,   ///< "ALTERNATIVE"
};

/// Element `DiscoverySettings`: how a discovery job proceeds.
class IDiscoverySettings : public tolva::node::INode {
 public:
  virtual IDiscoverySettings& CopyFrom(const IDiscoverySettings& other) = 0;

  /// `FullScanInterval`: the interval between full scans. Optional.
  virtual ConfigResult GetFullScanInterval(DWORD* out) const = 0;
  virtual ConfigResult SetFullScanInterval(const DWORD* value) = 0;

  /// `PauseOnNotIdle`: 1 if the job pauses while the machine is not idle, 0 if not. Optional.
  virtual ConfigResult GetPauseOnNotIdle(DWORD* out) const = 0;
  virtual ConfigResult SetPauseOnNotIdle(const DWORD* value) = 0;

  /// `IdleTimeout`: the time after which the machine counts as idle. Optional.
  virtual ConfigResult GetIdleTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetIdleTimeout(const DWORD* value) = 0;

  /// `PauseOnBattery`: 1 if the job pauses while the machine runs on battery, 0 if not. Optional.
  virtual ConfigResult GetPauseOnBattery(DWORD* out) const = 0;
  virtual ConfigResult SetPauseOnBattery(const DWORD* value) = 0;

  /// `ScanMode`: the kind of scan: full, differential or alternative. Optional.
  ///
  /// The value is a ScanMode.
  virtual ConfigResult GetScanMode(DWORD* out) const = 0;
  virtual ConfigResult SetScanMode(const DWORD* value) = 0;

  /// `PreserveFileAccessTime`: 1 if the files keep their access times, 0 if not. Optional.
  virtual ConfigResult GetPreserveFileAccessTime(DWORD* out) const = 0;
  virtual ConfigResult SetPreserveFileAccessTime(const DWORD* value) = 0;

  /// `FullScanOnFingerprintUpdate`: 1 if an update of the fingerprints leads to a full scan, 0 if
  /// not. Optional.
  virtual ConfigResult GetFullScanOnFingerprintUpdate(DWORD* out) const = 0;
  virtual ConfigResult SetFullScanOnFingerprintUpdate(const DWORD* value) = 0;
};

/// Element `DiscoveryJob`: a search for data in files.
class IDiscoveryJob : public tolva::node::INode {
 public:
  virtual IDiscoveryJob& CopyFrom(const IDiscoveryJob& other) = 0;

  /// `Id`: the identifier of the job, as text. Required.
  virtual const std::wstring& GetId() const = 0;
  virtual ConfigResult SetId(const std::wstring* value) = 0;

  /// `Sid`: the first of the two numeric identifiers of the job. Required.
  virtual DWORD GetSid() const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two numeric identifiers of the job. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `Taskid`: a task identifier. Optional.
  virtual ConfigResult GetTaskid(DWORD* out) const = 0;
  virtual ConfigResult SetTaskid(const DWORD* value) = 0;

  /// `Schedule`: when the job runs. Required.
  virtual ISchedule* GetSchedule() = 0;
  virtual ConfigResult SetSchedule(const ISchedule* child) = 0;

  /// `FileFilter`: the files that the job searches. Required.
  virtual IFileFilter* GetFileFilter() = 0;
  virtual ConfigResult SetFileFilter(const IFileFilter* child) = 0;

  /// `DiscoveryAction`: what the job does with a file. Required.
  virtual IDiscoveryAction* GetDiscoveryAction() = 0;
  virtual ConfigResult SetDiscoveryAction(const IDiscoveryAction* child) = 0;

  /// `DiscoverySettings`: how the job proceeds. Required.
  virtual IDiscoverySettings* GetDiscoverySettings() = 0;
  virtual ConfigResult SetDiscoverySettings(const IDiscoverySettings* child) = 0;
};

/// Element `DiscoveryJobs`: the discovery jobs.
class IDiscoveryJobs : public tolva::node::INode {
 public:
  virtual IDiscoveryJobs& CopyFrom(const IDiscoveryJobs& other) = 0;

  /// `DiscoveryJob`: a search for data in files. Repeated.
  virtual DWORD GetDiscoveryJobCount() const = 0;
  virtual IDiscoveryJob* GetDiscoveryJobAt(DWORD index) = 0;
  virtual ConfigResult AddDiscoveryJob(const IDiscoveryJob* item) = 0;
  virtual ConfigResult InsertDiscoveryJobAt(DWORD index, const IDiscoveryJob* item) = 0;
  virtual void RemoveDiscoveryJobAt(DWORD index) = 0;
  virtual void RemoveAllDiscoveryJob() = 0;
};

/// Element `Discovery`: the search for data in the files of the endpoint.
class IDiscovery : public tolva::node::INode {
 public:
  virtual IDiscovery& CopyFrom(const IDiscovery& other) = 0;

  /// `DiscoveryJobs`: the discovery jobs. Required.
  virtual IDiscoveryJobs* GetDiscoveryJobs() = 0;
  virtual ConfigResult SetDiscoveryJobs(const IDiscoveryJobs* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IFileFilter* FileFilter_CreateNewInstance();
TOLVA_API IDiscoveryAction* DiscoveryAction_CreateNewInstance();
TOLVA_API IDiscoverySettings* DiscoverySettings_CreateNewInstance();
TOLVA_API IDiscoveryJob* DiscoveryJob_CreateNewInstance();
TOLVA_API IDiscoveryJobs* DiscoveryJobs_CreateNewInstance();
TOLVA_API IDiscovery* Discovery_CreateNewInstance();

}  // namespace TolvaInterface
