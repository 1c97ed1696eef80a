#include "storage/EventRepository.h"

#include "storage/CalendarFilter.h"
#include "storage/ChangeNotifier.h"
#include "storage/Database.h"
#include "storage/EventRanges.h"
#include "storage/EventRows.h"
#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredAs.h"
#include "storage/Tables.h"

#include <QDebug>
#include <QTimer>

namespace {

constexpr int SliceMs = 8;

}

EventRepository::EventRepository(Database *database, QObject *parent)
    : SyncedRepository(database, "events", "start_time", parent)
    , m_catchUp(new QTimer(this))
    , m_ranges(std::make_unique<EventRanges>(database))
{
    connect(notifier(), &ChangeNotifier::changed, this, &EventRepository::eventsChanged);
    connect(m_catchUp, &QTimer::timeout, this, &EventRepository::catchUp);
    connect(database, &Database::purged, this, [this](const QString &calendarId) {
        m_ranges->onPurged(calendarId);
        catchUpSoon();
    });
}

EventRepository::~EventRepository() = default;

QList<Event> EventRepository::getByCalendar(const QString &calendarId)
{
    return EventRows::list(m_database,
                           QStringLiteral(" WHERE calendar_id = ? AND deleted_at IS NULL ORDER BY start_time"),
                           { calendarId });
}

QList<Event> EventRepository::getByCalendarIncludingDeleted(const QString &calendarId)
{
    return EventRows::list(m_database, QStringLiteral(" WHERE calendar_id = ? ORDER BY start_time"), { calendarId });
}

QList<Event> EventRepository::getInRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    return m_ranges->inRange(start, end, calendarIds);
}

EventSelection EventRepository::select(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    return m_ranges->select(start, end, calendarIds);
}

QList<Event> EventRepository::getOverrides(const QStringList &masterUids, const QStringList &calendarIds)
{
    return m_ranges->overridesOf(masterUids, calendarIds);
}

std::optional<Event> EventRepository::getById(const QString &id)
{
    return EventRows::first(m_database, QStringLiteral(" WHERE id = ?"), { id });
}

QList<Event> EventRepository::search(const QString &text, int limit)
{
    const QString pattern = u'%' + text + u'%';
    const CalendarFilter anyCalendar(m_database, {});
    const QString tail =
        QStringLiteral(" WHERE deleted_at IS NULL AND (title LIKE ? OR location LIKE ? OR description LIKE ?)")
        + anyCalendar.clause() + QStringLiteral(" ORDER BY start_time ASC LIMIT ?");
    return EventRows::list(m_database, tail,
                           QVariantList{ pattern, pattern, pattern } + anyCalendar.values() + QVariantList{ limit });
}

QList<Event> EventRepository::findByRelatedToUid(const QString &uid)
{
    const CalendarFilter anyCalendar(m_database, {});
    const QString tail = QStringLiteral(" WHERE related_to_uid = ? AND deleted_at IS NULL") + anyCalendar.clause()
        + QStringLiteral(" ORDER BY start_time ASC");
    return EventRows::list(m_database, tail, QVariantList{ uid } + anyCalendar.values());
}

std::optional<Event> EventRepository::getByUid(const QString &uid, const QString &calendarId)
{
    // The master before its overrides.
    return EventRows::first(m_database,
                            QStringLiteral(" WHERE uid = ? AND calendar_id = ? ORDER BY COALESCE(recurrence_id, '')"),
                            { uid, calendarId });
}

std::optional<Event> EventRepository::getByUidAndRecurrenceId(const QString &uid, const QString &calendarId,
                                                              const QString &recurrenceId)
{
    return EventRows::first(
        m_database,
        QStringLiteral(" WHERE uid = ? AND calendar_id = ? AND COALESCE(recurrence_id, '') = COALESCE(?, '')"),
        { uid, calendarId, StoredAs::NullableText::store(recurrenceId) });
}

QList<Event> EventRepository::getPending(const QString &calendarId)
{
    return EventRows::list(m_database,
                           QStringLiteral(" WHERE calendar_id = ? AND sync_status = 'pending' ORDER BY start_time"),
                           { calendarId });
}

QList<Event> EventRepository::getSeries(const QString &uid, const QString &calendarId)
{
    // The plus keeps SQLite from walking through the whole calendar by its index.
    return EventRows::list(m_database,
                           QStringLiteral(" WHERE +calendar_id = ? AND (uid = ? OR master_event_uid = ?)"
                                          " ORDER BY COALESCE(recurrence_id, '')"),
                           { calendarId, uid, uid });
}

bool EventRepository::insert(const Event &event)
{
    Event row = event;
    if (row.syncStatus.isEmpty())
        row.syncStatus = SyncStatus::Synced;

    Savepoint savepoint(m_database);
    if (!savepoint.isActive() || !Tables::events().insert(m_database, row, "EventRepository::insert failed:")
        || !EventRows::insertChildren(m_database, row) || !savepoint.commit())
        return false;
    onWritten(row);
    return true;
}

QString EventRepository::insertOrRevive(Event event)
{
    event.syncStatus = SyncStatus::Pending;
    const auto stored = getByUidAndRecurrenceId(event.uid, event.calendarId, event.recurrenceId);
    if (!stored || !stored->deletedAt)
        return insert(event) ? event.id : QString();
    event.id = stored->id;
    event.providerEventId = stored->providerEventId;
    event.href = stored->href;
    event.etag = stored->etag;
    event.deletedAt.reset();
    return update(event) ? event.id : QString();
}

bool EventRepository::update(const Event &event)
{
    Event row = event;
    row.lastModified = QDateTime::currentDateTimeUtc();
    if (row.syncStatus.isEmpty())
        row.syncStatus = SyncStatus::Pending;

    Savepoint savepoint(m_database);
    if (!savepoint.isActive())
        return false;
    EventRows::carryReminders(m_database, row);
    if (!Tables::events().update(m_database, row, "EventRepository::update failed:")
        || !EventRows::replaceChildren(m_database, row) || !savepoint.commit())
        return false;
    onWritten(row);
    return true;
}

bool EventRepository::updateAll(const QList<Event> &events)
{
    Savepoint savepoint(m_database);
    if (!savepoint.isActive())
        return false;
    // No row has a row id for its recurrence id, so all of them are out of each other's way.
    for (const Event &event : events) {
        if (!runStatement(m_database, "EventRepository::update failed:",
                          QStringLiteral("UPDATE events SET recurrence_id = id WHERE id = ?"), { event.id }))
            return false;
    }
    for (const Event &event : events) {
        if (!update(event))
            return false;
    }
    return savepoint.commit();
}

bool EventRepository::hardDelete(const QString &id)
{
    const QString calendarId = calendarOf(id);
    Savepoint savepoint(m_database);
    if (!savepoint.isActive())
        return false;
    for (const auto *table : { "attendees", "attachments", "reminders" }) {
        const QByteArray message = QByteArray("EventRepository::hardDelete child cleanup failed: ") + table + " :";
        runStatement(m_database, message.constData(),
                     QStringLiteral("DELETE FROM %1 WHERE event_id = ?").arg(QLatin1StringView(table)), { id });
    }
    if (!runStatement(m_database,
                      "EventRepository::hardDelete failed:", QStringLiteral("DELETE FROM events WHERE id = ?"), { id })
        || !savepoint.commit())
        return false;
    onTouched(id);
    notifyChanged(calendarId);
    return true;
}

bool EventRepository::restoreDeleted(const Event &event)
{
    Event row = event;
    row.deletedAt.reset();
    row.syncStatus = SyncStatus::Pending;
    if (getById(row.id)) {
        const bool ok = update(row);
        qInfo().noquote() << "[Undo] cleared tombstone on existing row" << row.id << "ok=" << ok;
        return ok;
    }
    // A sync has purged the row: to the server it is a new resource.
    row.href.clear();
    row.etag.clear();
    row.providerEventId.clear();
    const bool ok = insert(row);
    qInfo().noquote() << "[Undo] re-inserted row" << row.id << "title=" << row.title << "ok=" << ok;
    return ok;
}

void EventRepository::warmUp()
{
    m_isKeptWarm = true;
    m_catchUp->start(0);
}

bool EventRepository::isWarm() const
{
    return m_ranges->isCaughtUp();
}

void EventRepository::catchUpSoon()
{
    if (m_isKeptWarm && !m_catchUp->isActive() && !m_ranges->isCaughtUp())
        m_catchUp->start(0);
}

void EventRepository::catchUp()
{
    const bool goesOn = m_ranges->catchUp(SliceMs) && !m_ranges->isCaughtUp();
    if (goesOn)
        return;
    // What the database refused is left to the next read.
    m_catchUp->stop();
    emit warmedUp();
}

void EventRepository::onWritten(const Event &event)
{
    m_ranges->onWritten(event);
    catchUpSoon();
    notifyChanged(event.calendarId);
}

void EventRepository::onTouchedAll(const QString &calendarId)
{
    m_database->eventsPurged(calendarId);
}

void EventRepository::onTouched(const QString &id)
{
    m_ranges->onTouched(id);
    catchUpSoon();
}
