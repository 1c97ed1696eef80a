#pragma once

#include "models/Account.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

class AppState;
class Credentials;
class QTimer;

/// When accounts sync: at the start, each at its interval, soon after an edit, and when asked. Counts what is in
/// flight for AppState, and says what happened in words for the status bar.
class SyncScheduler : public QObject {
    Q_OBJECT

public:
    explicit SyncScheduler(AppState *state, QObject *parent = nullptr);
    ~SyncScheduler() override;

    /// From here on edits, the clock and the start-up start runs.
    void start();

    [[nodiscard]] Credentials *credentials() const { return m_credentials; }

public slots:
    /// Every enabled account; those of the CalDAV family look for new calendars first.
    void runSyncNow();
    /// The same: there is one round for all.
    void runSyncForAccount(const Account &account);
    /// Discards edits that never reached a server and reads everything anew. Asks nothing: the caller did.
    void runForceFullSync();
    void runPeriodicSyncTick();
    void runQueuedAutoSyncs();
    void scheduleCalendarSync(const QString &calendarId);

signals:
    void statusMessage(const QString &text, int timeoutMs); ///< 0: until the next one
    /// The state or last error of an account may have changed.
    void accountHealthChanged();

private:
    AppState *m_state;
    Credentials *m_credentials;
};
