#include "models/Reminder.h"

#include <QCoreApplication>

QString Reminder::displayText() const
{
    constexpr int minutesPerHour = 60;
    constexpr int minutesPerDay = 24 * minutesPerHour;
    const auto tr = [](const char *text, int n = -1) { return QCoreApplication::translate("Reminder", text, nullptr, n); };

    if (minutesBefore == 0)
        return tr(QT_TRANSLATE_NOOP("Reminder", "At time of event"));
    if (minutesBefore < minutesPerHour)
        return tr(QT_TRANSLATE_N_NOOP("Reminder", "%n minute(s) before"), minutesBefore);
    if (minutesBefore < minutesPerDay && minutesBefore % minutesPerHour == 0)
        return tr(QT_TRANSLATE_N_NOOP("Reminder", "%n hour(s) before"), minutesBefore / minutesPerHour);
    if (minutesBefore >= minutesPerDay && minutesBefore % minutesPerDay == 0)
        return tr(QT_TRANSLATE_N_NOOP("Reminder", "%n day(s) before"), minutesBefore / minutesPerDay);
    return tr(QT_TRANSLATE_NOOP("Reminder", "%1 minutes before")).arg(minutesBefore);
}
