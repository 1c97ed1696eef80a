#include "storage/ChildRows.h"

#include "storage/Tables.h"

#include <algorithm>

namespace {

constexpr qint64 secondsPerMinute = 60;

void becomeDueAgain(Reminder &reminder)
{
    reminder.triggerTime.reset();
    reminder.acknowledged = false;
}

}

const ChildRows::Kind<Reminder> &ChildRows::eventReminders()
{
    static const Kind<Reminder> kind{ Tables::reminders(),
                                      "event_id",
                                      &Reminder::eventId,
                                      QStringLiteral(" ORDER BY minutes_before ASC"),
                                      "writeReminderRows delete failed:",
                                      "writeReminderRows insert failed:" };
    return kind;
}

const ChildRows::Kind<Reminder> &ChildRows::taskReminders()
{
    static const Kind<Reminder> kind{ Tables::taskReminders(),
                                      "task_id",
                                      &Reminder::taskId,
                                      QString(),
                                      "TaskRepository::writeReminders delete failed:",
                                      "TaskRepository::writeReminders insert failed:" };
    return kind;
}

bool ChildRows::writeReminders(Database *database, const Kind<Reminder> &kind, Owner owner, const QString &ownerId,
                               QList<Reminder> reminders, const QDateTime &anchor)
{
    for (Reminder &reminder : reminders) {
        if (reminder.action.isEmpty())
            reminder.action = Reminder().action;
        if (!reminder.triggerTime && anchor.isValid())
            reminder.triggerTime = anchor.addSecs(-reminder.minutesBefore * secondsPerMinute);
    }
    return write(database, kind, owner, ownerId, reminders);
}

void ChildRows::carryOver(QList<Reminder> &reminders, QList<Reminder> stored, bool anchorMoved)
{
    for (Reminder &reminder : reminders) {
        // A row that a sync has just read anew has no ids: then what it says tells which one it is.
        const auto same = std::ranges::find_if(stored, [&reminder](const Reminder &other) {
            if (!reminder.id.isEmpty())
                return other.id == reminder.id;
            return other.minutesBefore == reminder.minutesBefore && other.action == reminder.action;
        });
        const bool isKnown = same != stored.end();
        const bool isOtherLead = isKnown && same->minutesBefore != reminder.minutesBefore;
        if (isKnown)
            reminder.id = same->id;
        if (anchorMoved || isOtherLead) {
            becomeDueAgain(reminder);
        } else if (isKnown) {
            reminder.acknowledged = reminder.acknowledged || same->acknowledged;
            if (!reminder.triggerTime)
                reminder.triggerTime = same->triggerTime;
        }
        if (isKnown)
            stored.erase(same);
    }
}
