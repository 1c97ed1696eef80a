#include "calendar/WallClock.h"

#include "calendar/CivilDate.h"
#include "calendar/TimeZones.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr qint64 MsPerSecond = 1000;
constexpr qint64 EpochJulianDay = 2'440'588;
// A table reaches this far around the instant asked for: surfaces ask for one span at a time, but the
// events of a file lie years apart.
constexpr qint64 TableReachMs = 2000 * Civil::MsPerDay;
// Zone names come from files: a file full of odd ones must not fill the memory.
constexpr qsizetype MaxTables = 16;
// What one table remembers of the times it has shown: those of a year, one for each quarter of an hour.
constexpr qint64 QuarterMs = 15 * 60 * MsPerSecond;
constexpr qint64 RememberedDays = 512;
// No zone is further from UTC than this.
constexpr qint64 MaxOffsetMs = Civil::MsPerDay;

qint64 zoneOffsetMs(const QTimeZone &zone, qint64 utcMs)
{
    return zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(utcMs, Qt::UTC)) * MsPerSecond;
}

}

/// The offsets of a zone around the last instant asked for, and the times that were shown.
class WallClock::Offsets {
public:
    explicit Offsets(QTimeZone zone)
        : m_zone(std::move(zone))
    {
    }

    const QDateTime &shown(qint64 utcMs, const QDateTime &pattern)
    {
        const qint64 day = Civil::floorDiv(utcMs, Civil::MsPerDay);
        std::unique_ptr<ShownDay> &times = m_shown[size_t(Civil::floorMod(day, RememberedDays))];
        if (!times)
            times = std::make_unique<ShownDay>();
        QDateTime &time = (*times)[size_t((utcMs - day * Civil::MsPerDay) / QuarterMs)];
        if (!time.isValid() || time.toMSecsSinceEpoch() != utcMs) {
            time = pattern;
            time.setMSecsSinceEpoch(utcMs);
        }
        return time;
    }

    qint64 at(qint64 utcMs)
    {
        if (utcMs < m_from || utcMs >= m_to)
            fill(utcMs);
        const auto next = std::ranges::upper_bound(m_changes, utcMs, {}, &Change::utcMs);
        return next == m_changes.begin() ? m_firstOffsetMs : std::prev(next)->offsetMs;
    }

    static std::shared_ptr<Offsets> of(const QTimeZone &zone)
    {
        thread_local QHash<QByteArray, std::shared_ptr<Offsets>> tables;
        if (tables.size() > MaxTables)
            tables.clear();
        std::shared_ptr<Offsets> &table = tables[zone.id()];
        if (!table)
            table = std::make_shared<Offsets>(zone);
        return table;
    }

private:
    struct Change {
        qint64 utcMs;
        qint64 offsetMs; // from then on
    };
    using ShownDay = std::array<QDateTime, Civil::MsPerDay / QuarterMs>;

    void fill(qint64 utcMs)
    {
        m_from = utcMs - TableReachMs;
        m_to = utcMs + TableReachMs;
        m_firstOffsetMs = zoneOffsetMs(m_zone, m_from);
        m_changes.clear();
        const auto changes = TimeZones::changes(m_zone, QDateTime::fromMSecsSinceEpoch(m_from, Qt::UTC),
                                                QDateTime::fromMSecsSinceEpoch(m_to, Qt::UTC));
        for (const QTimeZone::OffsetData &change : changes)
            m_changes.push_back({ change.atUtc.toMSecsSinceEpoch(), change.offsetFromUtc * MsPerSecond });
    }

    QTimeZone m_zone;
    qint64 m_from = 0;
    qint64 m_to = 0;
    qint64 m_firstOffsetMs = 0;
    std::vector<Change> m_changes;
    std::array<std::unique_ptr<ShownDay>, RememberedDays> m_shown;
};

WallClock::WallClock(const QDateTime &value)
    : m_pattern(value)
    , m_spec(value.timeSpec())
{
    if (m_spec == Qt::OffsetFromUTC)
        m_fixedOffsetMs = value.offsetFromUtc() * MsPerSecond;
    else if (m_spec == Qt::TimeZone)
        m_offsets = Offsets::of(value.timeZone());
}

WallClock::WallClock(const QTimeZone &zone)
    : WallClock(zone.isValid() ? QDateTime::fromMSecsSinceEpoch(0, zone) : QDateTime::fromMSecsSinceEpoch(0))
{
}

WallClock::~WallClock() = default;

qint64 WallClock::toUtcMs(qint64 day, int msOfDay) const
{
    const qint64 wallMs = day * Civil::MsPerDay + msOfDay;
    if (m_spec == Qt::UTC || m_spec == Qt::OffsetFromUTC)
        return wallMs - m_fixedOffsetMs;
    const qint64 before = offsetMs(wallMs - MaxOffsetMs);
    const qint64 after = offsetMs(wallMs + MaxOffsetMs);
    if (before == after || offsetMs(wallMs - before) == before)
        return wallMs - before;
    const bool isInGap = offsetMs(wallMs - after) != after;
    return wallMs - (isInGap ? before : after);
}

QDateTime WallClock::at(qint64 utcMs) const
{
    QDateTime shown = m_pattern; // to copy a time is cheaper than to name its zone again
    shown.setMSecsSinceEpoch(utcMs);
    return shown;
}

QDateTime WallClock::sharedAt(qint64 utcMs) const
{
    return m_offsets ? m_offsets->shown(utcMs, m_pattern) : at(utcMs);
}

QDateTime WallClock::at(QDate date, QTime time) const
{
    if (!date.isValid() || !time.isValid())
        return {};
    return at(toUtcMs(date.toJulianDay() - EpochJulianDay, time.msecsSinceStartOfDay()));
}

qint64 WallClock::offsetMs(qint64 utcMs) const
{
    // The machine's zone can change while the program runs, so it has no table.
    if (m_spec == Qt::LocalTime) {
        const QDateTime local = QDateTime::fromMSecsSinceEpoch(utcMs);
        const qint64 day = local.date().toJulianDay() - EpochJulianDay;
        return day * Civil::MsPerDay + local.time().msecsSinceStartOfDay() - utcMs;
    }
    return m_offsets->at(utcMs);
}
