#pragma once

#include "models/Account.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class Database;

/// What tells one server from another. Each part may be empty.
struct ServerIdentity {
    QString serverUrl;
    QString homeSet;
    QString principalUrl;
};

/// Table `accounts`. Writes return false and log on a database error; reads then give nothing.
class AccountRepository : public QObject {
    Q_OBJECT

public:
    explicit AccountRepository(Database *database, QObject *parent = nullptr);

    QList<Account> getAll(); ///< live, in the user's order, then by name
    QList<Account> getAllIncludingDeleted();
    std::optional<Account> getById(const QString &id); ///< live only

    /// The live account with this type and user name on the same server; none for an empty user name.
    std::optional<Account> findByCanonicalIdentity(const QString &type, const QString &username,
                                                   const QString &serverUrl, const QString &calendarHomeSet,
                                                   const QString &principalUrl);

    bool insert(const Account &account);
    bool update(const Account &account);

    /// Tombstones the account and hard-deletes all its calendars with everything in them; see
    /// CalendarRemovals.
    bool remove(const QString &id);
    /// Finishes the removals that were cut off between tombstone and cascade, or has CalendarRemovals do so.
    /// Returns how many.
    int finishInterruptedRemovals();
    /// Hard-deletes a tombstone; a live account stays.
    bool reapTombstone(const QString &id);
    bool reorder(const QStringList &ids);

    /// Collapses CalDAV accounts that are the same login on the same server; the oldest one stays.
    /// Returns the number of accounts that went.
    int dedupExistingByCredentials();
    /// Moves calendars over, except those whose URL \p toAccountId has already: these go with their events.
    bool mergeCalendarsInto(const QString &fromAccountId, const QString &toAccountId);
    bool deleteCalendarDeep(const QString &calendarId);

    /// True if home sets, principals, server URLs or at least the hosts agree.
    static bool isSameServer(const ServerIdentity &a, const ServerIdentity &b);
    /// Lower-case scheme and host, no default port, no trailing slash.
    static QString normalizedUrl(const QString &url);

signals:
    void accountsChanged();

private:
    bool cascadeDeleteCalendars(const QString &accountId);

    Database *m_database;
};
