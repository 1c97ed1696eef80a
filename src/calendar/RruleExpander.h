#pragma once

#include "calendar/WallClock.h"
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

/// The occurrences of a series (an event with a recurrence rule) in a window, as numbers: whoever fills a list of
/// events knows its length before it makes the first of them.
class Occurrences {
public:
    /// The window is in milliseconds since the epoch. \p master must outlive this.
    Occurrences(const Event &master, qint64 fromMs, qint64 toMs);

    /// In order, in milliseconds since the epoch.
    [[nodiscard]] const QList<qint64> &starts() const { return m_starts; }
    [[nodiscard]] qint64 durationMs() const { return m_durationMs; } ///< an hour if the master has no end
    /// Adds the master as it is at one of the starts to \p events, with a single copy. It ends an hour later if the
    /// master has no end.
    void appendAt(qint64 startMs, QList<Event> &events) const;

private:
    const Event &m_master;
    WallClock m_clock;
    qint64 m_durationMs;
    QList<qint64> m_starts;
};

/// The instants before \p beforeMs at which the rule of \p master has instances begin, in order and in
/// milliseconds since the epoch; excluded ones among them.
QList<qint64> startsBefore(const Event &master, qint64 beforeMs);

/// \p start in UTC as "yyyyMMddTHHmmssZ".
QString formatRecurrenceId(const QDateTime &start);
QString formatRecurrenceId(qint64 startMs);

} // namespace RruleExpander
