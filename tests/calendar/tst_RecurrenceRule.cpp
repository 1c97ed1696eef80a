#include "calendar/RecurrenceRule.h"

#include <QDateTime>
#include <QTest>

using Frequency = RecurrenceRule::Frequency;

class tst_RecurrenceRule : public QObject {
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void readsUntil_data();
    void readsUntil();
};

void tst_RecurrenceRule::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("weekdays");
    const auto row = [](const char *text, Frequency frequency, int interval = 1, int count = 0, int weekdays = 0) {
        QTest::newRow(text) << QString::fromLatin1(text) << int(frequency) << interval << count << weekdays;
    };
    row("FREQ=DAILY", Frequency::Daily);
    row("freq=weekly;interval=2;byday=mo,fr", Frequency::Weekly, 2, 0, 0b0010001);
    row("FREQ=MONTHLY;COUNT=12", Frequency::Monthly, 1, 12);
    row("FREQ=YEARLY;BYMONTH=3;WKST=SU;X-A=1", Frequency::Yearly);
    row("FREQ=HOURLY;INTERVAL=3", Frequency::Once, 3);
    row("INTERVAL=2", Frequency::Once, 2);
    row("FREQ=DAILY;INTERVAL=0", Frequency::Daily);
    row("FREQ=DAILY;INTERVAL=abc", Frequency::Daily);
    row("FREQ=DAILY;INTERVAL=99999999999", Frequency::Daily);
    row("FREQ=DAILY;COUNT=-5", Frequency::Daily);
    row("FREQ=WEEKLY;BYDAY=2MO", Frequency::Weekly);
    row("FREQ=WEEKLY;BYDAY=,SU,,XX,-1FR", Frequency::Weekly, 1, 0, 0b1000000);
    row(";;=DAILY;FREQ;FREQ=DAILY;;", Frequency::Daily);
    row(" FREQ=DAILY", Frequency::Once);
    row("", Frequency::Once);
}

void tst_RecurrenceRule::reads()
{
    QFETCH(QString, text);
    const RecurrenceRule rule = RecurrenceRule::parse(text);
    QTEST(int(rule.frequency), "frequency");
    QTEST(rule.interval, "interval");
    QTEST(rule.count, "count");
    QTEST(int(rule.weekdays), "weekdays");
    QVERIFY(!rule.untilMs);
}

void tst_RecurrenceRule::readsUntil_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("expected"); // invalid: no end
    const auto row = [](const char *text, const char *expected) {
        QTest::newRow(text) << QString::fromLatin1(text)
                            << QDateTime::fromString(QString::fromLatin1(expected), Qt::ISODate);
    };
    row("20260315T235959Z", "2026-03-15T23:59:59Z");
    row("20260315T235959", "2026-03-15T23:59:59Z");
    row("20260315", "2026-03-15T00:00:00Z");
    row("20240229", "2024-02-29T00:00:00Z");
    row("20250229", "");
    row("20260315T240000Z", "");
    row("20260315T2359", "");
    row("2026-03-15", "");
    row("2026031\xB2", "");
    row("soon", "");
    row("", "");
}

void tst_RecurrenceRule::readsUntil()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, expected);
    const RecurrenceRule rule = RecurrenceRule::parse(QStringLiteral("FREQ=DAILY;UNTIL=") + text);
    QCOMPARE(rule.untilMs.has_value(), expected.isValid());
    if (expected.isValid())
        QCOMPARE(*rule.untilMs, expected.toMSecsSinceEpoch());
}

QTEST_GUILESS_MAIN(tst_RecurrenceRule)
#include "tst_RecurrenceRule.moc"
