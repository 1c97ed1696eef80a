#include "calendar/ICalAlarm.h"

#include "calendar/ICalDateTime.h"
#include "calendar/ICalTexts.h"

#include <limits>

using namespace ICal;

namespace {

constexpr qint64 SecondsPerMinute = 60;
// Whoever counts a reminder in seconds stays within an int.
constexpr qint64 MaxMinutes = std::numeric_limits<int>::max() / SecondsPerMinute;

QString actionFrom(QByteArrayView value)
{
    return isWord(value, "DISPLAY") ? QStringLiteral("display") : lowerCaseText(value);
}

}

void Alarm::readLine(const ContentLine &line)
{
    if (line.is("ACTION")) {
        m_action = actionFrom(line.value());
    } else if (line.is("TRIGGER")) {
        const QByteArrayView trigger = line.value().trimmed();
        m_minutesBefore = triggerMinutes(trigger);
        m_isAfterStart = durationSeconds(trigger.startsWith('+') ? trigger.sliced(1) : trigger) > 0;
        m_isRelatedToEnd = isWord(line.parameter("RELATED"), "END");
    }
}

std::optional<Reminder> Alarm::taskReminder() const
{
    if (m_minutesBefore < 0)
        return std::nullopt;
    Reminder reminder;
    reminder.minutesBefore = m_minutesBefore;
    if (!m_action.isEmpty())
        reminder.action = m_action;
    return reminder;
}

std::optional<Reminder> Alarm::eventReminder() const
{
    const bool isShown = m_action.isEmpty() || m_action == u"display" || m_action == u"audio";
    return isShown && !m_isAfterStart && !m_isRelatedToEnd ? taskReminder() : std::nullopt;
}

int ICal::triggerMinutes(QByteArrayView value)
{
    value = value.trimmed();
    if (value.startsWith('-') || value.startsWith('+'))
        value = value.sliced(1);
    if (!value.startsWith('P'))
        return -1;
    return static_cast<int>(std::min(durationSeconds(value) / SecondsPerMinute, MaxMinutes));
}
