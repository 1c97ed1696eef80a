#include "ui/surfaces/TimelineDrag.h"

#include <QTest>

namespace {

TimelineMetrics weekOf(int hourHeightPx)
{
    TimelineMetrics metrics;
    metrics.columns = { 64, 7, 64 + 7 * 100 };
    metrics.hourHeightPx = hourHeightPx;
    return metrics;
}

/// An hour from 9:00 in the third column, where an hour has 56 pixels.
TimelineDrag::Grip nineOClock()
{
    return { { QStringLiteral("e"), {} }, QRect(268, 504, 92, 56), 2, 540, 60, false, false };
}

}

class TestTimelineDrag : public QObject {
    Q_OBJECT

private slots:
    void moves_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("minutes");
        QTest::newRow("below half a slot it is a click") << QPoint(0, 6) << 0 << 0;
        QTest::newRow("half a slot rounds up") << QPoint(0, 7) << 0 << 15;
        QTest::newRow("an hour up") << QPoint(3, -56) << 0 << -60;
        QTest::newRow("half a column is the next day") << QPoint(50, 0) << 1 << 0;
        QTest::newRow("less is not") << QPoint(49, 0) << 0 << 0;
        QTest::newRow("not left of the first column") << QPoint(-900, 0) << -2 << 0;
        QTest::newRow("not right of the last") << QPoint(900, 56) << 4 << 60;
        QTest::newRow("not before midnight") << QPoint(0, -900) << 0 << -540;
        QTest::newRow("not beyond the last slot") << QPoint(0, 1500) << 0 << 885;
    }
    void moves()
    {
        QFETCH(QPoint, delta);
        QFETCH(int, days);
        QFETCH(int, minutes);
        const QPoint press(300, 510);
        TimelineDrag drag = TimelineDrag::onBlock(press, nineOClock());
        drag.moveTo(press + delta, weekOf(56));
        QCOMPARE(drag.days(), days);
        QCOMPARE(drag.minutes(), minutes);
        QCOMPARE(drag.changesTimes(), days != 0 || minutes != 0);
        const QRect ghost = drag.ghostRect(weekOf(56));
        QCOMPARE(ghost, drag.changesTimes() ? QRect(268 + days * 100, 504 + minutes * 56 / 60, 92, 56) : QRect());
    }

    void stretchesAtTheLowerEdge()
    {
        const QPoint press(300, 504 + 56 - 3);
        TimelineDrag drag = TimelineDrag::onBlock(press, nineOClock());
        QCOMPARE(drag.mode(), TimelineDrag::Mode::Resizing);
        drag.moveTo(press + QPoint(200, 28), weekOf(56));
        QCOMPARE(drag.days(), 0);
        QCOMPARE(drag.minutes(), 30);
        QCOMPARE(drag.ghostRect(weekOf(56)), QRect(268, 504, 92, 84));
        drag.moveTo(press - QPoint(0, 500), weekOf(56));
        QCOMPARE(drag.ghostRect(weekOf(56)).height(), 8);
        drag.moveTo(press + QPoint(0, 2000), weekOf(56));
        QCOMPARE(drag.minutes(), 14 * 60); // to midnight
    }

    void fixedBlocksStay()
    {
        TimelineDrag::Grip grip = nineOClock();
        grip.isFixed = true;
        TimelineDrag drag = TimelineDrag::onBlock(QPoint(300, 558), grip);
        drag.moveTo(QPoint(500, 900), weekOf(56));
        QVERIFY(!drag.isUnderWay() && !drag.changesTimes());
    }

    void allDayBarsMoveByDays()
    {
        TimelineDrag::Grip bar{ { QStringLiteral("e"), {} }, QRect(166, 4, 296, 20), 3, 0, 0, false, true };
        const QPoint press(400, 22); // where a block would be stretched
        TimelineDrag drag = TimelineDrag::onBlock(press, bar);
        drag.moveTo(press + QPoint(0, 60), weekOf(56));
        QVERIFY(!drag.isUnderWay());
        drag.moveTo(press + QPoint(-120, 60), weekOf(56));
        QCOMPARE(drag.ghostRect(weekOf(56)), QRect(66, 4, 296, 20));
        QCOMPARE(drag.minutes(), 0);
        drag.moveTo(press + QPoint(-900, 0), weekOf(56));
        QCOMPARE(drag.days(), -3); // the day that was gripped stays on show
    }

    void marksEmptyTime_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("startMin");
        QTest::addColumn<int>("minutes");
        QTest::newRow("downwards") << 605 << 700 << 600 << 105;
        QTest::newRow("a slot at least") << 605 << 610 << 600 << 15;
        QTest::newRow("upwards") << 605 << 540 << 540 << 75;
        QTest::newRow("beyond the end of the day") << 1430 << 1700 << 1425 << 15;
        QTest::newRow("beyond its beginning") << 20 << -80 << 0 << 30;
    }
    void marksEmptyTime()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        TimelineDrag drag = TimelineDrag::onEmpty(QPoint(300, from), 2);
        drag.moveTo(QPoint(301, from + 3), weekOf(60));
        QCOMPARE(drag.mode(), TimelineDrag::Mode::Pressed); // not far enough
        drag.moveTo(QPoint(500, to), weekOf(60)); // stays in its column
        QTEST(drag.markedStartMin(), "startMin");
        QTEST(drag.markedMinutes(), "minutes");
        QCOMPARE(drag.ghostRect(weekOf(60)).left(), 268);
    }
};

QTEST_APPLESS_MAIN(TestTimelineDrag)
#include "tst_TimelineDrag.moc"
