#pragma once

#include "calendar/services/TaskEdits.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

class AppState;
class QWidget;

/// What a person can do with a task, wherever it shows. One for each window; dialogs open from the event loop.
class TaskActions : public QObject {
    Q_OBJECT

public:
    TaskActions(AppState *state, QWidget *window);

    void open(const QString &id, const QRect &globalRect); ///< its details
    void openByUid(const QString &uid); ///< in the middle of the window
    void edit(const QString &id);
    void create();
    void createSubtask(const QString &parentId);
    void setCompleted(const QString &id, bool completed);
    void remove(const QString &id); ///< asks first
    void place(const QString &uid, const QString &targetUid, TaskEdits::DropZone zone);
    void showContextMenu(const QString &id, const QPoint &globalPos);

signals:
    void message(const QString &text); ///< for the status bar
    void eventRequested(const QString &eventId); ///< a linked event is to be shown

private:
    void report(const TaskEdits::Outcome &outcome);

    AppState *m_state;
    QWidget *m_window;
};
