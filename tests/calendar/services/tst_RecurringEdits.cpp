#include "calendar/services/RecurringEdits.h"

#include "calendar/EventExpansion.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QSqlQuery>
#include <QTimeZone>

namespace {

using namespace Qt::StringLiterals;
using RecurringEdits::Scope;
using RecurringEdits::SeriesSnapshot;

const QString NewYork = u"America/New_York"_s; // clocks change on 2026-03-08 and 2026-11-01

/// What the clock of the zone shows as \p digits; of an all-day event where the zone is empty.
QDateTime wall(const QDateTime &digits, const QString &zone)
{
    return zone.isEmpty() ? digits : QDateTime(digits.date(), digits.time(), QTimeZone(zone.toUtf8()));
}

/// Start in UTC, minutes, title.
QString text(const QDateTime &start, const Event &event)
{
    const qint64 minutes = event.startTime.secsTo(*event.endTime) / 60;
    return start.toUTC().toString(u"yyyy-MM-ddTHH:mm %1 %2").arg(minutes).arg(event.title);
}

QString stamp(const QDateTime &time)
{
    return RruleExpander::formatRecurrenceId(time);
}

/// A stored series of half an hour, or of days where the zone is empty.
struct Series {
    ScratchState state;
    Event master;

    explicit Series(const QString &rule, const QDateTime &start = wall(utc("2026-03-05T09:00"), NewYork),
                    const QString &zone = NewYork)
    {
        master = state.addEvent(u"a"_s, start, start.addSecs(zone.isEmpty() ? 86'400 : 1'800));
        master.isAllDay = zone.isEmpty();
        master.timezone = zone.isEmpty() ? u"UTC"_s : zone;
        master.recurrenceRule = rule;
        write();
    }

    EventRepository *events() { return state->events(); }
    void write(const QStringList &excluded = {})
    {
        if (!excluded.isEmpty())
            master.exceptionDates = u"[\"%1\"]"_s.arg(excluded.join(u"\",\""));
        QVERIFY(events()->update(master));
        read();
    }
    void read() { master = *events()->getById(master.id); }
    [[nodiscard]] QDateTime at(int instance) const
    {
        const qint64 end = utc("2040-01-01").toMSecsSinceEpoch();
        return QDateTime::fromMSecsSinceEpoch(RruleExpander::startsBefore(master, end).at(instance), Qt::UTC);
    }
    /// Stores an override as a server would have sent it.
    void addOverride(const QString &id, const QDateTime &instance, int movedByDays = 0)
    {
        Event row = master;
        row.id = row.title = id;
        row.recurrenceRule.clear();
        row.exceptionDates.clear();
        row.masterEventUid = row.uid;
        row.recurrenceId = stamp(instance);
        row.startTime = instance.addDays(movedByDays);
        row.endTime = row.startTime.addMSecs(master.startTime.msecsTo(*master.endTime));
        row.href = u"/old.ics"_s;
        QVERIFY(events()->insert(row));
    }
    QList<Event> instances()
    {
        return EventExpansion::expand(events()->getByCalendar(master.calendarId), utc("2020-01-01"), utc("2030-01-01"));
    }
    /// In order of time, where \p when says each begins.
    template <typename When> QStringList shown(When when)
    {
        QStringList texts;
        for (const Event &event : instances())
            texts.append(text(when(event), event));
        texts.sort();
        return texts;
    }
    QStringList shown()
    {
        return shown([](const Event &event) { return event.startTime; });
    }
    bool apply(const QDateTime &from, const QDateTime &to, Scope scope, QString *tailUid = nullptr)
    {
        return RecurringEdits::apply(events(), master, from, to, {}, scope, tailUid);
    }
    SeriesSnapshot snapshot() { return RecurringEdits::snapshot(events(), master); }
    bool restore(const SeriesSnapshot &before) { return RecurringEdits::restore(events(), before); }
};

/// What a restored row has in common with the one before.
Event content(Event row)
{
    row.sequence = 0;
    row.lastModified = {};
    row.syncStatus.clear();
    if (row.id == u"purged")
        row.href.clear();
    return row;
}

}

// Runs with the machine in several zones.
class tst_RecurringEdits : public QObject {
    Q_OBJECT

private slots:
    void moves_data()
    {
        columns<QString, QString, QDateTime, int, int>("rule", "zone", "start", "days", "minutes");
        const QDateTime tuesday = utc("2026-01-06T09:00");
        row("weekly, over both clock changes", "FREQ=WEEKLY;COUNT=52", NewYork, tuesday, 1, 90);
        row("daily, onto each other's days", "FREQ=DAILY;COUNT=330", NewYork, tuesday, 1, 0);
        row("daily, back", "FREQ=DAILY;COUNT=330", NewYork, tuesday, -1, -30);
        row("over midnight", "FREQ=DAILY;INTERVAL=3;COUNT=99", "Asia/Kolkata", utc("2026-01-06T23:45"), 0, 30);
        row("excluded by its date in UTC", "FREQ=DAILY;COUNT=99", "Asia/Kolkata", utc("2026-01-06T05:30"), 0, 30);
        row("monthly", "FREQ=MONTHLY;COUNT=20", "Pacific/Kiritimati", utc("2026-01-06T00:30"), 3, -60);
        row("to the end", "FREQ=WEEKLY;UNTIL=20261222T140000Z", NewYork, tuesday, 2, 0);
        row("weekdays at another hour", "FREQ=WEEKLY;BYDAY=TU,TH,SA;COUNT=150", NewYork, tuesday, 0, 240);
        row("by a week of two", "FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,FR;COUNT=52", NewYork, tuesday, 7, 0);
        row("at an hour that is skipped once", "FREQ=WEEKLY;COUNT=52", NewYork, utc("2026-01-04T02:00"), 0, 30);
        row("all-day", "FREQ=WEEKLY;COUNT=52", "", utc("2026-01-06"), -2, 0);
        row("all-day, to the end", "FREQ=DAILY;UNTIL=20261105", "", utc("2026-01-06"), 1, 0);
    }
    void moves()
    {
        QFETCH(QString, rule);
        QFETCH(QString, zone);
        QFETCH(QDateTime, start);
        QFETCH(int, days);
        QFETCH(int, minutes);
        for (const Scope scope : { Scope::All, Scope::ThisAndFollowing }) {
            Series series(rule, wall(start, zone), zone);
            // Excluded in each form; overrides where the series has them, and elsewhere; one deleted.
            const bool isMidnight = series.at(13).time() == QTime(0, 0);
            series.write({ stamp(series.at(2)), series.at(12).toLocalTime().toString(u"yyyyMMdd'T'HHmmss"),
                           isMidnight ? series.at(13).toString(u"yyyyMMdd") : stamp(series.at(13)) });
            series.addOverride(u"early"_s, series.at(3));
            series.addOverride(u"stays early"_s, series.at(4), 5);
            series.addOverride(u"late"_s, series.at(9));
            series.addOverride(u"purged"_s, series.at(15));
            series.addOverride(u"stays late"_s, series.at(16), 5);
            series.addOverride(u"deleted"_s, series.at(17));
            QVERIFY(series.events()->remove(u"deleted"_s));

            const auto moved = [&](const QDateTime &time) { // by Qt's own arithmetic
                const QDateTime now = zone.isEmpty() ? time : time.toTimeZone(QTimeZone(zone.toUtf8()));
                return wall(QDateTime(now.date().addDays(days), now.time(), Qt::UTC).addSecs(minutes * 60), zone);
            };
            const QDateTime dragged = series.at(10);
            const QStringList before = series.shown();
            const QStringList expected = series.shown([&](const Event &event) {
                const bool isHead = scope == Scope::ThisAndFollowing && event.startTime < dragged;
                return isHead || event.title.startsWith(u"stays") ? event.startTime : moved(event.startTime);
            });

            SeriesSnapshot snapshot = series.snapshot();
            QVERIFY(series.apply(dragged, moved(dragged), scope, &snapshot.tailUid));
            RecurringEdits::noteAdded(series.events(), snapshot);
            const QStringList shown = series.shown();
            if (scope == Scope::All)
                QCOMPARE(shown.size(), expected.size()); // the tail has no end
            QCOMPARE(shown.first(expected.size()), expected);
            const Event late = *series.events()->getById(u"stays late"_s);
            QCOMPARE(late.uid == series.master.uid, scope == Scope::All);
            QCOMPARE(late.href, scope == Scope::All ? u"/old.ics"_s : QString());
            QCOMPARE(late.syncStatus, QString(SyncStatus::Pending));

            QVERIFY(series.events()->hardDelete(u"purged"_s)); // by a sync since
            QVERIFY(series.restore(snapshot));
            QCOMPARE(series.shown(), before);
            const QList<Event> restored = series.snapshot().rows;
            QCOMPARE(restored.size(), snapshot.rows.size());
            for (int i = 0; i < restored.size(); ++i)
                QVERIFY(content(restored.at(i)) == content(snapshot.rows.at(i)));
        }
    }

    void keepsDaysOfTheRule_data()
    {
        columns<QString, QDateTime, QDateTime, QDateTime, QString>("rule", "from", "to", "instance", "key");
        row("30 May is not 30 April and a month and a day", "FREQ=MONTHLY", utc("2026-04-30T09:00"),
            utc("2026-05-01T09:00"), utc("2026-05-30T09:00"), "20260601T090000Z");
        const QDateTime monday = utc("2026-05-04T09:00");
        row("weekdays stay", "FREQ=WEEKLY;BYDAY=MO,WE", monday, monday.addSecs(90'000), utc("2026-05-06T09:00"),
            "20260506T100000Z");
        row("so does what is not in the rule", "FREQ=WEEKLY;BYDAY=MO,WE", monday, monday.addSecs(90'000),
            utc("2026-05-07T15:00"), "20260507T160000Z");
    }
    void keepsDaysOfTheRule()
    {
        QFETCH(QString, rule);
        QFETCH(QDateTime, from);
        QFETCH(QDateTime, to);
        QFETCH(QDateTime, instance);
        Series series(rule, from, u"Africa/Abidjan"_s);
        series.addOverride(u"b"_s, instance, 1);
        QVERIFY(series.apply(from, to, Scope::All));
        QTEST(series.events()->getById(u"b"_s)->recurrenceId, "key");
        series.read();
        QCOMPARE(series.master.recurrenceRule, rule);
    }

    void movesOneOnly()
    {
        Series series(u"FREQ=DAILY;COUNT=9"_s);
        series.master.href = u"/old.ics"_s;
        series.master.reminders.emplaceBack().acknowledged = true;
        series.master.attendees.emplaceBack().email = u"ada@example.org"_s;
        series.write({ stamp(series.at(1)) });
        const QStringList before = series.shown();
        SeriesSnapshot snapshot = series.snapshot();
        const QDateTime to = series.at(3).addSecs(3'600).toLocalTime();
        QVERIFY(series.apply(series.at(3).toLocalTime(), to, Scope::ThisOnly));
        RecurringEdits::noteAdded(series.events(), snapshot);
        const QString synced = u"synced since"_s; // what a sync brings after the edit is nobody's to take back
        series.addOverride(synced, series.at(5));

        const auto row = series.events()->getByUidAndRecurrenceId(series.master.uid, series.master.calendarId,
                                                                  u"20260308T130000Z"_s);
        QVERIFY(row && row->isOverride() && !row->isRecurring());
        QVERIFY(row->href.isEmpty() && row->rawIcalendar.isEmpty() && row->exceptionDates.isEmpty());
        QCOMPARE(row->startTime.timeZone().id(), NewYork.toUtf8());
        QCOMPARE(row->endTime, to.addSecs(1'800));
        QCOMPARE(row->attendees.value(0).email, u"ada@example.org"_s);
        QVERIFY(row->reminders.value(0).triggerTime == to && !row->reminders.value(0).acknowledged);
        QCOMPARE(series.shown().size(), before.size());

        // Neither one that is an override already, nor one that is excluded, nor none.
        for (const QDateTime &none : { series.at(3), series.at(1), series.at(2).addSecs(60) })
            QVERIFY(!series.apply(none, to, Scope::ThisOnly));
        QVERIFY(series.restore(snapshot));
        QVERIFY(!series.events()->getById(synced)->deletedAt);
        QVERIFY(series.events()->hardDelete(synced));
        QCOMPARE(series.shown(), before);
        QVERIFY(series.apply(series.at(3), to, Scope::ThisOnly));
        QVERIFY(!series.events()->getById(row->id)->deletedAt);
    }

    void restoresWhereAnotherRowIsNow()
    {
        Series series(u"FREQ=DAILY;COUNT=9"_s);
        const QDateTime instance = series.at(3);
        series.addOverride(u"b"_s, instance);
        const QStringList before = series.shown();
        SeriesSnapshot snapshot = series.snapshot();
        QVERIFY(series.apply(instance, series.at(4), Scope::All));
        series.read();
        QVERIFY(series.apply(instance, instance.addSecs(60), Scope::ThisOnly));
        RecurringEdits::noteAdded(series.events(), snapshot);
        QVERIFY(series.restore(snapshot));
        QCOMPARE(series.shown(), before);
    }

    void resizesAllFromTheFirstOn()
    {
        Series series(u"FREQ=DAILY;COUNT=5"_s);
        series.write({ stamp(series.at(0)) });
        series.addOverride(u"b"_s, series.at(2));
        const QDateTime first = series.at(1);
        QString tailUid;
        QVERIFY(RecurringEdits::apply(series.events(), series.master, first, first, first.addSecs(7'200),
                                      Scope::ThisAndFollowing, &tailUid));
        QCOMPARE(tailUid, QString());
        QCOMPARE(series.shown().filter(u" 120 "_s).size(), 4);
        QCOMPARE(series.shown().size(), 4);
    }

    void takesTheMachinesZone_data()
    {
        columns<QString>("rule");
        row("any day", "FREQ=WEEKLY;COUNT=52");
        row("a weekday", "FREQ=WEEKLY;BYDAY=MO;COUNT=52");
    }
    void takesTheMachinesZone()
    {
        QFETCH(QString, rule);
        Series series(rule, utc("2026-01-05T17:00"), u"UTC"_s);
        series.write({ u"20260706T170000Z"_s });
        series.addOverride(u"b"_s, utc("2026-07-13T17:00"));
        series.addOverride(u"stays"_s, utc("2026-07-20T17:00"), 1);
        const QDateTime from = utc("2026-06-01T17:00").toLocalTime();
        const QDateTime to = from.addSecs(3'600);
        const QStringList expected = series.shown([&](const Event &event) {
            return event.title == u"stays" ? event.startTime
                                           : QDateTime(event.startTime.toLocalTime().date(), to.time());
        });
        QVERIFY(series.apply(from, to, Scope::All));
        QCOMPARE(series.shown(), expected);
        series.read();
        // On the wall of Kiritimati it was a Tuesday.
        const bool staysInUtc = rule.contains(u"BYDAY") && from.date().dayOfWeek() != Qt::Monday;
        QCOMPARE(series.master.timezone, staysInUtc ? u"UTC"_s : TimeZones::systemName());
    }

    void cutsRules()
    {
        const QDateTime cut = utc("2026-05-05T08:59").toLocalTime();
        QCOMPARE(RecurringEdits::withUntil(u"FREQ=WEEKLY;COUNT=10"_s, cut), u"FREQ=WEEKLY;UNTIL=20260505T085900Z"_s);
        QCOMPARE(RecurringEdits::withUntil(u"until=20270101;;X-A;FREQ=DAILY"_s, cut),
                 u"UNTIL=20260505T085900Z;X-A;FREQ=DAILY"_s);
    }

    void changesNothingWhereItCannot()
    {
        Series series(u"FREQ=DAILY;COUNT=5"_s);
        const QDateTime start = series.at(2);
        QVERIFY(series.apply(start, start.addDays(1), Scope::Cancel));
        QVERIFY(!series.apply(start, QDateTime(), Scope::All));
        QVERIFY(!RecurringEdits::apply(series.events(), series.master, start, start, start.addSecs(-1), Scope::All));
        // The tail is refused: the cut goes back with it.
        QSqlQuery(u"CREATE TRIGGER refuse BEFORE INSERT ON events BEGIN SELECT RAISE(ABORT, 'full'); END"_s,
                  series.state->database()->db());
        QVERIFY(!series.apply(start, start.addDays(1), Scope::ThisAndFollowing));
        QVERIFY(*series.events()->getById(series.master.id) == series.master);
    }
};

QTEST_GUILESS_MAIN(tst_RecurringEdits)
#include "tst_RecurringEdits.moc"
