#include "storage/EventRows.h"

#include "storage/ChildRows.h"
#include "storage/StoredTime.h"
#include "storage/Tables.h"

namespace {

const ChildRows::Kind<Attendee> &attendeeRows()
{
    static const ChildRows::Kind<Attendee> kind{ Tables::attendees(),
                                                 "event_id",
                                                 &Attendee::eventId,
                                                 QStringLiteral(" ORDER BY name, email"),
                                                 "writeAttendeeRows delete failed:",
                                                 "writeAttendeeRows insert failed:" };
    return kind;
}

QDateTime reminderAnchor(const Event &event)
{
    return event.isAllDay ? StoredTime::wholeDay(event.startTime) : event.startTime;
}

bool hasMoved(Database *database, const Event &event)
{
    Statement stored(database, QStringLiteral("SELECT start_time FROM events WHERE id = ?"));
    if (!stored.bind(event.id).run("EventRepository::update failed:") || !stored.next())
        return false;
    const QDateTime start = StoredTime::parse(stored.value(0).toString());
    return !start.isValid() || start.toSecsSinceEpoch() != reminderAnchor(event).toSecsSinceEpoch();
}

bool writeChildren(Database *database, const Event &event, ChildRows::Owner owner)
{
    if (!ChildRows::writeReminders(database, ChildRows::eventReminders(), owner, event.id, event.reminders,
                                   reminderAnchor(event)))
        return false;
    QList<Attendee> attendees = event.attendees;
    for (Attendee &attendee : attendees) {
        if (attendee.role.isEmpty())
            attendee.role = Attendee().role;
        if (attendee.status.isEmpty())
            attendee.status = Attendee().status;
    }
    return ChildRows::write(database, attendeeRows(), owner, event.id, attendees);
}

}

QList<Event> EventRows::list(Database *database, const QString &tail, const QVariantList &values)
{
    QList<Event> events = Tables::events().list(database, tail, values);
    attachChildren(database, events);
    return events;
}

std::optional<Event> EventRows::first(Database *database, const QString &tail, const QVariantList &values)
{
    std::optional<Event> event = Tables::events().first(database, tail, values);
    if (!event)
        return std::nullopt;
    event->reminders = ChildRows::read(database, ChildRows::eventReminders(), { event->id });
    event->attendees = ChildRows::read(database, attendeeRows(), { event->id });
    return event;
}

void EventRows::attachChildren(Database *database, QList<Event> &events)
{
    ChildRows::attach(database, ChildRows::eventReminders(), events, &Event::reminders);
    ChildRows::attach(database, attendeeRows(), events, &Event::attendees);
}

bool EventRows::insertChildren(Database *database, const Event &event)
{
    return writeChildren(database, event, ChildRows::Owner::New);
}

bool EventRows::replaceChildren(Database *database, const Event &event)
{
    return writeChildren(database, event, ChildRows::Owner::Stored);
}

void EventRows::carryReminders(Database *database, Event &event)
{
    if (event.reminders.isEmpty())
        return;
    const QList<Reminder> stored = ChildRows::read(database, ChildRows::eventReminders(), { event.id });
    ChildRows::carryOver(event.reminders, stored, hasMoved(database, event));
}
