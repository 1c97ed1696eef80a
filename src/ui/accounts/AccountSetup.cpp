#include "ui/accounts/AccountSetup.h"

#include "app/state/AppState.h"
#include "caldav/CalDavRediscover.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Savepoint.h"

#include <QCoreApplication>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(AccountSetup)
};

using Discovered = CalDavParse::DiscoveredCalendar;

bool storeAccount(AppState *state, const Account &account)
{
    AccountRepository *accounts = state->accounts();
    return accounts->getById(account.id) ? accounts->update(account) : accounts->insert(account);
}

bool insertPicked(AppState *state, const Account &account, const QList<Discovered> &picked,
                  const QStringList &listedUrls)
{
    int sortOrder = 0;
    const QList<Calendar> siblings = state->calendars()->getByAccount(account.id);
    for (const Calendar &sibling : siblings)
        sortOrder = std::max(sortOrder, sibling.sortOrder + 1);
    bool isFirst = state->calendars()->getAll().isEmpty();
    for (const Discovered &discovered : picked) {
        if (CalDavRediscover::knownCalendar(state, account.id, discovered.url, listedUrls))
            continue;
        Calendar calendar = CalDavRediscover::newCalendar(account, discovered);
        calendar.ctag = discovered.ctag;
        calendar.syncToken = discovered.syncToken;
        calendar.sortOrder = sortOrder++;
        calendar.isDefault = std::exchange(isFirst, false);
        if (!state->calendars()->insert(calendar))
            return false;
    }
    return true;
}

}

QString AccountSetup::defaultName(const QString &serverUrl)
{
    return Text::tr("CalDAV (%1)").arg(QUrl(serverUrl).host());
}

bool AccountSetup::store(AppState *state, const Account &account, const QList<Discovered> &picked,
                         const QStringList &leftUrls)
{
    QStringList pickedUrls;
    for (const Discovered &discovered : picked)
        pickedUrls.append(discovered.url);
    Savepoint savepoint(state->database());
    if (!savepoint.isActive() || !storeAccount(state, account)
        || !insertPicked(state, account, picked, pickedUrls + leftUrls))
        return false;
    CalDavRediscover::accept(state, account.id, pickedUrls);
    CalDavRediscover::decline(state, account.id, leftUrls);
    CalDavRediscover::upsertDiscoveredCalendars(state, account.id, picked);
    return savepoint.commit();
}
