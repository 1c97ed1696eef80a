#include "ui/accounts/CalendarFormDialog.h"

#include "app/state/AppState.h"
#include "app/state/LocalAccount.h"
#include "caldav/CollectionJob.h"
#include "models/NewId.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/dialogs/ColorButton.h"
#include "ui/dialogs/Prompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>

CalendarFormDialog::CalendarFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Calendar"), parent)
    , m_state(state)
{
    build();
    QStringList used;
    const QList<Calendar> calendars = state->calendars()->getAll();
    for (const Calendar &calendar : calendars)
        used.append(calendar.color);
    m_color->setColor(ColorButton::unusedColor(used));
    body()->addStretch();
    addSaveButtons(tr("Create"));
}

CalendarFormDialog::CalendarFormDialog(AppState *state, const Calendar &calendar, QWidget *parent)
    : FormDialog(tr("Edit Calendar"), parent)
    , m_state(state)
    , m_original(calendar)
    , m_editing(true)
{
    build();
    showName(m_name, calendar.name);
    m_name->selectAll();
    m_color->setColor(calendar.color);
    m_shownColor = m_color->color();
    m_description->setPlainText(calendar.description);
    if (calendar.isReadOnly) {
        m_description->setReadOnly(true);
        body()->addWidget(makeHint(tr("This calendar is read-only. Its name and color change on this device only.")));
    }
    body()->addStretch();
    addSaveButtons(tr("Save"));
}

void CalendarFormDialog::build()
{
    m_name = new QLineEdit(this);
    m_name->setMaxLength(MaxNameLength);
    m_name->setPlaceholderText(tr("Calendar name"));
    QFormLayout *form = addForm();
    form->addRow(tr("&Name"), m_name);
    if (!m_editing)
        addAccounts(form);
    m_color = new ColorButton(this);
    m_description = new QPlainTextEdit(this);
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight(fontMetrics().lineSpacing() * 4 + 16);
    form->addRow(tr("&Color"), m_color);
    form->addRow(tr("&Description"), m_description);
    if (m_editing)
        addTaskSupport(form);
    m_name->setFocus();
}

void CalendarFormDialog::addAccounts(QFormLayout *form)
{
    QList<Account> servers = m_state->accounts()->getAll();
    servers.removeIf(
        [](const Account &account) { return !account.enabled || !SyncScheduler::isCalDavFamily(account); });
    if (servers.isEmpty())
        return;
    m_account = new QComboBox(this);
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_account->setMinimumContentsLength(20);
    m_account->addItem(tr("On this device"), QString(LocalDefaults::LocalAccountId));
    for (const Account &account : std::as_const(servers))
        m_account->addItem(account.name.simplified(), account.id);
    form->addRow(tr("&Account"), m_account);
}

/// Only where the server has not said whether it takes tasks.
void CalendarFormDialog::addTaskSupport(QFormLayout *form)
{
    Calendar asDiscovered = m_original;
    asDiscovered.allowTasksOverride = false;
    const auto account = m_state->accounts()->getById(m_original.accountId);
    const bool isOnServer = !m_original.isLocal() && (!account || SyncScheduler::isCalDavFamily(*account));
    if (!isOnServer || m_original.isReadOnly || asDiscovered.supportsTasks())
        return;
    m_allowTasks = new QCheckBox(tr("Allow tasks on this calendar"), this);
    m_allowTasks->setChecked(m_original.allowTasksOverride);
    form->addRow(m_allowTasks);
}

Calendar CalendarFormDialog::newLocalCalendar() const
{
    const QList<Calendar> others = m_state->calendars()->getAll();
    Calendar calendar;
    calendar.id = newId();
    calendar.accountId = LocalDefaults::LocalAccountId;
    calendar.url = LocalDefaults::CalendarUrlPrefix + calendar.id;
    calendar.supportedComponents = QStringLiteral("[\"VEVENT\",\"VTODO\"]");
    calendar.syncEnabled = true;
    calendar.isDefault = others.isEmpty();
    for (const Calendar &other : others)
        calendar.sortOrder = std::max(calendar.sortOrder, other.sortOrder);
    calendar.createdAt = QDateTime::currentDateTimeUtc();
    return calendar;
}

Calendar CalendarFormDialog::entered(const Calendar &base) const
{
    Calendar calendar = base;
    calendar.name = m_name->text().trimmed();
    if (m_color->color() != m_shownColor) // a colour that the button cannot show stays
        calendar.color = m_color->color();
    if (m_description->document()->isModified()) // else its line ends stay as the server wrote them
        calendar.description = m_description->toPlainText();
    if (m_allowTasks)
        calendar.allowTasksOverride = m_allowTasks->isChecked();
    calendar.updatedAt = QDateTime::currentDateTimeUtc();
    return calendar;
}

std::optional<Account> CalendarFormDialog::serverAccount() const
{
    const bool isHere = m_editing ? m_original.isLocal() || m_original.isReadOnly
                                  : !m_account || m_account->currentData() == QString(LocalDefaults::LocalAccountId);
    if (isHere)
        return std::nullopt;
    const auto account =
        m_state->accounts()->getById(m_editing ? m_original.accountId : m_account->currentData().toString());
    return account && SyncScheduler::isCalDavFamily(*account) ? account : std::nullopt;
}

bool CalendarFormDialog::save()
{
    if (m_name->text().trimmed().isEmpty()) {
        showProblem(tr("Enter a name for the calendar."), m_name);
        return false;
    }
    // A sync may have changed the row while the form was open; only what the form shows is replaced.
    std::optional<Calendar> stored =
        m_editing ? m_state->calendars()->getById(m_original.id) : std::optional(newLocalCalendar());
    if (!stored) {
        showProblem(tr("This calendar was deleted in the meantime."), nullptr);
        return false;
    }
    const Calendar calendar = entered(*stored);
    const auto account = serverAccount();
    if (!account || (m_editing && !CollectionJob::needsServer(*stored, calendar)))
        return storeHere(calendar);
    startJob(*account, calendar);
    return false; // the end of the job closes the form
}

bool CalendarFormDialog::storeHere(const Calendar &calendar)
{
    const bool isStored = m_editing ? m_state->calendars()->update(calendar)
                                    : LocalAccount::ensure(m_state) && m_state->calendars()->insert(calendar);
    if (!isStored) {
        showProblem(tr("The calendar could not be saved."), nullptr);
        return false;
    }
    m_resultId = calendar.id;
    return true;
}

void CalendarFormDialog::startJob(const Account &account, const Calendar &wanted)
{
    setBusy(true);
    m_state->syncScheduler()->credentials()->caldavPassword(
        account.id, Credentials::Unlock::MayAsk, this, [this, account, wanted](const QString &password) {
            if (!password.isEmpty())
                return runJob(account, password, wanted);
            setBusy(false);
            Prompt::information(this, tr("Missing password"),
                                tr("No saved password for this account. Edit the account first to re-enter your "
                                   "credentials."));
        });
}

void CalendarFormDialog::runJob(const Account &account, const QString &password, const Calendar &wanted)
{
    auto *job = new CollectionJob(m_state, account, password, this);
    const auto end = [this, job](const QString &problem, QWidget *at) {
        job->deleteLater();
        setBusy(false);
        showProblem(problem, at);
    };
    connect(job, &CollectionJob::progressed, this, &CalendarFormDialog::showStatus);
    connect(job, &CollectionJob::succeeded, this, [this](const QString &calendarId) {
        m_resultId = calendarId;
        QDialog::accept();
    });
    connect(job, &CollectionJob::failed, this, [end](const QString &message) { end(message, nullptr); });
    connect(job, &CollectionJob::tasksRefused, this, [this, end](const QString &message) {
        m_allowTasks->setChecked(false);
        end(message, m_allowTasks);
    });
    if (m_editing)
        job->edit(wanted);
    else
        job->create(wanted);
}
