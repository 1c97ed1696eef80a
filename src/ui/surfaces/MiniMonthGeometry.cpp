#include "ui/surfaces/MiniMonthGeometry.h"

#include <algorithm>

namespace {

constexpr int WheelStep = 60; // half a notch of an ordinary wheel

int gridTop(const MiniMonthGeometry &geometry)
{
    return geometry.weekdayRect(0).bottom() + 1 + MiniMonthGeometry::MarginPx;
}

}

QDate MiniMonthGeometry::gridStart(QDate month, Qt::DayOfWeek firstDayOfWeek)
{
    if (!month.isValid())
        return {};
    const QDate first(month.year(), month.month(), 1);
    return first.addDays(-((first.dayOfWeek() - firstDayOfWeek + Columns) % Columns));
}

int MiniMonthGeometry::weekNumber(QDate rowStart)
{
    return rowStart.addDays((Qt::Thursday - rowStart.dayOfWeek() + Columns) % Columns).weekNumber();
}

int MiniMonthGeometry::heightPx() const
{
    return gridTop(*this) + Rows * rowHeightPx + MarginPx;
}

QRect MiniMonthGeometry::headerRect() const
{
    return { MarginPx, MarginPx, std::max(0, widthPx - 2 * MarginPx), headerHeightPx };
}

QRect MiniMonthGeometry::weekdayRect(int column) const
{
    const int usable = std::max(0, widthPx - 2 * MarginPx - weekNumberWidthPx);
    const int base = usable / Columns;
    const int remainder = usable % Columns;
    return { MarginPx + weekNumberWidthPx + column * base + std::min(column, remainder),
             headerRect().bottom() + 1 + MarginPx, base + (column < remainder ? 1 : 0), weekdayHeightPx };
}

QRect MiniMonthGeometry::cellRect(int column, int row) const
{
    QRect rect = weekdayRect(column);
    rect.setRect(rect.x(), gridTop(*this) + row * rowHeightPx, rect.width(), rowHeightPx);
    return rect;
}

QRect MiniMonthGeometry::weekNumberRect(int row) const
{
    return { MarginPx, gridTop(*this) + row * rowHeightPx, weekNumberWidthPx, rowHeightPx };
}

int MiniMonthGeometry::cellAt(QPoint point) const
{
    const int y = point.y() - gridTop(*this);
    if (y < 0 || y >= Rows * rowHeightPx)
        return -1;
    const int row = y / rowHeightPx;
    for (int column = 0; column < Columns; ++column) {
        if (cellRect(column, row).contains(point))
            return row * Columns + column;
    }
    return -1;
}

qreal MiniMonthGeometry::dayRadius(const QRect &cell, int numberWidthPx)
{
    const qreal half = std::min(cell.width(), cell.height()) / 2.0;
    return std::max(2.0, std::min(half - 1.0, std::max(half - 4.0, numberWidthPx / 2.0 + 3.0)));
}

qreal MiniMonthGeometry::dotCentreY(const QRect &cell, qreal digitsBelowCentrePx, qreal radius, bool isFilled)
{
    const qreal centre = QRectF(cell).center().y();
    const qreal ordinary = cell.bottom() - 4;
    if (!isFilled)
        return ordinary;
    const qreal inside = centre + std::max(radius - 2 * DotRadiusPx, digitsBelowCentrePx + DotRadiusPx + 1);
    if (inside + DotRadiusPx <= centre + radius)
        return inside;
    return std::min(std::max(ordinary, centre + radius + DotRadiusPx + 1), cell.bottom() + 1 - DotRadiusPx);
}

int monthStepForWheel(QPoint angleDelta)
{
    if (angleDelta.y() >= WheelStep)
        return -1;
    if (angleDelta.y() <= -WheelStep || angleDelta.x() >= WheelStep)
        return 1;
    return angleDelta.x() <= -WheelStep ? -1 : 0;
}
