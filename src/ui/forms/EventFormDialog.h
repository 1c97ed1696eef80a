#pragma once

#include "models/Event.h"
#include "ui/dialogs/FormDialog.h"

#include <QDateTime>
#include <QString>

class AppState;
class AttendeesEditor;
class CalendarCombo;
class ColorField;
class DateTimePicker;
class QCheckBox;
class QPlainTextEdit;
class RecurrenceButton;
class RemindersEditor;
struct EventTemplate;

/// Creates and edits an event. Works on a copy and writes once, when it is accepted. An event of a read-only
/// calendar opens for reading only.
class EventFormDialog : public FormDialog {
    Q_OBJECT

public:
    EventFormDialog(AppState *state, QWidget *parent);
    /// \p shown is the stored event, or EventEdits::shownAt() of one occurrence.
    EventFormDialog(AppState *state, const Event &shown, QWidget *parent);

    void setInitialStart(const QDateTime &start, int minutes); ///< local
    /// Fills a new event's form from \p draft, which is not stored yet: a task dropped on the calendar.
    void setDraft(const Event &draft);
    /// Overwrites what the template says and leaves the rest.
    void applyTemplate(const EventTemplate &eventTemplate);

    [[nodiscard]] QString eventId() const { return m_eventId; } ///< of the row written
    /// What accepting the form would store, times as the pickers show them.
    [[nodiscard]] Event edited() const;

    /// Where a new event begins: \p now without seconds, rounded up to the next half hour.
    static QDateTime defaultStart(const QDateTime &now);

protected:
    bool save() override;
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    void buildLayout();
    QWidget *buildCalendarRow();
    QWidget *buildWhen();
    void connectControls();
    void populateCalendars();
    void prefill(const Event &event);
    void prefillTimes(const Event &event);
    void setReadOnly();
    void rememberLength();
    void onAllDayToggled(bool allDay);
    void onStartChanged();
    void onEndChanged();
    void openTemplatePicker();
    void refreshColor();
    [[nodiscard]] bool check();
    [[nodiscard]] QString editedRule() const;

    AppState *m_state;
    Event m_shown; // as the form was filled; a new event has no id
    Event m_baseline; // what edited() gave before the user touched anything
    bool m_isNew = true;
    bool m_isReadOnly = false;
    bool m_isEndTouched = false;
    qint64 m_lengthSecs = 0; // that moving the start keeps
    qint64 m_lengthDays = 0;
    QString m_eventId;

    QLineEdit *m_title = nullptr;
    CalendarCombo *m_calendar = nullptr;
    QPushButton *m_templates = nullptr;
    ColorField *m_color = nullptr;
    DateTimePicker *m_start = nullptr;
    DateTimePicker *m_end = nullptr;
    QCheckBox *m_allDay = nullptr;
    RecurrenceButton *m_repeat = nullptr;
    QLineEdit *m_location = nullptr;
    AttendeesEditor *m_attendees = nullptr;
    RemindersEditor *m_reminders = nullptr;
    QPlainTextEdit *m_notes = nullptr;
};
