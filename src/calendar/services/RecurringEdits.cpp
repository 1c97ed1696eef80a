#include "calendar/services/RecurringEdits.h"

#include "calendar/InstanceName.h"
#include "calendar/RecurrenceRule.h"
#include "calendar/RruleExpander.h"
#include "calendar/RuleEnd.h"
#include "calendar/SeriesMove.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"
#include "calendar/services/EventEditsPrivate.h"
#include "calendar/services/EventTimes.h"
#include "models/NewId.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "storage/StoredTime.h"

#include <QSet>

using EventEditsPrivate::forgetServer;

namespace {

using Seconds = std::optional<qint64>;

// As expansion shows an instance of a series without an end.
constexpr qint64 DefaultLength = 3'600;

struct NewTimes {
    QDateTime start;
    std::optional<QDateTime> end;
};

Seconds lengthOf(const Event &event)
{
    return event.endTime && event.endTime->isValid() ? Seconds(event.startTime.secsTo(*event.endTime)) : std::nullopt;
}

/// The length that the times ask for; that of the series if they ask for none.
Seconds lengthOf(const NewTimes &times, const Event &series)
{
    if (!times.end)
        return lengthOf(series);
    const qint64 length = times.start.secsTo(*times.end);
    return !series.endTime && length == DefaultLength ? std::nullopt : Seconds(length);
}

/// \p time as \p event stores it. A series steps on the clock of its start, so it keeps that.
QDateTime asStored(const QDateTime &time, const Event &event)
{
    if (event.isAllDay)
        return StoredTime::wholeDay(time);
    const bool isUtc = event.timezone.isEmpty() || event.timezone == QLatin1StringView("UTC");
    if (isUtc && !event.isRecurring() && !EventTimes::floats(event))
        return time.toUTC();
    return WallClock(event.startTime).at(time.toMSecsSinceEpoch());
}

void setTimes(Event &event, const QDateTime &start, Seconds length)
{
    event.startTime = asStored(start, event);
    event.endTime.reset();
    if (length)
        event.endTime = event.startTime.addSecs(*length);
}

QDateTime inZone(const QDateTime &time, const QString &zone)
{
    return zone == QLatin1StringView("UTC") ? time.toUTC() : time.toTimeZone(TimeZones::ianaZone(zone));
}

/// True if the rule gives the same days on the clock of \p zone. A series that only counts days or weeks from
/// its start does; weekdays and days of the month need the same date on both clocks.
bool keepsDaysIn(const QString &zone, const Event &series, const QDateTime &instance)
{
    using Frequency = RecurrenceRule::Frequency;
    const RecurrenceRule rule = RecurrenceRule::parse(series.recurrenceRule);
    if (rule.weekdays == 0 && (rule.frequency == Frequency::Daily || rule.frequency == Frequency::Weekly))
        return true;
    const auto isSameDate = [&zone](const QDateTime &time) { return inZone(time, zone).date() == time.date(); };
    return isSameDate(series.startTime) && isSameDate(instance);
}

/// Puts the series on the machine's clock, with the hour that this shows for \p instance.
void takeMachineZone(Event &series, const QDateTime &instance)
{
    const QString zone = TimeZones::systemName();
    const bool isInstance = instance.time() == series.startTime.time(); // else it says nothing about the hour
    if (!isInstance || !keepsDaysIn(zone, series, instance))
        return;
    const Seconds length = lengthOf(series);
    const QDateTime shown = inZone(instance, zone);
    const QDate date = shown.date().addDays(instance.date().daysTo(series.startTime.date()));
    series.timezone = zone;
    series.startTime = WallClock(shown).at(date, shown.time());
    setTimes(series, series.startTime, length);
}

/// The series when its \p instance has gone to \p times.
Event moved(const Event &series, const QDateTime &instance, const NewTimes &times)
{
    Event result = series;
    if (EventTimes::lacksZone(series) && times.start != instance)
        takeMachineZone(result, instance);
    const WallClockShift shift = WallClockShift::between(asStored(instance, result), asStored(times.start, result));
    setTimes(result, shift.applied(result.startTime), lengthOf(times, series));
    return result;
}

/// A new row with the content of the series, but without its rule.
Event newRow(const Event &master)
{
    Event row = master;
    row.id = newId();
    forgetServer(row);
    row.sequence = 0;
    row.rawIcalendar.clear();
    row.recurrenceRule.clear();
    row.recurrenceDates.clear();
    row.exceptionDates.clear();
    row.created = QDateTime::currentDateTimeUtc();
    row.lastModified = row.created;
    row.syncStatus = SyncStatus::Pending;
    row.deletedAt.reset();
    for (Reminder &reminder : row.reminders) {
        reminder.id.clear();
        reminder.eventId.clear();
        reminder.acknowledged = false;
        reminder.triggerTime.reset();
    }
    for (Attendee &attendee : row.attendees) {
        attendee.id.clear();
        attendee.eventId.clear();
    }
    return row;
}

/// The override where its instance went.
Event followed(const Event &override, const SeriesMove &move, const Event &before, const Event &after)
{
    const auto name = InstanceName::parse(override.recurrenceId);
    if (!name)
        return override;
    Event row = override;
    const qint64 startMs = move.target(name->startMs);
    row.recurrenceId = InstanceName{ startMs, name->form }.text();
    const bool isInPlace = override.startTime.toMSecsSinceEpoch() == name->startMs;
    if (isInPlace && override.isAllDay == before.isAllDay && override.isAllDay == after.isAllDay) {
        const Seconds length = lengthOf(override);
        setTimes(row, QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC),
                 length == lengthOf(before) ? lengthOf(after) : length);
    }
    if (row != override) {
        ++row.sequence;
        row.syncStatus = SyncStatus::Pending;
    }
    return row;
}

QList<Event> overridesOf(EventRepository *repository, const Event &master)
{
    QList<Event> rows = repository->getSeries(master.uid, master.calendarId);
    rows.removeIf([&master](const Event &row) { return !row.isOverride() || row.masterEventUid != master.uid; });
    return rows;
}

bool moveOne(EventRepository *repository, const Event &master, const QDateTime &instance, const NewTimes &times)
{
    Event row = newRow(master);
    row.masterEventUid = master.uid;
    row.recurrenceId = RruleExpander::formatRecurrenceId(instance);
    setTimes(row, times.start, times.end ? Seconds(times.start.secsTo(*times.end)) : lengthOf(master));
    return !repository->insertOrRevive(row).isEmpty();
}

/// The exception dates on one side of \p limitMs.
QString exceptionDates(const Event &master, bool fromLimitOn, qint64 limitMs)
{
    return InstanceName::changedList(master.exceptionDates, [=](const InstanceName &name) {
        return (name.startMs >= limitMs) == fromLimitOn ? std::optional(name) : std::nullopt;
    });
}

/// The live overrides that lie in the tail, which \p move takes from \p before to \p tail.
QList<Event> overridesForTail(QList<Event> overrides, const SeriesMove &move, const Event &before, const Event &tail)
{
    for (Event &row : overrides) {
        row = followed(row, move, before, tail);
        row.uid = tail.uid;
        row.masterEventUid = tail.uid;
        // It was a part of the old series there.
        forgetServer(row);
        row.sequence = 0;
        row.syncStatus = SyncStatus::Pending;
    }
    return overrides;
}

/// What takes overrides that are of another series now out of the resource of their former one.
QList<Event> tombstones(QList<Event> overrides)
{
    overrides.removeIf([](const Event &row) { return row.href.isEmpty(); });
    for (Event &row : overrides) {
        row.id = newId();
        row.reminders.clear();
        row.attendees.clear();
        row.syncStatus = SyncStatus::Pending;
        row.deletedAt = QDateTime::currentDateTimeUtc();
    }
    return overrides;
}

bool split(EventRepository *repository, const Event &master, const QDateTime &instance, const NewTimes &times,
           QString *tailUid)
{
    const qint64 instanceMs = instance.toMSecsSinceEpoch();
    Event head = master;
    head.recurrenceRule = RecurringEdits::withUntil(master.recurrenceRule, instance.addSecs(-1));
    head.exceptionDates = exceptionDates(master, false, instanceMs);
    ++head.sequence;
    head.syncStatus = SyncStatus::Pending;

    Event rest = newRow(master); // of the series, where it was
    rest.uid = rest.id;
    rest.rawIcalendar = master.rawIcalendar; // holds more than the columns
    rest.recurrenceRule = RuleEnd::removed(master.recurrenceRule);
    rest.exceptionDates = exceptionDates(master, true, instanceMs);
    setTimes(rest, instance, lengthOf(master));
    QList<Event> overrides = overridesOf(repository, master);
    overrides.removeIf([instanceMs](const Event &row) {
        const auto name = InstanceName::parse(row.recurrenceId);
        return row.deletedAt || !name || name->startMs < instanceMs;
    });

    Event tail = moved(rest, instance, times);
    const SeriesMove move(rest, tail, overrides);
    tail.exceptionDates = move.movedDates(rest.exceptionDates);
    Savepoint savepoint(repository->database());
    if (!savepoint.isActive() || !repository->update(head) || !repository->insert(tail)
        || !repository->updateAll(overridesForTail(overrides, move, rest, tail)))
        return false;
    for (const Event &tombstone : tombstones(overrides)) {
        if (!repository->insert(tombstone))
            return false;
    }
    if (!savepoint.commit())
        return false;
    if (tailUid)
        *tailUid = tail.uid;
    return true;
}

/// Where the occurrences up to \p instance begin, excluded ones left out.
QList<qint64> startsUpTo(const Event &master, const QDateTime &instance)
{
    QSet<qint64> excluded;
    for (const InstanceName &name : InstanceName::listFrom(master.exceptionDates))
        excluded.insert(name.startMs);
    QList<qint64> starts = RruleExpander::startsBefore(master, instance.toMSecsSinceEpoch() + 1);
    starts.removeIf([&excluded](qint64 startMs) { return excluded.contains(startMs); });
    return starts;
}

}

bool RecurringEdits::apply(EventRepository *repository, const Event &master, const QDateTime &originalStart,
                           const QDateTime &newStart, const std::optional<QDateTime> &newEnd, Scope scope,
                           QString *tailUid)
{
    if (!repository)
        return false;
    if (scope == Scope::Cancel)
        return true;
    if (!master.startTime.isValid() || !originalStart.isValid() || !newStart.isValid())
        return false;
    const QDateTime instance = asStored(originalStart, master);
    NewTimes times{ .start = asStored(newStart, master), .end = {} };
    if (newEnd)
        times.end = asStored(*newEnd, master);
    if (times.end && (!times.end->isValid() || *times.end < times.start))
        return false;
    if (scope == Scope::All || !master.isRecurring())
        return replaceMaster(repository, master, moved(master, instance, times));
    const QList<qint64> starts = startsUpTo(master, instance);
    if (starts.isEmpty() || starts.last() != instance.toMSecsSinceEpoch())
        return false;
    if (scope == Scope::ThisOnly)
        return moveOne(repository, master, instance, times);
    if (starts.size() == 1)
        return replaceMaster(repository, master, moved(master, instance, times));
    return split(repository, master, instance, times, tailUid);
}

bool RecurringEdits::replaceMaster(EventRepository *repository, const Event &before, const Event &after)
{
    if (!repository)
        return false;
    const QList<Event> overrides = overridesOf(repository, before);
    const SeriesMove move(before, after, overrides);
    Event master = after;
    master.exceptionDates = move.movedDates(after.exceptionDates);
    master.recurrenceRule = move.movedRule(after);
    master.sequence = before.sequence + 1;
    master.syncStatus = SyncStatus::Pending;
    QList<Event> rows{ master };
    for (const Event &override : overrides) {
        const Event row = followed(override, move, before, after);
        if (row != override)
            rows.append(row);
    }
    return repository->updateAll(rows);
}

QString RecurringEdits::withUntil(const QString &rule, const QDateTime &cut)
{
    return RuleEnd::at(rule, cut);
}
