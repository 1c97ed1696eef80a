#include "ui/surfaces/AllDayGeometry.h"

#include "calendar/EventDays.h"

#include <algorithm>

namespace {

std::optional<AllDayBar> barOf(const Event &event, int eventIndex, QDate first, int days)
{
    const QDate firstDay = EventDays::firstDay(event);
    if (!event.isAllDay || !firstDay.isValid())
        return {};
    const qint64 from = first.daysTo(firstDay);
    const qint64 to = std::max(from, first.daysTo(EventDays::lastDay(event)));
    if (to < 0 || from >= days)
        return {};
    AllDayBar bar;
    bar.eventIndex = eventIndex;
    bar.firstColumn = static_cast<int>(std::max<qint64>(0, from));
    bar.lastColumn = static_cast<int>(std::min<qint64>(days - 1, to));
    bar.beginsEarlier = from < 0;
    bar.endsLater = to >= days;
    return bar;
}

}

QList<AllDayBar> layOutBars(const QList<Event> &events, QDate first, int days)
{
    QList<AllDayBar> bars;
    if (!first.isValid())
        return bars;
    for (int i = 0; i < events.size(); ++i) {
        if (const std::optional<AllDayBar> bar = barOf(events.at(i), i, first, days))
            bars.append(*bar);
    }
    std::sort(bars.begin(), bars.end(), [&events](const AllDayBar &a, const AllDayBar &b) {
        if (a.firstColumn != b.firstColumn)
            return a.firstColumn < b.firstColumn;
        if (a.lastColumn != b.lastColumn)
            return a.lastColumn > b.lastColumn;
        const Event &left = events.at(a.eventIndex);
        const Event &right = events.at(b.eventIndex);
        if (const int order = left.title.localeAwareCompare(right.title); order != 0)
            return order < 0;
        return left.id < right.id;
    });
    // Bars come by their first column, so a lane is free when its last bar has ended.
    QList<int> laneEnds;
    for (AllDayBar &bar : bars) {
        const auto free =
            std::find_if(laneEnds.begin(), laneEnds.end(), [&bar](int end) { return end < bar.firstColumn; });
        bar.lane = static_cast<int>(free - laneEnds.begin());
        if (free == laneEnds.end())
            laneEnds.append(bar.lastColumn);
        else
            *free = bar.lastColumn;
    }
    return bars;
}

int laneCountOf(const QList<AllDayBar> &bars)
{
    int count = 0;
    for (const AllDayBar &bar : bars)
        count = std::max(count, bar.lane + 1);
    return count;
}

int AllDayMetrics::shownLanes() const
{
    if (isCollapsed())
        return CollapsedLanes;
    return std::max(1, std::min(laneCount, std::max(CollapsedLanes, laneLimit)));
}

int AllDayMetrics::lanesFitting(int heightPx) const
{
    const int room = heightPx - ChevronRowPx - 2 * TopPx + LaneGapPx;
    return std::max(CollapsedLanes, room / (laneHeightPx + LaneGapPx));
}

int AllDayMetrics::lanesHeightPx() const
{
    const int lanes = shownLanes();
    return lanes * laneHeightPx + 2 * TopPx + (lanes - 1) * LaneGapPx;
}

int AllDayMetrics::totalHeightPx() const
{
    const int chevron = overflows() && isExpanded ? ChevronRowPx : 0;
    return std::max(MinHeightPx, lanesHeightPx() + chevron);
}

QRect AllDayMetrics::cellRect(int firstColumn, int lastColumn, int lane) const
{
    const int y = (lane - topLane) * (laneHeightPx + LaneGapPx) + TopPx;
    const int width = (lastColumn - firstColumn + 1) * columns.columnWidthPx() - 4;
    return { columns.left(firstColumn) + 2, y, std::max(1, width), laneHeightPx };
}

QRect AllDayMetrics::barRect(const AllDayBar &bar) const
{
    return cellRect(bar.firstColumn, bar.lastColumn, bar.lane);
}

bool AllDayMetrics::isShown(const AllDayBar &bar, const QList<AllDayBar> &bars) const
{
    if (!isCollapsed())
        return bar.lane >= topLane && bar.lane < topLane + shownLanes();
    if (bar.lane != CollapsedLanes - 1)
        return bar.lane < CollapsedLanes - 1;
    return std::none_of(bars.begin(), bars.end(), [&bar](const AllDayBar &other) {
        return other.lane > bar.lane && other.lastColumn >= bar.firstColumn && other.firstColumn <= bar.lastColumn;
    });
}

QList<int> hiddenPerColumn(const QList<AllDayBar> &bars, const AllDayMetrics &metrics)
{
    QList<int> hidden(std::max(1, metrics.columns.count), 0);
    if (!metrics.isCollapsed())
        return hidden;
    for (const AllDayBar &bar : bars) {
        if (metrics.isShown(bar, bars))
            continue;
        for (int column = bar.firstColumn; column <= bar.lastColumn; ++column)
            ++hidden[column];
    }
    return hidden;
}
