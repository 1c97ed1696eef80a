#pragma once

#include "models/Event.h"
#include "ui/surfaces/EventBlock.h"

#include <QDate>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QTime>

/// The day columns that a timeline, its header and its all-day strip share. Pixels that equal columns
/// leave over stay free at the right.
struct DayColumns {
    static constexpr int StandardGutterPx = 64;

    int gutterPx = StandardGutterPx;
    int count = 1;
    int widthPx = 0; ///< with the gutter

    [[nodiscard]] int columnWidthPx() const; ///< at least 1
    [[nodiscard]] int left(int column) const;
    [[nodiscard]] int right() const { return left(count); } ///< where the last column ends
    [[nodiscard]] int columnAt(int x) const; ///< -1 in the gutter and right of the last column

    bool operator==(const DayColumns &) const = default;
};

/// Where times lie on the vertical axis. The axis is the wall clock: every day has 24 equal hours, also one
/// that a daylight-saving change makes shorter or longer.
struct TimelineMetrics {
    static constexpr int MinutesPerDay = 24 * 60;
    static constexpr int BlockGapPx = 2; ///< between blocks side by side

    DayColumns columns;
    int hourHeightPx = 56;
    int blockLeftPx = 4; ///< from a column's left edge to its first block
    int blockRightPx = 4; ///< kept free at a column's right edge
    int minBlockHeightPx = 1;

    [[nodiscard]] int dayHeightPx() const { return 24 * hourHeightPx; }
    [[nodiscard]] int yForMinute(int minute) const { return minute * hourHeightPx / 60; }
    [[nodiscard]] int yForTime(QTime time) const;
    /// 0 for a boundary before \p date, the height of the day for one after it.
    [[nodiscard]] int yForBoundary(const QDateTime &boundary, QDate date) const;

    bool operator==(const TimelineMetrics &) const = default;
};

/// One block for each day on which a timed event shows. Blocks that would cover each other stand side by
/// side, judged by what is drawn: a short event counts as long as its smallest block, and one that ends the
/// day moves up so that its block stays inside. All-day events and those without a start are left out.
QList<EventBlock> layOutBlocks(const QList<Event> &events, QDate firstDay, const TimelineMetrics &metrics);

inline constexpr int SlotMinutes = 15; ///< what drags and clicks snap to

/// The nearest multiple of a slot that \p px stand for.
int snapMinutes(int px, int hourHeightPx);
/// The slot of the day at \p y, from 0 to 23:45.
int slotMinute(int y, int hourHeightPx);
/// True in the lower edge of a block, where a drag moves its end.
bool isOnResizeHandle(const QRect &rect, QPoint point);

/// The topmost block at \p point, or -1.
int blockIndexAt(const QList<EventBlock> &blocks, QPoint point);

/// The next index when stepping by \p step (+1 or -1) through \p count entries from \p current, where -1
/// enters at the near end. Past the ends it wraps, or gives -1.
int stepIndex(int current, int count, int step, bool wrap);

/// Where a timeline scrolls to when it lands: the start of the workday, or a third of the viewport above
/// \p now if today shows and now is outside the workday. \p now is invalid when today does not show.
int landingY(const TimelineMetrics &metrics, int workdayStart, int workdayEnd, QTime now, int viewportHeightPx);

/// The scroll position after a change of the hour height, such that the time at \p anchorPx below the top
/// of the viewport stays there.
int scrollAfterZoom(int scrollPx, int anchorPx, int oldHourHeightPx, int newHourHeightPx);

/// Gathers wheel movement of any grain into whole notches of 120 angle units; a change of direction starts
/// afresh.
class WheelNotches {
public:
    int add(int angleDelta); ///< the notches that are full now, negative for backwards

private:
    int m_pending = 0;
};
