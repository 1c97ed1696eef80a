#pragma once

#include "models/Event.h"
#include "storage/ChangeOrigin.h"
#include "storage/EventSelection.h"
#include "storage/SyncedRepository.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

class Database;
class EventRanges;
class QTimer;

/// Table `events` with `reminders` and `attendees`. Every read gives whole records, children included.
/// Each write is atomic; on a database error it returns false, logs, and changes nothing.
class EventRepository : public SyncedRepository {
    Q_OBJECT

public:
    explicit EventRepository(Database *database, QObject *parent = nullptr);
    ~EventRepository() override;

    /// Range reads need much of the table at hand. From here on that is read, and kept up with writes, in
    /// slices of the event loop. A range read before warmedUp() is as right, but reads all that is left.
    void warmUp();
    [[nodiscard]] bool isWarm() const;

    QList<Event> getByCalendar(const QString &calendarId);
    QList<Event> getByCalendarIncludingDeleted(const QString &calendarId);

    /// Live events whose stored text overlaps [\p start, \p end), and every series that begins before
    /// \p end, ordered by start. An empty \p calendarIds means all calendars.
    ///
    /// The stored texts are compared digit by digit and not as instants: a caller that needs instants
    /// asks for a day more on each side, and looks again (see VisibleEvents).
    QList<Event> getInRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);

    /// The same rows, and the overrides of the series among them wherever they moved to, not copied.
    EventSelection select(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);

    /// The live overrides of these series in these calendars, wherever they moved to.
    QList<Event> getOverrides(const QStringList &masterUids, const QStringList &calendarIds);

    std::optional<Event> getById(const QString &id); ///< a tombstone too
    /// Case-insensitive for ASCII; "%" and "_" are wildcards.
    QList<Event> search(const QString &text, int limit);
    QList<Event> findByRelatedToUid(const QString &uid);
    std::optional<Event> getByUid(const QString &uid, const QString &calendarId); ///< a tombstone too
    std::optional<Event> getByUidAndRecurrenceId(const QString &uid, const QString &calendarId,
                                                 const QString &recurrenceId); ///< a tombstone too
    QList<Event> getPending(const QString &calendarId); ///< tombstones included: deletions to push
    /// The master of a series, or a single event, then its overrides; tombstones too.
    QList<Event> getSeries(const QString &uid, const QString &calendarId);

    /// Fails if the calendar has this UID and recurrence id already.
    bool insert(const Event &event);
    /// insert() for an event that was made here. Where a tombstone holds this UID and recurrence id in the
    /// calendar, that row comes back with the new content and keeps its id, address and etag, pending.
    /// The id of the row; empty on failure.
    QString insertOrRevive(Event event);
    /// Replaces the row and all its children; lastModified becomes now. When the start moved, the
    /// reminders that hang on it get new trigger times and are due again; else both stay.
    bool update(const Event &event);
    /// update() for rows that may take each other's UID and recurrence id; all of them or none.
    bool updateAll(const QList<Event> &events);
    bool hardDelete(const QString &id);
    /// Brings a deleted event back for undo, also after a sync purged the row.
    bool restoreDeleted(const Event &event);

signals:
    /// 150 ms after the last write of a burst. \p calendarId is the last one touched, not the only one.
    void eventsChanged(const QString &calendarId, ChangeOrigin origin);
    /// Range reads are fast now: after warmUp(), and after each catching up with writes.
    void warmedUp();

private:
    void catchUp();
    void catchUpSoon();
    void onWritten(const Event &event);
    void onTouched(const QString &id) override;
    void onTouchedAll(const QString &calendarId) override;

    QTimer *m_catchUp;
    bool m_isKeptWarm = false;
    std::unique_ptr<EventRanges> m_ranges;
};
