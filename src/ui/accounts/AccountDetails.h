#pragma once

#include "models/Account.h"

#include <QString>
#include <QWidget>

#include <functional>

class AppState;
class ColorButton;
class InlineMessage;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
struct AccountHealth;

/// One account: how it is doing, and its settings, which are stored as they are changed. What takes a dialog is left
/// to whoever listens.
class AccountDetails : public QWidget {
    Q_OBJECT

public:
    explicit AccountDetails(AppState *state, QWidget *parent = nullptr);

    /// Shows the account as it is stored now, or nothing for an id that is not there.
    void showAccount(const QString &accountId);
    [[nodiscard]] QString accountId() const { return m_accountId; }
    /// While the account is being refreshed, its button stops that.
    void setRefreshing(bool refreshing);

signals:
    void editRequested();
    void passwordRequested();
    void refreshRequested(); ///< also to review a certificate, and to stop
    void removeRequested();

private:
    void buildForm();
    void buildButtons();
    void showHealth(const AccountHealth &health);
    void showSettings(const Account &account);
    void showInterval(int minutes);
    void onEnabledClicked(bool enabled);
    void onFixClicked();
    void change(const std::function<void(Account &)> &apply);

    AppState *m_state;
    QString m_accountId;
    bool m_needsPassword = false;
    QLabel *m_title;
    QLabel *m_type;
    InlineMessage *m_message;
    QPushButton *m_fix;
    QFormLayout *m_form;
    QLabel *m_server = nullptr;
    QLabel *m_username = nullptr;
    QLabel *m_calendars = nullptr;
    QLabel *m_lastSync = nullptr;
    QComboBox *m_interval = nullptr;
    ColorButton *m_color = nullptr;
    QCheckBox *m_enabled = nullptr;
    QCheckBox *m_excluded = nullptr;
    QPushButton *m_edit = nullptr;
    QPushButton *m_refresh = nullptr;
    QPushButton *m_remove = nullptr;
};
