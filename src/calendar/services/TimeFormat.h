#pragma once

#include <QDateTime>
#include <QString>

class AppState;

/// The one place that decides between 12 and 24 hours. Values are shown as given: callers convert
/// them to local time first.
namespace TimeFormat {

bool use24Hour(AppState *state);
QString eventTimeFormatString(AppState *state); ///< "HH:mm" or "h:mm AP"
QString formatTime(AppState *state, const QDateTime &value);
QString formatTime(AppState *state, QTime value);
/// Writes the setting from the chosen language's habit if it has never been written.
void initializeFromLocale(AppState *state);

} // namespace TimeFormat
