#include "policy/schedules.h"

namespace TolvaInterface {
namespace {

constexpr const wchar_t* kInitialTypes[] = {L"NOW", L"TIME"};
constexpr const wchar_t* kRecurTypes[] = {L"ONCE", L"DAILY", L"WEEKLY", L"MONTHLY",
                                          L"CONTINUOUSLY"};
constexpr const wchar_t* kTimeTypes[] = {L"LOCAL", L"UTC"};

}  // namespace

constinit const Attribute CStartAt::kAttributes[] = {
    Attr<&CStartAt::time_>(L"Time"),
    Attr<&CStartAt::date_>(L"Date"),
};
constinit const Schema CStartAt::kSchema = {
    .element = L"StartAt",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CStopAt::kAttributes[] = {
    Attr<&CStopAt::date_>(L"Date"),
    Attr<&CStopAt::occurrences_>(L"Occurrences"),
};
constinit const Schema CStopAt::kSchema = {
    .element = L"StopAt",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CTimeSlot::kAttributes[] = {
    Attr<&CTimeSlot::weekday_>(L"Weekday"),
    Attr<&CTimeSlot::startTime_>(L"StartTime"),
    Attr<&CTimeSlot::endTime_>(L"EndTime"),
};
constinit const Schema CTimeSlot::kSchema = {
    .element = L"TimeSlot",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CAvailableTimeSlots::kChildren[] = {
    Elem<&CAvailableTimeSlots::timeSlots_>(L"TimeSlot"),
};
constinit const Schema CAvailableTimeSlots::kSchema = {
    .element = L"AvailableTimeSlots",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CRecurring::kAttributes[] = {
    Attr<&CRecurring::mask_>(L"Mask"),
    Attr<&CRecurring::frequence_>(L"Frequence"),
};
constinit const Child CRecurring::kChildren[] = {
    Elem<&CRecurring::startAt_>(L"StartAt"),
    Elem<&CRecurring::stopAt_>(L"StopAt"),
    Elem<&CRecurring::availableTimeSlots_>(L"AvailableTimeSlots"),
};
constinit const Schema CRecurring::kSchema = {
    .element = L"Recurring",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CInitialRecur::kAttributes[] = {
    Attr<&CInitialRecur::type_>(L"Type", {kInitialTypes}),
    Attr<&CInitialRecur::time_>(L"Time"),
    Attr<&CInitialRecur::date_>(L"Date"),
};
constinit const Schema CInitialRecur::kSchema = {
    .element = L"InitialRecur",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CSchedule::kAttributes[] = {
    Attr<&CSchedule::recurType_>(L"RecurType", {kRecurTypes}),
    Attr<&CSchedule::duration_>(L"Duration"),
    Attr<&CSchedule::timeType_>(L"TimeType", {kTimeTypes}),
    Attr<&CSchedule::continuousSchGap_>(L"ContinuousSchGap"),
};
constinit const Child CSchedule::kChildren[] = {
    Elem<&CSchedule::recurring_>(L"Recurring"),
    Elem<&CSchedule::initialRecur_>(L"InitialRecur"),
};
constinit const Schema CSchedule::kSchema = {
    .element = L"Schedule",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

void CSchedule::Clear() {
  const DWORD recur_type = recurType_;
  const DWORD time_type = timeType_.value;
  Node::Clear();
  recurType_ = recur_type;
  timeType_.value = time_type;
}

}  // namespace TolvaInterface
