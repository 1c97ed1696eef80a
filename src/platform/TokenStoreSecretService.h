#pragma once

#include "platform/TokenStore.h"

namespace QuillonAccount {

/// Secrets in the desktop's Secret Service (GNOME Keyring, KWallet). Null if none answers in time or
/// the program was built without libsecret.
///
/// May be used on any thread, but on one only.
std::unique_ptr<TokenStore> openSecretService(const QString &appId, TokenStore::Unlock unlock);

} // namespace QuillonAccount
