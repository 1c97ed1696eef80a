#pragma once

#include "calendar/ICalTree.h"
#include "models/Task.h"

namespace TaskPatch {

/// Writes over \p vtodo what \p task says differently than \p before, which is its reading: no stamps.
void apply(ICal::TreeComponent &vtodo, const Task &before, const Task &task);

} // namespace TaskPatch
