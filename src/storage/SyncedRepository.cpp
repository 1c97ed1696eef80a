#include "storage/SyncedRepository.h"

#include "storage/ChangeNotifier.h"
#include "storage/Database.h"
#include "storage/Statement.h"
#include "storage/StoredAs.h"
#include "storage/StoredTime.h"

using StoredAs::NullableText;

SyncedRepository::SyncedRepository(Database *database, const char *table, const char *pushOrder, QObject *parent)
    : QObject(parent)
    , m_database(database)
    , m_table(table)
    , m_pushOrder(pushOrder)
    , m_notifier(new ChangeNotifier(this))
{
}

QString SyncedRepository::forTable(const char *sql) const
{
    return QString::fromLatin1(sql).arg(m_table);
}

bool SyncedRepository::write(const char *method, const char *sql, const QVariantList &values)
{
    const QByteArray message = QByteArray(metaObject()->className()) + "::" + method + " failed:";
    return runStatement(m_database, message.constData(), forTable(sql), values);
}

QString SyncedRepository::calendarOf(const QString &id)
{
    Statement row(m_database, forTable("SELECT calendar_id FROM %1 WHERE id = ?"));
    return row.bind(id).run("Reading failed:") && row.next() ? row.value(0).toString() : QString();
}

void SyncedRepository::notifyChanged(const QString &calendarId)
{
    m_database->dataWritten();
    m_notifier->notify(calendarId, m_database->writeOrigin());
}

bool SyncedRepository::signalTouched(const QString &id)
{
    onTouched(id);
    notifyChanged(calendarOf(id));
    return true;
}

bool SyncedRepository::hasPending()
{
    Statement row(m_database, forTable("SELECT 1 FROM %1 WHERE sync_status = 'pending' LIMIT 1"));
    return row.run("Reading failed:") && row.next();
}

QStringList SyncedRepository::pendingCalendarIds()
{
    Statement row(m_database, forTable("SELECT DISTINCT calendar_id FROM %1 WHERE sync_status = 'pending'"));
    QStringList ids;
    if (!row.run("Reading failed:"))
        return ids;
    while (row.next())
        ids.append(row.value(0).toString());
    return ids;
}

int SyncedRepository::pendingCount(const QString &calendarId)
{
    Statement row(m_database, forTable("SELECT COUNT(*) FROM %1 WHERE calendar_id = ? AND sync_status = 'pending'"));
    return row.bind(calendarId).run("Reading failed:") && row.next() ? row.value(0).toInt() : 0;
}

QList<SyncRow> SyncedRepository::syncRows(const QString &calendarId, qint64 afterRowid, int limit)
{
    Statement row(m_database,
                  forTable("SELECT rowid, id, uid, href, etag, sync_status = 'pending', deleted_at IS NOT NULL"
                           " FROM %1 WHERE calendar_id = ? AND rowid > ? ORDER BY rowid LIMIT ?"));
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

QList<PendingRow> SyncedRepository::pendingRows(const QString &calendarId, qint64 afterRowid, int limit)
{
    Statement row(m_database,
                  forTable("SELECT rowid, uid, href, %2 FROM %1 WHERE calendar_id = ? AND sync_status = 'pending'"
                           " AND rowid > ? ORDER BY rowid LIMIT ?")
                      .arg(m_pushOrder));
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

bool SyncedRepository::remove(const QString &id)
{
    const QVariant now = StoredTime::now();
    return write("remove", "UPDATE %1 SET deleted_at = ?, sync_status = 'pending', last_modified = ? WHERE id = ?",
                 { now, now, id })
        && signalTouched(id);
}

bool SyncedRepository::markSynced(const QString &id, const QString &href, const QString &etag)
{
    if (!write("markSynced", "UPDATE %1 SET href = ?, etag = ?, sync_status = 'synced' WHERE id = ?",
               { NullableText::store(href), NullableText::store(etag), id }))
        return false;
    onTouched(id);
    m_database->dataWritten();
    return true;
}

bool SyncedRepository::setAddress(const QString &id, const QString &href, const QString &etag)
{
    return write("setAddress", "UPDATE %1 SET href = ?, etag = ? WHERE id = ?",
                 { NullableText::store(href), NullableText::store(etag), id })
        && signalTouched(id);
}

bool SyncedRepository::markPushed(const QString &id, const PushedResource &pushed)
{
    return write("markPushed",
                 "UPDATE %1 SET href = ?, etag = ?, raw_icalendar = ?, sequence = ?, sync_status = 'synced'"
                 " WHERE id = ?",
                 { NullableText::store(pushed.href), NullableText::store(pushed.etag), pushed.rawIcalendar,
                   pushed.sequence, id })
        && signalTouched(id);
}

int SyncedRepository::discardEdits(const QString &calendarId)
{
    if (!write("discardEdits",
               "UPDATE %1 SET sync_status = 'synced', etag = NULL WHERE calendar_id = ?"
               " AND sync_status = 'pending' AND deleted_at IS NULL AND href <> ''",
               { calendarId }))
        return -1;
    Statement changes(m_database, QStringLiteral("SELECT changes()"));
    const int count = changes.run("Reading failed:") && changes.next() ? changes.value(0).toInt() : -1;
    if (count > 0) {
        onTouchedAll(calendarId);
        notifyChanged(calendarId);
    }
    return count;
}

bool SyncedRepository::clearEtags(const QString &calendarId, qint64 afterRowid, int count)
{
    const qint64 lastRowid = afterRowid + count;
    // The plus keeps SQLite from walking through the whole calendar for each part of it.
    if (!write("clearEtags",
               "UPDATE %1 SET etag = NULL WHERE rowid > ? AND rowid <= ? AND +calendar_id = ?"
               " AND +sync_status = 'synced' AND etag IS NOT NULL",
               { afterRowid, lastRowid, calendarId }))
        return false;
    Statement more(m_database, forTable("SELECT 1 FROM %1 WHERE rowid > ? LIMIT 1"));
    return more.bind(lastRowid).run("Reading failed:") && more.next();
}
