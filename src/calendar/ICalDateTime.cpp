#include "calendar/ICalDateTime.h"

#include "calendar/CivilDate.h"
#include "calendar/RecurrenceRule.h"
#include "calendar/TimeZones.h"

#include <algorithm>
#include <optional>

using namespace ICal;

namespace {

constexpr qsizetype DateLength = 8; // yyyyMMdd
constexpr qsizetype DateTimeLength = 15; // yyyyMMddTHHmmss
// Zone names come from files: a file full of odd ones must not fill the memory.
constexpr qsizetype MaxZones = 1000;

constexpr qint64 SecondsPerMinute = 60;
constexpr qint64 SecondsPerHour = 60 * SecondsPerMinute;
constexpr qint64 SecondsPerDay = 24 * SecondsPerHour;
// Far beyond any calendar, and low enough that no sum of two overflows.
constexpr qint64 LongestNumber = 1'000'000'000'000;
constexpr qint64 LongestDuration = 1'000'000'000'000'000;

qint64 secondsOfUnit(char unit, bool isInTimePart)
{
    switch (unit) {
    case 'W':
        return 7 * SecondsPerDay;
    case 'D':
        return SecondsPerDay;
    case 'H':
        return isInTimePart ? SecondsPerHour : 0;
    case 'M':
        return isInTimePart ? SecondsPerMinute : 30 * SecondsPerDay;
    case 'S':
        return isInTimePart ? 1 : 0;
    default:
        return 0;
    }
}

}

DateTimeReader::Zone &DateTimeReader::zoneOf(QByteArrayView tzid)
{
    if (m_lastZone && tzid == m_lastTzid)
        return *m_lastZone;
    if (m_zones.size() >= MaxZones)
        m_zones.clear();
    m_lastTzid = tzid.toByteArray();
    auto it = m_zones.find(m_lastTzid);
    if (it == m_zones.end()) {
        const QString name = QString::fromUtf8(tzid);
        const QTimeZone zone = TimeZones::find(name);
        it = m_zones.insert(m_lastTzid,
                            { .name = zone.isValid() ? QString::fromUtf8(zone.id()) : name, .clock = WallClock(zone) });
    }
    m_lastZone = &*it;
    return *m_lastZone;
}

const QString &DateTimeReader::zoneName(QByteArrayView tzid)
{
    return zoneOf(tzid).name;
}

ICalParser::DateTimeValue DateTimeReader::read(QByteArrayView value, QByteArrayView tzid)
{
    const bool isDate = value.size() == DateLength && !value.contains('T');
    const bool isUtc = !isDate && value.endsWith('Z');
    const QByteArrayView text = isUtc ? value.chopped(1) : value;
    const std::optional<CompactTime> time =
        isDate || text.size() == DateTimeLength ? CompactTime::parse(text) : std::nullopt;
    if (!time)
        return { .value = {}, .isDate = isDate };
    if (isDate || isUtc) {
        const qint64 ms = time->day * Civil::MsPerDay + time->msOfDay;
        return { .value = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC), .isDate = isDate };
    }
    if (!tzid.isEmpty()) {
        const WallClock &clock = zoneOf(tzid).clock;
        return { .value = clock.at(clock.toUtcMs(time->day, time->msOfDay)), .isDate = false };
    }
    const WallClock local{ QTimeZone() };
    return { .value = local.at(local.toUtcMs(time->day, time->msOfDay)), .isDate = false };
}

qint64 ICal::durationSeconds(QByteArrayView value)
{
    if (!value.startsWith('P'))
        return 0;
    qint64 sum = 0;
    qint64 number = 0;
    bool isInTimePart = false;
    for (const char c : value.sliced(1)) {
        if (c == 'T') {
            isInTimePart = true;
        } else if (c >= '0' && c <= '9') {
            number = std::min(number * 10 + (c - '0'), LongestNumber);
        } else {
            sum = std::min(sum + number * secondsOfUnit(c, isInTimePart), LongestDuration);
            number = 0;
        }
    }
    return sum;
}
