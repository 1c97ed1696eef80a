#include "caldav/CalDavRediscover.h"

#include "app/state/AppState.h"
#include "calendar/CalendarKey.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "models/NewId.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QUrl>

namespace {

QString jsonList(const QList<QString> &texts)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

// A row may come from another program: "%20" and " " are the same.
QString spelled(const QString &url)
{
    return QUrl(url).toString();
}

QString keyOf(const QString &url)
{
    return Quillon::CalendarKey::compute(AccountType::CalDAV, url).value_or(QString());
}

// Made before the credentials were on this device: nothing but a name.
bool isPlaceholder(const Calendar &calendar)
{
    return !calendar.syncEnabled && calendar.isReadOnly && !calendar.canonicalKey.isEmpty();
}

void fillPlaceholder(Calendar &calendar, const CalDavParse::DiscoveredCalendar &discovered)
{
    calendar.name = discovered.displayName;
    calendar.description = discovered.description;
    if (!discovered.color.isEmpty())
        calendar.color = discovered.color;
    calendar.supportedComponents = jsonList(discovered.components);
    calendar.isReadOnly = false;
    calendar.syncEnabled = true;
}

QString declinedKey(const QString &accountId)
{
    return QStringLiteral("caldav/declined/") + accountId;
}

class DeclinedAddresses {
public:
    DeclinedAddresses(AppState *state, const QString &accountId)
        : m_preferences(state->preferences())
        , m_settingsKey(declinedKey(accountId))
    {
        const QString text = m_preferences->get(m_settingsKey, QString());
        const QJsonArray keys = QJsonDocument::fromJson(text.toUtf8()).array();
        for (const QJsonValue &key : keys)
            m_keys.insert(key.toString());
    }

    [[nodiscard]] bool contains(const QString &url) const { return m_keys.contains(keyOf(spelled(url))); }
    void insert(const QString &url) { m_keys.insert(keyOf(spelled(url))); }
    void remove(const QString &url) { m_keys.remove(keyOf(spelled(url))); }

    void store() const
    {
        QStringList keys(m_keys.cbegin(), m_keys.cend());
        keys.sort();
        if (keys.isEmpty())
            m_preferences->remove(m_settingsKey);
        else
            m_preferences->set(m_settingsKey, jsonList(keys));
    }

private:
    PreferencesRepository *m_preferences;
    QString m_settingsKey;
    QSet<QString> m_keys;
};

// The account's calendars by address and by key.
class KnownCalendars {
public:
    KnownCalendars(AppState *state, const QString &accountId)
    {
        for (const Calendar &calendar : state->calendars()->getByAccount(accountId))
            add(calendar);
    }

    [[nodiscard]] const Calendar *find(const QString &url, const QSet<QString> &listed) const
    {
        if (const auto found = m_byUrl.constFind(spelled(url)); found != m_byUrl.cend())
            return &*found;
        const auto found = m_byKey.constFind(keyOf(url));
        return found != m_byKey.cend() && !listed.contains(spelled(found->url)) ? &*found : nullptr;
    }

    void add(const Calendar &calendar)
    {
        m_byUrl.insert(spelled(calendar.url), calendar);
        m_byKey.insert(calendar.canonicalKey.isEmpty() ? keyOf(calendar.url) : calendar.canonicalKey, calendar);
    }

private:
    QHash<QString, Calendar> m_byUrl;
    QHash<QString, Calendar> m_byKey;
};

Calendar updateKnown(AppState *state, Calendar calendar, const CalDavParse::DiscoveredCalendar &discovered)
{
    const Calendar before = calendar;
    if (isPlaceholder(calendar))
        fillPlaceholder(calendar, discovered);
    calendar.url = discovered.url;
    if (calendar == before)
        return before;
    calendar.updatedAt = QDateTime::currentDateTimeUtc();
    return state->calendars()->update(calendar) ? calendar : before;
}

}

Calendar CalDavRediscover::newCalendar(const Account &account, const CalDavParse::DiscoveredCalendar &discovered)
{
    Calendar calendar;
    calendar.id = newId();
    calendar.accountId = account.id;
    calendar.url = discovered.url;
    calendar.name = discovered.displayName;
    calendar.description = discovered.description;
    if (!discovered.color.isEmpty())
        calendar.color = discovered.color;
    calendar.supportedComponents = jsonList(discovered.components);
    calendar.syncEnabled = true;
    calendar.canonicalKey = Quillon::CalendarKey::compute(account.type, discovered.url).value_or(QString());
    calendar.createdAt = QDateTime::currentDateTimeUtc();
    calendar.updatedAt = calendar.createdAt;
    return calendar;
}

std::optional<Calendar> CalDavRediscover::knownCalendar(AppState *state, const QString &accountId, const QString &url,
                                                        const QStringList &listedUrls)
{
    QSet<QString> listed;
    for (const QString &listedUrl : listedUrls)
        listed.insert(spelled(listedUrl));
    const KnownCalendars known(state, accountId);
    const Calendar *calendar = known.find(url, listed);
    return calendar ? std::optional(*calendar) : std::nullopt;
}

int CalDavRediscover::upsertDiscoveredCalendars(AppState *state, const QString &accountId,
                                                const QList<CalDavParse::DiscoveredCalendar> &discovered)
{
    if (!state || accountId.isEmpty())
        return 0;
    // Removed while the discovery was on its way: its calendars must not come back.
    const std::optional<Account> account = state->accounts()->getById(accountId);
    if (!account)
        return 0;

    KnownCalendars known(state, accountId);
    QSet<QString> listed;
    for (const CalDavParse::DiscoveredCalendar &found : discovered)
        listed.insert(spelled(found.url));
    DeclinedAddresses declined(state, accountId);
    for (const Calendar &removed : state->calendars()->getDeleted()) {
        if (removed.accountId == accountId)
            declined.insert(removed.url);
    }
    int inserted = 0;
    for (const CalDavParse::DiscoveredCalendar &found : discovered) {
        if (const Calendar *calendar = known.find(found.url, listed)) {
            known.add(updateKnown(state, *calendar, found));
            continue;
        }
        if (declined.contains(found.url))
            continue;
        Calendar calendar = newCalendar(*account, found);
        calendar.isDefault = state->calendars()->getAll().isEmpty();
        if (!state->calendars()->insert(calendar))
            continue;
        known.add(calendar);
        ++inserted;
    }
    return inserted;
}

void CalDavRediscover::decline(AppState *state, const QString &accountId, const QStringList &urls)
{
    DeclinedAddresses declined(state, accountId);
    for (const QString &url : urls)
        declined.insert(url);
    declined.store();
}

void CalDavRediscover::accept(AppState *state, const QString &accountId, const QStringList &urls)
{
    DeclinedAddresses declined(state, accountId);
    for (const QString &url : urls)
        declined.remove(url);
    declined.store();
}

void CalDavRediscover::forgetAccount(AppState *state, const QString &accountId)
{
    state->preferences()->remove(declinedKey(accountId));
}

bool CalDavRediscover::isDeclined(AppState *state, const QString &accountId, const QString &url)
{
    return DeclinedAddresses(state, accountId).contains(url);
}
