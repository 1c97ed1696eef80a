#pragma once

#include "models/Task.h"

#include "storage/ChangeOrigin.h"
#include "storage/SyncRows.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class ChangeNotifier;
class Database;

/// Table `tasks` with `task_reminders`. Same rules as EventRepository.
class TaskRepository : public QObject {
    Q_OBJECT

public:
    explicit TaskRepository(Database *database, QObject *parent = nullptr);

    QList<Task> getByCalendar(const QString &calendarId); ///< by due date, undated last
    QList<Task> getByCalendarIncludingDeleted(const QString &calendarId);
    /// Live tasks due or starting in [\p start, \p end); an empty \p calendarIds means all calendars.
    QList<Task> getInDueRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);
    QList<Task> getUndated(const QStringList &calendarIds); ///< neither completed nor cancelled
    std::optional<Task> getById(const QString &id); ///< a tombstone too
    std::optional<Task> getByUid(const QString &uid, const QString &calendarId); ///< a tombstone too
    std::optional<Task> findByUid(const QString &uid); ///< live, in any calendar
    QList<Task> getPending(const QString &calendarId); ///< tombstones included
    bool hasPending();
    QStringList pendingCalendarIds(); ///< of every account

    /// A page of the calendar's rows in order of rowid, tombstones included.
    QList<SyncRow> syncRows(const QString &calendarId, qint64 afterRowid, int limit);
    /// The same of those that wait, with little of each: getPending() of thousands takes seconds.
    QList<PendingRow> pendingRows(const QString &calendarId, qint64 afterRowid, int limit);

    bool insert(const Task &task);
    /// lastModified becomes now. When due or start moved, reminders are due again.
    bool update(const Task &task);
    bool remove(const QString &id); ///< tombstone, pending
    bool hardDelete(const QString &id);
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    bool setAddress(const QString &id, const QString &href, const QString &etag); ///< whether or not it is pending
    bool markPushed(const QString &id, const PushedResource &pushed); ///< and synced
    /// Gives up edits of rows that the server knows; it has to send them again. Returns how many; -1 on an error.
    int discardEdits(const QString &calendarId);
    /// The next sync reads the synced rows of the calendar anew. Looks at \p count rowids after \p afterRowid; false
    /// when there are none left after these.
    bool clearEtags(const QString &calendarId, qint64 afterRowid, int count);

    /// Completes a task or takes that back. A repeating task is not completed: it moves on to its next
    /// date, from its due date or from now (Task::repeatMode), if its rule has one left.
    bool setCompleted(const QString &id, bool completed);

signals:
    /// 150 ms after the last write of a burst. \p calendarId is the last one touched, not the only one.
    void tasksChanged(const QString &calendarId, ChangeOrigin origin);

private:
    bool touch(const QString &id, bool isWritten); // signals a write that succeeded
    void notifyChanged(const QString &calendarId);

    Database *m_database;
    ChangeNotifier *m_notifier;
};
