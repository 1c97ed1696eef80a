#include "calendar/CalendarKey.h"

#include "models/Constants.h"
#include "support/TestData.h"

#include <QTest>

using namespace Qt::StringLiterals;
namespace CalendarKey = Quillon::CalendarKey;

class tst_CalendarKey : public QObject {
    Q_OBJECT

private slots:
    void sameCalendarSameKey_data()
    {
        columns<QString, QString, QString, QString>("type", "url", "otherType", "otherUrl");
        row("two hosts, two types", u"caldav"_s, u"https://a.example/cal/Work/"_s, u"icloud"_s,
            u"http://b.example:8080/cal/work"_s);
        row("personal", u"quillon"_s, QString(LocalDefaults::PersonalCalendarUrl), u"quillon"_s,
            u"quillon://personal"_s);
        row("feed", u"webcal"_s, u" https://a.example/x.ics "_s, u"webcal"_s, u"HTTPS://A.example/x.ics"_s);
    }
    void sameCalendarSameKey()
    {
        QFETCH(const QString, type);
        QFETCH(const QString, url);
        QFETCH(const QString, otherType);
        QFETCH(const QString, otherUrl);
        QVERIFY(CalendarKey::compute(type, url));
        QCOMPARE(CalendarKey::compute(type, url), CalendarKey::compute(otherType, otherUrl));
    }

    void keysAreTheSameOnEveryDevice()
    {
        // printf 'caldav:/cal/work' | sha256sum
        QCOMPARE(CalendarKey::compute(u"zoho"_s, u"https://x.example/cal/work/"_s),
                 u"ba2757cf040d79797964fa3d8b87a7b034423ae88b0a447c6f87c7ce8a90f279"_s);
        QVERIFY(CalendarKey::compute(u"webcal"_s, u"https://a.example/x"_s)
                != CalendarKey::compute(u"webcal"_s, u"https://b.example/x"_s));
        QVERIFY(!CalendarKey::compute(u"carddav"_s, u"https://a.example/"_s));
        QVERIFY(!CalendarKey::compute(u"caldav"_s, u"  "_s));
    }

    void idsAndKeysTranslate()
    {
        Calendar keyed;
        keyed.id = u"one"_s;
        keyed.canonicalKey = u"k1"_s;
        Calendar unkeyed;
        unkeyed.id = u"two"_s;
        const QList<Calendar> calendars{ unkeyed, keyed };
        QCOMPARE(CalendarKey::idsToKeys({ u"two"_s, u"one"_s, u"three"_s }, calendars), QStringList(u"k1"_s));
        QCOMPARE(CalendarKey::keysToIds({ u"k9"_s, u"k1"_s, QString() }, calendars), QStringList(u"one"_s));
    }

    void serverIdsCollapse()
    {
        const QSet<QString> ids =
            CalendarKey::collapseServerIds({ u"personal"_s, u"calendar/Personal"_s, u"work/"_s, u"work"_s });
        QCOMPARE(ids, QSet<QString>({ u"quillon-personal-default"_s, u"work"_s }));
        QVERIFY(CalendarKey::serverListContains(ids, u"any"_s, u"LOCAL://Calendar/personal/"_s));
        QVERIFY(CalendarKey::serverListContains(ids, u"work"_s, u"quillon://"_s));
        QVERIFY(!CalendarKey::serverListContains(ids, u"any"_s, u"quillon://other"_s));
    }
};

QTEST_GUILESS_MAIN(tst_CalendarKey)
#include "tst_CalendarKey.moc"
