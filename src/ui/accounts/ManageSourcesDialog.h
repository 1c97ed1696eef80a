#pragma once

#include "caldav/CalDavParse.h"
#include "ui/dialogs/FormDialog.h"

#include <QList>
#include <QString>

class AccountDetails;
class AppState;
class QListWidget;
class QPushButton;
class QTimer;
class ServerLookup;

/// All accounts: how each is doing, and what can be done with it.
class ManageSourcesDialog : public FormDialog {
    Q_OBJECT

public:
    explicit ManageSourcesDialog(AppState *state, QWidget *parent = nullptr);

    void selectAccount(const QString &accountId);

private:
    void buildList();
    void refill();
    void showCurrent();
    void openAddMenu();
    void editCurrent(bool atPassword);
    void askToRemoveCurrent();
    void refreshCurrent();
    void onFound(const QList<CalDavParse::DiscoveredCalendar> &calendars);
    void onFailed(const QString &message);
    void endRefresh();
    [[nodiscard]] QString currentId() const;
    [[nodiscard]] QString accountInNeed() const;

    AppState *m_state;
    ServerLookup *m_lookup;
    QString m_refreshedId; ///< the account that is being refreshed; empty if none is
    QListWidget *m_list;
    QPushButton *m_add;
    AccountDetails *m_details;
    QTimer *m_refill;
};
