#pragma once

#include "caldav/CalDavParse.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "ui/dialogs/FormDialog.h"

#include <QList>
#include <QString>
#include <QStringList>

class AppState;
class PasswordField;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class ServerLookup;

/// Adds an account of a CalDAV server with the calendars that the user picks of it, or changes one.
class CalDavConnectionDialog : public FormDialog {
    Q_OBJECT

public:
    explicit CalDavConnectionDialog(AppState *state, QWidget *parent = nullptr);
    CalDavConnectionDialog(AppState *state, const Account &account, QWidget *parent = nullptr);

    ~CalDavConnectionDialog() override;

    void focusPassword(); ///< for an account that has lost it
    [[nodiscard]] QString resultAccountId() const { return m_resultId; } ///< of the account that was stored

protected:
    bool save() override;

private:
    void build(const QString &acceptText);
    void buildList();
    void readAddress();
    void onConnectionEdited();
    void onDiscoverClicked();
    void lookUp();
    void onFound(const QList<CalDavParse::DiscoveredCalendar> &calendars);
    void onFailed(const QString &message);
    void setWorking(bool working);
    void chooseDefaultButton();
    void showHint();
    [[nodiscard]] bool isChecked(int row) const;
    [[nodiscard]] bool leadsElsewhere() const;
    [[nodiscard]] bool isReadyToStore();
    [[nodiscard]] QList<Calendar> unwantedCalendars() const;
    [[nodiscard]] Account enteredAccount(const Account &base) const;
    void askToRemove(const QList<Calendar> &calendars);
    void store(const QList<Calendar> &removed);
    void onPasswordStored(bool isStored);

    AppState *m_state;
    Account m_original;
    bool m_editing = false;
    QString m_resultId;
    ServerLookup *m_lookup;
    bool m_isSaving = false; // when the lookup has ended
    bool m_hasFound = false;
    QList<CalDavParse::DiscoveredCalendar> m_found; // in the order of the list
    QLineEdit *m_name = nullptr;
    QLineEdit *m_url = nullptr;
    QLineEdit *m_username = nullptr;
    PasswordField *m_password = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_discover = nullptr;
    QPushButton *m_accept = nullptr;
};
