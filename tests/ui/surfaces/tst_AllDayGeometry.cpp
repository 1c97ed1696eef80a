#include "ui/surfaces/AllDayGeometry.h"

#include <QtTest>

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
QString described(const QList<Event> &events)
{
    QStringList result;
    for (const AllDayBar &bar : layOutBars(events, Sunday, 7))
        result.append(QStringLiteral("%1:%2%3-%4%5@%6")
                          .arg(events.at(bar.eventIndex).title, bar.beginsEarlier ? QStringLiteral("<") : QString())
                          .arg(bar.firstColumn)
                          .arg(bar.lastColumn)
                          .arg(bar.endsLater ? QStringLiteral(">") : QString())
                          .arg(bar.lane));
    return result.join(u' ');
}

/// Events of Sunday, all as long.
QList<Event> events(int count, int days = 1)
{
    QList<Event> result;
    for (int i = 0; i < count; ++i)
        result.append(allDay(QString(QChar(u'a' + i)), 0, days));
    return result;
}

}

class TestAllDayGeometry : public QObject {
    Q_OBJECT

private slots:
    void packing()
    {
        const auto named = [](char16_t title, int offset, int days) { return allDay(QString(title), offset, days); };
        QCOMPARE(described({ named(u'a', 1, 2) }), u"a:1-2@0"_qs);
        QCOMPARE(described({ named(u'a', 0, 1), named(u'b', 0, 3) }), u"b:0-2@0 a:0-0@1"_qs); // the longer one first
        QCOMPARE(described({ named(u'a', 0, 2), named(u'b', 1, 2), named(u'c', 2, 1) }),
                 u"a:0-1@0 b:1-2@1 c:2-2@0"_qs); // a freed lane is used again
        QCOMPARE(described({ named(u'a', -5, 30) }), u"a:<0-6>@0"_qs);
        QCOMPARE(described({ named(u'a', -2, 2), named(u'b', 7, 1) }), QString()); // before and after the week
        QCOMPARE(described({ named(u'a', 3, 0) }), u"a:3-3@0"_qs);
        QList<Event> input{ named(u'a', 0, 1), named(u'b', 0, 1), named(u'c', 0, 1) };
        input[0].isAllDay = false;
        input[1].startTime = {};
        input[2].endTime.reset();
        QCOMPARE(described(input), u"c:0-0@0"_qs);
        QVERIFY(layOutBars(input, QDate(), 7).isEmpty());
    }

    void lanesNeverCover()
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

    void heights()
    {
        const auto heightOf = [](int lanes, bool expanded) {
            return AllDayMetrics{ .columns = {}, .laneCount = lanes, .isExpanded = expanded }.totalHeightPx();
        };
        QCOMPARE(heightOf(0, false), 28);
        QCOMPARE(heightOf(3, true), 72); // nothing to expand
        QCOMPARE(heightOf(4, false), 72);
        QCOMPARE(heightOf(4, true), 108); // with the chevron
    }

    void barInTheLastRowYieldsToTheChip()
    {
        // Four events share Sunday to Tuesday; the third lane of Thursday is free of that.
        QList<Event> input = events(4, 3);
        for (const QString &title : { u"x"_qs, u"y"_qs, u"z"_qs })
            input.append(allDay(title, 4, 1));
        const QList<AllDayBar> bars = layOutBars(input, Sunday, 7);
        const AllDayMetrics metrics = metricsFor(bars, false);
        QString shown;
        for (const AllDayBar &bar : bars) {
            if (metrics.isShown(bar, bars))
                shown += input.at(bar.eventIndex).title;
        }
        QCOMPARE(shown, u"abxyz"_qs);
        QCOMPARE(hiddenPerColumn(bars, metrics), (QList<int>{ 2, 2, 2, 0, 0, 0, 0 }));
        QCOMPARE(hiddenPerColumn(bars, metricsFor(bars, true)), QList<int>(7, 0));
        QCOMPARE(metrics.barRect(bars.at(1)), QRect(66, 26, 296, 20)); // "b", of three columns
    }

    void expandedStripScrollsByLanes()
    {
        const QList<AllDayBar> bars = layOutBars(events(20), Sunday, 7);
        AllDayMetrics metrics = metricsFor(bars, true);
        metrics.laneLimit = metrics.lanesFitting(150);
        QCOMPARE(metrics.shownLanes(), 5); // 130 with margins and chevron; a sixth lane would make it 152
        QVERIFY(metrics.totalHeightPx() <= 150);
        metrics.topLane = 10;
        for (const AllDayBar &bar : bars)
            QCOMPARE(metrics.isShown(bar, bars), bar.lane >= 10 && bar.lane < 15);
        QCOMPARE(metrics.cellRect(0, 0, 10).top(), 4);
        QCOMPARE(metrics.lanesFitting(10), 3); // never less than collapsed
    }
};

QTEST_GUILESS_MAIN(TestAllDayGeometry)
#include "tst_AllDayGeometry.moc"
