#include "ui/accounts/AccountDetails.h"

#include "app/state/AppState.h"
#include "models/Calendar.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/accounts/AccountHealth.h"
#include "ui/dialogs/ColorButton.h"
#include "ui/dialogs/FormDialog.h"
#include "ui/dialogs/InlineMessage.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr std::array IntervalsMinutes{ 0, 5, 15, 30, 60, 120 };

QLabel *makeLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString intervalText(int minutes)
{
    if (minutes <= 0)
        return AccountDetails::tr("Manually");
    if (minutes % 60 == 0)
        return AccountDetails::tr("Every %n hour(s)", nullptr, minutes / 60);
    return AccountDetails::tr("Every %n minute(s)", nullptr, minutes);
}

}

AccountDetails::AccountDetails(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_title(makeLabel())
    , m_type(makeLabel())
    , m_message(new InlineMessage(InlineMessage::Kind::Warning))
    , m_fix(new QPushButton)
    , m_form(new QFormLayout)
{
    m_title->setFont(Theme::headingFont(m_title->font()));
    m_type->setProperty("muted", true);
    m_fix->setAutoDefault(false);
    connect(m_fix, &QPushButton::clicked, this, &AccountDetails::onFixClicked);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(m_type);
    column->addWidget(m_message);
    column->addWidget(m_fix, 0, Qt::AlignLeft);
    FormDialog::styleForm(m_form);
    column->addLayout(m_form);
    buildForm();
    column->addStretch();
    buildButtons();
}

void AccountDetails::buildForm()
{
    m_server = makeLabel();
    m_username = makeLabel();
    m_calendars = makeLabel();
    m_lastSync = makeLabel();
    m_interval = new QComboBox;
    m_interval->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_color = new ColorButton;
    m_enabled = new QCheckBox(tr("S&ync this account"));
    m_excluded = new QCheckBox(tr("E&xclude from cloud sync"));
    FormDialog::addTextRow(m_form, tr("Server"), m_server);
    FormDialog::addTextRow(m_form, tr("Username"), m_username);
    FormDialog::addTextRow(m_form, tr("Calendars"), m_calendars);
    FormDialog::addTextRow(m_form, tr("Last sync"), m_lastSync);
    m_form->addRow(m_enabled);
    m_form->addRow(tr("Sync &interval"), m_interval);
    m_form->addRow(tr("C&olor"), m_color);
    m_form->addRow(m_excluded);

    connect(m_enabled, &QCheckBox::clicked, this, [this](bool checked) { onEnabledClicked(checked); });
    connect(m_excluded, &QCheckBox::clicked, this,
            [this](bool checked) { change([checked](Account &account) { account.excludeFromSync = checked; }); });
    connect(m_color, &ColorButton::colorChanged, this,
            [this](const QString &color) { change([color](Account &account) { account.color = color; }); });
    connect(m_interval, &QComboBox::activated, this, [this] {
        const int minutes = m_interval->currentData().toInt();
        change([minutes](Account &account) { account.syncIntervalMinutes = minutes; });
    });
}

void AccountDetails::buildButtons()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    const auto add = [this, row](const QString &text, void (AccountDetails::*requested)()) {
        auto *button = new QPushButton(text);
        button->setAutoDefault(false);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, requested);
        return button;
    };
    m_edit = add(tr("&Edit…"), &AccountDetails::editRequested);
    m_refresh = add(tr("&Refresh"), &AccountDetails::refreshRequested);
    m_remove = add(tr("Remo&ve…"), &AccountDetails::removeRequested);
    row->addStretch();
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void AccountDetails::showAccount(const QString &accountId)
{
    m_accountId = accountId;
    const auto account = m_state->accounts()->getById(accountId);
    setVisible(account.has_value());
    if (!account)
        return;
    m_title->setText(PlainText::breakLongWords(account->name.simplified()));
    m_type->setText(AccountHealth::typeName(*account));
    showHealth(AccountHealth::of(m_state, *account));
    showSettings(*account);
}

void AccountDetails::showHealth(const AccountHealth &health)
{
    using State = AccountHealth::State;
    const bool isProblem = health.state == State::Failing || health.state == State::PasswordRejected;
    m_message->showText(isProblem ? InlineMessage::Kind::Problem : InlineMessage::Kind::Warning,
                        PlainText::breakLongWords(health.detail));
    m_needsPassword = health.state == State::PasswordMissing || health.state == State::PasswordRejected;
    m_fix->setText(m_needsPassword ? tr("Enter &Password…") : tr("Review &Certificate…"));
    m_fix->setVisible(m_needsPassword || health.state == State::CertificateChanged);
}

void AccountDetails::showSettings(const Account &account)
{
    const bool isCalDav = SyncScheduler::isCalDavFamily(account);
    const bool isLocal = account.type == AccountType::Quillon;
    const auto setRow = [this](QWidget *field, bool visible) {
        field->setVisible(visible);
        if (QWidget *label = m_form->labelForField(field))
            label->setVisible(visible);
    };
    QStringList names;
    const QList<Calendar> calendars = m_state->calendars()->getByAccount(account.id);
    for (const Calendar &calendar : calendars)
        names.append(calendar.name.simplified());
    m_server->setText(PlainText::breakLongWords(account.serverUrl));
    m_username->setText(PlainText::breakLongWords(account.username));
    m_calendars->setText(names.isEmpty() ? tr("None")
                                         : PlainText::breakLongWords(QLocale().createSeparatedList(names)));
    m_lastSync->setText(AccountHealth::lastSync(m_state, account));
    m_enabled->setChecked(account.enabled);
    m_excluded->setChecked(account.excludeFromSync);
    m_color->setColor(account.color);
    showInterval(account.syncIntervalMinutes);

    setRow(m_server, !account.serverUrl.isEmpty());
    setRow(m_username, !account.username.isEmpty());
    for (QWidget *field :
         { static_cast<QWidget *>(m_lastSync), static_cast<QWidget *>(m_enabled), static_cast<QWidget *>(m_interval),
           static_cast<QWidget *>(m_color), static_cast<QWidget *>(m_excluded) })
        setRow(field, !isLocal);
    m_interval->setEnabled(account.enabled);
    m_edit->setVisible(isCalDav);
    m_refresh->setVisible(isCalDav);
    m_refresh->setEnabled(account.enabled);
    m_remove->setVisible(!isLocal);
}

/// With an entry of its own for an interval that another device has set.
void AccountDetails::showInterval(int minutes)
{
    QList<int> choices(IntervalsMinutes.begin(), IntervalsMinutes.end());
    if (!choices.contains(minutes))
        choices.append(minutes);
    if (m_interval->currentData() == minutes && m_interval->count() == choices.size())
        return; // its list may be open
    m_interval->clear();
    for (const int choice : std::as_const(choices))
        m_interval->addItem(intervalText(choice), choice);
    m_interval->setCurrentIndex(m_interval->findData(minutes));
}

void AccountDetails::setRefreshing(bool refreshing)
{
    m_refresh->setText(refreshing ? tr("Cancel") : tr("&Refresh"));
}

void AccountDetails::onEnabledClicked(bool enabled)
{
    change([enabled](Account &account) { account.enabled = enabled; });
    const auto account = m_state->accounts()->getById(m_accountId);
    if (enabled && account && SyncScheduler::isCalDavFamily(*account))
        m_state->syncScheduler()->runSyncForAccount(*account); // what was changed meanwhile waits here and there
}

void AccountDetails::onFixClicked()
{
    if (m_needsPassword)
        emit passwordRequested();
    else
        emit refreshRequested();
}

void AccountDetails::change(const std::function<void(Account &)> &apply)
{
    auto account = m_state->accounts()->getById(m_accountId);
    if (!account)
        return;
    apply(*account);
    account->updatedAt = QDateTime::currentDateTimeUtc();
    m_state->accounts()->update(*account);
}
