#pragma once

#include "models/Constants.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// One row of `accounts`. Secrets are never part of it: they live in the token store.
struct Account {
    QString id;
    QString name;
    QString type; ///< one of AccountType
    QString serverUrl; ///< CalDAV base URL; empty for other types
    QString username; ///< login or e-mail address
    QString calendarHomeSet; ///< discovered, RFC 4791 §6.2.1
    QString principalUrl; ///< discovered, RFC 5397
    int syncIntervalMinutes = 15;
    std::optional<QDateTime> lastSyncTime; ///< UTC; stamped before the work starts
    QString lastSyncError; ///< empty means healthy
    bool enabled = true;
    QString color = DefaultColor;
    bool excludeFromSync = false; ///< keeps the account out of cloud sync
    QString trustedCertSha256; ///< pinned certificate fingerprint
    QString pendingCertSha256; ///< fingerprint waiting for the user's decision
    QDateTime createdAt; ///< UTC
    QDateTime updatedAt; ///< UTC
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone

    bool operator==(const Account &) const = default;
};
