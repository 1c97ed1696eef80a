#include "storage/TemplateRepository.h"

#include "models/NewId.h"
#include "storage/Reorder.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

TemplateRepository::TemplateRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<EventTemplate> TemplateRepository::getAll()
{
    return Tables::templates().list(m_database, QStringLiteral(" WHERE deleted_at IS NULL ORDER BY sort_order, name"));
}

QList<EventTemplate> TemplateRepository::getAllIncludingDeleted()
{
    return Tables::templates().list(m_database, QStringLiteral(" ORDER BY sort_order, name"));
}

std::optional<EventTemplate> TemplateRepository::getById(const QString &id)
{
    return Tables::templates().first(m_database, QStringLiteral(" WHERE deleted_at IS NULL AND id = ?"), { id });
}

bool TemplateRepository::insert(const EventTemplate &eventTemplate)
{
    EventTemplate row = eventTemplate;
    if (row.id.isEmpty())
        row.id = newId();
    row.createdAt = QDateTime::currentDateTimeUtc();
    row.updatedAt = row.createdAt;
    return announce(Tables::templates().insert(m_database, row, "TemplateRepository::insert failed:"));
}

bool TemplateRepository::update(const EventTemplate &eventTemplate)
{
    EventTemplate row = eventTemplate;
    row.updatedAt = QDateTime::currentDateTimeUtc();
    return announce(Tables::templates().update(m_database, row, "TemplateRepository::update failed:"));
}

bool TemplateRepository::reorder(const QStringList &ids)
{
    return announce(storeOrder(m_database, "TemplateRepository::reorder failed:",
                               QStringLiteral("UPDATE event_templates SET sort_order = ?, sync_status = 'pending',"
                                              " updated_at = ? WHERE id = ?"),
                               ids));
}

bool TemplateRepository::softDelete(const QString &id)
{
    const QVariant now = StoredTime::now();
    return announce(runStatement(m_database, "TemplateRepository::softDelete failed:",
                                 QStringLiteral("UPDATE event_templates SET deleted_at = ?, sync_status = 'pending',"
                                                " updated_at = ? WHERE id = ?"),
                                 { now, now, id }));
}

bool TemplateRepository::hardDelete(const QString &id)
{
    return announce(runStatement(m_database, "TemplateRepository::hardDelete failed:",
                                 QStringLiteral("DELETE FROM event_templates WHERE id = ?"), { id }));
}

bool TemplateRepository::announce(bool stored)
{
    if (stored)
        emit templatesChanged();
    return stored;
}
