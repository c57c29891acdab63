// The classes of tolva/policy/schedules.h.
#pragma once

#include <tolva/policy/schedules.h>

#include <string>

#include "node/node.h"
#include "policy/document.h"

namespace TolvaInterface {

class CStartAt final : public Node<CStartAt, IStartAt> {
 public:
  static const Schema kSchema;

  const std::wstring& GetTime() const override { return time_; }
  ConfigResult SetTime(const std::wstring* value) override { return SetRequired(time_, value); }
  ConfigResult GetDate(std::wstring* out) const override { return date_.Get(out); }
  ConfigResult SetDate(const std::wstring* value) override { return date_.Set(value); }

 private:
  static const Attribute kAttributes[];

  std::wstring time_;
  Optional<std::wstring> date_;
};

class CStopAt final : public Node<CStopAt, IStopAt> {
 public:
  static const Schema kSchema;

  ConfigResult GetDate(std::wstring* out) const override { return date_.Get(out); }
  ConfigResult SetDate(const std::wstring* value) override { return date_.Set(value); }
  ConfigResult GetOccurrences(DWORD* out) const override { return occurrences_.Get(out); }
  ConfigResult SetOccurrences(const DWORD* value) override { return occurrences_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> date_;
  Optional<DWORD> occurrences_;
};

class CTimeSlot final : public Node<CTimeSlot, ITimeSlot> {
 public:
  static const Schema kSchema;

  ConfigResult GetWeekday(DWORD* out) const override { return weekday_.Get(out); }
  ConfigResult SetWeekday(const DWORD* value) override { return weekday_.Set(value); }
  const std::wstring& GetStartTime() const override { return startTime_; }
  ConfigResult SetStartTime(const std::wstring* value) override {
    return SetRequired(startTime_, value);
  }
  const std::wstring& GetEndTime() const override { return endTime_; }
  ConfigResult SetEndTime(const std::wstring* value) override {
    return SetRequired(endTime_, value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> weekday_;
  std::wstring startTime_;
  std::wstring endTime_;
};

class CAvailableTimeSlots final : public Node<CAvailableTimeSlots, IAvailableTimeSlots> {
 public:
  static const Schema kSchema;

  DWORD GetTimeSlotCount() const override { return timeSlots_.Count(); }
  ITimeSlot* GetTimeSlotAt(DWORD index) override { return timeSlots_.At(index); }
  ConfigResult AddTimeSlot(const ITimeSlot* item) override { return timeSlots_.Add(item); }
  ConfigResult InsertTimeSlotAt(DWORD index, const ITimeSlot* item) override {
    return timeSlots_.InsertAt(index, item);
  }
  void RemoveTimeSlotAt(DWORD index) override { timeSlots_.RemoveAt(index); }
  void RemoveAllTimeSlot() override { timeSlots_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CTimeSlot> timeSlots_;
};

class CRecurring final : public Node<CRecurring, IRecurring> {
 public:
  static const Schema kSchema;

  ConfigResult GetMask(std::wstring* out) const override { return mask_.Get(out); }
  ConfigResult SetMask(const std::wstring* value) override { return mask_.Set(value); }
  ConfigResult GetFrequence(DWORD* out) const override { return frequence_.Get(out); }
  ConfigResult SetFrequence(const DWORD* value) override { return frequence_.Set(value); }
  IStartAt* GetStartAt() override { return &startAt_; }
  ConfigResult SetStartAt(const IStartAt* child) override {
    return SetRequiredChild(startAt_, child);
  }
  ConfigResult GetStopAt(IStopAt** out) override { return stopAt_.Get(out); }
  ConfigResult SetStopAt(const IStopAt* child) override { return stopAt_.Set(child); }
  ConfigResult GetAvailableTimeSlots(IAvailableTimeSlots** out) override {
    return availableTimeSlots_.Get(out);
  }
  ConfigResult SetAvailableTimeSlots(const IAvailableTimeSlots* child) override {
    return availableTimeSlots_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<std::wstring> mask_;
  Optional<DWORD> frequence_;
  CStartAt startAt_;
  OptionalChild<CStopAt> stopAt_;
  OptionalChild<CAvailableTimeSlots> availableTimeSlots_;
};

class CInitialRecur final : public Node<CInitialRecur, IInitialRecur> {
 public:
  static const Schema kSchema;

  DWORD GetType() const override { return type_; }
  ConfigResult SetType(const DWORD* value) override { return SetRequired(type_, value); }
  ConfigResult GetTime(std::wstring* out) const override { return time_.Get(out); }
  ConfigResult SetTime(const std::wstring* value) override { return time_.Set(value); }
  ConfigResult GetDate(std::wstring* out) const override { return date_.Get(out); }
  ConfigResult SetDate(const std::wstring* value) override { return date_.Set(value); }

 private:
  static const Attribute kAttributes[];

  DWORD type_ = 0;
  Optional<std::wstring> time_;
  Optional<std::wstring> date_;
};

class CSchedule final : public Node<CSchedule, ISchedule> {
 public:
  static const Schema kSchema;

  DWORD GetRecurType() const override { return recurType_; }
  ConfigResult SetRecurType(const DWORD* value) override { return SetRequired(recurType_, value); }
  ConfigResult GetDuration(DWORD* out) const override { return duration_.Get(out); }
  ConfigResult SetDuration(const DWORD* value) override { return duration_.Set(value); }
  ConfigResult GetTimeType(DWORD* out) const override { return timeType_.Get(out); }
  ConfigResult SetTimeType(const DWORD* value) override { return timeType_.Set(value); }
  ConfigResult GetContinuousSchGap(DWORD* out) const override { return continuousSchGap_.Get(out); }
  ConfigResult SetContinuousSchGap(const DWORD* value) override {
    return continuousSchGap_.Set(value);
  }
  ConfigResult GetRecurring(IRecurring** out) override { return recurring_.Get(out); }
  ConfigResult SetRecurring(const IRecurring* child) override { return recurring_.Set(child); }
  ConfigResult GetInitialRecur(IInitialRecur** out) override { return initialRecur_.Get(out); }
  ConfigResult SetInitialRecur(const IInitialRecur* child) override {
    return initialRecur_.Set(child);
  }

  /// All but `RecurType` and the value of `TimeType`.
  void Clear() override;

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD recurType_ = 0;
  Optional<DWORD> duration_;
  Optional<DWORD> timeType_;
  Optional<DWORD> continuousSchGap_;
  OptionalChild<CRecurring> recurring_;
  OptionalChild<CInitialRecur> initialRecur_;
};

}  // namespace TolvaInterface
