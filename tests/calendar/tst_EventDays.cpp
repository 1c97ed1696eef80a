#include "calendar/EventDays.h"

#include <QTest>
#include <QTimeZone>

namespace {

Event timed(const QDateTime &start, const QDateTime &end = {})
{
    Event event;
    event.startTime = start;
    if (end.isValid())
        event.endTime = end;
    return event;
}

Event allDay(QDate first, QDate end = {})
{
    Event event = timed(QDateTime(first, QTime(0, 0), Qt::UTC),
                        end.isValid() ? QDateTime(end, QTime(0, 0), Qt::UTC) : QDateTime());
    event.isAllDay = true;
    return event;
}

QDateTime local(QDate date, int hour, int minute = 0)
{
    return QDateTime(date, QTime(hour, minute));
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
    void days_data();
    void days();
    void invalidStart();
};

void tst_EventDays::days_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    const QDate day(2026, 5, 4);
    const QDate next = day.addDays(1);
    QTest::newRow("all day") << allDay(day, next) << day << day;
    QTest::newRow("all day, three days") << allDay(day, day.addDays(3)) << day << day.addDays(2);
    QTest::newRow("all day, no end") << allDay(day) << day << day;
    QTest::newRow("all day, ends where it begins") << allDay(day, day) << day << day;
    QTest::newRow("all day, ends before it begins") << allDay(day, day.addDays(-3)) << day << day;
    QTest::newRow("morning") << timed(local(day, 9), local(day, 10)) << day << day;
    QTest::newRow("first minute") << timed(local(day, 0), local(day, 0, 1)) << day << day;
    QTest::newRow("until midnight") << timed(local(day, 23), local(next, 0)) << day << day;
    QTest::newRow("past midnight") << timed(local(day, 23), local(next, 0, 1)) << day << next;
    QTest::newRow("whole local day, but not an all-day event") << timed(local(day, 0), local(next, 0)) << day << day;
    QTest::newRow("no end, late") << timed(local(day, 23, 59)) << day << day;
    QTest::newRow("no length at midnight") << timed(local(day, 0), local(day, 0)) << day << day;
    QTest::newRow("ends before it begins") << timed(local(day, 9), local(day.addDays(-2), 9)) << day << day;
    QTest::newRow("written in another zone")
        << timed(elsewhere(local(day, 22)), elsewhere(local(next, 3))) << day << next;
    QTest::newRow("written in UTC") << timed(local(day, 0, 30).toUTC(), local(day, 1).toUTC()) << day << day;
}

void tst_EventDays::days()
{
    QFETCH(Event, event);
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    QCOMPARE(EventDays::firstDay(event), first);
    QCOMPARE(EventDays::lastDay(event), last);
    // The event shows on each of its days, and on none other.
    for (QDate day = first.addDays(-3); day <= last.addDays(3); day = day.addDays(1))
        QCOMPARE(EventDays::overlaps(event, day, 1), day >= first && day <= last);
    QVERIFY(EventDays::overlaps(event, first.addDays(-10), 100));
    QVERIFY(EventDays::overlaps(event, first.addDays(-6), 7));
    QVERIFY(!EventDays::overlaps(event, first.addDays(-7), 7));
    QVERIFY(!EventDays::overlaps(event, last.addDays(1), 7));
    QVERIFY(!EventDays::overlaps(event, first, 0));
}

void tst_EventDays::invalidStart()
{
    QVERIFY(!EventDays::firstDay(timed({})).isValid());
    QVERIFY(!EventDays::overlaps(timed({}), QDate(2026, 5, 4), 7));
    QVERIFY(!EventDays::overlaps(timed({}, local(QDate(2026, 5, 4), 9)), QDate(2026, 5, 4), 7));
    QVERIFY(!EventDays::overlaps(allDay(QDate(2026, 5, 4)), QDate(), 7));
}

QTEST_GUILESS_MAIN(tst_EventDays)
#include "tst_EventDays.moc"
