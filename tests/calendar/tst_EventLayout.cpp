#include "calendar/EventLayout.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

namespace {

/// Minutes of one day; the title says them.
Event makeEvent(int startMin, int endMin)
{
    Event event;
    event.title = QStringLiteral("%1-%2").arg(startMin).arg(endMin);
    event.startTime = QDateTime(QDate(2026, 5, 4), QTime(0, 0), Qt::UTC).addSecs(startMin * 60);
    if (endMin >= 0)
        event.endTime = event.startTime.addSecs((endMin - startMin) * 60);
    return event;
}

/// "9:30-10" and the like, separated by blanks; no end after the dash for an event without one.
QList<Event> eventsFrom(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(R"((\d+)(?::(\d+))?-(?:(\d+)(?::(\d+))?)?)"));
    QList<Event> events;
    for (const QRegularExpressionMatch &match : form.globalMatch(text)) {
        const int endMin =
            match.captured(3).isEmpty() ? -1 : match.captured(3).toInt() * 60 + match.captured(4).toInt();
        events.append(makeEvent(match.captured(1).toInt() * 60 + match.captured(2).toInt(), endMin));
        events.last().title = match.captured();
    }
    return events;
}

}

class tst_EventLayout : public QObject {
    Q_OBJECT

private slots:
    void places_data();
    void places();
    void holdsForRandomDays();
    void manyAtOnce();
};

void tst_EventLayout::places_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("expected"); // event, column of count
    const auto row = [](const char *name, const char *events, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(events) << QString::fromLatin1(expected);
    };
    row("nothing", "", "");
    row("touching", "10-11 9-10", "9-10:0/1 10-11:0/1");
    row("column used again", "9-12 9:30-10 10:30-11", "9-12:0/2 9:30-10:1/2 10:30-11:1/2");
    row("chain", "9-10 9:30-11 10:30-11:30", "9-10:0/2 9:30-11:1/2 10:30-11:30:0/2");
    row("the shorter first", "9-10 9-9:30", "9-9:30:0/2 9-10:1/2");
    row("three deep, then alone", "9-12 9-11 9-10 12-13", "9-10:0/3 9-11:1/3 9-12:2/3 12-13:0/1");
    row("lowest free column", "8-12 8:10-9 8:20-12 9-10", "8-12:0/3 8:10-9:1/3 8:20-12:2/3 9-10:1/3");
    row("no end", "9- 9:30-10", "9-:0/1 9:30-10:0/1");
    row("no end, same start", "9-10 9-", "9-:0/1 9-10:0/1");
    row("no end within another", "9-11 10- 10-10:30", "9-11:0/2 10-:1/2 10-10:30:1/2");
    row("ends before it begins", "9-8 9-10", "9-8:0/1 9-10:0/1");
}

void tst_EventLayout::places()
{
    QFETCH(QString, events);
    QStringList found;
    for (const EventLayout::Placement &placement : EventLayout::compute(eventsFrom(events)))
        found.append(
            QStringLiteral("%1:%2/%3").arg(placement.event.title).arg(placement.column).arg(placement.columnCount));
    QTEST(found.join(u' '), "expected");
}

void tst_EventLayout::holdsForRandomDays()
{
    QRandomGenerator random(3);
    for (int round = 0; round < 200; ++round) {
        QList<Event> events;
        for (int i = random.bounded(40); i > 0; --i) {
            const int startMin = random.bounded(96) * 15;
            events.append(makeEvent(startMin, startMin + random.bounded(1, 12) * 15));
        }
        const QList<EventLayout::Placement> placements = EventLayout::compute(events);
        QCOMPARE(placements.size(), events.size());
        for (qsizetype i = 0; i < placements.size(); ++i) {
            const EventLayout::Placement &a = placements.at(i);
            QVERIFY(a.column >= 0 && a.column < a.columnCount);
            QSet<int> below; // columns of earlier events that still run
            for (qsizetype j = 0; j < i; ++j) {
                const EventLayout::Placement &b = placements.at(j);
                QVERIFY(b.event.startTime <= a.event.startTime);
                if (*b.event.endTime <= a.event.startTime)
                    continue;
                below.insert(b.column);
                QVERIFY(b.column != a.column);
                QCOMPARE(b.columnCount, a.columnCount);
            }
            for (int column = 0; column < a.column; ++column)
                QVERIFY(below.contains(column));
        }
    }
}

void tst_EventLayout::manyAtOnce()
{
    // A file with one event thousands of times must not stop the program.
    const QList<EventLayout::Placement> placements = EventLayout::compute(QList<Event>(20'000, makeEvent(540, 600)));
    QCOMPARE(placements.last().column, 19'999);
    QCOMPARE(placements.first().columnCount, 20'000);
}

QTEST_GUILESS_MAIN(tst_EventLayout)
#include "tst_EventLayout.moc"
