#include "calendar/services/QuickAdd.h"

#include "app/state/AppState.h"
#include "calendar/ICalParser.h"
#include "calendar/NLParser.h"
#include "calendar/WallClock.h"
#include "calendar/services/EventEdits.h"
#include "models/Calendar.h"
#include "models/NewId.h"
#include "storage/CalendarRepository.h"
#include "storage/StoredTime.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// When a reminder for a day rings.
constexpr int ReminderHour = 9;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(QuickAdd)
};

QuickAdd::Draft refused(const QString &why)
{
    return { .record = {}, .why = why };
}

QList<Calendar> writableCalendars(AppState *state, bool forTask)
{
    QList<Calendar> writable = state->calendars()->getAll();
    writable.removeIf([](const Calendar &calendar) { return calendar.isReadOnly; });
    if (!forTask)
        return writable;
    QList<Calendar> forTasks = writable;
    forTasks.removeIf([](const Calendar &calendar) { return !calendar.supportsTasks() && !calendar.isLocal(); });
    // A task that no server may take is still better kept here than lost.
    return forTasks.isEmpty() ? writable : forTasks;
}

/// Empty if there is none to choose from.
QString chosenCalendarId(const QList<Calendar> &calendars, const QString &hint)
{
    const auto is = [&hint](const Calendar &calendar) { return calendar.id == hint; };
    auto chosen = std::ranges::find_if(calendars, is);
    if (chosen == calendars.end())
        chosen = std::ranges::find_if(calendars, &Calendar::isDefault);
    if (chosen == calendars.end())
        chosen = std::ranges::find_if(calendars, &Calendar::isVisible);
    if (chosen == calendars.end())
        chosen = calendars.begin();
    return chosen == calendars.end() ? QString() : chosen->id;
}

Event eventOf(const ParsedQuickAdd &parsed)
{
    const auto toStore = [&parsed](const QDateTime &time) {
        return parsed.isAllDay ? StoredTime::wholeDay(time) : time.toUTC();
    };
    Event event;
    event.title = parsed.title;
    event.startTime = toStore(parsed.start);
    if (parsed.end)
        event.endTime = toStore(*parsed.end);
    event.isAllDay = parsed.isAllDay;
    event.syncStatus = SyncStatus::Pending;
    return event;
}

Task taskOf(const ParsedQuickAdd &parsed)
{
    Task task;
    task.title = parsed.title;
    task.categories = parsed.tags;
    task.syncStatus = SyncStatus::Pending;
    if (parsed.isReminder)
        task.itemType = QStringLiteral("reminder");
    if (!parsed.hasTime && !parsed.isAllDay)
        return task;
    task.dueIsDateOnly = parsed.isAllDay && !parsed.isReminder;
    if (task.dueIsDateOnly)
        task.dueDate = StoredTime::wholeDay(parsed.start);
    else if (parsed.isAllDay)
        task.dueDate = WallClock(parsed.start).at(parsed.start.date(), QTime(ReminderHour, 0)).toUTC();
    else
        task.dueDate = parsed.start.toUTC();
    if (parsed.isReminder)
        task.reminders = { Reminder() };
    return task;
}

QString store(AppState *state, const Event &event)
{
    return EventEdits::create(state, event).id;
}

QString store(AppState *state, Task task)
{
    task.id = newId();
    task.uid = task.id;
    task.created = QDateTime::currentDateTimeUtc();
    task.lastModified = task.created;
    task.rawIcalendar = ICalParser::serializeTaskToVCalendar(task);
    return state->tasks()->insert(task) ? task.id : QString();
}

QString store(AppState *, std::monostate)
{
    return {};
}

}

QuickAdd::Draft QuickAdd::draft(AppState *state, const QString &text, const QString &calendarIdHint,
                                const QDateTime &now)
{
    const QString line = text.simplified();
    if (line.isEmpty())
        return {};
    ParsedQuickAdd parsed = NLParser::parse(line, now);
    if (!parsed.start.isValid())
        return refused(Tr::tr("There is no such date or time."));
    if (parsed.title.isEmpty())
        parsed.title = line;
    const bool isTask = parsed.isTask || parsed.isReminder;
    const QString calendarId = chosenCalendarId(writableCalendars(state, isTask), calendarIdHint);
    if (calendarId.isEmpty())
        return refused(Tr::tr("There is no calendar that can be written to. Create one first."));
    const auto ofCalendar = [&calendarId](auto record) {
        record.calendarId = calendarId;
        return Draft{ .record = record, .why = {} };
    };
    return isTask ? ofCalendar(taskOf(parsed)) : ofCalendar(eventOf(parsed));
}

Event QuickAdd::preview(AppState *state, const QString &text, const QString &calendarIdHint)
{
    const Draft line = draft(state, text, calendarIdHint);
    const auto *event = std::get_if<Event>(&line.record);
    return event ? *event : Event();
}

QString QuickAdd::commit(AppState *state, const QString &text, const QString &calendarIdHint)
{
    const Draft line = draft(state, text, calendarIdHint);
    return std::visit([state](const auto &record) { return store(state, record); }, line.record);
}
