#include "storage/AccountRepository.h"

#include "storage/CalendarRemovals.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/Reorder.h"
#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

#include <QSet>
#include <QUrl>

#include <algorithm>
#include <iterator>

namespace {

QString withoutTrailingSlashes(QString text)
{
    while (text.endsWith(u'/'))
        text.chop(1);
    return text;
}

bool isCalDav(const Account &account)
{
    return account.type == AccountType::CalDAV || account.type == AccountType::ICloud
        || account.type == AccountType::Zoho;
}

ServerIdentity serverOf(const Account &account)
{
    return { account.serverUrl, account.calendarHomeSet, account.principalUrl };
}

}

AccountRepository::AccountRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<Account> AccountRepository::getAll()
{
    return Tables::accounts().list(m_database, QStringLiteral(" WHERE deleted_at IS NULL ORDER BY sort_order, name"));
}

QList<Account> AccountRepository::getAllIncludingDeleted()
{
    return Tables::accounts().list(m_database, QStringLiteral(" ORDER BY sort_order, name"));
}

std::optional<Account> AccountRepository::getById(const QString &id)
{
    return Tables::accounts().first(m_database, QStringLiteral(" WHERE id = ? AND deleted_at IS NULL"), { id });
}

std::optional<Account> AccountRepository::findByCanonicalIdentity(const QString &type, const QString &username,
                                                                  const QString &serverUrl,
                                                                  const QString &calendarHomeSet,
                                                                  const QString &principalUrl)
{
    if (username.isEmpty())
        return std::nullopt;
    const ServerIdentity wanted{ serverUrl, calendarHomeSet, principalUrl };
    const QList<Account> candidates = Tables::accounts().list(
        m_database, QStringLiteral(" WHERE type = ? AND username = ? AND deleted_at IS NULL"), { type, username });
    for (const Account &account : candidates) {
        if (isSameServer(wanted, serverOf(account)))
            return account;
    }
    return std::nullopt;
}

bool AccountRepository::insert(const Account &account)
{
    if (!Tables::accounts().insert(m_database, account, "AccountRepository::insert failed:"))
        return false;
    m_database->dataWritten();
    emit accountsChanged();
    return true;
}

bool AccountRepository::update(const Account &account)
{
    if (!Tables::accounts().update(m_database, account, "AccountRepository::update failed:"))
        return false;
    m_database->dataWritten();
    emit accountsChanged();
    return true;
}

bool AccountRepository::remove(const QString &id)
{
    const QVariant now = StoredTime::now();
    Savepoint savepoint(m_database);
    if (!savepoint.isActive()
        || !runStatement(m_database, "AccountRepository::remove failed:",
                         QStringLiteral("UPDATE accounts SET deleted_at = ?, updated_at = ? WHERE id = ?"),
                         { now, now, id })
        || !cascadeDeleteCalendars(id) || !savepoint.commit())
        return false;
    emit accountsChanged();
    return true;
}

int AccountRepository::finishInterruptedRemovals()
{
    QStringList ids;
    {
        Statement rows(m_database,
                       QStringLiteral("SELECT id FROM accounts WHERE deleted_at IS NOT NULL"
                                      " AND id IN (SELECT account_id FROM calendars)"));
        if (!rows.run("AccountRepository::finishInterruptedRemovals failed:"))
            return 0;
        while (rows.next())
            ids.append(rows.value(0).toString());
    }
    int finished = 0;
    for (const QString &id : std::as_const(ids)) {
        Savepoint savepoint(m_database);
        if (savepoint.isActive() && cascadeDeleteCalendars(id) && savepoint.commit())
            ++finished;
    }
    return finished;
}

bool AccountRepository::cascadeDeleteCalendars(const QString &accountId)
{
    QStringList calendarIds;
    const QList<Calendar> all =
        Tables::calendars().list(m_database, QStringLiteral(" WHERE account_id = ?"), { accountId });
    std::ranges::transform(all, std::back_inserter(calendarIds), &Calendar::id);
    CalendarRemovals *removals = m_database->removals();
    if (removals->areLarge(calendarIds))
        return std::ranges::all_of(calendarIds, [removals](const QString &id) { return removals->mark(id); });

    const QString calendars = QStringLiteral("SELECT id FROM calendars WHERE account_id = ?");
    const QString events = QStringLiteral("SELECT id FROM events WHERE calendar_id IN (%1)").arg(calendars);
    const QString tasks = QStringLiteral("SELECT id FROM tasks WHERE calendar_id IN (%1)").arg(calendars);
    const QString queue = QStringLiteral("DELETE FROM sync_queue WHERE calendar_id IN (%1)").arg(calendars);
    const QStringList statements{
        QStringLiteral("DELETE FROM attendees WHERE event_id IN (%1)").arg(events),
        QStringLiteral("DELETE FROM attachments WHERE event_id IN (%1)").arg(events),
        QStringLiteral("DELETE FROM reminders WHERE event_id IN (%1)").arg(events),
        QStringLiteral("DELETE FROM task_reminders WHERE task_id IN (%1)").arg(tasks),
        queue,
        QStringLiteral("DELETE FROM events WHERE calendar_id IN (%1)").arg(calendars),
        QStringLiteral("DELETE FROM tasks WHERE calendar_id IN (%1)").arg(calendars),
        QStringLiteral("DELETE FROM calendars WHERE account_id = ?"),
    };
    bool allDone = true;
    for (const QString &sql : statements) {
        Statement statement(m_database, sql);
        if (statement.bind(accountId).run())
            continue;
        qWarning().noquote() << "AccountRepository::cascadeDeleteCalendars failed:" << statement.errorText() << "\n"
                             << sql;
        // The queue is gone since version 15 of the schema; its place in the order of the list remains.
        allDone = allDone && sql == queue;
    }
    for (const QString &id : std::as_const(calendarIds))
        m_database->eventsPurged(id);
    return allDone;
}

bool AccountRepository::reapTombstone(const QString &id)
{
    if (!runStatement(m_database, "AccountRepository::reapTombstone failed:",
                      QStringLiteral("DELETE FROM accounts WHERE id = ? AND deleted_at IS NOT NULL"), { id }))
        return false;
    m_database->dataWritten();
    return true;
}

bool AccountRepository::reorder(const QStringList &ids)
{
    if (!storeOrder(m_database, "AccountRepository::reorder failed:",
                    QStringLiteral("UPDATE accounts SET sort_order = ?, updated_at = ? WHERE id = ?"), ids))
        return false;
    m_database->dataWritten();
    emit accountsChanged();
    return true;
}

int AccountRepository::dedupExistingByCredentials()
{
    QList<Account> accounts = getAllIncludingDeleted();
    accounts.removeIf([](const Account &a) { return a.deletedAt || !isCalDav(a) || a.username.isEmpty(); });
    std::ranges::stable_sort(accounts, {}, &Account::createdAt);

    QList<Account> winners;
    int collapsed = 0;
    for (const Account &account : std::as_const(accounts)) {
        const auto winner = std::ranges::find_if(winners, [&account](const Account &other) {
            return other.type == account.type && other.username == account.username
                && isSameServer(serverOf(account), serverOf(other));
        });
        if (winner == winners.end()) {
            winners.append(account);
            continue;
        }
        Savepoint savepoint(m_database);
        if (savepoint.isActive() && mergeCalendarsInto(account.id, winner->id) && remove(account.id)
            && savepoint.commit())
            ++collapsed;
    }
    return collapsed;
}

bool AccountRepository::mergeCalendarsInto(const QString &fromAccountId, const QString &toAccountId)
{
    const QString live = QStringLiteral(" WHERE account_id = ? AND deleted_at IS NULL");
    const QList<Calendar> kept = Tables::calendars().list(m_database, live, { toAccountId });
    const QList<Calendar> moved = Tables::calendars().list(m_database, live, { fromAccountId });
    QSet<QString> urls;
    std::ranges::transform(kept, std::inserter(urls, urls.end()), &Calendar::url);

    Savepoint savepoint(m_database);
    if (!savepoint.isActive())
        return false;
    for (const Calendar &calendar : moved) {
        if (!calendar.url.isEmpty() && urls.contains(calendar.url)) {
            if (!deleteCalendarDeep(calendar.id))
                return false;
            continue;
        }
        if (!runStatement(m_database, "AccountRepository::mergeCalendarsInto failed:",
                          QStringLiteral("UPDATE calendars SET account_id = ? WHERE id = ?"),
                          { toAccountId, calendar.id }))
            return false;
        urls.insert(calendar.url);
    }
    m_database->dataWritten();
    return savepoint.commit();
}

bool AccountRepository::deleteCalendarDeep(const QString &calendarId)
{
    return m_database->removals()->remove(calendarId);
}

bool AccountRepository::isSameServer(const ServerIdentity &a, const ServerIdentity &b)
{
    const auto agree = [](const QString &first, const QString &second) { return !first.isEmpty() && first == second; };
    const auto host = [](const QString &url) { return QUrl(url.trimmed()).host().toLower(); };
    return agree(normalizedUrl(a.homeSet), normalizedUrl(b.homeSet))
        || agree(normalizedUrl(a.principalUrl), normalizedUrl(b.principalUrl))
        || agree(normalizedUrl(a.serverUrl), normalizedUrl(b.serverUrl)) || agree(host(a.serverUrl), host(b.serverUrl));
}

QString AccountRepository::normalizedUrl(const QString &url)
{
    constexpr int httpPort = 80;
    constexpr int httpsPort = 443;
    const QString trimmed = url.trimmed();
    const QUrl parsed(trimmed);
    if (!parsed.isValid() || parsed.host().isEmpty())
        return withoutTrailingSlashes(trimmed);
    const QString scheme = parsed.scheme().toLower();
    const int port = parsed.port();
    const bool isDefaultPort = (port == httpsPort && scheme == QLatin1StringView("https"))
        || (port == httpPort && scheme == QLatin1StringView("http"));
    QString result = scheme + QStringLiteral("://") + parsed.host().toLower();
    if (port != -1 && !isDefaultPort)
        result += QStringLiteral(":%1").arg(port);
    return result + withoutTrailingSlashes(parsed.path());
}
