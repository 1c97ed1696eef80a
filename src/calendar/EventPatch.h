#pragma once

#include "calendar/ICalTree.h"
#include "calendar/TimeForm.h"
#include "models/Event.h"

#include <QStringList>

#include <optional>

namespace EventPatch {

/// Writes over \p vevent what \p event says differently than \p before, which is its reading: no stamps.
/// \p series is the form in which the series of an override begins, if it is known.
void apply(ICal::TreeComponent &vevent, const Event &before, const Event &event, const std::optional<TimeForm> &series,
           const QStringList &ownAddresses);

} // namespace EventPatch
