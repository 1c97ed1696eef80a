#pragma once

#include "calendar/services/RecurringEdits.h"
#include "models/Event.h"

#include <QDateTime>
#include <QString>

class AppState;

/// The writes that a person asks of an event, whichever surface asked. Each starts from the row as it is
/// stored now, changes only what the person changed, marks it pending, and pushes what takes it back onto
/// AppState::undoStack(). Each is one transaction. A calendar that takes no writes refuses them all.
///
/// Times may come on any clock. They are stored as instants, in the event's zone: a new series, and one in
/// "UTC" whose rule or start changes, takes the machine's, so that its hour stays when clocks change. Of
/// all-day events the dates count, and the end is exclusive here as everywhere.
namespace EventEdits {

using Scope = RecurringEdits::Scope;

/// What came of it. \c why is a translated sentence for the user. Where there was nothing to do, nothing is
/// written and nothing can be taken back.
struct Outcome {
    bool ok = false;
    QString id; ///< of the row that now holds the event; of a series, the occurrence or tail that was split off
    QString why; ///< said when the write was refused or failed
    bool isFailure = false; ///< it failed, and nothing that the user enters will mend it
};

/// True for an event of a calendar that takes no writes, or of none.
bool isReadOnly(AppState *state, const Event &event);
/// "Team" is read-only: what a surface says when it refuses.
QString readOnlyText(AppState *state, const Event &event);

/// A copy of \p stored to show: of a series, the occurrence that begins at \p occurrenceStart (with
/// its recurrenceId, and the duration kept); else the event itself. Never to be written back.
Event shownAt(const Event &stored, const QDateTime &occurrenceStart);

/// Stores a new event; fills id, uid, zone, time stamps and stored text.
Outcome create(AppState *state, const Event &event);

/// Stores what differs between \p shown (as the form was filled, from shownAt()) and \p edited. A time counts
/// as changed if a picker shows it otherwise, to the minute.
///
/// Of a series the times are a difference on the wall clock, so that editing a late occurrence does not move the
/// series there, and overrides and exception dates go along. A rule taken away leaves the event shown.
/// Another calendarId moves the event, as a new one to both servers; a series goes as a whole, whichever row
/// of it was shown. A row that has gone meanwhile comes back.
Outcome save(AppState *state, const Event &shown, const Event &edited);

/// Moves by whole days, then minutes, on the local clock; keeps the duration. An all-day event moves by days
/// alone. Occurrence and scope matter to series only.
Outcome move(AppState *state, const QString &id, const QDateTime &occurrenceStart, int days, int minutes,
             Scope scope = Scope::All);

/// Makes the event end \p minutes later or earlier, but not before 15 minutes have passed. Leaves all-day
/// events alone.
Outcome resize(AppState *state, const QString &id, const QDateTime &occurrenceStart, int minutes,
               Scope scope = Scope::All);

/// Deletes a single event, one override (the series then shows its own instance again), or a whole series
/// with its overrides.
Outcome remove(AppState *state, const QString &id);

} // namespace EventEdits
