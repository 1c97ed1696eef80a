#include "caldav/SyncTable.h"

#include "app/state/AppState.h"
#include "caldav/CalDavLog.h"
#include "calendar/ICalParser.h"
#include "models/Constants.h"
#include "models/NewId.h"
#include "storage/ChangeOrigin.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "storage/TaskRepository.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace {

// What differs between events and tasks.

struct Events {
    using Record = Event;
    EventRepository *repository;
    QString calendarId;

    static QList<Event> parse(const QString &text) { return ICalParser::parse(text); }
    static constexpr bool CountsPending = true;
    static bool isReadable(const Event &event) { return event.startTime.isValid(); }
    static QString key(const Event &event) { return event.recurrenceId; }
    static QString when(const Event &event) { return event.startTime.toString(Qt::ISODate); }

    std::optional<Event> find(const Event &event) const
    {
        return repository->getByUidAndRecurrenceId(event.uid, calendarId, event.recurrenceId);
    }
    QList<Event> family(const QString &uid) const { return repository->getSeries(uid, calendarId); }
    static ResourceComposer::Composed compose(const QByteArray &newest, const QList<Event> &changed,
                                              const QList<Event> &removed, const ResourceComposer::Context &context)
    {
        return ResourceComposer::composeEvents(newest, changed, removed, context);
    }
    static void keepWhatIsOnlyHere(Event &event, const Event &stored)
    {
        event.color = stored.color;
        event.providerEventId = stored.providerEventId;
    }
    /// The answers of others, which are the server's to tell. False if \p event has them all.
    static bool takeAnswers(Event &event, const Event &sent)
    {
        bool hasTaken = false;
        for (Attendee &attendee : event.attendees) {
            const auto told = std::ranges::find_if(sent.attendees, [&attendee](const Attendee &other) {
                return other.email.compare(attendee.email, Qt::CaseInsensitive) == 0;
            });
            if (told == sent.attendees.end() || told->status == attendee.status)
                continue;
            attendee.status = told->status;
            attendee.rsvp = told->rsvp;
            hasTaken = true;
        }
        return hasTaken;
    }
};

struct Tasks {
    using Record = Task;
    TaskRepository *repository;
    QString calendarId;

    static QList<Task> parse(const QString &text) { return ICalParser::parseTasks(text); }
    static constexpr bool CountsPending = false;
    static bool isReadable(const Task &) { return true; }
    static QString key(const Task &) { return {}; }
    static QString when(const Task &task) { return task.dueDate ? task.dueDate->toString(Qt::ISODate) : QString(); }

    std::optional<Task> find(const Task &task) const { return repository->getByUid(task.uid, calendarId); }
    QList<Task> family(const QString &uid) const
    {
        const auto task = repository->getByUid(uid, calendarId);
        return task ? QList<Task>{ *task } : QList<Task>();
    }
    static ResourceComposer::Composed compose(const QByteArray &newest, const QList<Task> &changed, const QList<Task> &,
                                              const ResourceComposer::Context &context)
    {
        // A task has its resource for itself: a deletion leaves nothing.
        return changed.isEmpty() ? ResourceComposer::Composed{ .text = {}, .isChanged = true }
                                 : ResourceComposer::composeTask(newest, changed.first(), context);
    }
    static void keepWhatIsOnlyHere(Task &task, const Task &stored)
    {
        if (task.color.isEmpty())
            task.color = stored.color;
    }
    static bool takeAnswers(Task &, const Task &) { return false; }
};

template <typename Record> bool isPending(const Record &record)
{
    return record.syncStatus == SyncStatus::Pending;
}

// What the user sees and changes of a row. Stamps are of whole seconds and tell too little.
template <typename Record> Record contentOf(Record record)
{
    record.href.clear();
    record.etag.clear();
    record.syncStatus.clear();
    record.rawIcalendar.clear();
    record.lastModified = {};
    record.sequence = 0;
    return record;
}

// The address of a family that has several is that of its master.
template <typename Record> QString commonHref(const QList<Record> &family)
{
    const auto found = std::ranges::find_if(family, [](const Record &record) { return !record.href.isEmpty(); });
    return found == family.end() ? QString() : found->href;
}

template <typename Kind> class PendingResourceOf : public PendingResource {
    using Record = typename Kind::Record;

public:
    /// \p family: every row of the UID. \p rows: those of this resource.
    PendingResourceOf(Database *database, Kind kind, const QList<Record> &family, const QList<Record> &rows)
        : m_database(database)
        , m_kind(std::move(kind))
    {
        for (const Record &row : family)
            m_keys.insert(Kind::key(row));
        for (const Record &row : rows) {
            if (!isPending(row))
                m_others.append(row);
            else if (row.deletedAt)
                m_removed.append(row);
            else
                m_changed.append(row);
        }
        if (isEmpty())
            return;
        const Record &first = m_changed.isEmpty() ? m_removed.first() : m_changed.first();
        uid = first.uid;
        id = first.id;
        title = first.title;
        status = first.status;
        href = commonHref(rows);
        isDeletion = m_changed.isEmpty() && m_others.isEmpty();
        hasSynced = !m_others.isEmpty();
        for (const Record &row : rows) {
            if (row.href == href && etag.isEmpty())
                etag = row.etag;
        }
    }

    [[nodiscard]] bool isEmpty() const { return m_changed.isEmpty() && m_removed.isEmpty(); }

    ResourceComposer::Composed compose(const QByteArray &newest, const QString &newestEtag,
                                       const ResourceComposer::Context &context) override
    {
        QList<Record> removed = m_removed;
        if (!etag.isEmpty() && newestEtag == etag)
            removed += formerNames(Kind::parse(QString::fromUtf8(newest)));
        QList<Record> changed = m_changed;
        if (!ResourceComposer::isReadable(newest))
            changed += m_others; // else the new text would go without them
        const ResourceComposer::Composed composed = m_kind.compose(newest, changed, removed, context);
        m_sent = composed.text;
        return composed;
    }

    [[nodiscard]] bool isIn(const QByteArray &text) const override
    {
        const QList<Record> records = Kind::parse(QString::fromUtf8(text));
        return std::ranges::find(records, uid, &Record::uid) != records.end();
    }

    void accepted(const QString &newHref, const QString &newEtag) override
    {
        const SyncWrites origin(m_database);
        Savepoint savepoint(m_database);
        const QList<Record> sent = Kind::parse(QString::fromUtf8(m_sent));
        for (const Record &row : std::as_const(m_changed))
            acceptRow(row, sent, newHref, newEtag);
        for (const Record &row : std::as_const(m_removed)) {
            const auto stored = storedRow(row);
            if (stored && stored->deletedAt)
                m_kind.repository->hardDelete(row.id);
            else if (stored)
                m_kind.repository->setAddress(row.id, newHref, newEtag);
        }
        for (const Record &row : std::as_const(m_others)) {
            const auto stored = storedRow(row);
            if (!stored)
                continue;
            // An instance that was renamed here had come back under its old name with the server's copy.
            if (!row.href.isEmpty() && !findIn(sent, row)) {
                if (!isPending(*stored))
                    m_kind.repository->hardDelete(row.id);
            } else if (row.href != newHref || row.etag != newEtag) {
                m_kind.repository->setAddress(row.id, newHref, newEtag);
            }
        }
        if (!savepoint.commit())
            qCWarning(caldavLog).noquote() << "[CalDav] markSynced failed for" << title << "id=" << id;
    }

    bool deleted() override
    {
        const SyncWrites origin(m_database);
        Savepoint savepoint(m_database);
        bool succeeded = true;
        for (const Record &row : std::as_const(m_removed)) {
            const auto stored = storedRow(row);
            if (stored && stored->deletedAt)
                succeeded &= m_kind.repository->hardDelete(row.id);
            else if (stored)
                m_kind.repository->setAddress(row.id, {}, {});
        }
        return savepoint.commit() && succeeded;
    }

    void forgetAddress() override
    {
        const SyncWrites origin(m_database);
        for (const Record &row : std::as_const(m_changed))
            m_kind.repository->setAddress(row.id, {}, {});
        href.clear();
        etag.clear();
    }

private:
    /// Components of a text that was read before and that have no row any more, if rows wait under names that the
    /// text does not have: these are them. At most one for each.
    [[nodiscard]] QList<Record> formerNames(const QList<Record> &there) const
    {
        const qsizetype renamed = std::ranges::count_if(
            m_changed, [&there](const Record &row) { return !Kind::key(row).isEmpty() && !findIn(there, row); });
        QList<Record> names;
        for (const Record &record : there) {
            const bool hasRow = m_keys.contains(Kind::key(record));
            if (names.size() < renamed && record.uid == uid && Kind::isReadable(record) && !hasRow)
                names.append(record);
        }
        return names;
    }

    static const Record *findIn(const QList<Record> &records, const Record &row)
    {
        const auto found = std::ranges::find_if(
            records, [&row](const Record &r) { return r.uid == row.uid && Kind::key(r) == Kind::key(row); });
        return found == records.end() ? nullptr : &*found;
    }

    /// As it is now: the user may have changed it while the push was on its way. Nothing if it has gone to another
    /// resource since.
    std::optional<Record> storedRow(const Record &row) const
    {
        auto stored = m_kind.repository->getById(row.id);
        return stored && stored->uid == row.uid ? stored : std::nullopt;
    }

    void acceptRow(const Record &row, const QList<Record> &sent, const QString &newHref, const QString &newEtag)
    {
        auto stored = storedRow(row);
        if (!stored)
            return;
        const Record *text = findIn(sent, row);
        if (!text || contentOf(*stored) != contentOf(row)) {
            // An edit that was given up meanwhile is to be read anew.
            m_kind.repository->setAddress(row.id, newHref, isPending(*stored) ? newEtag : QString());
            return;
        }
        if (Kind::takeAnswers(*stored, *text))
            m_kind.repository->update(*stored);
        m_kind.repository->markPushed(
            row.id,
            { .href = newHref, .etag = newEtag, .rawIcalendar = text->rawIcalendar, .sequence = text->sequence });
    }

    Database *m_database;
    Kind m_kind;
    QSet<QString> m_keys; // of the family
    QList<Record> m_changed;
    QList<Record> m_removed;
    QList<Record> m_others;
    QByteArray m_sent;
};

template <typename Kind> class SyncTableOf : public SyncTable {
    using Record = typename Kind::Record;

public:
    SyncTableOf(Database *database, Kind kind)
        : m_database(database)
        , m_kind(std::move(kind))
    {
    }

    [[nodiscard]] bool countsPending() const override { return Kind::CountsPending; }

    QList<SyncRow> rows(qint64 afterRowid, int limit) override
    {
        return m_kind.repository->syncRows(m_kind.calendarId, afterRowid, limit);
    }

    Stored store(const CalDavParse::EventResource &resource, const QList<SyncRow> &known, const QSet<QString> &listed,
                 QSet<QString> &knownUids) override
    {
        Stored result;
        QSet<QString> found; // ids of rows
        const QList<Record> records = Kind::parse(resource.calendarData);
        for (const Record &record : records) {
            const bool isNew = !knownUids.contains(record.uid);
            const auto stored = isNew ? std::nullopt : m_kind.find(record);
            if (stored)
                found.insert(stored->id);
            if (!Kind::isReadable(record))
                continue;
            storeRecord(record, stored, resource, listed, result);
        }
        for (const Record &record : records)
            knownUids.insert(record.uid);
        if (!records.isEmpty() && isWhole(resource.calendarData)) {
            for (const SyncRow &row : known) {
                if (!found.contains(row.id))
                    purge(row.id, resource.href);
            }
        }
        return result;
    }

    bool purge(const QString &id, const QString &href) override
    {
        const auto stored = m_kind.repository->getById(id);
        return stored && !isPending(*stored) && stored->href == href && m_kind.repository->hardDelete(id);
    }

    bool forgetAddress(const QString &id, const QString &href) override
    {
        const auto stored = m_kind.repository->getById(id);
        return stored && isPending(*stored) && !stored->deletedAt && stored->href == href
            && m_kind.repository->setAddress(id, {}, {});
    }

    QList<PendingRow> pendingRows(qint64 afterRowid, int limit) override
    {
        return m_kind.repository->pendingRows(m_kind.calendarId, afterRowid, limit);
    }

    std::unique_ptr<PendingResource> open(const QString &uid, const QString &href) override
    {
        const QList<Record> family = m_kind.family(uid);
        QList<Record> rows = family;
        const QString address = href.isEmpty() ? commonHref(rows) : href;
        rows.removeIf([&](const Record &row) { return !row.href.isEmpty() && row.href != address; });
        auto pending = std::make_unique<PendingResourceOf<Kind>>(m_database, m_kind, family, rows);
        if (pending->isEmpty())
            return nullptr;
        return pending;
    }

private:
    // A text that was cut off must not take away what stood behind the cut.
    static bool isWhole(const QString &text) { return text.trimmed().endsWith(QLatin1StringView("END:VCALENDAR")); }

    static void logPulled(const Record &record, const std::optional<Record> &stored)
    {
        if (!caldavLog().isDebugEnabled())
            return;
        const QString existing =
            stored ? QStringLiteral("id=%1 status=%2").arg(stored->id, stored->syncStatus) : QStringLiteral("(none)");
        const QString key = Kind::key(record);
        qCDebug(caldavLog).noquote() << "[CalDav] pull row" << record.title << "uid=" << record.uid
                                     << "recurrenceId=" << (key.isEmpty() ? QStringLiteral("(empty)") : key)
                                     << "existing=" << existing << "serverStart=" << Kind::when(record);
    }

    void storeRecord(Record record, const std::optional<Record> &stored, const CalDavParse::EventResource &resource,
                     const QSet<QString> &listed, Stored &result)
    {
        const bool waits = stored && isPending(*stored);
        result.read += Kind::CountsPending || !waits;
        logPulled(record, stored);
        // Another resource that holds the same UID keeps the row: else the two would take it from each other for ever.
        if (stored && !stored->href.isEmpty() && stored->href != resource.href && listed.contains(stored->href))
            return;
        if (waits) {
            result.hasPending = true;
            const QString href = resource.href.isEmpty() ? stored->href : resource.href;
            if (stored->etag != resource.etag || stored->href != href)
                m_kind.repository->setAddress(stored->id, href, resource.etag);
            return;
        }
        // Another row of the resource was behind, or the listing spells its address differently.
        if (stored && !resource.etag.isEmpty() && stored->etag == resource.etag && stored->href == resource.href)
            return;
        record.calendarId = m_kind.calendarId;
        record.href = resource.href;
        record.etag = resource.etag;
        record.syncStatus = SyncStatus::Synced;
        if (!record.created.isValid())
            record.created = QDateTime::currentDateTimeUtc();
        if (!record.lastModified.isValid())
            record.lastModified = record.created;
        if (stored) {
            record.id = stored->id;
            Kind::keepWhatIsOnlyHere(record, *stored);
            result.written += m_kind.repository->update(record);
        } else {
            record.id = newId();
            result.written += m_kind.repository->insert(record);
        }
    }

    Database *m_database;
    Kind m_kind;
};

}

std::unique_ptr<SyncTable> SyncTable::events(AppState *state, const QString &calendarId)
{
    return std::make_unique<SyncTableOf<Events>>(state->database(),
                                                 Events{ .repository = state->events(), .calendarId = calendarId });
}

std::unique_ptr<SyncTable> SyncTable::tasks(AppState *state, const QString &calendarId)
{
    return std::make_unique<SyncTableOf<Tasks>>(state->database(),
                                                Tasks{ .repository = state->tasks(), .calendarId = calendarId });
}
