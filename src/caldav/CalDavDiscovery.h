#pragma once

#include "caldav/CalDavClient.h"
#include "caldav/CalDavParse.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <optional>

class SilenceGuard;

/// Finds the calendars of an account from whatever address its owner typed: principal, home set, enumeration.
/// RFC 4791 §6.2, RFC 6764 §5. One request at a time; every run ends in exactly one of the two signals, also when
/// the server falls silent.
///
/// Hrefs are resolved against scheme, host and port of the typed address. What is not there is looked for at the
/// server that answered, if that is another one: the typed one may only know the way. Those that say http where https
/// was typed are taken as https; so is the typed address once its host has answered by https.
class CalDavDiscovery : public QObject {
    Q_OBJECT

public:
    /// \p client carries the credentials and the trusted fingerprint; it is borrowed.
    explicit CalDavDiscovery(CalDavClient *client, QObject *parent = nullptr);

    /// Begins, or begins again from the start. A text without a scheme means https.
    void start(const QUrl &input);

    /// What failed() says when no address took the credentials.
    static QString loginRejected();

    /// Once completed; empty if what was found is a single calendar, not what holds it.
    [[nodiscard]] QString homeSet() const { return m_homeSet; }
    [[nodiscard]] QString principal() const { return m_principal; } ///< once completed; may be empty

signals:
    void completed(const QList<CalDavParse::DiscoveredCalendar> &calendars); ///< at least one
    void failed(const QString &message); ///< for the user

private:
    using Response = CalDavClient::Response;
    using Handler = void (CalDavDiscovery::*)(const Response &response);
    using DiscoveredCalendar = CalDavParse::DiscoveredCalendar;
    using HrefParser = std::optional<QUrl> (*)(const QByteArray &body, const QUrl &baseUrl);

    void tryNextPrincipalCandidate();
    void onPrincipalReply(const Response &response);
    void onHomeSetReply(const Response &response);
    void onCalendarsReply(const Response &response);
    void onWhereaboutsReply(const Response &response);
    void emitCompleted();
    void emitFail(const QString &message);
    void propfind(const QUrl &url, const QByteArray &body, int depth, Handler onReply);
    bool follow(HrefParser parse, const Response &response, const QByteArray &body, int depth, Handler onReply);
    void addRefusedRedirect(const Response &response);
    [[nodiscard]] QList<DiscoveredCalendar> listed(const QByteArray &body, const QUrl &baseUrl) const;
    [[nodiscard]] QUrl answeringServer(const Response &response) const;
    [[nodiscard]] bool hasPrincipal() const { return m_candidateIndex < m_candidates.size(); }

    CalDavClient *m_client;
    SilenceGuard *m_guard;
    QUrl m_baseUrl; // without a path
    QUrl m_currentUrl;
    QUrl m_elsewhere; // where the current request goes if it is not answered; empty for nowhere
    QList<QUrl> m_candidates;
    qsizetype m_candidateIndex = 0;
    std::optional<QUrl> m_fallbackHomeUrl;
    bool m_wasUnauthorized = false;
    QUrl m_strangerUrl; // asks for a password, and was not given one
    QString m_principal;
    QString m_homeSet;
    QList<DiscoveredCalendar> m_calendars;
    QList<DiscoveredCalendar> m_calendarsElsewhere; // the same, at the server that answered
};
