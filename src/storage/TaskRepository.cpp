#include "storage/TaskRepository.h"

#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "storage/CalendarFilter.h"
#include "storage/ChangeNotifier.h"
#include "storage/ChildRows.h"
#include "storage/Database.h"
#include "storage/Savepoint.h"
#include "storage/Statement.h"
#include "storage/StoredAs.h"
#include "storage/Tables.h"

#include <limits>

namespace {

QList<Task> listTasks(Database *database, const QString &tail, const QVariantList &values)
{
    QList<Task> tasks = Tables::tasks().list(database, tail, values);
    ChildRows::attach(database, ChildRows::taskReminders(), tasks, &Task::reminders);
    return tasks;
}

std::optional<Task> firstTask(Database *database, const QString &tail, const QVariantList &values)
{
    std::optional<Task> task = Tables::tasks().first(database, tail, values);
    if (task)
        task->reminders = ChildRows::read(database, ChildRows::taskReminders(), { task->id });
    return task;
}

QList<Task> keepAccepted(QList<Task> tasks, const CalendarFilter &filter)
{
    tasks.removeIf([&filter](const Task &task) { return !filter.accepts(task.calendarId); });
    return tasks;
}

// What a task's reminders count back from: due, else start.
QDateTime reminderAnchor(const Task &task)
{
    if (task.dueDate)
        return task.dueIsDateOnly ? StoredTime::wholeDay(*task.dueDate) : *task.dueDate;
    if (task.startDate)
        return task.startIsDateOnly ? StoredTime::wholeDay(*task.startDate) : *task.startDate;
    return {};
}

bool isSameInstant(const QDateTime &a, const QDateTime &b)
{
    return a.isValid() == b.isValid() && (!a.isValid() || a.toSecsSinceEpoch() == b.toSecsSinceEpoch());
}

void carryReminders(Database *database, Task &task)
{
    if (task.reminders.isEmpty())
        return;
    const std::optional<Task> stored = firstTask(database, QStringLiteral(" WHERE id = ?"), { task.id });
    if (stored)
        ChildRows::carryOver(task.reminders, stored->reminders,
                             !isSameInstant(reminderAnchor(*stored), reminderAnchor(task)));
}

bool writeReminders(Database *database, const Task &task, ChildRows::Owner owner)
{
    return ChildRows::writeReminders(database, ChildRows::taskReminders(), owner, task.id, task.reminders,
                                     reminderAnchor(task));
}

void fillDefaults(Task &task, QLatin1StringView syncStatus)
{
    if (task.syncStatus.isEmpty())
        task.syncStatus = syncStatus;
    if (task.repeatMode.isEmpty())
        task.repeatMode = Task().repeatMode;
    if (task.itemType.isEmpty())
        task.itemType = Task().itemType;
}

// A timed date is stored as an instant, but repeats by the clock on the wall: 09:00 stays 09:00.
QDateTime repeatBase(const QDateTime &date, bool isDateOnly)
{
    return isDateOnly ? date : date.toLocalTime();
}

QDateTime repeated(const QDateTime &date, const QDateTime &next, bool isDateOnly)
{
    if (isDateOnly)
        return StoredTime::wholeDay(next);
    const bool floats = date.timeSpec() == Qt::LocalTime; // its text names no zone
    return floats ? next.toLocalTime() : next.toUTC();
}

// The first date of the task's rule after the one it has, or after now. Invalid if there is none.
QDateTime nextOccurrence(const Task &task)
{
    constexpr int horizonYears = 5;
    QDateTime base;
    if (task.repeatMode == QLatin1StringView("fromCompletionDate"))
        base = QDateTime::currentDateTime();
    else if (task.dueDate)
        base = repeatBase(*task.dueDate, task.dueIsDateOnly);
    else if (task.startDate)
        base = repeatBase(*task.startDate, task.startIsDateOnly);
    if (!base.isValid())
        return {};

    Event series;
    series.startTime = base;
    series.recurrenceRule = task.recurrenceRule;
    // The instance at the base itself may reach into the window: an event without an end has a length too.
    for (const Event &occurrence : RruleExpander::expand(series, base.addSecs(1), base.addYears(horizonYears))) {
        if (occurrence.startTime > base)
            return occurrence.startTime;
    }
    return {};
}

// Moves a repeating task on to its next date. False, and unchanged, if there is none.
bool advance(Task &task)
{
    if (!task.dueDate && !task.startDate)
        return false; // with nothing to move, it could never be completed
    const QDateTime next = nextOccurrence(task);
    if (!next.isValid())
        return false;
    if (task.dueDate)
        task.dueDate = repeated(*task.dueDate, next, task.dueIsDateOnly);
    else
        task.startDate = repeated(*task.startDate, next, task.startIsDateOnly);
    task.status = TaskStatus::NeedsAction;
    task.percentComplete = 0;
    task.completedDate.reset();
    return true;
}

}

TaskRepository::TaskRepository(Database *database, QObject *parent)
    : SyncedRepository(database, "tasks", "last_modified", parent)
{
    connect(notifier(), &ChangeNotifier::changed, this, &TaskRepository::tasksChanged);
}

QList<Task> TaskRepository::getByCalendar(const QString &calendarId)
{
    return listTasks(m_database,
                     QStringLiteral(" WHERE calendar_id = ? AND deleted_at IS NULL"
                                    " ORDER BY due_date IS NULL, due_date, sort_order"),
                     { calendarId });
}

QList<Task> TaskRepository::getByCalendarIncludingDeleted(const QString &calendarId)
{
    return listTasks(m_database,
                     QStringLiteral(" WHERE calendar_id = ? ORDER BY due_date IS NULL, due_date, sort_order"),
                     { calendarId });
}

QList<Task> TaskRepository::getInDueRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    const CalendarFilter filter(m_database, calendarIds);
    const QVariant from = start.toString(Qt::ISODate);
    const QVariant to = end.toString(Qt::ISODate);
    const QString tail = QStringLiteral(" WHERE deleted_at IS NULL"
                                        " AND ((due_date IS NOT NULL AND due_date >= ? AND due_date < ?)"
                                        " OR (start_date IS NOT NULL AND start_date >= ? AND start_date < ?))")
        + filter.clause() + QStringLiteral(" ORDER BY due_date, sort_order");
    return keepAccepted(listTasks(m_database, tail, QVariantList{ from, to, from, to } + filter.values()), filter);
}

QList<Task> TaskRepository::getUndated(const QStringList &calendarIds)
{
    const CalendarFilter filter(m_database, calendarIds);
    const QString tail =
        QStringLiteral(" WHERE deleted_at IS NULL AND due_date IS NULL AND status NOT IN ('completed', 'cancelled')")
        + filter.clause() + QStringLiteral(" ORDER BY sort_order, last_modified DESC");
    return keepAccepted(listTasks(m_database, tail, filter.values()), filter);
}

std::optional<Task> TaskRepository::getById(const QString &id)
{
    return firstTask(m_database, QStringLiteral(" WHERE id = ?"), { id });
}

std::optional<Task> TaskRepository::getByUid(const QString &uid, const QString &calendarId)
{
    return firstTask(m_database, QStringLiteral(" WHERE uid = ? AND calendar_id = ?"), { uid, calendarId });
}

std::optional<Task> TaskRepository::findByUid(const QString &uid)
{
    const CalendarFilter anyCalendar(m_database, {});
    return firstTask(m_database,
                     QStringLiteral(" WHERE uid = ? AND deleted_at IS NULL") + anyCalendar.clause()
                         + QStringLiteral(" LIMIT 1"),
                     QVariantList{ uid } + anyCalendar.values());
}

QList<Task> TaskRepository::getPending(const QString &calendarId)
{
    return listTasks(m_database,
                     QStringLiteral(" WHERE calendar_id = ? AND sync_status = 'pending' ORDER BY last_modified"),
                     { calendarId });
}

bool TaskRepository::insert(const Task &task)
{
    Task row = task;
    fillDefaults(row, SyncStatus::Synced);

    Savepoint savepoint(m_database);
    if (!savepoint.isActive() || !Tables::tasks().insert(m_database, row, "TaskRepository::insert failed:")
        || !writeReminders(m_database, row, ChildRows::Owner::New) || !savepoint.commit())
        return false;
    notifyChanged(row.calendarId);
    return true;
}

bool TaskRepository::update(const Task &task)
{
    Task row = task;
    fillDefaults(row, SyncStatus::Pending);
    row.lastModified = QDateTime::currentDateTimeUtc();

    Savepoint savepoint(m_database);
    if (!savepoint.isActive())
        return false;
    carryReminders(m_database, row);
    if (!Tables::tasks().update(m_database, row, "TaskRepository::update failed:")
        || !writeReminders(m_database, row, ChildRows::Owner::Stored) || !savepoint.commit())
        return false;
    notifyChanged(row.calendarId);
    return true;
}

bool TaskRepository::hardDelete(const QString &id)
{
    const QString calendarId = calendarOf(id);
    // The reminders go by the schema's cascade.
    if (!runStatement(m_database,
                      "TaskRepository::hardDelete failed:", QStringLiteral("DELETE FROM tasks WHERE id = ?"), { id }))
        return false;
    notifyChanged(calendarId);
    return true;
}

bool TaskRepository::setCompleted(const QString &id, bool completed)
{
    std::optional<Task> task = getById(id);
    if (!task)
        return false;
    const bool movesOn = completed && !task->isCompleted() && !task->recurrenceRule.isEmpty() && advance(*task);
    if (!movesOn) {
        task->status = completed ? TaskStatus::Completed : TaskStatus::NeedsAction;
        task->completedDate = completed ? std::optional(QDateTime::currentDateTimeUtc()) : std::nullopt;
        task->percentComplete = completed ? 100 : 0;
    }
    if (task->sequence < std::numeric_limits<int>::max()) // a server may have sent any number
        ++task->sequence;
    task->syncStatus = SyncStatus::Pending;
    task->rawIcalendar = ICalParser::serializeTaskToVCalendar(*task);
    return update(*task);
}
