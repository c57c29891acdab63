// When a recurring task of the agent runs.
//
// Dates, times, masks, durations and gaps are carried as they stand: their formats and units are
// the agent's.
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

  /// `Time`. Required.
  virtual const std::wstring& GetTime() const = 0;
  virtual ConfigResult SetTime(const std::wstring* value) = 0;

  /// `Date`. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;
};

/// Element `StopAt`: when a recurrence stops.
class IStopAt : public tolva::node::INode {
 public:
  virtual IStopAt& CopyFrom(const IStopAt& other) = 0;

  /// `Date`. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;

  /// `Occurrences`: after how many runs. Optional.
  virtual ConfigResult GetOccurrences(DWORD* out) const = 0;
  virtual ConfigResult SetOccurrences(const DWORD* value) = 0;
};

/// Element `TimeSlot`: a part of the day in which a run is allowed.
class ITimeSlot : public tolva::node::INode {
 public:
  virtual ITimeSlot& CopyFrom(const ITimeSlot& other) = 0;

  /// `Weekday`: on which day. Optional.
  virtual ConfigResult GetWeekday(DWORD* out) const = 0;
  virtual ConfigResult SetWeekday(const DWORD* value) = 0;

  /// `StartTime`: from when. Required.
  virtual const std::wstring& GetStartTime() const = 0;
  virtual ConfigResult SetStartTime(const std::wstring* value) = 0;

  /// `EndTime`: until when. Required.
  virtual const std::wstring& GetEndTime() const = 0;
  virtual ConfigResult SetEndTime(const std::wstring* value) = 0;
};

/// Element `AvailableTimeSlots`.
class IAvailableTimeSlots : public tolva::node::INode {
 public:
  virtual IAvailableTimeSlots& CopyFrom(const IAvailableTimeSlots& other) = 0;

  /// Children `TimeSlot`.
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

  /// `Frequence`. Optional.
  virtual ConfigResult GetFrequence(DWORD* out) const = 0;
  virtual ConfigResult SetFrequence(const DWORD* value) = 0;

  /// The child `StartAt`. Required.
  virtual IStartAt* GetStartAt() = 0;
  virtual ConfigResult SetStartAt(const IStartAt* child) = 0;

  /// The child `StopAt`. Optional.
  virtual ConfigResult GetStopAt(IStopAt** out) = 0;
  virtual ConfigResult SetStopAt(const IStopAt* child) = 0;

  /// The child `AvailableTimeSlots`. Optional.
  virtual ConfigResult GetAvailableTimeSlots(IAvailableTimeSlots** out) = 0;
  virtual ConfigResult SetAvailableTimeSlots(const IAvailableTimeSlots* child) = 0;
};

/// The values of `InitialRecur`'s `Type`.
enum InitialRecurType : DWORD {
  kInitialRecurTypeNow = 0,   ///< "NOW"
  kInitialRecurTypeTime = 1,  ///< "TIME"
};

/// Element `InitialRecur`: the first run.
class IInitialRecur : public tolva::node::INode {
 public:
  virtual IInitialRecur& CopyFrom(const IInitialRecur& other) = 0;

  /// `Type`: an InitialRecurType. Required.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `Time`. Optional.
  virtual ConfigResult GetTime(std::wstring* out) const = 0;
  virtual ConfigResult SetTime(const std::wstring* value) = 0;

  /// `Date`. Optional.
  virtual ConfigResult GetDate(std::wstring* out) const = 0;
  virtual ConfigResult SetDate(const std::wstring* value) = 0;
};

/// The values of `Schedule`'s `RecurType`.
enum RecurType : DWORD {
  kRecurTypeOnce = 0,          ///< "ONCE"
  kRecurTypeDaily = 1,         ///< "DAILY"
  kRecurTypeWeekly = 2,        ///< "WEEKLY"
  kRecurTypeMonthly = 3,       ///< "MONTHLY"
  kRecurTypeContinuously = 4,  ///< "CONTINUOUSLY"
};

/// The values of `Schedule`'s `TimeType`.
enum TimeType : DWORD {
  kTimeTypeLocal = 0,  ///< "LOCAL"
  kTimeTypeUtc = 1,    ///< "UTC"
};

/// Element `Schedule`. `Clear` leaves `RecurType` and the value of `TimeType` as they were;
/// `TimeType` becomes absent.
class ISchedule : public tolva::node::INode {
 public:
  virtual ISchedule& CopyFrom(const ISchedule& other) = 0;

  /// `RecurType`: how the task recurs, a RecurType. Required.
  virtual DWORD GetRecurType() const = 0;
  virtual ConfigResult SetRecurType(const DWORD* value) = 0;

  /// `Duration`. Optional.
  virtual ConfigResult GetDuration(DWORD* out) const = 0;
  virtual ConfigResult SetDuration(const DWORD* value) = 0;

  /// `TimeType`: which time is meant, a TimeType. Optional.
  virtual ConfigResult GetTimeType(DWORD* out) const = 0;
  virtual ConfigResult SetTimeType(const DWORD* value) = 0;

  /// `ContinuousSchGap`: the gap between continuous runs. Optional.
  virtual ConfigResult GetContinuousSchGap(DWORD* out) const = 0;
  virtual ConfigResult SetContinuousSchGap(const DWORD* value) = 0;

  /// The child `Recurring`. Optional.
  virtual ConfigResult GetRecurring(IRecurring** out) = 0;
  virtual ConfigResult SetRecurring(const IRecurring* child) = 0;

  /// The child `InitialRecur`. Optional.
  virtual ConfigResult GetInitialRecur(IInitialRecur** out) = 0;
  virtual ConfigResult SetInitialRecur(const IInitialRecur* child) = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IStartAt* StartAt_CreateNewInstance();
TOLVA_API IStopAt* StopAt_CreateNewInstance();
TOLVA_API ITimeSlot* TimeSlot_CreateNewInstance();
TOLVA_API IAvailableTimeSlots* AvailableTimeSlots_CreateNewInstance();
TOLVA_API IRecurring* Recurring_CreateNewInstance();
TOLVA_API IInitialRecur* InitialRecur_CreateNewInstance();
TOLVA_API ISchedule* Schedule_CreateNewInstance();

}  // namespace TolvaInterface
