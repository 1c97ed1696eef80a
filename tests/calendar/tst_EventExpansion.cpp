#include "calendar/EventExpansion.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

namespace {

QDateTime march(int day, int hour = 9)
{
    return QDateTime(QDate(2026, 3, 1).addDays(day - 1), QTime(hour, 0), Qt::UTC);
}

Event single(const QString &uid, const QDateTime &start)
{
    Event event;
    event.id = event.uid = uid;
    event.calendarId = u"home"_s;
    event.startTime = start;
    event.endTime = start.addSecs(3'600);
    return event;
}

/// Three days from \p day on.
Event series(const QString &uid, int day)
{
    Event event = single(uid, march(day));
    event.recurrenceRule = u"FREQ=DAILY;COUNT=3"_s;
    return event;
}

/// The instance of \p uid that began on \p day, moved to \p start.
Event overrideRow(const QString &uid, int day, const QDateTime &start)
{
    Event event = single(uid, start);
    event.id = u"%1-%2"_s.arg(uid).arg(day);
    event.masterEventUid = uid;
    event.recurrenceId = march(day).toString(u"yyyyMMdd'T'HHmmss'Z'");
    return event;
}

/// "id@day" of each instance from midnight of \p from to that of \p to.
QString instances(const QList<Event> &events, int from, int to)
{
    QStringList texts;
    for (const Event &event : EventExpansion::expand(events, march(from, 0), march(to, 0)))
        texts.append(u"%1@%2"_s.arg(event.id).arg(event.startTime.date().day()));
    return texts.join(u' ');
}

}

class tst_EventExpansion : public QObject {
    Q_OBJECT

private slots:
    void putsSinglesFirst()
    {
        // Singles are taken as they are: the caller's query was the test.
        const QList<Event> events{ series(u"b"_s, 3), single(u"x"_s, march(20)), series(u"a"_s, 2),
                                   single(u"y"_s, march(1)) };
        QCOMPARE(instances(events, 3, 5), u"x@20 y@1 b@3 b@4 a@3 a@4"_s);
    }

    void overrides_data()
    {
        columns<Event, QString>("override", "expected"); // of a series on 2, 3 and 4 March
        row("takes its occurrence's place", overrideRow(u"a"_s, 3, march(3, 15)), "a@2 a-3@3 a@4");
        row("moved out of the window, still given", overrideRow(u"a"_s, 3, march(27)), "a@2 a-3@27 a@4");
        row("moved in from outside", overrideRow(u"a"_s, 9, march(4, 20)), "a@2 a@3 a@4 a-9@4");
        Event cancelled = overrideRow(u"a"_s, 3, march(3));
        cancelled.status = EventStatus::Cancelled;
        row("cancelled, matched: the caller shows it so", cancelled, "a@2 a-3@3 a@4");
        cancelled = overrideRow(u"a"_s, 9, march(4));
        cancelled.status = EventStatus::Cancelled;
        row("cancelled, not matched: gone", cancelled, "a@2 a@3 a@4");
        Event elsewhere = overrideRow(u"a"_s, 3, march(3, 15));
        elsewhere.calendarId = u"work"_s;
        row("of another calendar: replaces nothing", elsewhere, "a@2 a@3 a@4 a-3@3");
        row("of an unknown series", overrideRow(u"z"_s, 3, march(3)), "a@2 a@3 a@4 z-3@3");
    }
    void overrides()
    {
        QFETCH(Event, override);
        QTEST(instances({ series(u"a"_s, 2), override }, 2, 5), "expected");
        QTEST(instances({ override, series(u"a"_s, 2) }, 2, 5), "expected");
    }

    void laterDuplicateWins()
    {
        const Event first = overrideRow(u"a"_s, 3, march(3, 10));
        Event second = overrideRow(u"a"_s, 3, march(3, 11));
        second.id = u"second"_s;
        QCOMPARE(instances({ first, series(u"a"_s, 2), second }, 2, 4), u"a@2 second@3"_s);
        QCOMPARE(instances({ first, second }, 2, 4), u"second@3"_s);
    }
};

QTEST_GUILESS_MAIN(tst_EventExpansion)
#include "tst_EventExpansion.moc"
