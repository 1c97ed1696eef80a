#pragma once

#include <QString>

class PreferencesRepository;

/// Which calendar a new event or task goes to.
namespace DefaultCalendar {

QString defaultKey(bool forTasks); ///< settings key of the user's choice
QString lastUsedKey(bool forTasks);
/// The choice "the one used last".
QString sentinel();
/// May be empty: the form then picks by a rule of its own.
QString preferredCalendarId(PreferencesRepository *preferences, bool forTasks);
/// Remembers the calendar of a new item, while the choice is "the one used last".
void recordLastUsed(PreferencesRepository *preferences, bool forTasks, const QString &id);

} // namespace DefaultCalendar
