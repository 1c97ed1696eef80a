#include "calendar/services/EventEdits.h"

#include "app/state/AppState.h"
#include "calendar/ICalEventWriter.h"
#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"
#include "calendar/WallClockShift.h"
#include "calendar/services/CalendarAccess.h"
#include "calendar/services/EventEditsPrivate.h"
#include "calendar/services/EventTimes.h"
#include "calendar/services/EventUndo.h"
#include "models/NewId.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "storage/StoredTime.h"

#include <QCoreApplication>

#include <algorithm>

using namespace EventEditsPrivate;
using EventEdits::Outcome;
using EventEdits::Scope;

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventEdits)
};

constexpr qint64 SecsPerMinute = 60;
constexpr qint64 MinDurationSecs = 15 * SecsPerMinute;

/// The stored event, if it is there and can be written. \c why says what is in the way otherwise.
struct Writable {
    std::optional<Event> event;
    QString why;
};

Writable writable(AppState *state, const QString &id)
{
    const auto event = state->events()->getById(id);
    if (!event || event->deletedAt)
        return { .event = {}, .why = Tr::tr("The event no longer exists.") };
    const QString why = CalendarAccess::refusal(state, event->calendarId);
    return { .event = why.isEmpty() ? event : std::nullopt, .why = why };
}

/// When the instance in question begins; of a single event, whatever a surface last saw.
QDateTime instanceStart(const Event &event, const QDateTime &occurrenceStart)
{
    return EventEdits::shownAt(event, occurrenceStart).startTime;
}

// The text that a server sent holds more than the columns do, so it is patched and not built anew.
QString patchedText(const Event &event)
{
    const QString &text = event.rawIcalendar;
    const QDateTime &start = event.startTime;
    if (event.isAllDay)
        return ICalParser::replaceVeventDates(text, start.date(), event.endTime.value_or(start.addDays(1)).date());
    return ICalParser::replaceVeventDtstartDtend(text, start, event.endTime.value_or(start));
}

/// New times, from whichever clock, for one instance of \p event or for all of a single one.
struct NewTimes {
    QDateTime start;
    std::optional<QDateTime> end;
};

Outcome changeSingle(AppState *state, const Event &event, const NewTimes &times, const QString &summary)
{
    Event row = event;
    EventTimes::set(row, times.start, times.end);
    row.rawIcalendar = patchedText(row);
    row.syncStatus = SyncStatus::Pending;
    if (!state->events()->update(row))
        return failed();
    EventUndo::push(state, summary, { .rows = { event }, .series = {}, .addedIds = {} });
    return done(row.id);
}

Outcome changeSeries(AppState *state, const Event &master, const QDateTime &originalStart, const NewTimes &times,
                     Scope scope, const QString &summary)
{
    EventRepository *repository = state->events();
    if (scope == Scope::Cancel)
        return done(master.id);
    RecurringEdits::SeriesSnapshot before = RecurringEdits::snapshot(repository, master);
    if (!RecurringEdits::apply(repository, master, originalStart, times.start, times.end, scope, &before.tailUid))
        return failed();
    QString id = master.id;
    if (scope == Scope::ThisOnly) {
        const QString name = RruleExpander::formatRecurrenceId(originalStart);
        if (const auto row = repository->getByUidAndRecurrenceId(master.uid, master.calendarId, name))
            id = row->id;
    } else if (const auto tail = repository->getByUid(before.tailUid, master.calendarId)) {
        id = tail->id;
    }
    EventUndo::push(state, summary, { .rows = {}, .series = before, .addedIds = {} });
    return done(id);
}

}

bool EventEdits::isReadOnly(AppState *state, const Event &event)
{
    return !readOnlyText(state, event).isEmpty();
}

QString EventEdits::readOnlyText(AppState *state, const Event &event)
{
    return CalendarAccess::refusal(state, event.calendarId);
}

Event EventEdits::shownAt(const Event &stored, const QDateTime &occurrenceStart)
{
    if (!stored.isSeries() || !occurrenceStart.isValid())
        return stored;
    const WallClock clock(stored.startTime);
    Event shown = stored;
    shown.startTime =
        stored.isAllDay ? StoredTime::wholeDay(occurrenceStart) : clock.at(occurrenceStart.toMSecsSinceEpoch());
    if (stored.endTime)
        shown.endTime = shown.startTime.addSecs(EventTimes::durationSecs(stored));
    shown.recurrenceId = RruleExpander::formatRecurrenceId(shown.startTime);
    return shown;
}

Outcome EventEdits::create(AppState *state, const Event &event)
{
    if (const QString why = CalendarAccess::refusal(state, event.calendarId); !why.isEmpty())
        return refused(why);
    Event row = event;
    if (row.id.isEmpty())
        row.id = newId();
    if (row.uid.isEmpty())
        row.uid = row.id;
    forgetServer(row);
    if (row.timezone.isEmpty())
        row.timezone = Event().timezone;
    if (!row.isAllDay)
        row.startTime = row.startTime.toUTC(); // a new event does not float
    if (EventTimes::lacksZone(row))
        row.timezone = TimeZones::systemName();
    EventTimes::set(row, row.startTime, row.endTime);
    for (const QString &why : { EventTimes::problem(row), EventTimes::problemOfSeries(row) }) {
        if (!why.isEmpty())
            return refused(why);
    }
    row.created = QDateTime::currentDateTimeUtc();
    row.lastModified = row.created;
    row.rawIcalendar = ICalEventWriter::buildEventRawIcal(row);
    const QString id = state->events()->insertOrRevive(row);
    if (id.isEmpty())
        return failed();
    EventUndo::push(state, Tr::tr("Created \"%1\"").arg(row.title), { .rows = {}, .series = {}, .addedIds = { id } });
    return done(id);
}

Outcome EventEdits::move(AppState *state, const QString &id, const QDateTime &occurrenceStart, int days, int minutes,
                         Scope scope)
{
    const auto [event, why] = writable(state, id);
    if (!event)
        return refused(why);
    const WallClockShift shift{ .days = days, .seconds = event->isAllDay ? 0 : minutes * SecsPerMinute };
    if (shift.isNull())
        return done(id);
    const QDateTime from = instanceStart(*event, occurrenceStart);
    NewTimes times{ .start = event->isAllDay ? from.addDays(days) : shift.applied(from.toLocalTime()), .end = {} };
    if (event->endTime)
        times.end = times.start.addSecs(EventTimes::durationSecs(*event));
    const QString summary = Tr::tr("Moved \"%1\"").arg(event->title);
    return event->isSeries() ? changeSeries(state, *event, from, times, scope, summary)
                             : changeSingle(state, *event, times, summary);
}

Outcome EventEdits::resize(AppState *state, const QString &id, const QDateTime &occurrenceStart, int minutes,
                           Scope scope)
{
    const auto [event, why] = writable(state, id);
    if (!event)
        return refused(why);
    const QDateTime start = instanceStart(*event, occurrenceStart);
    const QDateTime end = start.addSecs(EventTimes::durationSecs(*event));
    const WallClockShift shift{ .days = 0, .seconds = minutes * SecsPerMinute };
    const QDateTime newEnd = std::max(shift.applied(end.toLocalTime()), start.addSecs(MinDurationSecs));
    if (event->isAllDay || shift.isNull() || newEnd == end)
        return done(id);
    const NewTimes times{ .start = start, .end = newEnd };
    const QString summary = Tr::tr("Resized \"%1\"").arg(event->title);
    return event->isSeries() ? changeSeries(state, *event, start, times, scope, summary)
                             : changeSingle(state, *event, times, summary);
}

Outcome EventEdits::remove(AppState *state, const QString &id)
{
    const auto [event, why] = writable(state, id);
    if (!event)
        return refused(why);
    QList<Event> rows{ *event };
    if (event->isSeries())
        rows += state->events()->getOverrides({ event->uid }, { event->calendarId });
    Savepoint savepoint(state->database());
    if (!savepoint.isActive())
        return failed();
    for (const Event &row : rows) {
        if (!state->events()->remove(row.id))
            return failed();
    }
    if (!savepoint.commit())
        return failed();
    EventUndo::push(state, Tr::tr("Deleted \"%1\"").arg(event->title), { .rows = rows, .series = {}, .addedIds = {} });
    return done(id);
}
