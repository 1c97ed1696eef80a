#include "platform/QuillonUpdate.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QVersionNumber>

namespace QuillonUpdate {

namespace {

// The address goes to the desktop to be opened, which would also start programs for other schemes.
bool isDownloadUrl(const QUrl &url)
{
    return (url.scheme() == QLatin1StringView("https") || url.scheme() == QLatin1StringView("http"))
        && !url.host().isEmpty();
}

}

Client::Client(const Config &config, QObject *parent)
    : QObject(parent)
    , m_config(config)
{
}

void Client::checkForUpdate()
{
    if (m_reply || m_config.baseUrl.isEmpty())
        return;
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QNetworkRequest request(QUrl(m_config.baseUrl).resolved(QUrl(QStringLiteral("latest.json"))));
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("QuillonCalendar/%1 (Qt)").arg(m_config.version));
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::finished, this, &Client::onFinished);
    connect(m_reply, &QNetworkReply::downloadProgress, this, [this](qint64 received) {
        if (received > MaxAnswerBytes)
            m_reply->abort();
    });
}

void Client::onFinished()
{
    QNetworkReply *reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError)
        emit checkFailed(reply->errorString());
    else
        readAnswer(reply->readAll(), reply->url());
}

void Client::readAnswer(const QByteArray &json, const QUrl &source)
{
    QJsonParseError error;
    const QJsonObject answer = QJsonDocument::fromJson(json, &error).object();
    const auto text = [&answer](const char *key) { return answer.value(QLatin1StringView(key)).toString(); };
    const QVersionNumber offered = QVersionNumber::fromString(text("version"));
    if (offered.isNull()) {
        emit checkFailed(QStringLiteral("no version in the answer (%1)").arg(error.errorString()));
        return;
    }
    if (offered <= QVersionNumber::fromString(m_config.version)) {
        emit nothingNewer();
        return;
    }
    const QUrl url = source.resolved(QUrl(text("url")));
    if (text("url").isEmpty() || !isDownloadUrl(url)) {
        emit checkFailed(QStringLiteral("no usable download address in the answer"));
        return;
    }
    emit updateAvailable({ .version = text("version"), .url = url, .notes = text("notes"), .sha256 = text("sha256") });
}

} // namespace QuillonUpdate
