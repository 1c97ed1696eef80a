#include "calendar/EventDays.h"

#include <algorithm>

namespace {

QDate dayOf(const QDateTime &time, bool isAllDay)
{
    return isAllDay ? time.date() : time.toLocalTime().date();
}

QDate lastDayOf(const QDateTime &start, const QDateTime &end, bool isAllDay)
{
    const QDate first = dayOf(start, isAllDay);
    if (!end.isValid() || end <= start)
        return first;
    // The dates of an all-day event may come from two zones.
    return std::max(first, dayOf(end.addMSecs(-1), isAllDay));
}

QDateTime endOf(const Event &event)
{
    return event.endTime.value_or(QDateTime());
}

}

QDate EventDays::firstDay(const Event &event)
{
    return dayOf(event.startTime, event.isAllDay);
}

QDate EventDays::lastDay(const Event &event)
{
    return lastDayOf(event.startTime, endOf(event), event.isAllDay);
}

bool EventDays::overlaps(const Event &event, QDate first, int days)
{
    return Span(first, days).holds(event);
}

EventDays::Span::Span(QDate first, int days)
    : m_first(first)
    , m_end(first.addDays(days))
    , m_fromMs(m_first.startOfDay().toMSecsSinceEpoch()) // not always 00:00: clocks change at midnight too
    , m_toMs(m_end.startOfDay().toMSecsSinceEpoch())
{
}

bool EventDays::Span::holds(const Event &event) const
{
    return holds(event.startTime, endOf(event), event.isAllDay);
}

bool EventDays::Span::holds(const QDateTime &start, const QDateTime &end, bool isAllDay) const
{
    if (!start.isValid() || m_end <= m_first)
        return false;
    if (isAllDay)
        return start.date() < m_end && lastDayOf(start, end, isAllDay) >= m_first;
    const qint64 startMs = start.toMSecsSinceEpoch();
    if (startMs >= m_toMs)
        return false;
    return startMs >= m_fromMs || (end.isValid() && end.toMSecsSinceEpoch() > m_fromMs);
}
