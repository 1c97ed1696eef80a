#include "ui/surfaces/TimelineWidget.h"

#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
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

QDateTime TimelineWidget::timeAt(int column, int minute) const
{
    return { m_firstDay.addDays(column), timeOfMinute(minute) };
}

void TimelineWidget::mousePressEvent(QMouseEvent *event)
{
    EventCanvas::mousePressEvent(event);
    endDrag();
    if (event->button() != Qt::LeftButton || !m_firstDay.isValid())
        return;
    const QPoint point = event->position().toPoint();
    if (const int index = blockIndexAt(blocks(), point); index >= 0)
        m_drag = TimelineDrag::onBlock(point, gripOf(blocks().at(index)));
    else if (const int column = metrics().columns.columnAt(point.x()); column >= 0)
        m_drag = TimelineDrag::onEmpty(point, column);
}

void TimelineWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton) || m_drag.mode() == TimelineDrag::Mode::Idle)
        return EventCanvas::mouseMoveEvent(event);
    dragTo(event->position().toPoint());
}

void TimelineWidget::dragTo(QPoint point)
{
    const bool wasUnderWay = m_drag.isUnderWay();
    m_drag.moveTo(point, metrics());
    if (!m_drag.isUnderWay()) {
        const Event *pressed = findEvent(m_drag.grip().key);
        const bool isFarEnough = (point - m_drag.pressedAt()).manhattanLength() >= QApplication::startDragDistance();
        if (pressed && isReadOnly(*pressed) && isFarEnough && !checkWritable(*pressed))
            m_drag = {}; // said once
        return;
    }
    if (!wasUnderWay && m_drag.mode() == TimelineDrag::Mode::Moving)
        setCursor(Qt::ClosedHandCursor);
    emit revealRequested(QRect(point, QSize(1, 1)));
    update();
}

void TimelineWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const TimelineDrag drag = m_drag;
    if (event->button() == Qt::LeftButton)
        endDrag();
    if (event->button() != Qt::LeftButton || !drag.changesTimes())
        return EventCanvas::mouseReleaseEvent(event);
    forgetPress();
    carryOut(drag);
}

void TimelineWidget::carryOut(const TimelineDrag &drag)
{
    const EventKey &key = drag.grip().key;
    switch (drag.mode()) {
    case TimelineDrag::Mode::Moving:
        emit eventMoveRequested(key.id, key.occurrenceStart, drag.days(), drag.minutes());
        break;
    case TimelineDrag::Mode::Resizing:
        emit eventResizeRequested(key.id, key.occurrenceStart, drag.minutes());
        break;
    case TimelineDrag::Mode::Marking:
        emit emptySpanMarked(timeAt(drag.grip().column, drag.markedStartMin()), drag.markedMinutes());
        break;
    case TimelineDrag::Mode::Idle:
    case TimelineDrag::Mode::Pressed:
        break;
    }
}

void TimelineWidget::endDrag()
{
    if (std::exchange(m_drag, {}).mode() == TimelineDrag::Mode::Idle)
        return;
    setCursor(Qt::ArrowCursor);
    update();
}

void TimelineWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (event->button() != Qt::LeftButton || blockIndexAt(blocks(), point) >= 0)
        return EventCanvas::mouseDoubleClickEvent(event);
    const int column = metrics().columns.columnAt(point.x());
    if (column >= 0 && m_firstDay.isValid())
        emit emptySlotActivated(m_firstDay.addDays(column), timeOfMinute(slotMinute(point.y(), hourHeight())));
}

void TimelineWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_drag.isUnderWay()) {
        forgetPress();
        return endDrag();
    }
    EventCanvas::keyPressEvent(event);
}

void TimelineWidget::hideEvent(QHideEvent *event)
{
    forgetPress();
    endDrag();
    EventCanvas::hideEvent(event);
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

void TimelineWidget::paintGhost(QPainter &painter) const
{
    const QRect ghost = m_drag.ghostRect(metrics());
    if (ghost.isEmpty())
        return;
    painter.setPen(QPen(Theme::accent(), GhostPenPx, Qt::DashLine));
    painter.setBrush(EventColors::withAlpha(Theme::accent(), GhostAlpha));
    painter.drawRoundedRect(ghost, GhostRadiusPx, GhostRadiusPx);
    const QFont labelFont = SurfaceFonts::bold(SurfaceFonts::resized(font(), -1, 8));
    const QFontMetrics fontMetrics(labelFont);
    const int height = std::max(GhostLabelHeightPx, fontMetrics.height());
    // Above the ghost; inside it where there is no room above. A narrow column cuts nothing off.
    const QString text = ghostLabel();
    const int y = ghost.top() >= height ? ghost.top() - height : ghost.top();
    const int textWidth = fontMetrics.horizontalAdvance(text);
    const int x = std::max(m_gutterPx, std::min(ghost.left(), width() - textWidth - 2 * GhostLabelInsetPx));
    const QRect label(x, y, textWidth + 2 * GhostLabelInsetPx, height);
    painter.setPen(Qt::NoPen);
    painter.setBrush(EventColors::withAlpha(palette().color(QPalette::Base), GhostLabelAlpha));
    painter.drawRoundedRect(label, GhostRadiusPx, GhostRadiusPx);
    painter.setFont(labelFont);
    painter.setPen(Theme::textPrimary());
    painter.drawText(label, Qt::AlignCenter, text);
}

QString TimelineWidget::ghostLabel() const
{
    const auto clock = [this](int minute) { return QLocale().toString(timeOfMinute(minute), m_timePattern); };
    const TimelineDrag::Grip &grip = m_drag.grip();
    if (m_drag.mode() == TimelineDrag::Mode::Resizing)
        return tr("%1 min").arg(std::max(0, grip.durationMin + m_drag.minutes()));
    if (m_drag.mode() == TimelineDrag::Mode::Marking) {
        const int end = m_drag.markedStartMin() + m_drag.markedMinutes();
        return tr("%1 – %2", "from, to")
            .arg(clock(m_drag.markedStartMin()), clock(end % TimelineMetrics::MinutesPerDay));
    }
    const QString start =
        clock(std::min(grip.startMin + m_drag.minutes(), TimelineMetrics::MinutesPerDay - SlotMinutes));
    if (m_columnCount == 1)
        return start;
    const QDate day = m_firstDay.addDays(grip.column + m_drag.days());
    return tr("%1 %2", "weekday, time").arg(QLocale().toString(day, QStringLiteral("ddd")), start);
}
