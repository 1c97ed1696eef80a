#pragma once

#include <QString>

class AppState;

/// Whether a calendar takes writes.
namespace CalendarAccess {

/// Why nothing can be written to the calendar: it is read-only, or not there. A translated sentence for the
/// user; empty for a writable calendar.
QString refusal(AppState *state, const QString &calendarId);

} // namespace CalendarAccess
