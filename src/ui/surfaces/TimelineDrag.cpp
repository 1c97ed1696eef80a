#include "ui/surfaces/TimelineDrag.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int MinGhostHeightPx = 8;

}

TimelineDrag TimelineDrag::onBlock(QPoint point, const Grip &grip)
{
    TimelineDrag drag;
    const bool canResize = !grip.isFixed && !grip.isAllDay;
    drag.m_mode = canResize && isOnResizeHandle(grip.rect, point) ? Mode::Resizing : Mode::Pressed;
    drag.m_grip = grip;
    drag.m_pressedAt = point;
    return drag;
}

TimelineDrag TimelineDrag::onEmpty(QPoint point, int column)
{
    TimelineDrag drag;
    drag.m_mode = Mode::Pressed;
    drag.m_grip.column = column;
    drag.m_pressedAt = point;
    return drag;
}

bool TimelineDrag::becomesMove(QPoint delta, const TimelineMetrics &metrics) const
{
    const bool isSideways = metrics.columns.count > 1 && std::abs(delta.x()) >= ThresholdPx;
    return isSideways || (!m_grip.isAllDay && std::abs(delta.y()) >= ThresholdPx);
}

int TimelineDrag::withinDay(int minutes) const
{
    const int end = m_grip.startMin + m_grip.durationMin;
    if (m_mode == Mode::Resizing)
        return std::min(minutes, std::max(0, TimelineMetrics::MinutesPerDay - end));
    const int lastStart = TimelineMetrics::MinutesPerDay - SlotMinutes;
    return std::clamp(minutes, -m_grip.startMin, std::max(0, lastStart - m_grip.startMin));
}

void TimelineDrag::moveTo(QPoint point, const TimelineMetrics &metrics)
{
    const QPoint delta = point - m_pressedAt;
    if (m_mode == Mode::Pressed && !m_grip.isFixed) {
        if (m_grip.key.isEmpty())
            m_mode = std::abs(delta.y()) >= ThresholdPx ? Mode::Marking : Mode::Pressed;
        else if (becomesMove(delta, metrics))
            m_mode = Mode::Moving;
    }
    if (m_mode == Mode::Marking)
        return mark(point.y(), metrics);
    if (m_mode != Mode::Moving && m_mode != Mode::Resizing)
        return;
    m_minutes = m_grip.isAllDay ? 0 : withinDay(snapMinutes(delta.y(), metrics.hourHeightPx));
    if (m_mode == Mode::Moving && metrics.columns.count > 1) {
        const int days = qRound(double(delta.x()) / metrics.columns.columnWidthPx());
        m_days = std::clamp(days, -m_grip.column, metrics.columns.count - 1 - m_grip.column);
    }
}

void TimelineDrag::mark(int y, const TimelineMetrics &metrics)
{
    const int pressed = slotMinute(m_pressedAt.y(), metrics.hourHeightPx);
    const int reached = std::clamp(snapMinutes(y, metrics.hourHeightPx), 0, TimelineMetrics::MinutesPerDay);
    const bool isUpwards = reached < pressed;
    const int from = isUpwards ? reached : pressed;
    const int to = isUpwards ? pressed + SlotMinutes : std::max(reached, pressed + SlotMinutes);
    m_markedStartMin = from;
    m_markedMinutes = to - from;
}

bool TimelineDrag::changesTimes() const
{
    return (isUnderWay() && (m_minutes != 0 || m_days != 0)) || m_mode == Mode::Marking;
}

QRect TimelineDrag::ghostRect(const TimelineMetrics &metrics) const
{
    if (!changesTimes())
        return {};
    if (m_mode == Mode::Marking) {
        const int top = metrics.yForMinute(m_markedStartMin);
        const int bottom = metrics.yForMinute(m_markedStartMin + m_markedMinutes);
        return { metrics.columns.left(m_grip.column) + metrics.blockLeftPx, top,
                 metrics.columns.columnWidthPx() - metrics.blockLeftPx - metrics.blockRightPx, bottom - top };
    }
    const int offset = m_minutes * metrics.hourHeightPx / 60;
    if (m_mode == Mode::Resizing)
        return { m_grip.rect.topLeft(),
                 QSize(m_grip.rect.width(), std::max(MinGhostHeightPx, m_grip.rect.height() + offset)) };
    return m_grip.rect.translated(m_days * metrics.columns.columnWidthPx(), offset);
}
