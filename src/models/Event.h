#pragma once

#include "models/Attendee.h"
#include "models/Constants.h"
#include "models/Reminder.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// One row of `events` with its child rows: a single event, the master of a series, an override of
/// one instance, or (in memory only) an occurrence that expansion made from a master.
///
/// All-day values are stored as the date at 00:00 UTC and are never converted to a zone; the end is
/// exclusive. See EventDays for the days that an event covers.
struct Event {
    QString id; ///< an occurrence keeps its master's
    QString calendarId;
    QString uid; ///< RFC 5545 §3.8.4.7
    QString providerEventId;
    QString etag;
    QString href;
    QString title;
    QString description;
    QString location;
    QString geoLocation;
    QDateTime startTime;
    std::optional<QDateTime> endTime; ///< exclusive
    bool isAllDay = false;
    QString timezone = QStringLiteral("UTC"); ///< IANA name
    QString recurrenceRule; ///< RRULE value without its prefix
    QString recurrenceDates; ///< carried through untouched
    QString exceptionDates; ///< JSON array of "yyyyMMddTHHmmss[Z]" or "yyyyMMdd"
    QString recurrenceId; ///< UTC "yyyyMMddTHHmmssZ"; empty for a master or a single event
    QString masterEventUid; ///< the series an override belongs to
    QString status = EventStatus::Confirmed;
    QString eventUrl;
    QString conferenceUrl;
    QString organizerEmail;
    QString organizerName;
    int sequence = 0;
    QString rawIcalendar; ///< the VCALENDAR text this row came from
    QString color; ///< empty means the calendar's
    QDateTime created; ///< UTC
    QDateTime lastModified; ///< UTC
    QString syncStatus = SyncStatus::Synced;
    std::optional<QDateTime> deletedAt; ///< UTC; set on a tombstone
    QString relatedToUid; ///< UID of a linked task
    QList<Reminder> reminders;
    QList<Attendee> attendees;

    [[nodiscard]] bool isRecurring() const { return !recurrenceRule.isEmpty(); }
    [[nodiscard]] bool isOverride() const { return !masterEventUid.isEmpty() && !recurrenceId.isEmpty(); }
    [[nodiscard]] bool isSeries() const { return isRecurring() && !isOverride(); }

    /// The smallest minutesBefore of the reminders, if there are any.
    [[nodiscard]] std::optional<int> firstReminderMinutes() const;

    bool operator==(const Event &) const = default;
};

Q_DECLARE_TYPEINFO(Event, Q_RELOCATABLE_TYPE);
