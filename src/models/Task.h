#pragma once

#include "models/Constants.h"
#include "models/Reminder.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

#include <optional>

/// One row of `tasks` with its `task_reminders`.
struct Task {
    QString id;
    QString calendarId;
    QString uid;
    QString etag;
    QString href;
    QString title;
    QString description;
    QString status = TaskStatus::NeedsAction;
    int priority = 0; ///< 0 is none, 1 the highest, 9 the lowest; RFC 5545 §3.8.1.9
    int percentComplete = 0;
    std::optional<QDateTime> dueDate;
    std::optional<QDateTime> startDate;
    bool dueIsDateOnly = true; ///< DUE is a DATE value
    bool startIsDateOnly = true; ///< DTSTART is a DATE value
    std::optional<QDateTime> completedDate;
    QStringList categories; ///< stored as a JSON array
    QString parentTaskUid; ///< empty at top level
    int sortOrder = 0; ///< 0: no place chosen by hand
    QString color;
    QString recurrenceRule;
    QString repeatMode = QStringLiteral("fromDueDate"); ///< or "fromCompletionDate"
    QString itemType = QStringLiteral("task"); ///< or "reminder"
    int sequence = 0;
    QString rawIcalendar;
    QDateTime created; ///< UTC
    QDateTime lastModified; ///< UTC
    QString syncStatus = SyncStatus::Synced;
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone
    QList<Reminder> reminders;

    [[nodiscard]] bool isCompleted() const { return status == TaskStatus::Completed; }
    /// True if the date it repeats from, due else start, is a day: then its rule ends with a day too.
    [[nodiscard]] bool repeatsByDay() const { return dueDate ? dueIsDateOnly : startIsDateOnly; }

    bool operator==(const Task &) const = default;
};

/// A task in the depth-first order of its tree.
struct TreeTask : Task {
    int depth = 0; ///< 0 at top level

    bool operator==(const TreeTask &) const = default;
};

Q_DECLARE_TYPEINFO(Task, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(TreeTask, Q_RELOCATABLE_TYPE);
