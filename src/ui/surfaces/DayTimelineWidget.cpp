#include "ui/surfaces/DayTimelineWidget.h"

#include "ui/theme/Theme.h"

DayTimelineWidget::DayTimelineWidget(AppState *state, QWidget *parent)
    : TimelineWidget(state,
                     { .widthHintPx = 800,
                       .blockRightPx = 8,
                       .insets = { .textLeftPx = 12, .textRightPx = 8, .iconRightPx = 4 },
                       .nowDotRadiusPx = 5,
                       .hasColumnLines = false },
                     parent)
{
}

QColor DayTimelineWidget::nowLineColor() const
{
    return Theme::danger();
}
