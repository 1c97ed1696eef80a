#include "ui/actions/PopoverPlacement.h"

#include <QTest>

class TestPopoverPlacement : public QObject {
    Q_OBJECT

private slots:
    void places_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("right") << QRect(100, 100, 50, 50) << QRect(158, 100, 300, 200);
        QTest::newRow("left where the right has no room") << QRect(800, 100, 50, 50) << QRect(492, 100, 300, 200);
        QTest::newRow("up from the lower edge") << QRect(100, 580, 50, 50) << QRect(158, 392, 300, 200);
        QTest::newRow("below a wide one") << QRect(0, 100, 1000, 50) << QRect(8, 158, 300, 200);
        QTest::newRow("above a wide one") << QRect(0, 400, 1000, 190) << QRect(8, 192, 300, 200);
        QTest::newRow("in the middle where nothing fits") << QRect(0, 0, 1000, 600) << QRect(350, 200, 300, 200);
        QTest::newRow("no anchor") << QRect() << QRect(350, 200, 300, 200);
        QTest::newRow("an anchor out of sight") << QRect(100, 5000, 50, 50) << QRect(350, 200, 300, 200);
    }
    void places()
    {
        QFETCH(QRect, anchor);
        const QRect bounds(0, 0, 1000, 600);
        const QRect card = popoverRect({ 300, 200 }, anchor, bounds);
        QTEST(card, "expected");
        QVERIFY(bounds.contains(card));
    }

    void neverLargerThanTheWindow()
    {
        QCOMPARE(popoverRect({ 900, 900 }, {}, QRect(0, 0, 400, 300)), QRect(8, 8, 384, 284));
    }
};

QTEST_APPLESS_MAIN(TestPopoverPlacement)
#include "tst_PopoverPlacement.moc"
