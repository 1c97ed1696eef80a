#include "ui/surfaces/TimelineView.h"

#include "app/state/AppState.h"
#include "calendar/services/VisibleEvents.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/TimelineWidget.h"
#include "ui/theme/ThemeManager.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int ZoomStepPx = 8;
constexpr int RevealMarginPx = 8;
constexpr int NewEventMinutes = 60;
constexpr int DefaultWorkdayStart = 8;
constexpr int DefaultWorkdayEnd = 18;

/// Moves only when it is asked to: when the focus leaves, the original scrolls to the middle of its widget.
class StillScrollArea : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

protected:
    bool focusNextPrevChild(bool next) override { return QAbstractScrollArea::focusNextPrevChild(next); }
};

QSet<QString> readOnlyCalendarIds(AppState *state)
{
    QSet<QString> ids;
    const QList<Calendar> calendars = state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (calendar.isReadOnly)
            ids.insert(calendar.id);
    }
    return ids;
}

int workdayStart(AppState *state)
{
    return state->preferences()->getInt(QStringLiteral("ui/workdayStart"), DefaultWorkdayStart);
}

int workdayEnd(AppState *state)
{
    return state->preferences()->getInt(QStringLiteral("ui/workdayEnd"), DefaultWorkdayEnd);
}

}

TimelineView::TimelineView(AppState *state, TimelineWidget *timeline, const QString &mode, int nowLineIntervalMs,
                           QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_mode(mode)
    , m_timeline(timeline)
    , m_strip(new AllDayStrip(state, this))
    , m_scroll(new StillScrollArea(this))
    , m_layout(new QVBoxLayout(this))
    , m_workdayStart(workdayStart(state))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_strip);
    m_layout->addWidget(m_scroll, 1);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setMinimumSize(0, 0);
    m_scroll->setWidget(m_timeline);
    m_scroll->viewport()->installEventFilter(this);
    setFocusProxy(m_timeline);

    m_timeline->setBaseHourHeight(state->hourHeight());
    m_timeline->setCompact(state->isCompact(mode));
    onSelectionChanged();
    m_nowTimer.setInterval(nowLineIntervalMs);
    connect(&m_nowTimer, &QTimer::timeout, this, &TimelineView::updateNow);
    m_reloadTimer.setSingleShot(true);
    connect(&m_reloadTimer, &QTimer::timeout, this, [this] {
        if (m_isStale) // a step to other days may have loaded them already
            reloadOrMarkStale();
    });
    connectState();
    connectCanvas(m_timeline);
    connectCanvas(m_strip);
    connectTimeline();
    connect(m_strip, &AllDayStrip::emptyDayActivated, this, [this](QDate day) { emit createAllDayRequested(day, 1); });
}

void TimelineView::connectState()
{
    const auto refresh = [this] { reloadSoon(); };
    connect(m_state, &AppState::activeViewChanged, this, refresh);
    connect(m_state->views(), &ViewRepository::viewsChanged, this, refresh);
    connect(m_state->calendars(), &CalendarRepository::calendarsChanged, this, refresh);
    connect(m_state->events(), &EventRepository::eventsChanged, this, refresh);
    connect(m_state->filterRules(), &FilterRuleRepository::filterRulesChanged, this, refresh);
    connect(m_state, &AppState::hourHeightChanged, this, &TimelineView::onHourHeightChanged);
    connect(m_state, &AppState::workdayHoursChanged, this, &TimelineView::onWorkdayHoursChanged);
    connect(m_state, &AppState::selectedEventChanged, this, &TimelineView::onSelectionChanged);
    connect(m_state, &AppState::todayChanged, this, &TimelineView::updateNow);
    connect(m_state, &AppState::densityChanged, this, [this](const QString &mode, const QString &density) {
        if (mode != m_mode)
            return;
        m_timeline->setCompact(density == QLatin1StringView("compact"));
        fitTimeline(0);
    });
    connect(m_state->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key != QLatin1StringView("ui/timeFormat"))
            return;
        reloadOrMarkStale();
        updateColumns();
    });
    if (m_state->theme())
        connect(m_state->theme(), &ThemeManager::accentChanged, this, [this] {
            m_timeline->update();
            m_strip->update();
            update();
        });
}

void TimelineView::connectCanvas(EventCanvas *canvas)
{
    connect(canvas, &EventCanvas::eventSelected, this, &TimelineView::onEventSelected);
    connect(canvas, &EventCanvas::eventFocused, m_state, &AppState::setSelectedOccurrence);
    connect(canvas, &EventCanvas::eventActivated, this,
            [this, canvas](const QString &id) { emit eventActivated(id, canvas->selection().occurrenceStart); });
    connect(canvas, &EventCanvas::fontMetricsChanged, this, &TimelineView::onFontMetricsChanged);
    connect(canvas, &EventCanvas::eventContextRequested, this,
            [this, canvas](const QString &, const QPoint &globalPos) { onContextRequested(canvas, globalPos); });
    connect(canvas, &EventCanvas::eventMoveRequested, this, &TimelineView::moveRequested);
    connect(canvas, &EventCanvas::eventResizeRequested, this, &TimelineView::resizeRequested);
    connect(canvas, &EventCanvas::eventDeleteRequested, this, &TimelineView::deleteRequested);
    connect(canvas, &EventCanvas::taskDropped, this, &TimelineView::taskDropped);
    connect(canvas, &EventCanvas::icsDropped, this, &TimelineView::icsDropped);
    connect(canvas, &EventCanvas::refused, this, &TimelineView::refused);
}

void TimelineView::connectTimeline()
{
    connect(m_timeline, &TimelineWidget::revealRequested, this, &TimelineView::reveal);
    connect(m_timeline, &TimelineWidget::emptySpanMarked, this, &TimelineView::createRequested);
    connect(m_timeline, &TimelineWidget::emptySlotActivated, this, [this](QDate date, QTime time) {
        emit createRequested(TimelineWidget::localTime(date, time), NewEventMinutes);
    });
    connect(m_timeline, &TimelineWidget::zoomRequested, this,
            [this](int steps, int y) { zoomAt(steps, y - m_scroll->verticalScrollBar()->value()); });
}

void TimelineView::reloadOrMarkStale()
{
    m_isStale = true;
    if (isVisible())
        reload();
}

void TimelineView::reloadSoon()
{
    m_isStale = true;
    m_reloadTimer.start(0);
}

void TimelineView::reload()
{
    if (!m_state->visibleEvents() || !firstDay().isValid())
        return;
    m_isStale = false;
    const auto span = m_state->visibleEvents()->inRange(firstDay(), columnCount());
    const QSet<QString> readOnly = readOnlyCalendarIds(m_state);
    m_timeline->setReadOnlyCalendarIds(readOnly);
    m_strip->setReadOnlyCalendarIds(readOnly);
    showData(*span, m_state->syncableCalendarIds());
    m_timeline->setWorkdayHours(workdayStart(m_state), workdayEnd(m_state));
    m_strip->setData(m_timeline->metrics().columns.gutterPx, firstDay(), columnCount(), span->events,
                     span->calendarColors, span->dimmedIds);
    followSelection();
}

void TimelineView::relandOnStartHour()
{
    m_landPending = true;
    if (isVisible())
        applyInitialScroll();
}

void TimelineView::applyInitialScroll()
{
    const int viewportHeight = m_scroll->viewport()->height();
    if (viewportHeight <= 0)
        return;
    m_landPending = false;
    fitTimeline();
    const QDateTime now = QDateTime::currentDateTime();
    const bool showsToday = firstDay() <= now.date() && now.date() < firstDay().addDays(columnCount());
    m_scroll->verticalScrollBar()->setValue(landingY(m_timeline->metrics(), workdayStart(m_state), workdayEnd(m_state),
                                                     showsToday ? now.time() : QTime(), viewportHeight));
}

void TimelineView::zoomBy(int steps)
{
    zoomAt(steps, m_scroll->viewport()->height() / 2);
}

void TimelineView::zoomAt(int steps, int viewportY)
{
    m_zoomAnchorPx = viewportY;
    // A large font may show more than the kept height; the first step larger must be seen.
    const int from = steps > 0 ? m_timeline->neededHourHeight() : m_state->hourHeight();
    m_state->setHourHeight(from + steps * ZoomStepPx);
    m_zoomAnchorPx.reset();
}

void TimelineView::onHourHeightChanged(int pixels)
{
    m_timeline->setBaseHourHeight(pixels);
    fitTimeline(m_zoomAnchorPx.value_or(m_scroll->viewport()->height() / 2));
}

void TimelineView::onFontMetricsChanged()
{
    updateColumns();
    fitTimeline(0);
}

void TimelineView::onSelectionChanged()
{
    m_timeline->setSelectedOccurrence(m_state->selectedEventId(), m_state->selectedOccurrence());
    m_strip->setSelectedOccurrence(m_state->selectedEventId(), m_state->selectedOccurrence());
    // It may have just been written. The signal of a write comes late, and the next key needs to find the event.
    if (isVisible() && !m_state->selectedEventId().isEmpty() && !showsSelection())
        reloadSoon();
}

bool TimelineView::showsSelection() const
{
    return m_timeline->findEvent(m_timeline->selection()) || m_strip->findEvent(m_strip->selection());
}

// An event that an undo, a form or a sync has moved stays selected. Of a series that could be another occurrence.
void TimelineView::followSelection()
{
    const EventKey anyTime{ m_state->selectedEventId(), {} };
    if (anyTime.isEmpty() || showsSelection())
        return;
    const Event *inHours = m_timeline->findEvent(anyTime);
    const Event *moved = inHours ? inHours : m_strip->findEvent(anyTime);
    if (moved && !moved->isRecurring())
        m_state->setSelectedOccurrence(anyTime.id, QDateTime(moved->startTime));
}

void TimelineView::onWorkdayHoursChanged(int start, int end)
{
    m_timeline->setWorkdayHours(start, end);
    if (std::exchange(m_workdayStart, start) != start)
        relandOnStartHour();
}

void TimelineView::onEventSelected(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect)
{
    m_state->setSelectedOccurrence(id, occurrenceStart);
    if (!id.isEmpty())
        emit eventSelected(id, occurrenceStart, globalRect);
}

void TimelineView::onContextRequested(const EventCanvas *canvas, const QPoint &globalPos)
{
    if (const Event *shown = canvas->findEvent(canvas->selection()))
        emit contextMenuRequested(*shown, globalPos);
}

void TimelineView::reveal(const QRect &rect)
{
    QScrollBar *bar = m_scroll->verticalScrollBar();
    const int top = rect.top() - RevealMarginPx;
    const int scrolledDown = rect.bottom() + RevealMarginPx - m_scroll->viewport()->height();
    if (top < bar->value())
        bar->setValue(top);
    else if (scrolledDown > bar->value())
        bar->setValue(std::min(top, scrolledDown)); // of a tall block the beginning
}

void TimelineView::updateNow()
{
    const QDateTime now = QDateTime::currentDateTime();
    m_timeline->setNow(now);
    onTodayChanged(now.date());
}

void TimelineView::onTodayChanged(QDate) { }

void TimelineView::onColumnsChanged(int, int) { }

void TimelineView::updateColumns()
{
    const int gutter = std::max(m_timeline->neededGutterPx(), m_strip->neededGutterPx());
    const int width = m_scroll->viewport()->width();
    m_timeline->setGutterPx(gutter);
    m_strip->setGutterPx(gutter);
    m_strip->setContentWidth(width);
    onColumnsChanged(gutter, width);
}

void TimelineView::fitTimeline(int anchorPx)
{
    QScrollBar *bar = m_scroll->verticalScrollBar();
    const int before = m_timeline->height() / 24; // it was made to fit its hours
    const int scrolled = bar->value();
    const QSize viewport = m_scroll->viewport()->size();
    const int height = std::max(viewport.height(), 24 * m_timeline->neededHourHeight());
    m_timeline->resize(viewport.width(), height);
    // The scroll area would do this later, and a position set before that would be cut to the old range.
    bar->setRange(0, height - viewport.height());
    bar->setPageStep(viewport.height());
    if (const int now = height / 24; now != before)
        bar->setValue(scrollAfterZoom(scrolled, anchorPx, before, now));
}

bool TimelineView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_scroll->viewport() && event->type() == QEvent::Resize) {
        fitTimeline();
        updateColumns();
        if (m_landPending)
            applyInitialScroll();
    }
    return QWidget::eventFilter(watched, event);
}

void TimelineView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateNow();
    m_nowTimer.start();
    if (m_isStale)
        reload();
    updateColumns();
    if (m_landPending)
        applyInitialScroll();
}

void TimelineView::hideEvent(QHideEvent *event)
{
    m_nowTimer.stop();
    QWidget::hideEvent(event);
}

void TimelineView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_strip->setHeightLimit(height() * 2 / 5);
}

void TimelineView::wheelEvent(QWheelEvent *event)
{
    // What the header and the all-day strip leave over comes here; the hours scroll by it too.
    event->ignore();
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        QCoreApplication::sendEvent(m_scroll->verticalScrollBar(), event);
}

void TimelineView::keyPressEvent(QKeyEvent *event)
{
    const bool isZoomIn = event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal;
    const bool isZoomOut = event->key() == Qt::Key_Minus || event->key() == Qt::Key_Underscore;
    if (!event->modifiers().testFlag(Qt::ControlModifier) || (!isZoomIn && !isZoomOut))
        return QWidget::keyPressEvent(event);
    zoomBy(isZoomIn ? 1 : -1);
}
