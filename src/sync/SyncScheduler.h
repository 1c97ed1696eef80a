#pragma once

#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/ChangeOrigin.h"
#include "sync/Credentials.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <optional>

class AppState;
class CalDavSyncClient;

/// When accounts sync: at the start, each at its interval, soon after an edit, and when asked. Counts what is in
/// flight for AppState, and says what happened in words for the status bar. Nothing is tried again by itself: the
/// next edit, interval or command is the next try.
class SyncScheduler : public QObject {
    Q_OBJECT

public:
    explicit SyncScheduler(AppState *state, QObject *parent = nullptr);

    /// From here on edits, the clock and the start-up start runs.
    void start();

    [[nodiscard]] Credentials *credentials() const { return m_credentials; }
    /// True if what waits in the calendar can go to its server now: an enabled account with its password, and no
    /// failure within the last minute.
    [[nodiscard]] bool canPush(const QString &calendarId) const;

    /// What the last look at an account, or the last run of a calendar, in this run of the program ended with; empty
    /// if that went well, or has not been.
    [[nodiscard]] QString failure(const QString &accountOrCalendarId) const;

    static bool isCalDavFamily(const Account &account);
    /// What Account::lastSyncError holds while there is no password.
    static QString passwordMissing();

public slots:
    /// Every enabled account; those of the CalDAV family look for new calendars first. May ask for the keyring.
    void runSyncNow();
    /// The same: there is one round for all.
    void runSyncForAccount(const Account &account);
    /// Discards edits of what a server knows and reads everything anew. The caller has asked the user.
    void runForceFullSync();
    void runPeriodicSyncTick();
    void runQueuedAutoSyncs();
    void scheduleCalendarSync(const QString &calendarId);

signals:
    void statusMessage(const QString &text, int timeoutMs); ///< 0: until the next one
    void failuresChanged();

private:
    struct Failure {
        QDateTime at; // UTC
        QString message;
    };

    void onChanged(ChangeOrigin origin);
    void onBusyChanged(bool busy);
    void repeatFailure();
    void runRound(Credentials::Unlock unlock);
    bool beginAccount(const QString &accountId, const QString &password);
    [[nodiscard]] bool hasWaiting(const QString &accountId) const;
    void finishRound(int startedAccounts);
    void discover(const Account &account, const QString &password);
    void noteRefusedCertificate(const QString &accountId, const QString &sha256);
    void syncAccount(const QString &accountId, const QString &password, const QString &discoveryFailure);
    void autoSync(const QString &calendarId, const QString &password);
    CalDavSyncClient *makeClient();
    void wire(CalDavSyncClient *client);
    void onFailed(const QString &calendarId, const QString &message, int timeoutMs);
    void noteEnd(const QString &accountOrCalendarId, const QString &failure);
    void notePassword(Account account, const QString &password);
    void say(const QString &text, int timeoutMs);
    void sayFailure(const QString &text, int timeoutMs);
    [[nodiscard]] std::optional<Account> accountOf(const QString &calendarId) const;
    [[nodiscard]] bool isResting(const QString &calendarId) const;

    AppState *m_state;
    Credentials *m_credentials;
    QTimer m_queue;
    QTimer m_tick;
    QSet<QString> m_pendingCalendars;
    QHash<QString, Failure> m_failures; // by calendar or account
    int m_syncedTotal = 0;
    QDeadlineTimer m_failureShown;
};
