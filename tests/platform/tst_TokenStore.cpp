#include "platform/TokenStore.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using QuillonAccount::TokenStore;

namespace {

constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

QString appId()
{
    return QStringLiteral("com.quillon.calendar.test");
}

}

/// The JSON file, and a real keyring on a bus of its own.
class tst_TokenStore : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(QStringLiteral("sub/secrets.json"));
        qputenv("CALENDAR_TOKEN_STORE", "file:" + QFile::encodeName(m_path));
    }
    void cleanup()
    {
        qunsetenv("CALENDAR_TOKEN_STORE");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    }

    void fileKeepsValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "hunter2";
        QTest::newRow("empty") << "";
        QTest::newRow("unicode") << QStringLiteral("pässwört 日本語 🔑");
        QTest::newRow("JSON") << "{\"access_token\":\"a\\\"b\"}";
        QTest::newRow("line breaks and NUL") << QStringLiteral("a\r\nb") + QChar(0) + QStringLiteral("c");
        QTest::newRow("64 KiB") << QString(65536, QLatin1Char('x'));
    }
    void fileKeepsValues()
    {
        QFETCH(QString, text);
        const auto store = TokenStore::create(appId());
        QCOMPARE(store->value(key("a")), std::nullopt);
        QVERIFY(store->set(key("a"), text));
        QVERIFY(store->set(key("b"), QStringLiteral("other")));
        QCOMPARE(TokenStore::create(appId())->value(key("a")), text);
        QVERIFY(store->remove(key("a")));
        QVERIFY(store->remove(key("a"))); // there is none any more
        QCOMPARE(store->value(key("a")), std::nullopt);
        QCOMPARE(store->value(key("b")), QStringLiteral("other"));
    }

    void fileIsTheOwnersAlone()
    {
        ::umask(0);
        const auto store = TokenStore::create(appId());
        QVERIFY(store->set(key("a"), QStringLiteral("secret")));
        QCOMPARE(QFile::permissions(m_path), OwnerOnly);
        QVERIFY(QFile::setPermissions(m_path, OwnerOnly | QFile::ReadOther));
        QVERIFY(store->set(key("a"), QStringLiteral("secret 2")));
        QCOMPARE(QFile::permissions(m_path), OwnerOnly);
        QCOMPARE(QDir(QFileInfo(m_path).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        ::umask(022);
    }

    void fileIsReplacedAndNeverCut()
    {
        const auto store = TokenStore::create(appId());
        QVERIFY(store->set(key("a"), QStringLiteral("before")));
        QFile reader(m_path);
        QVERIFY(reader.open(QIODevice::ReadOnly)); // whoever has it open keeps the old, whole text
        QVERIFY(store->set(key("a"), QStringLiteral("after")));
        QCOMPARE(QJsonDocument::fromJson(reader.readAll()).object().value(key("a")).toString(),
                 QStringLiteral("before"));
    }

    void foreignEntriesStay()
    {
        write("{\"note\":{\"by\":\"hand\"},\"caldav-password-a\":7}");
        const auto store = TokenStore::create(appId());
        QCOMPARE(store->value(key("a")), std::nullopt); // no text
        QVERIFY(store->set(key("b"), QStringLiteral("x")));
        QCOMPARE(read().value(QLatin1StringView("note")).toObject().value(QLatin1StringView("by")).toString(),
                 QStringLiteral("hand"));
    }

    void corruptFileIsKeptAside()
    {
        const auto store = TokenStore::create(appId());
        for (const QString &aside : { m_path + QStringLiteral(".corrupt"), m_path + QStringLiteral(".corrupt2") }) {
            const QByteArray cut = "{\"caldav-password-a\":\"sec";
            write(cut);
            QCOMPARE(store->value(key("a")), std::nullopt);
            QVERIFY(store->remove(key("a")));
            QVERIFY(!QFile::exists(aside)); // reading moves nothing
            QVERIFY(store->set(key("b"), QStringLiteral("new")));
            QFile kept(aside);
            QVERIFY(kept.open(QIODevice::ReadOnly));
            QCOMPARE(kept.readAll(), cut);
            QCOMPARE(QFile::permissions(aside), OwnerOnly);
            QCOMPARE(store->value(key("b")), QStringLiteral("new"));
        }
    }

    void whatCannotBeReadIsNotWritten()
    {
        QVERIFY(QDir().mkpath(m_path)); // a folder in the file's place cannot be read, not even by root
        const auto store = TokenStore::create(appId());
        QCOMPARE(store->value(key("a")), std::nullopt);
        QVERIFY(!store->set(key("a"), QStringLiteral("x")));
        QVERIFY(!store->remove(key("a")));
        QVERIFY(QFileInfo(m_path).isDir());
    }

    void unwritablePlaceFails()
    {
        QFile blocker(m_dir->filePath(QStringLiteral("sub")));
        QVERIFY(blocker.open(QIODevice::WriteOnly)); // a file where the folder should be
        QVERIFY(!TokenStore::create(appId())->set(key("a"), QStringLiteral("x")));
    }

    void withoutAnyStoreThereIsNone()
    {
        qputenv("CALENDAR_TOKEN_STORE", "");
        qputenv("DBUS_SESSION_BUS_ADDRESS",
                "unix:path=" + QFile::encodeName(m_dir->filePath(QStringLiteral("no-bus"))));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no secret store can be reached")));
        QVERIFY(!TokenStore::create(appId()));
        m_warnings = 0;
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++m_warnings; });
        const bool isNull = !TokenStore::create(appId());
        qInstallMessageHandler(nullptr);
        QVERIFY(isNull);
        QCOMPARE(m_warnings, 0); // said once is enough

        qputenv("CALENDAR_TOKEN_STORE", "cloud:somewhere"); // no secret may land where nobody asked for it
        QVERIFY(!TokenStore::create(appId()));
    }

    void keyring()
    {
#ifndef QUILLON_HAVE_LIBSECRET
        QSKIP("built without libsecret");
#endif
        Keyring session(m_dir->path());
        QVERIFY2(session.isInstalled(), "this test needs dbus-daemon and gnome-keyring-daemon");
        QVERIFY2(session.start("correct horse"), session.log().constData());
        qputenv("CALENDAR_TOKEN_STORE", "");

        const QString text = QStringLiteral("pässwört 日本語 🔑");
        const auto store = TokenStore::create(appId());
        QVERIFY(store);
        QCOMPARE(store->value(key("a")), std::nullopt);
        QVERIFY(store->remove(key("a")));
        QVERIFY(store->set(key("a"), QStringLiteral("first")));
        QVERIFY(store->set(key("a"), text)); // replaces
        QVERIFY(store->set(key("b"), QStringLiteral("other")));
        QCOMPARE(TokenStore::create(appId())->value(key("a")), text);
        QCOMPARE(TokenStore::create(appId() + QStringLiteral(".dev"))->value(key("a")), std::nullopt);
        QVERIFY(store->remove(key("a")));
        QCOMPARE(store->value(key("a")), std::nullopt);
        QCOMPARE(store->value(key("b")), QStringLiteral("other"));
    }

    void emptyKeyringAnswersWithoutWaiting()
    {
#ifndef QUILLON_HAVE_LIBSECRET
        QSKIP("built without libsecret");
#endif
        Keyring session(m_dir->path());
        QVERIFY2(session.isInstalled(), "this test needs dbus-daemon and gnome-keyring-daemon");
        QVERIFY2(session.start({}), session.log().constData()); // a daemon, but no keyring was unlocked
        qputenv("CALENDAR_TOKEN_STORE", "");
        QElapsedTimer timer;
        timer.start();
        const auto store = TokenStore::create(appId());
        QVERIFY(store);
        QCOMPARE(store->value(key("a")), std::nullopt);
        QVERIFY(!store->set(key("a"), QStringLiteral("x"))); // nobody is there to answer the prompt
        QVERIFY(timer.elapsed() < 5000);
    }

private:
    /// A session bus and a keyring daemon in folders of their own; both end with the object.
    class Keyring {
    public:
        explicit Keyring(const QString &home)
            : m_environment(QProcessEnvironment::systemEnvironment())
        {
            for (const char *name :
                 { "HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME" }) {
                const QString path = home + QLatin1Char('/') + QLatin1StringView(name);
                QDir().mkpath(path);
                QFile::setPermissions(path, OwnerOnly | QFile::ExeOwner | QFile::ExeUser);
                m_environment.insert(QLatin1StringView(name), path);
            }
            for (const char *name : { "DISPLAY", "WAYLAND_DISPLAY" })
                m_environment.remove(QLatin1StringView(name));
        }
        ~Keyring()
        {
            QDBusConnection::disconnectFromBus(busName());
            for (QProcess *process : { &m_daemon, &m_bus }) {
                process->kill();
                process->waitForFinished(5000);
            }
        }
        Q_DISABLE_COPY_MOVE(Keyring)

        [[nodiscard]] bool isInstalled() const
        {
            return !QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty()
                && !QStandardPaths::findExecutable(QStringLiteral("gnome-keyring-daemon")).isEmpty();
        }

        bool start(const QByteArray &password)
        {
            m_bus.setProcessEnvironment(m_environment);
            m_bus.start(
                QStringLiteral("dbus-daemon"),
                { QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1") });
            if (!m_bus.waitForReadyRead(10'000))
                return false;
            const QByteArray address = m_bus.readLine().trimmed();
            qputenv("DBUS_SESSION_BUS_ADDRESS", address);
            m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(address));

            QStringList args{ QStringLiteral("--foreground"), QStringLiteral("--components=secrets") };
            if (!password.isEmpty())
                args.append(QStringLiteral("--unlock"));
            m_daemon.setProcessEnvironment(m_environment);
            m_daemon.start(QStringLiteral("gnome-keyring-daemon"), args);
            m_daemon.write(password);
            m_daemon.closeWriteChannel();
            const auto connection = QDBusConnection::connectToBus(QString::fromLatin1(address), busName());
            return QTest::qWaitFor(
                [&] { return connection.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.secrets")); },
                10'000);
        }

        QByteArray log() { return m_bus.readAllStandardError() + m_daemon.readAllStandardError(); }

    private:
        static QString busName() { return QStringLiteral("keyring-test"); }

        QProcessEnvironment m_environment;
        QProcess m_bus;
        QProcess m_daemon;
    };

    static QString key(const char *account)
    {
        return QStringLiteral("caldav-password-") + QLatin1StringView(account);
    }

    void write(const QByteArray &text)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    QJsonObject read()
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
    static inline int m_warnings = 0;
};

QTEST_GUILESS_MAIN(tst_TokenStore)
#include "tst_TokenStore.moc"
