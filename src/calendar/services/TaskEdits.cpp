#include "calendar/services/TaskEdits.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "calendar/ICalParser.h"
#include "calendar/TaskTree.h"
#include "calendar/services/CalendarAccess.h"
#include "calendar/services/EditDifference.h"
#include "calendar/services/TaskListing.h"
#include "models/NewId.h"
#include "storage/CalendarRepository.h"
#include "storage/Savepoint.h"
#include "storage/StoredTime.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>

#include <algorithm>
#include <ranges>

using TaskEdits::Outcome;

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(TaskEdits)
};

constexpr int AllPercent = 100;

Outcome done(const QString &id)
{
    return { .ok = true, .id = id, .why = {} };
}

Outcome refused(const QString &why)
{
    return { .ok = false, .id = {}, .why = why };
}

Outcome failed()
{
    return refused(Tr::tr("Couldn't update task — see log."));
}

bool canHoldTasks(const Calendar &calendar)
{
    return !calendar.isReadOnly && (calendar.supportsTasks() || calendar.isLocal());
}

// Why a calendar takes no further task.
QString refusalOfNew(AppState *state, const QString &calendarId)
{
    if (const QString why = CalendarAccess::refusal(state, calendarId); !why.isEmpty())
        return why;
    const auto calendar = state->calendars()->getById(calendarId);
    return canHoldTasks(*calendar) ? QString() : Tr::tr("\"%1\" cannot hold tasks.").arg(calendar->name);
}

std::optional<Task> liveTask(AppState *state, const QString &id)
{
    auto task = state->tasks()->getById(id);
    return task && !task->deletedAt ? task : std::nullopt;
}

/// The stored task, if it is there and can be written. \c why says what is in the way otherwise.
struct Writable {
    std::optional<Task> task;
    QString why;
};

Writable writable(AppState *state, const QString &id)
{
    const auto task = liveTask(state, id);
    if (!task)
        return { .task = {}, .why = Tr::tr("The task no longer exists.") };
    const QString why = CalendarAccess::refusal(state, task->calendarId);
    return { .task = why.isEmpty() ? task : std::nullopt, .why = why };
}

// Servers read the text: it follows the columns.
Task composed(Task task)
{
    task.syncStatus = SyncStatus::Pending;
    task.rawIcalendar = ICalParser::serializeTaskToVCalendar(task);
    return task;
}

Outcome stored(AppState *state, const Task &task)
{
    return state->tasks()->update(composed(task)) ? done(task.id) : failed();
}

/// The clock of the \p former date stays if that floats: its text names no zone.
std::optional<QDateTime> toStore(const std::optional<QDateTime> &date, bool isDateOnly,
                                 const std::optional<QDateTime> &former = {})
{
    if (!date || !date->isValid())
        return std::nullopt;
    if (isDateOnly)
        return StoredTime::wholeDay(*date);
    return former && former->timeSpec() == Qt::LocalTime ? date->toLocalTime() : date->toUTC();
}

// Completed, 100 % and a date of completion go together; the one that changed decides, the status first.
void settleCompletion(const Task &before, Task &row)
{
    const bool isStatusChanged = row.status != before.status;
    if (!isStatusChanged && row.percentComplete == before.percentComplete)
        return;
    if (isStatusChanged ? row.isCompleted() : row.percentComplete == AllPercent) {
        row.status = TaskStatus::Completed;
        row.percentComplete = AllPercent;
        if (!row.completedDate)
            row.completedDate = QDateTime::currentDateTimeUtc();
        return;
    }
    if (row.isCompleted())
        row.status = row.percentComplete > 0 ? TaskStatus::InProcess : TaskStatus::NeedsAction;
    if (row.percentComplete == AllPercent)
        row.percentComplete = 0;
    row.completedDate.reset();
}

void carryChanges(const Task &shown, const Task &edited, Task &row)
{
    EditDifference::carry<&Task::title, &Task::description, &Task::status, &Task::priority, &Task::percentComplete,
                          &Task::categories, &Task::parentTaskUid, &Task::sortOrder, &Task::color,
                          &Task::recurrenceRule, &Task::repeatMode, &Task::itemType>(shown, edited, row);
    EditDifference::carryReminders(shown.reminders, edited.reminders, row.reminders);
    if (shown.dueIsDateOnly != edited.dueIsDateOnly
        || !EditDifference::isSameInPicker(shown.dueDate, edited.dueDate, edited.dueIsDateOnly)) {
        row.dueDate = toStore(edited.dueDate, edited.dueIsDateOnly, row.dueDate);
        row.dueIsDateOnly = edited.dueIsDateOnly;
    }
    if (shown.startIsDateOnly != edited.startIsDateOnly
        || !EditDifference::isSameInPicker(shown.startDate, edited.startDate, edited.startIsDateOnly)) {
        row.startDate = toStore(edited.startDate, edited.startIsDateOnly, row.startDate);
        row.startIsDateOnly = edited.startIsDateOnly;
    }
}

/// Writes \p row in place of \p before, which the database may not hold any more.
bool writeRow(AppState *state, const Task &before, Task row, bool isPurged)
{
    TaskRepository *repository = state->tasks();
    // Repeating tasks are not completed: they move on. The repository knows how.
    const bool movesOn = row.isCompleted() && !before.isCompleted() && !row.recurrenceRule.isEmpty();
    if (movesOn) {
        row.status = before.status;
        row.percentComplete = before.percentComplete;
        row.completedDate = before.completedDate;
    }
    row.syncStatus = SyncStatus::Pending;
    // A new resource goes out over the stored text, which says more than the columns.
    const bool isWritten = isPurged ? repository->insert(row) : repository->update(composed(row));
    return isWritten && (!movesOn || repository->setCompleted(row.id, true));
}

/// The trees of one calendar as they stand on the screen.
class Trees {
public:
    Trees(AppState *state, const QString &calendarId)
        : m_tasks(TaskTree::flatten(state->tasks()->getByCalendar(calendarId),
                                    TaskTree::withManualSortOrder(TaskListing::isBefore)))
    {
    }

    [[nodiscard]] qsizetype find(const QString &id) const
    {
        const auto found = std::ranges::find(m_tasks, id, &TreeTask::id);
        return found == m_tasks.end() ? -1 : found - m_tasks.begin();
    }

    /// Where the subtree of the task at \p index ends.
    [[nodiscard]] qsizetype endOf(qsizetype index) const
    {
        qsizetype end = index + 1;
        while (end < m_tasks.size() && m_tasks.at(end).depth > m_tasks.at(index).depth)
            ++end;
        return end;
    }

    /// The task with all below it, parents first.
    [[nodiscard]] QList<TreeTask> subtree(qsizetype index) const { return m_tasks.mid(index, endOf(index) - index); }

    [[nodiscard]] qsizetype parentOf(qsizetype index) const
    {
        qsizetype parent = index;
        while (parent >= 0 && m_tasks.at(parent).depth >= m_tasks.at(index).depth)
            --parent;
        return parent;
    }

    /// The task at \p index and those beside it, in order.
    [[nodiscard]] QList<Task> siblings(qsizetype index) const
    {
        QList<Task> siblings;
        const qsizetype parent = parentOf(index);
        const qsizetype end = parent < 0 ? m_tasks.size() : endOf(parent);
        for (qsizetype i = parent + 1; i < end; i = endOf(i))
            siblings.append(m_tasks.at(i));
        return siblings;
    }

    [[nodiscard]] const TreeTask &at(qsizetype index) const { return m_tasks.at(index); }

private:
    QList<TreeTask> m_tasks;
};

/// A copy of \p task for another calendar: to its server a new resource. A deleted one of that UID comes
/// back, so that the server gets no second one.
Task relocated(AppState *state, const Task &task, const QString &calendarId)
{
    Task copy = task;
    const auto former = state->tasks()->getByUid(task.uid, calendarId);
    copy.id = former ? former->id : newId();
    copy.href = former ? former->href : QString();
    copy.etag = former ? former->etag : QString();
    copy.calendarId = calendarId;
    copy.created = QDateTime::currentDateTimeUtc();
    copy.syncStatus = SyncStatus::Pending;
    return copy;
}

/// Moves the task and all below it. \p text is what was stored of it before it was edited: the columns of a new
/// resource go out over that.
Outcome moveTree(AppState *state, const QString &id, const QString &calendarId, const QString &text)
{
    TaskRepository *repository = state->tasks();
    const auto liveTwin = [&](const QString &uid) {
        const auto twin = repository->getByUid(uid, calendarId);
        return twin && !twin->deletedAt;
    };
    const Task root = repository->getById(id).value();
    const Trees trees(state, root.calendarId);
    Outcome outcome;
    for (const TreeTask &task : trees.subtree(trees.find(id))) {
        if (liveTwin(task.uid))
            return refused(Tr::tr("The other calendar already holds \"%1\".").arg(task.title));
        Task copy = relocated(state, task, calendarId);
        if (task.id == id) {
            if (!liveTwin(copy.parentTaskUid))
                copy.parentTaskUid.clear();
            copy.sortOrder = 0;
            copy.rawIcalendar = text;
            outcome = done(copy.id);
        }
        const bool isKnown = repository->getById(copy.id).has_value();
        if (!(isKnown ? repository->update(copy) : repository->insert(copy)) || !repository->remove(task.id))
            return failed();
    }
    return outcome;
}

/// Both tasks as they are stored in one calendar; a UID may occur in several.
struct DropPair {
    std::optional<Task> task;
    std::optional<Task> target;
};

DropPair findPair(TaskRepository *repository, const QString &uid, const QString &targetUid)
{
    DropPair pair{ .task = repository->findByUid(uid), .target = repository->findByUid(targetUid) };
    if (pair.task && pair.target && pair.task->calendarId != pair.target->calendarId) {
        if (const auto neighbour = repository->getByUid(uid, pair.target->calendarId);
            neighbour && !neighbour->deletedAt)
            pair.task = neighbour;
    }
    return pair;
}

/// Numbers the siblings from one on, and puts \p task below \p parentUid. Writes what that changes.
bool writeOrder(AppState *state, const QList<Task> &siblings, const Task &task, const QString &parentUid)
{
    int place = 0;
    for (const Task &before : siblings) {
        Task sibling = before;
        sibling.sortOrder = ++place;
        if (sibling.id == task.id)
            sibling.parentTaskUid = parentUid;
        if (sibling != before && !state->tasks()->update(composed(sibling)))
            return false;
    }
    return true;
}

}

bool TaskEdits::isReadOnly(AppState *state, const Task &task)
{
    return !CalendarAccess::refusal(state, task.calendarId).isEmpty();
}

Outcome TaskEdits::create(AppState *state, const Task &task)
{
    if (const QString why = refusalOfNew(state, task.calendarId); !why.isEmpty())
        return refused(why);
    Task row = task;
    if (row.id.isEmpty())
        row.id = newId();
    if (row.uid.isEmpty())
        row.uid = row.id;
    row.dueDate = toStore(row.dueDate, row.dueIsDateOnly);
    row.startDate = toStore(row.startDate, row.startIsDateOnly);
    settleCompletion(Task(), row);
    row.created = QDateTime::currentDateTimeUtc();
    row.lastModified = row.created;
    return state->tasks()->insert(composed(row)) ? done(row.id) : failed();
}

Outcome TaskEdits::save(AppState *state, const Task &shown, const Task &edited)
{
    const auto known = state->tasks()->getById(shown.id);
    const bool isPurged = !known;
    Task before = known.value_or(shown);
    if (isPurged) {
        // To a server it is a new resource, and there is nothing left to move.
        before.calendarId = edited.calendarId;
        before.href.clear();
        before.etag.clear();
    }
    const bool moves = !isPurged && edited.calendarId != shown.calendarId && edited.calendarId != before.calendarId;
    QString why = CalendarAccess::refusal(state, before.calendarId);
    if (why.isEmpty() && moves)
        why = refusalOfNew(state, edited.calendarId);
    if (!why.isEmpty())
        return refused(why);

    Task row = before;
    row.deletedAt.reset();
    carryChanges(shown, edited, row);
    settleCompletion(before, row);
    if (!isPurged && row == before && !moves)
        return done(row.id);
    Savepoint savepoint(state->database());
    if (!savepoint.isActive() || !writeRow(state, before, row, isPurged))
        return failed();
    const Outcome outcome = moves ? moveTree(state, row.id, edited.calendarId, before.rawIcalendar) : done(row.id);
    if (outcome.ok && !savepoint.commit())
        return failed();
    return outcome;
}

Outcome TaskEdits::setCompleted(AppState *state, const QString &id, bool completed)
{
    const auto [task, why] = writable(state, id);
    if (!task)
        return refused(why);
    return state->tasks()->setCompleted(id, completed) ? done(id) : failed();
}

Outcome TaskEdits::remove(AppState *state, const QString &id)
{
    const auto [task, why] = writable(state, id);
    if (!task)
        return refused(why);
    Savepoint savepoint(state->database());
    if (!savepoint.isActive())
        return failed();
    for (Task child : state->tasks()->getByCalendar(task->calendarId)) {
        if (child.parentTaskUid != task->uid || child.id == id)
            continue;
        child.parentTaskUid = task->parentTaskUid == child.uid ? QString() : task->parentTaskUid;
        if (!stored(state, child).ok)
            return failed();
    }
    return state->tasks()->remove(id) && savepoint.commit() ? done(id) : failed();
}

Outcome TaskEdits::place(AppState *state, const QString &uid, const QString &targetUid, DropZone zone)
{
    DropPair pair = findPair(state->tasks(), uid, targetUid);
    std::optional<Task> &task = pair.task;
    const std::optional<Task> &target = pair.target;
    if (!task || !target)
        return refused(Tr::tr("The task no longer exists."));
    if (task->id == target->id)
        return refused(QString());
    if (task->calendarId != target->calendarId)
        return refused(Tr::tr("Subtasks must belong to the same calendar as their parent. "
                              "Move \"%1\" to the same calendar first.")
                           .arg(task->title));
    if (const QString why = CalendarAccess::refusal(state, task->calendarId); !why.isEmpty())
        return refused(why);
    const Trees trees(state, task->calendarId);
    const qsizetype from = trees.find(task->id);
    const qsizetype to = trees.find(target->id);
    if (to > from && to < trees.endOf(from))
        return refused(Tr::tr("\"%1\" cannot be moved below one of its own subtasks.").arg(task->title));

    if (zone == DropZone::Onto) {
        if (task->parentTaskUid == target->uid)
            return done(task->id);
        task->parentTaskUid = target->uid;
        task->sortOrder = 0; // a place among other siblings says nothing here
        return stored(state, *task);
    }
    QList<Task> siblings = trees.siblings(to);
    siblings.removeIf([&](const Task &sibling) { return sibling.id == task->id; });
    const auto beside = std::ranges::find(siblings, target->id, &Task::id);
    siblings.insert(zone == DropZone::Above ? beside : std::next(beside), *task);
    const qsizetype parent = trees.parentOf(to);
    Savepoint savepoint(state->database());
    if (!savepoint.isActive() || !writeOrder(state, siblings, *task, parent < 0 ? QString() : trees.at(parent).uid))
        return failed();
    return savepoint.commit() ? done(task->id) : failed();
}

Outcome TaskEdits::setDate(AppState *state, const QString &id, DateField field, const QDateTime &when, bool allDay)
{
    auto [task, why] = writable(state, id);
    if (!task)
        return refused(why);
    std::optional<QDateTime> &date = field == DateField::Start ? task->startDate : task->dueDate;
    date = toStore(when, allDay, date);
    (field == DateField::Start ? task->startIsDateOnly : task->dueIsDateOnly) = allDay;
    return stored(state, *task);
}

QStringList TaskEdits::writableCalendarIds(AppState *state)
{
    QStringList ids;
    for (const Calendar &calendar : state->calendars()->getAll()) {
        if (canHoldTasks(calendar))
            ids.append(calendar.id);
    }
    return ids;
}

QString TaskEdits::defaultCalendarId(AppState *state)
{
    const QStringList ids = writableCalendarIds(state);
    const QString preferred = DefaultCalendar::preferredCalendarId(state->preferences(), true);
    if (ids.contains(preferred))
        return preferred;
    for (const Calendar &calendar : state->calendars()->getAll()) {
        if (calendar.isDefault && ids.contains(calendar.id))
            return calendar.id;
    }
    return ids.value(0);
}
