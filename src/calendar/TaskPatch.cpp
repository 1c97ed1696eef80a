#include "calendar/TaskPatch.h"

#include "calendar/ComponentPatch.h"
#include "calendar/ICalDateTime.h"
#include "calendar/ICalLineText.h"
#include "calendar/ICalTexts.h"
#include "calendar/TimeForm.h"

#include <optional>

using namespace ICal;

namespace {

using OptionalTime = std::optional<QDateTime>;

bool isSameTime(const OptionalTime &a, const OptionalTime &b, bool isDate)
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    return isDate ? a->date() == b->date() : a->toSecsSinceEpoch() == b->toSecsSinceEpoch();
}

/// The form of the first line that has a fitting one, and else UTC: DTSTART and DUE go together. RFC 5545 §3.8.2.3.
TimeForm dateForm(std::initializer_list<const TreeLine *> lines, bool isDate)
{
    for (const TreeLine *line : lines) {
        if (line && TimeForm::of(line->content()).isDate() == isDate)
            return TimeForm::of(line->content());
    }
    return TimeForm(isDate ? TimeForm::Kind::Date : TimeForm::Kind::Utc);
}

/// DTSTART or DUE. False if it stays as it is.
bool setDate(TreeComponent &vtodo, const QByteArray &name, const OptionalTime &before, bool wasDate,
             const OptionalTime &after, bool isDate)
{
    if (!after || !after->isValid()) {
        if (!before)
            return false;
        vtodo.removeLines(name);
        return true;
    }
    if (isSameTime(before, after, isDate) && wasDate == isDate)
        return false;
    const TreeLine *old = vtodo.lastLine(name);
    const TreeLine *other = vtodo.lastLine(name == "DUE" ? "DTSTART" : "DUE");
    const TimeForm form = dateForm({ before ? old : nullptr, other }, isDate).naming(*after);
    if (form.value(*after).isEmpty())
        return false;
    vtodo.setLine(old ? form.lineAfter(old->content(), *after) : form.line(name, *after));
    return true;
}

/// In UTC whatever it was in. RFC 5545 §3.8.2.1.
void setCompleted(TreeComponent &vtodo, const OptionalTime &before, const OptionalTime &after)
{
    if (isSameTime(before, after, false))
        return;
    if (after && after->isValid())
        vtodo.setLine(TimeForm(TimeForm::Kind::Utc).line("COMPLETED", *after));
    else
        vtodo.removeLines("COMPLETED");
}

void setDates(TreeComponent &vtodo, const Task &before, const Task &task)
{
    const bool isStartChanged =
        setDate(vtodo, "DTSTART", before.startDate, before.startIsDateOnly, task.startDate, task.startIsDateOnly);
    const bool isDueChanged =
        setDate(vtodo, "DUE", before.dueDate, before.dueIsDateOnly, task.dueDate, task.dueIsDateOnly);
    // It must not stand beside DUE, nor without a start. RFC 5545 §3.8.2.5.
    if ((isDueChanged && task.dueDate) || (isStartChanged && !task.startDate))
        vtodo.removeLines("DURATION");
    setCompleted(vtodo, before.completedDate, task.completedDate);
}

bool isAllDay(const Task &task)
{
    return task.startDate ? task.startIsDateOnly : task.dueIsDateOnly;
}

/// Only the last of several lines is read.
void setCategories(TreeComponent &vtodo, const Task &before, const Task &task)
{
    QByteArrayList escaped;
    for (const QString &category : task.categories)
        escaped.append(textValue(category));
    escaped.removeAll(QByteArray());
    const QByteArray value = escaped.join(',');
    if (task.categories == before.categories || unescapedList(value) == before.categories)
        return;
    const TreeLine *last = vtodo.lastLine("CATEGORIES");
    if (!last || value.isEmpty())
        return ComponentPatch::setValue(vtodo, "CATEGORIES", value);
    vtodo.rewriteLines("CATEGORIES", [&](const TreeLine &line) {
        return std::optional(&line == last ? withValue(line.content(), value) : line.text());
    });
}

void setPrivate(TreeComponent &vtodo, const Task &before, const Task &task)
{
    const bool fromCompletion = task.repeatMode == u"fromCompletionDate";
    if (fromCompletion != (before.repeatMode == u"fromCompletionDate"))
        ComponentPatch::setValue(vtodo, "X-QUILLON-REPEAT-MODE", fromCompletion ? "fromCompletionDate" : "");
    const bool isReminder = task.itemType == u"reminder";
    if (isReminder != (before.itemType == u"reminder"))
        ComponentPatch::setValue(vtodo, "X-QUILLON-ITEM-TYPE", isReminder ? "reminder" : "");
    ComponentPatch::setNumber(vtodo, "X-QUILLON-SORT-ORDER", before.sortOrder, task.sortOrder);
}

/// A trigger needs a date that it hangs on: without one the reminders stay in the record alone.
void setReminders(TreeComponent &vtodo, const Task &task)
{
    const QByteArray trigger = task.dueDate ? "TRIGGER;RELATED=END" : "TRIGGER;RELATED=START";
    std::vector<TreeComponent> alarms;
    for (const Reminder &reminder : task.reminders)
        alarms.push_back(ComponentPatch::alarm(reminder, trigger, task.title));
    ComponentPatch::setAlarms(vtodo, std::move(alarms), &Alarm::taskReminder, task.dueDate || task.startDate);
}

}

void TaskPatch::apply(TreeComponent &vtodo, const Task &before, const Task &task)
{
    ComponentPatch::setText(vtodo, "SUMMARY", before.title, task.title);
    ComponentPatch::setWord(vtodo, "STATUS", before.status, task.status, Task().status);
    ComponentPatch::setNumber(vtodo, "PRIORITY", before.priority, task.priority);
    ComponentPatch::setNumber(vtodo, "PERCENT-COMPLETE", before.percentComplete, task.percentComplete);
    setDates(vtodo, before, task);
    ComponentPatch::setRule(vtodo, before.recurrenceRule, task.recurrenceRule, isAllDay(task),
                            isAllDay(task) != isAllDay(before));
    setCategories(vtodo, before, task);
    ComponentPatch::setParent(vtodo, ComponentPatch::Parent::Last, before.parentTaskUid, task.parentTaskUid);
    setPrivate(vtodo, before, task);
    ComponentPatch::setText(vtodo, "DESCRIPTION", before.description, task.description);
    setReminders(vtodo, task);
}
