#include "models/Event.h"

#include <algorithm>

std::optional<int> Event::firstReminderMinutes() const
{
    const auto first = std::ranges::min_element(reminders, {}, &Reminder::minutesBefore);
    if (first == reminders.end())
        return std::nullopt;
    return first->minutesBefore;
}
