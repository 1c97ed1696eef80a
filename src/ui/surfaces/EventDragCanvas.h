#pragma once

#include "ui/surfaces/EventCanvas.h"
#include "ui/surfaces/TimelineDrag.h"

/// A canvas whose events can be dragged. The left button moves an event or its end, and a ghost shows where it would
/// go; Escape, another button and a change of the layout give it up. The release asks with a signal.
class EventDragCanvas : public EventCanvas {
    Q_OBJECT

public:
    using EventCanvas::EventCanvas;

protected:
    [[nodiscard]] bool isDragging() const { return m_drag.isUnderWay(); }

    /// The drag that a press at \p point may become; an idle one if none.
    [[nodiscard]] virtual TimelineDrag dragFrom(QPoint point) const = 0;
    /// What pixels mean.
    [[nodiscard]] virtual TimelineMetrics dragMetrics() const = 0;
    [[nodiscard]] virtual QString ghostLabel(const TimelineDrag &drag) const = 0;
    /// Asks for what the drag stands for.
    virtual void carryOut(const TimelineDrag &drag);

    void giveUpDrag(); ///< a release to come is no click
    /// Pixels or columns mean something else now.
    void giveUpStaleDrag();
    void paintGhost(QPainter &painter) const;

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void dragTo(QPoint point);
    void endDrag();
    void paintGhostLabel(QPainter &painter, const QRect &ghost, int leftPx) const;

    TimelineDrag m_drag;
};
