#include "ui/surfaces/WeekView.h"

#include "app/state/AppState.h"
#include "ui/surfaces/TimelineHeader.h"
#include "ui/surfaces/WeekTimelineWidget.h"

#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int NowLineIntervalMs = 60'000;

QString modeOf(WeekView::Form form)
{
    return form == WeekView::Form::Week ? QStringLiteral("week") : QStringLiteral("days");
}

}

WeekView::WeekView(AppState *state, Form form, QWidget *parent)
    : TimelineView(state, new WeekTimelineWidget(state), modeOf(form), NowLineIntervalMs, parent)
    , m_form(form)
    , m_anchor(state->currentDate())
    , m_header(new TimelineHeader(this))
{
    column()->insertWidget(0, m_header);
    connect(m_header, &TimelineHeader::dayActivated, this, &WeekView::dayActivated);
    const auto onSpanChanged = [this] {
        rebuildHeader();
        reloadOrMarkStale();
    };
    connect(state, &AppState::weekHorizonChanged, this, onSpanChanged);
    connect(state, &AppState::firstDayOfWeekChanged, this, onSpanChanged);
    rebuildHeader();
}

void WeekView::setAnchorDate(QDate date)
{
    if (m_anchor == date)
        return;
    const QDate shownFrom = weekStart();
    m_anchor = date;
    if (weekStart() == shownFrom)
        return;
    rebuildHeader();
    reloadOrMarkStale();
}

QDate WeekView::weekStart() const
{
    return m_form == Form::Week ? state()->weekStart(m_anchor) : m_anchor;
}

int WeekView::columnCount() const
{
    constexpr int DaysInWeek = 7;
    constexpr int MinColumns = 2;
    return m_form == Form::Week ? DaysInWeek : std::max(MinColumns, state()->weekHorizon());
}

void WeekView::rebuildHeader()
{
    m_header->setDays(weekStart(), columnCount());
}

void WeekView::showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
{
    auto *timeline = static_cast<WeekTimelineWidget *>(TimelineView::timeline());
    timeline->setData(weekStart(), columnCount(), span, syncableCalendarIds);
}

void WeekView::onColumnsChanged(int gutterPx, int contentWidthPx)
{
    m_header->setGutterPx(gutterPx);
    m_header->setContentWidth(contentWidthPx);
}

void WeekView::onTodayChanged(QDate today)
{
    m_header->setToday(today);
}
