#include "calendar/ICalAlarm.h"

#include "calendar/ICalDateTime.h"

#include <limits>

using namespace ICal;

namespace {

constexpr qint64 SecondsPerMinute = 60;
// Whoever counts a reminder in seconds stays within an int.
constexpr qint64 MaxMinutes = std::numeric_limits<int>::max() / SecondsPerMinute;

}

void Alarm::readLine(const ContentLine &line)
{
    if (line.is("ACTION")) {
        m_action = line.value().toByteArray().toLower();
    } else if (line.is("TRIGGER")) {
        m_trigger = line.value().toByteArray().trimmed();
        m_isRelatedToEnd = isWord(line.parameter("RELATED"), "END");
    }
}

std::optional<Reminder> Alarm::taskReminder() const
{
    const int minutes = triggerMinutes(m_trigger);
    if (minutes < 0)
        return std::nullopt;
    Reminder reminder;
    reminder.minutesBefore = minutes;
    if (!m_action.isEmpty())
        reminder.action = QString::fromUtf8(m_action);
    return reminder;
}

std::optional<Reminder> Alarm::eventReminder() const
{
    const bool isShown = m_action.isEmpty() || m_action == "display" || m_action == "audio";
    const bool isAfterStart = !m_trigger.startsWith('-')
        && durationSeconds(m_trigger.startsWith('+') ? QByteArrayView(m_trigger).sliced(1) : m_trigger) > 0;
    if (!isShown || isAfterStart || m_isRelatedToEnd)
        return std::nullopt;
    return taskReminder();
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
