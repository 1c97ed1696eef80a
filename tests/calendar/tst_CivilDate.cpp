#include "calendar/CivilDate.h"
#include "calendar/WallClock.h"
#include "support/TestData.h"

class tst_CivilDate : public QObject {
    Q_OBJECT

private slots:
    void agreesWithQDate()
    {
        const auto check = [](QDate date) {
            const qint64 days = QDate(1970, 1, 1).daysTo(date);
            const qint64 year = date.year() < 0 ? date.year() + 1 : date.year();
            const Civil::Date civil = Civil::fromDays(days);
            QCOMPARE(civil.year, year);
            QCOMPARE(civil.month, date.month());
            QCOMPARE(civil.day, date.day());
            QCOMPARE(Civil::toDays(civil), days);
            QCOMPARE(Civil::weekday(days), date.dayOfWeek());
            QCOMPARE(Civil::daysInMonth(year, civil.month), date.daysInMonth());
        };
        // 19 days is prime to weeks, months and leap cycles, and the years around centuries are walked in full.
        for (QDate date(-900, 1, 1); date.year() < 3300; date = date.addDays(19))
            check(date);
        for (const int year : { -401, -1, 1, 1600, 1899, 1900, 2000, 2024, 2100, 2399, 2400 }) {
            for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1))
                check(date);
        }
    }

    void wallClockFindsInstants_data()
    {
        columns<QString, QString, QString>("zone", "wall", "expected");
        row("summer", "Europe/Berlin", "2026-07-15T09:00", "2026-07-15T07:00");
        row("left out: offset before", "Europe/Berlin", "2026-03-29T02:30", "2026-03-29T01:30");
        row("just after the gap", "Europe/Berlin", "2026-03-29T03:00", "2026-03-29T01:00");
        row("twice: the first", "Europe/Berlin", "2026-10-25T02:30", "2026-10-25T00:30");
        row("just after the repeat", "Europe/Berlin", "2026-10-25T03:00", "2026-10-25T02:00");
        row("gap of the RFC", "America/New_York", "2007-03-11T02:30", "2007-03-11T07:30");
        row("repeat of the RFC", "America/New_York", "2007-11-04T01:30", "2007-11-04T05:30");
        row("gap at midnight", "America/Sao_Paulo", "2017-10-15T00:00", "2017-10-15T03:00");
        row("half an hour", "Australia/Lord_Howe", "2026-10-04T02:15", "2026-10-03T15:45");
        row("a day left out", "Pacific/Apia", "2011-12-30T09:00", "2011-12-30T19:00");
        row("far future", "America/New_York", "2451-07-01T12:00", "2451-07-01T16:00");
    }
    void wallClockFindsInstants()
    {
        QFETCH(QString, zone);
        QFETCH(QString, wall);
        QFETCH(QString, expected);
        QCOMPARE(WallClock(QTimeZone(zone.toLatin1())).at(utc(wall).date(), utc(wall).time()), utc(expected));
    }

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

QTEST_GUILESS_MAIN(tst_CivilDate)
#include "tst_CivilDate.moc"
