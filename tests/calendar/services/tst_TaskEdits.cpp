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

/// A stored task as a server would have left it: id, UID and title are one.
Task add(ScratchState &state, const QString &id, const QString &parent = {}, int sortOrder = 0)
{
    Task task;
    task.id = id;
    task.uid = id;
    task.title = id;
    task.calendarId = ScratchState::calendarId();
    task.parentTaskUid = parent;
    task.sortOrder = sortOrder;
    task.href = u"/"_s + id;
    task.etag = u"e"_s;
    if (!state->tasks()->insert(task))
        qFatal("cannot store a task");
    return *state->tasks()->getById(id);
}

Task row(ScratchState &state, const QString &id)
{
    return state->tasks()->getById(id).value();
}

/// "a b<a:2" for a task a, and b below it in second place.
QString outline(ScratchState &state)
{
    QStringList lines;
    for (const Task &task : state->tasks()->getByCalendar(ScratchState::calendarId())) {
        QString line = task.title;
        if (!task.parentTaskUid.isEmpty())
            line += u'<' + task.parentTaskUid;
        if (task.sortOrder != 0)
            line += u':' + QString::number(task.sortOrder);
        lines.append(line);
    }
    lines.sort();
    return lines.join(u' ');
}

Reminder reminder(int minutesBefore, const QString &action = u"display"_s)
{
    Reminder reminder;
    reminder.minutesBefore = minutesBefore;
    reminder.action = action;
    return reminder;
}

void makeReadOnly(ScratchState &state, const QString &id)
{
    Calendar calendar = state->calendars()->getById(id).value();
    calendar.isReadOnly = true;
    QVERIFY(state->calendars()->update(calendar));
}

}

// Runs with the machine in several zones.
class tst_TaskEdits : public QObject {
    Q_OBJECT

private slots:
    void createsAndSetsDates();
    void savesTheDifference();
    void settlesCompletion_data();
    void settlesCompletion();
    void repeatsOnTheWallClock();
    void bringsBackWhatHasGone();
    void movesATree();
    void removesAndLiftsChildren();
    void places_data();
    void places();
    void refuses();
    void choosesCalendars();
};

void tst_TaskEdits::createsAndSetsDates()
{
    ScratchState state;
    Task task;
    task.title = u"a"_s;
    task.calendarId = ScratchState::calendarId();
    task.dueDate = QDateTime(May5, QTime(9, 0));
    task.dueIsDateOnly = false;
    const QString id = TaskEdits::create(state.state(), task).id;
    Task stored = row(state, id);
    QCOMPARE(stored.uid, id);
    QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
    QCOMPARE(stored.dueDate->timeSpec(), Qt::UTC);
    QCOMPARE(stored.dueDate->toLocalTime(), *task.dueDate);
    QCOMPARE(ICalParser::parseTasks(stored.rawIcalendar).value(0).dueDate, stored.dueDate);

    QVERIFY(TaskEdits::setDate(state.state(), id, TaskEdits::DateField::Due, QDateTime(May5, QTime(0, 0)), true).ok);
    QVERIFY(
        TaskEdits::setDate(state.state(), id, TaskEdits::DateField::Start, QDateTime(May5, QTime(0, 15)), false).ok);
    stored = row(state, id);
    QVERIFY(stored.dueIsDateOnly && !stored.startIsDateOnly);
    QCOMPARE(stored.dueDate->date(), May5);
    QCOMPARE(stored.startDate->toLocalTime(), QDateTime(May5, QTime(0, 15)));
}

void tst_TaskEdits::savesTheDifference()
{
    ScratchState state;
    Task shown = add(state, u"a"_s);
    shown.dueDate = QDateTime(May5, QTime(9, 0, 30)).toUTC();
    shown.dueIsDateOnly = false;
    shown.reminders = { reminder(10, u"email"_s), reminder(60) };
    QVERIFY(state->tasks()->update(shown));
    shown = row(state, u"a"_s);
    QVERIFY(TaskEdits::save(state.state(), shown, shown).ok);
    QCOMPARE(row(state, u"a"_s), shown);

    Task edited = shown;
    edited.title = u"b"_s;
    edited.dueDate = QDateTime(May5, QTime(9, 0)); // as a picker reads it back
    edited.reminders = { reminder(10), reminder(5) };
    Task synced = shown; // by a sync while the form was open
    synced.description = u"from the server"_s;
    synced.etag = u"e2"_s;
    QVERIFY(state->tasks()->update(synced));
    QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
    Task expected = synced;
    expected.title = u"b"_s;
    expected.syncStatus = SyncStatus::Pending;
    Task stored = row(state, u"a"_s);
    QCOMPARE(stored.reminders.size(), 2);
    QCOMPARE(stored.reminders.at(0), shown.reminders.at(0));
    QCOMPARE(stored.reminders.at(1).triggerTime, shown.dueDate->addSecs(-300));
    QVERIFY(stored.rawIcalendar.contains(u"SUMMARY:b"_s));
    stored.reminders = expected.reminders;
    stored.rawIcalendar = expected.rawIcalendar;
    stored.lastModified = expected.lastModified;
    QCOMPARE(stored, expected);
}

void tst_TaskEdits::settlesCompletion_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("newStatus");
    QTest::addColumn<int>("newPercent");
    QTest::addColumn<QString>("result");
    QTest::newRow("completed") << u"needs-action"_s << 30 << u"completed"_s << 30 << u"completed 100"_s;
    QTest::newRow("100 %") << u"in-process"_s << 90 << u"in-process"_s << 100 << u"completed 100"_s;
    QTest::newRow("reopened") << u"completed"_s << 100 << u"needs-action"_s << 100 << u"needs-action 0"_s;
    QTest::newRow("lowered") << u"completed"_s << 100 << u"completed"_s << 40 << u"in-process 40"_s;
    QTest::newRow("lowered to nothing") << u"completed"_s << 100 << u"completed"_s << 0 << u"needs-action 0"_s;
    QTest::newRow("status wins") << u"needs-action"_s << 0 << u"in-process"_s << 100 << u"in-process 0"_s;
}

void tst_TaskEdits::settlesCompletion()
{
    ScratchState state;
    Task shown = add(state, u"a"_s);
    QFETCH(QString, status);
    QFETCH(int, percent);
    shown.status = status;
    shown.percentComplete = percent;
    if (shown.isCompleted())
        shown.completedDate = QDateTime(May5, QTime(9, 0), Qt::UTC);
    QVERIFY(state->tasks()->update(shown));
    Task edited = shown;
    QFETCH(QString, newStatus);
    QFETCH(int, newPercent);
    edited.status = newStatus;
    edited.percentComplete = newPercent;
    QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
    const Task stored = row(state, u"a"_s);
    QTEST(u"%1 %2"_s.arg(stored.status).arg(stored.percentComplete), "result");
    QCOMPARE(stored.completedDate.has_value(), stored.isCompleted());
}

void tst_TaskEdits::repeatsOnTheWallClock()
{
    ScratchState state;
    const QDate beforeChange(2026, 3, 7); // the last day of winter time in Los Angeles
    Task shown = add(state, u"a"_s);
    shown.dueDate = QDateTime(beforeChange, QTime(9, 0)).toUTC();
    shown.dueIsDateOnly = false;
    shown.recurrenceRule = u"FREQ=DAILY"_s;
    QVERIFY(state->tasks()->update(shown));
    Task edited = shown;
    edited.title = u"b"_s;
    edited.status = TaskStatus::Completed;
    QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
    const Task stored = row(state, u"a"_s);
    QCOMPARE(stored.title, u"b"_s);
    QVERIFY(!stored.isCompleted());
    QCOMPARE(stored.dueDate->toLocalTime(), QDateTime(beforeChange.addDays(1), QTime(9, 0)));
}

void tst_TaskEdits::bringsBackWhatHasGone()
{
    ScratchState state;
    for (const bool isPurged : { false, true }) {
        const Task shown = add(state, isPurged ? u"purged"_s : u"deleted"_s);
        QVERIFY(isPurged ? state->tasks()->hardDelete(shown.id) : state->tasks()->remove(shown.id));
        QVERIFY(!TaskEdits::setCompleted(state.state(), shown.id, true).ok);
        Task edited = shown;
        edited.description = u"typed meanwhile"_s;
        QVERIFY(TaskEdits::save(state.state(), shown, edited).ok);
        const Task stored = row(state, shown.id);
        QVERIFY(!stored.deletedAt);
        QCOMPARE(stored.description, edited.description);
        QCOMPARE(stored.href, isPurged ? QString() : shown.href);
    }
}

void tst_TaskEdits::movesATree()
{
    ScratchState state;
    const QString work = state.addCalendar(u"Work"_s);
    add(state, u"root"_s);
    const Task shown = add(state, u"a"_s, u"root"_s, 2);
    Task child = add(state, u"b"_s, u"a"_s);
    child.reminders = { reminder(10) };
    QVERIFY(state->tasks()->update(child));
    add(state, u"c"_s, u"b"_s);
    Task edited = shown;
    edited.calendarId = work;
    const QString newId = TaskEdits::save(state.state(), shown, edited).id;
    QCOMPARE(outline(state), u"root"_s);
    QCOMPARE(row(state, newId).parentTaskUid, QString());
    QCOMPARE(row(state, newId).href, QString());
    QCOMPARE(state->tasks()->getByCalendar(work).size(), 3);
    const Task moved = state->tasks()->getByUid(u"b"_s, work).value();
    QCOMPARE(moved.parentTaskUid, u"a"_s);
    QCOMPARE(moved.reminders.size(), 1);
    QVERIFY(row(state, u"b"_s).deletedAt);

    // Back again: the rows of before revive, and with them what their server knows them by.
    Task back = row(state, newId);
    back.calendarId = ScratchState::calendarId();
    QCOMPARE(TaskEdits::save(state.state(), row(state, newId), back).id, u"a"_s);
    QCOMPARE(row(state, u"a"_s).href, u"/a"_s);
    QCOMPARE(outline(state), u"a b<a c<b root"_s);
    QVERIFY(state->tasks()->getByCalendar(work).isEmpty());
}

void tst_TaskEdits::removesAndLiftsChildren()
{
    ScratchState state;
    add(state, u"a"_s);
    add(state, u"b"_s, u"a"_s);
    add(state, u"c"_s, u"b"_s);
    add(state, u"d"_s, u"c"_s);
    const Task untouched = row(state, u"d"_s);
    QVERIFY(TaskEdits::remove(state.state(), u"b"_s).ok);
    QCOMPARE(outline(state), u"a c<a d<c"_s);
    QVERIFY(row(state, u"c"_s).rawIcalendar.contains(u"RELTYPE=PARENT:a"_s));
    QCOMPARE(row(state, u"d"_s), untouched);
}

void tst_TaskEdits::places_data()
{
    QTest::addColumn<QString>("uid");
    QTest::addColumn<QString>("target");
    QTest::addColumn<DropZone>("zone");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("expected");
    const QString before = u"a b c p x<p:1 y<p:2 z<x:7"_s;
    QTest::newRow("onto") << u"x"_s << u"c"_s << DropZone::Onto << true << u"a b c p x<c y<p:2 z<x:7"_s;
    QTest::newRow("onto its parent") << u"x"_s << u"p"_s << DropZone::Onto << true << before;
    QTest::newRow("above") << u"c"_s << u"b"_s << DropZone::Above << true << u"a:1 b:3 c:2 p:4 x<p:1 y<p:2 z<x:7"_s;
    QTest::newRow("below") << u"a"_s << u"b"_s << DropZone::Below << true << u"a:2 b:1 c:3 p:4 x<p:1 y<p:2 z<x:7"_s;
    QTest::newRow("into a list") << u"a"_s << u"x"_s << DropZone::Below << true << u"a<p:2 b c p x<p:1 y<p:3 z<x:7"_s;
    QTest::newRow("out of one") << u"z"_s << u"a"_s << DropZone::Above << true << u"a:2 b:3 c:4 p:5 x<p:1 y<p:2 z:1"_s;
    QTest::newRow("where it is") << u"x"_s << u"y"_s << DropZone::Above << true << before;
    QTest::newRow("itself") << u"x"_s << u"x"_s << DropZone::Onto << false << before;
    QTest::newRow("its descendant") << u"p"_s << u"z"_s << DropZone::Below << false << before;
    QTest::newRow("nothing") << u"a"_s << u"gone"_s << DropZone::Onto << false << before;
}

void tst_TaskEdits::places()
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
    const auto outcome = TaskEdits::place(state.state(), uid, target, zone);
    QTEST(outcome.ok, "ok");
    QTEST(outline(state), "expected");
    for (const QString &line : outline(state).split(u' ')) {
        const Task task = row(state, line.first(1));
        QCOMPARE(task.syncStatus == SyncStatus::Pending, !before.contains(line));
        QCOMPARE(task.rawIcalendar.isEmpty(), before.contains(line));
    }
}

void tst_TaskEdits::refuses()
{
    ScratchState state;
    const QString work = state.addCalendar(u"Work"_s);
    const Task task = add(state, u"a"_s);
    Task other = add(state, u"b"_s);
    other.calendarId = work;
    QVERIFY(state->tasks()->update(other));
    QCOMPARE(TaskEdits::place(state.state(), u"b"_s, u"a"_s, DropZone::Above).why,
             u"Subtasks must belong to the same calendar as their parent. Move \"b\" to the same calendar first."_s);

    makeReadOnly(state, work);
    const QString why = u"\"Work\" is read-only."_s;
    other = row(state, u"b"_s);
    QVERIFY(TaskEdits::isReadOnly(state.state(), other));
    Task edited = other;
    edited.title = u"c"_s;
    Task moved = task;
    moved.calendarId = work;
    QCOMPARE(TaskEdits::create(state.state(), other).why, why);
    QCOMPARE(TaskEdits::save(state.state(), other, edited).why, why);
    QCOMPARE(TaskEdits::save(state.state(), task, moved).why, why);
    QCOMPARE(TaskEdits::setCompleted(state.state(), u"b"_s, true).why, why);
    QCOMPARE(TaskEdits::remove(state.state(), u"b"_s).why, why);
    QCOMPARE(row(state, u"b"_s), other);
    QCOMPARE(row(state, u"a"_s), task);
}

void tst_TaskEdits::choosesCalendars()
{
    ScratchState state;
    const QString home = ScratchState::calendarId();
    const QString work = state.addCalendar(u"Work"_s);
    const QString locked = state.addCalendar(u"Locked"_s);
    makeReadOnly(state, locked);
    QString remote;
    for (const bool holdsTasks : { false, true }) {
        remote = state.addCalendar(u"Remote"_s);
        Calendar calendar = state->calendars()->getById(remote).value();
        calendar.url = u"https://example.com/%1/"_s.arg(remote);
        calendar.allowTasksOverride = holdsTasks;
        QVERIFY(state->calendars()->update(calendar));
    }
    QStringList ids = TaskEdits::writableCalendarIds(state.state());
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()), QSet<QString>({ home, work, remote }));
    QCOMPARE(TaskEdits::defaultCalendarId(state.state()), home);

    PreferencesRepository *preferences = state->preferences();
    DefaultCalendar::recordLastUsed(preferences, true, remote); // nobody asked to be reminded of it
    preferences->set(DefaultCalendar::defaultKey(true), DefaultCalendar::sentinel());
    QCOMPARE(TaskEdits::defaultCalendarId(state.state()), home);
    DefaultCalendar::recordLastUsed(preferences, true, remote);
    DefaultCalendar::recordLastUsed(preferences, true, QString());
    QCOMPARE(TaskEdits::defaultCalendarId(state.state()), remote);
    preferences->set(DefaultCalendar::defaultKey(true), locked);
    QCOMPARE(TaskEdits::defaultCalendarId(state.state()), home);
}

QTEST_GUILESS_MAIN(tst_TaskEdits)
#include "tst_TaskEdits.moc"
