// What runs of sync report: whether any is at work, and how the last round ended.

#include "app/state/AppState.h"

#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"

#include <QTimer>

#include <array>

QSet<QString> AppState::syncableCalendarIds() const
{
    static constexpr std::array types{ AccountType::CalDAV, AccountType::ICloud, AccountType::Zoho, AccountType::Google,
                                       AccountType::Microsoft };
    if (!m_accounts || !m_calendars)
        return {};
    QSet<QString> accountIds;
    for (const Account &account : m_accounts->getAll()) {
        if (std::ranges::find(types, account.type) != types.end())
            accountIds.insert(account.id);
    }
    QSet<QString> ids;
    for (const Calendar &calendar : m_calendars->getAll()) {
        if (accountIds.contains(calendar.accountId))
            ids.insert(calendar.id);
    }
    return ids;
}

/// Only what waits in a calendar that can be pushed is a reason: rows of a local or failing one wait for ever.
void AppState::requestSyncOfEdits()
{
    if (isSyncing())
        return m_syncDebounce->start(); // what is at work now may take them along
    const QSet<QString> syncable = syncableCalendarIds();
    for (const QString &id : m_events->pendingCalendarIds() + m_tasks->pendingCalendarIds()) {
        if (syncable.contains(id) && (!m_isPushable || m_isPushable(id)))
            return emit syncNowRequested();
    }
}

void AppState::syncOpBegan()
{
    if (++m_syncBusyCount > 1)
        return;
    m_cycleErrored = false;
    emit syncBusyChanged(true);
}

void AppState::syncOpEnded(bool failed)
{
    if (m_syncBusyCount == 0)
        return;
    m_cycleErrored |= failed;
    if (--m_syncBusyCount > 0)
        return;
    if (m_lastSyncErrored != m_cycleErrored) {
        m_lastSyncErrored = m_cycleErrored;
        emit lastSyncErroredChanged(m_lastSyncErrored);
    }
    if (!m_lastSyncErrored) {
        m_lastSyncErrorMessage.clear();
        m_lastSyncErrorCalendar.clear();
    }
    emit syncBusyChanged(false);
}

void AppState::recordSyncError(const QString &calendar, const QString &message)
{
    m_lastSyncErrorCalendar = calendar;
    m_lastSyncErrorMessage = message;
}
