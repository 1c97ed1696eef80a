#pragma once

#include "calendar/ICalTree.h"
#include "models/Event.h"

#include <QStringList>

/// Writes over a VEVENT who calls and who comes. RFC 5545 §3.8.4.
namespace PeoplePatch {

/// ORGANIZER, where it is another one or has another name than \p before, the reading of \p vevent.
void setOrganizer(ICal::TreeComponent &vevent, const Event &before, const Event &event);

/// A line for each attendee of \p event. Who is in both keeps the line with its further parameters, and the answer
/// that is there unless the address is one of \p ownAddresses. A name or kind that the event does not know stays.
void setAttendees(ICal::TreeComponent &vevent, const Event &before, const Event &event,
                  const QStringList &ownAddresses);

} // namespace PeoplePatch
