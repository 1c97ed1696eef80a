#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

/// What the modes of the view area mean in days. Pure: no clock, no settings.
namespace ViewModes {

struct Span {
    QDate first;
    int days = 1;

    bool operator==(const Span &) const = default;
};

/// The choices of the days timeline.
inline constexpr int Horizons[] = { 3, 5, 7, 10, 14 };

/// "agenda" and "list", of an earlier design, and a mode that is not among \p available become "week".
QString normalized(const QString &mode, const QStringList &available);

/// One step of \p mode from \p date; \p direction is +1 or -1. With \p fine (Control held) "days" goes by
/// one day and "grid" by seven. Months and years keep the day where the target month has it.
QDate stepped(const QString &mode, QDate date, int direction, int weekHorizon, bool fine);

/// The days over which hidden events are counted. The year counts its current month's six weeks.
Span statisticsSpan(const QString &mode, QDate date, int weekHorizon, Qt::DayOfWeek firstDayOfWeek);

/// The heading of the view area, in the chosen language. \p today only matters to "day".
QString title(const QString &mode, QDate date, int weekHorizon, Qt::DayOfWeek firstDayOfWeek, QDate today);

} // namespace ViewModes
