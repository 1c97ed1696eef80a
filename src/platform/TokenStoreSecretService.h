#pragma once

#include "platform/TokenStore.h"

namespace QuillonAccount {

/// Secrets in the desktop's Secret Service (GNOME Keyring, KWallet). Null if none answers in time or
/// the program was built without libsecret.
///
/// No call waits for a person: what is locked reads as absent, cannot be written, and brings up the
/// desktop's unlock prompt once in a run, beside the program. A write that found the store locked
/// returns false and is carried out when the prompt is answered.
std::unique_ptr<TokenStore> openSecretService(const QString &appId);

} // namespace QuillonAccount
