#include "support/TestData.h"
#include "ui/surfaces/TimelineGeometry.h"

#include <QtTest>

#include <ctime>

namespace {

const QDate Monday(2026, 6, 15);

/// "9:00-10:30" on \p date; "22:00-+2:00" ends on the next day; "9:00" has no end.
Event timed(const QString &span, QDate date = Monday)
{
    const QStringList parts = span.split(u'-');
    const auto at = [date](QString text) {
        const QDate day = text.startsWith(u'+') ? date.addDays(1) : date;
        return QDateTime(day, QTime::fromString(text.remove(u'+'), u"H:mm"_qs));
    };
    Event event;
    event.id = span;
    event.startTime = at(parts.first());
    if (parts.size() > 1)
        event.endTime = at(parts.last());
    return event;
}

TimelineMetrics weekMetrics()
{
    TimelineMetrics metrics;
    metrics.columns = { 64, 7, 64 + 7 * 100 }; // columns of 100 pixels
    metrics.hourHeightPx = 60; // a minute is a pixel
    metrics.minBlockHeightPx = 24;
    return metrics;
}

}

class TestTimelineGeometry : public QObject {
    Q_OBJECT

private:
    static void setZone(const QByteArray &zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_zone;

private slots:
    void initTestCase() { m_zone = qgetenv("TZ"); }
    void cleanup() { setZone(m_zone); }

    void timesLieOnTheAxis()
    {
        TimelineMetrics metrics = weekMetrics();
        QCOMPARE(metrics.yForBoundary(QDateTime(Monday.addDays(-1), QTime(23, 59)), Monday), 0);
        QCOMPARE(metrics.yForBoundary(QDateTime(Monday, QTime(6, 15, 59)), Monday), 375);
        QCOMPARE(metrics.yForBoundary(QDateTime(Monday.addDays(1), QTime(0, 0)), Monday), 1440);
        metrics.hourHeightPx = 56;
        QCOMPARE(metrics.yForTime(QTime(8, 30)), 476);
        QCOMPARE(metrics.yForTime(QTime(0, 1)), 0); // fractions are cut
    }

    void columnsShareTheWidth()
    {
        const DayColumns week{ 64, 7, 769 }; // five pixels are left over
        QList<int> columns;
        for (const int x : { 63, 64, 163, 164, 763, 764 })
            columns.append(week.columnAt(x));
        QCOMPARE(columns, QList<int>({ -1, 0, 0, 1, 6, -1 }));
        QCOMPARE(DayColumns({ 64, 7, 40 }).columnWidthPx(), 1); // narrower than its gutter
    }

    void blocks_data()
    {
        columns<QString, QList<QRect>>("spans", "rects"); // in the order of the spans
        using Rects = QList<QRect>;
        // The first column begins at 64, its blocks at 68; they have 92 pixels.
        row("touching", "9:00-10:00 10:00-11:00", Rects{ { 68, 540, 92, 60 }, { 68, 600, 92, 60 } });
        row("overlapping", "9:00-10:00 9:30-11:00", Rects{ { 68, 540, 45, 60 }, { 115, 570, 45, 90 } });
        row("freed column is used again", "9:00-12:00 9:30-10:00 10:30-11:00",
            Rects{ { 68, 540, 45, 180 }, { 115, 570, 45, 30 }, { 115, 630, 45, 30 } });
        row("no end", "9:00", Rects{ { 68, 540, 92, 24 } });
        row("five minutes", "9:00-9:05", Rects{ { 68, 540, 92, 24 } });
        row("smallest blocks that would cover each other", "9:00-9:05 9:10-9:40",
            Rects{ { 68, 540, 45, 24 }, { 115, 550, 45, 30 } });
        row("smallest blocks that touch", "9:00-9:05 9:24-10:00", Rects{ { 68, 540, 92, 24 }, { 68, 564, 92, 36 } });
        row("end of the day stays inside", "23:55-+0:00", Rects{ { 68, 1416, 92, 24 } });
        row("end before start", "9:00-8:00", Rects{ { 68, 540, 92, 24 } });
        row("past midnight", "22:00-+2:00", Rects{ { 68, 1320, 92, 120 }, { 168, 0, 92, 120 } });
    }

    void blocks()
    {
        QFETCH(QString, spans);
        QList<Event> events;
        for (const QString &span : spans.split(u' '))
            events.append(timed(span));
        QList<EventBlock> blocks = layOutBlocks(events, Monday, weekMetrics());
        std::stable_sort(blocks.begin(), blocks.end(),
                         [](const EventBlock &a, const EventBlock &b) { return a.eventIndex < b.eventIndex; });
        QList<QRect> found;
        for (const EventBlock &block : std::as_const(blocks)) {
            QCOMPARE(block.eventId, events.at(block.eventIndex).id);
            QCOMPARE(block.occurrenceStart, events.at(block.eventIndex).startTime);
            found.append(block.rect);
        }
        QTEST(found, "rects");
    }

    void everyDayOfAnEventHasABlock()
    {
        Event event = timed(u"18:00"_qs, Monday.addDays(-3));
        event.endTime = QDateTime(Monday.addDays(2), QTime(0, 0)); // Wednesday is not touched
        const QList<EventBlock> blocks = layOutBlocks({ event }, Monday, weekMetrics());
        QCOMPARE(blocks.size(), 2);
        QCOMPARE(blocks.at(0).rect, QRect(68, 0, 92, 1440));
        QCOMPARE(blocks.at(1).rect, QRect(168, 0, 92, 1440));
    }

    void wallClockInEveryZone_data()
    {
        QTest::addColumn<QDate>("date");
        for (const char *zone : { "Pacific/Pago_Pago", "America/Los_Angeles", "Asia/Kolkata", "Pacific/Kiritimati",
                                  "Australia/Lord_Howe" }) {
            QTest::addRow("%s", zone) << Monday;
            QTest::addRow("%s spring", zone) << QDate(2026, 3, 8); // 2:00 to 3:00 is missing in Los Angeles
            QTest::addRow("%s autumn", zone) << QDate(2026, 11, 1);
        }
    }

    void wallClockInEveryZone()
    {
        QFETCH(QDate, date);
        setZone(QByteArray(QTest::currentDataTag()).split(' ').first());
        const QList<Event> events{ timed(u"0:30-5:00"_qs, date), timed(u"23:00-+0:30"_qs, date) };
        const QList<EventBlock> blocks = layOutBlocks(events, date, weekMetrics());
        QCOMPARE(blocks.size(), 3);
        QCOMPARE(blocks.at(0).rect, QRect(68, 30, 92, 270));
        QCOMPARE(blocks.at(1).rect, QRect(68, 1380, 92, 60));
        QCOMPARE(blocks.at(2).rect, QRect(168, 0, 92, 30));
    }

    void hourThatComesTwiceIsLaidOutAsDrawn()
    {
        setZone("America/Los_Angeles");
        const QDate change(2026, 11, 1);
        const auto halfHourFrom = [change](QTime utc) {
            Event event;
            event.startTime = QDateTime(change, utc, Qt::UTC);
            event.endTime = event.startTime.addSecs(1800);
            return event;
        };
        // 1:15 to 1:45 in daylight time, and an hour later, in standard time, the same.
        const QList<EventBlock> both =
            layOutBlocks({ halfHourFrom(QTime(8, 15)), halfHourFrom(QTime(9, 15)) }, change, weekMetrics());
        QCOMPARE(both.size(), 2);
        QCOMPARE(both.at(0).rect, QRect(68, 75, 45, 30));
        QCOMPARE(both.at(1).rect, QRect(115, 75, 45, 30));
        // Half an hour across the change: the clock shows 1:45 and then 1:15.
        QCOMPARE(layOutBlocks({ halfHourFrom(QTime(8, 45)) }, change, weekMetrics()).at(0).rect,
                 QRect(68, 105, 92, 24));
    }

    void blocksNeverCoverEachOther()
    {
        TimelineMetrics metrics = weekMetrics();
        metrics.columns.widthPx = 64 + 7 * 600;
        QRandomGenerator random(20260615);
        for (const int hourHeight : { 56, 61, 200 }) {
            metrics.hourHeightPx = hourHeight;
            QList<Event> events(150);
            for (Event &event : events) {
                event.startTime = QDateTime(Monday, QTime(0, 0)).addSecs(60 * random.bounded(7 * 1440));
                event.endTime = event.startTime.addSecs(60 * random.bounded(180));
            }
            const QList<EventBlock> blocks = layOutBlocks(events, Monday, metrics);
            QVERIFY(blocks.size() >= 150);
            const QRect inside(64, 0, 7 * 600, metrics.dayHeightPx());
            for (int i = 0; i < blocks.size(); ++i) {
                QVERIFY(inside.contains(blocks.at(i).rect));
                QVERIFY(blocks.at(i).rect.height() >= metrics.minBlockHeightPx);
                for (int j = 0; j < i; ++j)
                    QVERIFY2(!blocks.at(i).rect.intersects(blocks.at(j).rect), qPrintable(QString::number(hourHeight)));
            }
        }
    }

    void unusableEventsAreLeftOut()
    {
        Event allDay = timed(u"0:00-+0:00"_qs);
        allDay.isAllDay = true;
        const Event nextWeek = timed(u"9:00-10:00"_qs, Monday.addDays(7));
        QVERIFY(layOutBlocks({ allDay, Event(), nextWeek }, Monday, weekMetrics()).isEmpty());
        Event badEnd = timed(u"9:00-10:00"_qs);
        badEnd.endTime = QDateTime();
        QCOMPARE(layOutBlocks({ badEnd }, Monday, weekMetrics()).size(), 1);
        QVERIFY(layOutBlocks({ badEnd }, QDate(), weekMetrics()).isEmpty());
    }

    void landingAndZoom()
    {
        // Workday from 8 to 18, a pixel a minute, a viewport of 600.
        const auto landingAt = [](QTime now) { return landingY(weekMetrics(), 8, 18, now, 600); };
        QCOMPARE(landingAt({}), 480); // another day
        QCOMPARE(landingAt(QTime(12, 0)), 480);
        QCOMPARE(landingAt(QTime(7, 59)), 279);
        QCOMPARE(landingAt(QTime(18, 0)), 880);
        QCOMPARE(landingAt(QTime(0, 5)), 0);
        // 10:00 is at 560, 160 below the top of the viewport; at 64 an hour it is at 640.
        QCOMPARE(scrollAfterZoom(400, 160, 56, 64), 480);
        QCOMPARE(scrollAfterZoom(0, 300, 64, 56), 0); // nothing lies above midnight
    }

    void wheelMovementGathers()
    {
        WheelNotches notches;
        QList<int> full;
        // The third keeps what was gathered; with the fifth 30 wait; the sixth starts afresh.
        for (const int delta : { 120, 50, 0, 50, 50, -100, -20, -360 })
            full.append(notches.add(delta));
        QCOMPARE(full, QList<int>({ 1, 0, 0, 0, 1, 0, -1, -3 }));
    }
};

QTEST_GUILESS_MAIN(TestTimelineGeometry)
#include "tst_TimelineGeometry.moc"
