#pragma once

#include "models/Event.h"
#include "ui/surfaces/TimelineGeometry.h"

#include <QDate>
#include <QList>
#include <QRect>

#include <climits>

/// An all-day event across the columns that it covers.
struct AllDayBar {
    int eventIndex = -1; ///< in the list that the strip was given
    int firstColumn = 0;
    int lastColumn = 0;
    int lane = 0; ///< from 0 at the top
    bool beginsEarlier = false; ///< than the first column on show
    bool endsLater = false;

    [[nodiscard]] bool covers(int column) const { return firstColumn <= column && column <= lastColumn; }

    bool operator==(const AllDayBar &) const = default;
};

/// The all-day events of the days [\p first, \p first + \p days) in packed lanes: earlier ones first, longer
/// ones above shorter ones, so that what goes on for days keeps its place.
QList<AllDayBar> layOutBars(const QList<Event> &events, QDate first, int days);

int laneCountOf(const QList<AllDayBar> &bars);

/// How lanes become pixels, in the strip's collapsed and expanded form.
struct AllDayMetrics {
    static constexpr int CollapsedLanes = 3;
    static constexpr int LaneGapPx = 2;
    static constexpr int TopPx = 4;
    static constexpr int ChevronRowPx = 14;
    static constexpr int MinHeightPx = 28;

    DayColumns columns;
    int laneHeightPx = 20;
    int laneCount = 0;
    bool isExpanded = false;
    int laneLimit = INT_MAX; ///< most lanes at once when expanded; it scrolls by whole lanes
    int topLane = 0; ///< the first one on show

    [[nodiscard]] bool overflows() const { return laneCount > CollapsedLanes; }
    [[nodiscard]] bool isCollapsed() const { return overflows() && !isExpanded; }
    [[nodiscard]] int shownLanes() const;
    /// The most lanes that fit into an expanded strip of this height, but never fewer than when collapsed.
    [[nodiscard]] int lanesFitting(int heightPx) const;
    [[nodiscard]] int lanesHeightPx() const; ///< of the lanes with the margins around them
    [[nodiscard]] int totalHeightPx() const; ///< with the row of the chevron
    [[nodiscard]] QRect barRect(const AllDayBar &bar) const;
    [[nodiscard]] QRect cellRect(int firstColumn, int lastColumn, int lane) const;

    /// True if the bar has a place of its own. When lanes are left over, the last row shown holds, in each
    /// column, either the one bar that fits or a chip that counts what is hidden.
    [[nodiscard]] bool isShown(const AllDayBar &bar, const QList<AllDayBar> &bars) const;
};

/// The number of hidden bars in each column.
QList<int> hiddenPerColumn(const QList<AllDayBar> &bars, const AllDayMetrics &metrics);
