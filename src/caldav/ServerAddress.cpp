#include "caldav/ServerAddress.h"

#include <QUrl>

ServerAddress ServerAddress::read(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return {};
    // Not by QUrl: it takes "localhost:5232" and "alice:pw@example.com" for a scheme and a path.
    const bool hasScheme = text.contains(QLatin1StringView("://"));
    const QString whole = hasScheme ? text : QStringLiteral("https://") + text;
    const QUrl url(whole);
    if (!url.isValid() || url.host().isEmpty())
        return { .url = text, .username = {}, .password = {} };
    return { .url = url.userInfo().isEmpty() ? whole : url.toString(QUrl::RemoveUserInfo),
             .username = url.userName(QUrl::FullyDecoded),
             .password = url.password(QUrl::FullyDecoded) };
}
