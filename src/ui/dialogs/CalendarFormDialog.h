#pragma once

#include "models/Calendar.h"
#include "ui/dialogs/FormDialog.h"

class AppState;
class ColorButton;
class QLineEdit;
class QPlainTextEdit;

/// Creates a calendar on this device, or edits name, colour and description of any calendar.
class CalendarFormDialog : public FormDialog {
    Q_OBJECT

public:
    explicit CalendarFormDialog(AppState *state, QWidget *parent = nullptr);
    CalendarFormDialog(AppState *state, const Calendar &calendar, QWidget *parent = nullptr);

    [[nodiscard]] QString resultCalendarId() const { return m_resultId; } ///< of the calendar that was stored

protected:
    bool save() override;

private:
    void build();
    [[nodiscard]] Calendar newCalendar() const;

    AppState *m_state;
    Calendar m_original;
    bool m_editing = false;
    QString m_resultId;
    QLineEdit *m_name = nullptr;
    ColorButton *m_color = nullptr;
    QPlainTextEdit *m_description = nullptr;
};
