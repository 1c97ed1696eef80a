#include "storage/ViewRepository.h"

#include "storage/Database.h"
#include "storage/Reorder.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

ViewRepository::ViewRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<ViewDef> ViewRepository::getAll()
{
    return Tables::views().list(m_database,
                                QStringLiteral(" WHERE deleted_at IS NULL ORDER BY is_default DESC, sort_order, name"));
}

QList<ViewDef> ViewRepository::getAllIncludingDeleted()
{
    return Tables::views().list(m_database, QStringLiteral(" ORDER BY is_default DESC, sort_order, name"));
}

std::optional<ViewDef> ViewRepository::getById(const QString &id)
{
    return Tables::views().first(m_database, QStringLiteral(" WHERE id = ?"), { id });
}

bool ViewRepository::insert(const ViewDef &view)
{
    return announce(Tables::views().insert(m_database, view, "ViewRepository::insert failed:"));
}

bool ViewRepository::update(const ViewDef &view)
{
    ViewDef row = view;
    row.updatedAt = QDateTime::currentDateTimeUtc();
    return announce(Tables::views().update(m_database, row, "ViewRepository::update failed:"));
}

bool ViewRepository::reorder(const QStringList &ids)
{
    if (ids.isEmpty())
        return true;
    return announce(storeOrder(m_database, "ViewRepository::reorder failed:",
                               QStringLiteral("UPDATE calendar_views SET sort_order = ?, sync_status = 'pending',"
                                              " updated_at = ? WHERE id = ?"),
                               ids));
}

bool ViewRepository::softDelete(const QString &id)
{
    const QVariant now = StoredTime::now();
    return announce(runStatement(m_database, "ViewRepository::softDelete failed:",
                                 QStringLiteral("UPDATE calendar_views SET deleted_at = ?, sync_status = 'pending',"
                                                " updated_at = ? WHERE id = ?"),
                                 { now, now, id }));
}

bool ViewRepository::hardDelete(const QString &id)
{
    return announce(runStatement(m_database, "ViewRepository::hardDelete failed:",
                                 QStringLiteral("DELETE FROM calendar_views WHERE id = ?"), { id }));
}

bool ViewRepository::announce(bool stored)
{
    if (!stored)
        return false;
    m_database->dataWritten();
    emit viewsChanged();
    return true;
}
