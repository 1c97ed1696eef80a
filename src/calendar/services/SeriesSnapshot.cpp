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

/// Takes away what an edit added. A tombstone needs its address, but no instance: a row in the way of one that
/// comes back gives the instance up, and goes for good if it only said that this one had left.
bool withdraw(EventRepository *repository, const SeriesSnapshot &before, const QSet<QString> &keptIds,
              QList<Event> &rows)
{
    const Event &first = before.rows.constFirst();
    QSet<QString> keys;
    for (const Event &row : before.rows)
        keys.insert(row.recurrenceId);
    for (Event &row : rowsNow(repository, before)) {
        if (keptIds.contains(row.id) || !before.addedIds.contains(row.id))
            continue;
        const bool isInTheWay = row.uid == first.uid && keys.contains(row.recurrenceId);
        if (isInTheWay && row.deletedAt) {
            if (!repository->hardDelete(row.id))
                return false;
            continue;
        }
        if (!row.deletedAt)
            row.deletedAt = QDateTime::currentDateTimeUtc();
        if (isInTheWay)
            row.recurrenceId = row.id;
        row.syncStatus = SyncStatus::Pending;
        rows.append(row);
    }
    return true;
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
    const QSet<QString> knownIds = idsOf(before.rows) + QSet<QString>(before.addedIds.begin(), before.addedIds.end());
    QList<Event> rows;
    QList<Event> purged;
    for (const Event &content : before.rows) {
        if (const auto row = rowOf(repository, content, knownIds))
            rows.append(withContent(*row, content));
        else if (!content.deletedAt)
            purged.append(content);
    }
    if (!withdraw(repository, before, idsOf(rows), rows) || !repository->updateAll(rows))
        return false;
    for (const Event &content : std::as_const(purged)) {
        if (!repository->restoreDeleted(content))
            return false;
    }
    return savepoint.commit();
}
