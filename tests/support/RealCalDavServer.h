#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

/// A real CalDAV server of another maker on a free port of the loopback address, with a folder of its own. It goes
/// with this object.
class RealCalDavServer {
public:
    enum Kind { Radicale, Xandikos };
    enum Transport { Plain, SelfSigned };

    RealCalDavServer(Kind kind, Transport transport);
    ~RealCalDavServer();

    [[nodiscard]] bool isUp() const { return m_isUp; }
    [[nodiscard]] QUrl url(const QString &path = QStringLiteral("/")) const;
    /// Where a user may make calendars; ends in a slash.
    [[nodiscard]] QUrl homeUrl() const;
    [[nodiscard]] QByteArray log() const;

    static QString userName() { return QStringLiteral("alice"); }
    static QString password() { return QStringLiteral("s3cret:with colon"); }

private:
    void makeCertificate();
    void startRadicale(int port);
    void startXandikos(int port);
    void start(QProcess &process, const QString &program, const QStringList &arguments);
    bool waitForPort();

    Kind m_kind;
    Transport m_transport;
    int m_port = 0;
    bool m_isUp = false;
    QTemporaryDir m_dir;
    std::unique_ptr<QProcess> m_server;
    std::unique_ptr<QProcess> m_tls; // for a server that speaks none
};
