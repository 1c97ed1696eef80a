#include "ui/surfaces/WeekTimelineWidget.h"

WeekTimelineWidget::WeekTimelineWidget(AppState *state, QWidget *parent)
    : TimelineWidget(state,
                     { .widthHintPx = 1000,
                       .blockRightPx = 4,
                       .insets = { .textLeftPx = 9, .textRightPx = 6, .iconRightPx = 2 },
                       .nowDotRadiusPx = 4,
                       .hasColumnLines = true },
                     parent)
{
}

void WeekTimelineWidget::setData(QDate firstDay, int columnCount, const VisibleSpan &span,
                                 const QSet<QString> &syncableCalendarIds)
{
    setDays(firstDay, columnCount);
    setSpan(span, syncableCalendarIds);
}

QColor WeekTimelineWidget::nowLineColor() const
{
    return { 220, 53, 69 };
}
