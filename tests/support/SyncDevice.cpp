#include "support/SyncDevice.h"

#include "models/Account.h"
#include "models/Calendar.h"
#include "models/NewId.h"
#include "models/Task.h"
#include "storage/Database.h"
#include "storage/Statement.h"
#include "storage/TaskRepository.h"

#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int PatienceMs = 60'000;

}

SyncDevice::SyncDevice(const QString &calendarUrl, const QString &username, const QString &password)
    : m_calendarId(newId())
    , m_username(username)
    , m_password(password)
{
    Account account;
    account.id = QStringLiteral("caldav-account");
    account.name = QStringLiteral("Server");
    account.type = AccountType::CalDAV;
    account.serverUrl = calendarUrl;
    account.username = username;
    Calendar calendar;
    calendar.id = m_calendarId;
    calendar.accountId = account.id;
    calendar.url = calendarUrl;
    calendar.name = QStringLiteral("Work");
    calendar.supportedComponents = QStringLiteral("[\"VEVENT\",\"VTODO\"]");
    if (!m_state->accounts()->insert(account) || !m_state->calendars()->insert(calendar))
        qFatal("cannot store the account");
}

QString SyncDevice::sync()
{
    CalDavSyncClient client(m_state.state());
    QString failure;
    QObject::connect(&client, &CalDavSyncClient::calendarSyncCompleted, &client,
                     [this](const QString &, int count) { m_lastCount = count; });
    QObject::connect(&client, &CalDavSyncClient::calendarSyncFailed, &client,
                     [&failure](const QString &, const QString &message) { failure = message; });
    QEventLoop loop;
    QObject::connect(&client, &CalDavSyncClient::calendarSyncEnded, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer::singleShot(PatienceMs, &loop, [&] {
        failure = QStringLiteral("the run has not ended");
        loop.quit();
    });
    client.syncCalendar(*m_state->calendars()->getById(m_calendarId), {}, m_username, m_password, m_trustedCert);
    loop.exec();
    return failure;
}

bool SyncDevice::hasEvent(const QString &uid)
{
    const auto event = m_state->events()->getByUid(uid, m_calendarId);
    return event && !event->deletedAt;
}

bool SyncDevice::hasTask(const QString &uid)
{
    const auto task = m_state->tasks()->getByUid(uid, m_calendarId);
    return task && !task->deletedAt;
}

Event SyncDevice::event(const QString &uid, const QString &recurrenceId)
{
    const auto event = m_state->events()->getByUidAndRecurrenceId(uid, m_calendarId, recurrenceId);
    if (!event)
        qFatal("no event %s %s", qPrintable(uid), qPrintable(recurrenceId));
    return *event;
}

Task SyncDevice::task(const QString &uid)
{
    const auto task = m_state->tasks()->getByUid(uid, m_calendarId);
    if (!task)
        qFatal("no task %s", qPrintable(uid));
    return *task;
}

void SyncDevice::edit(const QString &uid, const std::function<void(Event &)> &change, const QString &recurrenceId)
{
    Event row = event(uid, recurrenceId);
    change(row);
    row.syncStatus = SyncStatus::Pending;
    if (!m_state->events()->update(row))
        qFatal("cannot store %s", qPrintable(uid));
}

void SyncDevice::editTask(const QString &uid, const std::function<void(Task &)> &change)
{
    Task row = task(uid);
    change(row);
    row.syncStatus = SyncStatus::Pending;
    if (!m_state->tasks()->update(row))
        qFatal("cannot store %s", qPrintable(uid));
}

void SyncDevice::addEvent(const QString &uid, const QString &title, const QDateTime &start)
{
    Event event;
    event.id = uid + QStringLiteral("-row");
    event.calendarId = m_calendarId;
    event.uid = uid;
    event.title = title;
    event.startTime = start;
    event.endTime = start.addSecs(3600);
    event.created = start;
    event.syncStatus = SyncStatus::Pending;
    if (!m_state->events()->insert(event))
        qFatal("cannot store %s", qPrintable(uid));
}

void SyncDevice::addTask(const QString &uid, const QString &title)
{
    Task task;
    task.id = uid + QStringLiteral("-row");
    task.calendarId = m_calendarId;
    task.uid = uid;
    task.title = title;
    task.created = QDateTime::currentDateTimeUtc();
    task.syncStatus = SyncStatus::Pending;
    if (!m_state->tasks()->insert(task))
        qFatal("cannot store %s", qPrintable(uid));
}

void SyncDevice::removeEvent(const QString &uid, const QString &recurrenceId)
{
    m_state->events()->remove(event(uid, recurrenceId).id);
}

void SyncDevice::removeTask(const QString &uid)
{
    m_state->tasks()->remove(task(uid).id);
}

int SyncDevice::writes()
{
    Statement statement(m_state->database(), QStringLiteral("SELECT total_changes()"));
    return statement.run("Reading failed:") && statement.next() ? statement.value(0).toInt() : -1;
}

int SyncDevice::pendingCount()
{
    return m_state->events()->pendingCount(m_calendarId) + m_state->tasks()->pendingCount(m_calendarId);
}
