#include "calendar/services/QuickAdd.h"

#include "calendar/ICalParser.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

namespace {

const QDate May6(2026, 5, 6);
const QDateTime Now(May6.addDays(-1), QTime(10, 12)); // local, a Tuesday

template <typename Record> Record drafted(ScratchState &state, const QString &text)
{
    const QuickAdd::Draft draft = QuickAdd::draft(state.state(), text, {}, Now);
    const auto *record = std::get_if<Record>(&draft.record);
    return record && draft.why.isEmpty() ? *record : Record();
}

/// The calendars by id; the marks behind it: r is read-only, d default, h hidden, t can hold tasks.
void setCalendars(ScratchState &state, const QString &calendars)
{
    QVERIFY(state->calendars()->removeDeep(ScratchState::calendarId()));
    int place = 0;
    for (const QString &marks : calendars.split(u' ', Qt::SkipEmptyParts)) {
        Calendar calendar;
        calendar.id = marks.left(1);
        calendar.accountId = LocalDefaults::LocalAccountId;
        calendar.url = u"https://example.com/"_s + marks;
        calendar.name = marks;
        calendar.isReadOnly = marks.contains(u'r');
        calendar.isDefault = marks.contains(u'd');
        calendar.isVisible = !marks.contains(u'h');
        calendar.allowTasksOverride = marks.contains(u't');
        calendar.sortOrder = ++place;
        QVERIFY(state->calendars()->insert(calendar));
    }
}

}

// Runs with the machine in several zones.
class tst_QuickAdd : public QObject {
    Q_OBJECT

private slots:
    void draftsEvents()
    {
        ScratchState state;
        const Event timed = drafted<Event>(state, u"lunch\nwith  Sam tomorrow at 12:30pm for 90 min #work"_s);
        QCOMPARE(timed.title, u"lunch with Sam"_s);
        QCOMPARE(timed.startTime, QDateTime(May6, QTime(12, 30)));
        QCOMPARE(timed.endTime, QDateTime(May6, QTime(14, 0)));
        QCOMPARE(timed.startTime.timeSpec(), Qt::UTC);
        QCOMPARE(timed.calendarId, ScratchState::calendarId());

        const Event allDay = drafted<Event>(state, u"tomorrow"_s);
        QCOMPARE(allDay.title, u"tomorrow"_s);
        QVERIFY(allDay.isAllDay);
        QCOMPARE(allDay.startTime, utc("2026-05-06"));
        QCOMPARE(allDay.endTime, utc("2026-05-07"));
    }

    void draftsTasks()
    {
        ScratchState state;
        Task task = drafted<Task>(state, u"task: file taxes friday #a #b"_s);
        QCOMPARE(task.title, u"file taxes"_s);
        QCOMPARE(task.dueDate, utc("2026-05-08"));
        QVERIFY(task.dueIsDateOnly && task.reminders.isEmpty() && task.itemType == u"task");
        QCOMPARE(task.categories, QStringList({ u"a"_s, u"b"_s }));

        task = drafted<Task>(state, u"todo call Bob tomorrow at 9:30pm"_s);
        QVERIFY(!task.dueIsDateOnly);
        QCOMPARE(task.dueDate, QDateTime(May6, QTime(21, 30)));
        QCOMPARE(task.dueDate->timeSpec(), Qt::UTC);

        task = drafted<Task>(state, u"remember to pay rent tomorrow"_s);
        QCOMPARE(task.itemType, u"reminder"_s);
        QVERIFY(!task.dueIsDateOnly);
        QCOMPARE(task.dueDate, QDateTime(May6, QTime(9, 0)));
        QCOMPARE(task.reminders, QList<Reminder>({ Reminder() }));

        task = drafted<Task>(state, u"remember to smile"_s);
        QVERIFY(!task.dueDate && task.reminders.isEmpty() && task.title == u"smile");
    }

    void storesWhatItShows()
    {
        ScratchState state;
        for (const QString &text : { u"lunch in 90 minutes"_s, u"lunch tomorrow"_s }) {
            const Event shown = QuickAdd::preview(state.state(), text);
            Event stored = state->events()->getById(QuickAdd::commit(state.state(), text)).value();
            QVERIFY(!stored.id.isEmpty() && stored.uid == stored.id && stored.created.isValid());
            const Event read = ICalParser::parse(stored.rawIcalendar).value(0);
            QCOMPARE(read.title, shown.title);
            QCOMPARE(read.uid, stored.uid);
            QCOMPARE(read.startTime, stored.startTime);
            QVERIFY(qAbs(stored.startTime.secsTo(shown.startTime)) < 60); // the clock went on
            QCOMPARE(stored.endTime.value(), stored.startTime.addSecs(shown.startTime.secsTo(*shown.endTime)));
            QVERIFY(stored.isAllDay == shown.isAllDay && stored.timezone == u"UTC" && stored.syncStatus == u"pending");
        }
        const Task task =
            state->tasks()->getById(QuickAdd::commit(state.state(), u"remind me to call at 6pm #x"_s)).value();
        QVERIFY(task.uid == task.id && task.created.isValid() && task.syncStatus == u"pending");
        QCOMPARE(task.dueDate->toLocalTime().time(), QTime(18, 0));
        QCOMPARE(task.reminders.value(0).triggerTime, task.dueDate);
        QCOMPARE(ICalParser::parseTasks(task.rawIcalendar).value(0).dueDate, task.dueDate);
        QVERIFY(QuickAdd::preview(state.state(), u"buy milk"_s).title.isEmpty());
    }

    void saysWhyItStoresNothing()
    {
        ScratchState state;
        const auto refuses = [&state](const char *text) {
            const QString line = QString::fromLatin1(text);
            const QuickAdd::Draft draft = QuickAdd::draft(state.state(), line, {}, Now);
            return std::holds_alternative<std::monostate>(draft.record) && !draft.why.isEmpty()
                && QuickAdd::commit(state.state(), line).isEmpty();
        };
        for (const char *text :
             { "party feb 31", "lunch at 25:00", "task: tea june 31", "lunch from 9 to 25", "in 999999 weeks" })
            QVERIFY2(refuses(text), text);
        QVERIFY(!refuses(" \n ")); // nothing to say yet
        QVERIFY(QuickAdd::commit(state.state(), u" \n "_s).isEmpty());
        setCalendars(state, {});
        QVERIFY(refuses("lunch at noon") && refuses("buy milk"));
        setCalendars(state, u"ar brd"_s);
        QVERIFY(refuses("lunch at noon") && refuses("buy milk"));
    }

    void choosesTheCalendar_data()
    {
        columns<QString, QString, QString, QString>("calendars", "hint", "event", "task");
        row("hint", "a bd c", "c", "c", "c");
        row("hint that is gone", "a bd c", "x", "b", "b");
        row("hint that is read-only", "ah b cr", "c", "b", "b");
        row("default, though hidden", "a bdh", "", "b", "b");
        row("first visible", "ah b c", "", "b", "b");
        row("first", "ah bh", "", "a", "a");
        row("read-only default", "a brd", "", "a", "a");
        row("one for tasks", "ad b ct", "", "a", "c");
        row("hint not for tasks", "ad b ct", "b", "b", "c");
    }
    void choosesTheCalendar()
    {
        QFETCH(QString, calendars);
        QFETCH(QString, hint);
        ScratchState state;
        setCalendars(state, calendars);
        const auto draft = [&](const QString &text) { return QuickAdd::draft(state.state(), text, hint, Now).record; };
        QTEST(std::get<Event>(draft(u"lunch at noon"_s)).calendarId, "event");
        QTEST(std::get<Task>(draft(u"buy milk"_s)).calendarId, "task");
    }
};

QTEST_GUILESS_MAIN(tst_QuickAdd)
#include "tst_QuickAdd.moc"
