#include "app/SingleInstance.h"
#include "models/Constants.h"
#include "support/TestData.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

/// The whole program as a process over a data directory of its own: first start, second launch, what a
/// broken database does, and how it ends.
class tst_Startup : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_instance = u"startup-%1-%2"_s.arg(QCoreApplication::applicationPid()).arg(++m_count);
        qputenv("CALENDAR_INSTANCE", m_instance.toUtf8()); // for SingleInstance::socketName()
        m_program = std::make_unique<QProcess>();
        m_dataDir = m_dir->filePath(u"data"_s);
        m_database = m_dataDir + u"/calendar.db"_s;
    }
    void cleanup()
    {
        m_program->kill();
        m_program->waitForFinished(5000);
    }

    void firstStartSeedsAndEndsOnASignal()
    {
        for (const int signalNumber : { SIGINT, SIGTERM }) {
            startProgram();
            QVERIFY2(waitUntilItListens(), log());
            QVERIFY2(endProgram(signalNumber), log());
            QCOMPARE(m_program->exitCode(), 0);
            QCOMPARE(query(u"SELECT id FROM calendars"_s), QString(LocalDefaults::PersonalCalendarId));
            QCOMPARE(query(u"PRAGMA integrity_check"_s), u"ok"_s);
        }
    }

    void hearsWhatOtherProcessesSend()
    {
        startProgram({ u"--background"_s });
        QVERIFY2(waitUntilItListens(), log());
        QProcess second;
        second.setProcessEnvironment(m_program->processEnvironment());
        second.start(QStringLiteral(QUILLON_PROGRAM), { u"--show-today"_s });
        QVERIFY(second.waitForFinished(15'000));
        QVERIFY(second.exitStatus() == QProcess::NormalExit && second.exitCode() == 0);

        QLocalSocket socket;
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(5000));
        socket.write("{\"cmd\":\"open-ics\",\"path\":\"/no/such/file.ics\"}\n" + QByteArray(100'000, '\n'));
        QVERIFY(socket.waitForDisconnected(5000));
        QVERIFY2(endProgram(SIGTERM), log()); // with a message box open
        QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
    }

    void unusableDataDirectoryEndsWithAMessage_data()
    {
        columns<bool>("isCorrupt");
        row("below a file", false);
        row("corrupt database", true);
    }
    void unusableDataDirectoryEndsWithAMessage()
    {
        QFETCH(bool, isCorrupt);
        QFile file(isCorrupt ? m_database : m_dataDir);
        QVERIFY(!isCorrupt || QDir().mkpath(m_dataDir));
        const QByteArray noise = QByteArray("This is no database. ").repeated(500);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(noise) == noise.size());
        file.close();
        startProgram();
        // The box is what it waits with: the socket answers long before, so ask the log.
        const auto isTold = [this] { return QByteArray(log()).contains("[Startup] the database cannot be used"); };
        QTRY_VERIFY_WITH_TIMEOUT(isTold(), 15'000);
        QVERIFY2(endProgram(SIGTERM), log());
        QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_program->exitCode(), 1);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), noise); // nothing that could be rescued is lost
    }

    void oldAndNewDatabasesOpen()
    {
        runOnce();
        for (const QString &sql :
             { u"INSERT INTO schema_version (version, name) VALUES (99, 'of the future')"_s,
               u"ALTER TABLE events ADD COLUMN mood TEXT"_s,
               u"INSERT INTO accounts (id, name, type, deleted_at) VALUES ('gone', '', 'caldav', '2024')"_s,
               u"INSERT INTO calendars (id, account_id, url, name) VALUES ('left', 'gone', 'u', 'Left')"_s })
            QCOMPARE(query(sql), u"no row"_s);
        runOnce();
        QCOMPARE(query(u"SELECT max(version) FROM schema_version"_s), u"99"_s);
        // An interrupted removal is finished.
        QCOMPARE(query(u"SELECT group_concat(id) FROM calendars"_s), QString(LocalDefaults::PersonalCalendarId));
        QCOMPARE(query(u"SELECT count(*) FROM accounts WHERE id = 'gone'"_s), u"1"_s);
    }

private:
    void startProgram(const QStringList &args = {})
    {
        m_log.clear();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"CALENDAR_DATA_DIR"_s, m_dataDir);
        environment.insert(u"CALENDAR_INSTANCE"_s, m_instance);
        environment.insert(u"XDG_CONFIG_HOME"_s, m_dir->filePath(u"config"_s));
        m_program->setProcessChannelMode(QProcess::MergedChannels);
        m_program->setProcessEnvironment(environment);
        m_program->start(QStringLiteral(QUILLON_PROGRAM), args);
        QVERIFY(m_program->waitForStarted(5000));
    }

    /// The event loop runs: it has accepted a connection and cut it off.
    bool waitUntilItListens()
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 15'000 && m_program->state() == QProcess::Running) {
            QLocalSocket socket;
            socket.connectToServer(SingleInstance::socketName());
            if (!socket.waitForConnected(500)) {
                m_program->waitForReadyRead(50);
                continue;
            }
            socket.write(QByteArray(SingleInstance::MaxLineBytes + 1, 'x')); // too long a line
            return socket.waitForDisconnected(15'000) || socket.state() == QLocalSocket::UnconnectedState;
        }
        return false;
    }

    bool endProgram(int signalNumber)
    {
        ::kill(static_cast<pid_t>(m_program->processId()), signalNumber);
        return m_program->waitForFinished(10'000);
    }

    void runOnce()
    {
        startProgram();
        QVERIFY2(waitUntilItListens(), log());
        QVERIFY2(endProgram(SIGTERM), log());
        QCOMPARE(m_program->exitCode(), 0);
    }

    const char *log()
    {
        m_log += m_program->readAll();
        return m_log.constData();
    }

    /// The first value of the answer, from the file of a program that has ended.
    QString query(const QString &sql)
    {
        QString value;
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"look"_s);
            database.setDatabaseName(m_database);
            QSqlQuery query(database);
            value = !database.open() || !query.exec(sql) ? database.lastError().text() + query.lastError().text()
                : query.next()                           ? query.value(0).toString()
                                                         : u"no row"_s;
        }
        QSqlDatabase::removeDatabase(u"look"_s);
        return value;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QProcess> m_program;
    QString m_dataDir;
    QString m_database;
    QString m_instance;
    QByteArray m_log;
    int m_count = 0;
};

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_Startup.moc"
