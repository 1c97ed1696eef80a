#include "storage/EventRanges.h"

#include "storage/CalendarFilter.h"
#include "storage/Database.h"
#include "storage/EventRows.h"
#include "storage/Statement.h"
#include "storage/Tables.h"

#include <algorithm>

namespace {

constexpr int maxShortDays = 7;

// True for rows that a scan over starts finds: the digits of the end lie at most a week behind those of
// the start. A date that SQLite bends into another once it counts with it (30 February) is not short.
QString isShort()
{
    return QStringLiteral("((recurrence_rule IS NULL OR recurrence_rule = '') AND end_time IS NOT NULL"
                          " AND (recurrence_id IS NULL OR recurrence_id = ''"
                          " OR master_event_uid IS NULL OR master_event_uid = '')"
                          " AND (substr(end_time, 1, 10) = substr(start_time, 1, 10)"
                          " OR (date(substr(start_time, 1, 10), '+0 days') = substr(start_time, 1, 10)"
                          " AND substr(end_time, 1, 10) <= date(substr(start_time, 1, 10), '+%1 days'))))")
        .arg(maxShortDays);
}

// May answer yes too often: the query then looks closely. Offsets shift digits by little more than a day.
bool mayBeStanding(const Event &event)
{
    constexpr qint64 surelyShortSecs = 5 * 24 * 60 * 60;
    return event.isRecurring() || event.isOverride() || !event.endTime || !event.endTime->isValid()
        || event.startTime.secsTo(*event.endTime) > surelyShortSecs;
}

const QString rawColumns = QStringLiteral(", start_time, end_time, rowid");

QString weekBefore(const QString &isoText)
{
    return QDate::fromString(isoText.left(10), Qt::ISODate).addDays(-maxShortDays).toString(Qt::ISODate);
}

}

EventRanges::EventRanges(Database *database)
    : m_database(database)
{
}

QList<Event> EventRanges::inRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    const QString startText = start.toString(Qt::ISODate);
    const QString endText = end.toString(Qt::ISODate);
    if (startText.isEmpty() || endText.isEmpty())
        return {};
    refresh();

    QList<Key> keys;
    QList<Event> shorts = shortOnes(startText, endText, calendarIds, keys);
    const CalendarFilter filter(calendarIds);
    const QByteArray from = startText.toUtf8();
    QList<Event> result;
    result.reserve(shorts.size() + static_cast<qsizetype>(m_standing.size()));
    auto standing = m_standing.cbegin();
    const auto takeStandingBefore = [&](const Key &limit) {
        for (; standing != m_standing.cend() && standing->first < limit; ++standing) {
            const Standing &candidate = standing->second;
            const bool overlaps =
                candidate.event.isRecurring() || candidate.endText.isNull() || candidate.endText > from;
            if (overlaps && filter.accepts(candidate.event.calendarId))
                result.append(candidate.event);
        }
    };
    for (qsizetype i = 0; i < shorts.size(); ++i) {
        takeStandingBefore(keys.at(i));
        result.append(std::move(shorts[i]));
    }
    takeStandingBefore({ endText.toUtf8(), std::numeric_limits<qint64>::min() });
    return result;
}

QList<Event> EventRanges::overridesOf(const QStringList &masterUids, const QStringList &calendarIds)
{
    refresh();
    QList<Key> keys;
    const QSet<QString> uids(masterUids.begin(), masterUids.end());
    for (const QString &uid : uids) {
        if (const auto it = m_overrides.constFind(uid); it != m_overrides.cend())
            keys.append(QList<Key>(it->cbegin(), it->cend()));
    }
    std::ranges::sort(keys);
    const CalendarFilter filter(calendarIds);
    QList<Event> result;
    for (const Key &key : keys) {
        const Event &event = m_standing.at(key).event;
        if (filter.accepts(event.calendarId))
            result.append(event);
    }
    return result;
}

void EventRanges::onWritten(const Event &event)
{
    if (m_isLoaded && (mayBeStanding(event) || m_keys.contains(event.id)))
        m_stale.insert(event.id);
}

void EventRanges::onTouched(const QString &id)
{
    if (m_keys.contains(id))
        m_stale.insert(id);
}

QList<Event> EventRanges::shortOnes(const QString &start, const QString &end, const QStringList &calendarIds,
                                    QList<Key> &keys) const
{
    const CalendarFilter filter(calendarIds);
    const Table<Event> &table = Tables::events();
    const QString tail = QStringLiteral(" WHERE start_time >= ? AND start_time < ? AND +end_time > ?"
                                        " AND deleted_at IS NULL AND ")
        + isShort() + filter.clause() + QStringLiteral(" ORDER BY start_time, rowid");
    Statement rows(m_database, table.select(tail, rawColumns));
    rows.bind(weekBefore(start)).bind(end).bind(start).bindAll(filter.values());
    QList<Event> events;
    if (!rows.run("Reading failed:"))
        return events;
    const int extra = table.selectedCount();
    while (rows.next()) {
        Event event = table.read(rows);
        if (!filter.accepts(event.calendarId))
            continue;
        keys.append({ rows.value(extra).toString().toUtf8(), rows.value(extra + 2).toLongLong() });
        events.append(std::move(event));
    }
    EventRows::attachChildren(m_database, events);
    return events;
}

void EventRanges::refresh()
{
    if (!m_isLoaded || m_isProvisional || m_purges != m_database->eventPurges()) {
        load();
        return;
    }
    if (m_stale.isEmpty())
        return;
    readAgain(m_stale.values());
    // Inside a Savepoint nothing is certain yet: what was written there is read once more later.
    if (m_database->savepointDepth() == 0)
        m_stale.clear();
}

void EventRanges::load()
{
    m_standing.clear();
    m_keys.clear();
    m_overrides.clear();
    m_stale.clear();
    m_purges = m_database->eventPurges();
    m_isProvisional = m_database->savepointDepth() > 0;
    Statement rows(m_database,
                   Tables::events().select(QStringLiteral(" WHERE deleted_at IS NULL AND ") + isShort()
                                               + QStringLiteral(" IS NOT TRUE"),
                                           rawColumns));
    m_isLoaded = rows.run("Reading failed:");
    if (m_isLoaded)
        add(rows);
}

void EventRanges::readAgain(const QStringList &ids)
{
    for (const QString &id : ids)
        forget(id);
    for (qsizetype from = 0; from < ids.size(); from += SqlList::MaxValues) {
        const QStringList chunk = ids.mid(from, SqlList::MaxValues);
        const QString tail =
            QStringLiteral(" WHERE id IN (%1) AND deleted_at IS NULL AND ").arg(SqlList::places(chunk.size()))
            + isShort() + QStringLiteral(" IS NOT TRUE");
        Statement rows(m_database, Tables::events().select(tail, rawColumns), Statement::Once);
        if (rows.bindAll(SqlList::values(chunk)).run("Reading failed:"))
            add(rows);
    }
}

void EventRanges::add(Statement &rows)
{
    const Table<Event> &table = Tables::events();
    const int extra = table.selectedCount();
    QList<Event> events;
    QList<Key> keys;
    QList<QByteArray> ends;
    while (rows.next()) {
        events.append(table.read(rows));
        keys.append({ rows.value(extra).toString().toUtf8(), rows.value(extra + 2).toLongLong() });
        const QVariant end = rows.value(extra + 1);
        ends.append(end.isNull() ? QByteArray() : end.toString().toUtf8());
    }
    EventRows::attachChildren(m_database, events);
    for (qsizetype i = 0; i < events.size(); ++i) {
        Event &event = events[i];
        m_keys.insert(event.id, keys.at(i));
        if (event.isOverride())
            m_overrides[event.masterEventUid].insert(keys.at(i));
        m_standing.emplace(keys.at(i), Standing{ std::move(event), ends.at(i) });
    }
}

void EventRanges::forget(const QString &id)
{
    const auto it = m_keys.constFind(id);
    if (it == m_keys.constEnd())
        return;
    const Key key = *it;
    if (const auto series = m_overrides.find(m_standing.at(key).event.masterEventUid); series != m_overrides.end()) {
        series->erase(key);
        if (series->empty())
            m_overrides.erase(series);
    }
    m_standing.erase(key);
    m_keys.erase(it);
}
