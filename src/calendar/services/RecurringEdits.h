#pragma once

#include "models/Event.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class EventRepository;

/// Changes of time of a series: one occurrence, that and all later ones, or all. Each is one transaction, and
/// makes what it wrote pending. No instance shows twice afterwards, and none that was excluded comes back.
namespace RecurringEdits {

enum class Scope { Cancel, ThisOnly, ThisAndFollowing, All };

/// Moves the occurrence of \p master that begins at \p originalStart to \p newStart, and others with it as far
/// as \p scope says. A \p newEnd sets the duration too, else it stays. Cancel changes nothing and is a success.
///
/// \p master is the row as stored now. All times may come in any zone; of an all-day series their dates count.
/// Days and hours count on the clock of the series. One that is in UTC for want of a zone takes the
/// machine's, where that leaves its instances on their days.
///
/// - ThisOnly makes an override with the content of the series.
/// - ThisAndFollowing ends the series before the occurrence, and makes a new one without an end, which takes
///   the later overrides and exception dates over. \p tailUid, if given, is set to its UID. The first
///   occurrence and all following are All.
/// - All moves the master as replaceMaster() has it. The rule keeps its weekdays.
///
/// False, and nothing changed, if there is no repository, if the series has no such occurrence or that has
/// an override already, if a time is invalid or the end before the start, or if the database refuses.
bool apply(EventRepository *repository, const Event &master, const QDateTime &originalStart, const QDateTime &newStart,
           const std::optional<QDateTime> &newEnd, Scope scope, QString *tailUid = nullptr);

/// Stores \p after in place of the master \p before, pending and with the next sequence. Its exception dates
/// and the keys of its overrides go where their instances go (see SeriesMove), and so does an UNTIL that would
/// change which instances there are. An override that stands where the series had it goes along; one that
/// was moved stays.
bool replaceMaster(EventRepository *repository, const Event &before, const Event &after);

/// \p rule ending at the last instance that begins no later than \p cut: UNTIL in UTC in place of COUNT and UNTIL.
QString withUntil(const QString &rule, const QDateTime &cut);

/// What takes an edit of a series back.
struct SeriesSnapshot {
    QList<Event> rows; ///< master and overrides as stored before the edit, tombstones too
    QString tailUid; ///< as apply() gave it; empty if it made no series
    QStringList addedIds; ///< rows that the edit made, as noteAdded() found them
};

/// The rows of the series of \p master as they are stored now.
SeriesSnapshot snapshot(EventRepository *repository, const Event &master);

/// Notes, right after the edit, which rows of the series and of its tail are new.
void noteAdded(EventRepository *repository, SeriesSnapshot &before);

/// Gives every row of the snapshot its content back, pending. What a sync learnt of it since stays (address,
/// etag, sequence). A row that was purged comes back as a new one; the rows that the edit made become
/// tombstones. What a sync added since then stays. False, and nothing changed, if the snapshot is empty or the
/// database refuses.
bool restore(EventRepository *repository, const SeriesSnapshot &before);

} // namespace RecurringEdits
