#pragma once

#include <QDate>
#include <QPoint>
#include <QRect>

/// Where the parts of a small month lie, in pixels of its widget. The constants fit a font of ordinary size;
/// the three heights grow with what the font needs.
struct MiniMonthGeometry {
    static constexpr int Columns = 7;
    static constexpr int Rows = 6;
    static constexpr int MarginPx = 4;
    static constexpr qreal DotRadiusPx = 2.0;

    int widthPx = 240;
    int headerHeightPx = 32;
    int weekdayHeightPx = 22;
    int rowHeightPx = 34;
    int weekNumberWidthPx = 0; ///< of a column before the days; 0: there is none

    /// The first of the 42 days on show: the last \p firstDayOfWeek that is not after the first of \p month.
    /// Invalid for an invalid date.
    static QDate gridStart(QDate month, Qt::DayOfWeek firstDayOfWeek);

    /// The ISO 8601 week of the seven days from \p rowStart: that of their Thursday, on whatever day weeks begin.
    static int weekNumber(QDate rowStart);

    [[nodiscard]] int heightPx() const;
    [[nodiscard]] QRect headerRect() const;
    [[nodiscard]] QRect weekdayRect(int column) const;
    /// Pixels that seven equal columns leave over go to the first ones, one each.
    [[nodiscard]] QRect cellRect(int column, int row) const;
    /// Left of the days of a row; empty without that column.
    [[nodiscard]] QRect weekNumberRect(int row) const;
    /// The index of the cell at \p point, 0 to 41, or -1.
    [[nodiscard]] int cellAt(QPoint point) const;

    /// Radius in pixels of the circle behind a day's number: wider than the number where the cell allows it.
    static qreal dayRadius(const QRect &cell, int numberWidthPx = 0);
    /// The vertical centre of the dot under a number whose digits end \p digitsBelowCentrePx under the centre of
    /// the cell. Of a filled circle it lies inside if there is room under the number, else below the circle.
    static qreal dotCentreY(const QRect &cell, qreal digitsBelowCentrePx, qreal radius, bool isFilled);
};

/// Months that a turn of the wheel steps, by its angle delta: -1, 0 or 1.
int monthStepForWheel(QPoint angleDelta);
