#include "storage/CalendarRemovals.h"

#include "storage/BulkWrites.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"

#include <QElapsedTimer>

namespace {

constexpr int SliceMs = 8;
constexpr int LargeFrom = 250; // rows
constexpr int RowsPerStep = 16; // about a millisecond
constexpr const char *FailureMessage = "CalendarRemovals failed:";

const QString MarkPrefix = QStringLiteral("storage/removing/");

}

CalendarRemovals::CalendarRemovals(Database *database)
    : QObject(database)
    , m_database(database)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &CalendarRemovals::runSlice);
    connect(database, &Database::purged, this, [this](const QString &calendarId) {
        if (calendarId.isEmpty()) // a mark may have been rolled back
            readMarks();
    });
}

CalendarRemovals::~CalendarRemovals() = default;

bool CalendarRemovals::remove(const QString &calendarId)
{
    if (!areLarge({ calendarId }))
        return CalendarRepository::deleteDeep(m_database, calendarId);
    Savepoint savepoint(m_database);
    return savepoint.isActive() && mark(calendarId) && savepoint.commit();
}

bool CalendarRemovals::mark(const QString &calendarId)
{
    const QVariant now = StoredTime::now();
    if (!runStatement(m_database, FailureMessage,
                      QStringLiteral("UPDATE calendars SET deleted_at = ?, updated_at = ? WHERE id = ?"),
                      { now, now, calendarId })
        || !runStatement(m_database, FailureMessage,
                         QStringLiteral("INSERT OR IGNORE INTO settings (key, value) VALUES (?, '1')"),
                         { MarkPrefix + calendarId }))
        return false;
    m_ids.insert(calendarId);
    if (!m_queue.contains(calendarId))
        m_queue.append(calendarId);
    m_timer.start();
    m_database->eventsPurged(calendarId);
    return true;
}

bool CalendarRemovals::areLarge(const QStringList &calendarIds)
{
    int count = 0;
    for (const QString &id : calendarIds) {
        Statement rows(m_database,
                       QStringLiteral("SELECT (SELECT COUNT(*) FROM (SELECT 1 FROM events WHERE calendar_id = ?1 LIMIT"
                                      " ?2)) + (SELECT COUNT(*) FROM (SELECT 1 FROM tasks WHERE calendar_id = ?1"
                                      " LIMIT ?2))"));
        if (rows.bind(id).bind(LargeFrom).run(FailureMessage) && rows.next())
            count += rows.value(0).toInt();
    }
    return count >= LargeFrom;
}

bool CalendarRemovals::finish(const QString &calendarId)
{
    if (!m_ids.contains(calendarId))
        return true;
    Savepoint savepoint(m_database);
    if (!savepoint.isActive() || !deleteRest(calendarId) || !savepoint.commit())
        return false;
    m_ids.remove(calendarId);
    m_queue.removeAll(calendarId);
    return true;
}

void CalendarRemovals::resume()
{
    readMarks();
    m_queue = m_ids.values();
    if (!m_queue.isEmpty())
        m_timer.start();
}

void CalendarRemovals::pause()
{
    m_timer.stop();
    m_bulkWrites.reset();
    m_queue.clear();
    m_ids.clear();
}

void CalendarRemovals::readMarks()
{
    Statement rows(m_database, QStringLiteral("SELECT substr(key, ?) FROM settings WHERE key LIKE ?"));
    if (!rows.bind(MarkPrefix.size() + 1).bind(QString(MarkPrefix + u'%')).run(FailureMessage))
        return;
    m_ids.clear();
    while (rows.next())
        m_ids.insert(rows.value(0).toString());
    m_queue.removeIf([this](const QString &id) { return !m_ids.contains(id); });
}

void CalendarRemovals::runSlice()
{
    if (m_queue.isEmpty()) {
        m_timer.stop();
        m_bulkWrites.reset();
        return;
    }
    // What a power cut takes back is still marked, and deleted again.
    if (!m_bulkWrites)
        m_bulkWrites = std::make_unique<BulkWrites>(m_database);

    QElapsedTimer clock;
    clock.start();
    const QString id = m_queue.constFirst();
    Savepoint savepoint(m_database);
    bool succeeded = savepoint.isActive();
    bool isLarge = true;
    while (succeeded && isLarge && !clock.hasExpired(SliceMs)) {
        succeeded = deleteSome(id);
        isLarge = areLarge({ id });
    }
    if (succeeded && !isLarge)
        succeeded = deleteRest(id);
    succeeded = succeeded && savepoint.commit();
    if (!succeeded || !isLarge) // one that failed waits for the next start
        m_queue.removeAll(id);
    if (succeeded && !isLarge)
        m_ids.remove(id);
}

bool CalendarRemovals::deleteSome(const QString &calendarId)
{
    const QString events =
        QStringLiteral("(SELECT id FROM events WHERE calendar_id = ? ORDER BY rowid LIMIT %1)").arg(RowsPerStep);
    for (const auto *table : { "attendees", "attachments", "reminders" }) {
        if (!runStatement(m_database, FailureMessage,
                          QStringLiteral("DELETE FROM %1 WHERE event_id IN ").arg(QLatin1StringView(table)) + events,
                          { calendarId }))
            return false;
    }
    // The reminders of tasks go by the schema's cascade.
    for (const auto *table : { "events", "tasks" }) {
        const QString name = QLatin1StringView(table);
        if (!runStatement(m_database, FailureMessage,
                          QStringLiteral("DELETE FROM %1 WHERE rowid IN (SELECT rowid FROM %1 WHERE calendar_id = ?"
                                         " ORDER BY rowid LIMIT %2)")
                              .arg(name)
                              .arg(RowsPerStep),
                          { calendarId }))
            return false;
    }
    return true;
}

bool CalendarRemovals::deleteRest(const QString &calendarId)
{
    return CalendarRepository::deleteDeep(m_database, calendarId)
        && runStatement(m_database, FailureMessage, QStringLiteral("DELETE FROM settings WHERE key = ?"),
                        { MarkPrefix + calendarId });
}
