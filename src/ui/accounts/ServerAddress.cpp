#include "ui/accounts/ServerAddress.h"

#include <QUrl>

ServerAddress ServerAddress::read(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return {};
    // Not by QUrl: it takes "localhost:5232" and "alice:pw@example.com" for a scheme and a path.
    const bool hasScheme = text.contains(QLatin1StringView("://"));
    QUrl url(hasScheme ? text : QStringLiteral("https://") + text);
    if (!url.isValid() || url.host().isEmpty())
        return { .url = text, .username = {}, .password = {} };
    ServerAddress address;
    address.username = url.userName(QUrl::FullyDecoded);
    address.password = url.password(QUrl::FullyDecoded);
    url.setUserInfo(QString());
    address.url = url.toString();
    return address;
}
