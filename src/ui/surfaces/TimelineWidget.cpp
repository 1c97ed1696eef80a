#include "ui/surfaces/TimelineWidget.h"

#include "app/state/AppState.h"
#include "calendar/services/EventText.h"
#include "calendar/services/TimeFormat.h"
#include "calendar/services/VisibleEvents.h"
#include "models/Constants.h"
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
    : EventDragCanvas(state, parent)
    , m_look(look)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Events"));
    readTimeFormat();
}

void TimelineWidget::setCompact(bool compact)
{
    m_isCompact = compact;
    m_blockPainter.reset();
    updateGeometry();
    markDirty();
}

void TimelineWidget::setBaseHourHeight(int pixels)
{
    m_baseHourHeight = pixels;
    updateGeometry();
    markDirtyIfMoved();
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
    markDirtyIfMoved();
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
    if (firstDay != m_firstDay || columnCount != m_columnCount)
        giveUpStaleDrag();
    m_firstDay = firstDay;
    m_columnCount = std::max(1, columnCount);
    markDirty();
}

void TimelineWidget::readTimeFormat()
{
    m_timePattern = TimeFormat::eventTimeFormatString(state());
    m_hourPattern = EventText::hourPattern(state());
    m_blockPainter.reset();
}

void TimelineWidget::setSpan(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
{
    m_syncableCalendarIds = syncableCalendarIds;
    readTimeFormat();
    QList<Event> timed;
    std::copy_if(span.events.begin(), span.events.end(), std::back_inserter(timed),
                 [](const Event &event) { return !event.isAllDay; });
    setEvents(timed, span.calendarColors, span.dimmedIds);
}

int TimelineWidget::neededHourHeight() const
{
    return std::max(m_baseHourHeight, blockPainter().heightWithTimePx());
}

int TimelineWidget::hourHeight() const
{
    return std::max(neededHourHeight(), height() / 24);
}

TimelineMetrics TimelineWidget::metrics() const
{
    TimelineMetrics result;
    result.columns = { m_gutterPx, m_columnCount, width() };
    result.hourHeightPx = hourHeight();
    result.blockRightPx = m_look.blockRightPx;
    result.minBlockHeightPx = blockPainter().minBlockHeightPx();
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
    return { m_look.widthHintPx, 24 * neededHourHeight() };
}

void TimelineWidget::relayout()
{
    m_laidOutFor = metrics();
    setBlocks(layOutBlocks(events(), m_firstDay, m_laidOutFor));
    m_painted = QList<std::optional<Painted>>(blocks().size());
}

void TimelineWidget::onPaletteChanged()
{
    m_painted.fill({});
    update();
}

const TimelineBlockPainter &TimelineWidget::blockPainter() const
{
    if (!m_blockPainter) {
        BlockInsets insets = m_look.insets;
        insets.paddingPx = m_isCompact ? 1 : 4;
        m_blockPainter.emplace(font(), insets, m_timePattern);
    }
    return *m_blockPainter;
}

void TimelineWidget::markDirtyIfMoved()
{
    if (metrics() == m_laidOutFor)
        return;
    giveUpStaleDrag();
    markDirty();
}

void TimelineWidget::resizeEvent(QResizeEvent *)
{
    markDirtyIfMoved();
}

void TimelineWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        readTimeFormat();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_blockPainter.reset();
    EventDragCanvas::changeEvent(event);
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

TimelineWidget::Painted TimelineWidget::makePainted(const EventBlock &block) const
{
    const Event &event = eventOf(block);
    const QColor shaded = EventColors::blend(EventColors::withAlpha(palette().color(QPalette::WindowText), ShadeAlpha),
                                             palette().color(QPalette::Base));
    const bool waitsForUpload =
        event.syncStatus == SyncStatus::Pending && m_syncableCalendarIds.contains(event.calendarId);
    return { colorsOf(event, BodyAlpha, FaintBodyAlpha, shaded),
             blockPainter().fit(event, block.rect.size(), waitsForUpload) };
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
    paintGhost(painter);
    paintDropPlace(painter);
}

QList<QRect> TimelineWidget::shadedRects() const
{
    const int hour = hourHeight();
    QList<QRect> rects;
    if (m_workdayStart > 0)
        rects.append({ m_gutterPx, 0, width() - m_gutterPx, m_workdayStart * hour });
    if (m_workdayEnd < 24)
        rects.append({ m_gutterPx, m_workdayEnd * hour, width() - m_gutterPx, height() - m_workdayEnd * hour });
    return rects;
}

void TimelineWidget::paintBackground(QPainter &painter, const QRect &exposed) const
{
    const TimelineMetrics where = metrics();
    painter.fillRect(exposed, palette().color(QPalette::Base));
    const QColor shade = EventColors::withAlpha(palette().color(QPalette::WindowText), ShadeAlpha);
    for (const QRect &rect : shadedRects())
        painter.fillRect(rect, shade);
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
    const QList<QRect> shaded = shadedRects();
    for (int hour = 0; hour <= 24; ++hour) {
        const int y = hour * where.hourHeightPx;
        const bool isShaded =
            std::any_of(shaded.begin(), shaded.end(), [y](const QRect &r) { return r.top() <= y && y <= r.bottom(); });
        // On the shade the plain border could hardly be told from it.
        painter.fillRect(QRect(m_gutterPx, y, width() - m_gutterPx, 1),
                         isShaded ? Theme::borderStrong() : Theme::border());
        const QRect label(0, y - labelHeight / 2, m_gutterPx - HourLabelGapPx, labelHeight);
        if (hour > 0 && hour < 24 && label.intersects(exposed))
            painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter, hourLabel(hour));
    }
    for (int column = 0; m_look.hasColumnLines && column <= m_columnCount; ++column) {
        const QRect line(where.columns.left(column), 0, 1, where.dayHeightPx());
        painter.fillRect(line, Theme::border());
        for (const QRect &rect : shaded)
            painter.fillRect(line & rect, Theme::borderStrong());
    }
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
    blockPainter().paint(painter, block.rect, painted->content, painted->colors.text);
}

void TimelineWidget::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return event->ignore(); // the scroll area takes it
    if (const int steps = m_zoomNotches.add(event->angleDelta().y()); steps != 0)
        emit zoomRequested(steps, event->position().toPoint().y());
    event->accept();
}
