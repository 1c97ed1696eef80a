#include "caldav/RunQueue.h"

#include "app/state/AppState.h"
#include "caldav/CalDavSyncRun.h"

RunQueue::RunQueue(QObject *parent)
    : QObject(parent)
{
}

RunQueue *RunQueue::of(AppState *state)
{
    auto *queue = state->findChild<RunQueue *>(QString(), Qt::FindDirectChildrenOnly);
    return queue ? queue : new RunQueue(state);
}

void RunQueue::start(CalDavSyncRun *run)
{
    Line &line = m_lines[run->calendarId()];
    if (line.isBusy)
        line.waiting.append(run);
    else
        startNow(run);
}

bool RunQueue::hasWaiting(const QString &calendarId) const
{
    return !m_lines.value(calendarId).waiting.isEmpty();
}

void RunQueue::startNow(CalDavSyncRun *run)
{
    const QString id = run->calendarId();
    m_lines[id].isBusy = true;
    // A run is deleted when it has ended, or with the client that it belongs to.
    connect(run, &QObject::destroyed, this, [this, id] { onEnded(id); });
    run->start();
}

void RunQueue::onEnded(const QString &calendarId)
{
    Line &line = m_lines[calendarId];
    while (!line.waiting.isEmpty()) {
        if (CalDavSyncRun *next = line.waiting.takeFirst())
            return startNow(next);
    }
    m_lines.remove(calendarId);
}
