#pragma once

#include "models/Event.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <map>
#include <set>
#include <utility>

class Database;
class Statement;

/// Answers which events overlap a range, fast also with tens of thousands of rows stored.
///
/// Most events are short, so an index scan over their starts from a week before the range finds them.
/// What such a scan would miss is kept in memory: series, overrides, events without an end, and long
/// ones. That memory is read once and follows the writes it is told of; it is read anew after
/// Database::eventPurges() has changed.
class EventRanges {
public:
    explicit EventRanges(Database *database);

    /// See EventRepository::getInRange.
    QList<Event> inRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);
    /// See EventRepository::getOverrides.
    QList<Event> overridesOf(const QStringList &masterUids, const QStringList &calendarIds);

    void onWritten(const Event &event); ///< inserted or replaced
    void onTouched(const QString &id); ///< changed in some column, or deleted

private:
    using Key = std::pair<QByteArray, qint64>; // start as it is stored, rowid: the order of the results
    struct Standing {
        Event event;
        QByteArray endText; // null for a row without an end
    };

    void refresh();
    void load();
    void readAgain(const QStringList &ids);
    void add(Statement &rows);
    void forget(const QString &id);
    QList<Event> shortOnes(const QString &start, const QString &end, const QStringList &calendarIds,
                           QList<Key> &keys) const;

    Database *m_database;
    bool m_isLoaded = false;
    bool m_isProvisional = false; // read inside a Savepoint, which may yet be rolled back
    quint64 m_purges = 0;
    std::map<Key, Standing> m_standing;
    QHash<QString, Key> m_keys; // by event id
    QHash<QString, std::set<Key>> m_overrides; // by the UID of their series
    QSet<QString> m_stale; // ids to read again
};
