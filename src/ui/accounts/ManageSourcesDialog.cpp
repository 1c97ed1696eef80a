#include "ui/accounts/ManageSourcesDialog.h"

#include "app/state/AppState.h"
#include "caldav/CalDavRediscover.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/accounts/AccountDetails.h"
#include "ui/accounts/AccountHealth.h"
#include "ui/accounts/CalDavConnectionDialog.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/accounts/CalendarRemoval.h"
#include "ui/accounts/ServerLookup.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/TwoLineDelegate.h"
#include "ui/theme/Theme.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr int IdRole = Qt::UserRole;

}

ManageSourcesDialog::ManageSourcesDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Calendar Accounts"), parent)
    , m_state(state)
    , m_lookup(new ServerLookup(this))
    , m_list(new QListWidget)
    , m_add(new QPushButton(tr("&Add…")))
    , m_details(new AccountDetails(state))
    , m_refill(new QTimer(this))
{
    buildList();
    auto *left = new QVBoxLayout;
    left->setSpacing(8);
    left->addWidget(m_list, 1);
    left->addWidget(m_add, 0, Qt::AlignLeft);
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addLayout(left, 2);
    row->addWidget(m_details, 3);
    body()->addLayout(row, 1);
    addCloseButton();
    connect(m_details, &AccountDetails::editRequested, this, [this] { editCurrent(false); });
    connect(m_details, &AccountDetails::passwordRequested, this, [this] { editCurrent(true); });
    connect(m_details, &AccountDetails::refreshRequested, this, &ManageSourcesDialog::refreshCurrent);
    connect(m_details, &AccountDetails::removeRequested, this, &ManageSourcesDialog::askToRemoveCurrent);
    connect(m_lookup, &ServerLookup::progressed, this, &ManageSourcesDialog::showStatus);
    connect(m_lookup, &ServerLookup::found, this, &ManageSourcesDialog::onFound);
    connect(m_lookup, &ServerLookup::failed, this, &ManageSourcesDialog::onFailed);

    // A round of sync writes each account and calendar several times.
    m_refill->setSingleShot(true);
    m_refill->setInterval(0);
    connect(m_refill, &QTimer::timeout, this, &ManageSourcesDialog::refill);
    connect(state->accounts(), &AccountRepository::accountsChanged, m_refill, qOverload<>(&QTimer::start));
    connect(state->calendars(), &CalendarRepository::calendarsChanged, m_refill, qOverload<>(&QTimer::start));
    if (SyncScheduler *scheduler = state->syncScheduler())
        connect(scheduler, &SyncScheduler::failuresChanged, m_refill, qOverload<>(&QTimer::start));
    refill();
    selectAccount(accountInNeed());
    m_list->setFocus();
}

void ManageSourcesDialog::buildList()
{
    m_list->setAccessibleName(tr("Accounts"));
    m_list->setItemDelegate(new TwoLineDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int lineHeight = fontMetrics().height();
    m_list->setMinimumSize(lineHeight * 13, lineHeight * 12);
    m_details->setMinimumWidth(lineHeight * 22);
    m_add->setAutoDefault(false);
    connect(m_list, &QListWidget::currentRowChanged, this, [this] {
        if (m_refreshedId.isEmpty())
            clearProblem(); // it was of another account
        showCurrent();
    });
    connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { editCurrent(false); });
    connect(m_add, &QPushButton::clicked, this, &ManageSourcesDialog::openAddMenu);
    const auto onKey = [this](const QKeySequence &key, const std::function<void()> &run) {
        connect(new QShortcut(key, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this, run);
    };
    onKey(Qt::Key_Return, [this] { editCurrent(false); });
    onKey(Qt::Key_Enter, [this] { editCurrent(false); });
    onKey(QKeySequence::Delete, [this] { askToRemoveCurrent(); });
    onKey(QKeySequence::Refresh, [this] { refreshCurrent(); });
}

void ManageSourcesDialog::refill()
{
    const QString selected = currentId();
    const int oldRow = m_list->currentRow();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    const QList<Account> accounts = m_state->accounts()->getAll();
    for (const Account &account : accounts) {
        const AccountHealth health = AccountHealth::of(m_state, account);
        auto *item = new QListWidgetItem(account.name.simplified(), m_list);
        item->setIcon(Theme::calendarDotIcon(account.color));
        item->setData(IdRole, account.id);
        item->setData(TwoLineDelegate::DetailRole, health.summary);
        item->setData(Qt::AccessibleDescriptionRole, health.summary);
        if (account.id == selected)
            m_list->setCurrentItem(item);
    }
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(qMin(qMax(0, oldRow), m_list->count() - 1));
    showCurrent();
}

void ManageSourcesDialog::selectAccount(const QString &accountId)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(IdRole).toString() == accountId)
            m_list->setCurrentRow(row);
    }
}

/// The first one that waits for its owner.
QString ManageSourcesDialog::accountInNeed() const
{
    const QList<Account> accounts = m_state->accounts()->getAll();
    const auto found = std::ranges::find_if(
        accounts, [this](const Account &account) { return AccountHealth::of(m_state, account).needsOwner(); });
    return found == accounts.end() ? QString() : found->id;
}

QString ManageSourcesDialog::currentId() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(IdRole).toString() : QString();
}

void ManageSourcesDialog::showCurrent()
{
    m_details->showAccount(currentId());
    m_details->setRefreshing(!m_refreshedId.isEmpty() && m_refreshedId == currentId());
    growToFit();
}

void ManageSourcesDialog::openAddMenu()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("&CalDAV account…"), this, [this] {
        auto *dialog = new CalDavConnectionDialog(m_state, this);
        connect(dialog, &QDialog::accepted, this, [this, dialog] {
            refill();
            selectAccount(dialog->resultAccountId());
        });
        dialog->open();
    });
    menu->addAction(tr("&Local calendar…"), this, [this] { (new CalendarFormDialog(m_state, this))->open(); });
    menu->popup(m_add->mapToGlobal(m_add->rect().bottomLeft()));
}

void ManageSourcesDialog::editCurrent(bool atPassword)
{
    const auto account = m_state->accounts()->getById(currentId());
    if (!account || !SyncScheduler::isCalDavFamily(*account))
        return;
    auto *dialog = new CalDavConnectionDialog(m_state, *account, this);
    if (atPassword)
        dialog->focusPassword();
    dialog->open();
}

void ManageSourcesDialog::askToRemoveCurrent()
{
    const auto account = m_state->accounts()->getById(currentId());
    if (!account || account->type == AccountType::Quillon)
        return;
    QString text =
        tr("Remove \"%1\" and its calendars from this device? The server keeps what is in them.").arg(account->name);
    const QString loss = CalendarRemoval::lossText(m_state, m_state->calendars()->getByAccount(account->id));
    if (!loss.isEmpty())
        text += QLatin1StringView("\n\n") + loss;
    Prompt::question(this, tr("Remove account?"), text, m_state, [state = m_state, account = *account] {
        if (!state->accounts()->remove(account.id) || !SyncScheduler::isCalDavFamily(account))
            return;
        state->syncScheduler()->credentials()->removeCaldavPassword(account.id);
        CalDavRediscover::forgetAccount(state, account.id);
    });
}

void ManageSourcesDialog::refreshCurrent()
{
    const QString id = currentId();
    const bool isStopped = std::exchange(m_refreshedId, QString()) == id;
    endRefresh();
    clearProblem();
    const auto account = m_state->accounts()->getById(id);
    if (isStopped || !account || !account->enabled || !SyncScheduler::isCalDavFamily(*account))
        return;
    m_refreshedId = id;
    m_details->setRefreshing(true);
    m_lookup->setTrustedCertSha256(account->trustedCertSha256, account->serverUrl);
    m_lookup->start(account->serverUrl, account->username, m_state->syncScheduler()->credentials(), id);
}

void ManageSourcesDialog::endRefresh()
{
    m_lookup->stop();
    m_refreshedId.clear();
    m_details->setRefreshing(false);
}

void ManageSourcesDialog::onFound(const QList<CalDavParse::DiscoveredCalendar> &calendars)
{
    auto account = m_state->accounts()->getById(m_refreshedId);
    endRefresh();
    clearProblem();
    if (!account)
        return; // removed meanwhile
    account->trustedCertSha256 = m_lookup->trustedCertSha256();
    account->pendingCertSha256.clear();
    account->calendarHomeSet = m_lookup->homeSet();
    account->principalUrl = m_lookup->principal();
    account->updatedAt = QDateTime::currentDateTimeUtc();
    m_state->accounts()->update(*account);
    const int inserted = CalDavRediscover::upsertDiscoveredCalendars(m_state, account->id, calendars);
    if (inserted > 0)
        showStatus(tr("Discovered %n new calendar(s).", nullptr, inserted));
    m_state->syncScheduler()->runSyncForAccount(*account);
}

void ManageSourcesDialog::onFailed(const QString &message)
{
    auto account = m_state->accounts()->getById(m_refreshedId);
    endRefresh();
    showProblem(message, nullptr);
    const QString refused = m_lookup->refusedCertSha256();
    if (!account || refused.isEmpty())
        return;
    account->pendingCertSha256 = refused; // until its owner has looked at it again
    account->updatedAt = QDateTime::currentDateTimeUtc();
    m_state->accounts()->update(*account);
}
