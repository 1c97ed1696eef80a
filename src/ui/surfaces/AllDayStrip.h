#pragma once

#include "ui/surfaces/AllDayGeometry.h"
#include "ui/surfaces/EventCanvas.h"

class QScrollBar;

/// The band above a timeline with all-day events as bars across its columns. More than three lanes collapse
/// to three rows with chips that count the rest, until the user opens the strip.
class AllDayStrip : public EventCanvas {
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
    [[nodiscard]] QRect chevronRect() const; ///< empty unless expanded
    [[nodiscard]] int neededGutterPx() const;
    [[nodiscard]] AllDayMetrics metrics() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void relayout() override;
    [[nodiscard]] QList<EventKey> walkOrder() const override;
    void reveal(const EventKey &key) override;

    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] QFont barFont() const;
    [[nodiscard]] QFont smallFont() const;
    void updateScrollBar();
    void paintBar(QPainter &painter, const EventBlock &block, const AllDayBar &bar) const;
    void paintChips(QPainter &painter) const;
    void paintChevron(QPainter &painter) const;

    QScrollBar *m_scrollBar;
    DayColumns m_columns;
    QDate m_first;
    QList<AllDayBar> m_bars;
    QList<AllDayBar> m_shownBars; // beside blocks()
    QList<int> m_hiddenPerColumn;
    bool m_isExpanded = false;
    int m_heightLimit = QWIDGETSIZE_MAX;
    WheelNotches m_wheelNotches;
};
