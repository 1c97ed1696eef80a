#include "storage/EventRanges.h"

#include "storage/CalendarFilter.h"
#include "storage/Database.h"
#include "storage/EventRows.h"
#include "storage/Statement.h"
#include "storage/Tables.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int maxShortDays = 7;
// Steps of about two milliseconds.
constexpr qint64 RowsPerStep = 512;
constexpr qsizetype IdsPerStep = 64;

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

EventRanges::Window::Window(const QDateTime &start, const QDateTime &end)
    : startText(start.toString(Qt::ISODate))
    , endText(end.toString(Qt::ISODate))
    , startDigits(startText.toUtf8())
    , endDigits(endText.toUtf8())
{
}

bool EventRanges::Window::holds(const Key &key, const Standing &row) const
{
    return key.first < endDigits && (row.event.isRecurring() || row.endText.isNull() || row.endText > startDigits);
}

QList<Event> EventRanges::inRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    const Window window(start, end);
    if (!window.isValid())
        return {};
    refresh();
    const EventSelection selection = rowsIn(window, CalendarFilter(m_database, calendarIds));
    QList<Event> result;
    result.reserve(selection.rows.size());
    for (const Event *row : selection.rows)
        result.append(*row);
    return result;
}

EventSelection EventRanges::select(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    const Window window(start, end);
    if (!window.isValid())
        return {};
    refresh();
    const CalendarFilter filter(m_database, calendarIds);
    EventSelection selection = rowsIn(window, filter);
    addOverrides(selection, window, filter);
    return selection;
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
    const CalendarFilter filter(m_database, calendarIds);
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
    const bool hasBegun = m_isLoaded || m_loadedTo != BeforeAllRows;
    if (hasBegun && (mayBeStanding(event) || m_keys.contains(event.id)))
        m_stale.insert(event.id);
}

void EventRanges::onTouched(const QString &id)
{
    if (m_keys.contains(id))
        m_stale.insert(id);
}

void EventRanges::onPurged(const QString &calendarId)
{
    if (calendarId.isEmpty())
        return startOver();
    QStringList gone;
    for (const auto &[key, row] : m_standing) {
        if (row.event.calendarId == calendarId)
            gone.append(row.event.id);
    }
    for (const QString &id : std::as_const(gone)) {
        forget(id);
        m_stale.remove(id);
    }
}

bool EventRanges::catchUp(int sliceMs)
{
    QElapsedTimer clock;
    clock.start();
    if (m_database->savepointDepth() > 0)
        return true;
    if (m_isProvisional)
        startOver();
    while (!isCaughtUp() && !clock.hasExpired(sliceMs)) {
        if (!m_isLoaded) {
            if (!loadNextRows())
                return false;
            continue;
        }
        const QStringList ids(m_stale.cbegin(), std::next(m_stale.cbegin(), std::min(IdsPerStep, m_stale.size())));
        if (!readAgain(ids))
            return false;
        for (const QString &id : ids)
            m_stale.remove(id);
    }
    return true;
}

EventSelection EventRanges::rowsIn(const Window &window, const CalendarFilter &filter)
{
    QList<Key> keys;
    EventSelection selection;
    selection.readNow = shortOnes(window, filter, keys);
    selection.rows.reserve(selection.readNow.size() + static_cast<qsizetype>(m_standing.size()));
    auto standing = m_standing.cbegin();
    const auto takeStandingBefore = [&](const Key &limit) {
        for (; standing != m_standing.cend() && standing->first < limit; ++standing) {
            if (window.holds(standing->first, standing->second) && filter.accepts(standing->second.event.calendarId))
                selection.rows.append(&standing->second.event);
        }
    };
    for (qsizetype i = 0; i < keys.size(); ++i) {
        takeStandingBefore(keys.at(i));
        selection.rows.append(&std::as_const(selection.readNow).at(i));
    }
    takeStandingBefore({ window.endDigits, BeforeAllRows });
    return selection;
}

void EventRanges::addOverrides(EventSelection &selection, const Window &window, const CalendarFilter &filter) const
{
    if (m_overrides.isEmpty())
        return;
    QSet<QString> uids;
    const qsizetype inWindow = selection.rows.size();
    for (qsizetype i = 0; i < inWindow; ++i) {
        const Event *master = selection.rows.at(i);
        if (!master->isRecurring() || master->isOverride())
            continue;
        const auto overrides = m_overrides.constFind(master->uid);
        if (overrides == m_overrides.cend() || uids.contains(master->uid))
            continue;
        uids.insert(master->uid);
        for (const Key &key : *overrides) {
            const Standing &row = m_standing.at(key);
            if (!window.holds(key, row) && filter.accepts(row.event.calendarId))
                selection.rows.append(&row.event);
        }
    }
}

QList<Event> EventRanges::shortOnes(const Window &window, const CalendarFilter &filter, QList<Key> &keys) const
{
    const Table<Event> &table = Tables::events();
    const QString tail = QStringLiteral(" WHERE start_time >= ? AND start_time < ? AND +end_time > ?"
                                        " AND deleted_at IS NULL AND ")
        + isShort() + filter.clause() + QStringLiteral(" ORDER BY start_time, rowid");
    Statement rows(m_database, table.select(tail, rawColumns));
    rows.bind(weekBefore(window.startText)).bind(window.endText).bind(window.startText).bindAll(filter.values());
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
    if (m_isProvisional)
        startOver();
    // Inside a Savepoint nothing is certain yet: what was read there is read once more later.
    const bool isCertain = m_database->savepointDepth() == 0;
    while (!m_isLoaded) {
        m_isProvisional = !isCertain;
        if (!loadNextRows())
            return;
    }
    if (!m_stale.isEmpty() && readAgain(m_stale.values()) && isCertain)
        m_stale.clear();
}

void EventRanges::startOver()
{
    m_standing.clear();
    m_keys.clear();
    m_overrides.clear();
    m_stale.clear();
    m_isLoaded = false;
    m_isProvisional = false;
    m_loadedTo = BeforeAllRows;
}

bool EventRanges::loadNextRows()
{
    // Rowids may have wide gaps, so each step begins at a row that exists.
    Statement next(m_database, QStringLiteral("SELECT rowid FROM events WHERE rowid > ? ORDER BY rowid LIMIT 1"));
    if (!next.bind(m_loadedTo).run("Reading failed:"))
        return false;
    if (!next.next()) {
        m_isLoaded = true;
        return true;
    }
    const qint64 first = next.value(0).toLongLong();
    const qint64 last = first + std::min(RowsPerStep - 1, std::numeric_limits<qint64>::max() - first);
    Statement rows(m_database,
                   Tables::events().select(QStringLiteral(" WHERE rowid BETWEEN ? AND ? AND deleted_at IS NULL AND ")
                                               + isShort() + QStringLiteral(" IS NOT TRUE"),
                                           rawColumns));
    if (!rows.bind(first).bind(last).run("Reading failed:"))
        return false;
    add(rows);
    m_loadedTo = last;
    return true;
}

bool EventRanges::readAgain(const QStringList &ids)
{
    bool succeeded = true;
    for (qsizetype from = 0; from < ids.size(); from += SqlList::MaxValues) {
        const QStringList chunk = ids.mid(from, SqlList::MaxValues);
        for (const QString &id : chunk)
            forget(id);
        const QString tail =
            QStringLiteral(" WHERE id IN (%1) AND deleted_at IS NULL AND ").arg(SqlList::places(chunk.size()))
            + isShort() + QStringLiteral(" IS NOT TRUE");
        Statement rows(m_database, Tables::events().select(tail, rawColumns), Statement::Once);
        if (rows.bindAll(SqlList::values(chunk)).run("Reading failed:"))
            add(rows);
        else
            succeeded = false;
    }
    return succeeded;
}

void EventRanges::add(Statement &rows)
{
    const Table<Event> &table = Tables::events();
    const CalendarFilter anyCalendar(m_database, {});
    const int extra = table.selectedCount();
    QList<Event> events;
    QList<Key> keys;
    QList<QByteArray> ends;
    while (rows.next()) {
        Event event = table.read(rows);
        if (!anyCalendar.accepts(event.calendarId))
            continue;
        events.append(std::move(event));
        keys.append({ rows.value(extra).toString().toUtf8(), rows.value(extra + 2).toLongLong() });
        const QVariant end = rows.value(extra + 1);
        ends.append(end.isNull() ? QByteArray() : end.toString().toUtf8());
    }
    EventRows::attachChildren(m_database, events);
    for (qsizetype i = 0; i < events.size(); ++i) {
        Event &event = events[i];
        forget(event.id);
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
