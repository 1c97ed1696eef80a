#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;
class QSslError;
class QTimer;

/// The one place that speaks HTTP to a CalDAV server, for one account and the length of one job. No time-outs: those
/// are the job's.
///
/// Credentials go out with every request (RFC 7617), without being asked for. User and password within a URL are
/// not used.
///
/// Redirects are followed here, for every verb and with verb and body kept, at most 5 in a row. One that leads from
/// https to http, or to another scheme, is not followed: the caller gets it as the answer. Credentials go along as far
/// as CredentialScope says, to the same host and to others under the same registered domain; elsewhere the request
/// goes without them.
///
/// What changes something on the server is sent once: if the connection closes before the answer, the caller gets an
/// error and cannot know whether it happened. A PROPFIND, REPORT or GET may be sent again.
///
/// A continuation runs from the event loop, never before the call has returned, and not at all once the client is
/// gone or abort() was called. It may delete the client.
class CalDavClient : public QObject {
    Q_OBJECT

public:
    struct Response {
        int status = 0; ///< 0 when no HTTP answer arrived
        QByteArray body;
        QHash<QByteArray, QByteArray> headers; ///< names as the server spells them
        QString error; ///< only if there is no status; for the user
        QUrl url; ///< that answered, at the end of the redirects
        /// The body arrived to its end, as far as its length or the end of its multistatus tells. One that came in
        /// chunks, and is no multistatus, may be cut all the same.
        bool isWhole = false;

        [[nodiscard]] bool isSuccess() const { return error.isEmpty() && CalDavClient::isSuccess(status); }
        [[nodiscard]] bool isMissing() const { return status == 404 || status == 410; }
        [[nodiscard]] QByteArray header(const QByteArray &name) const; ///< whatever its case; empty if there is none
    };
    using Callback = std::function<void(const Response &)>;

    /// A certificate that the TLS layer refused.
    struct UntrustedCertInfo {
        QString host;
        int port = 0;
        QString subject;
        QString issuer;
        QDateTime effectiveDate;
        QDateTime expiryDate;
        QString sha256; ///< upper-case hex, no separators
        QList<QString> errors;
    };

    static bool isSuccess(int status) { return status >= 200 && status <= 299; }

    explicit CalDavClient(QObject *parent = nullptr);
    ~CalDavClient() override;

    void setCredentials(const QString &username, const QString &password);
    /// The one certificate that is accepted although the TLS layer refuses it; forgets the refused one.
    void setTrustedCertSha256(const QString &fingerprint);
    static QString normalizeFingerprint(const QString &fingerprint);
    static QString formatFingerprint(const QString &fingerprint); ///< pairs with colons between
    [[nodiscard]] QByteArray basicAuthHeader() const; ///< empty without a user name

    [[nodiscard]] bool hasPendingUntrustedCert() const { return m_untrustedCert.has_value(); }
    [[nodiscard]] UntrustedCertInfo pendingUntrustedCert() const;

    void propfind(const QUrl &url, const QByteArray &body, int depth, Callback callback);
    void report(const QUrl &url, const QByteArray &body, int depth, Callback callback);
    void get(const QUrl &url, Callback callback);
    /// \p etag as it is stored, without quotes; what goes out is CalDavPath::ifMatch().
    void put(const QUrl &url, const QByteArray &body, const QString &contentType, Callback callback,
             const std::optional<QString> &etag = {});
    void del(const QUrl &url, Callback callback, const std::optional<QString> &etag = {});
    void mkcalendar(const QUrl &url, const QByteArray &body, Callback callback);
    void proppatch(const QUrl &url, const QByteArray &body, Callback callback);

    /// Ends what is in flight; its continuations do not run.
    void abort();

signals:
    void untrustedCertEncountered(const CalDavClient::UntrustedCertInfo &info);
    void sent(); ///< Something of a request went out: the connection is alive.
    void heard(); ///< Something of an answer arrived.

private:
    struct Request;
    void send(const Request &request);
    QNetworkReply *sendRaw(const Request &request);
    void readStep(QNetworkReply *reply, QTimer *steps, const Request &request);
    void onFinished(QNetworkReply *reply, const Request &request);
    void onSslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

    QNetworkAccessManager *m_manager;
    QHash<QNetworkReply *, QByteArray> m_inFlight; ///< whose continuations are still to run, with what has arrived
    QString m_username;
    QString m_password;
    QString m_trustedCertSha256;
    std::optional<UntrustedCertInfo> m_untrustedCert;
};
