#include "models/Reminder.h"

#include <QCoreApplication>

QString Reminder::displayText() const
{
    constexpr int minutesPerHour = 60;
    constexpr int minutesPerDay = 24 * minutesPerHour;

    if (minutesBefore == 0)
        return QCoreApplication::translate("Reminder", "At time of event");
    if (minutesBefore < minutesPerHour)
        return QCoreApplication::translate("Reminder", "%n minute(s) before", nullptr, minutesBefore);
    if (minutesBefore < minutesPerDay && minutesBefore % minutesPerHour == 0)
        return QCoreApplication::translate("Reminder", "%n hour(s) before", nullptr, minutesBefore / minutesPerHour);
    if (minutesBefore >= minutesPerDay && minutesBefore % minutesPerDay == 0)
        return QCoreApplication::translate("Reminder", "%n day(s) before", nullptr, minutesBefore / minutesPerDay);
    return QCoreApplication::translate("Reminder", "%1 minutes before").arg(minutesBefore);
}
