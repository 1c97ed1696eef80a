#include "caldav/CalendarPull.h"

#include "app/state/AppState.h"
#include "caldav/CalDavLog.h"
#include "caldav/CalDavPath.h"
#include "caldav/CalDavSession.h"
#include "caldav/CalDavXml.h"
#include "caldav/SilenceGuard.h"
#include "caldav/SyncTable.h"
#include "storage/BulkWrites.h"
#include "storage/ChangeOrigin.h"
#include "storage/Database.h"
#include "storage/Savepoint.h"

#include <QElapsedTimer>

#include <functional>
#include <utility>

namespace {

constexpr int SliceMs = 8;
constexpr int IndexPage = 500;
constexpr int ResourcesPerStep = 10;
constexpr qsizetype BytesPerStep = 64 * 1024;
constexpr int ProgressStep = 25;
// A slice that wrote this much is likely to be followed by more of its kind.
constexpr int ManyWrites = 10;

}

CalendarPull::CalendarPull(CalDavSession *session, SyncTable *table, const QString &component, MissingText missingText,
                           QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_table(table)
    , m_component(component)
    , m_missingText(missingText)
{
    m_slices.setInterval(0);
    connect(&m_slices, &QTimer::timeout, this, &CalendarPull::runSlice);
}

void CalendarPull::start()
{
    m_session->client()->report(
        m_session->calendarUrl(), CalDavXml::calendarQueryBody({}, {}, m_component), 1,
        m_session->watched(SilenceGuard::ListingMs, std::bind_front(&CalendarPull::onListing, this)));
}

void CalendarPull::onListing(const CalDavClient::Response &response)
{
    if (!response.isSuccess())
        return emit refused(response.error, response.status);
    m_canReconcile = response.status == 207;
    beginStoring(response);
}

void CalendarPull::onMultiget(const CalDavClient::Response &response)
{
    if (!response.isSuccess()) {
        qCWarning(caldavLog).noquote() << "[CalDav]" << m_session->calendarName()
                                       << "multiget failed:" << response.error << "status=" << response.status;
        m_phase = Phase::Reconcile;
        m_slices.start();
        return;
    }
    m_isMultiget = true;
    beginStoring(response);
}

void CalendarPull::beginStoring(const CalDavClient::Response &response)
{
    if (!response.isWhole)
        m_shortfall = tr("The server's answer was cut off.");
    m_reader.emplace(response.body, m_session->calendarUrl());
    m_slices.start();
}

void CalendarPull::runSlice()
{
    if (!m_session->isLive()) {
        m_slices.stop();
        return emit m_session->abandoned();
    }
    QElapsedTimer clock;
    clock.start();
    Database *database = m_session->state()->database();
    // A slice that is taken back by a power cut is done again by the next run.
    std::optional<BulkWrites> bulkWrites;
    if (std::exchange(m_writtenInSlice, 0) >= ManyWrites)
        bulkWrites.emplace(database);
    const SyncWrites origin(database);
    Savepoint savepoint(database);
    while (m_slices.isActive() && !clock.hasExpired(SliceMs)) {
        switch (m_phase) {
        case Phase::Index:
            indexRows();
            break;
        case Phase::Store:
            storeNext();
            break;
        case Phase::Reconcile:
            reconcileNext();
            break;
        }
    }
    if (!savepoint.commit())
        m_shortfall = tr("Some of the calendar could not be stored.");
    if (!m_slices.isActive() && m_phase == Phase::Reconcile)
        emit finished();
}

void CalendarPull::indexRows()
{
    const QList<SyncRow> page = m_table->rows(m_lastRowid, IndexPage);
    for (const SyncRow &row : page) {
        if (!row.href.isEmpty())
            m_rowsByHref[row.href].append(int(m_rows.size()));
        m_knownUids.insert(row.uid);
        m_lastRowid = row.rowid;
        m_rows.push_back(row);
    }
    if (page.size() < IndexPage)
        m_phase = Phase::Store;
}

void CalendarPull::storeNext()
{
    const QList<CalDavParse::EventResource> resources = m_reader->read(ResourcesPerStep, BytesPerStep);
    for (const CalDavParse::EventResource &resource : resources) {
        if (m_isMultiget)
            take(resource);
        else
            takeListed(resource);
    }
    if (m_isMultiget)
        m_fetchedCount += int(resources.size());
    if (!m_reader->atEnd())
        return;
    if (m_isMultiget)
        finishMultiget();
    else
        finishListing();
}

void CalendarPull::finishListing()
{
    if (!m_reader->isCompleteMultistatus()) {
        m_canReconcile = false;
        if (m_shortfall.isEmpty())
            m_shortfall = tr("The server's answer is not a list of calendar objects.");
    }
    m_canReconcile = m_canReconcile && m_shortfall.isEmpty();
    m_reader.reset();
    m_phase = Phase::Reconcile;
    if (m_missingText == MissingText::Leave && !m_missing.isEmpty())
        m_canReconcile = false;
    if (m_missingHrefs.isEmpty())
        return;

    qCDebug(caldavLog).noquote() << "[CalDav]" << m_session->calendarName() << "calendar-query returned"
                                 << m_missing.size() << "hrefs without inline data, running multiget";
    m_phase = Phase::Store;
    m_slices.stop();
    m_session->client()->report(
        m_session->calendarUrl(), CalDavXml::calendarMultigetBody(std::exchange(m_missingHrefs, {})), 1,
        m_session->watched(SilenceGuard::ListingMs, std::bind_front(&CalendarPull::onMultiget, this)));
}

void CalendarPull::finishMultiget()
{
    m_reader.reset();
    m_phase = Phase::Reconcile;
    qCDebug(caldavLog) << "[CalDav] multiget filled" << m_fetchedCount << "of" << m_resourceCount << "resources";
    for (auto missing = m_missing.cbegin(); missing != m_missing.cend(); ++missing)
        qCWarning(caldavLog).noquote() << "[CalDav] still missing body for href" << missing.key();
}

void CalendarPull::takeListed(CalDavParse::EventResource resource)
{
    ++m_resourceCount;
    m_listed.insert(resource.href);
    if (takeUnchanged(resource))
        return;
    if (!resource.calendarData.isEmpty())
        return take(resource);
    m_missing.insert(resource.href, resource.etag);
    // Here and not for all of them at once, which would take long.
    if (m_missingText == MissingText::Fetch)
        m_missingHrefs.append(CalDavPath::toHref(resource.href));
}

/// The server's copy is the one that was read last, or written from here.
bool CalendarPull::takeUnchanged(const CalDavParse::EventResource &resource)
{
    const QList<int> positions = m_rowsByHref.value(resource.href);
    if (resource.etag.isEmpty() || positions.isEmpty())
        return false;
    int pending = 0;
    for (const int position : positions) {
        const SyncRow &row = m_rows.at(size_t(position));
        if (row.etag != resource.etag)
            return false;
        pending += row.isPending;
    }
    count(int(positions.size()) - (m_table->countsPending() ? 0 : pending));
    if (pending > 0 && !resource.calendarData.isEmpty())
        m_texts.insert(resource.href, resource);
    return true;
}

void CalendarPull::take(const CalDavParse::EventResource &found)
{
    CalDavParse::EventResource resource = found;
    if (const auto missing = m_missing.constFind(resource.href); missing != m_missing.cend()) {
        if (resource.etag.isEmpty())
            resource.etag = *missing;
        if (!resource.calendarData.isEmpty())
            m_missing.erase(missing);
    }
    m_listed.insert(resource.href);
    if (resource.calendarData.isEmpty())
        return;
    const SyncTable::Stored stored = m_table->store(resource, rowsAt(resource.href), m_listed, m_knownUids);
    m_writtenCount += stored.written;
    m_writtenInSlice += stored.written;
    if (stored.hasPending)
        m_texts.insert(resource.href, resource);
    count(stored.read);
}

void CalendarPull::count(int read)
{
    m_readCount += read;
    if (m_readCount / ProgressStep > m_announced) {
        m_announced = m_readCount / ProgressStep;
        emit progressed(m_announced * ProgressStep);
    }
}

/// Rows that the server has no resource for any more: synced ones go, pending ones are new to it again.
void CalendarPull::reconcileNext()
{
    if (!m_canReconcile || m_nextToReconcile == m_rows.size()) {
        qCDebug(caldavLog) << "[CalDav] parsed=" << m_readCount << "upserted=" << m_writtenCount << "from"
                           << m_resourceCount << "resources";
        m_slices.stop();
        return;
    }
    const SyncRow &row = m_rows.at(m_nextToReconcile++);
    if (row.href.isEmpty() || m_listed.contains(row.href))
        return;
    if (!row.isPending)
        m_removedCount += m_table->purge(row.id, row.href);
    else if (!row.isDeleted)
        m_table->forgetAddress(row.id, row.href);
}

QList<SyncRow> CalendarPull::rowsAt(const QString &href) const
{
    QList<SyncRow> rows;
    for (const int position : m_rowsByHref.value(href))
        rows.append(m_rows.at(size_t(position)));
    return rows;
}
