#pragma once

#include "storage/ChangeOrigin.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

class ChangeNotifier;
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

/// Rows that a server has to hear of: what the tables of events and tasks have in common. Writes return false and log
/// on a database error, and change nothing then.
class SyncedRepository : public QObject {
    Q_OBJECT

public:
    /// To open a Savepoint around several writes.
    [[nodiscard]] Database *database() const { return m_database; }

    bool hasPending();
    QStringList pendingCalendarIds(); ///< of every account
    int pendingCount(const QString &calendarId); ///< tombstones included

    /// A page of the calendar's rows in order of rowid, tombstones included.
    QList<SyncRow> syncRows(const QString &calendarId, qint64 afterRowid, int limit);
    /// The same of those that wait, with little of each: whole records of thousands take seconds.
    QList<PendingRow> pendingRows(const QString &calendarId, qint64 afterRowid, int limit);

    bool remove(const QString &id); ///< tombstone, pending
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    bool setAddress(const QString &id, const QString &href, const QString &etag); ///< whether or not it is pending
    bool markPushed(const QString &id, const PushedResource &pushed); ///< and synced
    /// Gives up edits of rows that the server knows; it has to send them again. Returns how many; -1 on an error.
    int discardEdits(const QString &calendarId);
    /// The next sync reads the synced rows of the calendar anew. Looks at \p count rowids after \p afterRowid; false
    /// when there are none left after these.
    bool clearEtags(const QString &calendarId, qint64 afterRowid, int count);

protected:
    /// \p pushOrder: the column by which pending rows are pushed.
    SyncedRepository(Database *database, const char *table, const char *pushOrder, QObject *parent);

    [[nodiscard]] ChangeNotifier *notifier() const { return m_notifier; }
    [[nodiscard]] QString calendarOf(const QString &id);
    void notifyChanged(const QString &calendarId);
    /// Columns of this row have changed beside the whole record.
    virtual void onTouched(const QString & /*id*/) { }
    /// Columns of any row of the calendar have.
    virtual void onTouchedAll(const QString & /*calendarId*/) { }

    Database *m_database;

private:
    /// \p sql with the table's name for "%1"; a warning that names \p method on an error.
    bool write(const char *method, const char *sql, const QVariantList &values);
    [[nodiscard]] QString forTable(const char *sql) const;
    bool signalTouched(const QString &id);

    QLatin1StringView m_table;
    QLatin1StringView m_pushOrder;
    ChangeNotifier *m_notifier;
};
