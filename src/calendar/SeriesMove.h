#pragma once

#include "calendar/WallClock.h"
#include "calendar/WallClockShift.h"
#include "models/Event.h"

#include <QList>
#include <QString>
#include <QTime>

/// Where each instance of a series goes when its start moves, so that what is stored about single instances
/// (exception dates, overrides) goes along.
///
/// The n-th instance stays the n-th: 30 April moved to 1 May takes 30 May to 1 June. A rule that names
/// weekdays has instances on the same days as before, at another hour. What names no instance moves as the
/// start does.
class SeriesMove {
public:
    /// \p before and \p after are the master then and now; its zone may be another one. With another rule
    /// nothing is known of instances. \p overrides are those whose names will be asked for.
    SeriesMove(const Event &before, const Event &after, const QList<Event> &overrides);

    /// Where the instance that began at \p startMs begins now; milliseconds since the epoch.
    [[nodiscard]] qint64 target(qint64 startMs) const;
    /// \p json, a list of exception dates, naming the same instances in the forms it has.
    [[nodiscard]] QString movedDates(const QString &json) const;
    /// The rule of \p after. Where its UNTIL would cut instances off, or let more in, it ends with the same
    /// instance as before.
    [[nodiscard]] QString movedRule(const Event &after) const;

private:
    bool m_isMoved = false;
    WallClock m_from;
    WallClock m_to;
    QTime m_newTime;
    WallClockShift m_shift; // between the digits of both clocks
    bool m_keepsDays = false;
    QList<qint64> m_starts;
    QList<qint64> m_newStarts;
};
