#pragma once

#include "models/Task.h"

#include <QDateTime>
#include <QList>
#include <QString>

class AppState;

/// The writes that a person asks of a task, whichever surface asked. Each starts from the row as stored now,
/// changes only what the person changed, rebuilds the stored text and marks the row pending. Each is one
/// transaction. A calendar that takes no writes refuses them all.
///
/// Due and start may come on any clock: a time is stored as an instant, in UTC, and of a date-only value the
/// date. Completed, 100 % and a date of completion go together.
namespace TaskEdits {

struct Outcome {
    bool ok = false;
    QString id; ///< of the row that now holds the task
    QString why; ///< for the user, translated; empty on success, and where there was nothing to do
};

bool isReadOnly(AppState *state, const Task &task);

/// Stores a new task in one of writableCalendarIds(); fills id, uid, time stamps and stored text.
Outcome create(AppState *state, const Task &task);
/// Stores what differs between \p shown and \p edited. Another calendarId moves the task and all below it. A
/// repeating task that was completed moves on to its next date. A row that has gone meanwhile comes back.
Outcome save(AppState *state, const Task &shown, const Task &edited);
Outcome setCompleted(AppState *state, const QString &id, bool completed);
/// Deletes the task; what hangs below it moves up to its parent.
Outcome remove(AppState *state, const QString &id);

/// Where a task is dropped, relative to another one.
enum class DropZone { Onto, Above, Below };
/// Hangs the task \p uid below \p targetUid, or places it beside that and numbers the siblings anew.
/// Refuses a target in another calendar, the task itself and its own descendants.
Outcome place(AppState *state, const QString &uid, const QString &targetUid, DropZone zone);

/// Sets due or start from a place on a calendar; an all-day value is the date alone.
enum class DateField { Start, Due };
Outcome setDate(AppState *state, const QString &id, DateField field, const QDateTime &when, bool allDay);

/// Writable calendars that can hold tasks: those that say so, and all local ones; in repository order.
QStringList writableCalendarIds(AppState *state);
/// Which of them a new task goes to; empty if there is none.
QString defaultCalendarId(AppState *state);

} // namespace TaskEdits
