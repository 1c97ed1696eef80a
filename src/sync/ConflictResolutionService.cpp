#include "sync/ConflictResolutionService.h"

#include "app/state/AppState.h"
#include "models/Constants.h"
#include "models/NewId.h"
#include "storage/EventRepository.h"

#include <algorithm>

using namespace Sync;

ConflictResolutionService::ConflictResolutionService(AppState *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
{
}

void ConflictResolutionService::recordConflict(const Event &local, const Event &remote)
{
    const auto isOfSameEvent = [&local](const EventConflict &conflict) { return conflict.local.id == local.id; };
    if (std::ranges::any_of(m_conflicts, isOfSameEvent))
        return;
    m_conflicts.append(
        { .id = newId(), .local = local, .remote = remote, .detectedAt = QDateTime::currentDateTimeUtc() });
    emit conflictsChanged();
}

void ConflictResolutionService::resolve(const QString &conflictId, ConflictResolution resolution)
{
    const auto found = std::ranges::find(m_conflicts, conflictId, &EventConflict::id);
    if (found == m_conflicts.end())
        return;
    const EventConflict conflict = *found;
    m_conflicts.erase(found);
    if (resolution == ConflictResolution::KeepLocal) {
        Event event = conflict.local;
        event.syncStatus = SyncStatus::Pending;
        event.lastModified = QDateTime::currentDateTimeUtc();
        m_state->events()->update(event);
    } else if (resolution == ConflictResolution::KeepServer) {
        Event event = conflict.remote;
        event.id = conflict.local.id;
        event.syncStatus = SyncStatus::Synced;
        m_state->events()->update(event);
    }
    emit conflictsChanged();
}

void ConflictResolutionService::clearAll()
{
    m_conflicts.clear();
    emit conflictsChanged();
}
