#pragma once

#include "calendar/EventDays.h"
#include "models/Event.h"

#include <QDateTime>
#include <QList>
#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcExpansion)

/// Turns stored rows into instances: series become occurrences, overrides take their place.
namespace EventExpansion {

/// Singles (not tested against the window), then each series' instances in order, then overrides that
/// replaced nothing, unless cancelled. Callers sort. An override only replaces an occurrence of the
/// same calendar.
QList<Event> expand(const QList<Event> &events, const QDateTime &from, const QDateTime &to);

/// What of the same instances shows in the days of \p span, by start. Spares a copy of each row, and of each
/// instance at the edges.
QList<Event> showIn(const EventDays::Span &span, const QList<const Event *> &events);

} // namespace EventExpansion
