#include "platform/TokenStore.h"
#include "support/FakePortal.h"
#include "support/TestData.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

#include <sys/stat.h>

using QuillonAccount::TokenStore;
using namespace Qt::StringLiterals;

namespace {

constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
const QString AppId = u"com.quillon.calendar.test"_s;
const QString A = u"caldav-password-a"_s;
const QString B = u"caldav-password-b"_s;

/// A keyring daemon on a bus of its own, in folders of its own; both end with the object.
class Keyring {
public:
    ~Keyring()
    {
        QDBusConnection::disconnectFromBus(BusName);
        m_daemon.kill();
        m_daemon.waitForFinished(5000);
    }

    /// Without \p password no keyring is unlocked.
    bool start(const QString &home, const QByteArray &password)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name :
             { u"HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_RUNTIME_DIR"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s }) {
            const QString path = home + u'/' + name;
            QDir().mkpath(path);
            QFile::setPermissions(path, OwnerOnly | QFile::ExeOwner | QFile::ExeUser);
            environment.insert(name, path);
        }
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        QStringList args{ u"--foreground"_s, u"--components=secrets"_s };
        if (!password.isEmpty())
            args.append(u"--unlock"_s);
        m_daemon.setProcessEnvironment(environment);
        m_daemon.start(u"gnome-keyring-daemon"_s, args);
        m_daemon.write(password);
        m_daemon.closeWriteChannel();
        const auto connection = QDBusConnection::connectToBus(m_bus.address(), BusName);
        return m_daemon.waitForStarted()
            && QTest::qWaitFor(
                   [&] { return connection.interface()->isServiceRegistered(u"org.freedesktop.secrets"_s); }, 10'000);
    }

    QByteArray log()
    {
        return "this test needs dbus-daemon and gnome-keyring-daemon: " + m_daemon.readAllStandardError();
    }

private:
    static inline const QString BusName = u"keyring-test"_s;

    PrivateBus m_bus;
    QProcess m_daemon;
};

}

/// The JSON file, and a real keyring on a bus of its own.
class tst_TokenStore : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(u"sub/secrets.json"_s);
        qputenv("CALENDAR_TOKEN_STORE", "file:" + QFile::encodeName(m_path));
    }
    void cleanup()
    {
        qunsetenv("CALENDAR_TOKEN_STORE");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    }

    void fileKeepsValues_data()
    {
        columns<QString>("text");
        row("empty", "");
        row("unicode", "pässwört 日本語 🔑");
        row("JSON", "{\"access_token\":\"a\\\"b\"}");
        row("line breaks and NUL", u"a\r\nb"_s + QChar(0) + u'c');
        row("64 KiB", QString(65536, u'x'));
    }
    void fileKeepsValues()
    {
        QFETCH(QString, text);
        checkStore(text);
    }

    void fileIsTheOwnersAlone()
    {
        ::umask(0);
        const auto store = TokenStore::create(AppId);
        QVERIFY(store->set(A, u"secret"_s));
        QCOMPARE(QFile::permissions(m_path), OwnerOnly);
        QVERIFY(QFile::setPermissions(m_path, OwnerOnly | QFile::ReadOther));
        QVERIFY(store->set(A, u"secret 2"_s));
        QCOMPARE(QFile::permissions(m_path), OwnerOnly);
        QCOMPARE(QDir(QFileInfo(m_path).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        ::umask(022);
    }

    void fileIsReplacedAndNeverCut()
    {
        write("{\"note\":{\"by\":\"hand\"},\"caldav-password-a\":7}");
        QFile reader(m_path);
        QVERIFY(reader.open(QIODevice::ReadOnly)); // whoever has it open keeps the old, whole text
        const auto store = TokenStore::create(AppId);
        QCOMPARE(store->value(A), std::nullopt); // no text
        QVERIFY(store->set(B, u"x"_s));
        QCOMPARE(reader.readAll(), "{\"note\":{\"by\":\"hand\"},\"caldav-password-a\":7}");
        const QJsonObject note = QJsonDocument::fromJson(read(m_path)).object().value("note"_L1).toObject();
        QCOMPARE(note.value("by"_L1).toString(), u"hand"_s); // foreign entries stay
    }

    void corruptFileIsKeptAside()
    {
        const auto store = TokenStore::create(AppId);
        for (const QString &aside : { m_path + u".corrupt"_s, m_path + u".corrupt2"_s }) {
            const QByteArray cut = "{\"caldav-password-a\":\"sec";
            write(cut);
            QCOMPARE(store->value(A), std::nullopt);
            QVERIFY(store->remove(A));
            QVERIFY(!QFile::exists(aside)); // reading moves nothing
            QVERIFY(store->set(B, u"new"_s));
            QCOMPARE(read(aside), cut);
            QCOMPARE(QFile::permissions(aside), OwnerOnly);
            QCOMPARE(store->value(B), u"new"_s);
        }
    }

    void whatCannotBeReadIsNotWritten()
    {
        QVERIFY(QDir().mkpath(m_path)); // a folder in the file's place cannot be read, not even by root
        const auto store = TokenStore::create(AppId);
        QCOMPARE(store->value(A), std::nullopt);
        QVERIFY(!store->set(A, u"x"_s));
        QVERIFY(!store->remove(A));
        QVERIFY(QFileInfo(m_path).isDir());
        qputenv("CALENDAR_TOKEN_STORE", "file:/dev/null/below-no-folder.json");
        QVERIFY(!TokenStore::create(AppId)->set(A, u"x"_s));
    }

    void withoutAnyStoreThereIsNone()
    {
        qputenv("CALENDAR_TOKEN_STORE", "");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(m_dir->filePath(u"no-bus"_s)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no secret store can be reached"_s));
        QVERIFY(!TokenStore::create(AppId));
        QTest::failOnWarning(QRegularExpression(u"."_s)); // said once is enough
        QVERIFY(!TokenStore::create(AppId));
        qputenv("CALENDAR_TOKEN_STORE", "cloud:somewhere"); // no secret may land where nobody asked for it
        QVERIFY(!TokenStore::create(AppId));
    }

#ifdef QUILLON_HAVE_LIBSECRET
    void keyring()
    {
        Keyring session;
        QVERIFY2(session.start(m_dir->path(), "correct horse"), session.log().constData());
        qputenv("CALENDAR_TOKEN_STORE", "");
        checkStore(u"pässwört 日本語 🔑"_s);
        QCOMPARE(TokenStore::create(AppId + u".dev"_s)->value(B), std::nullopt);
    }

    void emptyKeyringAnswersWithoutWaiting()
    {
        Keyring session;
        QVERIFY2(session.start(m_dir->path(), {}), session.log().constData());
        qputenv("CALENDAR_TOKEN_STORE", "");
        QElapsedTimer timer;
        timer.start();
        const auto store = TokenStore::create(AppId);
        QVERIFY(store);
        QCOMPARE(store->value(A), std::nullopt);
        QVERIFY(!store->set(A, u"x"_s)); // nobody is there to answer the prompt
        QVERIFY(timer.elapsed() < 5000);
    }
#endif

private:
    static void checkStore(const QString &text)
    {
        const auto store = TokenStore::create(AppId);
        QVERIFY(store);
        QCOMPARE(store->value(A), std::nullopt);
        QVERIFY(store->remove(A)); // there is none
        QVERIFY(store->set(A, u"first"_s) && store->set(A, text)); // which replaces
        QVERIFY(store->set(B, u"other"_s));
        QCOMPARE(TokenStore::create(AppId)->value(A), text);
        QVERIFY(store->remove(A));
        QCOMPARE(store->value(A), std::nullopt);
        QCOMPARE(store->value(B), u"other"_s);
    }

    void write(const QByteArray &text)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

QTEST_GUILESS_MAIN(tst_TokenStore)
#include "tst_TokenStore.moc"
