#pragma once

#include "ui/WheelPager.h"

#include <QDate>
#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class AppState;
class DayView;
class ElidedLabel;
class EventActions;
class GroupButton;
class ModeBar;
class QHBoxLayout;
class QStackedWidget;
class QTimer;
class QToolButton;
class TimelineView;
class WeekView;

/// The centre of the window: the navigation bar above the calendar surfaces. Drives the navigation state
/// of AppState and follows it; publishes how many events the filters hide in what is on show.
class ViewArea : public QWidget {
    Q_OBJECT

public:
    explicit ViewArea(AppState *state, QWidget *parent = nullptr);

    /// What the user asks of an event on any surface goes to \p actions.
    void connectActions(EventActions *actions);

    /// The modes that have a surface, in the order of their buttons.
    static QStringList availableModes();
    [[nodiscard]] QString mode() const { return m_mode; }
    [[nodiscard]] QString dateText() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void setMode(const QString &requested);
    void showHorizon(int days); ///< the days timeline, with that many days
    void stepDate(int direction); ///< by what the mode shows; +1 or -1
    void moveDays(int days);
    void moveMonths(int months);
    void goToToday();
    void zoomBy(int steps);

signals:
    void icsDropped(const QStringList &paths);
    void message(const QString &text); ///< for the status bar

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildHeader();
    QHBoxLayout *buildNavigationRow();
    QToolButton *addStepButton(QHBoxLayout *row, const QString &text, const QString &name, int direction);
    void buildSurfaces();
    [[nodiscard]] QList<TimelineView *> timelines() const;
    void connectState();
    void onCurrentDateChanged(QDate date);
    void updateDateLabel();
    void recountSoon();
    void recomputeFilterStats();

    AppState *m_state;
    QToolButton *m_back = nullptr;
    QToolButton *m_forward = nullptr;
    ElidedLabel *m_dateLabel = nullptr;
    ModeBar *m_modes = nullptr;
    QStackedWidget *m_stack;
    DayView *m_day = nullptr;
    WeekView *m_week = nullptr;
    WeekView *m_days = nullptr;
    QTimer *m_statsTimer;
    bool m_statsStale = false;
    QString m_mode = QStringLiteral("week");
    WheelPager m_pager;
    QElapsedTimer m_clock;
};
