// The classes of tolva/policy/schedules.h.
#pragma once

#include <tolva/policy/schedules.h>

#include <string>

#include "node/accessors.h"
#include "policy/document.h"

namespace TolvaInterface {

class CStartAt final : public Node<CStartAt, IStartAt> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Time, time_);
  TOLVA_OPTIONAL(std::wstring, Date, date_);
};

class CStopAt final : public Node<CStopAt, IStopAt> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, Date, date_);
  TOLVA_OPTIONAL(DWORD, Occurrences, occurrences_);
};

class CTimeSlot final : public Node<CTimeSlot, ITimeSlot> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Weekday, weekday_);
  TOLVA_STRING(StartTime, startTime_);
  TOLVA_STRING(EndTime, endTime_);
};

class CAvailableTimeSlots final : public Node<CAvailableTimeSlots, IAvailableTimeSlots> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CTimeSlot, TimeSlot, timeSlots_);
};

class CRecurring final : public Node<CRecurring, IRecurring> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, Mask, mask_);
  TOLVA_OPTIONAL(DWORD, Frequence, frequence_);
  TOLVA_CHILD(CStartAt, StartAt, startAt_);
  TOLVA_OPTIONAL_CHILD(CStopAt, StopAt, stopAt_);
  TOLVA_OPTIONAL_CHILD(CAvailableTimeSlots, AvailableTimeSlots, availableTimeSlots_);
};

class CInitialRecur final : public Node<CInitialRecur, IInitialRecur> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Type, type_);
  TOLVA_OPTIONAL(std::wstring, Time, time_);
  TOLVA_OPTIONAL(std::wstring, Date, date_);
};

class CSchedule final : public Node<CSchedule, ISchedule> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(RecurType, recurType_);
  TOLVA_OPTIONAL(DWORD, Duration, duration_);
  TOLVA_OPTIONAL(DWORD, TimeType, timeType_);
  TOLVA_OPTIONAL(DWORD, ContinuousSchGap, continuousSchGap_);
  TOLVA_OPTIONAL_CHILD(CRecurring, Recurring, recurring_);
  TOLVA_OPTIONAL_CHILD(CInitialRecur, InitialRecur, initialRecur_);
};

}  // namespace TolvaInterface
