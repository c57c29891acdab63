#include "policy/schedules.h"

namespace TolvaInterface {
namespace {

constexpr Name kInitialTypes[] = {L"NOW", L"TIME"};
constexpr Name kRecurTypes[] = {L"ONCE", L"DAILY", L"WEEKLY", L"MONTHLY", L"CONTINUOUSLY"};
constexpr Name kTimeTypes[] = {L"LOCAL", L"UTC"};

}  // namespace

constexpr Attribute kStartAtAttributes[] = {
    Attr<&CStartAt::time_>(L"Time"),
    Attr<&CStartAt::date_>(L"Date"),
};
constinit const Schema CStartAt::kSchema = Checked({
    .element = L"StartAt",
    .dialect = kDialect,
    .attributes = kStartAtAttributes,
});

constexpr Attribute kStopAtAttributes[] = {
    Attr<&CStopAt::date_>(L"Date"),
    Attr<&CStopAt::occurrences_>(L"Occurrences"),
};
constinit const Schema CStopAt::kSchema = Checked({
    .element = L"StopAt",
    .dialect = kDialect,
    .attributes = kStopAtAttributes,
});

constexpr Attribute kTimeSlotAttributes[] = {
    Attr<&CTimeSlot::weekday_>(L"Weekday"),
    Attr<&CTimeSlot::startTime_>(L"StartTime"),
    Attr<&CTimeSlot::endTime_>(L"EndTime"),
};
constinit const Schema CTimeSlot::kSchema = Checked({
    .element = L"TimeSlot",
    .dialect = kDialect,
    .attributes = kTimeSlotAttributes,
});

constexpr Child kAvailableTimeSlotsChildren[] = {
    Elem<&CAvailableTimeSlots::timeSlots_>(L"TimeSlot"),
};
constinit const Schema CAvailableTimeSlots::kSchema = Checked({
    .element = L"AvailableTimeSlots",
    .dialect = kDialect,
    .children = kAvailableTimeSlotsChildren,
});

constexpr Attribute kRecurringAttributes[] = {
    Attr<&CRecurring::mask_>(L"Mask"),
    Attr<&CRecurring::frequence_>(L"Frequence"),
};
constexpr Child kRecurringChildren[] = {
    Elem<&CRecurring::startAt_>(L"StartAt"),
    Elem<&CRecurring::stopAt_>(L"StopAt"),
    Elem<&CRecurring::availableTimeSlots_>(L"AvailableTimeSlots"),
};
constinit const Schema CRecurring::kSchema = Checked({
    .element = L"Recurring",
    .dialect = kDialect,
    .attributes = kRecurringAttributes,
    .children = kRecurringChildren,
});

constexpr Attribute kInitialRecurAttributes[] = {
    Attr<&CInitialRecur::type_>(L"Type", {kInitialTypes}),
    Attr<&CInitialRecur::time_>(L"Time"),
    Attr<&CInitialRecur::date_>(L"Date"),
};
constinit const Schema CInitialRecur::kSchema = Checked({
    .element = L"InitialRecur",
    .dialect = kDialect,
    .attributes = kInitialRecurAttributes,
});

constexpr Attribute kScheduleAttributes[] = {
    Attr<&CSchedule::recurType_>(L"RecurType", {kRecurTypes}).KeepsValue(),
    Attr<&CSchedule::duration_>(L"Duration"),
    Attr<&CSchedule::timeType_>(L"TimeType", {kTimeTypes}).KeepsValue(),
    Attr<&CSchedule::continuousSchGap_>(L"ContinuousSchGap"),
};
constexpr Child kScheduleChildren[] = {
    Elem<&CSchedule::recurring_>(L"Recurring"),
    Elem<&CSchedule::initialRecur_>(L"InitialRecur"),
};
constinit const Schema CSchedule::kSchema = Checked({
    .element = L"Schedule",
    .dialect = kDialect,
    .attributes = kScheduleAttributes,
    .children = kScheduleChildren,
});

}  // namespace TolvaInterface
