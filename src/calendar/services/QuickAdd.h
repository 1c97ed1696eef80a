#pragma once

#include "models/Event.h"
#include "models/Task.h"

#include <QDateTime>
#include <QString>

#include <variant>

class AppState;

/// Turns a line of English into a stored event, task or reminder. It goes to the calendar of the hint, else the
/// default one, the first visible one or the first; calendars that are read-only are passed over, and for
/// tasks those that cannot hold any, as long as another can.
namespace QuickAdd {

/// What committing the line would store, and why it would not.
struct Draft {
    std::variant<std::monostate, Event, Task> record; ///< monostate: nothing to store
    QString why; ///< translated; said when the line cannot be stored as it stands (a date that does not exist)
};
/// The record as it would be stored (instants in UTC, whole days at 00:00 UTC), without id, uid, time stamps and
/// stored text. \p now is local. An empty line gives neither a record nor a reason.
Draft draft(AppState *state, const QString &text, const QString &calendarIdHint,
            const QDateTime &now = QDateTime::currentDateTime());

/// The event a line stands for, to show; empty for a task or a line that stores nothing.
Event preview(AppState *state, const QString &text, const QString &calendarIdHint = {});

/// Stores the line. The id of the new row, or empty if nothing was stored.
QString commit(AppState *state, const QString &text, const QString &calendarIdHint = {});

} // namespace QuickAdd
