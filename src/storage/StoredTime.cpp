#include "storage/StoredTime.h"

#include "calendar/TimeZones.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr qsizetype localLength = 19; // yyyy-MM-ddTHH:mm:ss
constexpr qsizetype utcLength = 20; // …Z
constexpr qsizetype offsetLength = 25; // …+hh:mm

// The number in text[from, from + digits), or -1.
int number(QStringView text, qsizetype from, qsizetype digits)
{
    int result = 0;
    for (const QChar c : text.sliced(from, digits)) {
        if (c < u'0' || c > u'9')
            return -1;
        result = result * 10 + (c.unicode() - u'0');
    }
    return result;
}

bool hasUsualPunctuation(QStringView text)
{
    return text[4] == u'-' && text[7] == u'-' && text[10] == u'T' && text[13] == u':' && text[16] == u':';
}

// Seconds east of UTC of "+hh:mm" at the end of text.
std::optional<int> offsetSeconds(QStringView text)
{
    const QChar sign = text[localLength];
    const int hours = number(text, localLength + 1, 2);
    const int minutes = number(text, localLength + 4, 2);
    if ((sign != u'+' && sign != u'-') || text[localLength + 3] != u':' || hours < 0 || hours > 13 || minutes < 0
        || minutes > 59)
        return std::nullopt;
    const int seconds = (hours * 60 + minutes) * 60;
    return sign == u'-' ? -seconds : seconds;
}

std::optional<QDateTime> parseUsualForm(QStringView text)
{
    if ((text.size() != localLength && text.size() != utcLength && text.size() != offsetLength)
        || !hasUsualPunctuation(text))
        return std::nullopt;
    const int year = number(text, 0, 4);
    const QDate date(year, number(text, 5, 2), number(text, 8, 2));
    const QTime time(number(text, 11, 2), number(text, 14, 2), number(text, 17, 2));
    if (year < 0 || !date.isValid() || !time.isValid())
        return std::nullopt;
    if (text.size() == localLength)
        return QDateTime(date, time);
    if (text.size() == utcLength)
        return text.back() == u'Z' ? std::optional(QDateTime(date, time, Qt::UTC)) : std::nullopt;
    const std::optional<int> offset = offsetSeconds(text);
    if (!offset)
        return std::nullopt;
    return QDateTime(date, time, Qt::OffsetFromUTC, *offset);
}

// The ISO form has no place for the seconds of an offset, which local mean times have: Berlin's was
// +00:53:28 until 1893.
bool hasOffsetInSeconds(const QDateTime &time)
{
    return time.timeSpec() != Qt::LocalTime && time.offsetFromUtc() % 60 != 0;
}

// Equal to toString(Qt::ISODate) where the offset is in whole minutes, in a fraction of its time: a sync writes
// thousands of times in a slice.
QString isoText(const QDateTime &moment)
{
    const QDate date = moment.date();
    const QTime time = moment.time();
    if (date.year() < 0 || date.year() > 9999)
        return {};
    std::array<char, 96> text; // each number fits, whatever it is
    int length = std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", date.year(), date.month(),
                               date.day(), time.hour(), time.minute(), time.second());
    if (moment.timeSpec() == Qt::UTC) {
        text[size_t(length++)] = 'Z';
    } else if (moment.timeSpec() != Qt::LocalTime) {
        const int minutes = moment.offsetFromUtc() / 60;
        length += std::snprintf(text.data() + length, text.size() - size_t(length), "%c%02d:%02d",
                                minutes < 0 ? '-' : '+', std::abs(minutes) / 60, std::abs(minutes) % 60);
    }
    return QString::fromLatin1(text.data(), length);
}

}

QVariant StoredTime::store(const QDateTime &time)
{
    if (!time.isValid())
        return {};
    const QString text = isoText(hasOffsetInSeconds(time) ? time.toUTC() : time);
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QVariant StoredTime::now()
{
    return store(QDateTime::currentDateTimeUtc());
}

QDateTime StoredTime::parse(const QString &text)
{
    if (text.isEmpty())
        return {};
    if (const auto time = parseUsualForm(text))
        return *time;
    return QDateTime::fromString(text, Qt::ISODate);
}

QDateTime StoredTime::parseStamp(const QString &text)
{
    constexpr qsizetype separatorAt = 10;
    if (text.size() != localLength || text[separatorAt] != u' ')
        return parse(text);
    QString isoText = text + u'Z';
    isoText[separatorAt] = u'T';
    return parse(isoText);
}

QDateTime StoredTime::wholeDay(const QDateTime &time)
{
    return time.isValid() ? QDateTime(time.date(), QTime(0, 0), Qt::UTC) : time;
}

QDateTime StoredTime::inZone(const QDateTime &time, const QString &zoneId)
{
    if (!time.isValid() || zoneId.isEmpty() || zoneId == QLatin1StringView("UTC"))
        return time;
    const QTimeZone zone = TimeZones::ianaZone(zoneId);
    return zone.isValid() ? time.toTimeZone(zone) : time;
}
