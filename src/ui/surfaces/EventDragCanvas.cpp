#include "ui/surfaces/EventDragCanvas.h"

#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int GhostAlpha = 40;
constexpr int GhostLabelAlpha = 220; // what lies below must not mix with it
constexpr int GhostRadiusPx = 4;
constexpr double GhostPenPx = 1.6;
constexpr int GhostLabelHeightPx = 18;
constexpr int GhostLabelInsetPx = 4;

}

void EventDragCanvas::mousePressEvent(QMouseEvent *event)
{
    EventCanvas::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return giveUpDrag();
    endDrag();
    m_drag = dragFrom(event->position().toPoint());
}

void EventDragCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const bool isHeld = event->buttons().testFlag(Qt::LeftButton);
    if (!isHeld)
        giveUpDrag(); // the release went to a dialog that opened meanwhile
    if (!isHeld || m_drag.mode() == TimelineDrag::Mode::Idle)
        return EventCanvas::mouseMoveEvent(event);
    dragTo(event->position().toPoint());
}

void EventDragCanvas::dragTo(QPoint point)
{
    const bool wasUnderWay = m_drag.isUnderWay();
    m_drag.moveTo(point, dragMetrics());
    if (!m_drag.isUnderWay()) {
        const Event *pressed = findEvent(m_drag.grip().key);
        const bool isFarEnough = (point - m_drag.pressedAt()).manhattanLength() >= QApplication::startDragDistance();
        if (pressed && isReadOnly(*pressed) && isFarEnough && !checkWritable(*pressed))
            m_drag = {}; // said once
        return;
    }
    if (!wasUnderWay && m_drag.mode() == TimelineDrag::Mode::Moving)
        setCursor(Qt::ClosedHandCursor);
    update();
}

void EventDragCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    const TimelineDrag drag = m_drag;
    if (event->button() == Qt::LeftButton)
        endDrag();
    if (event->button() != Qt::LeftButton || !drag.changesTimes())
        return EventCanvas::mouseReleaseEvent(event);
    forgetPress();
    carryOut(drag);
}

void EventDragCanvas::carryOut(const TimelineDrag &drag)
{
    const EventKey &key = drag.grip().key;
    if (drag.mode() == TimelineDrag::Mode::Moving)
        emit eventMoveRequested(key.id, key.occurrenceStart, drag.days(), drag.minutes());
    else if (drag.mode() == TimelineDrag::Mode::Resizing)
        emit eventResizeRequested(key.id, key.occurrenceStart, drag.minutes());
}

void EventDragCanvas::endDrag()
{
    if (std::exchange(m_drag, {}).mode() == TimelineDrag::Mode::Idle)
        return;
    setCursor(Qt::ArrowCursor);
    update();
}

void EventDragCanvas::giveUpDrag()
{
    forgetPress();
    endDrag();
}

void EventDragCanvas::giveUpStaleDrag()
{
    if (isDragging()) // a mere press may still become a click
        giveUpDrag();
}

void EventDragCanvas::keyPressEvent(QKeyEvent *event)
{
    if (!isDragging())
        return EventCanvas::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape)
        giveUpDrag(); // and other keys do not edit what is being dragged
}

void EventDragCanvas::hideEvent(QHideEvent *event)
{
    giveUpDrag();
    EventCanvas::hideEvent(event);
}

void EventDragCanvas::paintGhost(QPainter &painter) const
{
    const TimelineMetrics where = dragMetrics();
    const QRect ghost = m_drag.ghostRect(where);
    if (ghost.isEmpty())
        return;
    painter.save();
    painter.setClipRect(rect().adjusted(where.columns.gutterPx, 0, 0, 0), Qt::IntersectClip);
    painter.setPen(QPen(Theme::accent(), GhostPenPx, Qt::DashLine));
    painter.setBrush(EventColors::withAlpha(Theme::accent(), GhostAlpha));
    painter.drawRoundedRect(ghost, GhostRadiusPx, GhostRadiusPx);
    paintGhostLabel(painter, ghost, where.columns.gutterPx);
    painter.restore();
}

void EventDragCanvas::paintGhostLabel(QPainter &painter, const QRect &ghost, int leftPx) const
{
    const QFont labelFont = SurfaceFonts::bold(SurfaceFonts::resized(font(), -1, 8));
    const QFontMetrics fontMetrics(labelFont);
    const int labelHeight = std::max(GhostLabelHeightPx, fontMetrics.height());
    // Above the ghost; inside it where there is no room above. A narrow column cuts nothing off.
    const QString text = ghostLabel(m_drag);
    const int y = ghost.top() >= labelHeight ? ghost.top() - labelHeight : ghost.top();
    const int labelWidth = fontMetrics.horizontalAdvance(text) + 2 * GhostLabelInsetPx;
    const QRect label(std::max(leftPx, std::min(ghost.left(), width() - labelWidth)), y, labelWidth, labelHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(EventColors::withAlpha(palette().color(QPalette::Base), GhostLabelAlpha));
    painter.drawRoundedRect(label, GhostRadiusPx, GhostRadiusPx);
    painter.setFont(labelFont);
    painter.setPen(Theme::textPrimary());
    painter.drawText(label, Qt::AlignCenter, text);
}
