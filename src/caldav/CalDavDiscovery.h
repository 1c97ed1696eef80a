#pragma once

#include "caldav/CalDavParse.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <optional>

class CalDavClient;
class SilenceGuard;

/// Finds the calendars of an account from whatever address its owner typed: principal, home set, enumeration.
/// RFC 4791 §6.2, RFC 6764 §5. One request at a time; every run ends in exactly one of the two signals, also when
/// the server falls silent. Hrefs are resolved against scheme, host and port of the address; those that say http where
/// https was typed are taken as https.
class CalDavDiscovery : public QObject {
    Q_OBJECT

public:
    /// \p client carries the credentials and the trusted fingerprint; it is borrowed.
    explicit CalDavDiscovery(CalDavClient *client, QObject *parent = nullptr);

    /// Begins, or begins again from the start. A text without a scheme means https.
    void start(const QUrl &input);

    /// What failed() says when no address took the credentials.
    static QString loginRejected();

    [[nodiscard]] QString homeSet() const { return m_homeSet; } ///< once completed
    [[nodiscard]] QString principal() const { return m_principal; } ///< once completed; may be empty

signals:
    void completed(const QList<CalDavParse::DiscoveredCalendar> &calendars); ///< at least one
    void failed(const QString &message); ///< for the user

private:
    void tryNextPrincipalCandidate();
    void onPrincipalReply(int status, const QByteArray &body, const QString &error);
    void onHomeSetReply(int status, const QByteArray &body, const QString &error);
    void onCalendarsReply(int status, const QByteArray &body, const QString &error);
    [[nodiscard]] QUrl secured(QUrl url) const;
    void emitFail(const QString &message);
    using Handler = void (CalDavDiscovery::*)(int status, const QByteArray &body, const QString &error);
    void propfind(const QUrl &url, const QByteArray &body, int depth, Handler onReply);

    CalDavClient *m_client;
    SilenceGuard *m_guard;
    QUrl m_baseUrl;
    QUrl m_currentUrl;
    QList<QUrl> m_candidates;
    qsizetype m_candidateIndex = 0;
    std::optional<QUrl> m_fallbackHomeUrl;
    bool m_wasUnauthorized = false;
    QString m_principal;
    QString m_homeSet;
};
