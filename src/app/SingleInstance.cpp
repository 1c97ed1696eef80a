#include "app/SingleInstance.h"

#include "app/state/Platform.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QWidget>

#ifdef Q_OS_LINUX
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace {

constexpr int SocketTimeoutMs = 800;
constexpr int ModalRetryMs = 100;
constexpr qsizetype MaxWaiting = 64;
constexpr qsizetype MaxWaitingFiles = 1024; // in a row, as a file manager opens a whole selection
constexpr qsizetype LoggedBytes = 200;
constexpr char ActivationTokenVariable[] = "XDG_ACTIVATION_TOKEN";

const QString CmdKey = QStringLiteral("cmd");
const QString TextKey = QStringLiteral("text");
const QString PathKey = QStringLiteral("path");
const QString TokenKey = QStringLiteral("token");

QByteArray toLine(const QJsonObject &command)
{
    return QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n';
}

QString absolutePath(const QString &path)
{
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

// The socket's folder is open to everyone, so anyone may have put a socket of this name there.
bool isServedByThisUser([[maybe_unused]] const QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ucred peer{};
    socklen_t size = sizeof(peer);
    if (getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0)
        return peer.uid == geteuid();
#endif
    return true; // cannot be told here
}

bool opensFile(const QByteArray &line)
{
    return QJsonDocument::fromJson(line).object().value(CmdKey) == QLatin1StringView("open-ics");
}

// On Wayland only the token that the desktop gave to this launch lets the running window come to the front.
QByteArray withActivationToken(const QByteArray &line)
{
    const QString token = qEnvironmentVariable(ActivationTokenVariable);
    if (token.isEmpty())
        return line;
    QJsonObject command = QJsonDocument::fromJson(line).object();
    command.insert(TokenKey, token);
    return toLine(command);
}

}

SingleInstance::SingleInstance(QObject *parent, const QString &platform)
    : QObject(parent)
    , m_platform(platform)
{
    m_retry.setInterval(ModalRetryMs);
    connect(&m_retry, &QTimer::timeout, this, &SingleInstance::dispatchWaiting);
}

QString SingleInstance::socketName()
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    const QString name = QStringLiteral("quillon-calendar-") + QFileInfo(home).fileName();
    const QString instance = Platform::instanceName();
    return instance.isEmpty() ? name : name + QLatin1Char('-') + instance;
}

QByteArray SingleInstance::parseArgsToCommand(const QStringList &args)
{
    const QString quickAddPrefix = QStringLiteral("--quick-add=");
    QJsonObject command{ { CmdKey, QStringLiteral("focus") } };
    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString &arg = args[i];
        const bool hasNext = i + 1 < args.size();
        if (arg == QLatin1StringView("--show-today")) {
            command.insert(CmdKey, QStringLiteral("show-today"));
        } else if (arg == QLatin1StringView("--new-event")) {
            command.insert(CmdKey, QStringLiteral("new-event"));
        } else if (arg == QLatin1StringView("--quick-add") && hasNext) {
            command.insert(CmdKey, QStringLiteral("quick-add"));
            command.insert(TextKey, args[++i]);
        } else if (arg.startsWith(quickAddPrefix)) {
            command.insert(CmdKey, QStringLiteral("quick-add"));
            command.insert(TextKey, arg.mid(quickAddPrefix.size()));
        } else if (arg == QLatin1StringView("--ics") && hasNext) {
            command.insert(CmdKey, QStringLiteral("open-ics"));
            command.insert(PathKey, absolutePath(args[++i]));
        } else if (arg.endsWith(QLatin1StringView(".ics"), Qt::CaseInsensitive) && QFileInfo::exists(arg)) {
            command.insert(CmdKey, QStringLiteral("open-ics"));
            command.insert(PathKey, absolutePath(arg));
        }
    }
    return toLine(command);
}

bool SingleInstance::tryRouteToExisting(const QStringList &args)
{
    const QString name = socketName();
    QLocalSocket socket;
    socket.connectToServer(name);
    const bool isConnected = socket.waitForConnected(SocketTimeoutMs);
    if (isConnected && isServedByThisUser(socket)) {
        socket.write(withActivationToken(parseArgsToCommand(args)));
        socket.flush();
        socket.waitForBytesWritten(SocketTimeoutMs);
        socket.disconnectFromServer();
        return true;
    }
    if (isConnected)
        qWarning().noquote() << "[SingleInstance] another user listens on" << name;

    QLocalServer::removeServer(name); // left behind by a crash
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::onNewConnection);
    if (!m_server->listen(name))
        qWarning().noquote() << "[SingleInstance] failed to listen on" << name << ":" << m_server->errorString();
    return false;
}

void SingleInstance::onNewConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        socket->setReadBufferSize(MaxLineBytes);
        connect(socket, &QLocalSocket::readyRead, this,
                [this, socket, linesLeft = MaxLinesPerConnection]() mutable { readLines(socket, linesLeft); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        if (socket->bytesAvailable() > 0)
            emit socket->readyRead();
    }
}

void SingleInstance::readLines(QLocalSocket *socket, int &linesLeft)
{
    while (linesLeft > 0 && socket->canReadLine()) {
        --linesLeft;
        enqueue(socket->readLine());
    }
    if (linesLeft == 0) {
        socket->abort();
    } else if (socket->bytesAvailable() >= MaxLineBytes) {
        qWarning() << "[SingleInstance] bad command: too long";
        socket->abort();
        enqueue("{}"); // asks for the window, as all that cannot be read
    }
}

void SingleInstance::enqueue(const QByteArray &line)
{
    if (!keep(line))
        qWarning() << "[SingleInstance] too many commands wait for a dialog; dropped:"
                   << line.first(qMin(line.size(), LoggedBytes));
    dispatchWaiting();
    // What the new launch was meant to bring to the front is the dialog that holds it up.
    if (QWidget *modal = m_waiting.isEmpty() ? nullptr : QApplication::activeModalWidget()) {
        modal->raise();
        modal->activateWindow();
    }
}

bool SingleInstance::keep(const QByteArray &line)
{
    const bool opensFiles = opensFile(line);
    if (opensFiles && !m_waiting.isEmpty() && m_waiting.constLast().opensFiles) {
        QList<QByteArray> &row = m_waiting.last().lines;
        if (row.size() < MaxWaitingFiles) {
            row.append(line);
            return true;
        }
        return false;
    }
    if (m_waiting.size() >= MaxWaiting)
        return false;
    m_waiting.append({ { line }, opensFiles });
    return true;
}

void SingleInstance::dispatchWaiting()
{
    // Each command may open a modal dialog in its turn, and the rest then waits for that one. Files go
    // together: the import takes them one after the other by itself.
    while (!m_waiting.isEmpty() && !QApplication::activeModalWidget()) {
        const Waiting next = m_waiting.takeFirst();
        for (const QByteArray &line : next.lines)
            dispatchCommand(line);
    }
    if (m_waiting.isEmpty())
        m_retry.stop();
    else
        m_retry.start();
}

void SingleInstance::dispatchCommand(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (!document.isObject()) {
        qWarning() << "[SingleInstance] bad command:" << error.errorString()
                   << line.first(qMin(line.size(), LoggedBytes));
        emit focusRequested();
        return;
    }
    const QJsonObject command = document.object();
    const QString token = command.value(TokenKey).toString();
    if (token.isEmpty() || m_platform != QLatin1StringView("wayland")) {
        emitCommand(command);
        return;
    }
    // Qt takes it from the environment; a program that is started from here later must not inherit it.
    qputenv(ActivationTokenVariable, token.toUtf8());
    emitCommand(command);
    qunsetenv(ActivationTokenVariable);
}

void SingleInstance::emitCommand(const QJsonObject &command)
{
    const QString cmd = command.value(CmdKey).toString();
    if (cmd == QLatin1StringView("show-today"))
        emit showTodayRequested();
    else if (cmd == QLatin1StringView("new-event"))
        emit newEventRequested();
    else if (cmd == QLatin1StringView("quick-add"))
        emit quickAddRequested(command.value(TextKey).toString());
    else if (cmd == QLatin1StringView("open-ics"))
        emit openIcsRequested(command.value(PathKey).toString());
    else
        emit focusRequested();
}
