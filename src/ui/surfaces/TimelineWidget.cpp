#include "ui/surfaces/TimelineWidget.h"

#include "app/state/AppState.h"
#include "calendar/services/TimeFormat.h"
#include "calendar/services/VisibleEvents.h"
#include "models/Constants.h"
#include "ui/surfaces/EventText.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QFontMetrics>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int HourLabelGapPx = 8; // between an hour label and the columns
constexpr int BodyAlpha = 96;
constexpr int FaintBodyAlpha = 28;
constexpr int StripeWidthPx = 4;
constexpr int ShadeAlpha = 18;
constexpr int TodayTintAlpha = 20;

bool startsEarlier(const Event &a, const Event &b)
{
    if (a.startTime != b.startTime)
        return a.startTime < b.startTime;
    if (a.endTime != b.endTime)
        return a.endTime < b.endTime;
    if (a.title != b.title)
        return a.title < b.title;
    return a.id < b.id;
}

}

TimelineWidget::TimelineWidget(AppState *state, const Look &look, QWidget *parent)
    : EventCanvas(state, parent)
    , m_look(look)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Events"));
    readTimeFormat();
    measureFonts();
}

void TimelineWidget::setCompact(bool compact)
{
    m_isCompact = compact;
    relayout();
}

void TimelineWidget::setBaseHourHeight(int pixels)
{
    m_baseHourHeight = pixels;
    updateGeometry();
    relayoutIfNeeded();
}

void TimelineWidget::setWorkdayHours(int start, int end)
{
    m_workdayStart = start;
    m_workdayEnd = end;
    update();
}

void TimelineWidget::setGutterPx(int pixels)
{
    m_gutterPx = pixels;
    relayoutIfNeeded();
}

void TimelineWidget::setNow(const QDateTime &now)
{
    const bool isNewDay = now.date() != m_now.date();
    update(nowLineRect());
    m_now = now;
    update(nowLineRect());
    if (isNewDay)
        update();
}

void TimelineWidget::setDays(QDate firstDay, int columnCount)
{
    m_firstDay = firstDay;
    m_columnCount = std::max(1, columnCount);
    relayout();
}

void TimelineWidget::readTimeFormat()
{
    m_timePattern = TimeFormat::eventTimeFormatString(state());
    m_hourPattern = EventText::hourPattern(state());
}

void TimelineWidget::setSpan(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
{
    m_syncableCalendarIds = syncableCalendarIds;
    readTimeFormat();
    QList<Event> timed;
    std::copy_if(span.events.begin(), span.events.end(), std::back_inserter(timed),
                 [](const Event &event) { return !event.isAllDay; });
    setEvents(timed, span.calendarColors, span.dimmedIds);
    relayout();
}

int TimelineWidget::hourHeight() const
{
    return std::max(m_baseHourHeight, height() / 24);
}

TimelineMetrics TimelineWidget::metrics() const
{
    TimelineMetrics result;
    result.columns = { m_gutterPx, m_columnCount, width() };
    result.hourHeightPx = hourHeight();
    result.blockRightPx = m_look.blockRightPx;
    result.minBlockHeightPx = m_blockPainter.minBlockHeightPx();
    return result;
}

int TimelineWidget::yForBoundary(const QDateTime &boundary, QDate date) const
{
    return metrics().yForBoundary(boundary, date);
}

int TimelineWidget::neededGutterPx() const
{
    const QFontMetrics label(SurfaceFonts::resized(font(), -1));
    int widest = 0;
    for (int hour = 1; hour < 24; ++hour)
        widest = std::max(widest, label.horizontalAdvance(hourLabel(hour)));
    return std::max<int>(DayColumns::StandardGutterPx, widest + HourLabelGapPx + 4);
}

int TimelineWidget::todayColumn() const
{
    if (!m_firstDay.isValid() || !m_now.isValid())
        return -1;
    const qint64 column = m_firstDay.daysTo(m_now.date());
    return column >= 0 && column < m_columnCount ? static_cast<int>(column) : -1;
}

QRect TimelineWidget::nowLineRect() const
{
    const int column = todayColumn();
    if (column < 0)
        return {};
    const TimelineMetrics where = metrics();
    const int radius = m_look.nowDotRadiusPx;
    const QRect line(where.columns.left(column), where.yForTime(m_now.time()), where.columns.columnWidthPx(), 1);
    return line.adjusted(-radius - 1, -radius - 1, 0, radius + 1);
}

QSize TimelineWidget::sizeHint() const
{
    return { m_look.widthHintPx, 24 * m_baseHourHeight };
}

void TimelineWidget::relayout()
{
    measureFonts();
    m_laidOutFor = metrics();
    setBlocks(layOutBlocks(events(), m_firstDay, m_laidOutFor));
    m_painted = QList<std::optional<Painted>>(blocks().size());
}

void TimelineWidget::measureFonts()
{
    BlockInsets insets = m_look.insets;
    insets.paddingPx = m_isCompact ? 1 : 4;
    m_blockPainter = TimelineBlockPainter(font(), insets, m_timePattern);
}

void TimelineWidget::relayoutIfNeeded()
{
    if (metrics() != m_laidOutFor)
        relayout();
}

void TimelineWidget::resizeEvent(QResizeEvent *)
{
    relayoutIfNeeded();
}

void TimelineWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        readTimeFormat();
    EventCanvas::changeEvent(event);
}

QString TimelineWidget::hourLabel(int hour) const
{
    return QLocale().toString(QTime(hour, 0), m_hourPattern);
}

QList<EventKey> TimelineWidget::walkOrder() const
{
    QList<int> shown;
    for (const EventBlock &block : blocks())
        shown.append(block.eventIndex);
    std::sort(shown.begin(), shown.end(),
              [this](int a, int b) { return a != b && startsEarlier(events().at(a), events().at(b)); });
    QList<EventKey> order;
    for (const int index : std::as_const(shown)) {
        const EventKey key{ events().at(index).id, events().at(index).startTime };
        if (order.isEmpty() || order.last() != key)
            order.append(key);
    }
    return order;
}

void TimelineWidget::reveal(const EventKey &key)
{
    if (const int index = blockIndexOf(key); index >= 0)
        emit revealRequested(blocks().at(index).rect);
}

Qt::CursorShape TimelineWidget::cursorOver(const EventBlock &block) const
{
    // The arrow marks events that cannot be dragged: those that run past midnight.
    const Event &event = eventOf(block);
    const QDate start = event.startTime.toLocalTime().date();
    const QDate end = event.endTime.value_or(event.startTime).toLocalTime().date();
    return start == end ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

TimelineWidget::Painted TimelineWidget::makePainted(const EventBlock &block) const
{
    const Event &event = eventOf(block);
    const QColor shaded = EventColors::blend(EventColors::withAlpha(palette().color(QPalette::WindowText), ShadeAlpha),
                                             palette().color(QPalette::Base));
    const bool waitsForUpload =
        event.syncStatus == SyncStatus::Pending && m_syncableCalendarIds.contains(event.calendarId);
    return { colorsOf(event, BodyAlpha, FaintBodyAlpha, shaded),
             m_blockPainter.fit(event, block.rect.size(), waitsForUpload) };
}

void TimelineWidget::paintEvent(QPaintEvent *event)
{
    const QRect exposed = event->rect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackground(painter, exposed);
    paintHours(painter, exposed);
    paintFocusMark(painter, m_gutterPx);
    paintNowLine(painter);
    for (int i = 0; i < blocks().size(); ++i) {
        if (blocks().at(i).rect.adjusted(-2, -2, 2, 2).intersects(exposed))
            paintBlock(painter, i);
    }
}

void TimelineWidget::paintBackground(QPainter &painter, const QRect &exposed) const
{
    const TimelineMetrics where = metrics();
    painter.fillRect(exposed, palette().color(QPalette::Base));
    const bool hasWorkday = m_workdayStart > 0 || m_workdayEnd < 24;
    const QColor shade = EventColors::withAlpha(palette().color(QPalette::WindowText), ShadeAlpha);
    if (hasWorkday && m_workdayStart > 0)
        painter.fillRect(QRect(m_gutterPx, 0, width() - m_gutterPx, m_workdayStart * where.hourHeightPx), shade);
    if (hasWorkday && m_workdayEnd < 24) {
        const int top = m_workdayEnd * where.hourHeightPx;
        painter.fillRect(QRect(m_gutterPx, top, width() - m_gutterPx, height() - top), shade);
    }
    if (m_look.hasColumnLines && todayColumn() >= 0) {
        const QRect today(where.columns.left(todayColumn()), 0, where.columns.columnWidthPx(), where.dayHeightPx());
        painter.fillRect(today, EventColors::withAlpha(Theme::accent(), TodayTintAlpha));
    }
}

void TimelineWidget::paintHours(QPainter &painter, const QRect &exposed) const
{
    const TimelineMetrics where = metrics();
    const QFont labelFont = SurfaceFonts::resized(font(), -1);
    const int labelHeight = std::max(16, QFontMetrics(labelFont).height());
    painter.setFont(labelFont);
    painter.setPen(Theme::textMuted());
    for (int hour = 0; hour <= 24; ++hour) {
        const int y = hour * where.hourHeightPx;
        painter.fillRect(QRect(m_gutterPx, y, width() - m_gutterPx, 1), Theme::border());
        const QRect label(0, y - labelHeight / 2, m_gutterPx - HourLabelGapPx, labelHeight);
        if (hour > 0 && hour < 24 && label.intersects(exposed))
            painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter, hourLabel(hour));
    }
    for (int column = 0; m_look.hasColumnLines && column <= m_columnCount; ++column)
        painter.fillRect(QRect(where.columns.left(column), 0, 1, where.dayHeightPx()), Theme::border());
}

void TimelineWidget::paintNowLine(QPainter &painter) const
{
    const int column = todayColumn();
    if (column < 0)
        return;
    const TimelineMetrics where = metrics();
    const int y = where.yForTime(m_now.time());
    const int x = where.columns.left(column);
    painter.fillRect(QRect(x, y - 1, where.columns.columnWidthPx(), 2), nowLineColor());
    painter.setPen(Qt::NoPen);
    painter.setBrush(nowLineColor());
    painter.drawEllipse(QPoint(x, y), m_look.nowDotRadiusPx, m_look.nowDotRadiusPx);
}

void TimelineWidget::paintBlock(QPainter &painter, int index)
{
    const EventBlock &block = blocks().at(index);
    std::optional<Painted> &painted = m_painted[index];
    if (!painted)
        painted = makePainted(block);
    paintShape(painter, block, painted->colors, StripeWidthPx);
    m_blockPainter.paint(painter, block.rect, painted->content, painted->colors.text);
}

void TimelineWidget::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return event->ignore(); // the scroll area takes it
    if (const int steps = m_zoomNotches.add(event->angleDelta().y()); steps != 0)
        emit zoomRequested(steps, event->position().toPoint().y());
    event->accept();
}
