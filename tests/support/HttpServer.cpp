#include "support/HttpServer.h"

#include <QHostAddress>
#include <QSslConfiguration>
#include <QSslServer>
#include <QTcpSocket>

namespace {

std::unique_ptr<QTcpServer> tlsServer(const QSslConfiguration &tls)
{
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    return server;
}

QByteArray chunk(const QByteArray &data)
{
    return QByteArray::number(data.size(), 16) + "\r\n" + data + "\r\n";
}

}

HttpServer::HttpServer(QObject *parent)
    : HttpServer(std::make_unique<QTcpServer>(), QStringLiteral("http"), parent)
{
}

HttpServer::HttpServer(const QSslConfiguration &tls, QObject *parent)
    : HttpServer(tlsServer(tls), QStringLiteral("https"), parent)
{
}

HttpServer::HttpServer(std::unique_ptr<QTcpServer> server, const QString &scheme, QObject *parent)
    : QObject(parent)
    , m_scheme(scheme)
    , m_server(std::move(server))
{
    if (!m_server->listen(QHostAddress::LocalHost))
        qFatal("cannot listen on the loopback address");
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &HttpServer::onNewConnection);
}

QUrl HttpServer::url(const QString &path) const
{
    QUrl url;
    url.setScheme(m_scheme);
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPort(m_server->serverPort());
    url.setPath(path);
    return url;
}

void HttpServer::onNewConnection()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_buffers.remove(socket);
            socket->deleteLater();
        });
    }
}

void HttpServer::onReadyRead(QTcpSocket *socket)
{
    QByteArray buffer = m_buffers.value(socket) + socket->readAll();
    Request request;
    while (takeRequest(buffer, request)) {
        m_requests.append(request);
        send(socket, replyTo(request));
    }
    m_buffers.insert(socket, buffer);
}

bool HttpServer::takeRequest(QByteArray &buffer, Request &request)
{
    const qsizetype headEnd = buffer.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = buffer.first(headEnd).replace("\r\n", "\n").split('\n');
    const QList<QByteArray> words = lines.first().split(' ');
    request = { .method = words.value(0), .target = words.value(1), .headers = {}, .body = {} };
    for (const QByteArray &line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(qMax<qsizetype>(colon, 0)).toLower(), line.mid(colon + 1).trimmed());
    }
    const qsizetype bodyStart = headEnd + 4;
    const qsizetype bodySize = request.headers.value("content-length").toLongLong();
    if (buffer.size() < bodyStart + bodySize)
        return false;
    request.body = buffer.mid(bodyStart, bodySize);
    buffer.remove(0, bodyStart + bodySize);
    return true;
}

HttpServer::Reply HttpServer::replyTo(const Request &request)
{
    if (!m_script.isEmpty())
        return m_script.dequeue();
    return m_handler ? m_handler(request) : Reply{ .status = 404, .body = {}, .headers = {} };
}

void HttpServer::send(QTcpSocket *socket, const Reply &reply)
{
    if (reply.fault == Fault::Hang)
        return;
    if (reply.fault == Fault::Close) {
        socket->disconnectFromHost();
        return;
    }
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + " Scripted\r\n";
    for (const auto &[name, value] : reply.headers)
        head += name + ": " + value + "\r\n";
    head += reply.isChunked ? QByteArray("Transfer-Encoding: chunked")
                            : "Content-Length: " + QByteArray::number(reply.body.size());
    socket->write(head + "\r\n\r\n");
    const qsizetype half = reply.body.size() / 2;
    socket->write(reply.isChunked ? chunk(reply.body.first(half)) : reply.body.first(half));
    if (reply.fault == Fault::Truncate)
        socket->disconnectFromHost();
    else
        socket->write(reply.isChunked ? chunk(reply.body.sliced(half)) + chunk({}) : reply.body.sliced(half));
}
