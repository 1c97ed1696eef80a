#include "calendar/EventExpansion.h"

#include <QTest>

namespace {

QDateTime march(int day, int hour = 9)
{
    return QDateTime(QDate(2026, 3, 1).addDays(day - 1), QTime(hour, 0), Qt::UTC);
}

Event row(const QString &uid, const QDateTime &start, const QString &rule = {})
{
    Event event;
    event.id = uid;
    event.uid = uid;
    event.calendarId = QStringLiteral("home");
    event.startTime = start;
    event.endTime = start.addSecs(3'600);
    event.recurrenceRule = rule;
    return event;
}

/// The instance of \p uid that began on \p day, moved to \p start.
Event overrideRow(const QString &uid, int day, const QDateTime &start)
{
    Event event = row(uid, start);
    event.id = QStringLiteral("%1-%2").arg(uid).arg(day);
    event.masterEventUid = uid;
    event.recurrenceId = march(day).toString(u"yyyyMMdd'T'HHmmss'Z'");
    return event;
}

/// "id@day" of each.
QStringList summary(const QList<Event> &events)
{
    QStringList texts;
    for (const Event &event : events)
        texts.append(QStringLiteral("%1@%2").arg(event.id).arg(event.startTime.date().day()));
    return texts;
}

const QString Daily = QStringLiteral("FREQ=DAILY;COUNT=3"); // clazy:exclude=non-pod-global-static

}

class tst_EventExpansion : public QObject {
    Q_OBJECT

private slots:
    void putsSinglesFirst();
    void overrides_data();
    void overrides();
    void laterDuplicateWins();
    void manyOverrides();
};

void tst_EventExpansion::putsSinglesFirst()
{
    const QList<Event> events{ row(QStringLiteral("b"), march(3), Daily), row(QStringLiteral("x"), march(20)),
                               row(QStringLiteral("a"), march(2), Daily), row(QStringLiteral("y"), march(1)) };
    // Singles are taken as they are: the caller's query was the test.
    QCOMPARE(summary(EventExpansion::expand(events, march(3, 0), march(5, 0))),
             QStringList({ QStringLiteral("x@20"), QStringLiteral("y@1"), QStringLiteral("b@3"), QStringLiteral("b@4"),
                           QStringLiteral("a@3"), QStringLiteral("a@4") }));
}

void tst_EventExpansion::overrides_data()
{
    QTest::addColumn<Event>("override");
    QTest::addColumn<QString>("expected"); // the window is 2 to 4 March
    const QString uid = QStringLiteral("a");
    QTest::newRow("takes its occurrence's place")
        << overrideRow(uid, 3, march(3, 15)) << QStringLiteral("a@2 a-3@3 a@4");
    QTest::newRow("moved out of the window, still given")
        << overrideRow(uid, 3, march(27)) << QStringLiteral("a@2 a-3@27 a@4");
    QTest::newRow("moved in from outside") << overrideRow(uid, 9, march(4, 20)) << QStringLiteral("a@2 a@3 a@4 a-9@4");
    Event cancelled = overrideRow(uid, 3, march(3));
    cancelled.status = EventStatus::Cancelled;
    QTest::newRow("cancelled, matched: the caller shows it so") << cancelled << QStringLiteral("a@2 a-3@3 a@4");
    cancelled = overrideRow(uid, 9, march(4));
    cancelled.status = EventStatus::Cancelled;
    QTest::newRow("cancelled, not matched: gone") << cancelled << QStringLiteral("a@2 a@3 a@4");
    Event elsewhere = overrideRow(uid, 3, march(3, 15));
    elsewhere.calendarId = QStringLiteral("work");
    QTest::newRow("of another calendar: replaces nothing") << elsewhere << QStringLiteral("a@2 a@3 a@4 a-3@3");
    QTest::newRow("of an unknown series")
        << overrideRow(QStringLiteral("z"), 3, march(3)) << QStringLiteral("a@2 a@3 a@4 z-3@3");
}

void tst_EventExpansion::overrides()
{
    QFETCH(Event, override);
    const Event master = row(QStringLiteral("a"), march(2), Daily);
    for (const QList<Event> &events : { QList<Event>{ master, override }, QList<Event>{ override, master } })
        QTEST(summary(EventExpansion::expand(events, march(2, 0), march(5, 0))).join(u' '), "expected");
}

void tst_EventExpansion::laterDuplicateWins()
{
    Event first = overrideRow(QStringLiteral("a"), 3, march(3, 10));
    Event second = overrideRow(QStringLiteral("a"), 3, march(3, 11));
    second.id = QStringLiteral("second");
    const Event master = row(QStringLiteral("a"), march(2), Daily);
    QCOMPARE(summary(EventExpansion::expand({ first, master, second }, march(2, 0), march(4, 0))),
             QStringList({ QStringLiteral("a@2"), QStringLiteral("second@3") }));
    QCOMPARE(summary(EventExpansion::expand({ first, second }, march(2, 0), march(4, 0))),
             QStringList({ QStringLiteral("second@3") }));
}

void tst_EventExpansion::manyOverrides()
{
    QList<Event> events{ row(QStringLiteral("a"), march(1), QStringLiteral("FREQ=DAILY")) };
    for (int day = 0; day < 20'000; ++day)
        events.append(overrideRow(QStringLiteral("a"), 1 + day, march(1 + day)));
    // Every second one belongs to no occurrence, as its minute is another.
    for (qsizetype i = 1; i < events.size(); i += 2)
        events[i].recurrenceId = events.at(i).startTime.addSecs(60).toString(u"yyyyMMdd'T'HHmmss'Z'");
    const QList<Event> found = EventExpansion::expand(events, march(1), march(1).addDays(9'000));
    QCOMPARE(found.size(), 9'000 + 20'000 - 4'500);
}

QTEST_GUILESS_MAIN(tst_EventExpansion)
#include "tst_EventExpansion.moc"
