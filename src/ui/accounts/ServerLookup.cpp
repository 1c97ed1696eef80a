#include "ui/accounts/ServerLookup.h"

#include "caldav/CalDavClient.h"
#include "caldav/CalDavDiscovery.h"
#include "caldav/ServerAddress.h"
#include "sync/Credentials.h"
#include "ui/accounts/CalDavCertificateDialog.h"

namespace {

QUrl read(const QString &typed)
{
    return QUrl(ServerAddress::read(typed).url);
}

}

ServerLookup::ServerLookup(QWidget *window)
    : QObject(window)
    , m_window(window)
{
}

void ServerLookup::setTrustedCertSha256(const QString &fingerprint, const QString &url)
{
    m_trustedCertSha256 = fingerprint;
    m_url = read(url);
}

void ServerLookup::start(const QString &url, const QString &username, const QString &password)
{
    begin(url);
    m_client->setCredentials(username, password);
    discover();
}

void ServerLookup::start(const QString &url, const QString &username, Credentials *credentials,
                         const QString &accountId)
{
    begin(url);
    credentials->caldavPassword(accountId, Credentials::Unlock::MayAsk, this,
                                [this, client = m_client, username](const QString &password) {
                                    if (!client || client != m_client)
                                        return; // stopped, or started anew, while the store was asked
                                    if (password.isEmpty()) {
                                        stop();
                                        return emit failed(tr("Enter the password of this account first."));
                                    }
                                    client->setCredentials(username, password);
                                    discover();
                                });
}

void ServerLookup::begin(const QString &url)
{
    stop();
    const QString hostBefore = m_url.host();
    m_url = read(url);
    if (m_url.host() != hostBefore)
        m_trustedCertSha256.clear();
    m_refusedCertSha256.clear();
    m_client = new CalDavClient(this);
    m_client->setTrustedCertSha256(m_trustedCertSha256);
    m_discovery = new CalDavDiscovery(m_client, m_client);
    connect(m_discovery, &CalDavDiscovery::completed, this, &ServerLookup::onCompleted);
    connect(m_discovery, &CalDavDiscovery::failed, this, &ServerLookup::onFailed);
    emit progressed(tr("Connecting…"));
}

void ServerLookup::discover()
{
    m_discovery->start(m_url);
}

void ServerLookup::stop()
{
    if (m_question) {
        m_question->disconnect(this);
        m_question->close();
    }
    if (m_client) {
        m_client->abort();
        m_discovery->disconnect(this);
        m_client->deleteLater(); // it may be the one that calls
    }
    m_client.clear();
    m_discovery = nullptr;
}

void ServerLookup::onCompleted(const QList<CalDavParse::DiscoveredCalendar> &calendars)
{
    m_homeSet = m_discovery->homeSet();
    m_principal = m_discovery->principal();
    stop();
    emit found(calendars);
}

void ServerLookup::onFailed(const QString &message)
{
    if (!m_client->hasPendingUntrustedCert()) {
        stop();
        return emit failed(message);
    }
    const CalDavClient::UntrustedCertInfo info = m_client->pendingUntrustedCert();
    m_question = new CalDavCertificateDialog(info, m_trustedCertSha256, m_window);
    connect(m_question, &QDialog::accepted, this, [this, sha256 = info.sha256] { onTrusted(sha256); });
    connect(m_question, &QDialog::rejected, this, [this, sha256 = info.sha256] {
        m_question.clear(); // closes itself
        stop();
        m_refusedCertSha256 = sha256;
        emit failed(tr("Connection cancelled, certificate not trusted."));
    });
    m_question->open();
}

void ServerLookup::onTrusted(const QString &sha256)
{
    m_question.clear();
    m_trustedCertSha256 = sha256;
    m_client->setTrustedCertSha256(sha256);
    emit progressed(tr("Certificate trusted. Retrying…"));
    discover();
}
