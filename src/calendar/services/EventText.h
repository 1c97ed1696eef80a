#pragma once

#include "models/Event.h"

#include <QString>

class AppState;

/// What surfaces, popovers and forms write about an event, in the user's language and time format. All results are
/// plain text; titles and places come out on one line and cut to a length that can be measured quickly.
namespace EventText {

QString title(const Event &event); ///< "(Untitled)" if it has none
QString location(const Event &event);
/// A name of any kind for a menu or a button: one line of at most 40 characters.
QString shortName(const QString &name);
/// "9:00 AM – 10:00 AM"; with weekdays for a timed event that spans dates. Not for all-day events.
/// \p timePattern is TimeFormat::eventTimeFormatString(), which painters keep: reading it is a query.
QString timeLine(const Event &event, const QString &timePattern);
/// The start alone, for where the line is too long.
QString startTime(const Event &event, const QString &timePattern);
/// Date and time, or the dates of an all-day event.
QString when(const Event &event, const QString &timePattern);
/// Title, when, place and calendar, one a line.
QString toolTip(AppState *state, const Event &event);
/// One sentence for assistive technology.
QString sentence(AppState *state, const Event &event);
/// The pattern of the labels at hour lines.
QString hourPattern(AppState *state);

} // namespace EventText
