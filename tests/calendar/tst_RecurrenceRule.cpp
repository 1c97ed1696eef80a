#include "calendar/RecurrenceRule.h"
#include "support/TestData.h"

using Frequency = RecurrenceRule::Frequency;

class tst_RecurrenceRule : public QObject {
    Q_OBJECT

private slots:
    void reads_data()
    {
        columns<int, int, int, int>("frequency", "interval", "count", "weekdays");
        const auto rule = [](const char *text, Frequency frequency, int interval = 1, int count = 0, int weekdays = 0) {
            row(text, int(frequency), interval, count, weekdays);
        };
        rule("freq=weekly;interval=2;byday=mo,fr", Frequency::Weekly, 2, 0, 0b0010001);
        rule("FREQ=MONTHLY;COUNT=12", Frequency::Monthly, 1, 12);
        rule("FREQ=YEARLY;BYMONTH=3;WKST=SU;X-A=1", Frequency::Yearly);
        rule("FREQ=HOURLY;INTERVAL=3", Frequency::Once, 3);
        rule("FREQ=DAILY;INTERVAL=0;COUNT=-5", Frequency::Daily);
        rule("FREQ=DAILY;INTERVAL=abc", Frequency::Daily);
        rule("FREQ=DAILY;INTERVAL=99999999999", Frequency::Daily);
        rule("FREQ=WEEKLY;BYDAY=2MO", Frequency::Weekly);
        rule("FREQ=WEEKLY;BYDAY=,SU,,XX,-1FR", Frequency::Weekly, 1, 0, 0b1000000);
        rule(";;=DAILY;FREQ;FREQ=DAILY;;", Frequency::Daily);
        rule(" FREQ=DAILY", Frequency::Once);
        rule("", Frequency::Once);
    }
    void reads()
    {
        const RecurrenceRule rule = RecurrenceRule::parse(QString::fromUtf8(QTest::currentDataTag()));
        QTEST(int(rule.frequency), "frequency");
        QTEST(rule.interval, "interval");
        QTEST(rule.count, "count");
        QTEST(int(rule.weekdays), "weekdays");
        QVERIFY(!rule.untilMs);
    }

    void readsUntil_data()
    {
        columns<QDateTime>("expected"); // invalid: no end
        row("20260315T235959Z", utc("2026-03-15T23:59:59"));
        row("20260315T235959", utc("2026-03-15T23:59:59"));
        row("20240229", utc("2024-02-29"));
        for (const char *text : { "20250229", "20260315T240000Z", "20260315T2359", "2026-03-15", "2026031²", "" })
            row(text, QDateTime());
    }
    void readsUntil()
    {
        QFETCH(QDateTime, expected);
        const QString text = QString::fromUtf8(QTest::currentDataTag());
        const RecurrenceRule rule = RecurrenceRule::parse(QStringLiteral("FREQ=DAILY;UNTIL=") + text);
        QCOMPARE(rule.untilMs.has_value(), expected.isValid());
        QCOMPARE(rule.untilMs.value_or(0), expected.isValid() ? expected.toMSecsSinceEpoch() : 0);
    }
};

QTEST_GUILESS_MAIN(tst_RecurrenceRule)
#include "tst_RecurrenceRule.moc"
