#include "platform/QuillonFeedback.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSysInfo>

#include <utility>

namespace QuillonFeedback {

namespace {

QString encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

}

Channel channelOf(const Config &config)
{
    const QUrl url(config.url);
    const QString scheme = url.scheme();
    if (scheme == QLatin1StringView("mailto") && !url.path().isEmpty())
        return Channel::Mail;
    const bool isWeb = scheme == QLatin1StringView("https") || scheme == QLatin1StringView("http");
    return isWeb && !url.host().isEmpty() ? Channel::Web : Channel::Clipboard;
}

QString diagnostics()
{
    return QStringLiteral("Quillon Calendar %1\n%2, %3, %4\nQt %5")
        .arg(QCoreApplication::applicationVersion(), QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(),
             QGuiApplication::platformName(), QString::fromLatin1(qVersion()));
}

QString textOf(const Report &report)
{
    return report.diagnostics.isEmpty() ? report.message : report.message + QStringLiteral("\n\n") + report.diagnostics;
}

QUrl mailUrl(const Config &config, const QString &subject, const Report &report)
{
    // RFC 6068 §5: line breaks of the body are CRLF.
    const QString body = textOf(report).replace(u'\n', QStringLiteral("\r\n"));
    QUrl url(config.url);
    url.setQuery(QStringLiteral("subject=%1&body=%2").arg(encoded(subject), encoded(body)));
    return url;
}

Client::Client(const Config &config, QObject *parent)
    : QObject(parent)
    , m_config(config)
{
}

void Client::send(const Report &report)
{
    if (m_reply)
        return;
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QNetworkRequest request{ QUrl(m_config.url) };
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("QuillonCalendar"));
    // Following would turn the POST into a GET and lose the report (RFC 9110 §15.4).
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    const QJsonObject body{ { QStringLiteral("product"), m_config.product },
                            { QStringLiteral("message"), report.message },
                            { QStringLiteral("diagnostics"), report.diagnostics } };
    m_reply = m_network->post(request, QJsonDocument(body).toJson(QJsonDocument::Compact));
    connect(m_reply, &QNetworkReply::finished, this, &Client::onFinished);
}

void Client::onFinished()
{
    QNetworkReply *reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() != QNetworkReply::NoError)
        emit sendFailed(reply->errorString());
    else if (status < 200 || status > 299)
        emit sendFailed(QStringLiteral("HTTP %1").arg(status));
    else
        emit sent();
}

} // namespace QuillonFeedback
