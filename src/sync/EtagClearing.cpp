#include "sync/EtagClearing.h"

#include "app/state/AppState.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"

namespace {

constexpr int RowidsPerSlice = 500;

}

EtagClearing::EtagClearing(AppState *state, const QStringList &calendarIds, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_calendarIds(calendarIds)
{
    m_slices.setInterval(0);
    connect(&m_slices, &QTimer::timeout, this, &EtagClearing::runSlice);
}

void EtagClearing::runSlice()
{
    if (m_calendarIds.isEmpty()) {
        m_slices.stop();
        emit finished();
        return;
    }
    const QString &id = m_calendarIds.first();
    const bool hasMore = m_isAtTasks ? m_state->tasks()->clearEtags(id, m_rowid, RowidsPerSlice)
                                     : m_state->events()->clearEtags(id, m_rowid, RowidsPerSlice);
    if (hasMore) {
        m_rowid += RowidsPerSlice;
        return;
    }
    m_rowid = 0;
    if (m_isAtTasks)
        m_calendarIds.removeFirst();
    m_isAtTasks = !m_isAtTasks;
}
