#pragma once

#include "models/Event.h"
#include "storage/EventSelection.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <limits>
#include <map>
#include <set>
#include <utility>

class CalendarFilter;
class Database;
class Statement;

/// Answers which events overlap a range, fast also with tens of thousands of rows stored.
///
/// Most events are short, so an index scan over their starts from a week before the range finds them.
/// What such a scan would miss is kept in memory: series, overrides, events without an end, and long
/// ones. That memory is read once, in order of rowid, and follows the writes it is told of. Whoever has
/// an event loop lets it catch up slice by slice; a read finishes what is left.
class EventRanges {
public:
    explicit EventRanges(Database *database);

    /// See EventRepository::getInRange, getOverrides and select.
    QList<Event> inRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);
    QList<Event> overridesOf(const QStringList &masterUids, const QStringList &calendarIds);
    EventSelection select(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);

    void onWritten(const Event &event); ///< inserted or replaced
    void onTouched(const QString &id); ///< changed in some column, or deleted
    void onPurged(const QString &calendarId); ///< see Database::purged

    /// Whether a read finds all it needs in memory.
    [[nodiscard]] bool isCaughtUp() const { return m_isLoaded && !m_isProvisional && m_stale.isEmpty(); }
    /// Reads on for about \p sliceMs. False if the database refuses. Does nothing inside a Savepoint.
    bool catchUp(int sliceMs);

private:
    using Key = std::pair<QByteArray, qint64>; // start as it is stored, rowid: the order of the results
    struct Standing {
        Event event;
        QByteArray endText; // null for a row without an end
    };
    struct Window {
        Window(const QDateTime &start, const QDateTime &end);
        QString startText;
        QString endText;
        QByteArray startDigits; // the same, to compare with what is kept
        QByteArray endDigits;

        [[nodiscard]] bool isValid() const { return !startText.isEmpty() && !endText.isEmpty(); }
        [[nodiscard]] bool holds(const Key &key, const Standing &row) const;
    };
    static constexpr qint64 BeforeAllRows = std::numeric_limits<qint64>::min();

    EventSelection rowsIn(const Window &window, const CalendarFilter &filter);
    void addOverrides(EventSelection &selection, const Window &window, const CalendarFilter &filter) const;
    QList<Event> shortOnes(const Window &window, const CalendarFilter &filter, QList<Key> &keys) const;

    void refresh();
    void startOver();
    bool loadNextRows();
    bool readAgain(const QStringList &ids);
    void add(Statement &rows);
    void forget(const QString &id);

    Database *m_database;
    bool m_isLoaded = false;
    bool m_isProvisional = false; // read inside a Savepoint, which may yet be rolled back
    qint64 m_loadedTo = BeforeAllRows; // rowid
    std::map<Key, Standing> m_standing;
    QHash<QString, Key> m_keys; // by event id
    QHash<QString, std::set<Key>> m_overrides; // by the UID of their series
    QSet<QString> m_stale; // ids to read again
};
