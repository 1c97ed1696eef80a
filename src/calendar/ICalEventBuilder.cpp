#include "calendar/ICalEventBuilder.h"

#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <string_view>

using namespace ICal;

namespace {

constexpr std::string_view TextTail{ "END:VEVENT\r\nEND:VCALENDAR\r\n" };
constexpr int LastYear = 9999;
constexpr qsizetype CompactDateLength = 8; // yyyyMMdd
// What no calendar has: more would only fill the memory and the database.
constexpr size_t MaxTextBytes = 16 * 1024 * 1024;

std::string_view textHead()
{
    static const std::string head =
        std::string("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:") + ICalParser::ProductId + "\r\nBEGIN:VEVENT\r\n";
    return head;
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
    if (isWord(partStat, "ACCEPTED"))
        return QStringLiteral("accepted");
    if (isWord(partStat, "DECLINED"))
        return QStringLiteral("declined");
    if (isWord(partStat, "TENTATIVE"))
        return QStringLiteral("tentative");
    return isWord(partStat, "DELEGATED") ? QStringLiteral("delegated") : QStringLiteral("needs-action");
}

}

void EventBuilder::begin()
{
    RecordBuilder::begin(textHead());
    m_isTooLarge = false;
    m_hasEnd = false;
    m_durationSeconds = 0;
    m_exceptionDates.clear();
}

void EventBuilder::addLine(QByteArrayView line)
{
    m_isTooLarge = m_isTooLarge || textBytes() + size_t(line.size()) > MaxTextBytes;
    if (!m_isTooLarge)
        RecordBuilder::addLine(line, *this);
}

Event &EventBuilder::finish()
{
    if (!m_record.isAllDay)
        giveExceptionDatesATime();
    m_record.exceptionDates = exceptionDatesJson();
    if (!m_record.recurrenceId.isEmpty())
        m_record.masterEventUid = m_record.uid;
    if (!m_hasEnd)
        applyDuration();
    return RecordBuilder::finish(TextTail);
}

void EventBuilder::readProperty(const ContentLine &line)
{
    using Self = EventBuilder;
    using Properties = PropertyTable<Self, 18>;
    static constexpr Properties properties({ {
        { "UID", &Self::readText<&Event::uid> },
        { "SUMMARY", &Self::readText<&Event::title> },
        { "DESCRIPTION", &Self::readText<&Event::description> },
        { "LOCATION", &Self::readLocation },
        { "RRULE", &Self::readAsItStands<&Event::recurrenceRule> },
        { "URL", &Self::readAsItStands<&Event::eventUrl> },
        { "DTSTART", &Self::readStart },
        { "DTEND", &Self::readEnd },
        { "DURATION", &Self::readDuration },
        { "EXDATE", &Self::readExceptionDates },
        { "RECURRENCE-ID", &Self::readRecurrenceId },
        { "STATUS", &Self::readLowerCase<&Event::status> },
        { "SEQUENCE", &Self::readNumber<&Event::sequence> },
        { "ORGANIZER", &Self::readOrganizer },
        { "ATTENDEE", &Self::readAttendee },
        { "CREATED", &Self::readStamp<&Event::created> },
        { "LAST-MODIFIED", &Self::readStamp<&Event::lastModified> },
        { "RELATED-TO", &Self::readRelatedTo },
    } });
    properties.read(*this, line);
}

void EventBuilder::addAlarm(const Alarm &alarm)
{
    std::optional<Reminder> reminder = alarm.eventReminder();
    if (!reminder || m_record.reminders.size() >= MaxReminders)
        return;
    if (m_record.reminders.isEmpty())
        m_record.reminders.reserve(1); // as most have; a list that grows by itself takes room for more
    m_record.reminders.append(*std::move(reminder));
}

void EventBuilder::readStart(const ContentLine &line)
{
    const QByteArrayView tzid = line.parameter("TZID");
    const auto [value, isDate] = m_times.read(line.value(), tzid);
    m_record.startTime = value;
    if (isDate)
        m_record.isAllDay = true;
    if (!tzid.isEmpty())
        m_record.timezone = m_times.zoneName(tzid);
}

void EventBuilder::readEnd(const ContentLine &line)
{
    m_hasEnd = true;
    m_record.endTime.reset();
    if (const QDateTime end = readTime(line).value; end.isValid())
        m_record.endTime = end;
}

void EventBuilder::readDuration(const ContentLine &line)
{
    m_durationSeconds = durationSeconds(line.value());
}

void EventBuilder::applyDuration()
{
    if (m_durationSeconds < 1 || !m_record.startTime.isValid())
        return;
    // A year of five digits could not be stored.
    const QDateTime end = m_record.startTime.addSecs(m_durationSeconds);
    if (end.isValid() && end.date().year() <= LastYear)
        m_record.endTime = end;
}

void EventBuilder::readRecurrenceId(const ContentLine &line)
{
    const QDateTime instance = readTime(line).value;
    m_record.recurrenceId =
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
    if (!hasDates || !m_record.startTime.isValid())
        return;
    // DTSTART may have a TZID and yet be in UTC. The instances step in the zone.
    const QTimeZone zone = TimeZones::ianaZone(m_record.timezone);
    const bool isFloating = m_record.startTime.timeSpec() == Qt::LocalTime;
    const QDateTime start = isFloating || !zone.isValid() ? m_record.startTime : m_record.startTime.toTimeZone(zone);
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
        dates.append(m_record.isAllDay || exception.instant.isEmpty() ? exception.date : exception.instant);
    return QString::fromUtf8(QJsonDocument(dates).toJson(QJsonDocument::Compact));
}

void EventBuilder::readLocation(const ContentLine &line)
{
    m_record.location = m_repeated.text(line.value(), unescapedText);
}

void EventBuilder::readOrganizer(const ContentLine &line)
{
    m_record.organizerEmail = m_repeated.text(addressOf(line.value()));
    if (const QByteArrayView name = line.parameterAsItStands("CN"); !name.isNull())
        m_record.organizerName = m_repeated.text(name);
}

void EventBuilder::readAttendee(const ContentLine &line)
{
    const QString email = m_repeated.text(addressOf(line.value()));
    if (email.isEmpty() || m_record.attendees.size() >= MaxAttendees)
        return;
    Attendee &attendee = m_record.attendees.emplaceBack();
    attendee.email = email;
    QByteArrayView rest = line.parameters();
    Parameter parameter;
    while (takeParameter(rest, parameter)) {
        const QByteArrayView value = withoutQuotes(parameter.value);
        if (isWord(parameter.name, "CN"))
            attendee.name = m_repeated.text(value);
        else if (isWord(parameter.name, "ROLE"))
            attendee.role = roleFrom(value);
        else if (isWord(parameter.name, "PARTSTAT"))
            attendee.status = answerFrom(value);
        else if (isWord(parameter.name, "CUTYPE"))
            attendee.type = m_repeated.text(value);
        else if (isWord(parameter.name, "RSVP"))
            attendee.rsvp = isWord(value, "TRUE");
    }
}

void EventBuilder::readRelatedTo(const ContentLine &line)
{
    if (m_record.relatedToUid.isEmpty() && isParentRelation(line))
        m_record.relatedToUid = unescapedText(line.value());
}
