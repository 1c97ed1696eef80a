#pragma once

#include <QDateTime>

/// A step on the clock on the wall: whole days first, then seconds. A move by one day keeps 09:00 at 09:00
/// when a clock change lies between.
struct WallClockShift {
    qint64 days = 0;
    qint64 seconds = 0;

    [[nodiscard]] bool isNull() const { return days == 0 && seconds == 0; }
    bool operator==(const WallClockShift &) const = default;

    /// From \p from to \p to, as the clock of \p from shows both; the seconds lie within a day either way.
    /// Null if one of them is invalid.
    static WallClockShift between(const QDateTime &from, const QDateTime &to);
    /// \p when moved on the clock of its own zone; keeps that zone. A result in an hour that a clock change
    /// skips or repeats is read as WallClock has it.
    [[nodiscard]] QDateTime applied(const QDateTime &when) const;
};
