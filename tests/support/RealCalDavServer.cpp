#include "support/RealCalDavServer.h"

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

constexpr int StartMs = 30'000;
constexpr int EndMs = 5000;

int freePort()
{
    QTcpServer probe;
    return probe.listen(QHostAddress::LocalHost) ? probe.serverPort() : 0;
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(StartMs) && process.exitCode() == 0;
}

}

RealCalDavServer::RealCalDavServer(Kind kind, Transport transport)
    : m_kind(kind)
    , m_transport(transport)
    , m_port(freePort())
{
    if (transport == SelfSigned)
        makeCertificate();
    if (kind == Radicale)
        startRadicale(m_port);
    else
        startXandikos(m_port);
    m_isUp = waitForPort();
}

RealCalDavServer::~RealCalDavServer()
{
    for (QProcess *process : { m_tls.get(), m_server.get() }) {
        if (!process)
            continue;
        process->terminate();
        if (!process->waitForFinished(EndMs))
            process->kill();
        process->waitForFinished(EndMs);
    }
}

QUrl RealCalDavServer::url(const QString &path) const
{
    QUrl url;
    url.setScheme(m_transport == SelfSigned ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(QStringLiteral("localhost"));
    url.setPort(m_port);
    url.setPath(path);
    return url;
}

QUrl RealCalDavServer::homeUrl() const
{
    return url(m_kind == Radicale ? QStringLiteral("/alice/") : QStringLiteral("/alice/calendars/"));
}

QByteArray RealCalDavServer::log() const
{
    QFile file(m_dir.filePath(QStringLiteral("log")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RealCalDavServer::makeCertificate()
{
    run(QStringLiteral("openssl"),
        { QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"), QStringLiteral("rsa:2048"),
          QStringLiteral("-nodes"), QStringLiteral("-days"), QStringLiteral("30"), QStringLiteral("-subj"),
          QStringLiteral("/CN=localhost"), QStringLiteral("-keyout"), m_dir.filePath(QStringLiteral("key.pem")),
          QStringLiteral("-out"), m_dir.filePath(QStringLiteral("cert.pem")) });
}

void RealCalDavServer::startRadicale(int port)
{
    run(QStringLiteral("htpasswd"),
        { QStringLiteral("-bcB"), m_dir.filePath(QStringLiteral("users")), userName(), password() });
    QString tls;
    if (m_transport == SelfSigned)
        tls = QStringLiteral("ssl = True\ncertificate = %1/cert.pem\nkey = %1/key.pem\n").arg(m_dir.path());
    const QString config = QStringLiteral("[server]\nhosts = 127.0.0.1:%1\n%2"
                                          "[auth]\ntype = htpasswd\nhtpasswd_filename = %3/users\n"
                                          "htpasswd_encryption = bcrypt\ndelay = 0\n"
                                          "[rights]\ntype = owner_only\n"
                                          "[storage]\nfilesystem_folder = %3/data\n")
                               .arg(QString::number(port), tls, m_dir.path());
    QFile file(m_dir.filePath(QStringLiteral("config")));
    if (file.open(QIODevice::WriteOnly))
        file.write(config.toUtf8());
    file.close();
    m_server = std::make_unique<QProcess>();
    start(*m_server, QStringLiteral("radicale"), { QStringLiteral("-C"), file.fileName() });
}

void RealCalDavServer::startXandikos(int port)
{
    const int plainPort = m_transport == SelfSigned ? freePort() : port;
    m_server = std::make_unique<QProcess>();
    start(*m_server, QStringLiteral("xandikos"),
          { QStringLiteral("--defaults"), QStringLiteral("--autocreate"), QStringLiteral("-l"),
            QStringLiteral("127.0.0.1"), QStringLiteral("-p"), QString::number(plainPort), QStringLiteral("-d"),
            m_dir.filePath(QStringLiteral("data")), QStringLiteral("--current-user-principal"),
            QStringLiteral("/alice/") });
    if (m_transport == Plain)
        return;
    m_tls = std::make_unique<QProcess>();
    start(*m_tls, QStringLiteral("socat"),
          { QStringLiteral("OPENSSL-LISTEN:%1,bind=127.0.0.1,reuseaddr,fork,certificate=%2/cert.pem,key=%2/key.pem,"
                           "verify=0")
                .arg(QString::number(port), m_dir.path()),
            QStringLiteral("TCP:127.0.0.1:%1,retry=50,interval=0.1").arg(plainPort) });
}

void RealCalDavServer::start(QProcess &process, const QString &program, const QStringList &arguments)
{
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(m_dir.filePath(QStringLiteral("log")), QIODevice::Append);
    process.start(program, arguments);
}

bool RealCalDavServer::waitForPort()
{
    return QTest::qWaitFor(
        [this] {
            QTcpSocket socket;
            socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(m_port));
            return socket.waitForConnected(1000);
        },
        StartMs);
}
