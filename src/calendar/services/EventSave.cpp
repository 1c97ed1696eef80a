#include "app/state/AppState.h"
#include "calendar/ICalEventWriter.h"
#include "calendar/TimeZones.h"
#include "calendar/services/CalendarAccess.h"
#include "calendar/services/EditDifference.h"
#include "calendar/services/EventEditsPrivate.h"
#include "calendar/services/EventTimes.h"
#include "calendar/services/EventUndo.h"
#include "models/NewId.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <utility>

using namespace EventEditsPrivate;
using EventEdits::Outcome;

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventEdits)
};

/// Attendees are told apart by their address.
QString addressOf(const Attendee &attendee)
{
    return attendee.email.trimmed().toLower();
}

Attendee *findAttendee(QList<Attendee> &list, const QString &address)
{
    const auto found = std::ranges::find(list, address, addressOf);
    return found == list.end() ? nullptr : &*found;
}

void carryAttendees(const QList<Attendee> &shown, const QList<Attendee> &edited, QList<Attendee> &row)
{
    QHash<QString, Attendee> before;
    for (const Attendee &attendee : shown)
        before.insert(addressOf(attendee), attendee);
    for (const Attendee &attendee : edited) {
        const QString address = addressOf(attendee);
        if (address.isEmpty())
            continue;
        Attendee *known = findAttendee(row, address);
        const auto former = before.constFind(address);
        if (former == before.cend() && !known)
            row.append(attendee);
        else if (former != before.cend() && known)
            EditDifference::carry<&Attendee::name, &Attendee::role, &Attendee::rsvp>(*former, attendee, *known);
        before.remove(address);
    }
    row.removeIf([&](const Attendee &attendee) { return before.contains(addressOf(attendee)); });
}

/// One saving of the form: the row as it is now, with what differs between shown and edited.
class FormSave {
public:
    FormSave(AppState *state, const Event &shown, const Event &edited);

    Outcome run();

private:
    enum class SeriesChange {
        None,
        Shift, ///< its instances keep their rule
        Other, ///< another rule, or none; all-day or not
    };

    [[nodiscard]] bool isLive() const { return m_stored && !m_stored->deletedAt; }
    [[nodiscard]] bool moves() const { return m_target != m_base.calendarId; }
    [[nodiscard]] QString refusal() const;

    void carryContent(Event &row) const;
    void carryTimes();
    void carryTimesOfSeries(bool isStartMoved);

    bool write();
    bool writeShifted();
    bool dropOverrides();
    Outcome relocate();
    [[nodiscard]] Event seriesKey() const;

    AppState *m_state;
    EventRepository *m_events;
    const Event &m_shown;
    const Event &m_edited;
    std::optional<Event> m_stored; // perhaps as a tombstone
    Event m_base;
    Event m_row; // m_base with the changes
    SeriesChange m_seriesChange = SeriesChange::None;
    QDateTime m_start; // of the event shown, as it is to be
    std::optional<QDateTime> m_end;
    QString m_target; // calendar id
    QStringList m_addedIds;
};

FormSave::FormSave(AppState *state, const Event &shown, const Event &edited)
    : m_state(state)
    , m_events(state->events())
    , m_shown(shown)
    , m_edited(edited)
    , m_stored(m_events->getById(shown.id))
    , m_base(m_stored.value_or(shown))
{
    m_target = edited.calendarId == shown.calendarId ? m_base.calendarId : edited.calendarId;
    if (!m_stored) {
        // Purged: to a server it is a new resource, and a series begins anew with the instance shown.
        m_base.calendarId = m_target;
        if (!m_base.isOverride())
            m_base.recurrenceId.clear();
    }
    m_row = m_base;
    m_row.deletedAt.reset();
}

Outcome FormSave::run()
{
    if (const QString why = refusal(); !why.isEmpty())
        return refused(why);
    carryContent(m_row);
    carryTimes();
    // Times that came wrong from a server do not keep anybody from changing the title.
    const bool isRetimed = m_row.startTime != m_base.startTime || m_row.endTime != m_base.endTime;
    if (const QString why = EventTimes::problem(m_row); isRetimed && !why.isEmpty())
        return refused(why);
    // A series that shifts takes its last day along.
    const bool isReplanned = isRetimed || m_row.recurrenceRule != m_base.recurrenceRule;
    const bool isShift = m_seriesChange == SeriesChange::Shift;
    if (const QString why = EventTimes::problemOfSeries(m_row); isReplanned && !isShift && !why.isEmpty())
        return refused(why);
    if (m_stored && m_row == m_base && !moves())
        return done(m_row.id);

    EventUndo::Change change;
    if (isLive() && (moves() || m_seriesChange != SeriesChange::None))
        change.series = RecurringEdits::snapshot(m_events, seriesKey());
    else if (isLive())
        change.rows = { m_base };
    Savepoint savepoint(m_state->database());
    if (!savepoint.isActive() || !write())
        return failed();
    const Outcome outcome = moves() ? relocate() : done(m_row.id);
    if (!outcome.ok)
        return outcome;
    if (!savepoint.commit())
        return failed();
    change.addedIds = m_addedIds;
    EventUndo::push(m_state, Tr::tr("Changed \"%1\"").arg(m_row.title), change);
    return outcome;
}

QString FormSave::refusal() const
{
    const QString why = CalendarAccess::refusal(m_state, m_base.calendarId);
    return why.isEmpty() && moves() ? CalendarAccess::refusal(m_state, m_target) : why;
}

void FormSave::carryContent(Event &row) const
{
    EditDifference::carry<&Event::title, &Event::description, &Event::location, &Event::geoLocation, &Event::timezone,
                          &Event::isAllDay, &Event::status, &Event::eventUrl, &Event::conferenceUrl,
                          &Event::organizerEmail, &Event::organizerName, &Event::color, &Event::relatedToUid>(
        m_shown, m_edited, row);
    if (!row.isOverride()) // one instance does not repeat
        EditDifference::carry<&Event::recurrenceRule>(m_shown, m_edited, row);
    EditDifference::carryReminders(m_shown.reminders, m_edited.reminders, row.reminders);
    carryAttendees(m_shown.attendees, m_edited.attendees, row.attendees);
}

void FormSave::carryTimes()
{
    const bool isOtherKind = m_shown.isAllDay != m_edited.isAllDay;
    const auto isMoved = [&](const auto &shown, const auto &edited) {
        return isOtherKind || !EditDifference::isSameInPicker(shown, edited, m_edited.isAllDay);
    };
    const bool isStartMoved = isMoved(m_shown.startTime, m_edited.startTime);
    const bool isEndMoved = isMoved(m_shown.endTime, m_edited.endTime);
    const Event &former = m_base.isSeries() || isStartMoved || isEndMoved ? m_shown : m_base;
    m_start = isStartMoved ? m_edited.startTime : former.startTime;
    m_end = isEndMoved ? m_edited.endTime : former.endTime;
    const bool isRuleChanged = m_row.recurrenceRule != m_base.recurrenceRule;
    const bool needsZone = EventTimes::lacksZone(m_row) && (isStartMoved || isRuleChanged);
    const bool isOtherZone = m_row.timezone != m_base.timezone;
    if (!isStartMoved && !isEndMoved && !isRuleChanged && !needsZone && !isOtherZone)
        return;
    if (m_base.isSeries()) {
        const bool isShift = !isOtherKind && !isRuleChanged && !isOtherZone;
        m_seriesChange = isShift ? SeriesChange::Shift : SeriesChange::Other;
    }
    if (needsZone)
        m_row.timezone = TimeZones::systemName();
    EventTimes::set(m_row, m_start, m_end);
    if (m_base.isSeries() && m_row.isSeries())
        carryTimesOfSeries(isStartMoved || needsZone || isOtherZone);
    else if (m_base.isSeries()) // what repeats no longer is the one event that the form showed
        m_row.exceptionDates.clear();
}

// The form showed one instance: where that went says where the series starts.
void FormSave::carryTimesOfSeries(bool isStartMoved)
{
    const qint64 seconds = EventTimes::durationSecs(m_row);
    m_row.startTime =
        isStartMoved ? EventTimes::seriesStart(m_base.startTime, m_shown.startTime, m_row.startTime) : m_base.startTime;
    if (m_row.endTime)
        m_row.endTime = m_row.startTime.addSecs(seconds);
}

/// Names the series that the event belongs to.
Event FormSave::seriesKey() const
{
    Event key = m_base;
    if (m_base.isOverride())
        key.uid = m_base.masterEventUid;
    return key;
}

bool FormSave::write()
{
    if (m_seriesChange == SeriesChange::Shift && isLive())
        return writeShifted();
    // A new resource goes out over the stored text, which says more than the columns.
    const bool isNewResource = moves() || !m_stored;
    if (m_row != m_base && !isNewResource)
        m_row.rawIcalendar = ICalEventWriter::buildEventRawIcal(m_row);
    m_row.syncStatus = SyncStatus::Pending;
    if (!isLive()) {
        m_addedIds.append(m_row.id);
        return m_events->restoreDeleted(m_row);
    }
    if (m_seriesChange == SeriesChange::None)
        return m_events->update(m_row);
    return m_row.isSeries() ? RecurringEdits::replaceMaster(m_events, m_base, m_row)
                            : m_events->update(m_row) && dropOverrides();
}

bool FormSave::writeShifted()
{
    if (!RecurringEdits::apply(m_events, m_base, m_shown.startTime, m_start, m_end, EventEdits::Scope::All))
        return false;
    m_row = m_events->getById(m_base.id).value_or(m_row);
    carryContent(m_row);
    if (!moves())
        m_row.rawIcalendar = ICalEventWriter::buildEventRawIcal(m_row);
    m_row.syncStatus = SyncStatus::Pending;
    return m_events->update(m_row);
}

bool FormSave::dropOverrides()
{
    const QList<Event> overrides = m_events->getOverrides({ m_base.uid }, { m_base.calendarId });
    return std::ranges::all_of(overrides, [this](const Event &row) { return m_events->remove(row.id); });
}

/// Takes the whole series along: a delete on the old server, and a create on the new one. What was deleted
/// there comes back.
Outcome FormSave::relocate()
{
    Outcome outcome;
    for (const Event &row : m_events->getSeries(seriesKey().uid, m_base.calendarId)) {
        if (row.deletedAt)
            continue;
        const auto twin = m_events->getByUidAndRecurrenceId(row.uid, m_target, row.recurrenceId);
        if (twin && !twin->deletedAt)
            return refused(Tr::tr("The other calendar already holds \"%1\".").arg(row.title));
        Event copy = row;
        copy.id = newId();
        copy.calendarId = m_target;
        copy.created = QDateTime::currentDateTimeUtc();
        forgetServer(copy);
        const QString id = m_events->insertOrRevive(copy);
        if (id.isEmpty() || !m_events->remove(row.id))
            return failed();
        m_addedIds.append(id);
        if (row.id == m_row.id)
            outcome = done(id);
    }
    return outcome;
}

}

Outcome EventEdits::save(AppState *state, const Event &shown, const Event &edited)
{
    return FormSave(state, shown, edited).run();
}
