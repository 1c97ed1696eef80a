#pragma once

#include "models/EventTemplate.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class Database;

/// Table `event_templates`.
class TemplateRepository : public QObject {
    Q_OBJECT

public:
    explicit TemplateRepository(Database *database, QObject *parent = nullptr);

    QList<EventTemplate> getAll(); ///< live, in the user's order, then by name
    QList<EventTemplate> getAllIncludingDeleted();
    std::optional<EventTemplate> getById(const QString &id); ///< live only
    bool insert(const EventTemplate &eventTemplate); ///< an empty id gets a new one
    bool update(const EventTemplate &eventTemplate);
    bool reorder(const QStringList &ids); ///< their new order; all or none
    bool softDelete(const QString &id);
    bool hardDelete(const QString &id);

signals:
    void templatesChanged();

private:
    bool announce(bool stored); // signals a write that succeeded

    Database *m_database;
};
