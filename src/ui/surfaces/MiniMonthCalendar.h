#pragma once

#include "ui/surfaces/MiniMonthGeometry.h"

#include <QDate>
#include <QElapsedTimer>
#include <QSet>
#include <QTimer>
#include <QWidget>

class AppState;
class QToolButton;

/// A month to pick a date from, with a dot under each day that has events. It can show another month than
/// that of the current date; a click or a key makes a day the current date of \p state. Week numbers stand before
/// the days if the user wants them.
class MiniMonthCalendar : public QWidget {
    Q_OBJECT

public:
    explicit MiniMonthCalendar(AppState *state, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] QDate displayedMonth() const { return m_month; } ///< its first day
    [[nodiscard]] QDate gridStart() const;
    [[nodiscard]] QDate dateAt(QPoint point) const; ///< invalid outside the days
    [[nodiscard]] QRect dateRect(QDate date) const; ///< empty for a day that is not on show
    [[nodiscard]] QString title() const; ///< the month and its year, short if the header is narrow
    [[nodiscard]] bool isBusy(QDate date) const { return m_busyDays.contains(date); }

public slots:
    void stepMonth(int months); ///< moves only what is on show

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void connectSources();
    void onCurrentDateChanged(QDate date);
    void reloadSoon(); // once for all that changes meanwhile, and in a turn of the event loop of its own
    void onReloadTimer();
    void loadRow(int row);
    void updateLayout();
    [[nodiscard]] static QString titlePattern();
    [[nodiscard]] static int widestShortTitle(const QFontMetrics &metrics);
    void updateIcons();
    [[nodiscard]] bool showsWeekNumbers() const;
    [[nodiscard]] Qt::DayOfWeek firstDayOfWeek() const;
    [[nodiscard]] QDate currentDate() const;
    [[nodiscard]] QDate dateForKey(const QKeyEvent &event) const; ///< invalid for other keys
    [[nodiscard]] QRect titleRect() const;
    [[nodiscard]] QToolButton *makeStepButton(const QString &name, int months);
    void paintHeader(QPainter &painter) const;
    void paintWeekdays(QPainter &painter) const;
    void paintWeekNumbers(QPainter &painter) const;
    void paintDay(QPainter &painter, QDate date, const QRect &cell) const;

    AppState *m_state;
    QToolButton *m_previous;
    QToolButton *m_next;
    MiniMonthGeometry m_geometry;
    int m_minimumWidthPx = 0;
    int m_numberWidthPx = 0;
    QDate m_month;
    QPoint m_pointer{ -1, -1 }; // beside all days while the mouse is elsewhere
    QSet<QDate> m_busyDays;
    int m_nextRow = MiniMonthGeometry::Rows; // of the grid, to be loaded next
    QElapsedTimer m_sinceWheelStep;
    QTimer m_reloadTimer;
    int m_turnsToWait = 0;
    bool m_isStale = true;
};
