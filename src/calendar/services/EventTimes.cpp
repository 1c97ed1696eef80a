#include "calendar/services/EventTimes.h"

#include "calendar/RecurrenceRule.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"
#include "storage/StoredTime.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventTimes)
};

constexpr qint64 DefaultInstanceSecs = 3'600;

bool isUtc(const QString &zone)
{
    return zone.isEmpty() || zone == QLatin1StringView("UTC");
}

QDateTime toStore(const QDateTime &value, const Event &event)
{
    if (event.isAllDay)
        return StoredTime::wholeDay(value);
    const QTimeZone zone = isUtc(event.timezone) ? QTimeZone() : TimeZones::ianaZone(event.timezone);
    if (zone.isValid())
        return value.toTimeZone(zone);
    return EventTimes::floats(event) ? value.toLocalTime() : value.toUTC();
}

}

void EventTimes::set(Event &event, const QDateTime &start, std::optional<QDateTime> end)
{
    event.startTime = toStore(start, event);
    event.endTime = end && end->isValid() ? std::optional(toStore(*end, event)) : std::nullopt;
    if (event.isAllDay && event.endTime)
        event.endTime = std::max(*event.endTime, event.startTime.addDays(1));
}

bool EventTimes::lacksZone(const Event &event)
{
    return event.isSeries() && !event.isAllDay && isUtc(event.timezone) && !floats(event);
}

bool EventTimes::floats(const Event &event)
{
    return !event.isAllDay && event.startTime.timeSpec() == Qt::LocalTime;
}

QDateTime EventTimes::seriesStart(const QDateTime &start, const QDateTime &occurrence, const QDateTime &target)
{
    const QDate occurrenceDate = WallClock(start).at(occurrence.toMSecsSinceEpoch()).date();
    const QDate date = target.date().addDays(-start.date().daysTo(occurrenceDate));
    return WallClock(target).at(date, target.time());
}

qint64 EventTimes::durationSecs(const Event &event)
{
    if (event.endTime)
        return event.startTime.secsTo(*event.endTime);
    return event.isSeries() ? DefaultInstanceSecs : 0;
}

QString EventTimes::problem(const Event &event)
{
    if (!event.startTime.isValid())
        return Tr::tr("The event has no start time.");
    if (event.endTime && *event.endTime < event.startTime)
        return Tr::tr("The end time is earlier than the start time.");
    return {};
}

QString EventTimes::problemOfSeries(const Event &event)
{
    const std::optional<qint64> untilMs = RecurrenceRule::parse(event.recurrenceRule).untilMs;
    if (!event.isSeries() || !untilMs || *untilMs >= event.startTime.toMSecsSinceEpoch())
        return {};
    return Tr::tr("The series ends before its first event. Choose a later last day.");
}
