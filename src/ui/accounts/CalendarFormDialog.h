#pragma once

#include "models/Account.h"
#include "models/Calendar.h"
#include "ui/dialogs/FormDialog.h"

#include <optional>

class AppState;
class ColorButton;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;

/// Creates a calendar on this device or on a CalDAV server, or edits name, colour and description of any calendar.
/// What a server has to know it hears first; the form stays open until it has agreed.
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
    void addAccounts(class QFormLayout *form);
    void addTaskSupport(class QFormLayout *form);
    [[nodiscard]] Calendar newLocalCalendar() const;
    [[nodiscard]] Calendar entered(const Calendar &base) const;
    /// The account of the calendar, if its server has a say in this form.
    [[nodiscard]] std::optional<Account> serverAccount() const;
    bool storeHere(const Calendar &calendar);
    void startJob(const Account &account, const Calendar &wanted);
    void runJob(const Account &account, const QString &password, const Calendar &wanted);

    AppState *m_state;
    Calendar m_original;
    bool m_editing = false;
    QString m_resultId;
    QString m_shownColor; ///< before the user chose one
    QLineEdit *m_name = nullptr;
    QComboBox *m_account = nullptr; // null while there is nothing to choose
    ColorButton *m_color = nullptr;
    QPlainTextEdit *m_description = nullptr;
    QCheckBox *m_allowTasks = nullptr; // null where the question does not arise
};
