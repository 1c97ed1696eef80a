#pragma once

#include "models/Event.h"

#include <QString>

class AppState;

/// What surfaces write about an event, in the user's language and time format. All results are plain text;
/// titles and places come out on one line and cut to a length that can be measured quickly.
namespace EventText {

QString title(const Event &event); ///< "(Untitled)" if it has none
QString location(const Event &event);
/// "9:00 AM – 10:00 AM"; with weekdays for a timed event that spans dates. Not for all-day events.
QString timeLine(AppState *state, const Event &event);
/// Date and time, or the dates of an all-day event.
QString when(AppState *state, const Event &event);
/// Title, when, place and calendar, one a line.
QString toolTip(AppState *state, const Event &event);
/// One sentence for assistive technology.
QString sentence(AppState *state, const Event &event);
/// The label of an hour line.
QString hourLabel(AppState *state, int hour);

} // namespace EventText
