#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace QuillonAccount {

/// The secure store of passwords and tokens, opened for a job and dropped after it: the Secret Service,
/// or a JSON file of mode 0600 when CALENDAR_TOKEN_STORE is "file:PATH". Never the database.
///
/// Calls block. A request that the service leaves unanswered is given up after 3 s and counts as failed; a
/// call makes one or two of them. A keyring that stays locked counts as no store: nothing is found in it, and
/// set() and remove() return false.
class TokenStore {
public:
    /// What to do about a locked keyring.
    enum class Unlock {
        Never, ///< it counts as no store
        Wait, ///< ask its owner, for two minutes at most: only off the main thread
    };

    virtual ~TokenStore() = default;

    /// The store of this application id. Null when none can be reached, which is logged once and counts
    /// as an empty store.
    static std::unique_ptr<TokenStore> create(const QString &appId, Unlock unlock = Unlock::Never);

    virtual std::optional<QString> value(const QString &key) = 0;
    virtual bool set(const QString &key, const QString &value) = 0;
    virtual bool remove(const QString &key) = 0; ///< true also if there was none
};

} // namespace QuillonAccount
