#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

namespace QuillonUpdate {

struct Config {
    QString product;
    QString channel;
    QString baseUrl; ///< folder of "latest.json", ending in "/"; empty switches the check off
    QString version; ///< of the running program
};

/// A release that can be had.
struct Artifact {
    QString version;
    QUrl url; ///< http or https
    QString notes; ///< plain text
    QString sha256; ///< hexadecimal; may be empty
};

/// Shows what goes on meanwhile, in a status bar say; an empty text takes it back.
using StatusHandler = std::function<void(const QString &text)>;

/// Asks once whether there is a newer release. The answer is a JSON object with "version", "url", "notes"
/// and "sha256".
class Client : public QObject {
    Q_OBJECT

public:
    static constexpr qint64 MaxAnswerBytes = 1024 * 1024;

    explicit Client(const Config &config, QObject *parent = nullptr);

    /// Ends in exactly one of the signals. Ignored while it runs, and without an address.
    void checkForUpdate();

signals:
    void updateAvailable(const QuillonUpdate::Artifact &artifact);
    void checkFailed(const QString &message);
    void nothingNewer();

private:
    void onFinished();
    void readAnswer(const QByteArray &json, const QUrl &source);

    Config m_config;
    QNetworkAccessManager *m_network = nullptr;
    QNetworkReply *m_reply = nullptr;
};

} // namespace QuillonUpdate
