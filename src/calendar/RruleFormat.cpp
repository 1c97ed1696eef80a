#include "calendar/RruleFormat.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QLocale>
#include <QStringList>

#include <cstdlib>

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(RruleFormat)
};

struct Day {
    int ordinal = 0; ///< 0: every such day
    QString code;
};

Day parseDay(const QString &token)
{
    qsizetype end = !token.isEmpty() && (token.front() == u'+' || token.front() == u'-') ? 1 : 0;
    while (end < token.size() && token.at(end).isDigit())
        ++end;
    return { token.left(end).toInt(), token.mid(end) };
}

QString dayName(const QString &code)
{
    const QHash<QString, QString> names{
        { QStringLiteral("MO"), Tr::tr("Mon") }, { QStringLiteral("TU"), Tr::tr("Tue") },
        { QStringLiteral("WE"), Tr::tr("Wed") }, { QStringLiteral("TH"), Tr::tr("Thu") },
        { QStringLiteral("FR"), Tr::tr("Fri") }, { QStringLiteral("SA"), Tr::tr("Sat") },
        { QStringLiteral("SU"), Tr::tr("Sun") }
    };
    return names.value(code.toUpper(), code.toUpper());
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
        return ordinal > 0 ? Tr::tr("%1st", "6 and above").arg(ordinal)
                           : Tr::tr("%1th-from-last").arg(std::abs(ordinal));
    }
}

QString dayOfMonth(int day)
{
    if (day >= 11 && day <= 13)
        return Tr::tr("%1th").arg(day);
    switch (day % 10) {
    case 1:
        return Tr::tr("%1st", "day of the month").arg(day);
    case 2:
        return Tr::tr("%1nd").arg(day);
    case 3:
        return Tr::tr("%1rd").arg(day);
    default:
        return Tr::tr("%1th").arg(day);
    }
}

QString head(const QString &frequency, int interval)
{
    const bool isEvery = interval == 1;
    if (frequency == u"DAILY")
        return isEvery ? Tr::tr("Repeats daily") : Tr::tr("Every %1 days").arg(interval);
    if (frequency == u"WEEKLY")
        return isEvery ? Tr::tr("Repeats weekly") : Tr::tr("Every %1 weeks").arg(interval);
    if (frequency == u"MONTHLY")
        return isEvery ? Tr::tr("Repeats monthly") : Tr::tr("Every %1 months").arg(interval);
    if (frequency == u"YEARLY")
        return isEvery ? Tr::tr("Repeats yearly") : Tr::tr("Every %1 years").arg(interval);
    return Tr::tr("Repeats");
}

QString days(const QHash<QString, QString> &rule)
{
    const bool isMonthly = rule.value(QStringLiteral("FREQ")) == u"MONTHLY";
    const QString byDay = rule.value(QStringLiteral("BYDAY"));
    if (!byDay.isEmpty() && !isMonthly) {
        QStringList names;
        const QStringList tokens = byDay.split(u',');
        for (const QString &token : tokens) {
            if (const Day day = parseDay(token.trimmed()); !day.code.isEmpty())
                names.append(dayName(day.code));
        }
        return names.join(QStringLiteral(", "));
    }
    if (!byDay.isEmpty()) {
        const Day day = parseDay(byDay.section(u',', 0, 0).trimmed());
        return day.ordinal == 0 ? dayName(day.code)
                                : Tr::tr("on the %1 %2", "last Fri").arg(ordinalWord(day.ordinal), dayName(day.code));
    }
    const int monthDay = rule.value(QStringLiteral("BYMONTHDAY")).section(u',', 0, 0).trimmed().toInt();
    return isMonthly && monthDay > 0 ? Tr::tr("on the %1", "22nd").arg(dayOfMonth(monthDay)) : QString();
}

QString end(const QHash<QString, QString> &rule)
{
    if (const QString count = rule.value(QStringLiteral("COUNT")); !count.isEmpty())
        return count.toInt() > 0 ? Tr::tr("%n time(s)", nullptr, count.toInt()) : QString();
    const QString until = rule.value(QStringLiteral("UNTIL"));
    const qsizetype time = until.indexOf(u'T');
    const QDate date = QDate::fromString(time > 0 ? until.left(time) : until, QStringLiteral("yyyyMMdd"));
    //: the last day of a series, as a date pattern
    return date.isValid() ? Tr::tr("until %1").arg(QLocale().toString(date, Tr::tr("MMM d, yyyy"))) : QString();
}

}

QString RruleFormat::humanReadable(const QString &rule)
{
    if (rule.isEmpty())
        return {};
    QHash<QString, QString> values;
    const QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (const qsizetype equals = part.indexOf(u'='); equals >= 0)
            values.insert(part.left(equals).toUpper(), part.mid(equals + 1));
    }
    QString &frequency = values[QStringLiteral("FREQ")];
    frequency = frequency.toUpper();
    const QString interval = values.value(QStringLiteral("INTERVAL"));
    QStringList pieces{ head(frequency, interval.isEmpty() ? 1 : interval.toInt()) };
    for (const QString &piece : { days(values), end(values) }) {
        if (!piece.isEmpty())
            pieces.append(piece);
    }
    return pieces.join(QStringLiteral(" · "));
}

QString RruleFormat::humanReadableReminder(int minutes)
{
    if (minutes <= 0)
        return Tr::tr("At time of event");
    if (minutes < MinutesPerHour)
        return Tr::tr("%1 min before").arg(minutes);
    if (minutes < MinutesPerDay)
        return Tr::tr("%1 hour(s) before").arg(minutes / MinutesPerHour);
    return Tr::tr("%1 day(s) before").arg(minutes / MinutesPerDay);
}
