#pragma once

#include <QWidget>

class AppState;
class CalendarListWidget;
class ElidedLabel;
class MiniMonthCalendar;
class QHBoxLayout;
class QToolButton;

/// The left pane: a small month to pick a date from, above the list of calendars.
class Sidebar : public QWidget {
    Q_OBJECT

public:
    explicit Sidebar(AppState *state, QWidget *parent = nullptr);

    [[nodiscard]] CalendarListWidget *calendarList() const { return m_calendars; }

    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    QHBoxLayout *buildListHeader();
    QHBoxLayout *buildGroupHint();
    void updateGroupHint();
    void applyTheme();

    AppState *m_state;
    MiniMonthCalendar *m_month;
    CalendarListWidget *m_calendars;
    QToolButton *m_add = nullptr;
    ElidedLabel *m_groupHint = nullptr;
    QToolButton *m_leaveGroup = nullptr;
};
