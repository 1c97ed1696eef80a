#pragma once

#include "calendar/services/RecurringEdits.h"
#include "models/Event.h"

#include <QList>
#include <QString>
#include <QStringList>

class AppState;

/// What takes a change of events back.
namespace EventUndo {

/// What a change touched.
struct Change {
    QList<Event> rows; ///< as they were; none of them got another UID or recurrence id
    RecurringEdits::SeriesSnapshot series; ///< of a change of the series as a whole
    QStringList addedIds; ///< rows that it made, or brought back
};

/// Puts the change on the undo stack, right after it was made. The undo deletes what was added, and gives the other rows their content
/// of before. What a sync learnt of a row in between stays (address, etag, sequence), and a row that a
/// sync has purged comes back as a new one. It is one transaction; what is in its way goes to
/// UndoStack::fail().
void push(AppState *state, const QString &summary, Change change);

} // namespace EventUndo
