#include "calendar/EventLayout.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

namespace {

/// Minutes of one day; without an end if that is negative.
Event makeEvent(int startMin, int endMin)
{
    Event event;
    event.startTime = utc("2026-05-04").addSecs(startMin * 60);
    if (endMin >= 0)
        event.endTime = event.startTime.addSecs((endMin - startMin) * 60);
    return event;
}

/// "570-600" and the like, separated by blanks; no end after the dash for an event without one.
QList<Event> eventsFrom(const QString &text)
{
    QList<Event> events;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        const QString end = word.section(u'-', 1);
        events.append(makeEvent(word.section(u'-', 0, 0).toInt(), end.isEmpty() ? -1 : end.toInt()));
        events.last().title = word;
    }
    return events;
}

}

class tst_EventLayout : public QObject {
    Q_OBJECT

private slots:
    void places_data()
    {
        columns<QString, QString>("events", "expected"); // event, column of count
        row("touching", "60-120 0-60", "0-60:0/1 60-120:0/1");
        row("column used again", "0-180 30-60 90-120", "0-180:0/2 30-60:1/2 90-120:1/2");
        row("chain", "0-60 30-120 90-150", "0-60:0/2 30-120:1/2 90-150:0/2");
        row("the shorter first", "0-60 0-30", "0-30:0/2 0-60:1/2");
        row("three deep, then alone", "0-180 0-120 0-60 180-240", "0-60:0/3 0-120:1/3 0-180:2/3 180-240:0/1");
        row("two free columns", "0-30 0-30 0-90 30-60 30-60", "0-30:0/3 0-30:1/3 0-90:2/3 30-60:0/3 30-60:1/3");
        row("lowest free column", "0-240 10-60 20-240 60-120", "0-240:0/3 10-60:1/3 20-240:2/3 60-120:1/3");
        row("no end", "0- 30-60", "0-:0/1 30-60:0/1");
        row("no end within another", "0-120 60- 60-90", "0-120:0/2 60-:1/2 60-90:1/2");
        row("ends before it begins", "60-0 60-120", "60-0:0/1 60-120:0/1");
    }
    void places()
    {
        QFETCH(QString, events);
        QStringList found;
        for (const EventLayout::Placement &placed : EventLayout::compute(eventsFrom(events)))
            found.append(u"%1:%2/%3"_s.arg(placed.event.title).arg(placed.column).arg(placed.columnCount));
        QTEST(found.join(u' '), "expected");
    }

    void manyAtOnce()
    {
        // A file with one event thousands of times must not stop the program.
        const QList<EventLayout::Placement> placements = EventLayout::compute(QList<Event>(20'000, makeEvent(0, 60)));
        QCOMPARE(placements.last().column, 19'999);
        QCOMPARE(placements.first().columnCount, 20'000);
    }
};

QTEST_GUILESS_MAIN(tst_EventLayout)
#include "tst_EventLayout.moc"
