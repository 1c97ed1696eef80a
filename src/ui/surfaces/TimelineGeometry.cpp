#include "ui/surfaces/TimelineGeometry.h"

#include "calendar/EventLayout.h"

#include <algorithm>

namespace {

/// What of one event shows on one day, in minutes of the wall clock.
struct Slice {
    int eventIndex;
    QDateTime occurrenceStart;
    int startMin;
    int endMin; ///< not before startMin
    int layoutEndMin; ///< endMin, or later if the smallest block reaches further
};

int minuteOf(const QDateTime &local)
{
    return local.time().hour() * 60 + local.time().minute();
}

/// The shortest time whose block is as tall as the smallest one.
int minSliceMinutes(const TimelineMetrics &metrics)
{
    const int hour = std::max(1, metrics.hourHeightPx);
    return std::min((metrics.minBlockHeightPx * 60 + hour - 1) / hour, TimelineMetrics::MinutesPerDay);
}

Slice sliceOf(int eventIndex, const QDateTime &start, const QDateTime &end, QDate day, int minMinutes)
{
    int startMin = start.date() == day ? minuteOf(start) : 0;
    // Also where the clock goes back: 1:50 to 1:10 an hour later has no height of its own.
    int endMin = startMin;
    if (end.date() > day)
        endMin = TimelineMetrics::MinutesPerDay;
    else if (end.date() == day)
        endMin = std::max(startMin, minuteOf(end));
    startMin = std::min(startMin, TimelineMetrics::MinutesPerDay - minMinutes);
    return { eventIndex, start, startMin, endMin, std::max(endMin, startMin + minMinutes) };
}

/// The slices of each column.
QList<QList<Slice>> sliceByColumn(const QList<Event> &events, QDate firstDay, const TimelineMetrics &metrics)
{
    QList<QList<Slice>> columns(metrics.columns.count);
    const int minMinutes = minSliceMinutes(metrics);
    for (int i = 0; i < events.size(); ++i) {
        const Event &event = events.at(i);
        if (event.isAllDay || !event.startTime.isValid())
            continue;
        const QDateTime start = event.startTime.toLocalTime();
        QDateTime end = event.endTime.value_or(event.startTime).toLocalTime();
        if (!end.isValid() || end < start)
            end = start;
        const QDate first = start.date();
        // An end at midnight does not touch the day that begins there.
        const QDate last = end.date() > first ? std::max(first, end.addMSecs(-1).date()) : first;
        const qint64 from = std::max<qint64>(0, firstDay.daysTo(first));
        const qint64 to = std::min<qint64>(columns.size() - 1, firstDay.daysTo(last));
        for (qint64 column = from; column <= to; ++column)
            columns[column].append(sliceOf(i, start, end, firstDay.addDays(column), minMinutes));
    }
    return columns;
}

/// Stands for a slice in the layout, which works on instants. Minutes of the day stand in for them, so that
/// the hour that comes twice in autumn is laid out as it is drawn.
Event standIn(const Slice &slice, qsizetype index)
{
    Event event;
    event.id = QString::number(index);
    event.startTime = QDateTime::fromSecsSinceEpoch(slice.startMin * 60, Qt::UTC);
    event.endTime = QDateTime::fromSecsSinceEpoch(slice.layoutEndMin * 60, Qt::UTC);
    return event;
}

QRect rectOf(const Slice &slice, const EventLayout::Placement &placement, int column, const TimelineMetrics &metrics)
{
    const int left = metrics.columns.left(column) + metrics.blockLeftPx;
    const int available = std::max(1, metrics.columns.columnWidthPx() - metrics.blockLeftPx - metrics.blockRightPx);
    const int count = std::max(1, placement.columnCount);
    const int width = std::max(1, (available - (count - 1) * TimelineMetrics::BlockGapPx) / count);
    // Where more events overlap than there are pixels, the last ones share the right edge.
    const int x = std::min(left + placement.column * (width + TimelineMetrics::BlockGapPx), left + available - width);
    const int top = metrics.yForMinute(slice.startMin);
    const int bottom = std::max(metrics.yForMinute(slice.endMin), top + metrics.minBlockHeightPx);
    return { x, top, width, bottom - top };
}

}

int DayColumns::columnWidthPx() const
{
    return std::max(1, std::max(0, widthPx - gutterPx) / std::max(1, count));
}

int DayColumns::left(int column) const
{
    return gutterPx + column * columnWidthPx();
}

int DayColumns::columnAt(int x) const
{
    if (x < gutterPx)
        return -1;
    const int column = (x - gutterPx) / columnWidthPx();
    return column < count ? column : -1;
}

int TimelineMetrics::yForTime(QTime time) const
{
    return yForMinute(time.hour() * 60 + time.minute());
}

int TimelineMetrics::yForBoundary(const QDateTime &boundary, QDate date) const
{
    const QDateTime local = boundary.toLocalTime();
    if (local.date() < date)
        return 0;
    return local.date() > date ? dayHeightPx() : yForTime(local.time());
}

QList<EventBlock> layOutBlocks(const QList<Event> &events, QDate firstDay, const TimelineMetrics &metrics)
{
    QList<EventBlock> blocks;
    if (!firstDay.isValid())
        return blocks;
    const QList<QList<Slice>> columns = sliceByColumn(events, firstDay, metrics);
    for (int column = 0; column < columns.size(); ++column) {
        const QList<Slice> &slices = columns.at(column);
        QList<Event> standIns;
        standIns.reserve(slices.size());
        for (qsizetype i = 0; i < slices.size(); ++i)
            standIns.append(standIn(slices.at(i), i));
        const QList<EventLayout::Placement> placements = EventLayout::compute(standIns);
        for (const EventLayout::Placement &placement : placements) {
            const Slice &slice = slices.at(placement.event.id.toInt());
            const Event &event = events.at(slice.eventIndex);
            blocks.append({ event.id, rectOf(slice, placement, column, metrics), event.startTime, slice.eventIndex });
        }
    }
    return blocks;
}

int snapMinutes(int px, int hourHeightPx)
{
    return qRound(px / (std::max(1, hourHeightPx) / 60.0) / SlotMinutes) * SlotMinutes;
}

int slotMinute(int y, int hourHeightPx)
{
    const int minute = std::max(0, y) * 60 / std::max(1, hourHeightPx);
    return std::min(minute, TimelineMetrics::MinutesPerDay - SlotMinutes) / SlotMinutes * SlotMinutes;
}

bool isOnResizeHandle(const QRect &rect, QPoint point)
{
    constexpr int HandlePx = 7;
    return rect.contains(point) && point.y() >= rect.bottom() - std::min(HandlePx, rect.height() / 3);
}

int blockIndexAt(const QList<EventBlock> &blocks, QPoint point)
{
    for (int i = static_cast<int>(blocks.size()) - 1; i >= 0; --i) {
        if (blocks.at(i).rect.contains(point))
            return i;
    }
    return -1;
}

int stepIndex(int current, int count, int step, bool wrap)
{
    if (count <= 0)
        return -1;
    if (current < 0)
        return step > 0 ? 0 : count - 1;
    const int next = current + step;
    if (next >= 0 && next < count)
        return next;
    return wrap ? (next + count) % count : -1;
}

int landingY(const TimelineMetrics &metrics, int workdayStart, int workdayEnd, QTime now, int viewportHeightPx)
{
    if (now.isValid() && (now.hour() < workdayStart || now.hour() >= workdayEnd))
        return std::max(0, metrics.yForTime(now) - viewportHeightPx / 3);
    return metrics.yForMinute(workdayStart * 60);
}

int scrollAfterZoom(int scrollPx, int anchorPx, int oldHourHeightPx, int newHourHeightPx)
{
    const double anchoredHour = double(scrollPx + anchorPx) / std::max(1, oldHourHeightPx);
    return std::max(0, qRound(anchoredHour * newHourHeightPx) - anchorPx);
}

int WheelNotches::add(int angleDelta)
{
    constexpr int NotchUnits = 120;
    if (angleDelta == 0) // the end of a touchpad's gesture, or a sideways step
        return 0;
    if ((angleDelta > 0) != (m_pending > 0))
        m_pending = 0;
    m_pending += angleDelta;
    const int notches = m_pending / NotchUnits;
    m_pending %= NotchUnits;
    return notches;
}
