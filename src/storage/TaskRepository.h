#pragma once

#include "models/Task.h"

#include "storage/ChangeOrigin.h"
#include "storage/SyncedRepository.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class Database;

/// Table `tasks` with `task_reminders`. Same rules as EventRepository.
class TaskRepository : public SyncedRepository {
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
    bool insert(const Task &task);
    /// lastModified becomes now. When due or start moved, reminders are due again.
    bool update(const Task &task);
    bool hardDelete(const QString &id);

    /// Completes a task or takes that back. A repeating task is not completed: it moves on to its next
    /// date, from its due date or from now (Task::repeatMode), if its rule has one left.
    bool setCompleted(const QString &id, bool completed);

signals:
    /// 150 ms after the last write of a burst. \p calendarId is the last one touched, not the only one.
    void tasksChanged(const QString &calendarId, ChangeOrigin origin);
};
