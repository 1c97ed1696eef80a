#pragma once

class AppState;
class QDateTime;
class QPoint;
class QString;
class QWidget;

/// What becomes of a task that was dropped on a calendar.
namespace TaskDropHandler {

/// Does what "ui/taskDropAction" says ("event", "start" or "due"), or asks with a menu at \p globalPos. An
/// event opens its form, and nothing is stored until that is accepted; a date is written at once and told in the
/// status bar of \p parent's window. \p when is local; of an all-day target its date counts.
void handleDrop(AppState *state, const QString &taskId, const QDateTime &when, bool allDay, const QPoint &globalPos,
                QWidget *parent);

} // namespace TaskDropHandler
