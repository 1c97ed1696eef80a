#pragma once

#include "models/Event.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// Occurrences of one event. A subset of RFC 5545 §3.3.10: DAILY, WEEKLY, MONTHLY, YEARLY with INTERVAL,
/// COUNT, UNTIL, and plain BYDAY for daily and weekly rules; other parts are ignored.
namespace RruleExpander {

/// At most this many instances of a series exist, counted from its first.
inline constexpr int MaxInstances = 10'000;

/// Occurrences of \p event that overlap [\p from, \p to), in generation order. A single event comes back
/// unchanged. Steps keep the wall clock of the event's zone across daylight-saving changes; an
/// occurrence carries its own start, end and recurrenceId, and all else of the master. Never fails: a
/// rule it cannot read gives fewer results. Cost grows with the occurrences in the window, not with
/// the age of the series.
QList<Event> expand(const Event &event, const QDateTime &from, const QDateTime &to);

/// What tells an occurrence from its master.
struct Occurrence {
    QDateTime start;
    QDateTime end; ///< an hour after the start if the master has no end
    QString recurrenceId;
};

/// The same for a series (an event with a recurrence rule), without the copies of the event.
/// The window is in milliseconds since the epoch.
QList<Occurrence> occurrences(const Event &master, qint64 fromMs, qint64 toMs);

/// The instants before \p beforeMs at which the rule of \p master has instances begin, in order and in
/// milliseconds since the epoch; excluded ones among them.
QList<qint64> startsBefore(const Event &master, qint64 beforeMs);

/// Adds \p master as it is at \p occurrence to \p events, with a single copy.
void appendInstance(QList<Event> &events, const Event &master, Occurrence &&occurrence);

/// \p start in UTC as "yyyyMMddTHHmmssZ".
QString formatRecurrenceId(const QDateTime &start);

} // namespace RruleExpander
