#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QQueue>
#include <QTcpServer>
#include <QUrl>

#include <functional>
#include <memory>
#include <utility>

class QSslConfiguration;
class QTcpSocket;

/// A small HTTP/1.1 server on the loopback address, inside the test's own event loop. It answers by a
/// script: queued replies first, then the handler, else 404. Keeps connections alive, so that a client's
/// reuse of them is tested too.
class HttpServer : public QObject {
public:
    struct Request {
        QByteArray method;
        QByteArray target; ///< path and query as sent
        QHash<QByteArray, QByteArray> headers; ///< names in lower case
        QByteArray body;
    };

    enum class Fault {
        None,
        Truncate, ///< promises the whole body, sends half, closes
        Hang, ///< never answers, keeps the connection
        Close, ///< closes without a byte
    };

    struct Reply {
        int status = 200;
        QByteArray body;
        QList<std::pair<QByteArray, QByteArray>> headers;
        Fault fault = Fault::None;
        bool isChunked = false; ///< two chunks in place of a Content-Length
    };
    using Handler = std::function<Reply(const Request &)>;

    explicit HttpServer(QObject *parent = nullptr);
    /// Over TLS, with the certificate and key of \p tls.
    explicit HttpServer(const QSslConfiguration &tls, QObject *parent = nullptr);

    /// "http://127.0.0.1:PORT", or https, with \p path, which begins with "/".
    [[nodiscard]] QUrl url(const QString &path = QStringLiteral("/")) const;
    void enqueue(const Reply &reply) { m_script.enqueue(reply); }
    void setHandler(Handler handler) { m_handler = std::move(handler); }
    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }

private:
    HttpServer(std::unique_ptr<QTcpServer> server, const QString &scheme, QObject *parent);
    void onNewConnection();
    void onReadyRead(QTcpSocket *socket);
    bool takeRequest(QByteArray &buffer, Request &request);
    Reply replyTo(const Request &request);
    static void send(QTcpSocket *socket, const Reply &reply);

    QHash<QTcpSocket *, QByteArray> m_buffers;
    QQueue<Reply> m_script;
    Handler m_handler;
    QList<Request> m_requests;
    QString m_scheme;
    std::unique_ptr<QTcpServer> m_server; // last: its sockets say goodbye to the others when it goes
};
