#pragma once

#include "models/Calendar.h"

#include <QComboBox>
#include <QList>
#include <QString>

/// Calendars with their colour dots. The data of an item is the calendar's id.
class CalendarCombo : public QComboBox {
    Q_OBJECT

public:
    explicit CalendarCombo(QWidget *parent = nullptr);

    void setCalendars(const QList<Calendar> &calendars);
    void addCalendar(const Calendar &calendar);
    [[nodiscard]] QString calendarId() const; ///< empty if there is none
    [[nodiscard]] QString calendarColor() const;
    bool select(const QString &calendarId); ///< false if it is not among them

private:
    static constexpr int ColorRole = Qt::UserRole + 1;
};
