#pragma once

#include "caldav/CalDavParse.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class CalDavCertificateDialog;
class CalDavClient;
class CalDavDiscovery;
class Credentials;
class QWidget;

/// Asks a CalDAV server for its calendars, and the user about a certificate that nobody vouches for. One run at a
/// time, which ends in found() or failed(), or quietly in stop().
class ServerLookup : public QObject {
    Q_OBJECT

public:
    /// Questions open over \p window.
    explicit ServerLookup(QWidget *window);

    /// What the user trusted earlier at the server of \p url; empty for nothing. Forgotten when another is asked.
    void setTrustedCertSha256(const QString &fingerprint, const QString &url);
    [[nodiscard]] QString trustedCertSha256() const { return m_trustedCertSha256; } ///< or trusts since

    void start(const QString &url, const QString &username, const QString &password);
    /// With the password that is stored for the account; may ask for the keyring.
    void start(const QString &url, const QString &username, Credentials *credentials, const QString &accountId);
    void stop();
    [[nodiscard]] bool isRunning() const { return m_discovery; }

    [[nodiscard]] QString homeSet() const { return m_homeSet; } ///< of the last run that found something
    [[nodiscard]] QString principal() const { return m_principal; }
    /// The certificate that the user did not want in the last run; empty if there was none.
    [[nodiscard]] QString refusedCertSha256() const { return m_refusedCertSha256; }

signals:
    void progressed(const QString &text); ///< for the user
    void found(const QList<CalDavParse::DiscoveredCalendar> &calendars);
    void failed(const QString &message); ///< for the user

private:
    void begin(const QString &url);
    void discover();
    void onCompleted(const QList<CalDavParse::DiscoveredCalendar> &calendars);
    void onFailed(const QString &message);
    void onTrusted(const QString &sha256);

    QWidget *m_window;
    QPointer<CalDavClient> m_client; // of the run
    CalDavDiscovery *m_discovery = nullptr; // child of the client
    QPointer<CalDavCertificateDialog> m_question;
    QUrl m_url; // of the run, or of what is trusted
    QString m_trustedCertSha256;
    QString m_refusedCertSha256;
    QString m_homeSet;
    QString m_principal;
};
