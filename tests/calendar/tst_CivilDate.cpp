#include "calendar/CivilDate.h"
#include "calendar/WallClock.h"

#include <QTest>

class tst_CivilDate : public QObject {
    Q_OBJECT

private slots:
    void agreesWithQDate();
    void wallClockFindsInstants_data();
    void wallClockFindsInstants();
    void wallClockKeepsKindOfTime();
};

void tst_CivilDate::agreesWithQDate()
{
    const QDate epoch(1970, 1, 1);
    // 19 days is prime to weeks, months and leap cycles, and the years around centuries are walked in full.
    const auto check = [&](QDate date) {
        const qint64 days = epoch.daysTo(date);
        const qint64 year = date.year() < 0 ? date.year() + 1 : date.year();
        const Civil::Date civil = Civil::fromDays(days);
        QCOMPARE(civil.year, year);
        QCOMPARE(civil.month, date.month());
        QCOMPARE(civil.day, date.day());
        QCOMPARE(Civil::toDays(civil), days);
        QCOMPARE(Civil::weekday(days), date.dayOfWeek());
        QCOMPARE(Civil::daysInMonth(year, civil.month), date.daysInMonth());
    };
    for (QDate date(-900, 1, 1); date.year() < 3300; date = date.addDays(19))
        check(date);
    for (const int year : { -401, -1, 1, 1600, 1899, 1900, 1999, 2000, 2023, 2024, 2100, 2399, 2400 }) {
        for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1))
            check(date);
    }
}

void tst_CivilDate::wallClockFindsInstants_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDateTime>("wall");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *zone, QDate date, QTime time, const char *expected) {
        QTest::newRow(name) << QByteArray(zone) << QDateTime(date, time, Qt::UTC) << QString::fromLatin1(expected);
    };
    row("winter", "Europe/Berlin", QDate(2026, 1, 15), QTime(9, 0), "2026-01-15T08:00:00Z");
    row("summer", "Europe/Berlin", QDate(2026, 7, 15), QTime(9, 0), "2026-07-15T07:00:00Z");
    row("left out: offset before", "Europe/Berlin", QDate(2026, 3, 29), QTime(2, 30), "2026-03-29T01:30:00Z");
    row("just after the gap", "Europe/Berlin", QDate(2026, 3, 29), QTime(3, 0), "2026-03-29T01:00:00Z");
    row("twice: the first", "Europe/Berlin", QDate(2026, 10, 25), QTime(2, 30), "2026-10-25T00:30:00Z");
    row("just after the repeat", "Europe/Berlin", QDate(2026, 10, 25), QTime(3, 0), "2026-10-25T02:00:00Z");
    row("gap of the RFC", "America/New_York", QDate(2007, 3, 11), QTime(2, 30), "2007-03-11T07:30:00Z");
    row("repeat of the RFC", "America/New_York", QDate(2007, 11, 4), QTime(1, 30), "2007-11-04T05:30:00Z");
    row("gap at midnight", "America/Sao_Paulo", QDate(2017, 10, 15), QTime(0, 0), "2017-10-15T03:00:00Z");
    row("half an hour", "Australia/Lord_Howe", QDate(2026, 10, 4), QTime(2, 15), "2026-10-03T15:45:00Z");
    row("a day left out", "Pacific/Apia", QDate(2011, 12, 30), QTime(9, 0), "2011-12-30T19:00:00Z");
    row("far future", "America/New_York", QDate(2451, 7, 1), QTime(12, 0), "2451-07-01T16:00:00Z");
    row("UTC", "UTC", QDate(2026, 3, 29), QTime(2, 30), "2026-03-29T02:30:00Z");
}

void tst_CivilDate::wallClockFindsInstants()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDateTime, wall);
    QFETCH(QString, expected);
    const QDateTime found = WallClock(QTimeZone(zone)).at(wall.date(), wall.time());
    QVERIFY(found.isValid());
    QCOMPARE(found.toUTC().toString(Qt::ISODate), expected);
}

void tst_CivilDate::wallClockKeepsKindOfTime()
{
    const QDate date(2026, 5, 4);
    const QTime time(9, 30);
    for (const QDateTime &value : { QDateTime(date, time, Qt::UTC), QDateTime(date, time, Qt::OffsetFromUTC, -12'600),
                                    QDateTime(date, time), QDateTime(date, time, QTimeZone("Asia/Tokyo")) }) {
        const QDateTime nextDay = WallClock(value).at(date.addDays(1), time);
        QCOMPARE(nextDay.timeSpec(), value.timeSpec());
        QCOMPARE(nextDay.offsetFromUtc(), value.offsetFromUtc());
        QCOMPARE(nextDay.date(), date.addDays(1));
        QCOMPARE(nextDay.time(), time);
    }
    QVERIFY(!WallClock(QTimeZone()).at(QDate(), time).isValid());
}

QTEST_GUILESS_MAIN(tst_CivilDate)
#include "tst_CivilDate.moc"
