#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace QuillonAccount {

/// The secure store of passwords and tokens, opened for a job and dropped after it: the Secret Service,
/// or a JSON file of mode 0600 when CALENDAR_TOKEN_STORE is "file:PATH". Never the database.
///
/// Calls block. A request that the service leaves unanswered is given up after 3 s and counts as failed; a
/// call makes one or two of them. A locked keyring counts as no store, until its owner has unlocked it:
/// nothing is found in it, and set() and remove() return false.
class TokenStore {
public:
    virtual ~TokenStore() = default;

    /// The store of this application id. Null when none can be reached, which is logged once and counts
    /// as an empty store.
    static std::unique_ptr<TokenStore> create(const QString &appId);

    virtual std::optional<QString> value(const QString &key) = 0;
    virtual bool set(const QString &key, const QString &value) = 0;
    virtual bool remove(const QString &key) = 0; ///< true also if there was none
};

} // namespace QuillonAccount
