#pragma once

#include "models/ViewDef.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

class Database;

/// Table `calendar_views`: the named calendar groups.
class ViewRepository : public QObject {
    Q_OBJECT

public:
    explicit ViewRepository(Database *database, QObject *parent = nullptr);

    QList<ViewDef> getAll(); ///< live; the default group first
    QList<ViewDef> getAllIncludingDeleted();
    std::optional<ViewDef> getById(const QString &id); ///< a tombstone too
    bool insert(const ViewDef &view);
    bool update(const ViewDef &view);
    bool reorder(const QStringList &ids);
    bool softDelete(const QString &id);
    bool hardDelete(const QString &id);

signals:
    void viewsChanged();

private:
    bool announce(bool stored); // signals a write that succeeded

    Database *m_database;
};
