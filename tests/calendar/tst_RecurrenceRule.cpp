#include "calendar/RecurrenceRule.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

class tst_RecurrenceRule : public QObject {
    Q_OBJECT

private slots:
    void reads_data()
    {
        columns<QString>("expected"); // frequency, interval, count, days of the week
        row("freq=weekly;interval=2;byday=mo,fr", "2 2 0 10001");
        row("FREQ=MONTHLY;COUNT=12", "3 1 12 0");
        row("FREQ=YEARLY;BYMONTH=3;WKST=SU;X-A=1", "4 1 0 0");
        row("FREQ=HOURLY;INTERVAL=3", "0 3 0 0");
        row("FREQ=DAILY;INTERVAL=0;COUNT=-5", "1 1 0 0");
        row("FREQ=DAILY;INTERVAL=99999999999", "1 1 0 0");
        row("FREQ=WEEKLY;BYDAY=,SU,,XX,-1FR,2MO", "2 1 0 1000000");
        row(";;=DAILY;FREQ;FREQ=DAILY;;", "1 1 0 0");
        row(" FREQ=DAILY", "0 1 0 0");
    }
    void reads()
    {
        using Frequency = RecurrenceRule::Frequency;
        const QList<Frequency> all{ Frequency::Once, Frequency::Daily, Frequency::Weekly, Frequency::Monthly,
                                    Frequency::Yearly };
        const RecurrenceRule rule = RecurrenceRule::parse(QString::fromUtf8(QTest::currentDataTag()));
        QTEST(u"%1 %2 %3 %4"_s.arg(all.indexOf(rule.frequency))
                  .arg(rule.interval)
                  .arg(rule.count)
                  .arg(rule.weekdays, 0, 2),
              "expected");
        QVERIFY(!rule.untilMs);
    }

    void readsUntil()
    {
        const auto until = [](const QString &text) { return RecurrenceRule::parse(u"UNTIL="_s + text).untilMs; };
        QCOMPARE(until(u"20260315T235959Z"_s), utc("2026-03-15T23:59:59").toMSecsSinceEpoch());
        QCOMPARE(until(u"20260315T235959"_s), utc("2026-03-15T23:59:59").toMSecsSinceEpoch());
        QCOMPARE(until(u"20240229"_s), utc("2024-02-29").toMSecsSinceEpoch());
        for (const QString &text :
             { u"20250229"_s, u"20260315T240000Z"_s, u"20260315T2359"_s, u"2026-03-15"_s, u"2026031²"_s, u""_s })
            QCOMPARE(until(text), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(tst_RecurrenceRule)
#include "tst_RecurrenceRule.moc"
