#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Database;

/// What a sync looks at of every row of a calendar: where it is on the server, and whether it waits.
struct SyncRow {
    qint64 rowid = 0;
    QString id;
    QString uid;
    QString href;
    QString etag;
    bool isPending = false;
    bool isDeleted = false;
};

/// A row that waits to be pushed.
struct PendingRow {
    qint64 rowid = 0;
    QString uid;
    QString href; ///< empty: not on the server yet, or part of a resource that is
    QString rank; ///< texts that compare in the order in which rows are to be pushed
};

/// What a row takes from a push that the server accepted.
struct PushedResource {
    QString href;
    QString etag;
    QString rawIcalendar;
    int sequence = 0;
};

/// The statements of sync that events and tasks have in common; \p table is "events" or "tasks".
/// Only EventRepository and TaskRepository use them: they know who else has to hear of a write.
namespace SyncRows {

QString calendarOf(Database *database, const char *table, const QString &id);
QList<SyncRow> list(Database *database, const char *table, const QString &calendarId, qint64 afterRowid, int limit);
QStringList pendingCalendarIds(Database *database, const char *table);
QList<PendingRow> listPending(Database *database, const char *table, const char *rankColumn, const QString &calendarId,
                              qint64 afterRowid, int limit);
bool setAddress(Database *database, const char *table, const QString &id, const QString &href, const QString &etag);
bool setSynced(Database *database, const char *table, const QString &id, const QString &href, const QString &etag);
bool markPushed(Database *database, const char *table, const QString &id, const PushedResource &pushed);
/// Pending rows that the server knows become synced ones that are to be read anew. Returns how many; -1 on an error.
int discardEdits(Database *database, const char *table, const QString &calendarId);
/// Of the synced rows among the \p count rowids after \p afterRowid. False when there are none left after these.
bool clearEtags(Database *database, const char *table, const QString &calendarId, qint64 afterRowid, int count);

} // namespace SyncRows
