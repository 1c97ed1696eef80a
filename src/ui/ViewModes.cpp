#include "ui/ViewModes.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace {

constexpr int MonthGridDays = 42;
constexpr int GridDays = 8;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(ViewModes)
};

QDate weekStart(QDate date, Qt::DayOfWeek firstDayOfWeek)
{
    return date.addDays(-((date.dayOfWeek() - firstDayOfWeek + 7) % 7));
}

// A language with the day in front gives the first pattern of the one-month form without its month, as in
// "4. – 10. März 2026".
QString spanTitle(QDate first, QDate last)
{
    const QLocale locale;
    const bool oneMonth = first.year() == last.year() && first.month() == last.month();
    const QString from =
        oneMonth ? Text::tr("MMM d", "start of days within one month") : Text::tr("MMM d", "start of days");
    const QString to =
        oneMonth ? Text::tr("d, yyyy", "end of days within one month") : Text::tr("MMM d, yyyy", "end of days");
    return locale.toString(first, from) + QStringLiteral(" – ") + locale.toString(last, to);
}

QString dayTitle(QDate date, QDate today)
{
    const QString text = QLocale().toString(date, Text::tr("dddd, MMMM d, yyyy", "one day"));
    return date == today ? Text::tr("Today · %1").arg(text) : text;
}

}

QString ViewModes::normalized(const QString &mode, const QStringList &available)
{
    return available.contains(mode) ? mode : QStringLiteral("week");
}

QDate ViewModes::stepped(const QString &mode, QDate date, int direction, int weekHorizon, bool fine)
{
    if (mode == u"year")
        return date.addYears(direction);
    if (mode == u"month")
        return date.addMonths(direction);
    int days = 1;
    if (mode == u"week")
        days = 7;
    else if (mode == u"days")
        days = fine ? 1 : std::max(1, weekHorizon);
    else if (mode == u"grid")
        days = fine ? 7 : 1;
    return date.addDays(days * direction);
}

ViewModes::Span ViewModes::statisticsSpan(const QString &mode, QDate date, int weekHorizon,
                                          Qt::DayOfWeek firstDayOfWeek)
{
    if (mode == u"day")
        return { date, 1 };
    if (mode == u"week")
        return { weekStart(date, firstDayOfWeek), 7 };
    if (mode == u"days")
        return { date, std::max(1, weekHorizon) };
    if (mode == u"grid")
        return { date, GridDays };
    if (mode == u"month" || mode == u"year")
        return { weekStart(QDate(date.year(), date.month(), 1), firstDayOfWeek), MonthGridDays };
    return { date, 7 };
}

QString ViewModes::title(const QString &mode, QDate date, int weekHorizon, Qt::DayOfWeek firstDayOfWeek, QDate today)
{
    if (mode == u"year")
        return QLocale().toString(date, Text::tr("yyyy", "a year"));
    if (mode == u"month")
        return QLocale().toString(date, Text::tr("MMMM yyyy", "a month"));
    if (mode == u"week") {
        const QDate first = weekStart(date, firstDayOfWeek);
        return spanTitle(first, first.addDays(6));
    }
    if (mode == u"days")
        return spanTitle(date, date.addDays(std::max(1, weekHorizon - 1)));
    if (mode == u"grid")
        return spanTitle(date, date.addDays(GridDays - 1));
    return dayTitle(date, today);
}
