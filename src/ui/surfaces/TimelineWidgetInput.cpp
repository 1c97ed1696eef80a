#include "ui/surfaces/TimelineWidget.h"

#include "calendar/WallClock.h"

#include <QLocale>
#include <QMouseEvent>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr int DropMinutes = 60;

int minuteOf(const QDateTime &local)
{
    return local.time().hour() * 60 + local.time().minute();
}

QTime timeOfMinute(int minute)
{
    return QTime(0, 0).addSecs(std::clamp(minute, 0, TimelineMetrics::MinutesPerDay - 1) * 60);
}

}

bool TimelineWidget::spansDates(const Event &event) const
{
    const QDate start = event.startTime.toLocalTime().date();
    return event.endTime.value_or(event.startTime).toLocalTime().date() != start;
}

TimelineDrag::Grip TimelineWidget::gripOf(const EventBlock &block) const
{
    const Event &event = eventOf(block);
    const QDateTime start = event.startTime.toLocalTime();
    TimelineDrag::Grip grip;
    grip.key = block.key();
    grip.rect = block.rect;
    grip.column = std::max(0, metrics().columns.columnAt(block.rect.center().x()));
    grip.startMin = minuteOf(start);
    grip.durationMin = static_cast<int>(event.startTime.secsTo(event.endTime.value_or(event.startTime)) / 60);
    grip.isFixed = spansDates(event) || isReadOnly(event);
    return grip;
}

QDateTime TimelineWidget::localTime(QDate date, QTime time)
{
    return WallClock(QTimeZone()).at(date, time);
}

QDateTime TimelineWidget::timeAt(int column, int minute) const
{
    return localTime(m_firstDay.addDays(column), timeOfMinute(minute));
}

TimelineDrag TimelineWidget::dragFrom(QPoint point) const
{
    if (!m_firstDay.isValid())
        return {};
    if (const int index = blockIndexAt(blocks(), point); index >= 0)
        return TimelineDrag::onBlock(point, gripOf(blocks().at(index)));
    const int column = metrics().columns.columnAt(point.x());
    return column < 0 ? TimelineDrag() : TimelineDrag::onEmpty(point, column);
}

void TimelineWidget::mouseMoveEvent(QMouseEvent *event)
{
    EventDragCanvas::mouseMoveEvent(event);
    if (isDragging())
        emit revealRequested(QRect(event->position().toPoint(), QSize(1, 1)));
}

void TimelineWidget::carryOut(const TimelineDrag &drag)
{
    if (drag.mode() == TimelineDrag::Mode::Marking)
        emit emptySpanMarked(timeAt(drag.grip().column, drag.markedStartMin()), drag.markedMinutes());
    else
        EventDragCanvas::carryOut(drag);
}

void TimelineWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (event->button() != Qt::LeftButton || blockIndexAt(blocks(), point) >= 0)
        return EventDragCanvas::mouseDoubleClickEvent(event);
    const int column = metrics().columns.columnAt(point.x());
    if (column >= 0 && m_firstDay.isValid())
        emit emptySlotActivated(m_firstDay.addDays(column), timeOfMinute(slotMinute(point.y(), hourHeight())));
}

Qt::CursorShape TimelineWidget::cursorAt(QPoint point) const
{
    const int index = blockIndexAt(blocks(), point);
    if (index < 0)
        return Qt::ArrowCursor;
    const EventBlock &block = blocks().at(index);
    if (const Event &event = eventOf(block); spansDates(event) || isReadOnly(event))
        return Qt::ArrowCursor; // it cannot be dragged
    return isOnResizeHandle(block.rect, point) ? Qt::SizeVerCursor : Qt::PointingHandCursor;
}

std::optional<EventCanvas::DropPlace> TimelineWidget::dropPlaceAt(QPoint point) const
{
    if (!m_firstDay.isValid())
        return std::nullopt;
    const TimelineMetrics where = metrics();
    const int x =
        std::clamp(point.x(), where.columns.left(0), std::max(where.columns.left(0), where.columns.right() - 1));
    const int column = std::clamp(where.columns.columnAt(x), 0, m_columnCount - 1);
    const int minute = slotMinute(point.y(), where.hourHeightPx);
    const int top = where.yForMinute(minute);
    const QRect rect(where.columns.left(column) + where.blockLeftPx, top,
                     where.columns.columnWidthPx() - where.blockLeftPx - where.blockRightPx,
                     where.yForMinute(minute + DropMinutes) - top);
    return DropPlace{ timeAt(column, minute), false, rect };
}

QString TimelineWidget::ghostLabel(const TimelineDrag &drag) const
{
    const auto clock = [this](int minute) { return QLocale().toString(timeOfMinute(minute), m_timePattern); };
    const TimelineDrag::Grip &grip = drag.grip();
    if (drag.mode() == TimelineDrag::Mode::Resizing)
        return tr("%1 min").arg(std::max(0, grip.durationMin + drag.minutes()));
    if (drag.mode() == TimelineDrag::Mode::Marking) {
        const int end = drag.markedStartMin() + drag.markedMinutes();
        return tr("%1 – %2", "from, to").arg(clock(drag.markedStartMin()), clock(end % TimelineMetrics::MinutesPerDay));
    }
    const QString start = clock(std::min(grip.startMin + drag.minutes(), TimelineMetrics::MinutesPerDay - SlotMinutes));
    if (m_columnCount == 1)
        return start;
    const QDate day = m_firstDay.addDays(grip.column + drag.days());
    return tr("%1 %2", "weekday, time").arg(QLocale().toString(day, QStringLiteral("ddd")), start);
}
