#pragma once

#include "models/Reminder.h"
#include "storage/CalendarFilter.h"
#include "storage/Table.h"

#include <QHash>
#include <QUuid>

/// The rows below an event or a task: read for many owners at once, and always replaced whole.
namespace ChildRows {

/// What tells one kind of child from another.
template <typename Child> struct Kind {
    const Table<Child> &table;
    const char *ownerColumn;
    QString Child::*ownerId;
    QString order; ///< " ORDER BY …" or empty
    const char *deleteFailure;
    const char *insertFailure;
};

const Kind<Reminder> &eventReminders();
const Kind<Reminder> &taskReminders();

/// The children of these owners, in the order of their kind for each owner.
template <typename Child> QList<Child> read(Database *database, const Kind<Child> &kind, const QStringList &ownerIds)
{
    QList<Child> children;
    for (qsizetype from = 0; from < ownerIds.size(); from += SqlList::MaxValues) {
        const QStringList ids = ownerIds.mid(from, SqlList::MaxValues);
        const QString tail =
            QStringLiteral(" WHERE %1 IN (%2)").arg(QLatin1StringView(kind.ownerColumn), SqlList::places(ids.size()))
            + kind.order;
        const bool isUsual = ids.size() == 1 || ids.size() == SqlList::MaxValues;
        children +=
            kind.table.list(database, tail, SqlList::values(ids), isUsual ? Statement::Cached : Statement::Once);
    }
    return children;
}

/// Fills \p list of every owner.
template <typename Owner, typename Child>
void attach(Database *database, const Kind<Child> &kind, QList<Owner> &owners, QList<Child> Owner::*list)
{
    QStringList ids;
    QHash<QString, Owner *> byId;
    for (Owner &owner : owners) {
        ids.append(owner.id);
        byId.insert(owner.id, &owner);
    }
    for (Child &child : read(database, kind, ids)) {
        if (Owner *owner = byId.value(child.*kind.ownerId))
            (owner->*list).append(std::move(child));
    }
}

/// Whether an owner may have children already.
enum class Owner { New, Stored };

/// Writes the children of one owner in place of those it has. A child copied from another owner gets an
/// id of its own, as one without id does.
template <typename Child>
bool write(Database *database, const Kind<Child> &kind, Owner owner, const QString &ownerId,
           const QList<Child> &children)
{
    if (owner == Owner::Stored) {
        const QString remove =
            QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(kind.table.name(), QLatin1StringView(kind.ownerColumn));
        if (!runStatement(database, kind.deleteFailure, remove, { ownerId }))
            return false;
    }
    for (Child child : children) {
        QString &formerId = child.*kind.ownerId;
        if (child.id.isEmpty() || (!formerId.isEmpty() && formerId != ownerId))
            child.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        formerId = ownerId;
        if (!kind.table.insert(database, child, kind.insertFailure))
            return false;
    }
    return true;
}

/// write() for reminders. What has no trigger time gets \p anchor minus its minutes, or none without an
/// anchor.
bool writeReminders(Database *database, const Kind<Reminder> &kind, Owner owner, const QString &ownerId,
                    QList<Reminder> reminders, const QDateTime &anchor);

/// What a rewritten owner's reminders take over from the stored ones. Where \p anchorMoved, they are due
/// again at a new time; else one that was acknowledged stays so, also if the writer did not know of it.
void carryOver(QList<Reminder> &reminders, QList<Reminder> stored, bool anchorMoved);

} // namespace ChildRows
