#pragma once

#include "models/Calendar.h"
#include "ui/dialogs/FormDialog.h"

#include <QList>
#include <QStringList>

class AppState;
class QComboBox;

/// Asks which calendar imported events go to.
class ImportDialog : public FormDialog {
    Q_OBJECT

public:
    /// \p fileNames without their folders; there must be at least one writable calendar.
    ImportDialog(AppState *state, const QStringList &fileNames, int eventCount, QWidget *parent = nullptr);

    [[nodiscard]] QString calendarId() const;

    /// Live calendars that are not read-only, by name.
    static QList<Calendar> writableCalendars(AppState *state);
    /// One entry for each writable calendar: dot, name and account; the id is its data.
    static void fillCalendarCombo(AppState *state, QComboBox *combo);
    /// The user's default calendar, else the one flagged as default, else the first; empty for none.
    static QString defaultTarget(AppState *state, const QList<Calendar> &writable);

private:
    QComboBox *m_calendar;
};
