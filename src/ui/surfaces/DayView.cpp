#include "ui/surfaces/DayView.h"

#include "app/state/AppState.h"
#include "ui/surfaces/DayTimelineWidget.h"

namespace {

constexpr int NowLineIntervalMs = 30'000;

}

DayView::DayView(AppState *state, QWidget *parent)
    : TimelineView(state, new DayTimelineWidget(state), QStringLiteral("day"), NowLineIntervalMs, parent)
    , m_date(state->currentDate())
{
}

void DayView::setDate(QDate date)
{
    if (m_date == date)
        return;
    m_date = date;
    reloadOrMarkStale();
}

void DayView::showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
{
    auto *timeline = static_cast<DayTimelineWidget *>(TimelineView::timeline());
    timeline->setRenderedDate(m_date);
    timeline->setData(span, syncableCalendarIds);
}
