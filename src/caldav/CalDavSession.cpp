#include "caldav/CalDavSession.h"

#include "app/state/AppState.h"
#include "caldav/SilenceGuard.h"
#include "models/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"

#include <utility>

CalDavSession::CalDavSession(AppState *state, const Calendar &calendar, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_calendarId(calendar.id)
    , m_calendarName(calendar.name)
    , m_accountId(calendar.accountId)
    , m_calendarUrl(calendar.url)
    , m_client(new CalDavClient(this))
    , m_guard(new SilenceGuard(m_client, this))
{
    // A server may be silent for minutes, and nobody waits for it any more.
    connect(state->accounts(), &AccountRepository::accountsChanged, this, [this] {
        if (isLive())
            return;
        m_guard->stop();
        m_client->abort();
        emit abandoned();
    });
}

bool CalDavSession::isLive() const
{
    const auto account = m_state->accounts()->getById(m_accountId);
    return account && account->enabled && m_state->calendars()->getById(m_calendarId);
}

CalDavClient::Callback CalDavSession::watched(int firstByteMs, CalDavClient::Callback next)
{
    return m_guard->guarded(firstByteMs, [this, next = std::move(next)](const CalDavClient::Response &response) {
        if (isLive())
            next(response);
        else
            emit abandoned();
    });
}
