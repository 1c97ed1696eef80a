#pragma once

#include "ui/surfaces/AllDayGeometry.h"
#include "ui/surfaces/EventDragCanvas.h"

class QScrollBar;

/// The band above a timeline with all-day events as bars across its columns. More than three lanes collapse
/// to three rows with chips that count the rest, until the user opens the strip: by a click, by the keys plus and
/// minus, or by Return while no event is selected. A bar can be dragged to other days.
class AllDayStrip : public EventDragCanvas {
    Q_OBJECT

public:
    explicit AllDayStrip(AppState *state, QWidget *parent = nullptr);

    void setData(int gutterPx, QDate first, int days, const QList<Event> &events,
                 const QHash<QString, QString> &calendarColors, const QSet<QString> &dimmedIds);
    void setGutterPx(int pixels);
    /// The width that the columns share with the timeline below; the strip itself may be wider.
    void setContentWidth(int pixels);
    /// An expanded strip that needs more scrolls.
    void setHeightLimit(int pixels);
    void setExpanded(bool expanded);

    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    [[nodiscard]] int laneCount() const { return laneCountOf(m_bars); }
    [[nodiscard]] int overflowChipAt(QPoint point) const; ///< its column, or -1
    [[nodiscard]] QRect overflowChipRect(int column) const; ///< empty if the column has none
    [[nodiscard]] QString overflowChipText(int column) const; ///< as long as the chip is wide
    /// The titles of the events that a chip stands for.
    [[nodiscard]] QStringList hiddenTitles(int column) const;
    [[nodiscard]] QRect chevronRect() const; ///< empty unless expanded
    [[nodiscard]] int neededGutterPx() const;
    [[nodiscard]] AllDayMetrics metrics() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void emptyDayActivated(QDate day); ///< a double click beside all events

protected:
    void relayout() override;
    [[nodiscard]] QList<EventKey> walkOrder() const override;
    void reveal(const EventKey &key) override;
    [[nodiscard]] std::optional<DropPlace> dropPlaceAt(QPoint point) const override;
    [[nodiscard]] Qt::CursorShape cursorAt(QPoint point) const override;
    [[nodiscard]] TimelineDrag dragFrom(QPoint point) const override;
    [[nodiscard]] TimelineMetrics dragMetrics() const override;
    [[nodiscard]] QString ghostLabel(const TimelineDrag &drag) const override;

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] QFont barFont() const;
    [[nodiscard]] QFont smallFont() const;
    [[nodiscard]] int controlAt(QPoint point) const; // a chip's column, Chevron or NoControl
    [[nodiscard]] QString chipToolTip(int column) const;
    void updateScrollBar();
    void paintBar(QPainter &painter, const EventBlock &block, const AllDayBar &bar) const;
    void paintChips(QPainter &painter) const;
    void paintChevron(QPainter &painter) const;

    static constexpr int NoControl = -1;
    static constexpr int Chevron = -2;

    QScrollBar *m_scrollBar;
    DayColumns m_columns;
    QDate m_first;
    QList<AllDayBar> m_bars;
    QList<AllDayBar> m_shownBars; // beside blocks()
    QList<int> m_hiddenPerColumn;
    bool m_isExpanded = false;
    int m_pressedControl = NoControl;
    bool m_lastPressOnControl = false;
    int m_heightLimit = QWIDGETSIZE_MAX;
    WheelNotches m_wheelNotches;
};
