#include "caldav/CollectionJob.h"

#include "app/state/AppState.h"
#include "caldav/CalDavPath.h"
#include "caldav/CalDavRediscover.h"
#include "caldav/CalDavXml.h"
#include "caldav/SilenceGuard.h"
#include "models/NewId.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"

#include <algorithm>
#include <array>
#include <functional>

namespace {

bool isOneOf(int status, std::array<int, 2> accepted)
{
    return std::ranges::find(accepted, status) != accepted.end();
}

/// The collection that \p url lies in; the path ends in a slash.
QUrl parentOf(QUrl url)
{
    QString path = url.path(QUrl::FullyEncoded);
    while (path.endsWith(u'/'))
        path.chop(1);
    url.setPath(path.left(path.lastIndexOf(u'/') + 1), QUrl::StrictMode);
    return url;
}

bool isOtherColor(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) != 0;
}

bool needsProbe(const Calendar &stored, const Calendar &wanted)
{
    return wanted.allowTasksOverride && !stored.supportsTasks();
}

bool needsPatch(const Calendar &stored, const Calendar &wanted)
{
    return wanted.name != stored.name || isOtherColor(wanted.color, stored.color);
}

QByteArray probeBody(const QString &name)
{
    return QStringLiteral("BEGIN:VCALENDAR\r\n"
                          "VERSION:2.0\r\n"
                          "PRODID:-//Quillon//probe//EN\r\n"
                          "BEGIN:VTODO\r\n"
                          "UID:%1\r\n"
                          "DTSTAMP:%2\r\n"
                          "SUMMARY:Quillon task-support check\r\n"
                          "STATUS:NEEDS-ACTION\r\n"
                          "END:VTODO\r\n"
                          "END:VCALENDAR\r\n")
        .arg(name, CalDavXml::formatIcalDateTimeUtc(QDateTime::currentDateTimeUtc()))
        .toUtf8();
}

}

CollectionJob::CollectionJob(AppState *state, const Account &account, const QString &password, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_account(account)
    , m_password(password)
    , m_client(makeClient(this))
    , m_guard(new SilenceGuard(m_client, this))
{
}

CollectionJob::~CollectionJob()
{
    removeProbe();
}

CalDavClient *CollectionJob::makeClient(QObject *parent) const
{
    auto *client = new CalDavClient(parent);
    client->setCredentials(m_account.username, m_password);
    client->setTrustedCertSha256(m_account.trustedCertSha256);
    return client;
}

CalDavClient::Callback CollectionJob::step(Handler onReply)
{
    return m_guard->guarded(SilenceGuard::SilenceMs, std::bind_front(onReply, this));
}

void CollectionJob::failLater(const QString &message)
{
    QMetaObject::invokeMethod(
        this, [this, message] { emit failed(message); }, Qt::QueuedConnection);
}

QUrl CollectionJob::newUrl(AppState *state, const Account &account)
{
    const QUrl server(account.serverUrl);
    QUrl base;
    if (!account.calendarHomeSet.isEmpty())
        base = server.resolved(QUrl(account.calendarHomeSet));
    const QList<Calendar> siblings = state->calendars()->getByAccount(account.id);
    for (auto it = siblings.cbegin(); base.isEmpty() && it != siblings.cend(); ++it) {
        const QUrl url(it->url);
        if (url.isValid() && !url.host().isEmpty())
            base = parentOf(url);
    }
    if (base.isEmpty())
        base = server;
    base.setUserInfo(QString());
    QString path = base.path(QUrl::FullyEncoded);
    if (!path.endsWith(u'/'))
        path += u'/';
    // Never from the name that the user chose: servers differ in what they take as a segment.
    base.setPath(path + newId() + u'/', QUrl::StrictMode);
    return base;
}

void CollectionJob::create(const Calendar &wanted)
{
    m_wanted = wanted;
    m_url = newUrl(m_state, m_account);
    emit progressed(tr("Creating calendar on server…"));
    m_client->mkcalendar(m_url, CalDavXml::mkcalendarBody(wanted.name, wanted.color, QString()),
                         step(&CollectionJob::onCreated));
}

void CollectionJob::onCreated(const Response &response)
{
    if (!response.error.isEmpty())
        return emit failed(tr("Network error: %1").arg(response.error));
    if (!isOneOf(response.status, { 201, 207 })) {
        return emit failed(tr("Server refused (HTTP %1). Your account may not have permission to create calendars on "
                              "this server.")
                               .arg(response.status));
    }
    m_client->propfind(m_url, CalDavXml::calendarEnumerationBody(), 0, step(&CollectionJob::onVerified));
}

void CollectionJob::onVerified(const Response &response)
{
    if (!isOneOf(response.status, { 207, 200 })) {
        return emit failed(tr("Server returned success but the new calendar isn't reachable. This server may not "
                              "support MKCALENDAR."));
    }
    storeNew();
}

void CollectionJob::storeNew()
{
    auto account = m_state->accounts()->getById(m_account.id);
    if (!account)
        return emit failed(tr("This account was removed in the meantime."));
    if (account->calendarHomeSet.isEmpty()) {
        account->calendarHomeSet = parentOf(m_url).toString();
        account->updatedAt = QDateTime::currentDateTimeUtc();
        m_state->accounts()->update(*account);
    }
    CalDavParse::DiscoveredCalendar made;
    made.url = m_url.toString();
    made.displayName = m_wanted.name;
    made.color = m_wanted.color;
    made.components = { QStringLiteral("VEVENT"), QStringLiteral("VTODO") };
    Calendar calendar = CalDavRediscover::newCalendar(*account, made);
    const QList<Calendar> others = m_state->calendars()->getAll();
    for (const Calendar &other : others) {
        // A sync that came between the request and its answer has found it.
        if (other.accountId == calendar.accountId && other.canonicalKey == calendar.canonicalKey)
            return emit succeeded(other.id);
        calendar.sortOrder = std::max(calendar.sortOrder, other.sortOrder);
    }
    calendar.description = m_wanted.description;
    calendar.isDefault = others.isEmpty();
    if (!m_state->calendars()->insert(calendar))
        return emit failed(tr("Created on server, but couldn't save locally. Run sync to recover."));
    emit succeeded(calendar.id);
}

bool CollectionJob::needsServer(const Calendar &stored, const Calendar &wanted)
{
    return needsProbe(stored, wanted) || needsPatch(stored, wanted);
}

void CollectionJob::edit(const Calendar &wanted)
{
    const auto stored = m_state->calendars()->getById(wanted.id);
    if (!stored)
        return failLater(tr("This calendar was deleted in the meantime."));
    m_before = *stored;
    m_wanted = wanted;
    m_url = QUrl(stored->url);
    if (needsProbe(m_before, m_wanted))
        return probeTasks();
    if (needsPatch(m_before, m_wanted))
        return patch();
    QMetaObject::invokeMethod(this, &CollectionJob::storeEdit, Qt::QueuedConnection);
}

void CollectionJob::probeTasks()
{
    const QString name = QStringLiteral("quillon-task-probe-") + newId();
    m_probeUrl = CalDavPath::resourceUrl(m_url, CalDavPath::newResourcePath(m_url, name));
    emit progressed(tr("Checking whether this calendar accepts tasks…"));
    m_client->put(m_probeUrl, probeBody(name), QStringLiteral("text/calendar; charset=utf-8"),
                  step(&CollectionJob::onProbed));
}

void CollectionJob::onProbed(const Response &response)
{
    if (!response.error.isEmpty()) {
        removeProbe(); // it may have arrived, only the answer did not
        return emit tasksRefused(tr("Couldn't verify task support: %1").arg(response.error));
    }
    if (!response.isSuccess()) {
        m_probeUrl.clear();
        return emit tasksRefused(
            tr("This calendar does not accept tasks (server returned HTTP %1).").arg(response.status));
    }
    removeProbe();
    if (needsPatch(m_before, m_wanted))
        patch();
    else
        storeEdit();
}

/// Outlives the job, and how it ends is of no concern to it.
void CollectionJob::removeProbe()
{
    if (m_probeUrl.isEmpty())
        return;
    CalDavClient *client = makeClient(m_state);
    auto *guard = new SilenceGuard(client, client);
    client->del(m_probeUrl,
                guard->guarded(SilenceGuard::SilenceMs, [client](const Response &) { client->deleteLater(); }));
    m_probeUrl.clear();
}

void CollectionJob::patch()
{
    const QString name = m_wanted.name != m_before.name ? m_wanted.name : QString();
    const QString color = isOtherColor(m_wanted.color, m_before.color) ? m_wanted.color : QString();
    emit progressed(tr("Saving changes to server…"));
    m_client->proppatch(m_url, CalDavXml::calendarPropPatchBody(name, color, QString()),
                        step(&CollectionJob::onPatched));
}

void CollectionJob::onPatched(const Response &response)
{
    if (!response.error.isEmpty())
        return emit failed(tr("Network error: %1").arg(response.error));
    if (!isOneOf(response.status, { 200, 207 })) {
        return emit failed(tr("Server refused (HTTP %1). You may not have permission to rename or recolour this "
                              "calendar.")
                               .arg(response.status));
    }
    storeEdit();
}

void CollectionJob::storeEdit()
{
    auto current = m_state->calendars()->getById(m_before.id);
    if (!current)
        return emit failed(tr("This calendar was deleted in the meantime."));
    // A sync may have changed the row meanwhile; only what the user changed is replaced.
    current->name = m_wanted.name;
    current->color = m_wanted.color;
    if (m_wanted.description != m_before.description)
        current->description = m_wanted.description;
    if (m_wanted.allowTasksOverride != m_before.allowTasksOverride)
        current->allowTasksOverride = m_wanted.allowTasksOverride;
    current->updatedAt = QDateTime::currentDateTimeUtc();
    if (!m_state->calendars()->update(*current))
        return emit failed(tr("Saved on server, but couldn't update locally."));
    emit succeeded(current->id);
}
