#include "app/state/Platform.h"

#include "app/state/DefaultCalendar.h"
#include "app/state/FirstDayOfWeek.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// What the environment, the territory and the settings decide.
class tst_Platform : public QObject {
    Q_OBJECT

private slots:
    void cleanup()
    {
        qunsetenv("CALENDAR_DATA_DIR");
        qunsetenv("CALENDAR_INSTANCE");
    }

    void environmentDecides()
    {
        const QTemporaryDir dir;
        const QString chosen = dir.filePath(u"a/bä"_s);
        qputenv("CALENDAR_DATA_DIR", chosen.toUtf8());
        QCOMPARE(Platform::databasePath(), chosen + u"/calendar.db"_s);
        QVERIFY(QDir(chosen).exists());

        QCOMPARE(Platform::tokenStoreAppId(), u"com.quillon.calendar"_s);
        qputenv("CALENDAR_INSTANCE", "Dev"); // another than "dev"
        QCOMPARE(Platform::tokenStoreAppId(), u"com.quillon.calendar.Dev"_s);
        QVERIFY(!Platform::isDevInstance());
        qputenv("CALENDAR_INSTANCE", "dev");
        QVERIFY(Platform::isDevInstance());
    }

    void sundayTerritories()
    {
        const auto isSunday = [](int territory) {
            return FirstDayOfWeek::ofTerritory(QLocale::Territory(territory)) == Qt::Sunday;
        };
        int count = 0;
        for (int territory = 0; territory <= QLocale::LastTerritory; ++territory)
            count += isSunday(territory) ? 1 : 0;
        QCOMPARE(count, 42);
        QVERIFY(isSunday(QLocale::UnitedStates) && isSunday(QLocale::SouthAfrica) && isSunday(QLocale::Egypt));
        QVERIFY(!isSunday(QLocale::Germany) && !isSunday(QLocale::Portugal) && !isSunday(QLocale::AnyTerritory));
    }

    void preferredCalendarFollowsTheLastUsedOne()
    {
        ScratchState state;
        PreferencesRepository *preferences = state->preferences();
        DefaultCalendar::recordLastUsed(preferences, false, u"old"_s); // nobody asked for it
        preferences->set(u"ui/defaultCalendarId"_s, u"__last_used__"_s);
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), QString());
        DefaultCalendar::recordLastUsed(preferences, false, u"work"_s);
        DefaultCalendar::recordLastUsed(preferences, false, QString());
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), u"work"_s);

        preferences->set(u"ui/defaultTaskCalendarId"_s, u"chores"_s);
        DefaultCalendar::recordLastUsed(preferences, true, u"errands"_s);
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, true), u"chores"_s);
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences, false), u"work"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Platform)
#include "tst_Platform.moc"
