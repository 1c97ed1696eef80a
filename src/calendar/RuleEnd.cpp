#include "calendar/RuleEnd.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

namespace {

const QString DayFormat = QStringLiteral("yyyyMMdd");
const QString InstantFormat = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
constexpr QLatin1StringView Until("UNTIL=");
constexpr QLatin1StringView Count("COUNT=");

bool isUntil(const QString &part)
{
    return part.startsWith(Until, Qt::CaseInsensitive);
}

template <typename Change> QString withUntil(const QString &rule, Change change)
{
    QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    for (QString &part : parts) {
        if (!isUntil(part))
            continue;
        if (const QString value = change(part.mid(Until.size())); !value.isEmpty())
            part = Until + value;
    }
    return parts.join(u';');
}

QStringList uncountedParts(const QString &rule)
{
    QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    parts.removeIf([](const QString &part) { return part.startsWith(Count, Qt::CaseInsensitive); });
    return parts;
}

QString ending(const QString &rule, const QString &value)
{
    const QString end = Until + value;
    QStringList parts = uncountedParts(rule);
    if (std::ranges::any_of(parts, isUntil))
        std::ranges::replace_if(parts, isUntil, end);
    else
        parts.append(end);
    return parts.join(u';');
}

}

QString RuleEnd::asDay(const QString &rule, bool isAllDay)
{
    return withUntil(rule, [isAllDay](const QString &value) {
        QDateTime until = QDateTime::fromString(value, InstantFormat);
        if (isAllDay || !until.isValid())
            return value.left(DayFormat.size()); // a day already, or digits without a zone
        until.setTimeSpec(Qt::UTC);
        return until.toLocalTime().date().toString(DayFormat);
    });
}

QString RuleEnd::asInstant(const QString &rule)
{
    return withUntil(rule, [](const QString &value) {
        const QDate day = QDate::fromString(value, DayFormat);
        // The last second, and not 23:59:59: a clock change may skip it.
        return day.isValid() ? day.addDays(1).startOfDay().addSecs(-1).toUTC().toString(InstantFormat) : QString();
    });
}

QString RuleEnd::at(const QString &rule, const QDateTime &until)
{
    return ending(rule, until.toUTC().toString(InstantFormat));
}

QString RuleEnd::on(const QString &rule, QDate lastDay)
{
    return ending(rule, lastDay.toString(DayFormat));
}

QString RuleEnd::removed(const QString &rule)
{
    QStringList parts = uncountedParts(rule);
    parts.removeIf(isUntil);
    return parts.join(u';');
}
