#include "calendar/RruleFormat.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

class tst_RruleFormat : public QObject {
    Q_OBJECT

private slots:
    void humanReadable_data()
    {
        columns<QString>("expected");
        const auto rule = [](const char *text, const char *expected) { row(text, QString::fromUtf8(expected)); };
        rule("", "");
        rule("freq=DAILY", "Repeats daily");
        rule("FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR", "Repeats daily · Mon, Tue, Wed, Thu, Fri");
        rule("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR", "Every 2 weeks · Mon, Wed, Fri");
        rule("FREQ=WEEKLY;INTERVAL=abc", "Every 0 weeks");
        rule("FREQ=WEEKLY;BYDAY=2MO, su,,xx", "Repeats weekly · Mon, Sun, XX");
        rule("FREQ=MONTHLY;BYDAY=1TH,2FR", "Repeats monthly · on the first Thu");
        rule("FREQ=MONTHLY;BYDAY=-1FR;BYMONTHDAY=3", "Repeats monthly · on the last Fri");
        rule("FREQ=MONTHLY;BYDAY=+2SA", "Repeats monthly · on the second Sat");
        rule("FREQ=MONTHLY;BYDAY=-2MO", "Repeats monthly · on the second-to-last Mon");
        rule("FREQ=MONTHLY;BYDAY=-4MO", "Repeats monthly · on the 4th-from-last Mon");
        rule("FREQ=MONTHLY;BYDAY=6MO", "Repeats monthly · on the 6st Mon");
        rule("FREQ=MONTHLY;BYDAY=-MO", "Repeats monthly · Mon");
        rule("FREQ=MONTHLY;BYMONTHDAY=22,23", "Repeats monthly · on the 22nd");
        rule("FREQ=MONTHLY;BYMONTHDAY=12", "Repeats monthly · on the 12th");
        rule("FREQ=MONTHLY;BYMONTHDAY=31", "Repeats monthly · on the 31st");
        rule("FREQ=MONTHLY;BYMONTHDAY=-1", "Repeats monthly");
        rule("INTERVAL=4;;FREQ=YEARLY;UNTIL=20261231T225959Z", "Every 4 years · until Dec 31, 2026");
        rule("FREQ=DAILY;UNTIL=20260231", "Repeats daily");
        rule("FREQ=DAILY;COUNT=5;UNTIL=20261231", "Repeats daily · 5 time(s)");
        rule("FREQ=DAILY;COUNT=0;UNTIL=20261231", "Repeats daily");
        rule("FREQ=HOURLY;INTERVAL=3", "Repeats");
        rule("nonsense", "Repeats");
    }
    void humanReadable()
    {
        QTEST(RruleFormat::humanReadable(QString::fromLatin1(QTest::currentDataTag())), "expected");
    }

    void humanReadableReminder()
    {
        QCOMPARE(RruleFormat::humanReadableReminder(-5), u"At time of event"_s);
        QCOMPARE(RruleFormat::humanReadableReminder(59), u"59 min before"_s);
        QCOMPARE(RruleFormat::humanReadableReminder(90), u"1 hour(s) before"_s);
        QCOMPARE(RruleFormat::humanReadableReminder(1439), u"23 hour(s) before"_s);
        QCOMPARE(RruleFormat::humanReadableReminder(3000), u"2 day(s) before"_s);
    }
};

QTEST_GUILESS_MAIN(tst_RruleFormat)
#include "tst_RruleFormat.moc"
