#include "ui/WheelPager.h"

#include <QTest>

class tst_WheelPager : public QObject {
    Q_OBJECT

private slots:
    void pages_data();
    void pages();
    void leavesVerticalMovementAlone_data();
    void leavesVerticalMovementAlone();
};

struct Move {
    int dx;
    qint64 atMs;
};

void tst_WheelPager::pages_data()
{
    QTest::addColumn<QList<Move>>("moves");
    QTest::addColumn<QList<int>>("directions");
    QTest::newRow("two notches back") << QList<Move>{ { 120, 0 }, { 120, 10 } } << QList<int>{ 0, -1 };
    QTest::newRow("two notches forward") << QList<Move>{ { -120, 0 }, { -120, 10 } } << QList<int>{ 0, 1 };
    QTest::newRow("a reversal starts over")
        << QList<Move>{ { 120, 0 }, { -120, 10 }, { 120, 20 } } << QList<int>{ 0, 0, 0 };
    QTest::newRow("small touchpad steps add up")
        << QList<Move>{ { -80, 0 }, { -80, 10 }, { -79, 20 }, { -1, 30 } } << QList<int>{ 0, 0, 0, 1 };
    QTest::newRow("one big swipe is one page") << QList<Move>{ { -2400, 0 }, { -10, 400 } } << QList<int>{ 1, 0 };
    QTest::newRow("no second page within the pause") << QList<Move>{ { -240, 0 }, { -240, 149 } } << QList<int>{ 1, 0 };
    QTest::newRow("a second page after it") << QList<Move>{ { -240, 0 }, { -240, 150 } } << QList<int>{ 1, 1 };
    QTest::newRow("what came in the pause is dropped")
        << QList<Move>{ { -240, 0 }, { -240, 100 }, { -120, 200 } } << QList<int>{ 1, 0, 0 };
    QTest::newRow("the pause holds for both directions")
        << QList<Move>{ { -240, 0 }, { 240, 100 } } << QList<int>{ 1, 0 };
}

void tst_WheelPager::pages()
{
    QFETCH(QList<Move>, moves);
    WheelPager pager;
    QList<int> directions;
    for (const Move &move : moves) {
        const WheelPager::Turn turn = pager.onWheel({ move.dx, 0 }, move.atMs);
        QVERIFY(turn.consumed);
        directions.append(turn.direction);
    }
    QTEST(directions, "directions");
}

void tst_WheelPager::leavesVerticalMovementAlone_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<bool>("consumed");
    QTest::newRow("vertical") << QPoint(0, 120) << false;
    QTest::newRow("mostly vertical") << QPoint(100, 101) << false;
    QTest::newRow("diagonal") << QPoint(100, -100) << true;
    QTest::newRow("nothing") << QPoint(0, 0) << false;
}

void tst_WheelPager::leavesVerticalMovementAlone()
{
    QFETCH(QPoint, angle);
    WheelPager pager;
    QTEST(pager.onWheel(angle, 0).consumed, "consumed");
    // Half a page is still missing, or a whole one: the vertical movement has left nothing behind.
    QCOMPARE(pager.onWheel({ 120, 0 }, 1).direction, 0);
}

QTEST_GUILESS_MAIN(tst_WheelPager)
#include "tst_WheelPager.moc"
