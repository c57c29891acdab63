// Schedules: when a recurring task of the agent runs. The library does not interpret dates, times,
// masks, durations and gaps; the agent defines their units and formats.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// Element `StartAt`: when a recurrence starts.
class IStartAt : public tolva::node::INode {
 public:
  virtual IStartAt& CopyFrom(const IStartAt& other) = 0;

  /// `Time`: the time of the start. Required.
  virtual const std::wstring& GetTime() const = 0;
  virtual ConfigResult SetTime(const std::wstring* value) = 0;

  /// `Date`: the date of the start. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;
};

/// Element `StopAt`: when a recurrence stops.
class IStopAt : public tolva::node::INode {
 public:
  virtual IStopAt& CopyFrom(const IStopAt& other) = 0;

  /// `Date`: the date of the end. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;

  /// `Occurrences`: the number of runs after which the recurrence stops. Optional.
  virtual ConfigResult GetOccurrences(DWORD* out) const = 0;
  virtual ConfigResult SetOccurrences(const DWORD* value) = 0;
};

/// Element `TimeSlot`: a period of the day in which the task may run.
class ITimeSlot : public tolva::node::INode {
 public:
  virtual ITimeSlot& CopyFrom(const ITimeSlot& other) = 0;

  /// `Weekday`: the day of the week, as a number. Optional.
  virtual ConfigResult GetWeekday(DWORD* out) const = 0;
  virtual ConfigResult SetWeekday(const DWORD* value) = 0;

  /// `StartTime`: the beginning of the period. Required.
  virtual const std::wstring& GetStartTime() const = 0;
  virtual ConfigResult SetStartTime(const std::wstring* value) = 0;

  /// `EndTime`: the end of the period. Required.
  virtual const std::wstring& GetEndTime() const = 0;
  virtual ConfigResult SetEndTime(const std::wstring* value) = 0;
};

/// Element `AvailableTimeSlots`: the periods in which the task may run.
class IAvailableTimeSlots : public tolva::node::INode {
 public:
  virtual IAvailableTimeSlots& CopyFrom(const IAvailableTimeSlots& other) = 0;

  /// `TimeSlot`: a period of the day in which the task may run. Repeated.
  virtual DWORD GetTimeSlotCount() const = 0;
  virtual ITimeSlot* GetTimeSlotAt(DWORD index) = 0;
  virtual ConfigResult AddTimeSlot(const ITimeSlot* item) = 0;
  virtual ConfigResult InsertTimeSlotAt(DWORD index, const ITimeSlot* item) = 0;
  virtual void RemoveTimeSlotAt(DWORD index) = 0;
  virtual void RemoveAllTimeSlot() = 0;
};

/// Element `Recurring`: how a task recurs.
class IRecurring : public tolva::node::INode {
 public:
  virtual IRecurring& CopyFrom(const IRecurring& other) = 0;

  /// `Mask`. Optional.
  virtual ConfigResult GetMask(std::wstring* out) const = 0;
  virtual ConfigResult SetMask(const std::wstring* value) = 0;

  /// `Frequence`: how often the task recurs. Optional.
  virtual ConfigResult GetFrequence(DWORD* out) const = 0;
  virtual ConfigResult SetFrequence(const DWORD* value) = 0;

  /// `StartAt`: when the recurrence starts. Required.
  virtual IStartAt* GetStartAt() = 0;
  virtual ConfigResult SetStartAt(const IStartAt* child) = 0;

  /// `StopAt`: when the recurrence stops. Optional.
  virtual ConfigResult GetStopAt(IStopAt** out) = 0;
  virtual ConfigResult SetStopAt(const IStopAt* child) = 0;

  /// `AvailableTimeSlots`: the periods in which the task may run. Optional.
  virtual ConfigResult GetAvailableTimeSlots(IAvailableTimeSlots** out) = 0;
  virtual ConfigResult SetAvailableTimeSlots(const IAvailableTimeSlots* child) = 0;
};

/// The values of the attribute `Type` of `InitialRecur`.
enum InitialRecurType : DWORD {
  kInitialRecurTypeNow = 0,   ///< "NOW"
  kInitialRecurTypeTime = 1,  ///< "TIME"
};

/// Element `InitialRecur`: the first run of a task.
class IInitialRecur : public tolva::node::INode {
 public:
  virtual IInitialRecur& CopyFrom(const IInitialRecur& other) = 0;

  /// `Type`: whether the first run starts now or at a given time. Required.
  ///
  /// The value is an InitialRecurType.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `Time`: the time of the first run. Optional.
  virtual ConfigResult GetTime(std::wstring* out) const = 0;
  virtual ConfigResult SetTime(const std::wstring* value) = 0;

  /// `Date`: the date of the first run. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;
};

/// The values of the attribute `RecurType` of `Schedule`.
enum RecurType : DWORD {
  kRecurTypeOnce = 0,          ///< "ONCE"
  kRecurTypeDaily = 1,         ///< "DAILY"
  kRecurTypeWeekly = 2,        ///< "WEEKLY"
  kRecurTypeMonthly = 3,       ///< "MONTHLY"
  kRecurTypeContinuously = 4,  ///< "CONTINUOUSLY"
};

/// The values of the attribute `TimeType` of `Schedule`.
enum TimeType : DWORD {
  kTimeTypeLocal = 0,  ///< "LOCAL"
  kTimeTypeUtc = 1,    ///< "UTC"
};

/// Element `Schedule`: when a task runs.
///
/// `Clear` keeps `RecurType`, which is 0 in a new node, and the value of `TimeType`; it makes
/// `TimeType` absent.
class ISchedule : public tolva::node::INode {
 public:
  virtual ISchedule& CopyFrom(const ISchedule& other) = 0;

  /// `RecurType`: how the task recurs: once, daily, weekly, monthly or continuously. Required.
  ///
  /// The value is a RecurType.
  virtual DWORD GetRecurType() const = 0;
  virtual ConfigResult SetRecurType(const DWORD* value) = 0;

  /// `Duration`: the duration of a run. Optional.
  virtual ConfigResult GetDuration(DWORD* out) const = 0;
  virtual ConfigResult SetDuration(const DWORD* value) = 0;

  /// `TimeType`: whether times are local time or UTC. Optional.
  ///
  /// The value is a TimeType.
  virtual ConfigResult GetTimeType(DWORD* out) const = 0;
  virtual ConfigResult SetTimeType(const DWORD* value) = 0;

  /// `ContinuousSchGap`: the gap between two runs of a task that runs continuously. Optional.
  virtual ConfigResult GetContinuousSchGap(DWORD* out) const = 0;
  virtual ConfigResult SetContinuousSchGap(const DWORD* value) = 0;

  /// `Recurring`: how the task recurs. Optional.
  virtual ConfigResult GetRecurring(IRecurring** out) = 0;
  virtual ConfigResult SetRecurring(const IRecurring* child) = 0;

  /// `InitialRecur`: the first run. Optional.
  virtual ConfigResult GetInitialRecur(IInitialRecur** out) = 0;
  virtual ConfigResult SetInitialRecur(const IInitialRecur* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IStartAt* StartAt_CreateNewInstance();
TOLVA_API IStopAt* StopAt_CreateNewInstance();
TOLVA_API ITimeSlot* TimeSlot_CreateNewInstance();
TOLVA_API IAvailableTimeSlots* AvailableTimeSlots_CreateNewInstance();
TOLVA_API IRecurring* Recurring_CreateNewInstance();
TOLVA_API IInitialRecur* InitialRecur_CreateNewInstance();
TOLVA_API ISchedule* Schedule_CreateNewInstance();

}  // namespace TolvaInterface
