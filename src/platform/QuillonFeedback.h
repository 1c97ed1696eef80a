#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

/// What a user tells the makers: a message and, if the user likes, a few lines about the system.
namespace QuillonFeedback {

struct Config {
    QString product;
    QString url; ///< http or https takes reports; "mailto:" has the makers' address; empty: there is neither
};

struct Report {
    QString message;
    QString diagnostics; ///< empty if the user keeps them back
};

enum class Channel { Clipboard, Mail, Web };

/// How a report reaches the makers. An address that is neither of the web nor of mail is none.
Channel channelOf(const Config &config);

/// The version of the program, the system and Qt, each in a line. Nothing about the user or the user's data.
QString diagnostics();

/// The whole report as plain text.
QString textOf(const Report &report);

/// The address that opens a new mail with \p report in it (RFC 6068); for Channel::Mail.
QUrl mailUrl(const Config &config, const QString &subject, const Report &report);

/// Hands in a report by POST, for Channel::Web: a JSON object with "product", "message" and "diagnostics".
class Client : public QObject {
    Q_OBJECT

public:
    explicit Client(const Config &config, QObject *parent = nullptr);

    /// Ends in one of the signals. Ignored while it runs.
    void send(const Report &report);

signals:
    void sent();
    void sendFailed(const QString &message);

private:
    void onFinished();

    Config m_config;
    QNetworkAccessManager *m_network = nullptr;
    QNetworkReply *m_reply = nullptr;
};

} // namespace QuillonFeedback
