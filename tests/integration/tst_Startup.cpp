#include "app/SingleInstance.h"
#include "models/Constants.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

/// The whole program as a process over a data directory of its own: first start, second launch, what a
/// broken database does, and how it ends.
class tst_Startup : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_instance = QStringLiteral("startup-%1-%2").arg(QCoreApplication::applicationPid()).arg(++m_count);
        qputenv("CALENDAR_INSTANCE", m_instance.toUtf8()); // for SingleInstance::socketName()
        m_program = std::make_unique<QProcess>();
        m_dataDir = m_dir->filePath(QStringLiteral("data"));
    }
    void cleanup()
    {
        m_program->kill();
        m_program->waitForFinished(5000);
    }

    void firstStartSeedsAndEndsOnSigterm_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("the session ends") << SIGTERM;
        QTest::newRow("Ctrl+C") << SIGINT;
    }
    void firstStartSeedsAndEndsOnSigterm()
    {
        QFETCH(int, signalNumber);
        startProgram();
        QVERIFY2(waitUntilItListens(), log());
        QVERIFY2(endProgram(signalNumber), log());
        QCOMPARE(m_program->exitCode(), 0);
        QCOMPARE(query(QStringLiteral("SELECT id FROM calendars")), QString(LocalDefaults::PersonalCalendarId));
        QCOMPARE(query(QStringLiteral("SELECT max(version) FROM schema_version")), QStringLiteral("16"));
        QCOMPARE(query(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }

    void secondLaunchHandsOver()
    {
        startProgram({ QStringLiteral("--background") });
        QVERIFY2(waitUntilItListens(), log());
        QProcess second;
        second.setProcessEnvironment(environment());
        second.start(QStringLiteral(QUILLON_PROGRAM), { QStringLiteral("--show-today") });
        QVERIFY(second.waitForFinished(15'000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(endProgram(SIGTERM));
        QCOMPARE(m_program->exitCode(), 0);
    }

    void garbageFromASecondProcessIsSurvived()
    {
        startProgram({ QStringLiteral("--show-today") }); // a launch with a command is not greeted
        QVERIFY2(waitUntilItListens(), log());
        QLocalSocket socket;
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(5000));
        socket.write("{\"cmd\":\"open-ics\",\"path\":\"/no/such/file.ics\"}\n{\"cmd\":\"new-event\"}\n");
        socket.write(QByteArray("\xff\x00}{\n[[[[\n", 10) + QByteArray(100'000, '\n'));
        QVERIFY(socket.waitForBytesWritten(5000));
        QVERIFY(socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(5000));
        QVERIFY2(waitUntilItListens(), log());
        QVERIFY2(endProgram(SIGTERM), log()); // with a message box open
        QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
    }

    void unusableDataDirectoryEndsWithAMessage_data()
    {
        QTest::addColumn<bool>("isCorrupt");
        QTest::newRow("below a file") << false;
        QTest::newRow("corrupt database") << true;
    }
    void unusableDataDirectoryEndsWithAMessage()
    {
        QFETCH(bool, isCorrupt);
        const QByteArray noise = QByteArray("This is no database. ").repeated(500);
        if (isCorrupt)
            writeFile(m_dataDir + QStringLiteral("/calendar.db"), noise);
        else
            writeFile(m_dataDir, noise);
        startProgram();
        // The box is what it waits with: the socket answers long before, so ask the log.
        QVERIFY2(waitForLog("[Startup] the database cannot be used"), log());
        QVERIFY2(endProgram(SIGTERM), log());
        QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_program->exitCode(), 1);
        QFile file(isCorrupt ? m_dataDir + QStringLiteral("/calendar.db") : m_dataDir);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), noise); // nothing that could be rescued is lost
    }

    void newerDatabaseOpens()
    {
        runOnce();
        execute(QStringLiteral("INSERT INTO schema_version (version, name) VALUES (99, 'of the future')"));
        execute(QStringLiteral("ALTER TABLE events ADD COLUMN mood TEXT"));
        runOnce();
        QCOMPARE(m_program->exitCode(), 0);
        QCOMPARE(query(QStringLiteral("SELECT max(version) FROM schema_version")), QStringLiteral("99"));
    }

    void interruptedRemovalIsFinished()
    {
        runOnce();
        const QString now = QStringLiteral("'2024-02-29T12:00:00Z'");
        execute(QStringLiteral("INSERT INTO accounts (id, name, type, created_at, updated_at, deleted_at) "
                               "VALUES ('gone', 'Gone', 'caldav', %1, %1, %1)")
                    .arg(now));
        execute(QStringLiteral("INSERT INTO calendars (id, account_id, url, name, created_at, updated_at) "
                               "VALUES ('left', 'gone', 'https://dav.example/left/', 'Left', %1, %1)")
                    .arg(now));
        runOnce();
        QCOMPARE(query(QStringLiteral("SELECT count(*) FROM calendars WHERE id = 'left'")), QStringLiteral("0"));
        QCOMPARE(query(QStringLiteral("SELECT count(*) FROM accounts WHERE id = 'gone'")), QStringLiteral("1"));
        QCOMPARE(query(QStringLiteral("SELECT count(*) FROM calendars")), QStringLiteral("1"));
    }

private:
    QProcessEnvironment environment() const
    {
        QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
        result.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        result.insert(QStringLiteral("CALENDAR_DATA_DIR"), m_dataDir);
        result.insert(QStringLiteral("CALENDAR_INSTANCE"), m_instance);
        result.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir->filePath(QStringLiteral("config")));
        return result;
    }

    void startProgram(const QStringList &args = {})
    {
        m_log.clear();
        m_program->setProcessChannelMode(QProcess::MergedChannels);
        m_program->setProcessEnvironment(environment());
        m_program->start(QStringLiteral(QUILLON_PROGRAM), args);
        QVERIFY(m_program->waitForStarted(5000));
    }

    /// The event loop runs: it has accepted a connection and closed it when we did.
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
            // Too long a line is cut off by the receiver's event loop.
            socket.write(QByteArray(SingleInstance::MaxLineBytes + 1, 'x'));
            return socket.waitForDisconnected(15'000) || socket.state() == QLocalSocket::UnconnectedState;
        }
        return false;
    }

    bool waitForLog(const QByteArray &text)
    {
        QElapsedTimer timer;
        timer.start();
        while (!m_log.contains(text) && timer.elapsed() < 15'000 && m_program->state() == QProcess::Running) {
            m_program->waitForReadyRead(500);
            m_log += m_program->readAll();
        }
        return m_log.contains(text);
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

    static void writeFile(const QString &path, const QByteArray &text)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    /// The first value of the answer, read from the file after the program has ended.
    QString query(const QString &sql)
    {
        QString value;
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("look"));
            database.setDatabaseName(m_dataDir + QStringLiteral("/calendar.db"));
            QSqlQuery query(database);
            value = !database.open() || !query.exec(sql) ? database.lastError().text() + query.lastError().text()
                : query.next()                           ? query.value(0).toString()
                                                         : QStringLiteral("no row");
        }
        QSqlDatabase::removeDatabase(QStringLiteral("look"));
        return value;
    }
    void execute(const QString &sql) { QCOMPARE(query(sql), QStringLiteral("no row")); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QProcess> m_program;
    QString m_dataDir;
    QString m_instance;
    QByteArray m_log;
    int m_count = 0;
};

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_Startup.moc"
