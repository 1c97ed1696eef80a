#pragma once

#include <QByteArray>
#include <QGuiApplication>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

class QJsonObject;
class QLocalServer;
class QLocalSocket;

/// One running program for each user and CALENDAR_INSTANCE. A later launch hands its command to it,
/// one JSON object in a line, over a local socket that admits the same user only.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// Longest command; a peer that sends more without a line feed is cut off.
    static constexpr qint64 MaxLineBytes = 1024 * 1024;
    /// A launch sends one line; who sends more than these is cut off.
    static constexpr int MaxLinesPerConnection = 64;

    /// \p platform is Qt's name of the window system: only one of them takes activation tokens.
    explicit SingleInstance(QObject *parent = nullptr, const QString &platform = QGuiApplication::platformName());

    /// True if another instance of the same user took the command. Else this one listens from now on.
    /// Blocks for up to 1.6 s; call it before the event loop starts.
    bool tryRouteToExisting(const QStringList &args);

    /// The command of these arguments (the first is the program), line feed included. Paths come out
    /// absolute, as the receiver has another working directory.
    static QByteArray parseArgsToCommand(const QStringList &args);
    static QString socketName();

    /// Emits the signal of one command. What cannot be read asks for the window.
    Q_INVOKABLE void dispatchCommand(const QByteArray &line);

signals:
    void focusRequested();
    void showTodayRequested();
    void newEventRequested();
    void quickAddRequested(const QString &text);
    void openIcsRequested(const QString &path);

private:
    void onNewConnection();
    /// Commands that are carried out together: one, or a row of files to open.
    struct Waiting {
        QList<QByteArray> lines;
        bool opensFiles = false;
    };

    void readLines(QLocalSocket *socket, int &linesLeft);
    void enqueue(const QByteArray &line);
    bool keep(const QByteArray &line);
    void dispatchWaiting();
    void emitCommand(const QJsonObject &command);

    QString m_platform;
    QLocalServer *m_server = nullptr; // null until this is the running instance
    QList<Waiting> m_waiting; // while a modal dialog is open
    QTimer m_retry;
};
