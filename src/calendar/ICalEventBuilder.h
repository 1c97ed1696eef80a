#pragma once

#include "calendar/ICalAlarm.h"
#include "calendar/ICalDateTime.h"
#include "models/Event.h"

#include <QList>

#include <optional>
#include <string>

namespace ICal {

/// Makes one event after the other out of the lines of their VEVENTs.
class EventBuilder {
public:
    EventBuilder();

    /// For BEGIN:VEVENT: starts afresh.
    void begin();
    /// Any line between BEGIN:VEVENT and END:VEVENT, unfolded.
    void addLine(QByteArrayView line);
    /// True once the event's text is beyond 16 MiB. Nothing more is read of it then.
    [[nodiscard]] bool isTooLarge() const { return m_isTooLarge; }
    /// For END:VEVENT. Its UID may be empty, its start invalid. Not for one that is too large.
    Event finish();

private:
    // An EXDATE value in both forms, as which of them counts is known only once DTSTART was read.
    struct ExceptionDate {
        QString date; // yyyyMMdd, as it stood
        QString instant; // empty if it is a date
    };

    void readProperty(const ContentLine &line);
    template <QString Event::*Field> void readText(const ContentLine &line);
    template <QString Event::*Field> void readAsItStands(const ContentLine &line);
    template <QDateTime Event::*Field> void readStamp(const ContentLine &line);
    void readStart(const ContentLine &line);
    void readEnd(const ContentLine &line);
    void readDuration(const ContentLine &line);
    void readExceptionDates(const ContentLine &line);
    void readRecurrenceId(const ContentLine &line);
    void readStatus(const ContentLine &line);
    void readSequence(const ContentLine &line);
    void readOrganizer(const ContentLine &line);
    void readAttendee(const ContentLine &line);
    void readRelatedTo(const ContentLine &line);

    QDateTime readTime(const ContentLine &line);
    void giveExceptionDatesATime();
    [[nodiscard]] QString exceptionDatesJson() const;
    void applyDuration();

    DateTimeReader m_times; // knows the zones of the whole file
    Event m_event;
    std::string m_raw; // the VCALENDAR text so far; kept for its capacity
    bool m_isTooLarge = false;
    bool m_hasEnd = false;
    qint64 m_durationSeconds = 0;
    QList<ExceptionDate> m_exceptionDates;
    std::optional<Alarm> m_alarm; // set while within a VALARM
};

} // namespace ICal
