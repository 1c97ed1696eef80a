#include "storage/SyncRows.h"

#include "storage/ChangeOrigin.h"
#include "storage/Database.h"
#include "storage/Statement.h"
#include "storage/StoredAs.h"

using StoredAs::NullableText;

namespace {

QString forTable(const char *sql, const char *table)
{
    return QString::fromLatin1(sql).arg(QLatin1StringView(table));
}

}

SyncWrites::SyncWrites(Database *database)
    : m_database(database)
    , m_before(database->writeOrigin())
{
    database->setWriteOrigin(ChangeOrigin::Sync);
}

SyncWrites::~SyncWrites()
{
    if (m_database)
        m_database->setWriteOrigin(m_before);
}

QString SyncRows::calendarOf(Database *database, const char *table, const QString &id)
{
    Statement row(database, forTable("SELECT calendar_id FROM %1 WHERE id = ?", table));
    return row.bind(id).run("Reading failed:") && row.next() ? row.value(0).toString() : QString();
}

QList<SyncRow> SyncRows::list(Database *database, const char *table, const QString &calendarId, qint64 afterRowid,
                              int limit)
{
    Statement row(database,
                  forTable("SELECT rowid, id, uid, href, etag, sync_status = 'pending', deleted_at IS NOT NULL"
                           " FROM %1 WHERE calendar_id = ? AND rowid > ? ORDER BY rowid LIMIT ?",
                           table));
    QList<SyncRow> rows;
    if (!row.bindAll({ calendarId, afterRowid, limit }).run("Reading failed:"))
        return rows;
    while (row.next()) {
        rows.append({ .rowid = row.value(0).toLongLong(),
                      .id = row.value(1).toString(),
                      .uid = row.value(2).toString(),
                      .href = row.value(3).toString(),
                      .etag = row.value(4).toString(),
                      .isPending = row.value(5).toBool(),
                      .isDeleted = row.value(6).toBool() });
    }
    return rows;
}

QStringList SyncRows::pendingCalendarIds(Database *database, const char *table)
{
    Statement row(database, forTable("SELECT DISTINCT calendar_id FROM %1 WHERE sync_status = 'pending'", table));
    QStringList ids;
    if (!row.run("Reading failed:"))
        return ids;
    while (row.next())
        ids.append(row.value(0).toString());
    return ids;
}

QList<PendingRow> SyncRows::listPending(Database *database, const char *table, const char *rankColumn,
                                        const QString &calendarId, qint64 afterRowid, int limit)
{
    Statement row(database,
                  forTable("SELECT rowid, uid, href, %2 FROM %1 WHERE calendar_id = ? AND sync_status = 'pending'"
                           " AND rowid > ? ORDER BY rowid LIMIT ?",
                           table)
                      .arg(QLatin1StringView(rankColumn)));
    QList<PendingRow> rows;
    if (!row.bindAll({ calendarId, afterRowid, limit }).run("Reading failed:"))
        return rows;
    while (row.next()) {
        rows.append({ .rowid = row.value(0).toLongLong(),
                      .uid = row.value(1).toString(),
                      .href = row.value(2).toString(),
                      .rank = row.value(3).toString() });
    }
    return rows;
}

bool SyncRows::setAddress(Database *database, const char *table, const QString &id, const QString &href,
                          const QString &etag)
{
    return runStatement(database,
                        "Storing an address failed:", forTable("UPDATE %1 SET href = ?, etag = ? WHERE id = ?", table),
                        { NullableText::store(href), NullableText::store(etag), id });
}

bool SyncRows::setSynced(Database *database, const char *table, const QString &id, const QString &href,
                         const QString &etag)
{
    return runStatement(database, "markSynced failed:",
                        forTable("UPDATE %1 SET href = ?, etag = ?, sync_status = 'synced' WHERE id = ?", table),
                        { NullableText::store(href), NullableText::store(etag), id });
}

bool SyncRows::markPushed(Database *database, const char *table, const QString &id, const PushedResource &pushed)
{
    return runStatement(database, "markPushed failed:",
                        forTable("UPDATE %1 SET href = ?, etag = ?, raw_icalendar = ?, sequence = ?,"
                                 " sync_status = 'synced' WHERE id = ?",
                                 table),
                        { NullableText::store(pushed.href), NullableText::store(pushed.etag), pushed.rawIcalendar,
                          pushed.sequence, id });
}

int SyncRows::discardEdits(Database *database, const char *table, const QString &calendarId)
{
    if (!runStatement(database, "Discarding edits failed:",
                      forTable("UPDATE %1 SET sync_status = 'synced', etag = NULL WHERE calendar_id = ?"
                               " AND sync_status = 'pending' AND deleted_at IS NULL AND href IS NOT NULL",
                               table),
                      { calendarId }))
        return -1;
    Statement changes(database, QStringLiteral("SELECT changes()"));
    return changes.run("Reading failed:") && changes.next() ? changes.value(0).toInt() : -1;
}

bool SyncRows::clearEtags(Database *database, const char *table, const QString &calendarId, qint64 afterRowid,
                          int count)
{
    const qint64 lastRowid = afterRowid + count;
    // The plus keeps SQLite from walking through the whole calendar for each part of it.
    if (!runStatement(database, "Clearing etags failed:",
                      forTable("UPDATE %1 SET etag = NULL WHERE rowid > ? AND rowid <= ? AND +calendar_id = ?"
                               " AND +sync_status = 'synced' AND etag IS NOT NULL",
                               table),
                      { afterRowid, lastRowid, calendarId }))
        return false;
    Statement more(database, forTable("SELECT 1 FROM %1 WHERE rowid > ? LIMIT 1", table));
    return more.bind(lastRowid).run("Reading failed:") && more.next();
}
