#include "storage/StoredTime.h"
#include "support/TestData.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

class tst_StoredTime : public QObject {
    Q_OBJECT

private slots:
    void readsAsQtDoes()
    {
        const QString texts =
            u"2026-05-01T10:20:30Z|2026-05-01T10:20:30|2026-05-01T10:20:30+02:00|2026-05-01T10:20:30-11:30|"
            "2026-05-01T10:20:30+14:00|2026-05-01T10:20:30+15:00|2026-05-01T10:20:30+00:00|"
            "2026-05-01T10:20:30-00:30|2026-05-01T10:20:30+02:60|2026-05-01T10:20:30.123Z|2026-05-01T24:00:00Z|"
            "2026-05-01T24:00:01Z|2026-05-01T10:60:00Z|2026-05-01T23:59:60Z|2026-02-29T10:00:00Z|"
            "2024-02-29T10:00:00Z|2026-13-01T10:00:00Z|2026-05-01|2026-05-01T10:20|2026-05-01 10:20:30|"
            "2026-05-01t10:20:30z|0000-01-01T00:00:00Z|9999-12-31T23:59:59Z|-001-01-01T00:00:00Z|"
            "2026-05-01T10:20:30+0200|2026-05-01T10:20:30*02:00|2026-05-01T10:20:30+a2:00|2026-05-01T1a:20:30Z|"
            "2026/05/01T10:20:30Z|2026-05-01T10.20.30Z|garbage garbage gar|garbage garbage garb||Z|"
            "2026-03-29T02:30:00|2026-05-01T10:20:30Zzzzzz"_s;
        for (const QString &text : texts.split(u'|')) {
            const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
            const QDateTime actual = StoredTime::parse(text);
            QVERIFY2(actual.isValid() == expected.isValid(), qPrintable(text));
            if (!expected.isValid())
                continue;
            QCOMPARE(actual, expected);
            QCOMPARE(actual.timeSpec(), expected.timeSpec());
            QCOMPARE(actual.offsetFromUtc(), expected.offsetFromUtc());
        }
    }

    void keepsInstantsAndForms()
    {
        const auto check = [](const QDateTime &time, const QString &text) {
            QCOMPARE(StoredTime::store(time).toString(), text);
            QCOMPARE(StoredTime::parse(text).toSecsSinceEpoch(), time.toSecsSinceEpoch());
        };
        const QDate date(2026, 7, 4);
        const QTime time(9, 5, 1, 999);
        check(QDateTime(date, time, Qt::UTC), u"2026-07-04T09:05:01Z"_s);
        check(QDateTime(date, time, Qt::OffsetFromUTC, -12600), u"2026-07-04T09:05:01-03:30"_s);
        check(QDateTime(date, time, QTimeZone("Europe/Berlin")), u"2026-07-04T09:05:01+02:00"_s);
        check(QDateTime(date, time), u"2026-07-04T09:05:01"_s);
        // Offsets with seconds: local mean time was 53 minutes and 28 seconds ahead.
        check(QDateTime(QDate(1890, 1, 2), QTime(9, 0), QTimeZone("Europe/Berlin")), u"1890-01-02T08:06:32Z"_s);
        check(QDateTime(date, time, Qt::OffsetFromUTC, -30), u"2026-07-04T09:05:31Z"_s);
        // Qt's ISO form has no years of five digits.
        QVERIFY(StoredTime::store(QDateTime()).isNull()
                && StoredTime::store(utc("2026-07-04").addYears(9000)).isNull());
    }

    void showsInKnownZonesOnly()
    {
        const QDateTime noon = utc("2026-07-04T12:00");
        QCOMPARE(StoredTime::inZone(noon, u"Asia/Kolkata"_s), noon);
        QCOMPARE(StoredTime::inZone(noon, u"Asia/Kolkata"_s).time(), QTime(17, 30));
        for (const QString &id : { u""_s, u"UTC"_s, u"Nowhere/Atall"_s })
            QCOMPARE(StoredTime::inZone(noon, id).timeSpec(), Qt::UTC);
        // QTimeZone takes the words for POSIX rules and follows the paths. The writer's clock stays, four days
        // before its change.
        const QDateTime berlin(QDate(2026, 3, 25), QTime(9, 0), QTimeZone("Europe/Berlin"));
        for (const char *id :
             { "Foo", "Eastern", "ABC5", "../zoneinfo/America/New_York", "../../../etc/localtime",
               "/usr/share/zoneinfo/America/New_York", "Europe/../America/New_York", "Europe//Paris" }) {
            const QDateTime shown = StoredTime::inZone(berlin, QString::fromLatin1(id));
            QCOMPARE(shown, berlin);
            QVERIFY2(shown.addDays(7).toUTC() == utc("2026-04-01T07:00"), id);
            QCOMPARE(StoredTime::inZone(QDateTime(QDate(2026, 3, 25), QTime(9, 0)), QString::fromLatin1(id)).timeSpec(),
                     Qt::LocalTime);
        }
    }
};

QTEST_GUILESS_MAIN(tst_StoredTime)
#include "tst_StoredTime.moc"
