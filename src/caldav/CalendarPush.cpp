#include "caldav/CalendarPush.h"

#include "caldav/CalDavLog.h"
#include "caldav/CalDavPath.h"
#include "caldav/CalDavSession.h"
#include "caldav/PushVerdict.h"
#include "caldav/SilenceGuard.h"
#include "calendar/ResourceComposer.h"

#include <QDateTime>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int RowsPerStep = 1000;
constexpr int PreconditionFailed = 412;

QString orEmpty(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("(empty)") : text;
}

}

CalendarPush::CalendarPush(CalDavSession *session, SyncTable *table, CalendarPull::Listing listing,
                           const QStringList &ownAddresses, Policy policy, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_table(table)
    , m_listing(std::move(listing))
    , m_ownAddresses(ownAddresses)
    , m_policy(std::move(policy))
{
}

void CalendarPush::start()
{
    const QList<PendingRow> page = m_table->pendingRows(m_lastRowid, RowsPerStep);
    for (const PendingRow &row : page) {
        m_lastRowid = row.rowid;
        if (m_seen.contains({ row.uid, row.href }))
            continue;
        m_seen.insert({ row.uid, row.href });
        m_queue.append(row);
    }
    if (page.size() == RowsPerStep) {
        QMetaObject::invokeMethod(this, &CalendarPush::start, Qt::QueuedConnection);
        return;
    }
    std::ranges::stable_sort(m_queue, {}, &PendingRow::rank);
    logQueue();
    pushNextSoon();
}

void CalendarPush::logQueue() const
{
    if (m_queue.isEmpty())
        return;
    const QString &name = m_session->calendarName();
    if (m_policy.isForTasks)
        qInfo().noquote() << "[CalDav] Task push for" << name << "pending=" << m_queue.size();
    else
        qCDebug(caldavLog).noquote() << "[CalDav] Event push for" << name << "pending=" << m_queue.size();
}

void CalendarPush::logCurrent() const
{
    const PendingResource &row = *m_current;
    if (m_policy.isForTasks)
        qInfo().noquote() << "[CalDav] PUT task" << row.title << "status=" << row.status
                          << "isCreate=" << (!row.isDeletion && row.href.isEmpty()) << "isDelete=" << row.isDeletion
                          << "etag=" << orEmpty(row.etag);
    else
        qCDebug(caldavLog).noquote() << "  -" << row.title << "id=" << row.id << "uid=" << row.uid
                                     << "deletedAt=" << (row.isDeletion ? "yes" : "no") << "href=" << orEmpty(row.href);
}

const char *CalendarPush::kindName() const
{
    static constexpr const char *names[] = { "(create)", "(update)", "(delete)" };
    return names[int(m_kind)];
}

void CalendarPush::logAnswer(const CalDavClient::Response &response) const
{
    if (m_policy.isForTasks)
        qInfo().noquote() << "[CalDav] PUT task" << m_current->title << "→ HTTP" << response.status << response.error;
    else
        qCDebug(caldavLog).noquote() << "[CalDav] Push response for" << m_current->title << "→ HTTP" << response.status
                                     << "err=" << response.error << kindName();
}

// From the event loop: a thousand rows that need no request must neither hold it nor fill the stack.
void CalendarPush::pushNextSoon()
{
    QMetaObject::invokeMethod(this, &CalendarPush::pushNext, Qt::QueuedConnection);
}

void CalendarPush::pushNext()
{
    if (!m_session->isLive())
        return emit m_session->abandoned();
    m_current.reset();
    if (m_queue.isEmpty())
        return emit finished();
    m_current = openNext();
    if (!m_current)
        return pushNextSoon();
    m_hasRetried = false;
    logCurrent();
    prepare();
}

std::unique_ptr<PendingResource> CalendarPush::openNext()
{
    const PendingRow row = m_queue.takeFirst();
    std::unique_ptr<PendingResource> resource = m_table->open(row.uid, row.href);
    if (!resource || resource->href == row.href)
        return resource;
    // A new row of a resource that the server has goes along with it, once.
    if (m_seen.contains({ row.uid, resource->href }))
        return nullptr;
    m_seen.insert({ row.uid, resource->href });
    return resource;
}

void CalendarPush::prepare()
{
    if (m_current->isDeletion && m_current->href.isEmpty()) {
        if (m_policy.isForTasks)
            qInfo().noquote() << "[CalDav] Local-only task delete skip-push for" << m_current->title;
        else
            qCDebug(caldavLog).noquote() << "[CalDav] Local-only delete skip-push for" << m_current->title;
        m_current->deleted();
        return pushNextSoon();
    }
    if (m_current->href.isEmpty())
        return send({});
    const auto text = m_listing.texts.constFind(m_current->href);
    if (text != m_listing.texts.cend())
        return send(*text);
    if (!m_current->isDeletion)
        return fetchText();
    m_kind = Kind::Delete;
    m_href = m_current->href;
    sendDeletion(m_current->etag);
}

void CalendarPush::fetchText()
{
    m_kind = Kind::Update;
    m_session->client()->get(CalDavPath::resourceUrl(m_session->calendarUrl(), m_current->href),
                             m_session->watched(SilenceGuard::SilenceMs, std::bind_front(&CalendarPush::onText, this)));
}

void CalendarPush::onText(const CalDavClient::Response &response)
{
    if (!response.error.isEmpty())
        return emit failed(m_policy.networkMessage(response.error));
    if (response.isMissing())
        return onLost(response.status);
    if (!response.isSuccess() || !response.isWhole)
        return refuse(response.status);
    // A page of somebody else must not pass for the server's copy, nor must another event that has the address now.
    if (!m_current->isIn(response.body))
        return response.body.contains("BEGIN:VCALENDAR") ? onLost(response.status) : refuse(response.status);
    send({ .href = m_current->href,
           .etag = CalDavPath::etagFromHeader(response.header("ETag")),
           .calendarData = QString::fromUtf8(response.body) });
}

/// What was listed is not there. Rows that do not wait would be missing from a new resource: the next listing tells.
void CalendarPush::onLost(int status)
{
    if (m_current->hasSynced)
        return refuse(status);
    m_current->forgetAddress();
    send({});
}

/// Over \p newest, the server's copy; without an address it is a new resource.
void CalendarPush::send(const CalDavParse::EventResource &newest)
{
    m_kind = newest.href.isEmpty() ? Kind::Create : Kind::Update;
    m_href =
        newest.href.isEmpty() ? CalDavPath::newResourcePath(m_session->calendarUrl(), m_current->uid) : newest.href;
    m_etag = newest.etag;
    m_textBeneath = newest.calendarData.toUtf8();
    const ResourceComposer::Composed composed = m_current->compose(
        m_textBeneath, newest.etag, { .now = QDateTime::currentDateTimeUtc(), .ownAddresses = m_ownAddresses });
    if (composed.text.isEmpty() && m_kind == Kind::Create) {
        m_current->deleted(); // what the server never had
        return pushNextSoon();
    }
    if (composed.text.isEmpty() && !m_current->isDeletion)
        return refuse(0); // nobody deleted the whole: the text could not be read
    if (composed.text.isEmpty()) {
        m_kind = Kind::Delete;
        return sendDeletion(m_etag);
    }
    if (m_kind == Kind::Update && !composed.isChanged) {
        // The server says already what we would.
        m_current->accepted(m_href, m_etag);
        return pushNextSoon();
    }
    m_body = composed.text;
    if (m_kind == Kind::Create)
        sendText(std::nullopt);
    else
        sendText(m_etag);
}

void CalendarPush::sendText(const std::optional<QString> &etag)
{
    m_session->client()->put(resourceUrl(), m_body, QStringLiteral("text/calendar; charset=utf-8"), answered(), etag);
}

void CalendarPush::sendDeletion(const std::optional<QString> &etag)
{
    m_session->client()->del(resourceUrl(), answered(), etag);
}

void CalendarPush::onAnswer(const CalDavClient::Response &response)
{
    logAnswer(response);
    if (!response.error.isEmpty()) {
        qCWarning(caldavLog).noquote() << "[CalDav] Push network error for" << m_current->title << ":"
                                       << response.error;
        return emit failed(m_policy.networkMessage(response.error));
    }
    const auto verdict = m_kind == Kind::Delete ? PushVerdict::ofDelete(response, m_listing.addresses.contains(m_href))
                                                : PushVerdict::ofPut(response);
    m_newEtag = CalDavPath::etagFromHeader(response.header("ETag"));
    if (verdict == PushVerdict::Accepted)
        return onAccepted();
    if (verdict == PushVerdict::Doubtful)
        return lookAgain(response.status);
    if (response.status == PreconditionFailed && m_policy.isForTasks && !m_hasRetried && m_kind != Kind::Create) {
        qInfo().noquote() << "[CalDav] Task push 412 for" << m_current->title << "- retrying without If-Match";
        m_hasRetried = true;
        if (m_kind == Kind::Delete)
            sendDeletion(std::nullopt);
        else
            sendText(std::nullopt);
        return;
    }
    qCWarning(caldavLog).noquote() << "[CalDav] Push HTTP" << response.status << "for" << m_current->title
                                   << kindName();
    refuse(response.status);
}

void CalendarPush::lookAgain(int status)
{
    m_session->client()->get(
        resourceUrl(),
        m_session->watched(SilenceGuard::SilenceMs, std::bind_front(&CalendarPush::onLookedAgain, this, status)));
}

void CalendarPush::onLookedAgain(int status, const CalDavClient::Response &response)
{
    if (!response.error.isEmpty())
        return emit failed(m_policy.networkMessage(response.error));
    const bool isDone = m_kind == Kind::Delete ? response.isMissing() : isStored(response);
    if (isDone)
        onAccepted();
    else
        refuse(status);
}

/// The resource is of our UID, and no longer what it was. Its text may differ from what was sent: a server that
/// gives no etag may have changed it.
bool CalendarPush::isStored(const CalDavClient::Response &response) const
{
    if (!response.isSuccess() || !response.isWhole || !m_current->isIn(response.body))
        return false;
    if (m_kind == Kind::Create || response.body == m_body)
        return true;
    const QString etag = CalDavPath::etagFromHeader(response.header("ETag"));
    if (!m_etag.isEmpty() && !etag.isEmpty())
        return etag != m_etag;
    // A server without etags: what differs from the copy beneath was written. XML leaves no carriage return in that.
    return QByteArray(response.body).replace('\r', "") != QByteArray(m_textBeneath).replace('\r', "");
}

void CalendarPush::onAccepted()
{
    m_listing.texts.remove(m_href); // of another UID that shares the address, the text is another one now
    if (m_kind != Kind::Delete)
        m_current->accepted(m_href, m_newEtag);
    else if (!m_current->deleted())
        qCWarning(caldavLog).noquote() << "[CalDav] hardDelete failed for" << m_current->title
                                       << "id=" << m_current->id;
    pushNext();
}

void CalendarPush::refuse(int status)
{
    const bool isDealtWith = m_kind != Kind::Delete && m_policy.onRefusal && m_policy.onRefusal(*m_current, status);
    if (!isDealtWith && m_firstRefusal.isEmpty())
        m_firstRefusal = m_policy.statusMessage(status, m_current->title);
    pushNextSoon();
}

QUrl CalendarPush::resourceUrl() const
{
    return CalDavPath::resourceUrl(m_session->calendarUrl(), m_href);
}

CalDavClient::Callback CalendarPush::answered()
{
    return m_session->watched(SilenceGuard::SilenceMs, std::bind_front(&CalendarPush::onAnswer, this));
}
