#include "ui/WheelPager.h"

#include <QtTest>

struct Move {
    int dx;
    qint64 atMs;
};

class tst_WheelPager : public QObject {
    Q_OBJECT

private slots:
    void pages_data()
    {
        QTest::addColumn<QList<Move>>("moves");
        QTest::addColumn<QList<int>>("directions");
        const auto row = [](const char *name, const QList<Move> &moves, const QList<int> &directions) {
            QTest::newRow(name) << moves << directions;
        };
        row("two notches back", { { 120, 0 }, { 120, 10 } }, { 0, -1 });
        row("a reversal starts over", { { 200, 0 }, { -30, 10 }, { -210, 20 } }, { 0, 0, 1 });
        row("small touchpad steps add up", { { -80, 0 }, { -80, 10 }, { -79, 20 }, { -1, 30 } }, { 0, 0, 0, 1 });
        row("one big swipe is one page", { { -2400, 0 }, { -10, 400 } }, { 1, 0 });
        row("no second page within the pause", { { -240, 0 }, { -240, 149 } }, { 1, 0 });
        row("a second page after it", { { -240, 0 }, { -240, 150 } }, { 1, 1 });
        row("what came in the pause is dropped", { { -240, 0 }, { -240, 100 }, { -120, 200 } }, { 1, 0, 0 });
        row("the pause holds for both directions", { { -240, 0 }, { 240, 100 } }, { 1, 0 });
    }

    void pages()
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

    void leavesVerticalMovementAlone()
    {
        WheelPager pager;
        QVERIFY(!pager.onWheel({ 0, 120 }, 0).consumed);
        QVERIFY(!pager.onWheel({ 100, 101 }, 0).consumed);
        QVERIFY(!pager.onWheel({ 0, 0 }, 0).consumed);
        QCOMPARE(pager.onWheel({ 140, 0 }, 1).direction, 0); // nothing was left behind
        QVERIFY(pager.onWheel({ 100, -100 }, 2).consumed);
    }
};

QTEST_GUILESS_MAIN(tst_WheelPager)
#include "tst_WheelPager.moc"
