#pragma once

#include "calendar/ICalLine.h"
#include "models/Reminder.h"

#include <QByteArrayView>

#include <optional>

namespace ICal {

/// The lines of one VALARM that tell when it goes off. RFC 5545 §3.6.6.
class Alarm {
public:
    void readLine(const ContentLine &line);

    /// What a task keeps of it: minutes before the anchor, whatever sign and anchor the trigger has.
    /// Nothing for an absolute trigger.
    [[nodiscard]] std::optional<Reminder> taskReminder() const;
    /// What an event keeps of it: a note on the screen, with or without sound, at the start or before.
    [[nodiscard]] std::optional<Reminder> eventReminder() const;

private:
    QString m_action; // lower case
    int m_minutesBefore = -1;
    bool m_isAfterStart = false;
    bool m_isRelatedToEnd = false;
};

/// As ICalParser::parseTriggerMinutes.
int triggerMinutes(QByteArrayView value);

} // namespace ICal
