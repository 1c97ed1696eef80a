#include "ui/forms/CalendarCombo.h"

#include "ui/theme/Theme.h"

CalendarCombo::CalendarCombo(QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void CalendarCombo::setCalendars(const QList<Calendar> &calendars)
{
    const QString before = calendarId();
    clear();
    for (const Calendar &calendar : calendars)
        addCalendar(calendar);
    select(before);
}

void CalendarCombo::addCalendar(const Calendar &calendar)
{
    addItem(Theme::calendarDotIcon(calendar.color), calendar.name.simplified(), calendar.id);
    setItemData(count() - 1, calendar.color, ColorRole);
}

QString CalendarCombo::calendarId() const
{
    return currentData().toString();
}

QString CalendarCombo::calendarColor() const
{
    return currentData(ColorRole).toString();
}

bool CalendarCombo::select(const QString &calendarId)
{
    const int index = findData(calendarId);
    if (index < 0)
        return false;
    setCurrentIndex(index);
    return true;
}
