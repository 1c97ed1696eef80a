#pragma once

#include "models/Task.h"
#include "ui/dialogs/FormDialog.h"

#include <QString>

class AppState;
class CalendarCombo;
class ColorField;
class OptionalDateField;
class QComboBox;
class QPlainTextEdit;
class QSpinBox;
class RecurrenceButton;
class RemindersEditor;

/// Creates and edits a task: everything its record holds. Works on a copy and writes once. A task of a
/// read-only calendar opens for reading only.
class TaskFormDialog : public FormDialog {
    Q_OBJECT

public:
    TaskFormDialog(AppState *state, QWidget *parent);
    TaskFormDialog(AppState *state, const Task &task, QWidget *parent);

    void setParentTask(const Task &parentTask); ///< of a new task

    [[nodiscard]] QString taskId() const { return m_taskId; } ///< of the row written
    [[nodiscard]] Task edited() const; ///< what accepting the form would store

protected:
    bool save() override;
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    void build();
    void buildFields();
    QWidget *buildProgress();
    void connectControls();
    void populateCalendars();
    void populateParents();
    void prefill(const Task &task);
    void setReadOnly();
    void onStatusChosen();
    void onProgressChanged(int percent);
    void onDueChanged();
    [[nodiscard]] QStringList editedCategories() const;

    AppState *m_state;
    Task m_shown; // as the form was filled; a new task has no id
    Task m_baseline;
    bool m_isNew = true;
    bool m_isReadOnly = false;
    QString m_taskId;
    QString m_chosenParentUid; // also while another calendar, which does not hold it, is chosen

    QLineEdit *m_title = nullptr;
    CalendarCombo *m_calendar = nullptr;
    QComboBox *m_parent = nullptr;
    OptionalDateField *m_due = nullptr;
    OptionalDateField *m_start = nullptr;
    RecurrenceButton *m_repeat = nullptr;
    QComboBox *m_repeatMode = nullptr;
    RemindersEditor *m_reminders = nullptr;
    QComboBox *m_priority = nullptr;
    QComboBox *m_status = nullptr;
    QSpinBox *m_progress = nullptr;
    QLineEdit *m_categories = nullptr;
    ColorField *m_color = nullptr;
    QPlainTextEdit *m_notes = nullptr;
};
