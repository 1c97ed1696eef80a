#pragma once

#include "models/Event.h"

#include <QDate>
#include <QTimer>
#include <QWidget>

#include <optional>

class AllDayStrip;
class AppState;
class EventCanvas;
class QScrollArea;
class QVBoxLayout;
class TimelineWidget;
struct VisibleSpan;

/// A timeline in a scroll area under its all-day strip. It loads what they show, follows the program's
/// state, and hands the user's requests on. While hidden it loads nothing, and catches up when it is shown.
class TimelineView : public QWidget {
    Q_OBJECT

public:
    void reload();
    void relandOnStartHour(); ///< at once if it is on show, else when it next is
    void applyInitialScroll();
    void zoomBy(int steps); ///< around the middle of what is on show; a step is 8 pixels an hour

    [[nodiscard]] virtual QDate firstDay() const = 0;
    [[nodiscard]] virtual int columnCount() const = 0;
    [[nodiscard]] TimelineWidget *timeline() const { return m_timeline; }
    [[nodiscard]] AllDayStrip *strip() const { return m_strip; }
    [[nodiscard]] QScrollArea *scrollArea() const { return m_scroll; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// \p globalRect is empty if the event is not on screen.
    void eventSelected(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect);
    void eventActivated(const QString &id, const QDateTime &occurrenceStart); ///< double click
    void contextMenuRequested(const Event &shown, const QPoint &globalPos);
    void moveRequested(const QString &id, const QDateTime &occurrenceStart, int days, int minutes);
    void resizeRequested(const QString &id, const QDateTime &occurrenceStart, int minutes);
    void deleteRequested(const QString &id); ///< by keyboard
    void createRequested(const QDateTime &start, int minutes); ///< local
    void createAllDayRequested(QDate first, int days);
    void taskDropped(const QString &taskId, const QDateTime &when, bool allDay, const QPoint &globalPos);
    void icsDropped(const QStringList &paths);
    void refused(const QString &why); ///< an event that takes no changes was about to be dragged

protected:
    /// \p mode names the view mode whose density applies.
    TimelineView(AppState *state, TimelineWidget *timeline, const QString &mode, int nowLineIntervalMs,
                 QWidget *parent);

    [[nodiscard]] AppState *state() const { return m_state; }
    [[nodiscard]] QVBoxLayout *column() const { return m_layout; }
    void reloadOrMarkStale();
    void reloadSoon(); ///< once for all that changes before the event loop turns

    virtual void showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds) = 0;
    virtual void onColumnsChanged(int gutterPx, int contentWidthPx);
    virtual void onTodayChanged(QDate today);

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void connectState();
    void connectCanvas(EventCanvas *canvas);
    void connectTimeline();
    void onHourHeightChanged(int pixels);
    void onWorkdayHoursChanged(int start, int end);
    void onEventSelected(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect);
    void onContextRequested(const EventCanvas *canvas, const QPoint &globalPos);
    void onSelectionChanged();
    [[nodiscard]] bool showsSelection() const;
    void followSelection();
    void zoomAt(int steps, int viewportY);
    void onFontMetricsChanged();
    void reveal(const QRect &rect);
    void updateNow();
    void updateColumns();
    /// Gives the timeline the size that its hours need, with the same time as before at \p anchorPx of the viewport.
    void fitTimeline(int anchorPx = 0);

    AppState *m_state;
    QString m_mode;
    TimelineWidget *m_timeline;
    AllDayStrip *m_strip;
    QScrollArea *m_scroll;
    QVBoxLayout *m_layout;
    QTimer m_nowTimer;
    QTimer m_reloadTimer;
    int m_workdayStart; // hours
    bool m_isStale = true;
    bool m_landPending = true;
    std::optional<int> m_zoomAnchorPx; // in the viewport, during a zoom of our own
};
