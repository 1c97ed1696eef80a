#include "ui/surfaces/TimelineGeometry.h"

#include <QRandomGenerator>
#include <QTest>

#include <ctime>

namespace {

const QDate Monday(2026, 6, 15);

/// "9:00-10:30" on \p date; "22:00-+2:00" ends on the next day; "9:00" has no end.
Event timed(const QString &span, QDate date = Monday)
{
    const QStringList parts = span.split(u'-');
    const auto at = [date](QString text) {
        const QDate day = text.startsWith(u'+') ? date.addDays(1) : date;
        return QDateTime(day, QTime::fromString(text.remove(u'+'), QStringLiteral("H:mm")));
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

private slots:
    void timesLieOnTheAxis_data();
    void timesLieOnTheAxis();
    void boundariesAreCutToTheDay();
    void columnsShareTheWidth_data();
    void columnsShareTheWidth();
    void blocks_data();
    void blocks();
    void everyDayOfAnEventHasABlock();
    void wallClockInEveryZone_data();
    void wallClockInEveryZone();
    void hourThatComesTwiceIsLaidOutAsDrawn();
    void blocksNeverCoverEachOther();
    void unusableEventsAreLeftOut();
    void topmostBlockIsHit();
    void stepping_data();
    void stepping();
    void landing_data();
    void landing();
    void zoomKeepsTheTimeAtTheAnchor();
    void wheelMovementGathers();
    void cleanup() { setZone(m_zone); }
    void initTestCase() { m_zone = qgetenv("TZ"); }

private:
    static void setZone(const QByteArray &zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_zone;
};

void TestTimelineGeometry::timesLieOnTheAxis_data()
{
    QTest::addColumn<int>("hourHeight");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<int>("y");
    QTest::newRow("midnight") << 56 << QTime(0, 0) << 0;
    QTest::newRow("half past eight") << 56 << QTime(8, 30) << 476;
    QTest::newRow("fractions are cut") << 56 << QTime(0, 1) << 0;
    QTest::newRow("seconds do not count") << 60 << QTime(1, 0, 59) << 60;
    QTest::newRow("last minute") << 200 << QTime(23, 59) << 4796;
}

void TestTimelineGeometry::timesLieOnTheAxis()
{
    QFETCH(int, hourHeight);
    QFETCH(QTime, time);
    TimelineMetrics metrics;
    metrics.hourHeightPx = hourHeight;
    QTEST(metrics.yForTime(time), "y");
}

void TestTimelineGeometry::boundariesAreCutToTheDay()
{
    const TimelineMetrics metrics = weekMetrics();
    QCOMPARE(metrics.yForBoundary(QDateTime(Monday.addDays(-1), QTime(23, 59)), Monday), 0);
    QCOMPARE(metrics.yForBoundary(QDateTime(Monday, QTime(6, 15)), Monday), 375);
    QCOMPARE(metrics.yForBoundary(QDateTime(Monday.addDays(1), QTime(0, 0)), Monday), 1440);
}

void TestTimelineGeometry::columnsShareTheWidth_data()
{
    QTest::addColumn<DayColumns>("columns");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("columnAtX");
    QTest::newRow("first pixel of the first") << DayColumns{ 64, 7, 764 } << 100 << 64 << 0;
    QTest::newRow("last pixel of the first") << DayColumns{ 64, 7, 764 } << 100 << 163 << 0;
    QTest::newRow("gutter") << DayColumns{ 64, 7, 764 } << 100 << 63 << -1;
    QTest::newRow("left over at the right") << DayColumns{ 64, 7, 769 } << 100 << 764 << -1;
    QTest::newRow("fourteen") << DayColumns{ 64, 14, 1440 } << 98 << 64 + 13 * 98 << 13;
    QTest::newRow("narrower than its gutter") << DayColumns{ 64, 7, 40 } << 1 << 64 << 0;
}

void TestTimelineGeometry::columnsShareTheWidth()
{
    QFETCH(DayColumns, columns);
    QFETCH(int, x);
    QTEST(columns.columnWidthPx(), "width");
    QTEST(columns.columnAt(x), "columnAtX");
}

void TestTimelineGeometry::blocks_data()
{
    QTest::addColumn<QStringList>("spans");
    QTest::addColumn<QList<QRect>>("rects"); // in the order of the spans
    const auto list = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
    // The first column begins at 64, its blocks at 68; they have 92 pixels.
    QTest::newRow("an hour") << list("9:00-10:00") << QList<QRect>{ { 68, 540, 92, 60 } };
    QTest::newRow("touching") << list("9:00-10:00 10:00-11:00")
                              << QList<QRect>{ { 68, 540, 92, 60 }, { 68, 600, 92, 60 } };
    QTest::newRow("overlapping") << list("9:00-10:00 9:30-11:00")
                                 << QList<QRect>{ { 68, 540, 45, 60 }, { 115, 570, 45, 90 } };
    QTest::newRow("freed column is used again")
        << list("9:00-12:00 9:30-10:00 10:30-11:00")
        << QList<QRect>{ { 68, 540, 45, 180 }, { 115, 570, 45, 30 }, { 115, 630, 45, 30 } };
    QTest::newRow("no end") << list("9:00") << QList<QRect>{ { 68, 540, 92, 24 } };
    QTest::newRow("no length") << list("9:00-9:00") << QList<QRect>{ { 68, 540, 92, 24 } };
    QTest::newRow("five minutes") << list("9:00-9:05") << QList<QRect>{ { 68, 540, 92, 24 } };
    QTest::newRow("smallest blocks that would cover each other")
        << list("9:00-9:05 9:10-9:40") << QList<QRect>{ { 68, 540, 45, 24 }, { 115, 550, 45, 30 } };
    QTest::newRow("smallest blocks that touch")
        << list("9:00-9:05 9:24-10:00") << QList<QRect>{ { 68, 540, 92, 24 }, { 68, 564, 92, 36 } };
    QTest::newRow("end of the day stays inside") << list("23:55-+0:00") << QList<QRect>{ { 68, 1416, 92, 24 } };
    QTest::newRow("midnight") << list("0:00-0:00") << QList<QRect>{ { 68, 0, 92, 24 } };
    QTest::newRow("end before start") << list("9:00-8:00") << QList<QRect>{ { 68, 540, 92, 24 } };
    QTest::newRow("past midnight") << list("22:00-+2:00") << QList<QRect>{ { 68, 1320, 92, 120 }, { 168, 0, 92, 120 } };
}

void TestTimelineGeometry::blocks()
{
    QFETCH(QStringList, spans);
    QFETCH(QList<QRect>, rects);
    QList<Event> events;
    for (const QString &span : std::as_const(spans))
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
    QCOMPARE(found, rects);
}

void TestTimelineGeometry::everyDayOfAnEventHasABlock()
{
    Event event = timed(QStringLiteral("18:00-19:00"), Monday.addDays(-3));
    event.endTime = QDateTime(Monday.addDays(2), QTime(0, 0)); // Wednesday is not touched
    const QList<EventBlock> blocks = layOutBlocks({ event }, Monday, weekMetrics());
    QCOMPARE(blocks.size(), 2);
    QCOMPARE(blocks.at(0).rect, QRect(68, 0, 92, 1440));
    QCOMPARE(blocks.at(1).rect, QRect(168, 0, 92, 1440));
    QCOMPARE(blocks.at(1).occurrenceStart, event.startTime);
}

void TestTimelineGeometry::wallClockInEveryZone_data()
{
    QTest::addColumn<QDate>("date");
    for (const char *zone : { "UTC", "Pacific/Pago_Pago", "America/Los_Angeles", "Asia/Kolkata", "Pacific/Kiritimati",
                              "Australia/Lord_Howe" }) {
        QTest::addRow("%s", zone) << Monday;
        QTest::addRow("%s spring", zone) << QDate(2026, 3, 8); // 2:00 to 3:00 is missing in Los Angeles
        QTest::addRow("%s autumn", zone) << QDate(2026, 11, 1);
    }
}

void TestTimelineGeometry::wallClockInEveryZone()
{
    QFETCH(QDate, date);
    setZone(QByteArray(QTest::currentDataTag()).split(' ').first());
    const QList<Event> events{ timed(QStringLiteral("0:30-5:00"), date), timed(QStringLiteral("23:00-+0:30"), date) };
    const QList<EventBlock> blocks = layOutBlocks(events, date, weekMetrics());
    QCOMPARE(blocks.size(), 3);
    QCOMPARE(blocks.at(0).rect, QRect(68, 30, 92, 270));
    QCOMPARE(blocks.at(1).rect, QRect(68, 1380, 92, 60));
    QCOMPARE(blocks.at(2).rect, QRect(168, 0, 92, 30));
}

void TestTimelineGeometry::hourThatComesTwiceIsLaidOutAsDrawn()
{
    setZone("America/Los_Angeles");
    // 1:15 to 1:45 in daylight time, and an hour later, in standard time, the same.
    Event first;
    first.id = QStringLiteral("first");
    first.startTime = QDateTime(QDate(2026, 11, 1), QTime(8, 15), Qt::UTC);
    first.endTime = first.startTime.addSecs(1800);
    Event second = first;
    second.id = QStringLiteral("second");
    second.startTime = first.startTime.addSecs(3600);
    second.endTime = second.startTime.addSecs(1800);
    // Half an hour across the change: the clock shows 1:45 and then 1:15.
    Event across = first;
    across.id = QStringLiteral("across");
    across.startTime = QDateTime(QDate(2026, 11, 1), QTime(8, 45), Qt::UTC);
    across.endTime = across.startTime.addSecs(1800);

    const QList<EventBlock> both = layOutBlocks({ first, second }, QDate(2026, 11, 1), weekMetrics());
    QCOMPARE(both.size(), 2);
    QCOMPARE(both.at(0).rect.top(), 75);
    QCOMPARE(both.at(1).rect.top(), 75);
    QVERIFY(!both.at(0).rect.intersects(both.at(1).rect));
    const QList<EventBlock> alone = layOutBlocks({ across }, QDate(2026, 11, 1), weekMetrics());
    QCOMPARE(alone.size(), 1);
    QCOMPARE(alone.at(0).rect, QRect(68, 105, 92, 24));
}

void TestTimelineGeometry::blocksNeverCoverEachOther()
{
    TimelineMetrics metrics = weekMetrics();
    metrics.columns.widthPx = 64 + 7 * 600;
    QRandomGenerator random(20260615);
    for (const int hourHeight : { 56, 61, 200 }) {
        metrics.hourHeightPx = hourHeight;
        QList<Event> events;
        for (int i = 0; i < 150; ++i) {
            Event event;
            event.id = QString::number(i);
            event.startTime = QDateTime(Monday, QTime(0, 0)).addSecs(60 * random.bounded(7 * 1440));
            event.endTime = event.startTime.addSecs(60 * random.bounded(180));
            events.append(event);
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

void TestTimelineGeometry::unusableEventsAreLeftOut()
{
    Event allDay = timed(QStringLiteral("0:00-+0:00"));
    allDay.isAllDay = true;
    QVERIFY(layOutBlocks({ allDay, Event() }, Monday, weekMetrics()).isEmpty());
    QVERIFY(layOutBlocks({ timed(QStringLiteral("9:00-10:00")) }, QDate(), weekMetrics()).isEmpty());
    Event badEnd = timed(QStringLiteral("9:00-10:00"));
    badEnd.endTime = QDateTime();
    QCOMPARE(layOutBlocks({ badEnd }, Monday, weekMetrics()).size(), 1);
    QVERIFY(layOutBlocks({ timed(QStringLiteral("9:00-10:00"), Monday.addDays(7)) }, Monday, weekMetrics()).isEmpty());
}

void TestTimelineGeometry::topmostBlockIsHit()
{
    const QList<EventBlock> blocks{ { QStringLiteral("under"), { 0, 0, 50, 50 }, {}, 0 },
                                    { QStringLiteral("over"), { 25, 25, 50, 50 }, {}, 1 } };
    QCOMPARE(blockIndexAt(blocks, { 10, 10 }), 0);
    QCOMPARE(blockIndexAt(blocks, { 30, 30 }), 1);
    QCOMPARE(blockIndexAt(blocks, { 75, 75 }), -1); // one past the last pixel
}

void TestTimelineGeometry::stepping_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("wrap");
    QTest::addColumn<int>("next");
    QTest::newRow("enters at the beginning") << -1 << 3 << 1 << false << 0;
    QTest::newRow("enters at the end") << -1 << 3 << -1 << false << 2;
    QTest::newRow("forward") << 0 << 3 << 1 << false << 1;
    QTest::newRow("leaves at the end") << 2 << 3 << 1 << false << -1;
    QTest::newRow("leaves at the beginning") << 0 << 3 << -1 << false << -1;
    QTest::newRow("wraps at the end") << 2 << 3 << 1 << true << 0;
    QTest::newRow("wraps at the beginning") << 0 << 3 << -1 << true << 2;
    QTest::newRow("nothing to walk") << -1 << 0 << 1 << true << -1;
}

void TestTimelineGeometry::stepping()
{
    QFETCH(int, current);
    QFETCH(int, count);
    QFETCH(int, step);
    QFETCH(bool, wrap);
    QTEST(stepIndex(current, count, step, wrap), "next");
}

void TestTimelineGeometry::landing_data()
{
    QTest::addColumn<QTime>("now");
    QTest::addColumn<int>("y");
    // Workday from 8 to 18, a pixel a minute, a viewport of 600.
    QTest::newRow("another day") << QTime() << 480;
    QTest::newRow("at work") << QTime(12, 0) << 480;
    QTest::newRow("early") << QTime(7, 59) << 279;
    QTest::newRow("at the end of the workday") << QTime(18, 0) << 880;
    QTest::newRow("just after midnight") << QTime(0, 5) << 0;
}

void TestTimelineGeometry::landing()
{
    QFETCH(QTime, now);
    QTEST(landingY(weekMetrics(), 8, 18, now, 600), "y");
}

void TestTimelineGeometry::zoomKeepsTheTimeAtTheAnchor()
{
    // 10:00 is at 560, 160 below the top; at 64 an hour it is at 640.
    QCOMPARE(scrollAfterZoom(400, 160, 56, 64), 480);
    QCOMPARE(scrollAfterZoom(480, 160, 64, 56), 400);
    QCOMPARE(scrollAfterZoom(0, 300, 64, 56), 0); // nothing lies above midnight
}

void TestTimelineGeometry::wheelMovementGathers()
{
    WheelNotches notches;
    QCOMPARE(notches.add(120), 1);
    QCOMPARE(notches.add(50), 0);
    QCOMPARE(notches.add(0), 0); // keeps what was gathered
    QCOMPARE(notches.add(50), 0);
    QCOMPARE(notches.add(50), 1); // 150, and 30 wait
    QCOMPARE(notches.add(-100), 0); // starts afresh
    QCOMPARE(notches.add(-20), -1);
    QCOMPARE(notches.add(-360), -3);
}

QTEST_GUILESS_MAIN(TestTimelineGeometry)
#include "tst_TimelineGeometry.moc"
