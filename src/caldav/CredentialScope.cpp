#include "caldav/CredentialScope.h"

#include <QHostAddress>
#include <QNetworkCookie>
#include <QNetworkCookieJar>

namespace CredentialScope {

namespace {

// The longest domain that both hosts are in: "example.com" for "www.example.com" and "dav.example.com".
QString commonDomain(const QString &host, const QString &other)
{
    for (QString domain = host; !domain.isEmpty(); domain = domain.section(u'.', 1)) {
        if (other == domain || other.endsWith(u'.' + domain))
            return domain;
    }
    return {};
}

bool isAddress(const QUrl &url)
{
    return !QHostAddress(url.host()).isNull();
}

// Qt's list of public suffixes is behind its cookie jar, which takes no cookie for the whole of one.
bool isRegistered(const QString &domain, const QUrl &url)
{
    QNetworkCookie probe("probe", "probe");
    probe.setDomain(u'.' + domain);
    return domain.contains(u'.') && QNetworkCookieJar().setCookiesFromUrl({ probe }, url);
}

}

bool covers(const QUrl &origin, const QUrl &target)
{
    if (origin.scheme() == QLatin1StringView("https") && target.scheme() != QLatin1StringView("https"))
        return false;
    if (origin.host() == target.host())
        return true;
    return !isAddress(origin) && !isAddress(target) && isRegistered(commonDomain(origin.host(), target.host()), origin);
}

} // namespace CredentialScope
