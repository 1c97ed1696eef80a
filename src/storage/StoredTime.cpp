#include "storage/StoredTime.h"

#include "calendar/TimeZones.h"

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

void appendPair(QString &text, int number)
{
    text += QChar(u'0' + number / 10);
    text += QChar(u'0' + number % 10);
}

void appendOffset(QString &text, int seconds)
{
    text += seconds < 0 ? u'-' : u'+';
    appendPair(text, std::abs(seconds) / 3600);
    text += u':';
    appendPair(text, std::abs(seconds) / 60 % 60);
}

// Equal to toString(Qt::ISODate) where the offset is in whole minutes, in a fifth of the instructions.
QString isoText(const QDateTime &moment)
{
    const QDate date = moment.date();
    const QTime time = moment.time();
    QString text;
    if (date.year() < 0 || date.year() > 9999)
        return text;
    text.reserve(offsetLength);
    appendPair(text, date.year() / 100);
    appendPair(text, date.year() % 100);
    text += u'-';
    appendPair(text, date.month());
    text += u'-';
    appendPair(text, date.day());
    text += u'T';
    appendPair(text, time.hour());
    text += u':';
    appendPair(text, time.minute());
    text += u':';
    appendPair(text, time.second());
    if (moment.timeSpec() == Qt::UTC)
        text += u'Z';
    else if (moment.timeSpec() != Qt::LocalTime)
        appendOffset(text, moment.offsetFromUtc());
    return text;
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
