#include "calendar/EventDays.h"

#include <algorithm>

namespace {

bool hasLength(const Event &event)
{
    return event.endTime && event.endTime->isValid() && *event.endTime > event.startTime;
}

}

QDate EventDays::firstDay(const Event &event)
{
    return event.isAllDay ? event.startTime.date() : event.startTime.toLocalTime().date();
}

QDate EventDays::lastDay(const Event &event)
{
    if (!hasLength(event))
        return firstDay(event);
    const QDateTime lastMoment = event.endTime->addMSecs(-1);
    const QDate last = event.isAllDay ? lastMoment.date() : lastMoment.toLocalTime().date();
    // The dates of an all-day event may come from two zones.
    return std::max(firstDay(event), last);
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
    if (!event.startTime.isValid() || m_end <= m_first)
        return false;
    if (event.isAllDay)
        return firstDay(event) < m_end && lastDay(event) >= m_first;
    const qint64 startMs = event.startTime.toMSecsSinceEpoch();
    return holdsTimed(startMs, event.endTime ? event.endTime->toMSecsSinceEpoch() : startMs);
}

bool EventDays::Span::holdsTimed(qint64 startMs, qint64 endMs) const
{
    return m_fromMs < m_toMs && startMs < m_toMs && (startMs >= m_fromMs || endMs > m_fromMs);
}
