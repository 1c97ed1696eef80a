#include "calendar/RruleFormat.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QLocale>

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(RruleFormat)
};

struct WeekdayRule {
    int ordinal = 0; ///< negative counts from the end of the month; 0: every one
    QString day; ///< a two-letter code, or whatever stands there
};

/// A token of BYDAY: "MO", "+2TU", "-1FR".
WeekdayRule weekdayRule(const QString &token)
{
    qsizetype end = 0;
    while (end < token.size() && (token[end].isDigit() || (end == 0 && (token[0] == u'+' || token[0] == u'-'))))
        ++end;
    return { .ordinal = token.left(end).toInt(), .day = token.mid(end) };
}

QString dayName(const QString &code)
{
    const QString upper = code.toUpper();
    if (upper == u"MO")
        return Tr::tr("Mon");
    if (upper == u"TU")
        return Tr::tr("Tue");
    if (upper == u"WE")
        return Tr::tr("Wed");
    if (upper == u"TH")
        return Tr::tr("Thu");
    if (upper == u"FR")
        return Tr::tr("Fri");
    if (upper == u"SA")
        return Tr::tr("Sat");
    if (upper == u"SU")
        return Tr::tr("Sun");
    return upper;
}

QString ordinalWord(int ordinal)
{
    switch (ordinal) {
    case 1:
        return Tr::tr("first");
    case 2:
        return Tr::tr("second");
    case 3:
        return Tr::tr("third");
    case 4:
        return Tr::tr("fourth");
    case 5:
        return Tr::tr("fifth");
    case -1:
        return Tr::tr("last");
    case -2:
        return Tr::tr("second-to-last");
    default:
        return ordinal > 0 ? Tr::tr("%1st", "weekday of a month").arg(ordinal)
                           : Tr::tr("%1th-from-last").arg(qAbs(qint64(ordinal)));
    }
}

QString dayOfMonth(int day)
{
    const bool isTeen = day >= 11 && day <= 13;
    switch (isTeen ? 0 : day % 10) {
    case 1:
        return Tr::tr("%1st", "day of a month").arg(day);
    case 2:
        return Tr::tr("%1nd").arg(day);
    case 3:
        return Tr::tr("%1rd").arg(day);
    default:
        return Tr::tr("%1th").arg(day);
    }
}

/// The parts of a rule by their name in upper case.
using Parts = QHash<QString, QString>;

Parts partsOf(const QString &rule)
{
    Parts parts;
    for (const QString &part : rule.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype equals = part.indexOf(u'=');
        if (equals >= 0)
            parts.insert(part.left(equals).toUpper(), part.mid(equals + 1));
    }
    return parts;
}

QString head(const QString &frequency, int interval)
{
    if (frequency == u"DAILY")
        return interval == 1 ? Tr::tr("Repeats daily") : Tr::tr("Every %1 days").arg(interval);
    if (frequency == u"WEEKLY")
        return interval == 1 ? Tr::tr("Repeats weekly") : Tr::tr("Every %1 weeks").arg(interval);
    if (frequency == u"MONTHLY")
        return interval == 1 ? Tr::tr("Repeats monthly") : Tr::tr("Every %1 months").arg(interval);
    if (frequency == u"YEARLY")
        return interval == 1 ? Tr::tr("Repeats yearly") : Tr::tr("Every %1 years").arg(interval);
    return Tr::tr("Repeats");
}

QString placeInMonth(const QString &byDay, const QString &byMonthDay)
{
    if (!byDay.isEmpty()) {
        const auto [ordinal, day] = weekdayRule(byDay.section(u',', 0, 0).trimmed());
        //: as in "on the second Tue" of a month
        return ordinal == 0 ? dayName(day) : Tr::tr("on the %1 %2").arg(ordinalWord(ordinal), dayName(day));
    }
    const int day = byMonthDay.section(u',', 0, 0).toInt();
    //: as in "on the 22nd" of a month
    return day > 0 ? Tr::tr("on the %1").arg(dayOfMonth(day)) : QString();
}

QString weekdays(const QString &byDay)
{
    QStringList names;
    for (const QString &token : byDay.split(u',')) {
        if (const QString day = weekdayRule(token.trimmed()).day; !day.isEmpty())
            names.append(dayName(day));
    }
    return names.join(QLatin1StringView(", "));
}

QString ending(const QString &count, const QString &until)
{
    if (!count.isEmpty()) {
        const int times = count.toInt();
        return times > 0 ? Tr::tr("%n time(s)", nullptr, times) : QString();
    }
    const qsizetype timeAt = until.indexOf(u'T');
    const QDate date = QDate::fromString(timeAt > 0 ? until.left(timeAt) : until, QStringLiteral("yyyyMMdd"));
    //: the last day of a series, as a date pattern
    return date.isValid() ? Tr::tr("until %1").arg(QLocale().toString(date, Tr::tr("MMM d, yyyy"))) : QString();
}

}

QString RruleFormat::humanReadable(const QString &rule)
{
    if (rule.isEmpty())
        return {};
    const Parts parts = partsOf(rule);
    const auto part = [&parts](const char *name) { return parts.value(QString::fromLatin1(name)); };
    const QString frequency = part("FREQ").toUpper();
    const QString interval = part("INTERVAL");

    QStringList pieces{ head(frequency, interval.isEmpty() ? 1 : interval.toInt()) };
    pieces.append(frequency == u"MONTHLY" ? placeInMonth(part("BYDAY"), part("BYMONTHDAY")) : weekdays(part("BYDAY")));
    pieces.append(ending(part("COUNT"), part("UNTIL")));
    pieces.removeAll(QString());
    return pieces.join(QStringLiteral(" · "));
}

QString RruleFormat::humanReadableReminder(int minutes)
{
    if (minutes <= 0)
        return Tr::tr("At time of event");
    if (minutes < MinutesPerHour)
        return Tr::tr("%1 min before").arg(minutes);
    if (minutes < MinutesPerDay)
        return Tr::tr("%n hour(s) before", nullptr, minutes / MinutesPerHour);
    return Tr::tr("%n day(s) before", nullptr, minutes / MinutesPerDay);
}
