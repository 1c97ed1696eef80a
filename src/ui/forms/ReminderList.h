#pragma once

#include "models/Reminder.h"

#include <QList>

namespace ReminderList {

/// Reminders with these offsets. One that \p before has already is kept with all it holds.
QList<Reminder> withMinutes(QList<Reminder> before, const QList<int> &minutesBefore);

} // namespace ReminderList
