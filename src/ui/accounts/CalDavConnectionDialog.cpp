#include "ui/accounts/CalDavConnectionDialog.h"

#include "app/state/AppState.h"
#include "caldav/CalDavDiscovery.h"
#include "caldav/CalDavRediscover.h"
#include "caldav/ServerAddress.h"
#include "models/NewId.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/accounts/AccountSetup.h"
#include "ui/accounts/CalendarRemoval.h"
#include "ui/accounts/PasswordField.h"
#include "ui/accounts/ServerLookup.h"
#include "ui/dialogs/Prompt.h"
#include "ui/theme/Theme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int ListLines = 10;

}

CalDavConnectionDialog::CalDavConnectionDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Add CalDAV Account"), parent)
    , m_state(state)
    , m_lookup(new ServerLookup(this))
{
    build(tr("Add Calendars"));
    m_url->setFocus();
}

CalDavConnectionDialog::CalDavConnectionDialog(AppState *state, const Account &account, QWidget *parent)
    : FormDialog(tr("Edit CalDAV Account"), parent)
    , m_state(state)
    , m_original(account)
    , m_editing(true)
    , m_resultId(account.id)
    , m_lookup(new ServerLookup(this))
{
    build(tr("Save"));
    showName(m_name, account.name);
    m_name->setCursorPosition(0);
    m_url->setText(account.serverUrl);
    m_url->setCursorPosition(0);
    m_username->setText(account.username);
    m_password->edit()->setPlaceholderText(tr("Unchanged"));
    m_lookup->setTrustedCertSha256(account.trustedCertSha256, account.serverUrl);
    chooseDefaultButton();
}

CalDavConnectionDialog::~CalDavConnectionDialog()
{
    m_url->disconnect(this); // losing the focus it would say once more that it was edited
}

void CalDavConnectionDialog::build(const QString &acceptText)
{
    m_name = new QLineEdit;
    m_name->setMaxLength(MaxNameLength);
    m_name->setPlaceholderText(tr("The server's name, unless you give another"));
    m_url = new QLineEdit;
    m_url->setPlaceholderText(QStringLiteral("https://dav.example.com"));
    m_username = new QLineEdit;
    m_password = new PasswordField;
    QFormLayout *form = addForm();
    form->addRow(tr("Server &URL"), m_url);
    form->addRow(tr("User&name"), m_username);
    form->addRow(tr("&Password"), m_password);
    form->addRow(tr("Account na&me"), m_name);
    buildList();

    m_accept = addSaveButtons(acceptText);
    m_discover = addSideButton(tr("Discover Calendars"));
    m_discover->setObjectName(QStringLiteral("discover"));
    chooseDefaultButton();
    connect(m_discover, &QPushButton::clicked, this, &CalDavConnectionDialog::onDiscoverClicked);
    connect(m_url, &QLineEdit::editingFinished, this, &CalDavConnectionDialog::readAddress);
    for (const QLineEdit *edit : { m_url, m_username, m_password->edit() })
        connect(edit, &QLineEdit::textEdited, this, &CalDavConnectionDialog::onConnectionEdited);
    connect(m_lookup, &ServerLookup::progressed, this, &CalDavConnectionDialog::showStatus);
    connect(m_lookup, &ServerLookup::found, this, &CalDavConnectionDialog::onFound);
    connect(m_lookup, &ServerLookup::failed, this, &CalDavConnectionDialog::onFailed);
}

void CalDavConnectionDialog::buildList()
{
    m_list = new QListWidget;
    m_hint = makeHint(m_editing ? tr("“Discover Calendars” shows what the server has, and lets you pick again.")
                                : tr("“Discover Calendars” shows here what the server has."));
    m_hint->setAlignment(Qt::AlignCenter);
    QLabel *section = addSection(tr("&Calendars"));
    section->setBuddy(m_list);
    m_list->setAccessibleName(tr("Calendars"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * ListLines);
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // what is left over
    m_hint->setMinimumHeight(m_list->minimumHeight());
    body()->addWidget(m_list, 1);
    body()->addWidget(m_hint, 1);
    showHint();
}

void CalDavConnectionDialog::showHint()
{
    m_list->setVisible(m_hasFound);
    m_hint->setVisible(!m_hasFound);
}

void CalDavConnectionDialog::focusPassword()
{
    m_password->setFocus();
}

/// A pasted address may have user and password in it, which must not be stored with it.
void CalDavConnectionDialog::readAddress()
{
    const ServerAddress address = ServerAddress::read(m_url->text());
    if (!address.username.isEmpty())
        m_username->setText(address.username);
    if (!address.password.isEmpty())
        m_password->edit()->setText(address.password);
    m_url->setText(address.url);
}

/// What was found belongs to another server or login.
void CalDavConnectionDialog::onConnectionEdited()
{
    if (m_hasFound) {
        m_hasFound = false;
        m_found.clear();
        m_list->clear();
        showHint();
        clearProblem();
    }
    chooseDefaultButton();
}

void CalDavConnectionDialog::chooseDefaultButton()
{
    const bool canStore = m_hasFound || (m_editing && !leadsElsewhere());
    // While a search is on its way nothing is: the search button then stops it.
    (canStore || isBusy() ? m_accept : m_discover)->setDefault(true);
}

bool CalDavConnectionDialog::leadsElsewhere() const
{
    return ServerAddress::read(m_url->text()).url != ServerAddress::read(m_original.serverUrl).url
        || m_username->text().trimmed() != m_original.username;
}

void CalDavConnectionDialog::onDiscoverClicked()
{
    if (m_lookup->isRunning()) {
        m_isSaving = false;
        m_lookup->stop();
        setWorking(false);
        return clearProblem();
    }
    readAddress();
    if (m_url->text().isEmpty() || m_username->text().trimmed().isEmpty()) {
        return showProblem(tr("Enter the server URL and your username first."),
                           m_url->text().isEmpty() ? m_url : m_username);
    }
    lookUp();
}

void CalDavConnectionDialog::lookUp()
{
    setWorking(true);
    const QString username = m_username->text().trimmed();
    if (m_editing && m_password->text().isEmpty())
        m_lookup->start(m_url->text(), username, m_state->syncScheduler()->credentials(), m_original.id);
    else
        m_lookup->start(m_url->text(), username, m_password->text());
}

void CalDavConnectionDialog::setWorking(bool working)
{
    setBusy(working);
    m_discover->setText(working ? tr("Cancel") : tr("Discover Calendars"));
    chooseDefaultButton();
}

void CalDavConnectionDialog::onFound(const QList<CalDavParse::DiscoveredCalendar> &calendars)
{
    m_found = calendars;
    m_hasFound = true;
    m_list->clear();
    for (const CalDavParse::DiscoveredCalendar &calendar : calendars) {
        auto *item = new QListWidgetItem(calendar.displayName.simplified(), m_list);
        item->setIcon(Theme::calendarDotIcon(Theme::eventColor(calendar.color).name()));
        item->setToolTip(Theme::plainToolTip(calendar.displayName + u'\n' + calendar.url));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        const bool wasLeft = m_editing && CalDavRediscover::isDeclined(m_state, m_original.id, calendar.url);
        item->setCheckState(wasLeft ? Qt::Unchecked : Qt::Checked);
    }
    m_list->setCurrentRow(0);
    showHint();
    setWorking(false);
    if (std::exchange(m_isSaving, false))
        return accept();
    showStatus(m_editing ? tr("Found %1 calendar(s). Pick which to have on this device.").arg(calendars.size())
                         : tr("Found %1 calendar(s). Pick which to add.").arg(calendars.size()));
    m_list->setFocus(Qt::OtherFocusReason);
}

void CalDavConnectionDialog::onFailed(const QString &message)
{
    setWorking(false);
    m_password->edit()->selectAll();
    showProblem(message, message == CalDavDiscovery::loginRejected() ? m_password : nullptr);
    if (!std::exchange(m_isSaving, false))
        return;
    Prompt::question(this, tr("Save anyway?"),
                     message + QLatin1StringView("\n\n") + tr("Save the account all the same?"), this,
                     [this] { store({}); });
}

bool CalDavConnectionDialog::isChecked(int row) const
{
    return m_list->item(row)->checkState() == Qt::Checked;
}

bool CalDavConnectionDialog::save()
{
    readAddress();
    if (!isReadyToStore())
        return false;
    if (m_editing && !m_hasFound && !m_password->text().isEmpty()) {
        m_isSaving = true; // once the server has taken the new password
        lookUp();
        return false;
    }
    const QList<Calendar> removed = unwantedCalendars();
    if (removed.isEmpty())
        store({});
    else
        askToRemove(removed);
    return false; // whoever stores closes
}

bool CalDavConnectionDialog::isReadyToStore()
{
    if (!m_hasFound && (!m_editing || leadsElsewhere())) {
        Prompt::information(this, tr("Discover first"), tr("Click \"Discover Calendars\" before saving."));
        return false;
    }
    bool isAnyChecked = false;
    for (int row = 0; row < m_list->count(); ++row)
        isAnyChecked |= isChecked(row);
    if (!m_editing && !isAnyChecked) {
        Prompt::information(this, tr("Pick at least one"), tr("Select one or more calendars to add."));
        return false;
    }
    const auto same =
        m_state->accounts()->findByCanonicalIdentity(m_editing ? m_original.type : QString(AccountType::CalDAV),
                                                     m_username->text().trimmed(), m_url->text(), {}, {});
    if (same && same->id != m_original.id) {
        Prompt::information(this, tr("Already added"),
                            tr("This server is already added as \"%1\". Its calendars are already available — no need "
                               "to add it again.")
                                .arg(same->name));
        return false;
    }
    return true;
}

QList<Calendar> CalDavConnectionDialog::unwantedCalendars() const
{
    if (!m_editing || !m_hasFound)
        return {};
    QStringList listedUrls;
    for (const CalDavParse::DiscoveredCalendar &found : m_found)
        listedUrls.append(found.url);
    QList<Calendar> unchecked;
    QList<Calendar> notFound = m_state->calendars()->getByAccount(m_original.id);
    for (int row = 0; row < m_list->count(); ++row) {
        const auto known = CalDavRediscover::knownCalendar(m_state, m_original.id, m_found.at(row).url, listedUrls);
        if (!known)
            continue;
        notFound.removeIf([&known](const Calendar &calendar) { return calendar.id == known->id; });
        if (!isChecked(row))
            unchecked.append(*known);
    }
    // Those of another server or login must not be asked for with the new password.
    return leadsElsewhere() ? unchecked + notFound : unchecked;
}

void CalDavConnectionDialog::askToRemove(const QList<Calendar> &calendars)
{
    Prompt::question(this, tr("Remove calendars?"), CalendarRemoval::questionText(m_state, calendars), this,
                     [this, calendars] { store(calendars); });
}

Account CalDavConnectionDialog::enteredAccount(const Account &base) const
{
    Account account = base;
    const QString name = m_name->text().trimmed();
    account.serverUrl = m_url->text();
    account.name = name.isEmpty() ? AccountSetup::defaultName(account.serverUrl) : name;
    account.username = m_username->text().trimmed();
    account.updatedAt = QDateTime::currentDateTimeUtc();
    if (m_hasFound) {
        account.calendarHomeSet = m_lookup->homeSet();
        account.principalUrl = m_lookup->principal();
        account.trustedCertSha256 = m_lookup->trustedCertSha256();
        account.pendingCertSha256.clear();
    }
    if (!m_password->text().isEmpty() && account.lastSyncError == SyncScheduler::passwordMissing())
        account.lastSyncError.clear();
    return account;
}

void CalDavConnectionDialog::store(const QList<Calendar> &removed)
{
    Account base;
    if (m_editing) {
        const auto current = m_state->accounts()->getById(m_original.id);
        if (!current)
            return showProblem(tr("This account was removed in the meantime."), nullptr);
        base = *current;
    } else {
        base.id = newId();
        base.type = AccountType::CalDAV;
        base.createdAt = QDateTime::currentDateTimeUtc();
    }
    const Account account = enteredAccount(base);
    QList<CalDavParse::DiscoveredCalendar> picked;
    QStringList left;
    for (int row = 0; row < m_list->count(); ++row) {
        if (isChecked(row))
            picked.append(m_found.at(row));
        else
            left.append(m_found.at(row).url);
    }
    if (!AccountSetup::store(m_state, account, picked, left))
        return Prompt::warning(this, tr("Database Error"), tr("Could not save the account."));
    m_resultId = account.id;
    CalendarRemoval::removeFromDevice(m_state, removed);

    SyncScheduler *scheduler = m_state->syncScheduler();
    const QString password = m_password->text();
    if (!password.isEmpty()) {
        setBusy(true);
        showStatus(tr("Saving the password…"));
        scheduler->credentials()->setCaldavPassword(account.id, password, this,
                                                    [this](bool isStored) { onPasswordStored(isStored); });
    }
    if (m_hasFound || !password.isEmpty())
        scheduler->runSyncForAccount(account);
    if (password.isEmpty())
        QDialog::accept();
}

void CalDavConnectionDialog::onPasswordStored(bool isStored)
{
    if (!isStored) {
        Prompt::warning(
            parentWidget(), tr("Password not saved"),
            tr("The system's password store cannot be used. Calendars sync until Quillon Calendar is closed; "
               "after that you have to enter the password of \"%1\" again.")
                .arg(m_state->accounts()->getById(m_resultId).value_or(m_original).name));
    }
    QDialog::accept();
}
