#include "sync/SyncScheduler.h"

#include "app/state/AppState.h"
#include "app/state/Platform.h"
#include "caldav/CalDavClient.h"
#include "caldav/CalDavDiscovery.h"
#include "caldav/CalDavRediscover.h"
#include "caldav/CalDavSyncClient.h"
#include "caldav/RunQueue.h"
#include "caldav/ServerAddress.h"
#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TaskRepository.h"
#include "sync/EtagClearing.h"

#include <QDebug>
#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr int QueueMs = 300;
constexpr int TickMs = 60'000;
constexpr int StartUpMs = 3000;
constexpr int RestSecs = 60;
constexpr int FailureMs = 6000;

bool isCloudOrFeed(const Account &account)
{
    return account.type == AccountType::Quillon || account.type == AccountType::Webcal;
}

QString nothingWaits()
{
    return SyncScheduler::tr("All caught up, nothing waiting to sync.");
}

QDateTime now()
{
    return QDateTime::currentDateTimeUtc();
}

}

SyncScheduler::SyncScheduler(AppState *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_credentials(new Credentials(this))
{
    m_queue.setSingleShot(true);
    m_queue.setInterval(QueueMs);
    connect(&m_queue, &QTimer::timeout, this, &SyncScheduler::runQueuedAutoSyncs);
    m_tick.setInterval(TickMs);
    connect(&m_tick, &QTimer::timeout, this, &SyncScheduler::runPeriodicSyncTick);
}

void SyncScheduler::start()
{
    const auto onChanged = [this](const QString &, ChangeOrigin origin) { this->onChanged(origin); };
    connect(m_state->events(), &EventRepository::eventsChanged, this, onChanged);
    connect(m_state->tasks(), &TaskRepository::tasksChanged, this, onChanged);
    connect(m_state, &AppState::syncBusyChanged, this, &SyncScheduler::onBusyChanged);
    connect(m_state, &AppState::syncNowRequested, this, [this] { runRound(Credentials::Unlock::Never); });
    m_state->setPushable([self = QPointer(this)](const QString &id) { return !self || self->canPush(id); });
    m_tick.start();
    QTimer::singleShot(StartUpMs, this, [this] { runRound(Credentials::Unlock::Never); });
}

bool SyncScheduler::isCalDavFamily(const Account &account)
{
    return account.type == AccountType::CalDAV || account.type == AccountType::ICloud
        || account.type == AccountType::Zoho;
}

QString SyncScheduler::passwordMissing()
{
    return tr("Password missing");
}

std::optional<Account> SyncScheduler::accountOf(const QString &calendarId) const
{
    const auto calendar = m_state->calendars()->getById(calendarId);
    return calendar ? m_state->accounts()->getById(calendar->accountId) : std::nullopt;
}

bool SyncScheduler::canPush(const QString &calendarId) const
{
    const auto account = accountOf(calendarId);
    return account && account->enabled && isCalDavFamily(*account) && account->lastSyncError != passwordMissing()
        && !isResting(calendarId);
}

QString SyncScheduler::failure(const QString &accountOrCalendarId) const
{
    return m_failures.value(accountOrCalendarId).message;
}

void SyncScheduler::noteEnd(const QString &accountOrCalendarId, const QString &failure)
{
    const bool isNews = m_failures.value(accountOrCalendarId).message != failure;
    if (failure.isEmpty())
        m_failures.remove(accountOrCalendarId);
    else
        m_failures.insert(accountOrCalendarId, { .at = now(), .message = failure });
    if (isNews)
        emit failuresChanged();
}

/// The signal names the calendar touched last; an edit may have touched several.
void SyncScheduler::onChanged(ChangeOrigin origin)
{
    if (origin != ChangeOrigin::User)
        return;
    const QStringList waiting = m_state->events()->pendingCalendarIds() + m_state->tasks()->pendingCalendarIds();
    for (const QString &calendarId : waiting)
        scheduleCalendarSync(calendarId);
}

void SyncScheduler::scheduleCalendarSync(const QString &calendarId)
{
    const auto account = accountOf(calendarId);
    // The product's cloud moves on a schedule of its own; a local calendar has nowhere to go.
    if (!account || account->type == AccountType::Quillon || isResting(calendarId))
        return;
    m_pendingCalendars.insert(calendarId);
    // What was edited during a run is pushed after it.
    if (!m_state->isSyncing())
        m_queue.start();
}

void SyncScheduler::onBusyChanged(bool busy)
{
    if (busy)
        return;
    if (!m_pendingCalendars.isEmpty())
        m_queue.start();
    // Behind what the last run says of itself.
    QMetaObject::invokeMethod(this, &SyncScheduler::repeatFailure, Qt::QueuedConnection);
}

/// What went well after a failure has taken its place.
void SyncScheduler::repeatFailure()
{
    const QString failure = m_state->lastSyncErrored() ? m_state->lastSyncErrorMessage() : QString();
    if (!failure.isEmpty() && m_failureShown.hasExpired())
        sayFailure(failure, FailureMs);
}

bool SyncScheduler::isResting(const QString &calendarId) const
{
    const auto failure = m_failures.constFind(calendarId);
    if (failure == m_failures.cend())
        return false;
    const qint64 secs = failure->at.secsTo(now());
    return secs >= 0 && secs < RestSecs;
}

void SyncScheduler::runQueuedAutoSyncs()
{
    const QSet<QString> ids = std::exchange(m_pendingCalendars, {});
    for (const QString &id : ids) {
        const auto account = accountOf(id);
        // The run before this one may have failed after the edit.
        if (!account || !account->enabled || account->type != AccountType::CalDAV || isResting(id)
            || RunQueue::of(m_state)->hasWaiting(id))
            continue;
        m_credentials->caldavPassword(account->id, Credentials::Unlock::Never, this,
                                      [this, id](const QString &password) { autoSync(id, password); });
    }
}

void SyncScheduler::autoSync(const QString &calendarId, const QString &password)
{
    const auto calendar = m_state->calendars()->getById(calendarId);
    const auto account = accountOf(calendarId);
    if (!account || !account->enabled)
        return;
    notePassword(*account, password);
    if (password.isEmpty()) {
        qInfo().noquote() << "[AutoSync] skip — no password for account" << account->name << "(" << account->id << ")";
        return;
    }
    CalDavSyncClient *client = makeClient();
    connect(client, &CalDavSyncClient::calendarSyncCompleted, this, [this](const QString &, int count) {
        if (count > 0)
            say(tr("Synced %1 events").arg(count), 3000);
    });
    connect(client, &CalDavSyncClient::calendarSyncFailed, this,
            [this](const QString &id, const QString &message) { onFailed(id, message, 5000); });
    // A notice of a rejected task is no end: the run completes after it.
    connect(client, &CalDavSyncClient::calendarSyncEnded, client, &QObject::deleteLater);
    client->syncCalendar(*calendar, account->serverUrl, account->username, password, account->trustedCertSha256);
}

void SyncScheduler::runPeriodicSyncTick()
{
    const QList<Account> accounts = m_state->accounts()->getAll();
    const bool isDue = std::ranges::any_of(accounts, [](const Account &account) {
        if (!account.enabled || account.syncIntervalMinutes <= 0 || isCloudOrFeed(account))
            return false;
        // A time to come was written before the clock was put right.
        const qint64 ageSecs = account.lastSyncTime ? account.lastSyncTime->secsTo(now()) : -1;
        return ageSecs < 0 || ageSecs >= qint64(account.syncIntervalMinutes) * 60;
    });
    if (isDue)
        runRound(Credentials::Unlock::Never);
}

void SyncScheduler::runSyncNow()
{
    m_failureShown = {}; // who asks again has read it
    runRound(Credentials::Unlock::MayAsk);
}

void SyncScheduler::runSyncForAccount(const Account &)
{
    runSyncNow();
}

void SyncScheduler::runRound(Credentials::Unlock unlock)
{
    m_syncedTotal = 0;
    QList<Account> accounts;
    for (Account &account : m_state->accounts()->getAll()) {
        if (!account.enabled || isCloudOrFeed(account))
            continue;
        account.lastSyncTime = now();
        account.updatedAt = now();
        m_state->accounts()->update(account);
        if (isCalDavFamily(account))
            accounts.append(account);
    }
    if (accounts.isEmpty())
        return finishRound(0);
    struct Lookups {
        qsizetype open;
        int started = 0;
    };
    const auto lookups = std::make_shared<Lookups>(Lookups{ .open = accounts.size() });
    for (const Account &account : std::as_const(accounts)) {
        m_credentials->caldavPassword(account.id, unlock, this,
                                      [this, id = account.id, lookups, unlock](const QString &password) {
                                          // Rounds of the clock must not pile up before a server that hangs.
                                          const bool isQueued = unlock == Credentials::Unlock::Never && hasWaiting(id);
                                          lookups->started += isQueued || beginAccount(id, password);
                                          if (--lookups->open == 0)
                                              finishRound(lookups->started);
                                      });
    }
}

bool SyncScheduler::hasWaiting(const QString &accountId) const
{
    const QList<Calendar> calendars = m_state->calendars()->getByAccount(accountId);
    return std::ranges::any_of(calendars, [queue = RunQueue::of(m_state)](const Calendar &calendar) {
        return queue->hasWaiting(calendar.id);
    });
}

/// False if there is nothing to do with it.
bool SyncScheduler::beginAccount(const QString &accountId, const QString &password)
{
    const auto account = m_state->accounts()->getById(accountId);
    if (!account || !account->enabled)
        return false;
    notePassword(*account, password);
    if (password.isEmpty()) {
        qInfo().noquote() << "[Sync] Skipping account" << account->name << "— no password in keyring for"
                          << Platform::tokenStoreAppId();
        return false;
    }
    discover(*account, password);
    return true;
}

void SyncScheduler::finishRound(int startedAccounts)
{
    if (startedAccounts > 0)
        return say(tr("Syncing %1 account(s)…").arg(startedAccounts), 0);
    const QList<Account> accounts = m_state->accounts()->getAll();
    const bool hasAny = std::ranges::any_of(accounts, [](const Account &account) {
        return account.enabled && account.type != AccountType::ICloud && account.type != AccountType::Zoho
            && account.id != LocalDefaults::LocalAccountId && account.id != LocalDefaults::SampleAccountId;
    });
    say(hasAny ? nothingWaits() : tr("No sync accounts configured. Add one in Calendar Accounts."), 5000);
}

void SyncScheduler::discover(const Account &account, const QString &password)
{
    auto *client = new CalDavClient(this);
    client->setCredentials(account.username, password);
    client->setTrustedCertSha256(account.trustedCertSha256);
    auto *discovery = new CalDavDiscovery(client, client);
    const auto goOn = [this, client, id = account.id, password](const QString &failure) {
        client->deleteLater();
        syncAccount(id, password, failure);
    };
    connect(discovery, &CalDavDiscovery::completed, this,
            [this, id = account.id, goOn](const QList<CalDavParse::DiscoveredCalendar> &calendars) {
                noteEnd(id, {});
                const auto current = m_state->accounts()->getById(id);
                const int inserted = current && current->enabled
                    ? CalDavRediscover::upsertDiscoveredCalendars(m_state, id, calendars)
                    : 0;
                if (inserted > 0)
                    say(tr("Discovered %n new calendar(s).", nullptr, inserted), 4000);
                noteRefusedCertificate(id, {});
                goOn({});
            });
    connect(discovery, &CalDavDiscovery::failed, this, [this, client, id = account.id, goOn](const QString &message) {
        qWarning().noquote() << "[Sync] Rediscovery skipped:" << message;
        noteEnd(id, message);
        if (client->hasPendingUntrustedCert())
            noteRefusedCertificate(id, client->pendingUntrustedCert().sha256);
        goOn(message);
    });
    discovery->start(QUrl(ServerAddress::read(account.serverUrl).url));
}

/// The accounts dialog tells of it, and shows it beside the one that was trusted. Empty: it was that of somebody in
/// between, as of a hotel's sign-in page, and the server shows its own again.
void SyncScheduler::noteRefusedCertificate(const QString &accountId, const QString &sha256)
{
    auto account = m_state->accounts()->getById(accountId);
    if (!account || account->pendingCertSha256 == sha256)
        return;
    account->pendingCertSha256 = sha256;
    account->updatedAt = now();
    m_state->accounts()->update(*account);
}

/// A failed discovery does not stop the calendars that are known. Without any it is what there is to tell.
void SyncScheduler::syncAccount(const QString &accountId, const QString &password, const QString &discoveryFailure)
{
    const auto account = m_state->accounts()->getById(accountId);
    const QList<Calendar> calendars = m_state->calendars()->getByAccount(accountId);
    if (!account || !account->enabled)
        return say({}, 0); // it was counted as syncing
    if (calendars.isEmpty())
        return discoveryFailure.isEmpty() ? say(nothingWaits(), 5000) : sayFailure(discoveryFailure, FailureMs);
    CalDavSyncClient *client = makeClient();
    const auto remaining = std::make_shared<qsizetype>(calendars.size());
    connect(client, &CalDavSyncClient::calendarSyncCompleted, this, [this](const QString &, int count) {
        m_syncedTotal += count;
        say(tr("Synced %1 events").arg(m_syncedTotal), 4000);
    });
    connect(client, &CalDavSyncClient::calendarSyncFailed, this,
            [this](const QString &id, const QString &message) { onFailed(id, message, FailureMs); });
    connect(client, &CalDavSyncClient::calendarSyncEnded, client, [client, remaining] {
        if (--*remaining == 0)
            client->deleteLater();
    });
    for (const Calendar &calendar : calendars)
        client->syncCalendar(calendar, account->serverUrl, account->username, password, account->trustedCertSha256);
}

CalDavSyncClient *SyncScheduler::makeClient()
{
    auto *client = new CalDavSyncClient(m_state, this);
    wire(client);
    connect(client, &CalDavSyncClient::calendarSyncCompleted, this, [this](const QString &id) { noteEnd(id, {}); });
    return client;
}

/// Counts the runs of \p client for AppState. A client that goes with runs open leaves nothing busy behind.
void SyncScheduler::wire(CalDavSyncClient *client)
{
    const auto open = std::make_shared<QSet<QString>>(); // calendars
    connect(client, &CalDavSyncClient::calendarSyncStarted, m_state, [state = m_state, open](const QString &id) {
        open->insert(id);
        state->syncOpBegan();
    });
    // The client may outlive this by a little. A run may complete after the notice that ended it here.
    connect(client, &CalDavSyncClient::calendarSyncCompleted, m_state, [state = m_state, open](const QString &id) {
        if (open->remove(id))
            state->syncOpEnded(false);
    });
    connect(client, &CalDavSyncClient::calendarSyncFailed, m_state,
            [state = m_state, open](const QString &id, const QString &message) {
                if (!open->remove(id))
                    return;
                state->recordSyncError(id, message);
                state->syncOpEnded(true);
            });
    connect(client, &QObject::destroyed, m_state, [state = m_state, open] {
        for (qsizetype left = open->size(); left > 0; --left)
            state->syncOpEnded(true);
    });
}

void SyncScheduler::onFailed(const QString &calendarId, const QString &message, int timeoutMs)
{
    noteEnd(calendarId, message);
    sayFailure(message, timeoutMs);
}

/// An account of this family has no other error of its own. It may have been written in another language.
void SyncScheduler::notePassword(Account account, const QString &password)
{
    const QString error = password.isEmpty() ? passwordMissing() : QString();
    if (account.lastSyncError == error)
        return;
    account.lastSyncError = error;
    account.updatedAt = now();
    m_state->accounts()->update(account);
}

void SyncScheduler::runForceFullSync()
{
    m_failureShown = {};
    const SyncWrites origin(m_state->database()); // what is discarded has nowhere to go
    int discarded = 0;
    int cleared = 0;
    QStringList toReadAnew;
    for (Calendar &calendar : m_state->calendars()->getAll()) {
        const auto account = m_state->accounts()->getById(calendar.accountId);
        const bool canSync =
            account && account->enabled && isCalDavFamily(*account) && account->lastSyncError != passwordMissing();
        if (canSync) {
            discarded += std::max(m_state->events()->discardEdits(calendar.id), 0);
            discarded += std::max(m_state->tasks()->discardEdits(calendar.id), 0);
            toReadAnew.append(calendar.id);
        }
        if (calendar.ctag.isEmpty() && calendar.syncToken.isEmpty() && calendar.deltaSyncToken.isEmpty())
            continue;
        calendar.ctag.clear();
        calendar.syncToken.clear();
        calendar.deltaSyncToken.clear();
        calendar.updatedAt = now();
        cleared += m_state->calendars()->update(calendar);
    }
    if (discarded > 0)
        qInfo() << "[ForceFullSync] Discarded" << discarded << "unsynced local edit(s) so the server's copy can win.";
    for (Account &account : m_state->accounts()->getAll()) {
        if (!account.lastSyncTime)
            continue;
        account.lastSyncTime.reset();
        account.updatedAt = now();
        m_state->accounts()->update(account);
    }
    m_state->preferences()->remove(QStringLiteral("config/sync/since"));
    say(tr("Cleared %n calendar sync token(s), running full sync…", nullptr, cleared), 4000);
    auto *clearing = new EtagClearing(m_state, toReadAnew, this);
    connect(clearing, &EtagClearing::finished, this, [this, clearing] {
        clearing->deleteLater();
        runSyncNow();
    });
    clearing->start();
}

/// Good news does not hide bad news while that is to be read.
void SyncScheduler::say(const QString &text, int timeoutMs)
{
    if (m_failureShown.hasExpired())
        emit statusMessage(text, timeoutMs);
}

void SyncScheduler::sayFailure(const QString &text, int timeoutMs)
{
    m_failureShown.setRemainingTime(timeoutMs);
    emit statusMessage(text, timeoutMs);
}
