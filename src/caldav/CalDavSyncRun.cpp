#include "caldav/CalDavSyncRun.h"

#include "app/state/AppState.h"
#include "caldav/CalDavLog.h"
#include "caldav/CalDavParse.h"
#include "caldav/CalDavSession.h"
#include "caldav/CalDavXml.h"
#include "caldav/CalendarPush.h"
#include "caldav/SilenceGuard.h"
#include "caldav/SyncTable.h"
#include "models/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/ChangeOrigin.h"
#include "storage/TaskRepository.h"

#include <functional>
#include <utility>

namespace {

constexpr int Forbidden = 403;

}

CalDavSyncRun::CalDavSyncRun(AppState *state, const Calendar &calendar, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_calendar(calendar)
    , m_session(new CalDavSession(state, calendar, this))
    , m_events(SyncTable::events(state, calendar.id))
    , m_tasks(SyncTable::tasks(state, calendar.id))
{
    connect(m_session, &CalDavSession::abandoned, this, &CalDavSyncRun::end);
}

CalDavSyncRun::~CalDavSyncRun() = default;

void CalDavSyncRun::setCredentials(const QString &username, const QString &password, const QString &trustedCertSha256)
{
    m_session->client()->setCredentials(username, password);
    m_session->client()->setTrustedCertSha256(trustedCertSha256);
}

void CalDavSyncRun::start()
{
    // It may have waited for another run.
    if (!m_session->isLive()) {
        QMetaObject::invokeMethod(this, &CalDavSyncRun::end, Qt::QueuedConnection);
        return;
    }
    qCDebug(caldavLog).noquote() << "[CalDav] sync of" << m_calendar.name << "id=" << m_calendar.id;
    m_session->client()->propfind(
        m_session->calendarUrl(), CalDavXml::ctagBody(), 0,
        m_session->watched(SilenceGuard::SilenceMs, std::bind_front(&CalDavSyncRun::onCtag, this)));
}

void CalDavSyncRun::onCtag(const CalDavClient::Response &response)
{
    if (!response.error.isEmpty())
        return fail(tr("Network error: %1").arg(response.error));
    if (!response.isSuccess())
        return fail(tr("Server returned HTTP %1 during ctag check").arg(response.status));
    m_newCtag = CalDavParse::parseCtag(response.body).value_or(QString());
    runPull();
}

void CalDavSyncRun::runPull()
{
    m_pull =
        new CalendarPull(m_session, m_events.get(), QStringLiteral("VEVENT"), CalendarPull::MissingText::Fetch, this);
    connect(m_pull, &CalendarPull::progressed, this, &CalDavSyncRun::progressed);
    connect(m_pull, &CalendarPull::refused, this, &CalDavSyncRun::onEventsRefused);
    connect(m_pull, &CalendarPull::finished, this, &CalDavSyncRun::onEventsPulled);
    m_pull->start();
}

void CalDavSyncRun::onEventsRefused(const QString &error, int status)
{
    if (!error.isEmpty())
        fail(tr("Network error: %1").arg(error));
    else
        fail(tr("Server returned HTTP %1").arg(status));
}

void CalDavSyncRun::onEventsPulled()
{
    m_count = m_pull->readCount();
    m_listing = m_pull->takeListing();
    if (m_pull->removedCount() > 0)
        qCInfo(caldavLog).noquote() << "[CalDav] Pull removed" << m_pull->removedCount()
                                    << "server-deleted event(s) for" << m_calendar.name;
    if (m_pull->shortfall().isEmpty())
        saveCalendar(m_pull->hasChanged());
    else
        noteFailure(tr("Network error: %1").arg(m_pull->shortfall()));
    std::exchange(m_pull, nullptr)->deleteLater();
    runPush();
}

/// Onto the row as it is now: the user may have renamed it meanwhile. A run that finds nothing new writes nothing,
/// although our own pushes gave the calendar another ctag.
void CalDavSyncRun::saveCalendar(bool hasChanged)
{
    auto calendar = m_state->calendars()->getById(m_calendar.id);
    if (!calendar)
        return;
    const bool isNew = !m_newCtag.isEmpty() && m_newCtag != calendar->ctag && (hasChanged || calendar->ctag.isEmpty());
    if (!isNew && calendar->lastSyncError.isEmpty())
        return;
    if (isNew)
        calendar->ctag = m_newCtag;
    calendar->lastSyncError.clear();
    calendar->updatedAt = QDateTime::currentDateTimeUtc();
    m_state->calendars()->update(*calendar);
}

void CalDavSyncRun::runPush()
{
    startPush(m_events.get(), false, &CalDavSyncRun::onEventsPushed);
}

void CalDavSyncRun::onEventsPushed()
{
    noteFailure(m_push->firstRefusal());
    std::exchange(m_push, nullptr)->deleteLater();
    const auto calendar = m_state->calendars()->getById(m_calendar.id);
    if (calendar && calendar->supportsTasks())
        runTaskPull();
    else
        runTaskPush();
}

void CalDavSyncRun::runTaskPull()
{
    m_pull =
        new CalendarPull(m_session, m_tasks.get(), QStringLiteral("VTODO"), CalendarPull::MissingText::Leave, this);
    connect(m_pull, &CalendarPull::refused, this, &CalDavSyncRun::onTasksRefused);
    connect(m_pull, &CalendarPull::finished, this, &CalDavSyncRun::onTasksPulled);
    m_pull->start();
}

void CalDavSyncRun::onTasksRefused(const QString &error, int status)
{
    if (!error.isEmpty())
        return fail(tr("Network error during task pull: %1").arg(error));
    // How a server without tasks says so.
    qInfo() << "Task pull skipped (HTTP" << status << ") for" << m_calendar.id;
    std::exchange(m_pull, nullptr)->deleteLater();
    runTaskPush();
}

void CalDavSyncRun::onTasksPulled()
{
    m_count += m_pull->readCount();
    m_listing = m_pull->takeListing();
    if (m_pull->removedCount() > 0)
        qInfo().noquote() << "[CalDav] Task pull removed" << m_pull->removedCount() << "server-deleted task(s) for"
                          << m_calendar.name;
    if (m_pull->missingCount() > 0)
        qWarning().noquote()
            << "[CalDav]" << m_calendar.name << "task REPORT returned" << m_pull->resourceCount()
            << "resources without inline data for all of them; skipping deletion reconciliation rather "
               "than removing tasks the server never described. Tasks on this server need the "
               "calendar-multiget fallback the event pull has.";
    if (!m_pull->shortfall().isEmpty())
        noteFailure(tr("Network error during task pull: %1").arg(m_pull->shortfall()));
    std::exchange(m_pull, nullptr)->deleteLater();
    runTaskPush();
}

void CalDavSyncRun::runTaskPush()
{
    startPush(m_tasks.get(), true, &CalDavSyncRun::onTasksPushed);
}

void CalDavSyncRun::onTasksPushed()
{
    noteFailure(m_push->firstRefusal());
    std::exchange(m_push, nullptr)->deleteLater();
    end();
}

void CalDavSyncRun::startPush(SyncTable *table, bool isForTasks, void (CalDavSyncRun::*next)())
{
    CalendarPush::Policy policy;
    if (isForTasks) {
        policy.isForTasks = true;
        policy.onRefusal = std::bind_front(&CalDavSyncRun::rejectTask, this);
        policy.networkMessage = [](const QString &error) { return tr("Task push error: %1").arg(error); };
        policy.statusMessage = [](int status, const QString &title) {
            return tr("Server returned HTTP %1 pushing task \"%2\"").arg(QString::number(status), title);
        };
    } else {
        policy.networkMessage = [](const QString &error) { return tr("Push error: %1").arg(error); };
        policy.statusMessage = [](int status, const QString &title) {
            return tr("Server returned HTTP %1 pushing \"%2\"").arg(QString::number(status), title);
        };
    }
    m_push = new CalendarPush(m_session, table, std::exchange(m_listing, {}), ownAddresses(), std::move(policy), this);
    connect(m_push, &CalendarPush::failed, this, &CalDavSyncRun::fail);
    connect(m_push, &CalendarPush::finished, this, next);
    m_push->start();
}

/// An invitation may have come to any account of the user's.
QStringList CalDavSyncRun::ownAddresses() const
{
    QStringList addresses;
    for (const Account &account : m_state->accounts()->getAll()) {
        if (account.username.contains(u'@'))
            addresses.append(account.username);
    }
    return addresses;
}

/// The user said that the calendar takes tasks, and the server says that it does not. The task must not fail for
/// ever: it moves to a calendar of the user's own, or stays here as it is, without an address.
bool CalDavSyncRun::rejectTask(const PendingResource &resource, int status)
{
    auto calendar = m_state->calendars()->getById(m_calendar.id);
    auto task = m_state->tasks()->getById(resource.id);
    if (status != Forbidden || !calendar || !calendar->allowTasksOverride || !task)
        return false;
    calendar->allowTasksOverride = false;
    m_state->calendars()->update(*calendar);

    const SyncWrites origin(m_state->database());
    if (const auto home = homeForTasks()) {
        task->calendarId = home->id;
        task->href.clear();
        task->etag.clear();
        task->syncStatus = SyncStatus::Synced;
        m_state->tasks()->update(*task);
        emit taskRejected(tr("\"%1\" was moved to your local task list: this calendar does not accept tasks. Task "
                             "support has been turned off for it.")
                              .arg(task->title));
    } else {
        m_state->tasks()->markSynced(task->id, {}, {});
        emit taskRejected(
            tr("\"%1\" was rejected: this calendar does not accept tasks. Task support has been turned off for it.")
                .arg(task->title));
    }
    return true;
}

std::optional<Calendar> CalDavSyncRun::homeForTasks() const
{
    for (const Calendar &calendar : m_state->calendars()->getAll()) {
        const auto account = m_state->accounts()->getById(calendar.accountId);
        if (calendar.supportsTasks() && account && account->type == AccountType::Quillon)
            return calendar;
    }
    return std::nullopt;
}

void CalDavSyncRun::noteFailure(const QString &message)
{
    if (m_firstFailure.isEmpty())
        m_firstFailure = message;
}

void CalDavSyncRun::end()
{
    if (!m_firstFailure.isEmpty())
        return fail(m_firstFailure);
    if (!std::exchange(m_hasEnded, true))
        emit completed(m_count);
}

void CalDavSyncRun::fail(const QString &message)
{
    if (!std::exchange(m_hasEnded, true))
        emit failed(m_firstFailure.isEmpty() ? message : m_firstFailure);
}
