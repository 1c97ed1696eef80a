#pragma once

#include "models/Task.h"
#include "ui/dialogs/FormDialog.h"

#include <QString>

class AppState;

/// Creates and edits a task: everything its record holds. Works on a copy and writes once.
class TaskFormDialog : public FormDialog {
    Q_OBJECT

public:
    TaskFormDialog(AppState *state, QWidget *parent);
    TaskFormDialog(AppState *state, const Task &task, QWidget *parent);

    void setParentTask(const Task &parentTask); ///< of a new task

    [[nodiscard]] QString taskId() const { return m_taskId; } ///< of the row written

protected:
    bool save() override;

private:
    QString m_taskId;
};
