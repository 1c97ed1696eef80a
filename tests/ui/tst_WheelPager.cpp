#include "support/TestData.h"
#include "ui/WheelPager.h"

#include <QtTest>

struct Move {
    int dx;
    qint64 atMs;
};
using Moves = QList<Move>;

class tst_WheelPager : public QObject {
    Q_OBJECT

private slots:
    void pages_data()
    {
        columns<Moves, QList<int>>("moves", "directions");
        row("two notches back", Moves{ { 120, 0 }, { 120, 10 } }, QList<int>{ 0, -1 });
        row("a reversal starts over", Moves{ { 200, 0 }, { -30, 10 }, { -210, 20 } }, QList<int>{ 0, 0, 1 });
        row("small touchpad steps add up", Moves{ { -80, 0 }, { -80, 10 }, { -79, 20 }, { -1, 30 } },
            QList<int>{ 0, 0, 0, 1 });
        row("one big swipe is one page", Moves{ { -2400, 0 }, { -10, 400 } }, QList<int>{ 1, 0 });
        row("no second page within the pause", Moves{ { -240, 0 }, { -240, 149 } }, QList<int>{ 1, 0 });
        row("a second page after it", Moves{ { -240, 0 }, { -240, 150 } }, QList<int>{ 1, 1 });
        row("what came in the pause is dropped", Moves{ { -240, 0 }, { -240, 100 }, { -120, 200 } },
            QList<int>{ 1, 0, 0 });
        row("the pause holds for both directions", Moves{ { -240, 0 }, { 240, 100 } }, QList<int>{ 1, 0 });
    }

    void pages()
    {
        QFETCH(Moves, moves);
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
