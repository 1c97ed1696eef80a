#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

class AppState;

/// The one place that decides between 12 and 24 hours. Values are shown as given: callers convert
/// them to local time first.
namespace TimeFormat {

bool use24Hour(AppState *state);
QString eventTimeFormatString(AppState *state); ///< "HH:mm" or "h:mm AP"
QString formatTime(AppState *state, const QDateTime &value);
QString formatTime(AppState *state, QTime value);
/// Writes the setting if it has never been written: the clock that \p system shows. One without a language
/// ("C") has no habit of its own, and the default locale decides.
void initializeFromLocale(AppState *state, const QLocale &system = QLocale::system());

} // namespace TimeFormat
