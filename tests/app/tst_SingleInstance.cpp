#include "app/SingleInstance.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

/// The channel between a running instance and later launches.
class tst_SingleInstance : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("CALENDAR_INSTANCE", "test-" + QByteArray::number(QCoreApplication::applicationPid()));
        QVERIFY(m_dir.isValid());
        QVERIFY(QDir::setCurrent(m_dir.path()));
        for (const char *name : { "life.ics", "LOUD.ICS" }) {
            QFile file(QString::fromLatin1(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void init()
    {
        m_running = std::make_unique<SingleInstance>();
        QVERIFY(!m_running->tryRouteToExisting({ program() }));
        m_heard.clear();
        connect(m_running.get(), &SingleInstance::focusRequested, this, [this] { hear("focus"); });
        connect(m_running.get(), &SingleInstance::showTodayRequested, this, [this] { hear("show-today"); });
        connect(m_running.get(), &SingleInstance::newEventRequested, this, [this] { hear("new-event"); });
        connect(m_running.get(), &SingleInstance::quickAddRequested, this,
                [this](const QString &text) { hear("quick-add", text); });
        connect(m_running.get(), &SingleInstance::openIcsRequested, this,
                [this](const QString &path) { hear("open-ics", path); });
    }
    void cleanup()
    {
        m_running.reset();
        qunsetenv("XDG_ACTIVATION_TOKEN");
    }

    void parsesArguments_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QByteArray>("command"); // with ' for " and DIR for the working directory

        const auto row = [](const char *name, std::initializer_list<const char *> args, const char *command) {
            QTest::newRow(name) << list(args) << QByteArray(command);
        };
        row("none", {}, "{'cmd':'focus'}");
        row("background", { "--background" }, "{'cmd':'focus'}");
        row("unknown", { "--frobnicate", "x" }, "{'cmd':'focus'}");
        row("today", { "--show-today" }, "{'cmd':'show-today'}");
        row("new event", { "--background", "--new-event" }, "{'cmd':'new-event'}");
        row("quick add", { "--quick-add", "lunch Thursday 1pm" }, "{'cmd':'quick-add','text':'lunch Thursday 1pm'}");
        row("quick add with =", { "--quick-add=lunch=fun" }, "{'cmd':'quick-add','text':'lunch=fun'}");
        row("quick add with = and nothing", { "--quick-add=" }, "{'cmd':'quick-add','text':''}");
        row("quick add at the end", { "--quick-add" }, "{'cmd':'focus'}");
        row("quick add of a file name", { "--quick-add", "life.ics" }, "{'cmd':'quick-add','text':'life.ics'}");
        row("quick add of a switch", { "--quick-add", "--new-event" }, "{'cmd':'quick-add','text':'--new-event'}");
        row("file", { "--ics", "life.ics" }, "{'cmd':'open-ics','path':'DIR/life.ics'}");
        row("file that is not there", { "--ics", "sub/../no.ics" }, "{'cmd':'open-ics','path':'DIR/no.ics'}");
        row("absolute file", { "--ics", "/a/b.ics" }, "{'cmd':'open-ics','path':'/a/b.ics'}");
        row("file switch at the end", { "--ics" }, "{'cmd':'focus'}"); // a desktop entry's %f without a file
        row("file of another name", { "--ics", "/a/life.txt" }, "{'cmd':'open-ics','path':'/a/life.txt'}");
        row("bare file", { "life.ics" }, "{'cmd':'open-ics','path':'DIR/life.ics'}");
        row("bare file in capitals", { "LOUD.ICS" }, "{'cmd':'open-ics','path':'DIR/LOUD.ICS'}");
        row("bare file that is not there", { "gone.ics" }, "{'cmd':'focus'}");
        row("last one wins", { "--new-event", "--show-today" }, "{'cmd':'show-today'}");
        row("keys of an earlier one stay", { "--quick-add", "tea", "--show-today" },
            "{'cmd':'show-today','text':'tea'}");
        row("wrong case", { "--Show-Today" }, "{'cmd':'focus'}");
        row("line feed in the text", { "--quick-add", "a\nb" }, "{'cmd':'quick-add','text':'a\\nb'}");
    }
    void parsesArguments()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, command);
        const QByteArray line = SingleInstance::parseArgsToCommand(QStringList(program()) + args);
        QCOMPARE(line.count('\n'), 1);
        QVERIFY(line.endsWith('\n'));
        command.replace('\'', '"').replace("DIR", QDir::currentPath().toUtf8());
        QCOMPARE(QJsonDocument::fromJson(line).object(), QJsonDocument::fromJson(command).object());
    }

    void laterLaunchIsRouted()
    {
        SingleInstance later;
        QVERIFY(later.tryRouteToExisting({ program(), QStringLiteral("--quick-add"), QStringLiteral("Tee für 2 ☕") }));
        QTRY_COMPARE(m_heard, QStringList(QStringLiteral("quick-add:Tee für 2 ☕")));
        QVERIFY(later.tryRouteToExisting({ program(), QStringLiteral("--background") }));
        QTRY_COMPARE(m_heard.size(), 2);
        QCOMPARE(m_heard.constLast(), QStringLiteral("focus"));
    }

    void otherInstancesAreApart()
    {
        const QByteArray own = qgetenv("CALENDAR_INSTANCE");
        qputenv("CALENDAR_INSTANCE", own + "-dev");
        SingleInstance other;
        const bool routed = other.tryRouteToExisting({ program() });
        qputenv("CALENDAR_INSTANCE", own);
        QVERIFY(!routed);
    }

    void socketOfACrashIsReplaced()
    {
        m_running.reset();
        // A socket file that nobody listens to any more.
        const QString path = QDir::tempPath() + QLatin1Char('/') + SingleInstance::socketName();
        QFile stale(path);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        SingleInstance next;
        QVERIFY(!next.tryRouteToExisting({ program() }));
        QVERIFY(SingleInstance().tryRouteToExisting({ program() }));
    }

    void socketAdmitsTheOwnerOnly()
    {
        const QFileInfo socket(QDir::tempPath() + QLatin1Char('/') + SingleInstance::socketName());
        QVERIFY2(socket.exists(), "the socket is not where Qt puts it on Unix");
        QVERIFY(
            !(socket.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
    }

    void readsLines_data()
    {
        QTest::addColumn<QList<QByteArray>>("writes");
        QTest::addColumn<QStringList>("heard");
        using Writes = QList<QByteArray>;
        QTest::newRow("two in one write")
            << Writes{ "{\"cmd\":\"show-today\"}\n{\"cmd\":\"new-event\"}\n" } << list({ "show-today", "new-event" });
        QTest::newRow("one in three writes")
            << Writes{ "{\"cmd\":\"quick", "-add\",\"text\":\"x\"", "}\n" } << list({ "quick-add:x" });
        QTest::newRow("unknown command") << Writes{ "{\"cmd\":\"dance\"}\n" } << list({ "focus" });
        QTest::newRow("no command") << Writes{ "{}\n" } << list({ "focus" });
        QTest::newRow("command is no text") << Writes{ "{\"cmd\":[1]}\n" } << list({ "focus" });
        QTest::newRow("an array") << Writes{ "[\"show-today\"]\n" } << list({ "focus" });
        QTest::newRow("empty line") << Writes{ "\n" } << list({ "focus" });
        QTest::newRow("no JSON") << Writes{ "GET / HTTP/1.1\r\n" } << list({ "focus" });
        QTest::newRow("bytes that are not UTF-8") << Writes{ "{\"cmd\":\"\xff\xfe\"}\n" } << list({ "focus" });
        QTest::newRow("NUL bytes") << Writes{ QByteArray(100, '\0') + '\n' } << list({ "focus" });
        QTest::newRow("deep nesting") << Writes{ QByteArray(100'000, '[') + '\n' } << list({ "focus" });
        QTest::newRow("good after bad") << Writes{ "?\n{\"cmd\":\"show-today\"}\n" } << list({ "focus", "show-today" });
    }
    void readsLines()
    {
        QFETCH(QList<QByteArray>, writes);
        QFETCH(QStringList, heard);
        QLocalSocket socket;
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(2000));
        for (const QByteArray &bytes : writes) {
            socket.write(bytes);
            QTRY_COMPARE(socket.bytesToWrite(), 0);
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(m_heard.size(), heard.size());
        QCOMPARE(m_heard, heard);
    }

    void endlessLineIsCutOff()
    {
        QLocalSocket socket;
        QSignalSpy cut(&socket, &QLocalSocket::disconnected);
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(2000));
        socket.write(QByteArray(3 * SingleInstance::MaxLineBytes, 'x'));
        QTRY_COMPARE_WITH_TIMEOUT(cut.size(), 1, 10'000);
        QTRY_COMPARE(m_heard, QStringList(QStringLiteral("focus")));
        QVERIFY(SingleInstance().tryRouteToExisting({ program(), QStringLiteral("--show-today") }));
        QTRY_COMPARE(m_heard.size(), 2);
    }

    void floodIsCutOff()
    {
        QLocalSocket socket;
        QSignalSpy cut(&socket, &QLocalSocket::disconnected);
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(2000));
        socket.write(QByteArray("{\"cmd\":\"new-event\"}\n").repeated(1000));
        QTRY_COMPARE(cut.size(), 1);
        QCOMPARE(m_heard.size(), 64);
    }

    void waitsForAModalDialog()
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        SingleInstance later;
        QVERIFY(later.tryRouteToExisting({ program(), QStringLiteral("--show-today") }));
        QVERIFY(later.tryRouteToExisting({ program(), QStringLiteral("--new-event") }));

        // When this later connection has been read and cut off, the lines of the earlier ones have arrived.
        QLocalSocket socket;
        QSignalSpy cut(&socket, &QLocalSocket::disconnected);
        socket.connectToServer(SingleInstance::socketName());
        socket.write(QByteArray(2 * SingleInstance::MaxLineBytes, 'x'));
        QTRY_COMPARE_WITH_TIMEOUT(cut.size(), 1, 10'000);
        QCOMPARE(m_heard, QStringList());
        QDialog second;
        second.setModal(true);
        connect(m_running.get(), &SingleInstance::showTodayRequested, &second, &QDialog::show);
        dialog.close();
        QTRY_COMPARE(m_heard, QStringList(QStringLiteral("show-today"))); // which opened the next dialog
        second.close();
        QTRY_COMPARE(m_heard, list({ "show-today", "new-event", "focus" }));
    }

    void waitingFilesComeInOrder()
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QStringList expected;
        for (const int first : { 0, 64 }) { // as a selection of 126 files in a file manager
            QByteArray lines;
            for (int i = first; i < qMin(first + 64, 126); ++i) {
                lines += "{\"cmd\":\"open-ics\",\"path\":\"/" + QByteArray::number(i) + ".ics\"}\n";
                expected.append(QStringLiteral("open-ics:/%1.ics").arg(i));
            }
            if (first == 64)
                lines += "{\"cmd\":\"show-today\"}\n{\"cmd\":\"open-ics\",\"path\":\"/last.ics\"}\n";
            sendAndWait(lines);
        }
        expected << QStringLiteral("show-today") << QStringLiteral("open-ics:/last.ics");
        QCOMPARE(m_heard, QStringList());
        dialog.close();
        QTRY_COMPARE(m_heard.size(), expected.size());
        QCOMPARE(m_heard, expected);
    }

    void tooManyWaitingAreDroppedAndLogged()
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        sendAndWait(QByteArray("{\"cmd\":\"new-event\"}\n").repeated(64));
        for (int i = 0; i < 64; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("too many commands.*show-today")));
        sendAndWait(QByteArray("{\"cmd\":\"show-today\"}\n").repeated(64));
        dialog.close();
        QTRY_COMPARE(m_heard, QStringList(64, QStringLiteral("new-event")));
    }

    void anotherUsersServerIsNotTold()
    {
#ifdef Q_OS_LINUX
        if (geteuid() != 0)
            QSKIP("needs to be root to listen as another user");
        m_running.reset();
        QLocalServer foreign;
        const uid_t nobody = 65534;
        QCOMPARE(seteuid(nobody), 0);
        const bool listens = foreign.listen(SingleInstance::socketName());
        QCOMPARE(seteuid(0), 0);
        if (!listens)
            QSKIP("the folder of sockets is not open to others here");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("another user listens")));
        SingleInstance next;
        QVERIFY(!next.tryRouteToExisting({ program(), QStringLiteral("--quick-add"), QStringLiteral("secret") }));
        QVERIFY(foreign.waitForNewConnection(2000));
        QLocalSocket *heard = foreign.nextPendingConnection();
        QTRY_COMPARE(heard->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(heard->readAll(), QByteArray());
#else
        QSKIP("the other end's user can be told on Linux only");
#endif
    }

    void carriesTheActivationToken_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QByteArray>("seen");
        QTest::newRow("Wayland") << "wayland" << QByteArray("token-1");
        QTest::newRow("X11") << "xcb" << QByteArray();
    }
    void carriesTheActivationToken()
    {
        QFETCH(QString, platform);
        m_running.reset();
        SingleInstance running(nullptr, platform);
        QVERIFY(!running.tryRouteToExisting({ program() }));
        qputenv("XDG_ACTIVATION_TOKEN", "token-1");
        SingleInstance later;
        QVERIFY(later.tryRouteToExisting({ program() }));
        qunsetenv("XDG_ACTIVATION_TOKEN");
        QByteArray seen("nothing");
        connect(&running, &SingleInstance::focusRequested, this, [&seen] { seen = qgetenv("XDG_ACTIVATION_TOKEN"); });
        QTRY_VERIFY(seen != "nothing");
        QTEST(seen, "seen");
        QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    }

private:
    static QStringList list(std::initializer_list<const char *> words)
    {
        QStringList result;
        for (const char *word : words)
            result.append(QString::fromUtf8(word));
        return result;
    }
    /// Sends as many lines as one connection may: that it is cut off then shows that they have been read.
    static void sendAndWait(const QByteArray &lines)
    {
        QCOMPARE(lines.count('\n'), SingleInstance::MaxLinesPerConnection);
        QLocalSocket socket;
        QSignalSpy cut(&socket, &QLocalSocket::disconnected);
        socket.connectToServer(SingleInstance::socketName());
        QVERIFY(socket.waitForConnected(2000));
        socket.write(lines);
        QTRY_COMPARE(cut.size(), 1);
    }
    static QString program()
    {
        return QStringLiteral("/usr/bin/quillon-calendar.ics");
    }
    void hear(const char *what, const QString &detail = {})
    {
        m_heard.append(QLatin1StringView(what) + (detail.isNull() ? QString() : QLatin1Char(':') + detail));
    }

    QTemporaryDir m_dir;
    std::unique_ptr<SingleInstance> m_running;
    QStringList m_heard;
};

QTEST_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
