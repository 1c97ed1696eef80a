#pragma once

#include "models/Event.h"

#include <QList>

/// Rows of a range without a copy of each: a record is large, and a week of a full calendar has thousands.
/// Valid until an event is written or another range is read.
struct EventSelection {
    QList<const Event *> rows;
    QList<Event> readNow; ///< holds those of the rows that nobody keeps
};
