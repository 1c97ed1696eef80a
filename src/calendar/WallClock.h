#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <memory>

/// Turns the wall-clock times of one zone into instants and back. Made for loops: offsets come from a
/// table, as QDateTime searches the zone's whole history for each value.
///
/// A time that a clock change leaves out counts with the offset before the change (02:30 becomes 03:30),
/// and of a time that occurs twice the first is meant. RFC 5545 §3.3.5.
class WallClock {
public:
    /// The clock that \p value was read from.
    explicit WallClock(const QDateTime &value);
    /// The clock of \p zone; the machine's own if \p zone is invalid.
    explicit WallClock(const QTimeZone &zone);
    ~WallClock();

    /// \p day counts from 1970-01-01. Milliseconds since the epoch.
    [[nodiscard]] qint64 toUtcMs(qint64 day, int msOfDay) const;
    /// The instant as this clock shows it; keeps the kind of time (UTC, offset, zone, local).
    [[nodiscard]] QDateTime at(qint64 utcMs) const;
    [[nodiscard]] QDateTime at(QDate date, QTime time) const;
    /// The same as at(), for many events within a year or so: they begin together, on the hour or the
    /// quarter, and most get a date-time that exists.
    [[nodiscard]] QDateTime sharedAt(qint64 utcMs) const;

private:
    class Offsets;

    [[nodiscard]] qint64 offsetMs(qint64 utcMs) const;

    QDateTime m_pattern; // any time of this clock
    Qt::TimeSpec m_spec;
    qint64 m_fixedOffsetMs = 0;
    std::shared_ptr<Offsets> m_offsets; // of a zone only
};
