#pragma once

#include "models/Account.h"

#include <QString>

class AppState;

/// How the sync of an account is doing, in words for its owner. All texts are plain.
struct AccountHealth {
    enum class State {
        Fine,
        Local, ///< nothing to sync
        Disabled,
        // From here on its owner has something to do.
        PasswordMissing,
        PasswordRejected,
        SignInRequired,
        CertificateChanged, ///< the server shows another one than the one that is trusted
        Failing,
    };

    State state = State::Fine;
    QString summary; ///< one line
    QString detail; ///< what went wrong, a line for each error; empty if nothing did

    [[nodiscard]] bool needsOwner() const { return state >= State::PasswordMissing; }

    static AccountHealth of(AppState *state, const Account &account);
    static QString lastSync(AppState *state, const Account &account); ///< when that was, in local time
    static QString typeName(const Account &account);
};
