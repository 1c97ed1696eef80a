// What a start puts into the database: a calendar to write to, and repairs of what older versions left.

#include "app/state/AppState.h"

#include "app/state/LocalAccount.h"
#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"

#include <QSet>

namespace {

const QString AccountsDedupedKey = QStringLiteral("sync/accountsDedupedV3");
const QString SyncEnabledKey = QStringLiteral("migrations/quillonSyncEnabledDefaultV1");
const QString AccountRenamedKey = QStringLiteral("migrations/quillonAccountRenamedV1");

Calendar personalCalendar()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Calendar calendar;
    calendar.id = LocalDefaults::PersonalCalendarId;
    calendar.accountId = LocalDefaults::LocalAccountId;
    calendar.url = LocalDefaults::PersonalCalendarUrl;
    calendar.name = QStringLiteral("Personal"); // not translated: the same calendar on every device
    calendar.isDefault = true;
    calendar.syncEnabled = true;
    calendar.createdAt = now;
    calendar.updatedAt = now;
    return calendar;
}

bool ownsCalendar(AccountRepository *accounts, CalendarRepository *calendars, QLatin1StringView accountType)
{
    QSet<QString> accountIds;
    for (const Account &account : accounts->getAll()) {
        if (account.type == accountType)
            accountIds.insert(account.id);
    }
    const QList<Calendar> all = calendars->getAll();
    return std::ranges::any_of(all, [&](const Calendar &calendar) { return accountIds.contains(calendar.accountId); });
}

}

void AppState::seedDefaultCalendarIfMissing()
{
    const bool hasAccount = m_accounts->getById(LocalDefaults::LocalAccountId).has_value();
    const bool hasCalendar = m_calendars->getById(LocalDefaults::PersonalCalendarId).has_value();
    if (hasAccount && hasCalendar)
        return;
    const QList<Calendar> deleted = m_calendars->getDeleted();
    if (std::ranges::any_of(deleted, [](const Calendar &c) { return c.id == LocalDefaults::PersonalCalendarId; })) {
        m_calendars->restore(LocalDefaults::PersonalCalendarId);
        qInfo() << "[AppState] revived tombstoned Personal calendar: the device had no calendar left to write to";
        return;
    }
    if (ownsCalendar(m_accounts, m_calendars, AccountType::Quillon))
        return;
    if (!LocalAccount::ensure(this)) {
        qWarning() << "[AppState] Failed to seed local account";
        return;
    }
    if (!hasCalendar && !m_calendars->insert(personalCalendar()))
        qWarning() << "[AppState] Failed to seed Personal calendar";
}

void AppState::runOneOffRepairs()
{
    excludeSampleDataFromSync();
    enableSyncOnLegacyQuillonCalendars();
    renameQuillonAccount();
    collapseDuplicateAccounts();
}

void AppState::excludeSampleDataFromSync()
{
    std::optional<Account> sample = m_accounts->getById(LocalDefaults::SampleAccountId);
    if (!sample || sample->excludeFromSync)
        return;
    sample->excludeFromSync = true;
    sample->updatedAt = QDateTime::currentDateTimeUtc();
    if (m_accounts->update(*sample))
        qInfo() << "[AppState] excluded Sample Data from sync";
}

void AppState::enableSyncOnLegacyQuillonCalendars()
{
    if (m_preferences->getBool(SyncEnabledKey, false))
        return;
    int changed = 0;
    for (Calendar &calendar : m_calendars->getAll()) {
        if (calendar.syncEnabled || calendar.sharedWithMe || calendar.isReadOnly)
            continue;
        const std::optional<Account> account = m_accounts->getById(calendar.accountId);
        if (!account || account->type != AccountType::Quillon || account->excludeFromSync)
            continue;
        calendar.syncEnabled = true;
        calendar.updatedAt = QDateTime::currentDateTimeUtc();
        changed += m_calendars->update(calendar) ? 1 : 0;
    }
    if (changed > 0)
        qInfo() << "[AppState] enabled Quillon sync on" << changed << "existing calendar(s)";
    m_preferences->setBool(SyncEnabledKey, true);
}

void AppState::renameQuillonAccount()
{
    if (m_preferences->getBool(AccountRenamedKey, false))
        return;
    std::optional<Account> account = m_accounts->getById(LocalDefaults::LocalAccountId);
    if (!account)
        return; // no flag: a later start may have the account
    static const QStringList oldNames{ QStringLiteral("On This Device"), QStringLiteral("On this device"),
                                       QStringLiteral("Personal") };
    if (account->type == AccountType::Quillon && oldNames.contains(account->name)) {
        const QString oldName = std::exchange(account->name, QString(LocalAccount::Name));
        if (m_accounts->update(*account))
            qInfo() << "[AppState] renamed" << oldName << "account to Quillon";
    }
    m_preferences->setBool(AccountRenamedKey, true);
}

void AppState::collapseDuplicateAccounts()
{
    if (m_preferences->getBool(AccountsDedupedKey, false))
        return;
    if (const int collapsed = m_accounts->dedupExistingByCredentials(); collapsed > 0)
        qInfo() << "[ConfigSync] Collapsed" << collapsed << "duplicate CalDAV account rows";
    m_preferences->setBool(AccountsDedupedKey, true);
}
