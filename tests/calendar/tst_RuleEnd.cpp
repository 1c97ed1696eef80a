#include "calendar/RuleEnd.h"

#include <QTest>

class TestRuleEnd : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "America/New_York");
        tzset();
    }

    void dayAndInstant_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<QString>("instant");
        // New York: five hours behind in winter, four in summer.
        QTest::newRow("winter") << "FREQ=DAILY;UNTIL=20270115;INTERVAL=2"
                                << "FREQ=DAILY;UNTIL=20270116T045959Z;INTERVAL=2";
        QTest::newRow("summer") << "FREQ=DAILY;UNTIL=20270715"
                                << "FREQ=DAILY;UNTIL=20270716T035959Z";
        QTest::newRow("the day of a clock change") << "UNTIL=20270314"
                                                   << "UNTIL=20270315T035959Z";
        QTest::newRow("no end") << "FREQ=WEEKLY;BYDAY=MO"
                                << "FREQ=WEEKLY;BYDAY=MO";
        QTest::newRow("nothing") << ""
                                 << "";
    }
    void dayAndInstant()
    {
        QFETCH(QString, day);
        QFETCH(QString, instant);
        QCOMPARE(RuleEnd::asInstant(day), instant);
        QCOMPARE(RuleEnd::asDay(instant), day);
        QCOMPARE(RuleEnd::asInstant(instant), instant);
        QCOMPARE(RuleEnd::asDay(day), day);
        QCOMPARE(RuleEnd::asDay(QStringLiteral("UNTIL=20270115T000000Z"), true), QStringLiteral("UNTIL=20270115"));
    }
};

QTEST_APPLESS_MAIN(TestRuleEnd)
#include "tst_RuleEnd.moc"
