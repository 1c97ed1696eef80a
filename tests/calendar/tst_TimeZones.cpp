#include "calendar/TimeZones.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

class tst_TimeZones : public QObject {
    Q_OBJECT

private slots:
    void find_data()
    {
        columns<QString, QByteArray>("tzid", "expected"); // empty: none
        row("no area, fixed offset", "Etc/GMT+5", "Etc/GMT+5"_ba);
        row("UTC in another case", "utc", "UTC"_ba);
        row("quoted, with blanks", " \" Japan \" ", "Japan"_ba);
        row("Windows", "W. Europe Standard Time", "Europe/Berlin"_ba);
        row("path", "/softwarestudio.org/Tzfile/20070129_1/America/New_York", "America/New_York"_ba);
        row("path, three parts", "/example.com/America/Argentina/Ushuaia", "America/Argentina/Ushuaia"_ba);
        row("path to a name without area", "tzone://Microsoft/Utc", "UTC"_ba);
        row("prefix", "custom_America/New_York", "America/New_York"_ba);
        for (const char *tzid :
             { "", "\"", "Customized Time Zone", "Pacific1", "ABC", "Europe", "America/Argentina", "Europe/Atlantis",
               "Europe/../../../../etc/passwd", "UTC+/../Europe/Berlin..", "/dev/stdin" })
            row(tzid, QString::fromLatin1(tzid), QByteArray());
        row("very long", u"x/"_s.repeated(100'000) + u"Europe/Paris"_s, QByteArray());
    }
    void find()
    {
        QFETCH(QString, tzid);
        const QTimeZone zone = TimeZones::find(tzid);
        QTEST(zone.id(), "expected");
        QCOMPARE(TimeZones::find(tzid), zone); // from the cache
    }

    void takesStrictNamesOnlyAsIana()
    {
        for (const auto *id : { "Europe/Paris", "Japan", "UTC", "Etc/GMT+5", "UTC+05:30" })
            QCOMPARE(TimeZones::ianaZone(QString::fromLatin1(id)).id(), QByteArray(id));
        // What find() makes sense of, and what only QTimeZone would.
        for (const auto *id : { "\"Europe/Paris\"", "Eastern Standard Time", "/example.com/Europe/Paris", "Foo",
                                "../zoneinfo/Europe/Paris", "Europe/../Asia/Tokyo", "UTC+x", "" })
            QVERIFY2(!TimeZones::ianaZone(QString::fromLatin1(id)).isValid(), id);
    }
};

QTEST_GUILESS_MAIN(tst_TimeZones)
#include "tst_TimeZones.moc"
