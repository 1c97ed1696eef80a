#pragma once

#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/EventDragCanvas.h"
#include "ui/surfaces/TimelineBlockPainter.h"
#include "ui/surfaces/TimelineGeometry.h"

#include <QDate>
#include <QDateTime>

#include <optional>

struct VisibleSpan;
class QPainter;

/// Timed events on a vertical axis of 24 hours, one column for each day. A drag moves an event or its end, or
/// marks empty time; nothing is stored here. It is as tall as its hours need, and
/// sits in a scroll area. DayTimelineWidget and WeekTimelineWidget only differ in their Look.
class TimelineWidget : public EventDragCanvas {
    Q_OBJECT

public:
    using Block = EventBlock;

    struct Look {
        int widthHintPx;
        int blockRightPx; ///< kept free at a column's right edge
        BlockInsets insets; ///< the padding follows the density
        int nowDotRadiusPx;
        bool hasColumnLines; ///< lines between columns, and a tint on today's
    };

    void setCompact(bool compact);
    void setBaseHourHeight(int pixels);
    void setWorkdayHours(int start, int end);
    void setGutterPx(int pixels);
    /// The moment that the now line shows; its date is today.
    void setNow(const QDateTime &now);

    [[nodiscard]] QDate firstDay() const { return m_firstDay; }
    [[nodiscard]] int columnCount() const { return m_columnCount; }
    /// Pixels: the base, or more where an hour's block could not show its time in the font.
    [[nodiscard]] int neededHourHeight() const;
    [[nodiscard]] int hourHeight() const; ///< pixels; grows when the widget is taller than its hours need
    [[nodiscard]] int yForTime(QTime time) const { return metrics().yForTime(time); }
    [[nodiscard]] int yForBoundary(const QDateTime &boundary, QDate date) const;
    [[nodiscard]] int neededGutterPx() const; ///< for the widest hour label
    [[nodiscard]] TimelineMetrics metrics() const;
    [[nodiscard]] QRect nowLineRect() const; ///< empty if today does not show

    /// Valid also where a clock change leaves the time out.
    static QDateTime localTime(QDate date, QTime time);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// Ctrl and the wheel: by how many notches, and the pointer's y in the widget.
    void zoomRequested(int steps, int y);
    void revealRequested(const QRect &rect);
    void emptySlotActivated(QDate date, QTime time); ///< a double click beside all events
    void emptySpanMarked(const QDateTime &start, int minutes); ///< dragged over empty time; local

protected:
    TimelineWidget(AppState *state, const Look &look, QWidget *parent);

    void setDays(QDate firstDay, int columnCount);
    void readTimeFormat();
    void setSpan(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds);

    void relayout() override;
    void onPaletteChanged() override;
    [[nodiscard]] QList<EventKey> walkOrder() const override;
    void reveal(const EventKey &key) override;

    [[nodiscard]] virtual QColor nowLineColor() const = 0;
    [[nodiscard]] Qt::CursorShape cursorAt(QPoint point) const override;
    [[nodiscard]] std::optional<DropPlace> dropPlaceAt(QPoint point) const override;
    [[nodiscard]] TimelineDrag dragFrom(QPoint point) const override;
    [[nodiscard]] TimelineMetrics dragMetrics() const override { return metrics(); }
    [[nodiscard]] QString ghostLabel(const TimelineDrag &drag) const override;
    void carryOut(const TimelineDrag &drag) override;

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    /// How a block looks, made when it is first painted.
    struct Painted {
        BlockColors colors;
        BlockContent content;
    };

    void markDirtyIfMoved();
    [[nodiscard]] int todayColumn() const; ///< -1 if today does not show
    [[nodiscard]] QString hourLabel(int hour) const;
    [[nodiscard]] Painted makePainted(const EventBlock &block) const;
    [[nodiscard]] const TimelineBlockPainter &blockPainter() const;
    [[nodiscard]] QList<QRect> shadedRects() const; ///< the hours outside the workday
    void paintBackground(QPainter &painter, const QRect &exposed) const;
    void paintHours(QPainter &painter, const QRect &exposed) const;
    void paintNowLine(QPainter &painter) const;
    void paintBlock(QPainter &painter, int index);
    [[nodiscard]] TimelineDrag::Grip gripOf(const EventBlock &block) const;
    [[nodiscard]] bool spansDates(const Event &event) const;
    [[nodiscard]] QDateTime timeAt(int column, int minute) const; ///< local

    Look m_look;
    QDate m_firstDay;
    int m_columnCount = 1;
    QSet<QString> m_syncableCalendarIds;
    int m_workdayStart = 8; // hours
    int m_workdayEnd = 18;
    int m_baseHourHeight = 56; // pixels
    int m_gutterPx = DayColumns::StandardGutterPx;
    bool m_isCompact = false;
    QDateTime m_now;
    QString m_timePattern; // kept, as reading the setting is a query
    QString m_hourPattern;
    mutable std::optional<TimelineBlockPainter> m_blockPainter; // made anew when the font has changed
    TimelineMetrics m_laidOutFor;
    WheelNotches m_zoomNotches;
    QList<std::optional<Painted>> m_painted; // beside blocks()
};
