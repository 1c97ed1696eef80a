#include "calendar/ICalEventBuilder.h"

#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <string_view>

using namespace ICal;

namespace {

constexpr std::string_view WrapperHead{ "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:" };
constexpr std::string_view WrapperTail{ "END:VCALENDAR\r\n" };
constexpr std::string_view LineBreak{ "\r\n" };
constexpr int LastYear = 9999;
constexpr qsizetype CompactDateLength = 8; // yyyyMMdd
// What no calendar has: more would only fill the memory and the database.
constexpr size_t MaxTextBytes = 16 * 1024 * 1024;
constexpr qsizetype MaxExceptionDates = 10'000;
constexpr qsizetype MaxAttendees = 1000;
constexpr qsizetype MaxReminders = 100;

QString addressFrom(QByteArrayView value)
{
    constexpr QByteArrayView scheme{ "mailto:" };
    if (isWord(value.first(std::min(value.size(), scheme.size())), scheme))
        value = value.sliced(scheme.size());
    return QString::fromUtf8(value);
}

QString roleFrom(QByteArrayView role)
{
    if (isWord(role, "CHAIR"))
        return QStringLiteral("chair");
    const bool isOptional = isWord(role, "OPT-PARTICIPANT") || isWord(role, "NON-PARTICIPANT");
    return isOptional ? QStringLiteral("optional") : QStringLiteral("required");
}

QString answerFrom(QByteArrayView partStat)
{
    for (const QByteArrayView known : { QByteArrayView("accepted"), QByteArrayView("declined"),
                                        QByteArrayView("tentative"), QByteArrayView("delegated") }) {
        if (isWord(partStat, known))
            return QString::fromLatin1(known);
    }
    return QStringLiteral("needs-action");
}

}

EventBuilder::EventBuilder()
{
    begin();
}

void EventBuilder::begin()
{
    m_event = Event();
    m_isTooLarge = false;
    m_hasEnd = false;
    m_durationSeconds = 0;
    m_exceptionDates.clear();
    m_alarm.reset();
    m_raw.assign(WrapperHead).append(ICalParser::ProductId).append(LineBreak).append("BEGIN:VEVENT\r\n");
}

void EventBuilder::addLine(QByteArrayView line)
{
    m_isTooLarge = m_isTooLarge || m_raw.size() + size_t(line.size()) > MaxTextBytes;
    if (m_isTooLarge)
        return;
    m_raw.append(line.data(), size_t(line.size())).append(LineBreak);
    if (line == "BEGIN:VALARM") {
        m_alarm.emplace();
    } else if (!m_alarm) {
        readProperty(ContentLine(line));
    } else if (line == "END:VALARM") {
        const std::optional<Reminder> reminder = m_alarm->eventReminder();
        if (reminder && m_event.reminders.size() < MaxReminders)
            m_event.reminders.append(*reminder);
        m_alarm.reset();
    } else {
        m_alarm->readLine(ContentLine(line));
    }
}

Event EventBuilder::finish()
{
    m_raw.append("END:VEVENT\r\n").append(WrapperTail);
    m_event.rawIcalendar = QString::fromStdString(m_raw);
    if (!m_event.isAllDay)
        giveExceptionDatesATime();
    m_event.exceptionDates = exceptionDatesJson();
    if (!m_event.recurrenceId.isEmpty())
        m_event.masterEventUid = m_event.uid;
    if (!m_hasEnd)
        applyDuration();
    return std::move(m_event);
}

void EventBuilder::readProperty(const ContentLine &line)
{
    using Reader = void (EventBuilder::*)(const ContentLine &);
    struct Property {
        QByteArrayView name;
        Reader reader;
    };
    static constexpr std::array properties{
        Property{ "UID", &EventBuilder::readText<&Event::uid> },
        Property{ "SUMMARY", &EventBuilder::readText<&Event::title> },
        Property{ "DESCRIPTION", &EventBuilder::readText<&Event::description> },
        Property{ "LOCATION", &EventBuilder::readText<&Event::location> },
        Property{ "RRULE", &EventBuilder::readAsItStands<&Event::recurrenceRule> },
        Property{ "URL", &EventBuilder::readAsItStands<&Event::eventUrl> },
        Property{ "DTSTART", &EventBuilder::readStart },
        Property{ "DTEND", &EventBuilder::readEnd },
        Property{ "DURATION", &EventBuilder::readDuration },
        Property{ "EXDATE", &EventBuilder::readExceptionDates },
        Property{ "RECURRENCE-ID", &EventBuilder::readRecurrenceId },
        Property{ "STATUS", &EventBuilder::readStatus },
        Property{ "SEQUENCE", &EventBuilder::readSequence },
        Property{ "ORGANIZER", &EventBuilder::readOrganizer },
        Property{ "ATTENDEE", &EventBuilder::readAttendee },
        Property{ "CREATED", &EventBuilder::readStamp<&Event::created> },
        Property{ "LAST-MODIFIED", &EventBuilder::readStamp<&Event::lastModified> },
        Property{ "RELATED-TO", &EventBuilder::readRelatedTo },
    };
    const auto found = std::ranges::find_if(properties, [&line](const Property &known) { return line.is(known.name); });
    if (found != properties.end())
        (this->*found->reader)(line);
}

template <QString Event::*Field> void EventBuilder::readText(const ContentLine &line)
{
    m_event.*Field = unescapedText(line.value());
}

template <QString Event::*Field> void EventBuilder::readAsItStands(const ContentLine &line)
{
    m_event.*Field = QString::fromUtf8(line.value());
}

template <QDateTime Event::*Field> void EventBuilder::readStamp(const ContentLine &line)
{
    m_event.*Field = readTime(line).toUTC();
}

QDateTime EventBuilder::readTime(const ContentLine &line)
{
    return m_times.read(line.value(), line.parameter("TZID")).value;
}

void EventBuilder::readStart(const ContentLine &line)
{
    const QByteArrayView tzid = line.parameter("TZID");
    const auto [value, isDate] = m_times.read(line.value(), tzid);
    m_event.startTime = value;
    if (isDate)
        m_event.isAllDay = true;
    if (!tzid.isEmpty())
        m_event.timezone = m_times.zoneName(tzid);
}

void EventBuilder::readEnd(const ContentLine &line)
{
    m_hasEnd = true;
    m_event.endTime.reset();
    if (const QDateTime end = readTime(line); end.isValid())
        m_event.endTime = end;
}

void EventBuilder::readDuration(const ContentLine &line)
{
    m_durationSeconds = durationSeconds(line.value());
}

void EventBuilder::applyDuration()
{
    if (m_durationSeconds < 1 || !m_event.startTime.isValid())
        return;
    // A year of five digits could not be stored.
    const QDateTime end = m_event.startTime.addSecs(m_durationSeconds);
    if (end.isValid() && end.date().year() <= LastYear)
        m_event.endTime = end;
}

void EventBuilder::readRecurrenceId(const ContentLine &line)
{
    const QDateTime instance = readTime(line);
    m_event.recurrenceId =
        instance.isValid() ? RruleExpander::formatRecurrenceId(instance) : QString::fromUtf8(line.value());
}

void EventBuilder::readExceptionDates(const ContentLine &line)
{
    const QByteArrayView tzid = line.parameter("TZID");
    const QByteArrayView value = line.value();
    for (qsizetype from = 0; from < value.size() && m_exceptionDates.size() < MaxExceptionDates;) {
        const qsizetype comma = value.indexOf(',', from);
        const qsizetype end = comma < 0 ? value.size() : comma;
        const QByteArrayView text = value.sliced(from, end - from).trimmed();
        from = end + 1;
        const auto [time, isDate] = m_times.read(text, tzid);
        if (!time.isValid())
            continue;
        ExceptionDate &exception = m_exceptionDates.emplace_back();
        exception.date = QString::fromLatin1(text.first(CompactDateLength));
        if (!isDate && time.timeSpec() == Qt::LocalTime)
            exception.instant = QString::fromLatin1(text);
        else if (!isDate)
            exception.instant = RruleExpander::formatRecurrenceId(time);
    }
}

/// Some programs exclude an instance of a timed series by its date alone.
void EventBuilder::giveExceptionDatesATime()
{
    const bool hasDates = std::ranges::any_of(m_exceptionDates, &QString::isEmpty, &ExceptionDate::instant);
    if (!hasDates || !m_event.startTime.isValid())
        return;
    // DTSTART may have a TZID and yet be in UTC. The instances step in the zone.
    const QTimeZone zone = TimeZones::ianaZone(m_event.timezone);
    const bool isFloating = m_event.startTime.timeSpec() == Qt::LocalTime;
    const QDateTime start = isFloating || !zone.isValid() ? m_event.startTime : m_event.startTime.toTimeZone(zone);
    const WallClock clock(start);
    for (ExceptionDate &exception : m_exceptionDates) {
        if (!exception.instant.isEmpty())
            continue;
        const QDate date = QDate::fromString(exception.date, u"yyyyMMdd");
        exception.instant = isFloating ? exception.date + start.time().toString(u"'T'HHmmss")
                                       : RruleExpander::formatRecurrenceId(clock.at(date, start.time()));
    }
}

/// Instances of an all-day series are named by their date. Some programs exclude them by midnight in
/// the calendar's zone, which as an instant would match none.
QString EventBuilder::exceptionDatesJson() const
{
    if (m_exceptionDates.isEmpty())
        return {};
    QJsonArray dates;
    for (const ExceptionDate &exception : m_exceptionDates)
        dates.append(m_event.isAllDay || exception.instant.isEmpty() ? exception.date : exception.instant);
    return QString::fromUtf8(QJsonDocument(dates).toJson(QJsonDocument::Compact));
}

void EventBuilder::readStatus(const ContentLine &line)
{
    m_event.status = QString::fromUtf8(line.value()).toLower();
}

void EventBuilder::readSequence(const ContentLine &line)
{
    m_event.sequence = line.value().toInt();
}

void EventBuilder::readOrganizer(const ContentLine &line)
{
    m_event.organizerEmail = addressFrom(line.value());
    if (const QByteArrayView name = line.parameterAsItStands("CN"); !name.isNull())
        m_event.organizerName = QString::fromUtf8(name);
}

void EventBuilder::readAttendee(const ContentLine &line)
{
    if (m_event.attendees.size() >= MaxAttendees)
        return;
    Attendee attendee;
    attendee.email = addressFrom(line.value());
    if (attendee.email.isEmpty())
        return;
    attendee.name = QString::fromUtf8(line.parameter("CN"));
    attendee.role = roleFrom(line.parameter("ROLE"));
    attendee.status = answerFrom(line.parameter("PARTSTAT"));
    attendee.type = QString::fromUtf8(line.parameter("CUTYPE"));
    attendee.rsvp = isWord(line.parameter("RSVP"), "TRUE");
    m_event.attendees.append(attendee);
}

void EventBuilder::readRelatedTo(const ContentLine &line)
{
    if (m_event.relatedToUid.isEmpty() && isParentRelation(line))
        m_event.relatedToUid = unescapedText(line.value());
}
