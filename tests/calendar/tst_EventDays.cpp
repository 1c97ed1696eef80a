#include "calendar/EventDays.h"
#include "support/TestData.h"

#include <QTimeZone>

namespace {

const QDate Day(2026, 5, 4);

Event timed(const QDateTime &start, const QDateTime &end = {})
{
    Event event;
    event.startTime = start;
    if (end.isValid())
        event.endTime = end;
    return event;
}

/// From Day on.
Event allDay(int days, bool hasEnd = true)
{
    const QDateTime start(Day, QTime(0, 0), Qt::UTC);
    Event event = timed(start, hasEnd ? start.addDays(days) : QDateTime());
    event.isAllDay = true;
    return event;
}

/// On the machine's clock, \p days after Day.
QDateTime local(int days, int hour, int minute = 0)
{
    return QDateTime(Day.addDays(days), QTime(hour, minute));
}

/// The same instant as another place writes it.
QDateTime elsewhere(const QDateTime &value)
{
    return value.toTimeZone(QTimeZone("Asia/Kathmandu"));
}

}

// Runs with the machine in several zones: no expected value may depend on which.
class tst_EventDays : public QObject {
    Q_OBJECT

private slots:
    void days_data()
    {
        columns<Event, int>("event", "dayCount");
        row("all day", allDay(1), 1);
        row("all day, three days", allDay(3), 3);
        row("all day, no end", allDay(0, false), 1);
        row("all day, ends where it begins", allDay(0), 1);
        row("all day, ends before it begins", allDay(-3), 1);
        row("first minute", timed(local(0, 0), local(0, 0, 1)), 1);
        row("until midnight", timed(local(0, 23), local(1, 0)), 1);
        row("past midnight", timed(local(0, 23), local(1, 0, 1)), 2);
        row("no end, late", timed(local(0, 23, 59)), 1);
        row("no length at midnight", timed(local(0, 0), local(0, 0)), 1);
        row("ends before it begins", timed(local(0, 9), local(-2, 9)), 1);
        row("written in another zone", timed(elsewhere(local(0, 22)), elsewhere(local(1, 3))), 2);
        row("written in UTC", timed(local(0, 0, 30).toUTC(), local(0, 1).toUTC()), 1);
    }
    void days()
    {
        QFETCH(Event, event);
        QFETCH(int, dayCount);
        const QDate last = Day.addDays(dayCount - 1);
        QCOMPARE(EventDays::firstDay(event), Day);
        QCOMPARE(EventDays::lastDay(event), last);
        // The event shows on each of its days, and on none other.
        for (QDate day = Day.addDays(-3); day <= last.addDays(3); day = day.addDays(1))
            QCOMPARE(EventDays::overlaps(event, day, 1), day >= Day && day <= last);
        QVERIFY(EventDays::overlaps(event, Day.addDays(-6), 7) && !EventDays::overlaps(event, Day.addDays(-7), 7));
        QVERIFY(!EventDays::overlaps(event, Day, 0));
    }

    void invalidStart()
    {
        QVERIFY(!EventDays::firstDay(timed({})).isValid());
        QVERIFY(!EventDays::overlaps(timed({}, local(0, 9)), Day, 7));
        QVERIFY(!EventDays::overlaps(allDay(1), QDate(), 7));
    }
};

QTEST_GUILESS_MAIN(tst_EventDays)
#include "tst_EventDays.moc"
