#include "ui/surfaces/TimelineWidget.h"

#include "app/state/AppState.h"
#include "calendar/services/VisibleEvents.h"
#include "models/Constants.h"
#include "ui/surfaces/EventText.h"
#include "ui/theme/Theme.h"

#include <QFontMetrics>
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
constexpr int IconAlpha = 170;
constexpr int IconGapPx = 4;
constexpr QChar BellGlyph(0xE7F4);
constexpr QChar UploadGlyph(0xE2C3);

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

QFont iconFont()
{
    QFont font(Theme::iconFamily());
    font.setPixelSize(std::max(13, 13 * Theme::fontScalePercent() / 100));
    return font;
}

int iconsWidth(const QString &icons)
{
    const QFontMetrics metrics(iconFont());
    int width = 0;
    for (const QChar icon : icons)
        width += metrics.horizontalAdvance(icon) + IconGapPx;
    return width;
}

QStaticText elided(const QString &text, const QFont &font, int width)
{
    QStaticText result(QFontMetrics(font).elidedText(text, Qt::ElideRight, width));
    result.setTextFormat(Qt::PlainText);
    result.setPerformanceHint(QStaticText::AggressiveCaching);
    result.prepare({}, font);
    return result;
}

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
    relayout();
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
    relayout();
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

void TimelineWidget::setSpan(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
{
    m_syncableCalendarIds = syncableCalendarIds;
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
    result.minBlockHeightPx = QFontMetrics(bold(font())).height() + 2 * paddingPx();
    return result;
}

int TimelineWidget::yForBoundary(const QDateTime &boundary, QDate date) const
{
    return metrics().yForBoundary(boundary, date);
}

int TimelineWidget::neededGutterPx() const
{
    const QFontMetrics label(resized(font(), -1, 1));
    int widest = 0;
    for (int hour = 1; hour < 24; ++hour)
        widest = std::max(widest, label.horizontalAdvance(EventText::hourLabel(state(), hour)));
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
    setBlocks(layOutBlocks(events(), m_firstDay, metrics()));
    m_contents = QList<std::optional<Content>>(blocks().size());
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

TimelineWidget::Content TimelineWidget::makeContent(const EventBlock &block) const
{
    const Event &event = eventOf(block);
    const QColor shaded = EventColors::blend(
        EventColors::withAlpha(palette().color(QPalette::WindowText), ShadeAlpha), palette().color(QPalette::Base));
    Content content;
    content.colors = colorsOf(event, BodyAlpha, FaintBodyAlpha, shaded);

    QFont titleFont = bold(font());
    const QFont smallFont = resized(font(), -1, 1);
    const int titleHeight = QFontMetrics(titleFont).height();
    const int smallHeight = QFontMetrics(smallFont).height();
    titleFont.setStrikeOut(event.status == EventStatus::Cancelled);

    if (event.firstReminderMinutes())
        content.icons += BellGlyph;
    if (event.syncStatus == SyncStatus::Pending && m_syncableCalendarIds.contains(event.calendarId))
        content.icons += UploadGlyph;
    const int width = block.rect.width() - m_look.textLeftPx - m_look.textRightPx;
    if (Theme::iconFamily().isEmpty() || width - iconsWidth(content.icons) < 3 * titleHeight)
        content.icons.clear(); // the title matters more

    content.textPos = block.rect.topLeft() + QPoint(m_look.textLeftPx, paddingPx());
    if (width <= 0)
        return content;
    content.title = elided(EventText::title(event), titleFont, width - iconsWidth(content.icons));
    const int room = block.rect.height() - 2 * paddingPx();
    if (room < titleHeight + smallHeight + 2 * paddingPx() + 1)
        return content;
    content.time = elided(EventText::timeLine(state(), event), smallFont, width);
    if (const QString place = EventText::location(event); !place.isEmpty() && room >= titleHeight + 2 * smallHeight)
        content.location = elided(place, smallFont, width);
    return content;
}

void TimelineWidget::paintEvent(QPaintEvent *event)
{
    const QRect exposed = event->rect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackground(painter, exposed);
    paintHours(painter, exposed);
    paintNowLine(painter);
    for (int i = 0; i < blocks().size(); ++i) {
        if (blocks().at(i).rect.adjusted(-2, -2, 2, 2).intersects(exposed))
            paintBlock(painter, i);
    }
    paintFocusMark(painter, m_gutterPx);
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
    const QFont labelFont = resized(font(), -1, 1);
    const int labelHeight = std::max(16, QFontMetrics(labelFont).height());
    painter.setFont(labelFont);
    painter.setPen(Theme::textMuted());
    for (int hour = 0; hour <= 24; ++hour) {
        const int y = hour * where.hourHeightPx;
        painter.fillRect(QRect(m_gutterPx, y, width() - m_gutterPx, 1), Theme::border());
        const QRect label(0, y - labelHeight / 2, m_gutterPx - HourLabelGapPx, labelHeight);
        if (hour > 0 && hour < 24 && label.intersects(exposed))
            painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter, EventText::hourLabel(state(), hour));
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
    std::optional<Content> &kept = m_contents[index];
    if (!kept)
        kept = makeContent(block);
    const Content &content = *kept;

    paintShape(painter, block, content.colors, StripeWidthPx);
    QFont titleFont = bold(font());
    titleFont.setStrikeOut(eventOf(block).status == EventStatus::Cancelled);
    const QFont smallFont = resized(font(), -1, 1);
    painter.setPen(content.colors.text);
    painter.setFont(titleFont);
    painter.drawStaticText(content.textPos, content.title);
    if (content.time.text().isEmpty())
        return paintIcons(painter, block.rect, content);
    const int timeY = content.textPos.y() + QFontMetrics(titleFont).height();
    painter.setFont(smallFont);
    painter.drawStaticText(content.textPos.x(), timeY, content.time);
    painter.drawStaticText(content.textPos.x(), timeY + QFontMetrics(smallFont).height(), content.location);
    paintIcons(painter, block.rect, content);
}

void TimelineWidget::paintIcons(QPainter &painter, const QRect &rect, const Content &content) const
{
    if (content.icons.isEmpty())
        return;
    const QFont glyphs = iconFont();
    const QFontMetrics glyphMetrics(glyphs);
    const int lineHeight = QFontMetrics(bold(font())).height();
    painter.setFont(glyphs);
    painter.setPen(EventColors::withAlpha(content.colors.text, IconAlpha));
    int right = rect.right() - m_look.iconRightPx;
    for (const QChar icon : content.icons) {
        const int width = glyphMetrics.horizontalAdvance(icon);
        painter.drawText(QRect(right - width, content.textPos.y(), width, lineHeight), Qt::AlignCenter, icon);
        right -= width + IconGapPx;
    }
}

void TimelineWidget::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return event->ignore(); // the scroll area takes it
    if (const int steps = m_zoomNotches.add(event->angleDelta().y()); steps != 0)
        emit zoomRequested(steps, event->position().toPoint().y());
    event->accept();
}
