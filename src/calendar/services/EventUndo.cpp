#include "calendar/services/EventUndo.h"

#include "app/state/AppState.h"
#include "app/state/UndoStack.h"
#include "calendar/services/CalendarAccess.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"

#include <QCoreApplication>
#include <QSet>

namespace {

using EventUndo::Change;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventUndo)
};

/// The row that holds the event now, deleted or not. After a purge a sync may have stored it anew.
std::optional<Event> rowOf(EventRepository *repository, const Event &before)
{
    const auto row = repository->getById(before.id);
    return row ? row : repository->getByUidAndRecurrenceId(before.uid, before.calendarId, before.recurrenceId);
}

Event withContentOf(const Event &before, const Event &row)
{
    Event restored = before;
    restored.id = row.id;
    restored.providerEventId = row.providerEventId;
    restored.etag = row.etag;
    restored.href = row.href;
    restored.sequence = row.sequence;
    restored.syncStatus = SyncStatus::Pending;
    return restored;
}

QString refusal(AppState *state, const Change &change)
{
    QSet<QString> calendarIds;
    for (const Event &before : change.rows + change.series.rows)
        calendarIds.insert(before.calendarId);
    for (const QString &id : change.addedIds) {
        if (const auto row = state->events()->getById(id); row && !row->deletedAt)
            calendarIds.insert(row->calendarId);
    }
    for (const QString &id : std::as_const(calendarIds)) {
        if (const QString why = CalendarAccess::refusal(state, id); !why.isEmpty())
            return why;
    }
    return {};
}

bool restore(EventRepository *repository, const Event &before)
{
    const auto row = rowOf(repository, before);
    if (!row)
        return repository->restoreDeleted(before);
    const Event restored = withContentOf(before, *row);
    return row->deletedAt ? repository->restoreDeleted(restored) : repository->update(restored);
}

bool takeBack(AppState *state, const Change &change)
{
    EventRepository *repository = state->events();
    Savepoint savepoint(state->database());
    if (!savepoint.isActive())
        return false;
    for (const QString &id : change.addedIds) {
        const auto row = repository->getById(id);
        if (row && !row->deletedAt && !repository->remove(id))
            return false;
    }
    for (const Event &before : change.rows) {
        if (!restore(repository, before))
            return false;
    }
    if (!change.series.rows.isEmpty() && !RecurringEdits::restore(repository, change.series))
        return false;
    return savepoint.commit();
}

}

void EventUndo::push(AppState *state, const QString &summary, Change change)
{
    RecurringEdits::noteAdded(state->events(), change.series);
    UndoStack *stack = state->undoStack();
    stack->push({ .summary = summary, .undo = [state, stack, change] {
                     if (const QString why = refusal(state, change); !why.isEmpty())
                         stack->fail(why);
                     else if (!takeBack(state, change))
                         stack->fail(Tr::tr("The change could not be taken back."));
                 } });
}
