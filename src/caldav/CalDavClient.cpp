#include "caldav/CalDavClient.h"

#include "BuildSettings.h"
#include "caldav/CalDavPath.h"
#include "caldav/CredentialScope.h"
#include "caldav/OneTimeBody.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslError>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int MaxRedirects = 5;
// Qt takes an answer above this size for a bomb if it was packed 40 times smaller. Events that repeat the rules of
// their time zone are.
constexpr qint64 MaxSuspectBytes = 256 * 1024 * 1024;
constexpr qint64 BytesPerStep = 256 * 1024;

using Headers = QList<std::pair<QByteArray, QByteArray>>;

Headers depthHeader(int depth)
{
    return { { "Depth", QByteArray::number(depth) } };
}

Headers ifMatchHeader(const std::optional<QString> &etag)
{
    const QByteArray value = CalDavPath::ifMatch(etag.value_or(QString()));
    return value.isEmpty() ? Headers{} : Headers{ { "If-Match", value } };
}

bool isOnThisMachine(const QUrl &url)
{
    return url.host() == QLatin1StringView("localhost") || QHostAddress(url.host()).isLoopback();
}

bool isSecure(const QUrl &url)
{
    return url.scheme() == QLatin1StringView("https");
}

// Where the answer sends the request on to; none if it does not, or to where we do not follow.
std::optional<QUrl> redirectTarget(const CalDavClient::Response &response, const QUrl &url)
{
    static constexpr std::array RedirectStatuses{ 301, 302, 303, 307, 308 };
    const QByteArray location = response.header("location");
    if (location.isEmpty() || std::ranges::find(RedirectStatuses, response.status) == RedirectStatuses.end())
        return std::nullopt;
    const QUrl target = url.resolved(QUrl(QString::fromUtf8(location)));
    const bool isWeb = isSecure(target) || target.scheme() == QLatin1StringView("http");
    if (!target.isValid() || target.host().isEmpty() || !isWeb || (isSecure(url) && !isSecure(target)))
        return std::nullopt;
    return target;
}

// QNetworkReply counts a status of 400 and above as an error too, which says nothing about the body.
bool hasTransferError(const QNetworkReply &reply, int status)
{
    const QNetworkReply::NetworkError error = reply.error();
    if (status >= 400)
        return error <= QNetworkReply::UnknownProxyError || error == QNetworkReply::ContentReSendError;
    return status == 0 || error != QNetworkReply::NoError;
}

// "102 Processing" and the like come before the answer, and QNetworkAccessManager takes them for it. It would give the
// answer itself to the next request on that connection.
bool isInterim(int status)
{
    return status >= 100 && status < 200;
}

bool endsMultistatus(const QByteArray &body)
{
    static const QRegularExpression end(
        QStringLiteral("</([\\w.-]+:)?multistatus\\s*>|<([\\w.-]+:)?multistatus(\\s[^<>]*)?/>"));
    return QString::fromLatin1(body.last(std::min<qsizetype>(body.size(), 4096))).contains(end);
}

// QNetworkAccessManager does not always notice that a connection closed in the middle of an answer: where the close
// arrives together with the last data, it takes what it has for the whole.
bool isCut(const CalDavClient::Response &response)
{
    const QByteArray length = response.header("Content-Length");
    if (!length.isEmpty() && response.header("Content-Encoding").isEmpty())
        return response.body.size() != length.toLongLong();
    return response.status == 207 && !endsMultistatus(response.body);
}

QString closedText()
{
    return CalDavClient::tr("The connection was closed before the server answered.");
}

CalDavClient::Response readResponse(const QNetworkReply &reply, QByteArray body)
{
    CalDavClient::Response response;
    response.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    response.body = std::move(body);
    for (const auto &[name, value] : reply.rawHeaderPairs())
        response.headers.insert(name, value);
    if (reply.error() != QNetworkReply::NoError && response.status == 0)
        response.error = reply.error() == QNetworkReply::ContentReSendError ? closedText() : reply.errorString();
    response.isWhole = !hasTransferError(reply, response.status) && !isCut(response);
    return response;
}

CalDavClient::UntrustedCertInfo certInfo(const QUrl &url, const QSslCertificate &certificate,
                                         const QList<QSslError> &errors)
{
    const auto orElse = [](const QStringList &names, const QString &displayName) {
        const QString joined = names.join(QLatin1StringView(", "));
        return joined.isEmpty() ? displayName : joined;
    };
    CalDavClient::UntrustedCertInfo info{
        .host = url.host(QUrl::FullyDecoded),
        .port = url.port(isSecure(url) ? 443 : 80),
        .subject = orElse(certificate.subjectInfo(QSslCertificate::CommonName), certificate.subjectDisplayName()),
        .issuer = orElse(certificate.issuerInfo(QSslCertificate::CommonName), certificate.issuerDisplayName()),
        .effectiveDate = certificate.effectiveDate(),
        .expiryDate = certificate.expiryDate(),
        .sha256 = QString::fromLatin1(certificate.digest(QCryptographicHash::Sha256).toHex().toUpper()),
        .errors = {},
    };
    for (const QSslError &error : errors)
        info.errors.append(error.errorString());
    return info;
}

}

struct CalDavClient::Request {
    QByteArray verb;
    QUrl url;
    QByteArray body;
    Headers headers;
    Callback callback;
    QUrl origin = url; ///< as the caller gave it, before any redirect
    int redirectsLeft = MaxRedirects;
};

QByteArray CalDavClient::Response::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers.asKeyValueRange()) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

CalDavClient::CalDavClient(QObject *parent)
    : QObject(parent)
    , m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, &CalDavClient::onSslErrors);
}

CalDavClient::~CalDavClient()
{
    abort();
}

void CalDavClient::setCredentials(const QString &username, const QString &password)
{
    m_username = username;
    m_password = password;
}

void CalDavClient::setTrustedCertSha256(const QString &fingerprint)
{
    m_trustedCertSha256 = normalizeFingerprint(fingerprint);
    m_untrustedCert.reset();
}

QString CalDavClient::normalizeFingerprint(const QString &fingerprint)
{
    QString normalized = fingerprint;
    normalized.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    return normalized.toUpper();
}

QString CalDavClient::formatFingerprint(const QString &fingerprint)
{
    QString formatted;
    for (qsizetype i = 0; i < fingerprint.size(); ++i) {
        if (i > 0 && i % 2 == 0)
            formatted += u':';
        formatted += fingerprint.at(i);
    }
    return formatted;
}

QByteArray CalDavClient::basicAuthHeader() const
{
    if (m_username.isEmpty())
        return {};
    return "Basic " + QString(m_username + u':' + m_password).toUtf8().toBase64();
}

CalDavClient::UntrustedCertInfo CalDavClient::pendingUntrustedCert() const
{
    return m_untrustedCert.value_or(UntrustedCertInfo{});
}

void CalDavClient::propfind(const QUrl &url, const QByteArray &body, int depth, Callback callback)
{
    send({ .verb = "PROPFIND",
           .url = url,
           .body = body,
           .headers = depthHeader(depth),
           .callback = std::move(callback) });
}

void CalDavClient::report(const QUrl &url, const QByteArray &body, int depth, Callback callback)
{
    send(
        { .verb = "REPORT", .url = url, .body = body, .headers = depthHeader(depth), .callback = std::move(callback) });
}

void CalDavClient::get(const QUrl &url, Callback callback)
{
    send({ .verb = "GET", .url = url, .body = {}, .headers = {}, .callback = std::move(callback) });
}

void CalDavClient::put(const QUrl &url, const QByteArray &body, const QString &contentType, Callback callback,
                       const std::optional<QString> &etag)
{
    Headers headers = ifMatchHeader(etag);
    if (!contentType.isEmpty())
        headers.append({ "Content-Type", contentType.toUtf8() });
    send({ .verb = "PUT", .url = url, .body = body, .headers = headers, .callback = std::move(callback) });
}

void CalDavClient::del(const QUrl &url, Callback callback, const std::optional<QString> &etag)
{
    send({ .verb = "DELETE", .url = url, .body = {}, .headers = ifMatchHeader(etag), .callback = std::move(callback) });
}

void CalDavClient::mkcalendar(const QUrl &url, const QByteArray &body, Callback callback)
{
    send({ .verb = "MKCALENDAR", .url = url, .body = body, .headers = {}, .callback = std::move(callback) });
}

void CalDavClient::proppatch(const QUrl &url, const QByteArray &body, Callback callback)
{
    send({ .verb = "PROPPATCH", .url = url, .body = body, .headers = {}, .callback = std::move(callback) });
}

void CalDavClient::abort()
{
    const QList<QNetworkReply *> replies = std::exchange(m_inFlight, {}).keys();
    for (QNetworkReply *reply : replies) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void CalDavClient::send(const Request &request)
{
    QNetworkReply *reply = sendRaw(request);
    m_inFlight.insert(reply, {});
    auto *steps = new QTimer(reply);
    connect(reply, &QNetworkReply::readyRead, steps, qOverload<>(&QTimer::start));
    connect(reply, &QNetworkReply::finished, steps, qOverload<>(&QTimer::start));
    connect(steps, &QTimer::timeout, this, [this, reply, steps, request] { readStep(reply, steps, request); });
    connect(reply, &QNetworkReply::metaDataChanged, this, &CalDavClient::heard);
    connect(reply, &QNetworkReply::downloadProgress, this, &CalDavClient::heard);
    connect(reply, &QNetworkReply::uploadProgress, this, &CalDavClient::sent);
}

/// An answer is unpacked as it is read. Twenty megabytes of events arrive within milliseconds when they are packed, and
/// would hold the event loop if they were read at once.
void CalDavClient::readStep(QNetworkReply *reply, QTimer *steps, const Request &request)
{
    const auto body = m_inFlight.find(reply);
    const QByteArray data = body == m_inFlight.end() ? QByteArray() : reply->read(BytesPerStep);
    if (!data.isEmpty()) {
        *body += data;
        return;
    }
    steps->stop();
    // Queued, so that a continuation can delete the client, with the reply and its timer, outside of their own code.
    if (reply->isFinished())
        QMetaObject::invokeMethod(
            this, [this, reply, request] { onFinished(reply, request); }, Qt::QueuedConnection);
}

QNetworkReply *CalDavClient::sendRaw(const Request &request)
{
    // With a user in its URL, QNetworkAccessManager would answer a 401 itself.
    QNetworkRequest raw(request.url.adjusted(QUrl::RemoveUserInfo));
    raw.setHeader(QNetworkRequest::UserAgentHeader,
                  QStringLiteral("QuillonCalendar/%1 (Qt)").arg(QLatin1StringView(BuildSettings::Version)));
    // Its own policies turn a PUT into a GET and report success.
    raw.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    raw.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    raw.setDecompressedSafetyCheckThreshold(MaxSuspectBytes);
    if (!request.body.isEmpty()) {
        raw.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/xml; charset=utf-8"));
        raw.setHeader(QNetworkRequest::ContentLengthHeader, request.body.size());
    }
    // Between programs of one machine packing only takes time.
    if (isOnThisMachine(request.url))
        raw.setRawHeader("Accept-Encoding", "identity");
    if (const QByteArray auth = basicAuthHeader();
        !auth.isEmpty() && CredentialScope::covers(request.origin, request.url))
        raw.setRawHeader("Authorization", auth);
    for (const auto &[name, value] : request.headers)
        raw.setRawHeader(name, value);
    if (request.verb == "GET")
        return m_manager->sendCustomRequest(raw, request.verb);
    // What is only read may be asked for again.
    if (request.verb == "PROPFIND" || request.verb == "REPORT")
        return m_manager->sendCustomRequest(raw, request.verb, request.body);
    auto *body = new OneTimeBody(request.body, this);
    QNetworkReply *reply = m_manager->sendCustomRequest(raw, request.verb, body);
    body->setParent(reply);
    return reply;
}

void CalDavClient::onFinished(QNetworkReply *reply, const Request &request)
{
    if (!m_inFlight.contains(reply))
        return;
    Response response = readResponse(*reply, m_inFlight.take(reply));
    reply->deleteLater();
    if (isInterim(response.status)) {
        m_manager->clearConnectionCache();
        response = {};
        response.error = closedText();
    }
    response.url = request.url;
    const std::optional<QUrl> target = redirectTarget(response, request.url);
    if (!target || request.redirectsLeft == 0) {
        request.callback(response);
        return;
    }
    Request next = request;
    next.url = *target;
    --next.redirectsLeft;
    send(next);
}

void CalDavClient::onSslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    const QList<QSslCertificate> chain = reply->sslConfiguration().peerCertificateChain();
    if (chain.isEmpty())
        return;
    UntrustedCertInfo info = certInfo(reply->request().url(), chain.first(), errors);
    // What is trusted is this very certificate, whatever else is wrong with it.
    if (!m_trustedCertSha256.isEmpty() && info.sha256 == m_trustedCertSha256) {
        reply->ignoreSslErrors(errors);
        return;
    }
    m_untrustedCert = info;
    emit untrustedCertEncountered(info);
}
