#include "platform/TokenStore.h"

#include "platform/TokenStoreFile.h"
#include "platform/TokenStoreSecretService.h"

#include <QDebug>

#include <atomic>

namespace QuillonAccount {

std::unique_ptr<TokenStore> TokenStore::create(const QString &appId, Unlock unlock)
{
    const QString choice = qEnvironmentVariable("CALENDAR_TOKEN_STORE");
    const QString filePrefix = QStringLiteral("file:");
    if (choice.startsWith(filePrefix) && choice.size() > filePrefix.size())
        return std::make_unique<TokenStoreFile>(choice.mid(filePrefix.size()));

    std::unique_ptr<TokenStore> store;
    // A setting that cannot be read must not put secrets where the user did not ask for them.
    if (choice.isEmpty())
        store = openSecretService(appId, unlock);
    static std::atomic_bool warned = false;
    if (!store && !warned.exchange(true)) {
        qWarning().noquote() << "[TokenStore] no secret store can be reached; passwords and sign-ins are not kept"
                             << (choice.isEmpty() ? QString()
                                                  : QStringLiteral("(CALENDAR_TOKEN_STORE=%1)").arg(choice));
    }
    return store;
}

} // namespace QuillonAccount
