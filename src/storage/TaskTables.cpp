#include "storage/StoredAs.h"
#include "storage/Tables.h"

using namespace StoredAs;

namespace {

QVariant storeDate(const std::optional<QDateTime> &date, bool isDateOnly)
{
    if (!date)
        return {};
    return StoredTime::store(isDateOnly ? StoredTime::wholeDay(*date) : *date);
}

// Rows from before the column existed, or from another writer, may hold nothing.
void finishTask(Task &task)
{
    if (task.repeatMode.isEmpty())
        task.repeatMode = Task().repeatMode;
    if (task.itemType.isEmpty())
        task.itemType = Task().itemType;
}

}

const Table<Task> &Tables::tasks()
{
    static const Table<Task> table(
        "tasks",
        {
            column<&Task::id, Text>("id", Write::OnInsert),
            column<&Task::calendarId, Text>("calendar_id"),
            column<&Task::uid, Text>("uid"),
            column<&Task::etag, NullableText>("etag"),
            column<&Task::href, NullableText>("href"),
            column<&Task::title, Text>("title"),
            column<&Task::description, NullableText>("description"),
            column<&Task::status, Text>("status"),
            column<&Task::priority, Number>("priority"),
            column<&Task::percentComplete, Number>("percent_complete"),
            { "due_date", [](const Task &task) { return storeDate(task.dueDate, task.dueIsDateOnly); },
              column<&Task::dueDate, OptionalTime>("").load },
            { "start_date", [](const Task &task) { return storeDate(task.startDate, task.startIsDateOnly); },
              column<&Task::startDate, OptionalTime>("").load },
            column<&Task::dueIsDateOnly, Flag>("due_is_date_only"),
            column<&Task::startIsDateOnly, Flag>("start_is_date_only"),
            column<&Task::completedDate, OptionalTime>("completed_date"),
            column<&Task::categories, JsonArray>("categories"),
            column<&Task::parentTaskUid, NullableText>("parent_task_uid"),
            column<&Task::sortOrder, Number>("sort_order"),
            column<&Task::color, NullableText>("color"),
            column<&Task::recurrenceRule, NullableText>("recurrence_rule"),
            column<&Task::repeatMode, Text>("repeat_mode"),
            column<&Task::itemType, Text>("item_type"),
            column<&Task::sequence, Number>("sequence"),
            column<&Task::rawIcalendar, Text>("raw_icalendar"),
            column<&Task::created, Stamp>("created", Write::OnInsert),
            column<&Task::lastModified, Stamp>("last_modified"),
            column<&Task::syncStatus, Text>("sync_status"),
            column<&Task::deletedAt, OptionalStamp>("deleted_at"),
        },
        finishTask);
    return table;
}
