#include "calendar/services/QuickAdd.h"

#include "app/state/AppState.h"
#include "calendar/ICalParser.h"
#include "calendar/NLParser.h"
#include "calendar/services/EventEdits.h"
#include "calendar/services/TaskEdits.h"
#include "storage/CalendarRepository.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int ReminderHour = 9; // of a reminder for a day

class Tr {
    Q_DECLARE_TR_FUNCTIONS(QuickAdd)
};

QDateTime utcDay(QDate date)
{
    return { date, QTime(0, 0), Qt::UTC };
}

/// The calendar that was asked for, else the default one, else the first one on show, else the first: of those
/// that can take the record.
QString chooseCalendar(AppState *state, const QString &hint, bool forTask)
{
    QList<Calendar> allowed = state->calendars()->getAll();
    const QStringList forTasks = forTask ? TaskEdits::writableCalendarIds(state) : QStringList();
    allowed.removeIf(
        [&](const Calendar &calendar) { return calendar.isReadOnly || (forTask && !forTasks.contains(calendar.id)); });
    const auto first = [&allowed](auto isMeant) {
        const auto found = std::find_if(allowed.cbegin(), allowed.cend(), isMeant);
        return found == allowed.cend() ? QString() : found->id;
    };
    const QString choices[] = {
        first([&hint](const Calendar &calendar) { return calendar.id == hint; }),
        first([](const Calendar &calendar) { return calendar.isDefault; }),
        first([](const Calendar &calendar) { return calendar.isVisible; }),
        first([](const Calendar &) { return true; }),
    };
    for (const QString &id : choices) {
        if (!id.isEmpty())
            return id;
    }
    return {};
}

QString titleOf(const ParsedQuickAdd &parsed, const QString &text)
{
    return parsed.title.isEmpty() ? text.simplified() : parsed.title;
}

Task taskOf(AppState *state, const ParsedQuickAdd &parsed, const QString &text, const QString &hint)
{
    Task task;
    task.calendarId = chooseCalendar(state, hint, true);
    task.title = titleOf(parsed, text);
    task.categories = parsed.tags;
    task.syncStatus = SyncStatus::Pending;
    if (parsed.isReminder) {
        task.itemType = QStringLiteral("reminder");
        if (parsed.hasTime)
            task.dueDate = parsed.start;
        else if (parsed.isAllDay)
            task.dueDate = QDateTime(parsed.start.date(), QTime(ReminderHour, 0));
        task.dueIsDateOnly = false;
        if (task.dueDate)
            task.reminders = { Reminder{} };
        return task;
    }
    task.dueIsDateOnly = !parsed.hasTime;
    if (parsed.hasTime)
        task.dueDate = parsed.start;
    else if (parsed.isAllDay)
        task.dueDate = utcDay(parsed.start.date());
    return task;
}

Event eventOf(AppState *state, const ParsedQuickAdd &parsed, const QString &text, const QString &hint)
{
    Event event;
    event.calendarId = chooseCalendar(state, hint, false);
    event.title = titleOf(parsed, text);
    event.isAllDay = parsed.isAllDay;
    event.startTime = parsed.isAllDay ? utcDay(parsed.start.date()) : parsed.start;
    if (parsed.end)
        event.endTime = parsed.isAllDay ? utcDay(parsed.end->date()) : *parsed.end;
    event.syncStatus = SyncStatus::Pending;
    return event;
}

}

QuickAdd::Draft QuickAdd::draft(AppState *state, const QString &text, const QString &calendarIdHint,
                                const QDateTime &now)
{
    if (text.trimmed().isEmpty())
        return {};
    const ParsedQuickAdd parsed = NLParser::parse(text, now);
    if (!parsed.start.isValid())
        return { .record = {}, .why = Tr::tr("There is no such date or time.") };
    Draft draft;
    if (parsed.isReminder || parsed.isTask)
        draft.record = taskOf(state, parsed, text, calendarIdHint);
    else
        draft.record = eventOf(state, parsed, text, calendarIdHint);
    const bool hasCalendar = std::visit(
        [](const auto &record) {
            if constexpr (std::is_same_v<std::decay_t<decltype(record)>, std::monostate>)
                return false;
            else
                return !record.calendarId.isEmpty();
        },
        draft.record);
    return hasCalendar ? draft : Draft{ .record = {}, .why = Tr::tr("There is no calendar that this can go to.") };
}

Event QuickAdd::preview(AppState *state, const QString &text, const QString &calendarIdHint)
{
    const Draft made = draft(state, text, calendarIdHint);
    const auto *event = std::get_if<Event>(&made.record);
    return event ? *event : Event();
}

QString QuickAdd::commit(AppState *state, const QString &text, const QString &calendarIdHint)
{
    const Draft made = draft(state, text, calendarIdHint);
    if (const auto *event = std::get_if<Event>(&made.record))
        return EventEdits::create(state, *event).id;
    if (const auto *task = std::get_if<Task>(&made.record))
        return TaskEdits::create(state, *task).id;
    return {};
}
