#include "ui/ViewArea.h"

#include "app/state/AppState.h"
#include "calendar/services/VisibleEvents.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/ViewRepository.h"
#include "ui/GroupButton.h"
#include "ui/ModeBar.h"
#include "ui/ViewModes.h"
#include "ui/actions/EventActions.h"
#include "ui/actions/TaskDropHandler.h"
#include "ui/surfaces/DayView.h"
#include "ui/surfaces/WeekView.h"
#include "ui/theme/ElidedLabel.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

constexpr QMargins HeaderMargins(12, 6, 12, 6);
constexpr int RowGapPx = 4;
constexpr int ButtonGapPx = 8;
constexpr int LabelGapPx = 12;

}

ViewArea::ViewArea(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_stack(new QStackedWidget)
    , m_statsTimer(new QTimer(this))
{
    m_clock.start();
    m_statsTimer->setSingleShot(true);
    m_statsTimer->setInterval(0);
    connect(m_statsTimer, &QTimer::timeout, this, &ViewArea::recomputeFilterStats);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(buildHeader());
    column->addWidget(m_stack, 1);
    buildSurfaces();
    state->replaceViewMode(ViewModes::normalized(state->viewMode(), availableModes()));
    connectState();
    onCurrentDateChanged(state->currentDate());
    setMode(state->viewMode());
    qApp->installEventFilter(this);
}

QStringList ViewArea::availableModes()
{
    return { QStringLiteral("day"), QStringLiteral("week"), QStringLiteral("days") };
}

QString ViewArea::dateText() const
{
    return m_dateLabel->text();
}

QWidget *ViewArea::buildHeader()
{
    auto *header = new QWidget;
    header->setAutoFillBackground(true);
    auto *rows = new QVBoxLayout(header);
    rows->setContentsMargins(HeaderMargins);
    rows->setSpacing(RowGapPx);
    rows->addLayout(buildNavigationRow());
    m_modes = new ModeBar(m_state, availableModes());
    connect(m_modes, &ModeBar::modeChosen, this, &ViewArea::setMode);
    rows->addWidget(m_modes, 0, Qt::AlignHCenter);
    return header;
}

QHBoxLayout *ViewArea::buildNavigationRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(ButtonGapPx);
    m_back = addStepButton(row, QStringLiteral("◀"), tr("Previous"), -1);
    auto *today = new QToolButton;
    today->setObjectName(QStringLiteral("today"));
    today->setText(tr("Today"));
    today->setAutoRaise(true);
    connect(today, &QToolButton::clicked, this, &ViewArea::goToToday);
    row->addWidget(today);
    m_forward = addStepButton(row, QStringLiteral("▶"), tr("Next"), 1);
    row->addSpacing(LabelGapPx);

    m_dateLabel = new ElidedLabel;
    m_dateLabel->setObjectName(QStringLiteral("dateLabel"));
    QFont font = m_dateLabel->font();
    font.setBold(true);
    font.setPointSize(Theme::FontSizeBody + 1);
    m_dateLabel->setFont(font);
    row->addWidget(m_dateLabel, 1);
    row->addWidget(new GroupButton(m_state));
    return row;
}

QToolButton *ViewArea::addStepButton(QHBoxLayout *row, const QString &text, const QString &name, int direction)
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, [this, direction] { stepDate(direction); });
    row->addWidget(button);
    return button;
}

void ViewArea::buildSurfaces()
{
    m_day = new DayView(m_state);
    m_week = new WeekView(m_state, WeekView::Form::Week);
    m_days = new WeekView(m_state, WeekView::Form::Days);
    for (TimelineView *view : timelines()) {
        m_stack->addWidget(view);
        connect(view, &TimelineView::icsDropped, this, &ViewArea::icsDropped);
        connect(view, &TimelineView::refused, this, &ViewArea::message);
        connect(view, &TimelineView::taskDropped, this,
                [this](const QString &taskId, const QDateTime &when, bool allDay, const QPoint &globalPos) {
                    TaskDropHandler::handleDrop(m_state, taskId, when, allDay, globalPos, this);
                });
    }
    for (WeekView *view : { m_week, m_days }) {
        connect(view, &WeekView::dayActivated, this,
                [this](QDate date) { m_state->setViewModeAndDate(QStringLiteral("day"), date); });
    }
}

QList<TimelineView *> ViewArea::timelines() const
{
    return { m_day, m_week, m_days };
}

void ViewArea::connectActions(EventActions *actions)
{
    for (TimelineView *view : timelines()) {
        connect(view, &TimelineView::eventSelected, actions, &EventActions::open);
        connect(view, &TimelineView::eventActivated, actions, &EventActions::edit);
        connect(view, &TimelineView::contextMenuRequested, actions, &EventActions::showContextMenu);
        connect(view, &TimelineView::moveRequested, actions, &EventActions::move);
        connect(view, &TimelineView::resizeRequested, actions, &EventActions::resize);
        connect(view, &TimelineView::deleteRequested, actions, &EventActions::remove);
        connect(view, &TimelineView::createRequested, actions, &EventActions::create);
        connect(view, &TimelineView::createAllDayRequested, actions, &EventActions::createAllDay);
    }
}

void ViewArea::connectState()
{
    connect(m_state, &AppState::currentDateChanged, this, &ViewArea::onCurrentDateChanged);
    connect(m_state, &AppState::viewModeChanged, this, &ViewArea::setMode);
    connect(m_state, &AppState::weekHorizonChanged, this, &ViewArea::updateDateLabel);
    connect(m_state, &AppState::weekHorizonChanged, this, &ViewArea::recountSoon);
    connect(m_state, &AppState::firstDayOfWeekChanged, this, &ViewArea::updateDateLabel);
    connect(m_state, &AppState::firstDayOfWeekChanged, this, &ViewArea::recountSoon);
    connect(m_state, &AppState::todayChanged, this, &ViewArea::updateDateLabel);
    connect(m_state, &AppState::activeViewChanged, this, &ViewArea::recountSoon);
    connect(m_state->views(), &ViewRepository::viewsChanged, this, &ViewArea::recountSoon);
    connect(m_state->events(), &EventRepository::eventsChanged, this, &ViewArea::recountSoon);
    connect(m_state->filterRules(), &FilterRuleRepository::filterRulesChanged, this, &ViewArea::recountSoon);
    connect(m_state->calendars(), &CalendarRepository::calendarsChanged, this, &ViewArea::recountSoon);
}

void ViewArea::setMode(const QString &requested)
{
    const QString mode = ViewModes::normalized(requested, availableModes());
    const bool changed = mode != m_mode;
    m_mode = mode;
    m_modes->showMode(mode);
    TimelineView *surface = m_week;
    if (mode == u"day")
        surface = m_day;
    else if (mode == u"days")
        surface = m_days;
    m_stack->setCurrentWidget(surface);
    setFocusProxy(surface);
    if (changed)
        surface->relandOnStartHour();
    updateDateLabel();
    recountSoon();
    m_state->setViewMode(mode); // signals only a change, so the way back here ends
}

void ViewArea::showHorizon(int days)
{
    m_state->setWeekHorizon(days);
    setMode(QStringLiteral("days"));
}

void ViewArea::stepDate(int direction)
{
    const bool fine = QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
    m_state->setCurrentDate(
        ViewModes::stepped(m_mode, m_state->currentDate(), direction, m_state->weekHorizon(), fine));
}

void ViewArea::moveDays(int days)
{
    m_state->setCurrentDate(m_state->currentDate().addDays(days));
}

void ViewArea::moveMonths(int months)
{
    m_state->setCurrentDate(m_state->currentDate().addMonths(months));
}

void ViewArea::goToToday()
{
    m_state->setCurrentDate(QDate::currentDate());
}

void ViewArea::zoomBy(int steps)
{
    if (auto *view = qobject_cast<TimelineView *>(m_stack->currentWidget()))
        view->zoomBy(steps);
}

void ViewArea::onCurrentDateChanged(QDate date)
{
    m_day->setDate(date);
    m_week->setAnchorDate(date);
    m_days->setAnchorDate(date);
    updateDateLabel();
    recountSoon();
}

void ViewArea::updateDateLabel()
{
    m_dateLabel->setText(ViewModes::title(m_mode, m_state->currentDate(), m_state->weekHorizon(),
                                          m_state->firstDayOfWeek(), QDate::currentDate()));
}

// One change often arrives as several signals.
void ViewArea::recountSoon()
{
    m_statsTimer->start();
}

void ViewArea::recomputeFilterStats()
{
    // Without calendars another page stands here, so that nothing waits for this one to show.
    const bool hasNothing = !m_state->visibleEvents() || VisibleEvents::calendarIds(m_state).isEmpty();
    m_statsStale = !hasNothing && !isVisible();
    if (m_statsStale)
        return;
    if (hasNothing) {
        m_state->setFilterHiddenCount(0);
        return;
    }
    const ViewModes::Span span =
        ViewModes::statisticsSpan(m_mode, m_state->currentDate(), m_state->weekHorizon(), m_state->firstDayOfWeek());
    m_state->setFilterHiddenCount(m_state->visibleEvents()->inRange(span.first, span.days)->hiddenCount);
}

void ViewArea::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_statsStale)
        recountSoon();
}

bool ViewArea::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || !isVisible())
        return QWidget::eventFilter(watched, event);
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return false;
    const WheelPager::Turn turn = m_pager.onWheel(static_cast<QWheelEvent *>(event)->angleDelta(), m_clock.elapsed());
    if (turn.direction != 0)
        stepDate(turn.direction);
    if (turn.consumed)
        event->accept();
    return turn.consumed;
}
