#include "calendar/TimeZones.h"

#include <QTest>

class tst_TimeZones : public QObject {
    Q_OBJECT

private slots:
    void find_data();
    void find();
    void takesStrictNamesOnlyAsIana();
    void findsAnAnswerForEveryOfManyOddNames();
};

void tst_TimeZones::find_data()
{
    QTest::addColumn<QString>("tzid");
    QTest::addColumn<QByteArray>("expected"); // empty: none

    const QByteArray none;
    QTest::newRow("IANA") << u"Europe/Paris"_qs << QByteArray("Europe/Paris");
    QTest::newRow("IANA, three parts") << u"America/Argentina/Ushuaia"_qs << QByteArray("America/Argentina/Ushuaia");
    QTest::newRow("IANA, no area") << u"Japan"_qs << QByteArray("Japan");
    QTest::newRow("UTC in another case") << u"utc"_qs << QByteArray("UTC");
    QTest::newRow("fixed offset") << u"Etc/GMT+5"_qs << QByteArray("Etc/GMT+5");
    QTest::newRow("quoted") << u"\"Europe/Paris\""_qs << QByteArray("Europe/Paris");
    QTest::newRow("quoted, with blanks") << u" \" Europe/Paris \" "_qs << QByteArray("Europe/Paris");
    QTest::newRow("Windows, New York") << u"Eastern Standard Time"_qs << QByteArray("America/New_York");
    QTest::newRow("Windows, Berlin") << u"W. Europe Standard Time"_qs << QByteArray("Europe/Berlin");
    QTest::newRow("Windows, Kolkata, old spelling") << u"India Standard Time"_qs << QByteArray("Asia/Calcutta");
    QTest::newRow("path") << u"/freeassociation.sourceforge.net/Europe/Berlin"_qs << QByteArray("Europe/Berlin");
    QTest::newRow("path with version") << u"/softwarestudio.org/Tzfile/20070129_1/America/New_York"_qs
                                       << QByteArray("America/New_York");
    QTest::newRow("path, three parts") << u"/example.com/America/Argentina/Ushuaia"_qs
                                       << QByteArray("America/Argentina/Ushuaia");
    QTest::newRow("path to a name without area") << u"tzone://Microsoft/Utc"_qs << QByteArray("UTC");
    QTest::newRow("prefix") << u"custom_America/New_York"_qs << QByteArray("America/New_York");
    QTest::newRow("leap-second copy") << u"right/Europe/Berlin"_qs << QByteArray("Europe/Berlin");

    QTest::newRow("empty") << QString() << none;
    QTest::newRow("lone quote") << u"\""_qs << none;
    QTest::newRow("nonsense") << u"Customized Time Zone"_qs << none;
    QTest::newRow("looks like a POSIX rule") << u"Pacific1"_qs << none;
    QTest::newRow("three letters") << u"ABC"_qs << none;
    QTest::newRow("an area") << u"Europe"_qs << none;
    QTest::newRow("an area's folder") << u"America/Argentina"_qs << none;
    QTest::newRow("no such city") << u"Europe/Atlantis"_qs << none;
    QTest::newRow("out of the zone folder") << u"Europe/../../../../etc/passwd"_qs << none;
    QTest::newRow("out of the zone folder, offset") << u"UTC+/../Europe/Berlin.."_qs << none;
    QTest::newRow("absolute path") << u"/dev/stdin"_qs << none;
    QTest::newRow("very long") << QString(u"x/"_qs.repeated(100'000) + u"Europe/Paris"_qs) << none;
}

void tst_TimeZones::find()
{
    QFETCH(QString, tzid);
    QFETCH(QByteArray, expected);
    const QTimeZone zone = TimeZones::find(tzid);
    QCOMPARE(zone.isValid(), !expected.isEmpty());
    QCOMPARE(zone.id(), expected);
    QCOMPARE(TimeZones::find(tzid), zone); // from the cache
}

void tst_TimeZones::takesStrictNamesOnlyAsIana()
{
    for (const auto *id : { "Europe/Paris", "Japan", "UTC", "Etc/GMT+5", "UTC+05:30" })
        QCOMPARE(TimeZones::ianaZone(QString::fromLatin1(id)).id(), QByteArray(id));
    // What find() makes sense of, and what only QTimeZone would.
    for (const auto *id : { "\"Europe/Paris\"", "Eastern Standard Time", "/example.com/Europe/Paris", "Foo",
                            "../zoneinfo/Europe/Paris", "Europe/../Asia/Tokyo", "UTC+x", "" })
        QVERIFY2(!TimeZones::ianaZone(QString::fromLatin1(id)).isValid(), id);
}

void tst_TimeZones::findsAnAnswerForEveryOfManyOddNames()
{
    for (int i = 0; i < 5000; ++i)
        QVERIFY(!TimeZones::find(u"Odd zone %1"_qs.arg(i)).isValid());
    QCOMPARE(TimeZones::find(u"Europe/Paris").id(), QByteArray("Europe/Paris"));
}

QTEST_GUILESS_MAIN(tst_TimeZones)
#include "tst_TimeZones.moc"
