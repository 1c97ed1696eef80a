#pragma once

#include "models/FilterRule.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class Database;

/// Table `filter_rules`.
class FilterRuleRepository : public QObject {
    Q_OBJECT

public:
    explicit FilterRuleRepository(Database *database, QObject *parent = nullptr);

    QList<FilterRule> getAll(); ///< live, by priority, then by name
    QList<FilterRule> getAllIncludingDeleted();
    QList<FilterRule> getEnabled();
    std::optional<FilterRule> getById(const QString &id); ///< a tombstone too
    bool insert(const FilterRule &rule);
    bool update(const FilterRule &rule);
    bool setEnabled(const QString &id, bool enabled);
    bool reorder(const QStringList &ids); ///< the position becomes the priority
    bool softDelete(const QString &id);
    bool hardDelete(const QString &id);

signals:
    void filterRulesChanged();

private:
    bool announce(bool stored); // signals a write that succeeded

    Database *m_database;
};
