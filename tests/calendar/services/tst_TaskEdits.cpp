#include "calendar/services/TaskEdits.h"

#include "app/state/DefaultCalendar.h"
#include "calendar/ICalParser.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TaskRepository.h"
#include "support/ScratchState.h"

#include <QTest>

namespace {

using namespace Qt::StringLiterals;
using TaskEdits::DropZone;

const QDate May5(2026, 5, 5);
const QString Home = ScratchState::calendarId();

Task row(ScratchState &state, const QString &id)
{
    return state->tasks()->getById(id).value();
}

/// A stored task as a pull would leave it: id, UID and title are one.
Task add(ScratchState &state, const QString &id, const QString &parent = {}, int sortOrder = 0)
{
    Task task;
    task.id = task.uid = task.title = id;
    task.calendarId = Home;
    task.parentTaskUid = parent;
    task.sortOrder = sortOrder;
    task.href = u"/"_s + id;
    if (!state->tasks()->insert(task))
        qFatal("cannot store a task");
    return row(state, id);
}

Task update(ScratchState &state, const Task &task)
{
    if (!state->tasks()->update(task))
        qFatal("cannot change a task");
    return row(state, task.id);
}

Reminder reminder(int minutesBefore, const QString &action = u"display"_s)
{
    return { {}, {}, {}, minutesBefore, action, false, {} };
}

/// "a b<a:2" for a task a, and b below it in second place.
QString outline(ScratchState &state)
{
    QStringList lines;
    for (const Task &task : state->tasks()->getByCalendar(Home)) {
        const QString parent = task.parentTaskUid.isEmpty() ? QString() : u'<' + task.parentTaskUid;
        lines.append(task.title + parent + (task.sortOrder == 0 ? QString() : u":%1"_s.arg(task.sortOrder)));
    }
    lines.sort();
    return lines.join(u' ');
}

}

// Runs with the machine in several zones.
class tst_TaskEdits : public QObject {
    Q_OBJECT

private slots:
    void createsAndSetsDates()
    {
        ScratchState state;
        Task task;
        task.calendarId = Home;
        task.dueDate = QDateTime(May5, QTime(9, 0));
        task.dueIsDateOnly = false;
        const QString id = TaskEdits::create(state.state(), task).id;
        Task stored = row(state, id);
        QCOMPARE(stored.uid, id);
        QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
        QCOMPARE(stored.dueDate->timeSpec(), Qt::UTC);
        QCOMPARE(stored.dueDate, task.dueDate);
        QCOMPARE(ICalParser::parseTasks(stored.rawIcalendar).value(0).dueDate, task.dueDate);

        using TaskEdits::DateField;
        const QDateTime start(May5, QTime(0, 15));
        QVERIFY(TaskEdits::setDate(state.state(), id, DateField::Due, QDateTime(May5, QTime(0, 0)), true).ok);
        QVERIFY(TaskEdits::setDate(state.state(), id, DateField::Start, start, false).ok);
        stored = row(state, id);
        QVERIFY(stored.dueIsDateOnly && !stored.startIsDateOnly);
        QCOMPARE(stored.dueDate->date(), May5);
        QCOMPARE(stored.startDate, start);
        QCOMPARE(stored.startDate->timeSpec(), Qt::UTC);

        stored.startDate = start; // as it was read from a text that names no zone
        update(state, stored);
        QVERIFY(TaskEdits::setDate(state.state(), id, DateField::Start, start.addSecs(60), false).ok);
        QCOMPARE(row(state, id).startDate->timeSpec(), Qt::LocalTime);
    }

    void savesTheDifference()
    {
        ScratchState state;
        Task shown = add(state, u"a"_s);
        shown.dueDate = QDateTime(May5, QTime(9, 0, 30)).toUTC();
        shown.dueIsDateOnly = false;
        shown.reminders = { reminder(10, u"email"_s), reminder(60) };
        shown = update(state, shown);
        QVERIFY(TaskEdits::save(state.state(), shown, shown).ok);
        QCOMPARE(row(state, u"a"_s), shown);

        Task edited = shown;
        edited.title = u"b"_s;
        edited.dueDate = QDateTime(May5, QTime(9, 0)); // as a picker reads it back
        edited.reminders = { reminder(10), reminder(5) };
        Task expected = shown;
        expected.description = u"from the server, while the form was open"_s;
        expected = update(state, expected);
        QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
        const Task stored = row(state, u"a"_s);
        QVERIFY(stored.rawIcalendar.contains(u"SUMMARY:b"_s));
        QCOMPARE(stored.reminders.at(0), shown.reminders.at(0));
        QCOMPARE(stored.reminders.at(1).triggerTime, shown.dueDate->addSecs(-300));
        expected.title = u"b"_s;
        expected.syncStatus = SyncStatus::Pending;
        expected.rawIcalendar = stored.rawIcalendar;
        expected.lastModified = stored.lastModified;
        expected.reminders = stored.reminders;
        QCOMPARE(stored, expected);
    }

    void settlesCompletion()
    {
        // Stored, saved, and what comes of it.
        for (const QString &line :
             { u"needs-action 30 completed 30 completed 100"_s, u"in-process 90 in-process 100 completed 100"_s,
               u"completed 100 needs-action 100 needs-action 0"_s, u"completed 100 completed 40 in-process 40"_s,
               u"needs-action 0 in-process 100 in-process 0"_s }) {
            const QStringList words = line.split(u' ');
            ScratchState state;
            Task shown = add(state, u"a"_s);
            shown.status = words.at(0);
            shown.percentComplete = words.at(1).toInt();
            shown = update(state, shown);
            Task edited = shown;
            edited.status = words.at(2);
            edited.percentComplete = words.at(3).toInt();
            QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
            const Task stored = row(state, u"a"_s);
            QCOMPARE(u"%1 %2"_s.arg(stored.status).arg(stored.percentComplete), words.mid(4).join(u' '));
            QCOMPARE(stored.completedDate.has_value(), stored.isCompleted());
        }
    }

    void repeatsOnTheWallClock()
    {
        ScratchState state;
        const QDate beforeChange(2026, 3, 7); // the last day of winter time in Los Angeles
        Task shown = add(state, u"a"_s);
        shown.dueDate = QDateTime(beforeChange, QTime(9, 0)).toUTC();
        shown.dueIsDateOnly = false;
        shown.recurrenceRule = u"FREQ=DAILY"_s;
        shown = update(state, shown);
        Task edited = shown;
        edited.title = u"b"_s;
        edited.status = TaskStatus::Completed;
        QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
        QCOMPARE(row(state, u"a"_s).title, u"b"_s);
        QVERIFY(!row(state, u"a"_s).isCompleted());
        QCOMPARE(row(state, u"a"_s).dueDate, QDateTime(beforeChange.addDays(1), QTime(9, 0)));
    }

    void bringsBackWhatHasGone()
    {
        ScratchState state;
        for (const QString &id : { u"deleted"_s, u"purged"_s }) {
            const Task shown = add(state, id);
            QVERIFY(id == u"purged" ? state->tasks()->hardDelete(id) : state->tasks()->remove(id));
            QVERIFY(!TaskEdits::setCompleted(state.state(), id, true).ok);
            Task edited = shown;
            edited.description = u"typed meanwhile"_s;
            QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
            QVERIFY(!row(state, id).deletedAt);
            QCOMPARE(row(state, id).description, edited.description);
            QCOMPARE(row(state, id).href, id == u"purged" ? QString() : shown.href);
        }
    }

    void movesATreeThereAndBack()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_s);
        add(state, u"root"_s);
        Task shown = add(state, u"a"_s, u"root"_s, 2);
        shown.rawIcalendar = u"BEGIN:VTODO\r\nUID:a\r\nX-OTHER:kept\r\nEND:VTODO\r\n"_s;
        shown = update(state, shown);
        Task child = add(state, u"b"_s, u"a"_s);
        child.reminders = { reminder(10) };
        update(state, child);
        Task edited = shown;
        edited.calendarId = work;
        const Task moved = row(state, TaskEdits::save(state.state(), shown, edited).id);
        QCOMPARE(outline(state), u"root"_s);
        QCOMPARE(moved.parentTaskUid + moved.href, QString());
        QCOMPARE(moved.rawIcalendar, shown.rawIcalendar);
        QCOMPARE(state->tasks()->getByUid(u"b"_s, work)->parentTaskUid, u"a"_s);
        QCOMPARE(state->tasks()->getByUid(u"b"_s, work)->reminders.size(), 1);
        QVERIFY(row(state, u"b"_s).deletedAt);

        // The rows of before revive, and with them what their server knows them by.
        edited = moved;
        edited.calendarId = Home;
        QCOMPARE(TaskEdits::save(state.state(), moved, edited).id, u"a"_s);
        QCOMPARE(row(state, u"a"_s).href, u"/a"_s);
        QCOMPARE(outline(state), u"a b<a root"_s);
        QVERIFY(state->tasks()->getByCalendar(work).isEmpty());
    }

    void removesAndLiftsChildren()
    {
        ScratchState state;
        add(state, u"a"_s);
        add(state, u"b"_s, u"a"_s);
        add(state, u"c"_s, u"b"_s);
        const Task untouched = add(state, u"d"_s, u"c"_s);
        QVERIFY(TaskEdits::remove(state.state(), u"b"_s).ok);
        QCOMPARE(outline(state), u"a c<a d<c"_s);
        QVERIFY(row(state, u"c"_s).rawIcalendar.contains(u"RELTYPE=PARENT:a"_s));
        QCOMPARE(row(state, u"d"_s), untouched);
    }

    void places_data()
    {
        QTest::addColumn<QString>("uid");
        QTest::addColumn<QString>("target");
        QTest::addColumn<DropZone>("zone");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("expected");
        const auto add = [](const char *name, QChar uid, QChar target, DropZone zone, bool ok,
                            const QString &expected) {
            QTest::newRow(name) << QString(uid) << QString(target) << zone << ok << expected;
        };
        const QString before = u"a b c p x<p:1 y<p:2 z<x:7"_s;
        add("onto", u'x', u'c', DropZone::Onto, true, u"a b c p x<c y<p:2 z<x:7"_s);
        add("onto its parent", u'x', u'p', DropZone::Onto, true, before);
        add("above", u'c', u'b', DropZone::Above, true, u"a:1 b:3 c:2 p:4 x<p:1 y<p:2 z<x:7"_s);
        add("below", u'a', u'b', DropZone::Below, true, u"a:2 b:1 c:3 p:4 x<p:1 y<p:2 z<x:7"_s);
        add("into a list", u'a', u'x', DropZone::Below, true, u"a<p:2 b c p x<p:1 y<p:3 z<x:7"_s);
        add("out of one", u'z', u'a', DropZone::Above, true, u"a:2 b:3 c:4 p:5 x<p:1 y<p:2 z:1"_s);
        add("where it is", u'x', u'y', DropZone::Above, true, before);
        add("itself", u'x', u'x', DropZone::Onto, false, before);
        add("its descendant", u'p', u'z', DropZone::Below, false, before);
        add("nothing", u'a', u'n', DropZone::Onto, false, before);
    }

    void places()
    {
        ScratchState state;
        for (const QString &id : { u"a"_s, u"b"_s, u"c"_s, u"p"_s })
            add(state, id);
        add(state, u"y"_s, u"p"_s, 2);
        add(state, u"x"_s, u"p"_s, 1);
        add(state, u"z"_s, u"x"_s, 7);
        QFETCH(QString, uid);
        QFETCH(QString, target);
        QFETCH(DropZone, zone);
        const QStringList before = outline(state).split(u' ');
        QTEST(TaskEdits::place(state.state(), uid, target, zone).ok, "ok");
        QTEST(outline(state), "expected");
        for (const QString &line : outline(state).split(u' ')) {
            const Task task = row(state, line.first(1));
            QCOMPARE(task.syncStatus == SyncStatus::Pending, !before.contains(line));
            QCOMPARE(task.rawIcalendar.isEmpty(), before.contains(line));
        }
    }

    void placesAmongWhatIsShown()
    {
        ScratchState state;
        for (const QString &id : { u"a"_s, u"b"_s, u"c"_s })
            add(state, id);
        Task first = row(state, u"c"_s);
        first.priority = 1;
        update(state, first);
        QVERIFY(TaskEdits::place(state.state(), u"b"_s, u"a"_s, DropZone::Above).ok);
        QCOMPARE(outline(state), u"a:3 b:2 c:1"_s);
    }

    void refuses()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_s);
        const Task task = add(state, u"a"_s);
        Task other = add(state, u"b"_s);
        other.calendarId = work;
        other = update(state, other);
        QCOMPARE(
            TaskEdits::place(state.state(), u"b"_s, u"a"_s, DropZone::Above).why,
            u"Subtasks must belong to the same calendar as their parent. Move \"b\" to the same calendar first."_s);

        state.makeReadOnly(work);
        const QString why = u"\"Work\" is read-only."_s;
        QVERIFY(TaskEdits::isReadOnly(state.state(), other));
        Task moved = task;
        moved.calendarId = work;
        QCOMPARE(TaskEdits::create(state.state(), other).why, why);
        QCOMPARE(TaskEdits::save(state.state(), other, task).why, why);
        QCOMPARE(TaskEdits::save(state.state(), task, moved).why, why);
        QCOMPARE(TaskEdits::setCompleted(state.state(), u"b"_s, true).why, why);
        QCOMPARE(TaskEdits::remove(state.state(), u"b"_s).why, why);
        QCOMPARE(row(state, u"b"_s), other);
        QCOMPARE(row(state, u"a"_s), task);
    }

    void choosesCalendars()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_s);
        const QString locked = state.addCalendar(u"Locked"_s);
        state.makeReadOnly(locked);
        QString remote;
        for (const bool holdsTasks : { false, true }) {
            remote = state.addCalendar(u"Remote"_s);
            Calendar calendar = state->calendars()->getById(remote).value();
            calendar.url = u"https://example.com/%1/"_s.arg(remote);
            calendar.supportedComponents = holdsTasks ? u"[\"VTODO\"]"_s : u"[\"VEVENT\"]"_s;
            QVERIFY(state->calendars()->update(calendar));
        }
        const QStringList ids = TaskEdits::writableCalendarIds(state.state());
        QCOMPARE(QSet<QString>(ids.begin(), ids.end()), QSet<QString>({ Home, work, remote }));
        QCOMPARE(TaskEdits::defaultCalendarId(state.state()), Home);

        PreferencesRepository *preferences = state->preferences();
        const QString key = DefaultCalendar::defaultKey(true);
        DefaultCalendar::recordLastUsed(preferences, true, remote); // which nobody asked for
        preferences->set(key, DefaultCalendar::sentinel());
        QCOMPARE(TaskEdits::defaultCalendarId(state.state()), Home);
        DefaultCalendar::recordLastUsed(preferences, true, remote);
        DefaultCalendar::recordLastUsed(preferences, true, QString());
        QCOMPARE(TaskEdits::defaultCalendarId(state.state()), remote);
        preferences->set(key, locked);
        QCOMPARE(TaskEdits::defaultCalendarId(state.state()), Home);
    }
};

QTEST_GUILESS_MAIN(tst_TaskEdits)
#include "tst_TaskEdits.moc"
