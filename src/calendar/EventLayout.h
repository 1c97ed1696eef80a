#pragma once

#include "models/Event.h"

#include <QList>

/// Side-by-side placement of overlapping timed events. Knows no pixels and no days.
namespace EventLayout {

struct Placement {
    Event event;
    int column = 0; ///< from 0, within the cluster
    int columnCount = 1; ///< of the whole cluster
};

/// One placement for each event, sorted by start, then by end. Events that merely touch do not overlap;
/// all members of a cluster of overlapping events get the same column count.
QList<Placement> compute(QList<Event> events);

} // namespace EventLayout
