#include "app/state/Platform.h"

#include "app/state/DefaultCalendar.h"
#include "app/state/FirstDayOfWeek.h"
#include "app/state/ServiceSettings.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

/// What the environment, the territory and the settings decide.
class tst_Platform : public QObject {
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const char *name : { "CALENDAR_DATA_DIR", "CALENDAR_INSTANCE", "AUTH_API_URL", "ACCOUNT_API_URL",
                                  "SYNC_API_URL", "AUTH_REALM_SLUG", "AUTH_CLIENT_ID", "ACCOUNT_PORTAL_URL" })
            qunsetenv(name);
    }

    void chosenDataDirIsMade()
    {
        const QTemporaryDir dir;
        const QString chosen = dir.filePath(QStringLiteral("a/bä"));
        qputenv("CALENDAR_DATA_DIR", chosen.toUtf8());
        QCOMPARE(Platform::dataDir(), chosen);
        QVERIFY(QDir(chosen).exists());
        QCOMPARE(Platform::databasePath(), chosen + QStringLiteral("/calendar.db"));
    }

    void instanceNamesTheTokenStore_data()
    {
        QTest::addColumn<QByteArray>("instance");
        QTest::addColumn<QString>("appId");
        QTest::addColumn<bool>("isDev");
        QTest::newRow("ordinary") << QByteArray() << "com.quillon.calendar" << false;
        QTest::newRow("dev") << QByteArray("dev") << "com.quillon.calendar.dev" << true;
        QTest::newRow("Dev is another") << QByteArray("Dev") << "com.quillon.calendar.Dev" << false;
    }
    void instanceNamesTheTokenStore()
    {
        QFETCH(QByteArray, instance);
        qputenv("CALENDAR_INSTANCE", instance);
        QTEST(Platform::tokenStoreAppId(), "appId");
        QTEST(Platform::isDevInstance(), "isDev");
    }

    void environmentOverridesServices()
    {
        const ServiceSettings built = ServiceSettings::fromEnvironment();
        QCOMPARE(built.realm, QStringLiteral("quillon"));
        QCOMPARE(built.authClientId.size(), 32);

        qputenv("AUTH_API_URL", "http://auth.example");
        qputenv("ACCOUNT_API_URL", "http://account.example");
        qputenv("SYNC_API_URL", "http://sync.example/ü");
        qputenv("AUTH_REALM_SLUG", "staging");
        qputenv("AUTH_CLIENT_ID", ""); // set but empty does not count
        qputenv("ACCOUNT_PORTAL_URL", "http://portal.example");
        const ServiceSettings settings = ServiceSettings::fromEnvironment();
        QCOMPARE(settings.authUrl, QStringLiteral("http://auth.example"));
        QCOMPARE(settings.accountApiUrl, QStringLiteral("http://account.example"));
        QCOMPARE(settings.syncApiUrl, QStringLiteral("http://sync.example/ü"));
        QCOMPARE(settings.realm, QStringLiteral("staging"));
        QCOMPARE(settings.authClientId, built.authClientId);
        QCOMPARE(settings.accountPortalUrl, QStringLiteral("http://portal.example"));
    }

    void firstDayByTerritory_data()
    {
        QTest::addColumn<QLocale::Territory>("territory");
        QTest::addColumn<Qt::DayOfWeek>("day");
        QTest::newRow("United States") << QLocale::UnitedStates << Qt::Sunday;
        QTest::newRow("Japan") << QLocale::Japan << Qt::Sunday;
        QTest::newRow("Brazil") << QLocale::Brazil << Qt::Sunday;
        QTest::newRow("India") << QLocale::India << Qt::Sunday;
        QTest::newRow("Egypt") << QLocale::Egypt << Qt::Sunday;
        QTest::newRow("South Africa") << QLocale::SouthAfrica << Qt::Sunday;
        QTest::newRow("Germany") << QLocale::Germany << Qt::Monday;
        QTest::newRow("United Kingdom") << QLocale::UnitedKingdom << Qt::Monday;
        QTest::newRow("Portugal") << QLocale::Portugal << Qt::Monday;
        QTest::newRow("Argentina") << QLocale::Argentina << Qt::Monday;
        QTest::newRow("unknown") << QLocale::AnyTerritory << Qt::Monday;
    }
    void firstDayByTerritory()
    {
        QFETCH(QLocale::Territory, territory);
        QTEST(FirstDayOfWeek::ofTerritory(territory), "day");
    }

    void sundayTerritoriesAreFortyTwo()
    {
        int count = 0;
        for (int territory = 0; territory <= QLocale::LastTerritory; ++territory)
            count += FirstDayOfWeek::ofTerritory(static_cast<QLocale::Territory>(territory)) == Qt::Sunday ? 1 : 0;
        QCOMPARE(count, 42);
    }

    void preferredCalendarFollowsTheLastUsedOne()
    {
        ScratchState state;
        PreferencesRepository *preferences = state->preferences();
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QString());
        DefaultCalendar::recordLastUsed(preferences, false, QStringLiteral("work"));
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QString()); // not what the user chose
        preferences->set(QStringLiteral("ui/defaultCalendarId"), QStringLiteral("__last_used__"));
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QStringLiteral("work"));
        DefaultCalendar::recordLastUsed(preferences, false, QString());
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QStringLiteral("work"));

        preferences->set(QStringLiteral("ui/defaultTaskCalendarId"), QStringLiteral("chores"));
        DefaultCalendar::recordLastUsed(preferences, true, QStringLiteral("errands"));
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, true), QStringLiteral("chores"));
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QStringLiteral("work"));
    }
};

QTEST_GUILESS_MAIN(tst_Platform)
#include "tst_Platform.moc"
