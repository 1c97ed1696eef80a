#include "calendar/services/EventEdits.h"

#include "app/state/UndoStack.h"
#include "calendar/EventDays.h"
#include "calendar/EventExpansion.h"
#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "calendar/services/EventTimes.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace {

using namespace Qt::StringLiterals;
using EventEdits::Outcome;
using EventEdits::Scope;
using Change = std::function<void(Event &)>;
using Edit = std::function<Outcome(ScratchState &)>;

const QDate March2(2026, 3, 2); // a Monday; clocks change in Los Angeles on the 8th
const QString Home = ScratchState::calendarId();

QDateTime local(int day, int hour, int minute = 0)
{
    return QDateTime(March2.addDays(day), QTime(hour, minute));
}

Reminder reminder(int minutesBefore, const QString &action = u"display"_s)
{
    return { {}, {}, {}, minutesBefore, action, false, {} };
}

Attendee attendee(const QString &email, const QString &name = {})
{
    return { {}, {}, email, name, u"required"_s, u"needs-action"_s, {}, false };
}

/// As a pull would leave it: on March 2nd from 09:00 to 10:00, in UTC.
Event pulled(const QString &id)
{
    Event event;
    event.id = id;
    event.uid = id;
    event.calendarId = Home;
    event.title = id;
    event.href = u"/"_s + id;
    event.etag = u"e"_s;
    event.startTime = local(0, 9).toUTC();
    event.endTime = local(0, 10).toUTC();
    event.reminders = { reminder(10, u"email"_s), reminder(60) };
    event.attendees = { attendee(u"a@example.com"_s, u"A"_s), attendee(u"b@example.com"_s, u"B"_s) };
    event.rawIcalendar = u"BEGIN:VEVENT\r\nUID:%1\r\nX-OTHER:kept\r\nEND:VEVENT\r\n"_s.arg(id);
    return event;
}

void store(ScratchState &state, const QList<Event> &events)
{
    for (const Event &event : events) {
        if (!state->events()->insert(event))
            qFatal("cannot store an event");
    }
}

/// Each day at 09:00, without the 5th, and on the 3rd at 11:00 and the 4th at 12:00.
void storeSeries(ScratchState &state, const QString &zone = TimeZones::systemName())
{
    Event master = pulled(u"series"_s);
    master.timezone = zone;
    master.recurrenceRule = u"FREQ=DAILY"_s;
    EventTimes::set(master, master.startTime, master.endTime);
    master.exceptionDates = u"[\"%1\"]"_s.arg(RruleExpander::formatRecurrenceId(local(3, 9)));
    store(state, { master });
    for (const int day : { 1, 2 }) {
        Event row = pulled(u"moved%1"_s.arg(day));
        row.uid = master.uid;
        row.masterEventUid = master.uid;
        row.recurrenceId = RruleExpander::formatRecurrenceId(local(day, 9));
        EventTimes::set(row, local(day, 10 + day), local(day, 11 + day));
        store(state, { row });
    }
}

Event row(ScratchState &state, const QString &id)
{
    return state->events()->getById(id).value();
}

/// All live rows, without what every write changes.
QList<Event> contents(ScratchState &state)
{
    QList<Event> events;
    for (const Calendar &calendar : state->calendars()->getAll())
        events += state->events()->getByCalendar(calendar.id);
    for (Event &event : events) {
        event.lastModified = {};
        event.syncStatus.clear();
        event.sequence = 0;
    }
    std::ranges::sort(events, {}, &Event::id);
    return events;
}

/// "2.9 3.11 …", day and hour by the local clock: what begins from March 1st to 10th.
QString instances(ScratchState &state)
{
    QList<Event> all = EventExpansion::expand(contents(state), local(-1, 0), local(9, 0));
    std::ranges::sort(all, {}, [](const Event &event) { return std::tuple(EventDays::firstDay(event), event.id); });
    QString line;
    for (const Event &event : std::as_const(all)) {
        if (EventDays::firstDay(event) <= March2.addDays(8))
            line += event.isAllDay ? event.startTime.toString(u"d ") : event.startTime.toLocalTime().toString(u"d.H ");
    }
    return line.trimmed();
}

/// Saves the form of the instance at \p start after \p change has gone over it.
Outcome saved(ScratchState &state, const QString &id, const QDateTime &start, const Change &change)
{
    const Event shown = EventEdits::shownAt(row(state, id), start);
    Event edited = shown;
    change(edited);
    return EventEdits::save(state.state(), shown, edited);
}

Edit move(const QString &id, int day, int days, int minutes, Scope scope = Scope::All)
{
    return
        [=](ScratchState &state) { return EventEdits::move(state.state(), id, local(day, 9), days, minutes, scope); };
}

Edit resize(const QString &id, int minutes)
{
    return [=](ScratchState &state) { return EventEdits::resize(state.state(), id, local(4, 9), minutes); };
}

Edit remove(const QString &id)
{
    return [=](ScratchState &state) { return EventEdits::remove(state.state(), id); };
}

/// The form of the instance of the 10th, by summer time in Los Angeles.
Edit form(const Change &change)
{
    return [=](ScratchState &state) { return saved(state, u"series"_s, local(8, 9), change); };
}

Edit toOtherCalendar()
{
    return [](ScratchState &state) {
        return form([id = state.addCalendar(u"Work"_s)](Event &event) { event.calendarId = id; })(state);
    };
}

void shift(Event &event, int days, int seconds)
{
    event.startTime = event.startTime.toLocalTime().addDays(days).addSecs(seconds);
    event.endTime = event.endTime->toLocalTime().addDays(days).addSecs(seconds);
}

void toAllDay(Event &event)
{
    event.isAllDay = true;
    event.startTime = local(8, 0);
    event.endTime = local(9, 0);
}

}

Q_DECLARE_METATYPE(Edit)

// Runs with the machine in several zones.
class tst_EventEdits : public QObject {
    Q_OBJECT

private slots:
    void creates()
    {
        ScratchState state;
        Event event;
        event.calendarId = Home;
        event.title = u"a"_s;
        event.startTime = local(0, 9);
        event.endTime = local(1, 9);
        Event stored = row(state, EventEdits::create(state.state(), event).id);
        QCOMPARE(stored.uid, stored.id);
        QCOMPARE(stored.timezone, u"UTC"_s);
        QCOMPARE(stored.startTime, event.startTime);
        QCOMPARE(stored.startTime.timeSpec(), Qt::UTC);
        QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
        QCOMPARE(ICalParser::parse(stored.rawIcalendar).value(0).title, u"a"_s);
        QCOMPARE(state->undoStack()->topSummary(), u"Created \"a\""_s);
        state->undoStack()->undo();
        QVERIFY(row(state, stored.id).deletedAt);

        event.recurrenceRule = u"FREQ=DAILY"_s;
        stored = row(state, EventEdits::create(state.state(), event).id);
        QCOMPARE(stored.timezone, QString::fromUtf8(QTimeZone::systemTimeZoneId()));
        QCOMPARE(stored.startTime.toLocalTime(), event.startTime);
        event.isAllDay = true;
        stored = row(state, EventEdits::create(state.state(), event).id);
        QCOMPARE(stored.timezone, u"UTC"_s);
        QCOMPARE(stored.startTime, QDateTime(March2, QTime(0, 0), Qt::UTC));
        const Change toTimed = [](Event &edited) {
            edited.isAllDay = false;
            edited.startTime = local(0, 9);
            edited.endTime = local(0, 10);
        };
        stored = row(state, saved(state, stored.id, {}, toTimed).id);
        QCOMPARE(stored.timezone, TimeZones::systemName());
        QCOMPARE(stored.startTime.toLocalTime(), local(0, 9));
        event.isAllDay = false;
        event.endTime = local(0, 8);
        QVERIFY(!EventEdits::create(state.state(), event).ok);
    }

    void movesAndResizes_data()
    {
        QTest::addColumn<bool>("isAllDay");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QDateTime>("start");
        QTest::addColumn<QDateTime>("end");
        QTest::newRow("over a clock change") << false << move(u"a"_s, 0, 6, 0) << local(6, 9) << local(6, 10);
        QTest::newRow("days, then minutes") << false << move(u"a"_s, 0, 7, -45) << local(7, 8, 15) << local(7, 9, 15);
        QTest::newRow("over midnight") << false << move(u"a"_s, 0, -1, 900) << local(0, 0) << local(0, 1);
        QTest::newRow("longer") << false << resize(u"a"_s, 90) << local(0, 9) << local(0, 11, 30);
        QTest::newRow("a quarter at least") << false << resize(u"a"_s, -600) << local(0, 9) << local(0, 9, 15);
        const QDateTime day(March2, QTime(0, 0), Qt::UTC);
        QTest::newRow("all day") << true << move(u"a"_s, 0, 6, 30) << day.addDays(6) << day.addDays(7);
        QTest::newRow("all day, no minutes") << true << move(u"a"_s, 0, 0, 30) << day << day.addDays(1);
        QTest::newRow("all day, resized") << true << resize(u"a"_s, 30) << day << day.addDays(1);
    }

    void movesAndResizes()
    {
        QFETCH(bool, isAllDay);
        QFETCH(Edit, edit);
        ScratchState state;
        Event event = pulled(u"a"_s);
        event.isAllDay = isAllDay;
        EventTimes::set(event, event.startTime.toLocalTime(), event.endTime);
        store(state, { event });
        const Event before = row(state, u"a"_s);
        QVERIFY(edit(state).ok);
        const Event after = row(state, u"a"_s);
        QTEST(after.startTime, "start");
        QTEST(*after.endTime, "end");
        Event expected = before;
        if (after.startTime != before.startTime || after.endTime != before.endTime) {
            const Event read = ICalParser::parse(after.rawIcalendar).value(0);
            QVERIFY(after.rawIcalendar.contains(u"X-OTHER:kept"_s));
            QVERIFY(read.startTime == after.startTime && read.endTime == after.endTime && read.isAllDay == isAllDay);
            expected.startTime = after.startTime;
            expected.endTime = after.endTime;
            expected.rawIcalendar = after.rawIcalendar;
            expected.lastModified = after.lastModified;
            expected.syncStatus = SyncStatus::Pending;
            for (Reminder &reminder : expected.reminders)
                reminder.triggerTime = after.startTime.addSecs(-60 * reminder.minutesBefore);
        }
        QCOMPARE(after, expected);
    }

    void changesSeriesAndUndoes_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("summary");
        const auto add = [](const char *name, const Edit &edit, const QString &expected, const QString &summary) {
            QTest::newRow(name) << edit << expected << summary;
        };
        const QString series = u"series"_s;
        const QString moved = u"Moved \"series\""_s;
        const QString changed = u"Changed \"series\""_s;
        const QString stored = u"2.9 3.11 4.12 6.9 7.9 8.9 9.9 10.9"_s;
        const QString dayEarlier = u"1.9 3.11 4.12 5.9 6.9 7.9 8.9 9.9 10.9"_s;
        add("one moved", move(series, 4, 1, 60, Scope::ThisOnly), u"2.9 3.11 4.12 7.10 7.9 8.9 9.9 10.9"_s, moved);
        add("following moved", move(series, 5, 0, 60, Scope::ThisAndFollowing),
            u"2.9 3.11 4.12 6.9 7.10 8.10 9.10 10.10"_s, moved);
        add("all moved", move(series, 4, -1, 0), dayEarlier, moved);
        add("all resized", resize(series, 30), stored, u"Resized \"series\""_s);
        add("override resized", resize(u"moved1"_s, 30), stored, u"Resized \"moved1\""_s);
        add("override deleted", remove(u"moved1"_s), u"2.9 3.9 4.12 6.9 7.9 8.9 9.9 10.9"_s, u"Deleted \"moved1\""_s);
        add("deleted", remove(series), {}, u"Deleted \"series\""_s);
        // The late instance says how the times change: the series stays where it begins.
        add("form, later", form([](Event &event) { shift(event, 0, 3'600); }),
            u"2.10 3.11 4.12 6.10 7.10 8.10 9.10 10.10"_s, changed);
        add("form, a day earlier", form([](Event &event) { shift(event, -1, 0); }), dayEarlier, changed);
        add("form, no rule", form([](Event &event) { event.recurrenceRule.clear(); }), u"10.9"_s, changed);
        add("form, other rule", form([](Event &event) { event.recurrenceRule += u";INTERVAL=4"_s; }),
            u"2.9 3.11 4.12 6.9 10.9"_s, changed);
        add("form, all day", form(toAllDay), u"2 3.11 4.12 6 7 8 9 10"_s, changed);
        add("form, title", form([](Event &event) { event.title = u"new"_s; }), stored, u"Changed \"new\""_s);
        add("form, other calendar", toOtherCalendar(), stored, changed);
    }

    void changesSeriesAndUndoes()
    {
        QFETCH(Edit, edit);
        ScratchState state;
        storeSeries(state);
        const QList<Event> before = contents(state);
        QVERIFY(edit(state).ok);
        QTEST(instances(state), "expected");
        QVERIFY(contents(state) != before);
        QTEST(state->undoStack()->topSummary(), "summary");
        QSignalSpy undone(state->undoStack(), &UndoStack::undone);
        state->undoStack()->undo();
        QCOMPARE(undone.count(), 1);
        QCOMPARE(contents(state), before);
    }

    void undoKeepsWhatASyncLearnt()
    {
        ScratchState state;
        store(state, { pulled(u"a"_s), pulled(u"b"_s) });
        const QList<Event> before = contents(state);
        QVERIFY(EventEdits::remove(state.state(), u"b"_s).ok);
        QVERIFY(EventEdits::move(state.state(), u"a"_s, {}, 1, 0).ok);
        QVERIFY(state->events()->markSynced(u"a"_s, u"/elsewhere"_s, u"e2"_s));
        QVERIFY(state->events()->hardDelete(u"b"_s));

        UndoStack *stack = state->undoStack();
        QSignalSpy undone(stack, &UndoStack::undone);
        QSignalSpy failed(stack, &UndoStack::failed);
        stack->undo();
        QCOMPARE(row(state, u"a"_s).startTime, before.first().startTime);
        QCOMPARE(row(state, u"a"_s).href, u"/elsewhere"_s);
        QCOMPARE(row(state, u"a"_s).etag, u"e2"_s);
        QCOMPARE(row(state, u"a"_s).syncStatus, QString(SyncStatus::Pending));
        stack->undo();
        QCOMPARE(row(state, u"b"_s).title, u"b"_s);
        QCOMPARE(row(state, u"b"_s).href, QString()); // a new resource
        QCOMPARE(undone.count(), 2);

        QVERIFY(EventEdits::move(state.state(), u"a"_s, {}, 1, 0).ok);
        const QList<Event> moved = contents(state);
        state.makeReadOnly(Home);
        stack->undo();
        QCOMPARE(failed.value(0).value(0).toString(), u"\"Personal\" is read-only."_s);
        QCOMPARE(undone.count(), 2);
        QCOMPARE(contents(state), moved);
    }

    void savesTheDifference()
    {
        ScratchState state;
        Event stored = pulled(u"a"_s);
        stored.startTime = stored.startTime.addSecs(30); // which a picker does not show
        store(state, { stored });
        const Event shown = row(state, u"a"_s);
        Event edited = shown;
        edited.startTime = local(0, 9);
        edited.endTime = local(0, 10);
        edited.reminders = { reminder(10), reminder(60) };
        QVERIFY(EventEdits::save(state.state(), shown, edited).ok);
        QCOMPARE(row(state, u"a"_s), shown); // nothing was changed
        QVERIFY(!state->undoStack()->canUndo());

        Event synced = shown; // while the form was open
        synced.location = u"Room 1"_s;
        synced.etag = u"e2"_s;
        synced.attendees[0].status = u"accepted"_s;
        QVERIFY(state->events()->update(synced));
        edited.title = u"b"_s;
        edited.endTime = local(0, 11);
        edited.reminders = { reminder(5), reminder(10) };
        edited.attendees = { attendee(u"A@example.com"_s, u"Anna"_s), attendee(u"c@example.com"_s), attendee(u" "_s) };
        QVERIFY(EventEdits::save(state.state(), shown, edited).ok);

        const Event after = row(state, u"a"_s);
        Event expected = synced;
        expected.title = u"b"_s;
        expected.endTime = local(0, 11).toUTC();
        expected.syncStatus = SyncStatus::Pending;
        expected.rawIcalendar = after.rawIcalendar;
        expected.lastModified = after.lastModified;
        QCOMPARE(ICalParser::parse(after.rawIcalendar).value(0).endTime, expected.endTime);
        QCOMPARE(after.reminders.size(), 2);
        QCOMPARE(after.reminders.at(0).minutesBefore, 5);
        QCOMPARE(after.reminders.at(1).action, u"email"_s);
        expected.reminders = after.reminders;
        QCOMPARE(after.attendees.size(), 2);
        expected.attendees[0].name = u"Anna"_s;
        expected.attendees[1] =
            after.attendees.at(0).email == u"c@example.com" ? after.attendees.at(0) : after.attendees.at(1);
        std::ranges::sort(expected.attendees, {}, &Attendee::name);
        QCOMPARE(after, expected);
    }

    void keepsTheZoneOfAPulledSeries()
    {
        ScratchState state;
        storeSeries(state, u"UTC"_s);
        const QDateTime start = row(state, u"series"_s).startTime;
        const QDateTime tenth = start.addDays(8); // an hour later by summer time
        QVERIFY(saved(state, u"series"_s, tenth, [](Event &event) { event.title = u"b"_s; }).ok);
        QCOMPARE(row(state, u"series"_s).timezone, u"UTC"_s);
        QCOMPARE(row(state, u"series"_s).startTime, start);

        QVERIFY(saved(state, u"series"_s, tenth, [](Event &event) { shift(event, 0, 3'600); }).ok);
        const Event after = row(state, u"series"_s);
        const QTime newTime = tenth.addSecs(3'600).toLocalTime().time();
        QCOMPARE(after.timezone, TimeZones::systemName());
        QCOMPARE(after.startTime.toLocalTime(), QDateTime(March2, newTime));
        QCOMPARE(instances(state), u"2.%1 3.11 4.12 6.%1 7.%1 8.%1 9.%1 10.%1"_s.arg(newTime.hour()));
    }

    /// Its text names no zone, or none that is known.
    void keepsWhatFloatsOnTheMachinesClock()
    {
        for (const QString &zone : { u"UTC"_s, u"No/Where"_s }) {
            for (const bool repeats : { false, true }) {
                ScratchState state;
                Event stored = pulled(u"a"_s);
                stored.timezone = zone;
                stored.recurrenceRule = repeats ? u"FREQ=DAILY"_s : QString();
                stored.startTime = local(0, 9);
                stored.endTime = local(0, 10);
                store(state, { stored });
                const int day = repeats ? 8 : 0;
                QVERIFY(saved(state, u"a"_s, local(day, 9), [](Event &event) { event.title = u"b"_s; }).ok);
                QVERIFY(saved(state, u"a"_s, local(day, 9), [](Event &event) { shift(event, 0, 3'600); }).ok);
                QVERIFY(EventEdits::move(state.state(), u"a"_s, local(day, 10), 0, 60).ok);
                QCOMPARE(row(state, u"a"_s).timezone, zone);
                QCOMPARE(row(state, u"a"_s).startTime, local(0, 11));
                QCOMPARE(row(state, u"a"_s).startTime.timeSpec(), Qt::LocalTime);
            }
        }
    }

    void movesToAnotherCalendar()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_s);
        storeSeries(state);
        const Event master = row(state, u"series"_s);
        // Its series goes with an override.
        const Change toWork = [&](Event &event) {
            event.calendarId = work;
            event.title = u"b"_s;
        };
        const QString id = saved(state, u"moved1"_s, {}, toWork).id;
        QVERIFY(state->events()->getByCalendar(Home).isEmpty());
        QCOMPARE(state->events()->getByCalendar(work).size(), 3);
        QCOMPARE(row(state, id).recurrenceId, row(state, u"moved1"_s).recurrenceId);
        QCOMPARE(row(state, id).title, u"b"_s);
        QVERIFY(row(state, id).rawIcalendar.contains(u"X-OTHER:kept"_s));
        const Event copy = state->events()->getByUidAndRecurrenceId(master.uid, work, {}).value();
        QCOMPARE(copy.href + copy.etag, QString());
        QCOMPARE(copy.rawIcalendar, master.rawIcalendar);
        QVERIFY(copy.reminders.size() == 2 && copy.attendees.size() == 2);

        // Back again by hand: what the server knows them by revives.
        const Change back = [](Event &event) { event.calendarId = Home; };
        QCOMPARE(saved(state, copy.id, {}, back).id, u"series"_s);
        QCOMPARE(row(state, u"series"_s).href, master.href);

        Event twin = pulled(u"twin"_s);
        twin.uid = master.uid;
        twin.calendarId = state.addCalendar(u"Zoo"_s);
        store(state, { twin });
        const QList<Event> before = contents(state);
        QCOMPARE(saved(state, u"series"_s, {}, [&](Event &event) { event.calendarId = twin.calendarId; }).why,
                 u"The other calendar already holds \"series\"."_s);
        QCOMPARE(contents(state), before);
    }

    void bringsBackWhatHasGone()
    {
        ScratchState state;
        for (const bool isPurged : { false, true }) {
            store(state, { pulled(u"a"_s) });
            const Event shown = row(state, u"a"_s);
            QVERIFY(isPurged ? state->events()->hardDelete(u"a"_s) : state->events()->remove(u"a"_s));
            QVERIFY(!EventEdits::move(state.state(), u"a"_s, {}, 1, 0).ok);
            Event edited = shown;
            edited.description = u"typed meanwhile"_s;
            QVERIFY(EventEdits::save(state.state(), shown, edited).ok);
            QVERIFY(!row(state, u"a"_s).deletedAt);
            QCOMPARE(row(state, u"a"_s).description, edited.description);
            QCOMPARE(row(state, u"a"_s).href, isPurged ? QString() : shown.href);
            state->undoStack()->undo();
            QVERIFY(row(state, u"a"_s).deletedAt);
            QVERIFY(state->events()->hardDelete(u"a"_s));
        }
        store(state, { pulled(u"a"_s) });
        const Event shown = row(state, u"a"_s);
        QVERIFY(state->events()->hardDelete(u"a"_s));
        QVERIFY(EventEdits::save(state.state(), shown, shown).ok);
        QCOMPARE(row(state, u"a"_s).title, shown.title);
    }

    void refusesReadOnly()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_s);
        Event locked = pulled(u"locked"_s);
        locked.calendarId = work;
        store(state, { locked, pulled(u"a"_s) });
        state.makeReadOnly(work);
        const QList<Event> before = contents(state);
        const QString why = u"\"Work\" is read-only."_s;
        QVERIFY(EventEdits::isReadOnly(state.state(), locked));
        QVERIFY(!EventEdits::isReadOnly(state.state(), pulled(u"a"_s)));
        QCOMPARE(EventEdits::create(state.state(), locked).why, why);
        QCOMPARE(EventEdits::move(state.state(), u"locked"_s, {}, 1, 0).why, why);
        QCOMPARE(EventEdits::resize(state.state(), u"locked"_s, {}, 30).why, why);
        QCOMPARE(EventEdits::remove(state.state(), u"locked"_s).why, why);
        QCOMPARE(saved(state, u"locked"_s, {}, [](Event &event) { event.title = u"b"_s; }).why, why);
        QCOMPARE(saved(state, u"a"_s, {}, [&](Event &event) { event.calendarId = work; }).why, why);
        QCOMPARE(contents(state), before);
        QVERIFY(!state->undoStack()->canUndo());
    }
};

QTEST_GUILESS_MAIN(tst_EventEdits)
#include "tst_EventEdits.moc"
