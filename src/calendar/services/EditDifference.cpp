#include "calendar/services/EditDifference.h"

#include <algorithm>

namespace {

/// Takes the first reminder of \p minutes out of \p list. False if there is none.
bool takeOne(QList<Reminder> &list, int minutes)
{
    const auto found = std::ranges::find(list, minutes, &Reminder::minutesBefore);
    if (found == list.end())
        return false;
    list.erase(found);
    return true;
}

}

void EditDifference::carryReminders(const QList<Reminder> &shown, const QList<Reminder> &edited, QList<Reminder> &row)
{
    QList<Reminder> removed = shown;
    QList<Reminder> added;
    for (const Reminder &reminder : edited) {
        if (!takeOne(removed, reminder.minutesBefore))
            added.append(reminder);
    }
    for (const Reminder &reminder : std::as_const(removed))
        takeOne(row, reminder.minutesBefore);
    row += added;
}

bool EditDifference::isSameInPicker(const std::optional<QDateTime> &a, const std::optional<QDateTime> &b,
                                    bool isDateOnly)
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    if (isDateOnly)
        return a->date() == b->date();
    const QDateTime localA = a->toLocalTime();
    const QDateTime localB = b->toLocalTime();
    return localA.date() == localB.date() && localA.time().hour() == localB.time().hour()
        && localA.time().minute() == localB.time().minute();
}
