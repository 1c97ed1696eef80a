#pragma once

#include "models/Event.h"

#include <QDate>
#include <QDateTime>

/// Which days an event covers, for every surface. An all-day event's days are its stored dates, never
/// converted; a timed event's are those of the machine's local time. Ends are exclusive.
namespace EventDays {

QDate firstDay(const Event &event); ///< invalid if the start is
/// The last day the event covers; the first day for an event without an end, or of no length.
/// A timed event that ends at midnight does not cover the day that begins there.
QDate lastDay(const Event &event);

/// True if the event shows in the local days [\p first, \p first + \p days). An event of no length shows
/// on the day of its start.
bool overlaps(const Event &event, QDate first, int days);

/// The same for many events: the instants of the local days are worked out once.
class Span {
public:
    Span(QDate first, int days);

    [[nodiscard]] bool holds(const Event &event) const;
    /// The same for a timed event from its instants; one without an end has \p endMs equal to \p startMs.
    [[nodiscard]] bool holdsTimed(qint64 startMs, qint64 endMs) const;

    // The instants where the days begin and end.
    [[nodiscard]] qint64 fromMs() const { return m_fromMs; }
    [[nodiscard]] qint64 toMs() const { return m_toMs; }

private:
    QDate m_first;
    QDate m_end; ///< exclusive
    qint64 m_fromMs;
    qint64 m_toMs;
};

} // namespace EventDays
