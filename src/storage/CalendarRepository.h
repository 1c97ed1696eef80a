#pragma once

#include "models/Calendar.h"

#include <QList>
#include <QObject>

#include <optional>

class Database;

/// Table `calendars`. Writes return false and log on a database error; reads then give nothing.
class CalendarRepository : public QObject {
    Q_OBJECT

public:
    explicit CalendarRepository(Database *database, QObject *parent = nullptr);

    QList<Calendar> getAll(); ///< live, in the user's order, then by name
    QList<Calendar> getByAccount(const QString &accountId);
    std::optional<Calendar> getById(const QString &id); ///< live only
    QList<Calendar> getDeleted(); ///< tombstones, without those under removal

    bool insert(const Calendar &calendar);
    bool update(const Calendar &calendar);
    bool softDelete(const QString &id); ///< hides it, with its events, until a sync has acted
    bool restore(const QString &id);
    bool remove(const QString &id); ///< only for a row with no children
    bool removeDeep(const QString &id); ///< with everything in it; see CalendarRemovals
    bool setVisible(const QString &id, bool visible);
    bool setDefault(const QString &id); ///< leaves exactly one default

    /// Hard-deletes a calendar and everything in it, children first. Emits nothing.
    static bool deleteDeep(Database *database, const QString &id);

signals:
    void calendarsChanged();

private:
    bool announce(bool stored); // signals a write that succeeded

    Database *m_database;
};
