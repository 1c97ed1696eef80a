#pragma once

#include "models/Calendar.h"

#include <QObject>
#include <QString>

class AppState;

/// Brings calendars of a CalDAV server and the local tables into step: for each a complete listing, then the pending
/// rows, one request at a time. Runs of several calendars go side by side; a second run of a calendar waits for the
/// first, whichever client has it.
class CalDavSyncClient : public QObject {
    Q_OBJECT

public:
    explicit CalDavSyncClient(AppState *state, QObject *parent = nullptr);
    ~CalDavSyncClient() override;

    /// Starts a run and returns at once. \p serverUrl is not used: the calendar's own address is what is spoken to.
    void syncCalendar(const Calendar &calendar, const QString &serverUrl, const QString &username,
                      const QString &password, const QString &trustedCertSha256);

signals:
    void calendarSyncStarted(const QString &calendarId);
    void calendarSyncProgress(const QString &calendarId, int count); ///< every 25 events
    /// \p count: events read and tasks stored.
    void calendarSyncCompleted(const QString &calendarId, int count);
    /// The end of a run, except for the notice that a task was rejected: then calendarSyncCompleted follows.
    void calendarSyncFailed(const QString &calendarId, const QString &message);

    /// Behind the last of these, when the run is over.
    void calendarSyncEnded(const QString &calendarId);

private:
    AppState *m_state;
};
