#include "calendar/services/TaskListing.h"

#include "app/state/AppState.h"
#include "calendar/TaskTree.h"
#include "calendar/services/TaskText.h"
#include "calendar/services/VisibleEvents.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <climits>
#include <tuple>

namespace {

constexpr int DaysAhead = 7;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(TaskListing)
};

bool isDone(const Task &task)
{
    return task.isCompleted() || task.status == TaskStatus::Cancelled;
}

// When the time is up. A day lasts until it ends where the user is, as isOverdue() has it; before that and
// after it come times. Days alone keep their order on any clock, and the one they are stored on is quick.
qint64 dueMs(const Task &task, bool isAmongTimes)
{
    if (!task.dueDate)
        return LLONG_MAX;
    return task.dueIsDateOnly && isAmongTimes ? task.dueDate->date().endOfDay().toMSecsSinceEpoch()
                                              : task.dueDate->toMSecsSinceEpoch();
}

auto orderOf(const Task &task, bool isAmongTimes)
{
    // What is to be done comes first; then by date, what has none last; then by priority, none last.
    return std::tuple(isDone(task), dueMs(task, isAmongTimes), task.priority > 0 ? task.priority : INT_MAX, task.title,
                      task.uid);
}

QList<TaskListing::Row> rowsOf(const QList<Task> &tasks)
{
    QSet<QString> uids;
    for (const Task &task : tasks)
        uids.insert(task.uid);
    QList<TaskListing::Row> rows;
    const QList<TreeTask> tree = TaskTree::flatten(tasks, TaskTree::withManualSortOrder(TaskListing::isBefore));
    rows.reserve(tree.size());
    for (const TreeTask &task : tree)
        rows.append({ task, !task.parentTaskUid.isEmpty() && !uids.contains(task.parentTaskUid) });
    return rows;
}

QList<Task> shown(const QList<Task> &tasks, const TaskListing::Options &options, QDate today)
{
    const QSet<QString> kept = options.hideCompleted ? TaskTree::completedKeptByActiveTree(tasks) : QSet<QString>();
    QList<Task> result;
    for (const Task &task : tasks) {
        const bool isHidden = options.hideCompleted && isDone(task) && !kept.contains(task.uid);
        if (!isHidden && TaskListing::matches(task, options.filter, today))
            result.append(task);
    }
    return result;
}

QString sectionTitle(AppState *state, const Calendar &calendar)
{
    const auto account = state->accounts()->getById(calendar.accountId);
    const QString name = calendar.name.simplified();
    //: account, calendar
    return account ? Tr::tr("%1 / %2").arg(account->name.simplified(), name) : name;
}

}

bool TaskListing::matches(const Task &task, Filter filter, QDate today)
{
    if (task.itemType == QLatin1StringView("reminder"))
        return false;
    if (filter == Filter::All)
        return true;
    if (!task.dueDate)
        return false;
    const QDate due = TaskText::day(*task.dueDate, task.dueIsDateOnly);
    switch (filter) {
    case Filter::Today:
        return due == today;
    case Filter::ThisWeek:
        return due >= today && due <= today.addDays(DaysAhead);
    default:
        return due < today;
    }
}

bool TaskListing::isOverdue(const Task &task, QDate today)
{
    return !isDone(task) && matches(task, Filter::Overdue, today);
}

bool TaskListing::isBefore(const Task &a, const Task &b)
{
    const bool isMixed = a.dueIsDateOnly != b.dueIsDateOnly;
    return orderOf(a, isMixed) < orderOf(b, isMixed);
}

QList<TaskListing::Section> TaskListing::load(AppState *state, const Options &options, QDate today)
{
    const QStringList visible = VisibleEvents::calendarIds(state);
    QList<Section> sections;
    QList<Task> all;
    const QList<Calendar> calendars = state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (!visible.contains(calendar.id))
            continue;
        const QList<Task> tasks = shown(state->tasks()->getByCalendar(calendar.id), options, today);
        if (!options.groupByCalendar)
            all += tasks;
        else if (!tasks.isEmpty())
            sections.append({ calendar.id, sectionTitle(state, calendar), calendar.color, rowsOf(tasks) });
    }
    if (!options.groupByCalendar && !all.isEmpty())
        sections.append({ {}, {}, {}, rowsOf(all) });
    return sections;
}
