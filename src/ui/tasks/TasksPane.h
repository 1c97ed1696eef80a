#pragma once

#include "models/Task.h"

#include <QDate>
#include <QString>
#include <QWidget>

#include <memory>

class AppState;
class TaskActions;

/// The tasks of the visible calendars as an indented tree, with a filter, options, and dragging.
class TasksPane : public QWidget {
    Q_OBJECT

public:
    enum class Filter { All, Today, ThisWeek, Overdue };

    /// \p actions must outlive the pane.
    TasksPane(AppState *state, TaskActions *actions, QWidget *parent = nullptr);
    ~TasksPane() override;

    void reload();

private:
    class Private;
    std::unique_ptr<Private> d;
};
