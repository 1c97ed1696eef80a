#include "storage/FilterRuleRepository.h"

#include "storage/Database.h"
#include "storage/Reorder.h"
#include "storage/Statement.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

FilterRuleRepository::FilterRuleRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

QList<FilterRule> FilterRuleRepository::getAll()
{
    return Tables::filterRules().list(m_database, QStringLiteral(" WHERE deleted_at IS NULL ORDER BY priority, name"));
}

QList<FilterRule> FilterRuleRepository::getAllIncludingDeleted()
{
    return Tables::filterRules().list(m_database, QStringLiteral(" ORDER BY priority, name"));
}

QList<FilterRule> FilterRuleRepository::getEnabled()
{
    return Tables::filterRules().list(
        m_database, QStringLiteral(" WHERE deleted_at IS NULL AND enabled = 1 ORDER BY priority, name"));
}

std::optional<FilterRule> FilterRuleRepository::getById(const QString &id)
{
    return Tables::filterRules().first(m_database, QStringLiteral(" WHERE id = ?"), { id });
}

bool FilterRuleRepository::insert(const FilterRule &rule)
{
    return announce(Tables::filterRules().insert(m_database, rule, "FilterRuleRepository::insert failed:"));
}

bool FilterRuleRepository::update(const FilterRule &rule)
{
    FilterRule row = rule;
    row.updatedAt = QDateTime::currentDateTimeUtc();
    return announce(Tables::filterRules().update(m_database, row, "FilterRuleRepository::update failed:"));
}

bool FilterRuleRepository::setEnabled(const QString &id, bool enabled)
{
    return announce(runStatement(m_database, "FilterRuleRepository::setEnabled failed:",
                                 QStringLiteral("UPDATE filter_rules SET enabled = ?, sync_status = 'pending',"
                                                " updated_at = ? WHERE id = ?"),
                                 { enabled ? 1 : 0, StoredTime::now(), id }));
}

bool FilterRuleRepository::reorder(const QStringList &ids)
{
    return announce(storeOrder(m_database, "FilterRuleRepository::reorder failed:",
                               QStringLiteral("UPDATE filter_rules SET priority = ?, sync_status = 'pending',"
                                              " updated_at = ? WHERE id = ?"),
                               ids));
}

bool FilterRuleRepository::softDelete(const QString &id)
{
    const QVariant now = StoredTime::now();
    return announce(runStatement(m_database, "FilterRuleRepository::softDelete failed:",
                                 QStringLiteral("UPDATE filter_rules SET deleted_at = ?, sync_status = 'pending',"
                                                " updated_at = ? WHERE id = ?"),
                                 { now, now, id }));
}

bool FilterRuleRepository::hardDelete(const QString &id)
{
    return announce(runStatement(m_database, "FilterRuleRepository::hardDelete failed:",
                                 QStringLiteral("DELETE FROM filter_rules WHERE id = ?"), { id }));
}

bool FilterRuleRepository::announce(bool stored)
{
    if (!stored)
        return false;
    m_database->dataWritten();
    emit filterRulesChanged();
    return true;
}
