#pragma once

#include "calendar/ICalRecordBuilder.h"
#include "models/Event.h"

#include <QList>

namespace ICal {

/// Makes one event after the other out of the lines of their VEVENTs.
class EventBuilder : private RecordBuilder<Event> {
public:
    // What no calendar has more of: it would only fill the memory and the database.
    static constexpr qsizetype MaxExceptionDates = 10'000;
    static constexpr qsizetype MaxAttendees = 1000;
    static constexpr qsizetype MaxReminders = 100;

    /// For BEGIN:VEVENT: starts afresh.
    void begin();
    /// Any line between BEGIN:VEVENT and END:VEVENT, unfolded.
    void addLine(QByteArrayView line);
    /// True once the event's text is beyond 16 MiB. Nothing more is read of it then.
    [[nodiscard]] bool isTooLarge() const { return m_isTooLarge; }
    /// For END:VEVENT: the event, to be moved away. Its UID may be empty, its start invalid. Not for one that is too
    /// large.
    Event &finish();

private:
    friend RecordBuilder;

    // An EXDATE value in both forms, as which of them counts is known only once DTSTART was read.
    struct ExceptionDate {
        QString date; // yyyyMMdd, as it stood
        QString instant; // empty if it is a date
    };

    void readProperty(const ContentLine &line);
    void addAlarm(const Alarm &alarm);
    void readStart(const ContentLine &line);
    void readEnd(const ContentLine &line);
    void readDuration(const ContentLine &line);
    void readExceptionDates(const ContentLine &line);
    void readRecurrenceId(const ContentLine &line);
    void readLocation(const ContentLine &line);
    void readOrganizer(const ContentLine &line);
    void readAttendee(const ContentLine &line);
    void readRelatedTo(const ContentLine &line);

    void giveExceptionDatesATime();
    [[nodiscard]] QString exceptionDatesJson() const;
    void applyDuration();

    bool m_isTooLarge = false;
    bool m_hasEnd = false;
    qint64 m_durationSeconds = 0;
    QList<ExceptionDate> m_exceptionDates;
};

} // namespace ICal
