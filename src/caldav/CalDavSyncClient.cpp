#include "caldav/CalDavSyncClient.h"

#include "app/state/AppState.h"
#include "caldav/CalDavSyncRun.h"
#include "caldav/RunQueue.h"

CalDavSyncClient::CalDavSyncClient(AppState *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
{
}

CalDavSyncClient::~CalDavSyncClient() = default;

void CalDavSyncClient::syncCalendar(const Calendar &calendar, const QString & /*serverUrl*/, const QString &username,
                                    const QString &password, const QString &trustedCertSha256)
{
    auto *run = new CalDavSyncRun(m_state, calendar, this);
    run->setCredentials(username, password, trustedCertSha256);
    const QString id = calendar.id;
    connect(run, &CalDavSyncRun::progressed, this, [this, id](int count) { emit calendarSyncProgress(id, count); });
    connect(run, &CalDavSyncRun::taskRejected, this,
            [this, id](const QString &message) { emit calendarSyncFailed(id, message); });
    connect(run, &CalDavSyncRun::completed, this, [this, run, id](int count) {
        run->deleteLater();
        emit calendarSyncCompleted(id, count);
        emit calendarSyncEnded(id);
    });
    connect(run, &CalDavSyncRun::failed, this, [this, run, id](const QString &message) {
        run->deleteLater();
        emit calendarSyncFailed(id, message);
        emit calendarSyncEnded(id);
    });
    emit calendarSyncStarted(id);
    RunQueue::of(m_state)->start(run);
}
