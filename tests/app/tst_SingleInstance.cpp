#include "app/SingleInstance.h"
#include "support/TestData.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString Program = u"/usr/bin/quillon-calendar.ics"_s;

/// On the way to the running instance. It is seen that the other side cut it off.
class Sender {
public:
    explicit Sender(const QByteArray &bytes)
        : m_cut(&m_socket, &QLocalSocket::disconnected)
    {
        m_socket.connectToServer(SingleInstance::socketName());
        if (!m_socket.waitForConnected(2000))
            qFatal("nobody listens");
        send(bytes);
    }
    void send(const QByteArray &bytes) { m_socket.write(bytes); }
    [[nodiscard]] bool isSent() const { return m_socket.bytesToWrite() == 0; }
    [[nodiscard]] bool isCutOff() const { return m_cut.size() == 1; }

private:
    QLocalSocket m_socket;
    QSignalSpy m_cut;
};

/// Sends as many lines as one connection may: that it is cut off then shows that they have been read.
void sendAndWait(const QByteArray &lines)
{
    QCOMPARE(lines.count('\n'), SingleInstance::MaxLinesPerConnection);
    const Sender sender(lines);
    QTRY_VERIFY(sender.isCutOff());
}

}

/// The channel between a running instance and later launches.
class tst_SingleInstance : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("CALENDAR_INSTANCE", "test-" + QByteArray::number(QCoreApplication::applicationPid()));
        QVERIFY(QDir::setCurrent(m_dir.path()));
        QVERIFY(QFile(u"LOUD.ICS"_s).open(QIODevice::WriteOnly));
    }

    void init()
    {
        m_running = std::make_unique<SingleInstance>();
        QVERIFY(!m_running->tryRouteToExisting({ Program }));
        m_heard.clear();
        const auto hear = [this](const QString &what) { return [this, what] { m_heard.append(what); }; };
        const auto hearText = [this](const QString &what) {
            return [this, what](const QString &text) { m_heard.append(what + u':' + text); };
        };
        connect(m_running.get(), &SingleInstance::focusRequested, this, hear(u"focus"_s));
        connect(m_running.get(), &SingleInstance::showTodayRequested, this, hear(u"show-today"_s));
        connect(m_running.get(), &SingleInstance::newEventRequested, this, hear(u"new-event"_s));
        connect(m_running.get(), &SingleInstance::quickAddRequested, this, hearText(u"quick-add"_s));
        connect(m_running.get(), &SingleInstance::openIcsRequested, this, hearText(u"open-ics"_s));
    }
    void cleanup()
    {
        m_running.reset();
        qunsetenv("XDG_ACTIVATION_TOKEN");
    }

    void parsesArguments_data()
    {
        columns<QString, QString>("args", "command"); // args separated by |; DIR for the working directory
        row("unknown", "--background|--frobnicate|x", R"({"cmd":"focus"})");
        row("new event", "--background|--new-event", R"({"cmd":"new-event"})");
        row("quick add", "--quick-add|lunch at 1", R"({"cmd":"quick-add","text":"lunch at 1"})");
        row("quick add with =", "--quick-add=lunch=fun", R"({"cmd":"quick-add","text":"lunch=fun"})");
        row("quick add of a switch", "--quick-add|--new-event", R"({"cmd":"quick-add","text":"--new-event"})");
        row("line feed in the text", "--quick-add|a\nb", R"({"cmd":"quick-add","text":"a\nb"})");
        row("file that is not there", "--ics|sub/../no.ics", R"({"cmd":"open-ics","path":"DIR/no.ics"})");
        row("absolute file of another name", "--ics|/a/b.txt", R"({"cmd":"open-ics","path":"/a/b.txt"})");
        row("a desktop entry's %f without a file", "--ics", R"({"cmd":"focus"})");
        row("bare file in capitals", "LOUD.ICS", R"({"cmd":"open-ics","path":"DIR/LOUD.ICS"})");
        row("bare file that is not there", "gone.ics", R"({"cmd":"focus"})");
        row("last one wins", "--new-event|--show-today", R"({"cmd":"show-today"})");
        row("wrong case", "--Show-Today", R"({"cmd":"focus"})");
    }
    void parsesArguments()
    {
        QFETCH(QString, args);
        QFETCH(QString, command);
        const QByteArray line = SingleInstance::parseArgsToCommand(QStringList(Program) + args.split(u'|'));
        QVERIFY(line.count('\n') == 1 && line.endsWith('\n'));
        command.replace(u"DIR"_s, QDir::currentPath());
        QCOMPARE(QJsonDocument::fromJson(line), QJsonDocument::fromJson(command.toUtf8()));
    }

    void laterLaunchIsRouted()
    {
        SingleInstance later;
        QVERIFY(later.tryRouteToExisting({ Program, u"--quick-add"_s, u"Tee für 2 ☕"_s }));
        QTRY_COMPARE(heard(), u"quick-add:Tee für 2 ☕"_s);

        const QByteArray own = qgetenv("CALENDAR_INSTANCE");
        qputenv("CALENDAR_INSTANCE", own + "-dev"); // which is another program
        SingleInstance other;
        const bool routed = other.tryRouteToExisting({ Program });
        qputenv("CALENDAR_INSTANCE", own);
        QVERIFY(!routed);
    }

    void socketIsTheOwnersAloneAndReplacedAfterACrash()
    {
        const QFileInfo socket(socketPath());
        QVERIFY2(socket.exists(), "the socket is not where Qt puts it on Unix");
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(socket.permissions() & others));
        m_running.reset();
        // A socket file that nobody listens to any more.
        QVERIFY(QFile(socketPath()).open(QIODevice::WriteOnly));
        SingleInstance next;
        QVERIFY(!next.tryRouteToExisting({ Program }));
        QVERIFY(SingleInstance().tryRouteToExisting({ Program }));
    }

    void readsLines_data()
    {
        columns<QByteArray, QString>("bytes", "expected");
        row("two in one write", "{\"cmd\":\"show-today\"}\n{\"cmd\":\"new-event\"}\n"_ba, "show-today new-event");
        row("unknown command", "{\"cmd\":\"dance\"}\n"_ba, "focus");
        row("an array", "[\"show-today\"]\n"_ba, "focus");
        row("bytes that are not UTF-8", "{\"cmd\":\"\xff\xfe\"}\n"_ba, "focus");
        row("deep nesting", QByteArray(QByteArray(100'000, '[') + '\n'), "focus");
        row("good after bad", "?\n{\"cmd\":\"show-today\"}\n"_ba, "focus show-today");
    }
    void readsLines()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        // In two pieces, which arrive one after the other.
        Sender sender(bytes.first(bytes.size() / 2));
        QTRY_VERIFY(sender.isSent());
        QCoreApplication::processEvents();
        sender.send(bytes.sliced(bytes.size() / 2));
        QTRY_COMPARE(heard(), expected);
    }

    void tooMuchIsCutOff()
    {
        const Sender sender(QByteArray(3 * SingleInstance::MaxLineBytes, 'x'));
        QTRY_VERIFY_WITH_TIMEOUT(sender.isCutOff(), 10'000);
        QTRY_COMPARE(heard(), u"focus"_s);
        const Sender flood(QByteArray("{\"cmd\":\"new-event\"}\n").repeated(1000));
        QTRY_VERIFY(flood.isCutOff());
        QCOMPARE(m_heard.size(), 65);
        QVERIFY(SingleInstance().tryRouteToExisting({ Program, u"--show-today"_s }));
        QTRY_COMPARE(m_heard.constLast(), u"show-today"_s);
    }

    void waitsForAModalDialog()
    {
        QDialog dialog;
        showModal(dialog);
        SingleInstance later;
        QVERIFY(later.tryRouteToExisting({ Program, u"--show-today"_s }));
        QVERIFY(later.tryRouteToExisting({ Program, u"--new-event"_s }));
        // When this later connection has been read and cut off, the lines of the earlier ones have arrived.
        const Sender last(QByteArray(2 * SingleInstance::MaxLineBytes, 'x'));
        QTRY_VERIFY_WITH_TIMEOUT(last.isCutOff(), 10'000);
        QCOMPARE(heard(), u""_s);
        QDialog second;
        second.setModal(true);
        connect(m_running.get(), &SingleInstance::showTodayRequested, &second, &QDialog::show);
        dialog.close();
        QTRY_COMPARE(heard(), u"show-today"_s); // which opened the next dialog
        second.close();
        QTRY_COMPARE(heard(), u"show-today new-event focus"_s);
    }

    void whatWaitsComesInOrderUpToALimit()
    {
        QDialog dialog;
        showModal(dialog);
        QByteArrayList lines;
        QStringList expected;
        for (int i = 0; i < 126; ++i) { // as a selection in a file manager
            lines.append("{\"cmd\":\"open-ics\",\"path\":\"/" + QByteArray::number(i) + "\"}\n");
            expected.append(u"open-ics:/%1"_s.arg(i));
        }
        lines << "{\"cmd\":\"show-today\"}\n"
              << "{\"cmd\":\"open-ics\",\"path\":\"/last\"}\n";
        sendAndWait(lines.first(64).join());
        sendAndWait(lines.sliced(64).join());
        for (int i = 0; i < 3; ++i) // 64 wait then: the files count as two
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"too many commands.*new-event"_s));
        sendAndWait(QByteArray("{\"cmd\":\"new-event\"}\n").repeated(64));
        expected << u"show-today"_s << u"open-ics:/last"_s << QStringList(61, u"new-event"_s);
        QCOMPARE(heard(), u""_s);
        dialog.close();
        QTRY_COMPARE(m_heard.size(), expected.size());
        QCOMPARE(m_heard, expected);
    }

#ifdef Q_OS_LINUX
    void anotherUsersServerIsNotTold()
    {
        if (geteuid() != 0)
            QSKIP("needs to be root to listen as another user");
        m_running.reset();
        const QTemporaryDir sockets;
        QVERIFY(QFile::setPermissions(sockets.path(), QFile::Permissions(0x7777)));
        const auto restore = qScopeGuard([before = qgetenv("TMPDIR")] { qputenv("TMPDIR", before); });
        qputenv("TMPDIR", sockets.path().toLocal8Bit());
        QLocalServer foreign;
        const uid_t nobody = 65534;
        QCOMPARE(seteuid(nobody), 0);
        const bool listens = foreign.listen(SingleInstance::socketName());
        QCOMPARE(seteuid(0), 0);
        QVERIFY2(listens, qPrintable(foreign.errorString()));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"another user listens"_s));
        SingleInstance next;
        QVERIFY(!next.tryRouteToExisting({ Program, u"--quick-add"_s, u"secret"_s }));
        QVERIFY(foreign.waitForNewConnection(2000));
        QLocalSocket *heard = foreign.nextPendingConnection();
        QTRY_COMPARE(heard->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(heard->readAll(), QByteArray());
    }
#endif

    void carriesTheActivationToken()
    {
        m_running.reset();
        for (const QString &platform : { u"wayland"_s, u"xcb"_s }) {
            SingleInstance running(nullptr, platform);
            QVERIFY(!running.tryRouteToExisting({ Program }));
            qputenv("XDG_ACTIVATION_TOKEN", "token-1");
            QVERIFY(SingleInstance().tryRouteToExisting({ Program }));
            qunsetenv("XDG_ACTIVATION_TOKEN");
            QByteArray seen("nothing");
            connect(&running, &SingleInstance::focusRequested, this, [&] { seen = qgetenv("XDG_ACTIVATION_TOKEN"); });
            QTRY_COMPARE(seen, platform == u"wayland" ? QByteArray("token-1") : QByteArray());
            QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
        }
    }

private:
    [[nodiscard]] QString heard() const
    {
        return m_heard.join(u' ');
    }
    static QString socketPath()
    {
        return QDir::tempPath() + u'/' + SingleInstance::socketName();
    }
    static void showModal(QDialog &dialog)
    {
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    }

    QTemporaryDir m_dir;
    std::unique_ptr<SingleInstance> m_running;
    QStringList m_heard;
};

QTEST_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
