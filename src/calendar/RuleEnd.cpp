#include "calendar/RuleEnd.h"

#include <QDateTime>
#include <QStringList>

namespace {

const QString DayFormat = QStringLiteral("yyyyMMdd");
const QString InstantFormat = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
constexpr QLatin1StringView Until("UNTIL=");

template <typename Change> QString withUntil(const QString &rule, Change change)
{
    QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    for (QString &part : parts) {
        if (!part.startsWith(Until, Qt::CaseInsensitive))
            continue;
        if (const QString value = change(part.mid(Until.size())); !value.isEmpty())
            part = Until + value;
    }
    return parts.join(u';');
}

}

QString RuleEnd::asDay(const QString &rule)
{
    return withUntil(rule, [](const QString &value) {
        QDateTime until = QDateTime::fromString(value, InstantFormat);
        if (!until.isValid())
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
