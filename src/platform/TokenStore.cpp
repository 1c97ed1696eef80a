#include "platform/TokenStore.h"

#include "platform/TokenStoreFile.h"
#include "platform/TokenStoreSecretService.h"

#include <QDebug>

#include <utility>

namespace QuillonAccount {

std::unique_ptr<TokenStore> TokenStore::create(const QString &appId)
{
    const QString choice = qEnvironmentVariable("CALENDAR_TOKEN_STORE");
    const QString filePrefix = QStringLiteral("file:");
    if (choice.startsWith(filePrefix) && choice.size() > filePrefix.size())
        return std::make_unique<TokenStoreFile>(choice.mid(filePrefix.size()));

    std::unique_ptr<TokenStore> store;
    // A setting that cannot be read must not put secrets where the user did not ask for them.
    if (choice.isEmpty())
        store = openSecretService(appId);
    static bool warned = false;
    if (!store && !std::exchange(warned, true)) {
        qWarning().noquote() << "[TokenStore] no secret store can be reached; passwords and sign-ins are not kept"
                             << (choice.isEmpty() ? QString()
                                                  : QStringLiteral("(CALENDAR_TOKEN_STORE=%1)").arg(choice));
    }
    return store;
}

} // namespace QuillonAccount
