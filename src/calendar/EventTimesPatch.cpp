#include "calendar/EventTimesPatch.h"

#include "calendar/CivilDate.h"
#include "calendar/ComponentPatch.h"
#include "calendar/ICalDateTime.h"
#include "calendar/ICalLineText.h"
#include "calendar/InstanceName.h"
#include "calendar/TimeZones.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace ICal;

namespace {

constexpr qsizetype CompactDateLength = 8; // yyyyMMdd

bool isUtcName(const QString &zone)
{
    return zone.isEmpty() || zone == QLatin1StringView("UTC");
}

/// Dates are compared as dates: a stored one is at 00:00 UTC, whatever its text said of an hour.
bool isSameTime(const QDateTime &a, const QDateTime &b, bool isDate)
{
    if (a.isValid() != b.isValid())
        return false;
    return isDate ? a.date() == b.date() : a.toSecsSinceEpoch() == b.toSecsSinceEpoch();
}

QStringList names(const QString &json)
{
    QStringList names;
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue &value : array)
        names.append(value.toString());
    return names;
}

QDateTime atUtc(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
}

void setInstanceName(TreeComponent &vevent, const QDateTime &instance, TimeForm form)
{
    if (form.isDate() && instance.time() != QTime(0, 0))
        form = TimeForm(TimeForm::Kind::Utc);
    form = form.naming(instance);
    const TreeLine *old = vevent.lastLine("RECURRENCE-ID");
    vevent.setLine(old ? form.lineAfter(old->content(), instance) : form.line("RECURRENCE-ID", instance));
}

}

EventTimesPatch::EventTimesPatch(TreeComponent &vevent, const Event &before, const Event &event)
    : m_vevent(vevent)
    , m_before(before)
    , m_event(event)
    , m_form(wantedStartForm())
{
}

std::optional<TimeForm> EventTimesPatch::startForm(const TreeComponent &vevent)
{
    const TreeLine *start = vevent.lastLine("DTSTART");
    return start ? std::optional(TimeForm::of(start->content())) : std::nullopt;
}

void EventTimesPatch::apply(const std::optional<TimeForm> &series)
{
    // A record without a start is one that could not be read.
    if (m_event.startTime.isValid()) {
        patchStart();
        patchEnd();
    }
    patchRule();
    patchExceptionDates();
    patchInstanceName(series);
}

TimeForm EventTimesPatch::wantedStartForm() const
{
    if (m_event.isAllDay)
        return TimeForm(TimeForm::Kind::Date);
    const bool isUtc = isUtcName(m_event.timezone);
    const QTimeZone zone = isUtc ? QTimeZone() : TimeZones::find(m_event.timezone);
    const std::optional<TimeForm> present = startForm(m_vevent);
    if (present && m_before.startTime.isValid() && !present->isDate() && keepsZone(*present, zone))
        return *present;
    if (zone.isValid())
        return TimeForm::zoned(QString::fromUtf8(zone.id()));
    const bool isFloating = isUtc && m_event.startTime.timeSpec() == Qt::LocalTime;
    return TimeForm(isFloating ? TimeForm::Kind::Floating : TimeForm::Kind::Utc);
}

/// \p zone is that of the event, if it has one.
bool EventTimesPatch::keepsZone(const TimeForm &present, const QTimeZone &zone) const
{
    if (isUtcName(m_event.timezone))
        return isUtcName(m_before.timezone);
    if (!zone.isValid())
        return true;
    // What was read by the machine's clock says the same by it.
    if (m_before.startTime.timeSpec() == Qt::LocalTime)
        return m_event.timezone == TimeZones::systemName();
    return present.kind() == TimeForm::Kind::Zoned && m_event.timezone == m_before.timezone;
}

void EventTimesPatch::patchStart()
{
    // A series needs its zone more than its first start needs to be exact.
    if (!m_event.isRecurring())
        m_form = m_form.naming(m_event.startTime);
    if (m_form.value(m_event.startTime).isEmpty())
        return;
    const TreeLine *old = m_vevent.lastLine("DTSTART");
    const QByteArray text =
        old ? m_form.lineAfter(old->content(), m_event.startTime) : m_form.line("DTSTART", m_event.startTime);
    const ContentLine line(text);
    const QByteArrayView tzid = line.parameter("TZID");
    DateTimeReader reader;
    const auto [value, isDate] = reader.read(line.value(), tzid);
    const QString zone = tzid.isEmpty() ? Event().timezone : reader.zoneName(tzid);
    // A move that was made in the text leaves a date beside the new time: others may read the former.
    const bool isAlone = m_vevent.lines("DTSTART").size() == 1;
    const bool isSame = isAlone && isDate == m_before.isAllDay && isSameTime(value, m_before.startTime, isDate)
        && (isDate || zone == m_before.timezone);
    if (isSame)
        return;
    m_isStartChanged = true;
    m_isFormChanged = old && TimeForm::of(old->content()) != m_form;
    m_vevent.setLine(text);
}

TimeForm EventTimesPatch::wantedEndForm(const QDateTime &end) const
{
    const TreeLine *old = m_vevent.lastLine("DTEND");
    if (!old || m_isFormChanged || !m_before.endTime)
        return m_form.naming(end);
    const TimeForm form = TimeForm::of(old->content()); // an end may have a zone of its own
    return (form.isDate() == m_event.isAllDay ? form : m_form).naming(end);
}

void EventTimesPatch::patchEnd()
{
    if (!m_event.endTime || !m_event.endTime->isValid()) {
        if (m_before.endTime)
            m_vevent.removeLines("DTEND");
        if (m_before.endTime || m_isStartChanged) // beside a start that could not be read it meant nothing
            m_vevent.removeLines("DURATION");
        return;
    }
    const QDateTime &end = *m_event.endTime;
    const TimeForm form = wantedEndForm(end);
    if (form.value(end).isEmpty())
        return;
    const TreeLine *old = m_vevent.lastLine("DTEND");
    const QByteArray text = old ? form.lineAfter(old->content(), end) : form.line("DTEND", end);
    const ContentLine line(text);
    const QDateTime written = DateTimeReader().read(line.value(), line.parameter("TZID")).value;
    const bool isSame = m_before.endTime && isSameTime(written, *m_before.endTime, m_event.isAllDay);
    // A length says another end as soon as the start is another one.
    const bool staysRight = old ? !m_isFormChanged : !m_isStartChanged;
    if (isSame && staysRight)
        return;
    m_vevent.setLine(text);
    m_vevent.removeLines("DURATION");
}

void EventTimesPatch::patchRule()
{
    ComponentPatch::setRule(m_vevent, m_before.recurrenceRule, m_event.recurrenceRule, m_event.isAllDay,
                            m_isStartChanged && m_before.isAllDay != m_event.isAllDay);
    if (m_before.isRecurring() && !m_event.isRecurring()) {
        // What adds further instances has no column, and would have it repeat elsewhere.
        m_vevent.removeLines("RDATE");
        m_vevent.removeLines("EXRULE");
    }
}

void EventTimesPatch::patchInstanceName(const std::optional<TimeForm> &series)
{
    if (m_event.recurrenceId.isEmpty() || m_event.recurrenceId == m_before.recurrenceId)
        return;
    const std::optional<InstanceName> name = InstanceName::parse(m_event.recurrenceId);
    if (!name)
        return ComponentPatch::setPlain(m_vevent, "RECURRENCE-ID", m_before.recurrenceId, m_event.recurrenceId);
    const std::optional<InstanceName> present = InstanceName::parse(m_before.recurrenceId);
    if (present && present->startMs == name->startMs)
        return;
    const TreeLine *old = m_vevent.lastLine("RECURRENCE-ID");
    setInstanceName(m_vevent, atUtc(name->startMs),
                    series               ? *series
                        : present && old ? TimeForm::of(old->content())
                                         : m_form);
}

void EventTimesPatch::renameInstance(TreeComponent &vevent, const Event &event, const TimeForm &series)
{
    if (const std::optional<InstanceName> name = InstanceName::parse(event.recurrenceId))
        setInstanceName(vevent, atUtc(name->startMs), series);
}

EventTimesPatch::Instants EventTimesPatch::excluded() const
{
    Instants instants;
    const QStringList list = names(m_event.exceptionDates);
    for (const QString &text : list) {
        std::optional<InstanceName> name = InstanceName::parse(text);
        const bool isDay = name && name->startMs % Civil::MsPerDay == 0;
        if (m_event.isAllDay && !isDay)
            name = InstanceName::parse(text.left(CompactDateLength));
        if (name)
            instants.insert(name->startMs);
    }
    return instants;
}

/// Goes through the lines along with what the reader made of them.
void EventTimesPatch::patchExceptionDates()
{
    const QStringList read = names(m_before.exceptionDates);
    qsizetype next = 0;
    const Instants wanted = excluded();
    Instants missing = wanted;
    DateTimeReader reader;
    m_vevent.rewriteLines("EXDATE", [&](const TreeLine &line) -> std::optional<QByteArray> {
        const ContentLine content = line.content();
        const QByteArrayView tzid = content.parameter("TZID");
        const TimeForm form = TimeForm::of(content);
        const QByteArrayList parts = content.value().toByteArray().split(',');
        QByteArrayList kept;
        for (const QByteArray &part : parts) {
            const auto [value, isDate] = reader.read(part.trimmed(), tzid);
            const auto name = value.isValid() && next < read.size() ? InstanceName::parse(read[next++]) : std::nullopt;
            // The date of a timed instance takes its hour from the start.
            const bool isRight =
                !m_isStartChanged || (isDate == m_event.isAllDay && (!m_isFormChanged || form == m_form));
            if (name && (!isRight || !wanted.contains(name->startMs)))
                continue;
            if (name)
                missing.erase(name->startMs);
            kept.append(part);
        }
        if (kept.size() == parts.size())
            return line.text();
        return kept.isEmpty() ? std::nullopt : std::optional(withValue(content, kept.join(',')));
    });
    addExceptionDates(missing);
}

void EventTimesPatch::addExceptionDates(const Instants &instants)
{
    const TimeForm form = startForm(m_vevent).value_or(m_form);
    QByteArrayList usual;
    QByteArrayList inUtc;
    for (const qint64 ms : instants) {
        const QDateTime instant = atUtc(ms);
        const TimeForm naming = form.naming(instant);
        (naming == form ? usual : inUtc).append(naming.value(instant));
    }
    if (!usual.isEmpty())
        m_vevent.addLine("EXDATE" + form.parameters() + ':' + usual.join(','));
    if (!inUtc.isEmpty())
        m_vevent.addLine("EXDATE:" + inUtc.join(','));
}
