#include "calendar/services/RecurringEdits.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"

#include <QSet>

#include <algorithm>

using RecurringEdits::SeriesSnapshot;

namespace {

QSet<QString> idsOf(const QList<Event> &rows)
{
    QSet<QString> ids;
    for (const Event &row : rows)
        ids.insert(row.id);
    return ids;
}

/// The row that holds \p content now. After a purge a sync may have stored it anew, under another id.
std::optional<Event> rowOf(EventRepository *repository, const Event &content, const QSet<QString> &knownIds)
{
    std::optional<Event> row = repository->getById(content.id);
    if (row)
        return row;
    row = repository->getByUidAndRecurrenceId(content.uid, content.calendarId, content.recurrenceId);
    return row && !knownIds.contains(row->id) ? row : std::nullopt;
}

Event withContent(const Event &row, const Event &content)
{
    Event restored = content;
    restored.id = row.id;
    restored.sequence = std::max(row.sequence, content.sequence);
    restored.syncStatus = SyncStatus::Pending;
    // One that a split took along has, if any, an address in the other series.
    if (row.uid == content.uid) {
        restored.providerEventId = row.providerEventId;
        restored.etag = row.etag;
        restored.href = row.href;
    }
    return restored;
}

/// The series and its tail as they are stored now.
QList<Event> rowsNow(EventRepository *repository, const SeriesSnapshot &before)
{
    const Event &first = before.rows.constFirst();
    QList<Event> rows = repository->getSeries(first.uid, first.calendarId);
    if (!before.tailUid.isEmpty())
        rows += repository->getSeries(before.tailUid, first.calendarId);
    return rows;
}

/// What an edit added, as tombstones. A tombstone needs its address, but no instance: one in the way of a
/// row that comes back gives the instance up.
QList<Event> withdrawn(EventRepository *repository, const SeriesSnapshot &before, const QSet<QString> &keptIds)
{
    const Event &first = before.rows.constFirst();
    QList<Event> rows = rowsNow(repository, before);
    rows.removeIf([&](const Event &row) { return keptIds.contains(row.id) || !before.addedIds.contains(row.id); });
    QSet<QString> keys;
    for (const Event &row : before.rows)
        keys.insert(row.recurrenceId);
    for (Event &row : rows) {
        if (!row.deletedAt)
            row.deletedAt = QDateTime::currentDateTimeUtc();
        if (row.uid == first.uid && keys.contains(row.recurrenceId))
            row.recurrenceId = row.id;
        row.syncStatus = SyncStatus::Pending;
    }
    return rows;
}

}

SeriesSnapshot RecurringEdits::snapshot(EventRepository *repository, const Event &master)
{
    return { .rows = repository ? repository->getSeries(master.uid, master.calendarId) : QList<Event>(),
             .tailUid = {},
             .addedIds = {} };
}

void RecurringEdits::noteAdded(EventRepository *repository, SeriesSnapshot &before)
{
    if (!repository || before.rows.isEmpty())
        return;
    const QSet<QString> known = idsOf(before.rows);
    for (const Event &row : rowsNow(repository, before)) {
        if (!known.contains(row.id))
            before.addedIds.append(row.id);
    }
}

bool RecurringEdits::restore(EventRepository *repository, const SeriesSnapshot &before)
{
    if (!repository || before.rows.isEmpty())
        return false;
    Savepoint savepoint(repository->database());
    if (!savepoint.isActive())
        return false;
    const QSet<QString> knownIds = idsOf(before.rows);
    QList<Event> rows;
    QList<Event> purged;
    for (const Event &content : before.rows) {
        if (const auto row = rowOf(repository, content, knownIds))
            rows.append(withContent(*row, content));
        else if (!content.deletedAt)
            purged.append(content);
    }
    rows += withdrawn(repository, before, idsOf(rows));
    if (!repository->updateAll(rows))
        return false;
    for (const Event &content : std::as_const(purged)) {
        if (!repository->restoreDeleted(content))
            return false;
    }
    return savepoint.commit();
}
