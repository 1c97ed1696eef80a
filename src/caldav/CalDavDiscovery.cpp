#include "caldav/CalDavDiscovery.h"

#include "caldav/CalDavXml.h"
#include "caldav/CredentialScope.h"
#include "caldav/SilenceGuard.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype MaxCandidates = 8;

QUrl withScheme(const QUrl &input)
{
    const bool isBare = input.scheme().isEmpty() && !input.toString().isEmpty();
    return isBare ? QUrl(QStringLiteral("https://") + input.toString()) : input;
}

QUrl serverOf(const QUrl &url)
{
    return url.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

/// A server behind a proxy may name itself by http; what came by https must not go on in the clear.
QUrl secured(QUrl url, const QUrl &from)
{
    url.setUserInfo(QString());
    if (from.scheme() != u"https" || url.scheme() != u"http")
        return url;
    url.setScheme(from.scheme());
    url.setPort(url.host() == from.host() ? from.port() : -1);
    return url;
}

bool isMultistatus(const CalDavClient::Response &response)
{
    return response.status == 207;
}

bool isSameCollection(const QString &url, const QString &other)
{
    return QUrl(url).adjusted(QUrl::StripTrailingSlash) == QUrl(other).adjusted(QUrl::StripTrailingSlash);
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
    m_strangerUrl.clear();
    m_elsewhere.clear();
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
    m_baseUrl = serverOf(url);

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
    const auto onAnswer = [this, body, depth, onReply](const Response &response) {
        const QUrl elsewhere = std::exchange(m_elsewhere, {});
        if (!elsewhere.isEmpty() && response.error.isEmpty() && !isMultistatus(response)) {
            m_baseUrl = serverOf(elsewhere);
            return propfind(elsewhere, body, depth, onReply);
        }
        // From here on the password need not go through the clear first.
        if (isMultistatus(response) && m_baseUrl.scheme() == u"http" && response.url.scheme() == u"https"
            && response.url.host() == m_baseUrl.host())
            m_baseUrl = serverOf(response.url);
        (this->*onReply)(response);
    };
    m_client->propfind(url, body, depth, m_guard->guarded(SilenceGuard::SilenceMs, onAnswer));
}

/// False if the answer has no such href.
bool CalDavDiscovery::follow(HrefParser parse, const Response &response, const QByteArray &body, int depth,
                             Handler onReply)
{
    const auto href = parse(response.body, m_baseUrl);
    if (!href)
        return false;
    const QUrl url = secured(*href, m_baseUrl);
    const QUrl elsewhere = secured(parse(response.body, answeringServer(response)).value_or(*href), m_baseUrl);
    if (elsewhere != url)
        m_elsewhere = elsewhere;
    propfind(url, body, depth, onReply);
    return true;
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
    if (!m_strangerUrl.isEmpty())
        return emitFail(
            tr("The server refers to another one, which was not given your password. If you trust it, enter "
               "its address instead: %1")
                .arg(m_strangerUrl.toString()));
    emitFail(tr("Could not find a CalDAV account on that server. Check the URL."));
}

void CalDavDiscovery::onPrincipalReply(const Response &response)
{
    // A refused connection or certificate is the same for every candidate.
    if (!response.error.isEmpty())
        return emitFail(tr("Could not reach the server: %1").arg(response.error));
    if (CalDavClient::isSuccess(response.status)) {
        if (follow(CalDavParse::parsePrincipalUrl, response, CalDavXml::calendarHomeSetBody(), 0,
                   &CalDavDiscovery::onHomeSetReply))
            return;
        if (!m_fallbackHomeUrl)
            m_fallbackHomeUrl = m_currentUrl;
    }
    if (response.status == 401 && !CredentialScope::covers(m_currentUrl, response.url))
        m_strangerUrl = response.url.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    else
        m_wasUnauthorized |= response.status == 401;
    addRefusedRedirect(response);
    ++m_candidateIndex;
    tryNextPrincipalCandidate();
}

/// Where a redirect from https to http leads is another candidate, by https.
void CalDavDiscovery::addRefusedRedirect(const Response &response)
{
    const QUrl location(QString::fromUtf8(response.header("location")));
    const bool isRedirect = response.status >= 300 && response.status <= 399 && !location.isEmpty();
    if (!isRedirect || m_candidates.size() >= MaxCandidates)
        return;
    const QUrl refused = response.url.resolved(location);
    const QUrl target = secured(refused, response.url);
    if (target != refused && CredentialScope::covers(response.url, target) && !m_candidates.contains(target))
        m_candidates.insert(m_candidateIndex + 1, target);
}

void CalDavDiscovery::onHomeSetReply(const Response &response)
{
    if (!response.error.isEmpty())
        return emitFail(tr("Lost connection during calendar-home-set discovery: %1").arg(response.error));
    if (!CalDavClient::isSuccess(response.status))
        return emitFail(tr("Server returned HTTP %1 during home-set discovery.").arg(response.status));
    if (hasPrincipal())
        m_principal = m_currentUrl.toString();
    const QByteArray body = CalDavXml::calendarEnumerationBody();
    if (!follow(CalDavParse::parseCalendarHomeSet, response, body, 1, &CalDavDiscovery::onCalendarsReply))
        propfind(secured(m_currentUrl, m_baseUrl), body, 1, &CalDavDiscovery::onCalendarsReply);
}

void CalDavDiscovery::onCalendarsReply(const Response &response)
{
    if (!response.error.isEmpty())
        return emitFail(tr("Lost connection during calendar enumeration: %1").arg(response.error));
    if (!CalDavClient::isSuccess(response.status))
        return emitFail(tr("Server returned HTTP %1 during calendar enumeration.").arg(response.status));
    // Half a list would make the other half look as if it had gone.
    if (!response.isWhole)
        return emitFail(
            tr("Lost connection during calendar enumeration: %1").arg(tr("The server's answer was cut off.")));
    m_homeSet = m_currentUrl.toString();
    m_calendars = listed(response.body, m_baseUrl);
    const QUrl server = answeringServer(response);
    m_calendarsElsewhere = server == m_baseUrl ? m_calendars : listed(response.body, server);
    if (m_calendars.isEmpty()) {
        // Some page answered the request; what has the calendars wanted another password.
        return emitFail(m_wasUnauthorized && !hasPrincipal() ? loginRejected()
                                                             : tr("No calendars found at the discovered home set."));
    }
    const auto differs = std::ranges::mismatch(m_calendars, m_calendarsElsewhere, {}, &DiscoveredCalendar::url,
                                               &DiscoveredCalendar::url);
    if (differs.in1 == m_calendars.end())
        return emitCompleted();
    propfind(QUrl(differs.in1->url), CalDavXml::calendarEnumerationBody(), 0, &CalDavDiscovery::onWhereaboutsReply);
}

/// Whether the typed server has the calendars that another one listed.
void CalDavDiscovery::onWhereaboutsReply(const Response &response)
{
    if (!response.error.isEmpty())
        return emitFail(tr("Lost connection during calendar enumeration: %1").arg(response.error));
    if (!isMultistatus(response))
        m_calendars = m_calendarsElsewhere;
    emitCompleted();
}

void CalDavDiscovery::emitCompleted()
{
    for (const DiscoveredCalendar &calendar : std::as_const(m_calendars)) {
        if (isSameCollection(calendar.url, m_homeSet))
            m_homeSet.clear();
    }
    emit completed(m_calendars);
}

QList<CalDavParse::DiscoveredCalendar> CalDavDiscovery::listed(const QByteArray &body, const QUrl &baseUrl) const
{
    QList<DiscoveredCalendar> calendars = CalDavParse::parseCalendarList(body, baseUrl);
    for (DiscoveredCalendar &calendar : calendars)
        calendar.url = secured(QUrl(calendar.url), m_baseUrl).toString();
    return calendars;
}

/// Against what RFC 3986 §5.1.3 resolves the answer's hrefs; the typed server where a redirect led to one that the
/// password is not for.
QUrl CalDavDiscovery::answeringServer(const Response &response) const
{
    return CredentialScope::covers(m_currentUrl, response.url) ? serverOf(response.url) : m_baseUrl;
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
