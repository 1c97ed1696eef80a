#pragma once

#include "models/Event.h"
#include "models/Task.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

/// Reads iCalendar text (RFC 5545) into records, and writes tasks back as text. Reads the properties
/// that have a column; everything else lives on in the record's rawIcalendar. Bad input gives fewer
/// results and never an error. No state; re-entrant.
namespace ICalParser {

inline constexpr char ProductId[] = "-//Quillon//Calendar Desktop//EN";

/// One event for each VEVENT with a UID and at most 16 MiB of text, in file order; overrides come as
/// events of their own. An event gets at most 10,000 exception dates, 1,000 attendees and 100 reminders.
QList<Event> parse(const QByteArray &utf8);
QList<Event> parse(const QString &text);

/// One task for each VTODO with a UID, in file order. An override of one instance is no task of its own:
/// its text follows that of its series in rawIcalendar. Without its series in the text there is no row that could
/// keep it, and it is left out.
QList<Task> parseTasks(const QByteArray &utf8);
QList<Task> parseTasks(const QString &text);

/// A VCALENDAR with one VTODO, built from the record alone; lines end in CRLF and are not folded.
QString serializeTaskToVCalendar(const Task &task);

/// \p text with DTSTART and DTEND of its first VEVENT replaced by UTC times, all else untouched.
/// An invalid \p newEnd repeats the start; an invalid \p newStart changes nothing.
QString replaceVeventDtstartDtend(const QString &text, const QDateTime &newStart, const QDateTime &newEnd);
/// The same for an all-day event: DTSTART and DTEND become these dates. Both must be valid; \p newEnd is exclusive.
QString replaceVeventDates(const QString &text, QDate newFirst, QDate newEnd);

/// RFC 5545 §3.3.11. Line breaks of any kind become "\n".
QString escapeText(const QString &text);
QString unescapeText(const QString &text);

struct DateTimeValue {
    QDateTime value; ///< invalid if the text is in no form of RFC 5545; dates are at 00:00 UTC
    bool isDate = false;
};
/// \p tzid is the TZID parameter without quotes, or empty. A zone that cannot be found is local time.
DateTimeValue parseDateTimeValue(QStringView value, QStringView tzid = {});

/// Seconds of a DURATION; 0 for a text that is none, and for a signed one. "P1M" is 30 days.
qint64 parseDurationSeconds(QStringView value);

/// Minutes before the anchor, whatever the sign; -1 for an absolute trigger.
int parseTriggerMinutes(QStringView value);

/// What an event reader left out.
struct Skipped {
    int withoutUid = 0;
    int withoutStart = 0; ///< counted, but still returned by the reader: its startTime is invalid
    int tooLarge = 0; ///< events with more text than any calendar writes; whether they have a UID is not known

    bool operator==(const Skipped &) const = default;
};

/// Reads a file's events piece by piece, so that a large file does not hold the event loop.
class EventReader {
public:
    explicit EventReader(QByteArray utf8);
    ~EventReader();
    EventReader(EventReader &&) noexcept;
    EventReader &operator=(EventReader &&) noexcept;

    [[nodiscard]] bool atEnd() const;
    /// Up to \p maxEvents further events, or fewer once about \p maxBytes have been read.
    QList<Event> read(int maxEvents, qsizetype maxBytes);
    [[nodiscard]] qsizetype bytesRead() const;
    [[nodiscard]] qsizetype size() const;
    [[nodiscard]] Skipped skipped() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace ICalParser
