#include "storage/StoredAs.h"
#include "storage/Tables.h"

using namespace StoredAs;

namespace {

// Whole days are stored as their date at 00:00 UTC, whoever made the record.
QVariant storeStart(const Event &event)
{
    return StoredTime::store(event.isAllDay ? StoredTime::wholeDay(event.startTime) : event.startTime);
}

QVariant storeEnd(const Event &event)
{
    if (!event.endTime)
        return {};
    return StoredTime::store(event.isAllDay ? StoredTime::wholeDay(*event.endTime) : *event.endTime);
}

void finishEvent(Event &event)
{
    const auto shown = [&event](const QDateTime &time) {
        return event.isAllDay ? StoredTime::wholeDay(time) : StoredTime::inZone(time, event.timezone);
    };
    event.startTime = shown(event.startTime);
    if (event.endTime)
        event.endTime = shown(*event.endTime);
}

Table<Reminder> reminderTable(const char *name, const Column<Reminder> &ownerColumn)
{
    return Table<Reminder>(name,
                           {
                               column<&Reminder::id, Text>("id", Write::OnInsert),
                               ownerColumn,
                               column<&Reminder::minutesBefore, Number>("minutes_before"),
                               column<&Reminder::action, Text>("action"),
                               column<&Reminder::acknowledged, Flag>("acknowledged"),
                               column<&Reminder::triggerTime, OptionalTime>("trigger_time"),
                           });
}

}

const Table<Event> &Tables::events()
{
    static const Table<Event> table("events",
                                    {
                                        column<&Event::id, Text>("id", Write::OnInsert),
                                        column<&Event::calendarId, Text>("calendar_id"),
                                        column<&Event::uid, Text>("uid"),
                                        column<&Event::providerEventId, NullableText>("provider_event_id"),
                                        column<&Event::etag, NullableText>("etag"),
                                        column<&Event::href, NullableText>("href"),
                                        column<&Event::title, Text>("title"),
                                        column<&Event::description, NullableText>("description"),
                                        column<&Event::location, NullableText>("location"),
                                        column<&Event::geoLocation, NullableText>("geo_location"),
                                        { "start_time", storeStart, column<&Event::startTime, Time>("").load },
                                        { "end_time", storeEnd, column<&Event::endTime, OptionalTime>("").load },
                                        column<&Event::isAllDay, Flag>("is_all_day"),
                                        column<&Event::timezone, Text>("timezone"),
                                        column<&Event::recurrenceRule, NullableText>("recurrence_rule"),
                                        column<&Event::recurrenceDates, NullableText>("recurrence_dates"),
                                        column<&Event::exceptionDates, NullableText>("exception_dates"),
                                        column<&Event::recurrenceId, NullableText>("recurrence_id"),
                                        column<&Event::masterEventUid, NullableText>("master_event_uid"),
                                        column<&Event::status, Text>("status"),
                                        column<&Event::eventUrl, NullableText>("event_url"),
                                        column<&Event::conferenceUrl, NullableText>("conference_url"),
                                        column<&Event::organizerEmail, NullableText>("organizer_email"),
                                        column<&Event::organizerName, NullableText>("organizer_name"),
                                        column<&Event::sequence, Number>("sequence"),
                                        column<&Event::rawIcalendar, Text>("raw_icalendar"),
                                        column<&Event::color, NullableText>("color"),
                                        column<&Event::created, Stamp>("created", Write::OnInsert),
                                        column<&Event::lastModified, Stamp>("last_modified"),
                                        column<&Event::syncStatus, Text>("sync_status"),
                                        column<&Event::deletedAt, OptionalStamp>("deleted_at"),
                                        column<&Event::relatedToUid, NullableText>("related_to_uid"),
                                    },
                                    finishEvent);
    return table;
}

const Table<Attendee> &Tables::attendees()
{
    static const Table<Attendee> table("attendees",
                                       {
                                           column<&Attendee::id, Text>("id", Write::OnInsert),
                                           column<&Attendee::eventId, Text>("event_id"),
                                           column<&Attendee::email, Text>("email"),
                                           column<&Attendee::name, NullableText>("name"),
                                           column<&Attendee::role, Text>("role"),
                                           column<&Attendee::status, Text>("status"),
                                           column<&Attendee::type, NullableText>("type"),
                                           column<&Attendee::rsvp, Flag>("rsvp"),
                                       });
    return table;
}

const Table<Reminder> &Tables::reminders()
{
    static const Table<Reminder> table = reminderTable("reminders", column<&Reminder::eventId, Text>("event_id"));
    return table;
}

const Table<Reminder> &Tables::taskReminders()
{
    static const Table<Reminder> table = reminderTable("task_reminders", column<&Reminder::taskId, Text>("task_id"));
    return table;
}
