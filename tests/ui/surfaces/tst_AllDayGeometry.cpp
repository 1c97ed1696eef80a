#include "ui/surfaces/AllDayGeometry.h"

#include <QTest>

namespace {

const QDate Sunday(2026, 6, 14);

/// An event of \p days days that begins \p offset days after the first day on show.
Event allDay(const QString &title, int offset, int days)
{
    Event event;
    event.id = event.title = title;
    event.isAllDay = true;
    event.startTime = QDateTime(Sunday.addDays(offset), QTime(0, 0), Qt::UTC);
    event.endTime = event.startTime.addDays(days);
    return event;
}

AllDayMetrics metricsFor(const QList<AllDayBar> &bars, bool expanded)
{
    AllDayMetrics metrics;
    metrics.columns = { 64, 7, 764 };
    metrics.laneCount = laneCountOf(bars);
    metrics.isExpanded = expanded;
    return metrics;
}

/// "title:first-last@lane", with "<" and ">" for bars that go on beyond the week.
QStringList described(const QList<Event> &events, const QList<AllDayBar> &bars)
{
    QStringList result;
    for (const AllDayBar &bar : bars)
        result.append(QStringLiteral("%1:%2%3-%4%5@%6")
                          .arg(events.at(bar.eventIndex).title, bar.beginsEarlier ? QStringLiteral("<") : QString())
                          .arg(bar.firstColumn)
                          .arg(bar.lastColumn)
                          .arg(bar.endsLater ? QStringLiteral(">") : QString())
                          .arg(bar.lane));
    return result;
}

QList<Event> events(int count, int offset, int days)
{
    QList<Event> result;
    for (int i = 0; i < count; ++i)
        result.append(allDay(QString(QChar(u'a' + i)), offset, days));
    return result;
}

}

class TestAllDayGeometry : public QObject {
    Q_OBJECT

private slots:
    void packing_data();
    void packing();
    void eventsWithoutAPlace();
    void lanesNeverCover();
    void heights_data();
    void heights();
    void rects();
    void hiddenBarsAreCountedInTheirColumns();
    void barInTheLastRowYieldsToTheChip();
    void expandedStripScrollsByLanes();
};

void TestAllDayGeometry::packing_data()
{
    QTest::addColumn<QList<Event>>("input");
    QTest::addColumn<QStringList>("bars");
    QTest::newRow("two days end on the third date")
        << QList{ allDay(QStringLiteral("a"), 1, 2) } << QStringList{ QStringLiteral("a:1-2@0") };
    QTest::newRow("longer above shorter")
        << QList{ allDay(QStringLiteral("a"), 0, 1), allDay(QStringLiteral("b"), 0, 3) }
        << QStringList{ QStringLiteral("b:0-2@0"), QStringLiteral("a:0-0@1") };
    QTest::newRow("a freed lane is used again")
        << QList{ allDay(QStringLiteral("a"), 0, 2), allDay(QStringLiteral("b"), 1, 2),
                  allDay(QStringLiteral("c"), 2, 1) }
        << QStringList{ QStringLiteral("a:0-1@0"), QStringLiteral("b:1-2@1"), QStringLiteral("c:2-2@0") };
    QTest::newRow("beyond the week") << QList{ allDay(QStringLiteral("a"), -5, 30) }
                                     << QStringList{ QStringLiteral("a:<0-6>@0") };
    QTest::newRow("ends where the week begins") << QList{ allDay(QStringLiteral("a"), -2, 2) } << QStringList();
    QTest::newRow("begins after the week") << QList{ allDay(QStringLiteral("a"), 7, 1) } << QStringList();
    QTest::newRow("no length") << QList{ allDay(QStringLiteral("a"), 3, 0) }
                               << QStringList{ QStringLiteral("a:3-3@0") };
}

void TestAllDayGeometry::packing()
{
    QFETCH(QList<Event>, input);
    QTEST(described(input, layOutBars(input, Sunday, 7)), "bars");
}

void TestAllDayGeometry::eventsWithoutAPlace()
{
    Event timed = allDay(QStringLiteral("timed"), 0, 1);
    timed.isAllDay = false;
    Event noStart = allDay(QStringLiteral("no start"), 0, 1);
    noStart.startTime = {};
    Event noEnd = allDay(QStringLiteral("no end"), 0, 1);
    noEnd.endTime.reset();
    const QList<Event> input{ timed, noStart, noEnd };
    QCOMPARE(described(input, layOutBars(input, Sunday, 7)), QStringList{ QStringLiteral("no end:0-0@0") });
    QVERIFY(layOutBars(input, QDate(), 7).isEmpty());
}

void TestAllDayGeometry::lanesNeverCover()
{
    QList<Event> input;
    for (int i = 0; i < 60; ++i)
        input.append(allDay(QString::number(i), (i * 7) % 23 - 4, 1 + (i * 5) % 6));
    const QList<AllDayBar> bars = layOutBars(input, Sunday, 14);
    QVERIFY(bars.size() > 30);
    for (const AllDayBar &a : bars) {
        for (const AllDayBar &b : bars)
            QVERIFY(a == b || a.lane != b.lane || a.lastColumn < b.firstColumn || b.lastColumn < a.firstColumn);
        // First fit: every lane above is taken somewhere in the bar's columns.
        for (int lane = 0; lane < a.lane; ++lane)
            QVERIFY(std::any_of(bars.begin(), bars.end(), [&](const AllDayBar &b) {
                return b.lane == lane && b.lastColumn >= a.firstColumn && b.firstColumn <= a.lastColumn;
            }));
    }
}

void TestAllDayGeometry::heights_data()
{
    QTest::addColumn<int>("lanes");
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<int>("height");
    QTest::newRow("none") << 0 << false << 28;
    QTest::newRow("one") << 1 << false << 28;
    QTest::newRow("three are not collapsed") << 3 << false << 72;
    QTest::newRow("three have nothing to expand") << 3 << true << 72;
    QTest::newRow("four collapse to three rows") << 4 << false << 72;
    QTest::newRow("four with the chevron") << 4 << true << 108;
}

void TestAllDayGeometry::heights()
{
    QFETCH(int, lanes);
    QFETCH(bool, expanded);
    AllDayMetrics metrics;
    metrics.laneCount = lanes;
    metrics.isExpanded = expanded;
    QTEST(metrics.totalHeightPx(), "height");
}

void TestAllDayGeometry::rects()
{
    const QList<Event> input{ allDay(QStringLiteral("a"), 1, 2), allDay(QStringLiteral("b"), 2, 1) };
    const QList<AllDayBar> bars = layOutBars(input, Sunday, 7);
    const AllDayMetrics metrics = metricsFor(bars, false);
    QCOMPARE(metrics.barRect(bars.at(0)), QRect(166, 4, 196, 20));
    QCOMPARE(metrics.barRect(bars.at(1)), QRect(266, 26, 96, 20));
}

void TestAllDayGeometry::hiddenBarsAreCountedInTheirColumns()
{
    const QList<AllDayBar> three = layOutBars(events(3, 0, 1), Sunday, 7);
    QCOMPARE(hiddenPerColumn(three, metricsFor(three, false)), QList<int>(7, 0));
    // Four on Sunday: two bars, and a chip for two.
    const QList<AllDayBar> four = layOutBars(events(4, 0, 1), Sunday, 7);
    QCOMPARE(hiddenPerColumn(four, metricsFor(four, false)), (QList<int>{ 2, 0, 0, 0, 0, 0, 0 }));
    QCOMPARE(hiddenPerColumn(four, metricsFor(four, true)), QList<int>(7, 0));
}

void TestAllDayGeometry::barInTheLastRowYieldsToTheChip()
{
    // Four events share Sunday to Tuesday; the third lane of Thursday is free of that.
    QList<Event> input = events(4, 0, 3);
    for (const QString &title : { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z") })
        input.append(allDay(title, 4, 1));
    const QList<AllDayBar> bars = layOutBars(input, Sunday, 7);
    const AllDayMetrics metrics = metricsFor(bars, false);
    QStringList shown;
    for (const AllDayBar &bar : bars) {
        if (metrics.isShown(bar, bars))
            shown.append(input.at(bar.eventIndex).title);
    }
    QCOMPARE(shown.join(u' '), QStringLiteral("a b x y z"));
    QCOMPARE(hiddenPerColumn(bars, metrics), (QList<int>{ 2, 2, 2, 0, 0, 0, 0 }));
}

void TestAllDayGeometry::expandedStripScrollsByLanes()
{
    const QList<AllDayBar> bars = layOutBars(events(20, 0, 1), Sunday, 7);
    AllDayMetrics metrics = metricsFor(bars, true);
    metrics.laneLimit = metrics.lanesFitting(150);
    QCOMPARE(metrics.shownLanes(), 5); // 130 with margins and chevron; a sixth lane would make it 152
    QVERIFY(metrics.totalHeightPx() <= 150);
    metrics.topLane = 10;
    int shown = 0;
    for (const AllDayBar &bar : bars) {
        shown += metrics.isShown(bar, bars);
        QCOMPARE(metrics.isShown(bar, bars), bar.lane >= 10 && bar.lane < 15);
        if (bar.lane == 10)
            QCOMPARE(metrics.barRect(bar).top(), 4);
    }
    QCOMPARE(shown, 5);
    QCOMPARE(metrics.lanesFitting(10), 3); // never less than collapsed
}

QTEST_GUILESS_MAIN(TestAllDayGeometry)
#include "tst_AllDayGeometry.moc"
