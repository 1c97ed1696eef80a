#pragma once

#include "models/EventTemplate.h"
#include "ui/dialogs/FormDialog.h"

class AppState;
class CalendarCombo;
class ColorField;
class QCheckBox;
class QPlainTextEdit;
class QSpinBox;
class RecurrenceButton;
class RemindersEditor;

/// Creates and edits a template of events. Only what it fills in is taken over by a new event.
class TemplateFormDialog : public FormDialog {
    Q_OBJECT

public:
    TemplateFormDialog(AppState *state, QWidget *parent);
    TemplateFormDialog(AppState *state, const EventTemplate &eventTemplate, QWidget *parent);

protected:
    bool save() override;
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    void build();
    QWidget *buildLength();
    void fill(const EventTemplate &eventTemplate);
    void onAllDayToggled(bool allDay);
    [[nodiscard]] EventTemplate edited() const;

    AppState *m_state;
    EventTemplate m_original; // a new one has no id
    EventTemplate m_baseline;
    QLineEdit *m_name = nullptr;
    QLineEdit *m_title = nullptr;
    QLineEdit *m_location = nullptr;
    CalendarCombo *m_calendar = nullptr;
    ColorField *m_color = nullptr;
    QCheckBox *m_allDay = nullptr;
    QSpinBox *m_hours = nullptr;
    QSpinBox *m_minutes = nullptr;
    QSpinBox *m_days = nullptr;
    RecurrenceButton *m_repeat = nullptr;
    RemindersEditor *m_reminders = nullptr;
    QPlainTextEdit *m_notes = nullptr;
};
