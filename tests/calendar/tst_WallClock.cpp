#include "calendar/WallClock.h"
#include "support/TestData.h"

class tst_WallClock : public QObject {
    Q_OBJECT

private slots:
    void wallClockKeepsKindOfTime()
    {
        const QDate date(2026, 5, 4);
        const QTime time(9, 30);
        for (const QDateTime &value :
             { QDateTime(date, time, Qt::UTC), QDateTime(date, time, Qt::OffsetFromUTC, -12'600), QDateTime(date, time),
               QDateTime(date, time, QTimeZone("Asia/Tokyo")) }) {
            const QDateTime nextDay = WallClock(value).at(date.addDays(1), time);
            QCOMPARE(nextDay, value.addDays(1));
            QCOMPARE(nextDay.timeSpec(), value.timeSpec());
            QCOMPARE(nextDay.offsetFromUtc(), value.offsetFromUtc());
        }
        QVERIFY(!WallClock(QTimeZone()).at(QDate(), time).isValid());
    }

    void clocksChangeInYearsThatNoFileLists()
    {
        const WallClock clock{ QTimeZone("Europe/Berlin") };
        QCOMPARE(clock.at(QDate(2040, 7, 2), QTime(9, 0)), utc("2040-07-02T07:00"));
        QCOMPARE(clock.at(QDate(2040, 12, 2), QTime(9, 0)), utc("2040-12-02T08:00"));
    }

    void wallClockSharesOnlyEqualTimes()
    {
        const QDateTime nine = utc("2026-05-04T09:00");
        for (const char *zone : { "Europe/Berlin", "Asia/Kolkata", "Europe/Berlin" }) {
            const WallClock clock{ QTimeZone(zone) };
            // The same quarter of an hour, the same place in the table 512 days on, and before the epoch.
            for (const QDateTime &instant :
                 { nine, nine.addSecs(60), nine.addDays(512), nine.addDays(-512 * 40), nine }) {
                const QDateTime shown = clock.sharedAt(instant.toMSecsSinceEpoch());
                QCOMPARE(shown, instant);
                QCOMPARE(shown.time(), instant.toTimeZone(QTimeZone(zone)).time());
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_WallClock)
#include "tst_WallClock.moc"
