#pragma once

#include "models/Task.h"
#include "ui/actions/DetailsPopover.h"

class AppState;

/// Tells of a task. Follows the stored row while it is on show.
class TaskDetailsPopover : public DetailsPopover {
    Q_OBJECT

public:
    TaskDetailsPopover(AppState *state, const Task &task, QWidget *anchor);

    [[nodiscard]] const Task &shownTask() const { return m_task; }

signals:
    void editRequested(const QString &taskId);
    void deleteRequested(const QString &taskId);
    void completeRequested(const QString &taskId, bool completed);
    void eventRequested(const QString &eventId); ///< a linked event

private:
    void populate();
    void addDates();
    void addState();
    void addLinkedEvents();
    void addActions();
    void onTasksChanged();

    AppState *m_state;
    Task m_task;
};
