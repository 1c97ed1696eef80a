#include "app/state/DefaultCalendar.h"

#include "storage/PreferencesRepository.h"

QString DefaultCalendar::defaultKey(bool forTasks)
{
    return forTasks ? QStringLiteral("ui/defaultTaskCalendarId") : QStringLiteral("ui/defaultCalendarId");
}

QString DefaultCalendar::lastUsedKey(bool forTasks)
{
    return forTasks ? QStringLiteral("ui/lastUsedTaskCalendarId") : QStringLiteral("ui/lastUsedEventCalendarId");
}

QString DefaultCalendar::sentinel()
{
    return QStringLiteral("__last_used__");
}

QString DefaultCalendar::preferredCalendarId(PreferencesRepository *preferences, bool forTasks)
{
    const QString choice = preferences->get(defaultKey(forTasks), QString());
    return choice == sentinel() ? preferences->get(lastUsedKey(forTasks), QString()) : choice;
}

void DefaultCalendar::recordLastUsed(PreferencesRepository *preferences, bool forTasks, const QString &id)
{
    if (!id.isEmpty() && preferences->get(defaultKey(forTasks), QString()) == sentinel())
        preferences->set(lastUsedKey(forTasks), id);
}
