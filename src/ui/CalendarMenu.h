#pragma once

#include "models/Calendar.h"

#include <QMenu>

class AppState;

/// What can be done with one calendar of the list. Deletes itself once closed.
class CalendarMenu : public QMenu {
    Q_OBJECT

public:
    CalendarMenu(AppState *state, const Calendar &calendar, QWidget *parent);

signals:
    void renameRequested(const QString &calendarId);

private:
    void addColors();
    void addVisibility();
    void addDelete();
    void setColor(const QString &color);
    void makeDefault();
    void showOnly();
    void showAll();

    AppState *m_state;
    Calendar m_calendar;
};
