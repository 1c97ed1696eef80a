#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>

class BulkWrites;
class Database;

/// Hard-deletes calendars with everything in them, without holding up the event loop.
///
/// A small calendar goes within the call. A large one is marked in the settings, which takes it from every
/// read at once, and its rows then go in slices of the event loop; a start goes on with what an earlier run
/// left. Use Database::removals().
class CalendarRemovals : public QObject {
    Q_OBJECT

public:
    explicit CalendarRemovals(Database *database);
    ~CalendarRemovals() override;

    /// False, with a warning, if the database refuses; the calendar is then as it was.
    bool remove(const QString &calendarId);
    /// Marks a calendar, whatever its size. Belongs into the Savepoint of the caller.
    bool mark(const QString &calendarId);
    /// Whether these calendars hold too much to be deleted in one go.
    bool areLarge(const QStringList &calendarIds);

    /// The calendars that are marked: a reader must not show what they still hold.
    [[nodiscard]] const QSet<QString> &ids() const { return m_ids; }
    /// Ends the removal of a marked calendar at once, for who needs its id again. False as in remove().
    bool finish(const QString &calendarId);

    /// Takes up the marks of an earlier run.
    void resume();
    /// Leaves what is under way to the next resume().
    void pause();

private:
    void readMarks();
    void runSlice();
    bool deleteSome(const QString &calendarId);
    bool deleteRest(const QString &calendarId);

    Database *m_database;
    QTimer m_timer;
    QSet<QString> m_ids;
    QStringList m_queue; // those of them that this run works on
    std::unique_ptr<BulkWrites> m_bulkWrites;
};
