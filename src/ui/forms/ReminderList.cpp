#include "ui/forms/ReminderList.h"

#include <algorithm>

QList<Reminder> ReminderList::withMinutes(QList<Reminder> before, const QList<int> &minutesBefore)
{
    QList<Reminder> result;
    for (const int minutes : minutesBefore) {
        const auto kept = std::find_if(before.begin(), before.end(), [minutes](const Reminder &reminder) {
            return reminder.minutesBefore == minutes;
        });
        if (kept == before.end()) {
            Reminder fresh;
            fresh.minutesBefore = minutes;
            result.append(fresh);
        } else {
            result.append(*kept);
            before.erase(kept);
        }
    }
    return result;
}
