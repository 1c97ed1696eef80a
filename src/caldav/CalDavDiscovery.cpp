#include "caldav/CalDavDiscovery.h"

#include "caldav/CalDavClient.h"
#include "caldav/CalDavXml.h"
#include "caldav/SilenceGuard.h"

#include <QDebug>

namespace {

QUrl withScheme(const QUrl &input)
{
    const bool isBare = input.scheme().isEmpty() && !input.toString().isEmpty();
    if (isBare)
        return QUrl(QStringLiteral("https://") + input.toString());
    // "calendar.example.com:8443" reads as a scheme with a path of digits.
    const bool isHostWithPort = input.host().isEmpty() && input.scheme().contains(u'.');
    return isHostWithPort ? QUrl(QStringLiteral("https://") + input.toString()) : input;
}

}

CalDavDiscovery::CalDavDiscovery(CalDavClient *client, QObject *parent)
    : QObject(parent)
    , m_client(client)
    , m_guard(new SilenceGuard(client, this))
{
}

void CalDavDiscovery::start(const QUrl &input)
{
    m_guard->stop();
    m_candidates.clear();
    m_candidateIndex = 0;
    m_fallbackHomeUrl.reset();
    m_wasUnauthorized = false;
    m_principal.clear();
    m_homeSet.clear();

    QUrl url = withScheme(input);
    url.setUserInfo(QString()); // the client has the credentials, and addresses are stored
    const bool isHttp = url.scheme() == u"http" || url.scheme() == u"https";
    if (!url.isValid() || !isHttp || url.host(QUrl::FullyDecoded).isEmpty()) {
        // Not before start() has returned, nor when it has begun anew by then.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_candidates.isEmpty())
                    emitFail(tr("Enter a CalDAV URL starting with http:// or https://"));
            },
            Qt::QueuedConnection);
        return;
    }
    m_baseUrl = url;
    m_baseUrl.setPath(QString());
    m_baseUrl.setQuery(QString());
    m_baseUrl.setFragment(QString());

    const QString path = url.path(QUrl::FullyDecoded);
    if (!path.isEmpty() && path != u"/")
        m_candidates.append(url);
    m_candidates.append(m_baseUrl.resolved(QUrl(QStringLiteral("/.well-known/caldav"))));
    m_candidates.append(m_baseUrl.resolved(QUrl(QStringLiteral("/"))));
    tryNextPrincipalCandidate();
}

void CalDavDiscovery::propfind(const QUrl &url, const QByteArray &body, int depth, Handler onReply)
{
    m_currentUrl = url;
    m_client->propfind(
        url, body, depth,
        m_guard->guarded(SilenceGuard::SilenceMs, [this, onReply](const CalDavClient::Response &response) {
            (this->*onReply)(response.status, response.body, response.error);
        }));
}

void CalDavDiscovery::tryNextPrincipalCandidate()
{
    if (m_candidateIndex < m_candidates.size())
        return propfind(m_candidates.at(m_candidateIndex), CalDavXml::currentUserPrincipalBody(), 0,
                        &CalDavDiscovery::onPrincipalReply);
    if (m_fallbackHomeUrl)
        return propfind(*m_fallbackHomeUrl, CalDavXml::calendarHomeSetBody(), 0, &CalDavDiscovery::onHomeSetReply);
    if (m_wasUnauthorized)
        return emitFail(loginRejected());
    emitFail(tr("Could not find a CalDAV account on that server. Check the URL."));
}

void CalDavDiscovery::onPrincipalReply(int status, const QByteArray &body, const QString &error)
{
    // A refused connection or certificate is the same for every candidate.
    if (!error.isEmpty())
        return emitFail(tr("Could not reach the server: %1").arg(error));
    if (CalDavClient::isSuccess(status)) {
        if (const auto principal = CalDavParse::parsePrincipalUrl(body, m_baseUrl)) {
            const QUrl url = secured(*principal);
            m_principal = url.toString();
            return propfind(url, CalDavXml::calendarHomeSetBody(), 0, &CalDavDiscovery::onHomeSetReply);
        }
        if (!m_fallbackHomeUrl)
            m_fallbackHomeUrl = m_currentUrl;
    }
    m_wasUnauthorized |= status == 401;
    ++m_candidateIndex;
    tryNextPrincipalCandidate();
}

void CalDavDiscovery::onHomeSetReply(int status, const QByteArray &body, const QString &error)
{
    if (!error.isEmpty())
        return emitFail(tr("Lost connection during calendar-home-set discovery: %1").arg(error));
    if (!CalDavClient::isSuccess(status))
        return emitFail(tr("Server returned HTTP %1 during home-set discovery.").arg(status));
    const QUrl homeSet = secured(CalDavParse::parseCalendarHomeSet(body, m_baseUrl).value_or(m_currentUrl));
    m_homeSet = homeSet.toString(QUrl::RemoveUserInfo);
    propfind(homeSet, CalDavXml::calendarEnumerationBody(), 1, &CalDavDiscovery::onCalendarsReply);
}

void CalDavDiscovery::onCalendarsReply(int status, const QByteArray &body, const QString &error)
{
    if (!error.isEmpty())
        return emitFail(tr("Lost connection during calendar enumeration: %1").arg(error));
    if (!CalDavClient::isSuccess(status))
        return emitFail(tr("Server returned HTTP %1 during calendar enumeration.").arg(status));
    QList<CalDavParse::DiscoveredCalendar> calendars = CalDavParse::parseCalendarList(body, m_baseUrl);
    if (calendars.isEmpty())
        return emitFail(tr("No calendars found at the discovered home set."));
    for (CalDavParse::DiscoveredCalendar &calendar : calendars)
        calendar.url = secured(QUrl(calendar.url)).toString();
    emit completed(calendars);
}

/// A server behind a proxy may name itself by http; the password must not go there in the clear.
QUrl CalDavDiscovery::secured(QUrl url) const
{
    url.setUserInfo(QString());
    if (m_baseUrl.scheme() != u"https" || url.scheme() != u"http")
        return url;
    url.setScheme(m_baseUrl.scheme());
    url.setPort(url.host() == m_baseUrl.host() ? m_baseUrl.port() : -1);
    return url;
}

QString CalDavDiscovery::loginRejected()
{
    return tr("The server rejected the username or password.");
}

void CalDavDiscovery::emitFail(const QString &message)
{
    qWarning().noquote() << "[CalDAV discovery]" << message;
    emit failed(message);
}
