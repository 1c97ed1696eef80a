#pragma once

#include "models/Event.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// The times of events between the clock that a person sees and the one that is stored.
namespace EventTimes {

/// Gives the event these times, whichever clock they come from, as it stores them: instants in the zone of its
/// \c timezone, in UTC where that is no zone, on the machine's clock where it floats. Of an all-day event their dates
/// at 00:00 UTC, for a day at least.
void set(Event &event, const QDateTime &start, std::optional<QDateTime> end);

/// True for a timed series that says "UTC" for want of a zone: its instances would move when clocks change.
bool lacksZone(const Event &event);

/// True for a stored event that keeps to the machine's clock, whichever that is: its text names no zone, or none that
/// is known.
bool floats(const Event &event);

/// Where a series must start for its instance at \p occurrence to begin at \p target: as many days before it
/// on the clock of \p target as \p start lies before \p occurrence on its own, at the same hour as \p target.
QDateTime seriesStart(const QDateTime &start, const QDateTime &occurrence, const QDateTime &target);

/// Seconds from start to end. Without an end an instance of a series lasts an hour, as expansion has it.
qint64 durationSecs(const Event &event);

/// Why the event cannot be stored with these times, translated; empty if it can.
QString problem(const Event &event);

/// Why nothing would be left of a series: its rule ends before it begins. Translated; empty if that is not so.
QString problemOfSeries(const Event &event);

} // namespace EventTimes
