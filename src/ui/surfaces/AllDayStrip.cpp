#include "ui/surfaces/AllDayStrip.h"

#include "calendar/EventDays.h"
#include "calendar/services/EventText.h"
#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int GutterMarginPx = 8;
constexpr int TextInsetPx = 6;
constexpr int ChipRadiusPx = 4;
constexpr int NarrowChipInsetPx = 2;
constexpr int MaxToolTipTitles = 10;
constexpr int StripeWidthPx = 3;
constexpr int StripeDarkness = 180; // per cent
constexpr int BodyAlpha = 90;
constexpr int FaintBodyAlpha = 30;
constexpr QChar BeyondLeft(u'‹');
constexpr QChar BeyondRight(u'›');

}

AllDayStrip::AllDayStrip(AppState *state, QWidget *parent)
    : EventDragCanvas(state, parent)
    , m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(tr("All-day events"));
    m_scrollBar->hide();
    m_scrollBar->setFocusPolicy(Qt::NoFocus);
    connect(m_scrollBar, &QScrollBar::valueChanged, this, &AllDayStrip::relayout);
}

void AllDayStrip::setData(int gutterPx, QDate first, int days, const QList<Event> &events,
                          const QHash<QString, QString> &calendarColors, const QSet<QString> &dimmedIds)
{
    QList<Event> allDay;
    std::copy_if(events.begin(), events.end(), std::back_inserter(allDay),
                 [](const Event &event) { return event.isAllDay; });
    setEvents(allDay, calendarColors, dimmedIds);
    if (first != m_first || days != m_columns.count)
        giveUpStaleDrag();
    m_columns.gutterPx = gutterPx;
    m_columns.count = std::max(1, days);
    m_first = first;
    m_bars = layOutBars(allDay, first, m_columns.count);
    setFocusPolicy(m_bars.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    relayout();
    updateGeometry();
    // Nothing here answers keys any more; the parent's focus proxy is the timeline.
    if (m_bars.isEmpty() && hasFocus() && parentWidget())
        parentWidget()->setFocus(Qt::OtherFocusReason);
}

void AllDayStrip::setGutterPx(int pixels)
{
    if (std::exchange(m_columns.gutterPx, pixels) == pixels)
        return;
    giveUpStaleDrag();
    relayout();
}

void AllDayStrip::setContentWidth(int pixels)
{
    if (std::exchange(m_columns.widthPx, pixels) == pixels)
        return;
    giveUpStaleDrag();
    relayout();
}

void AllDayStrip::setHeightLimit(int pixels)
{
    m_heightLimit = pixels;
    relayout();
    updateGeometry();
}

void AllDayStrip::setExpanded(bool expanded)
{
    m_isExpanded = expanded;
    relayout();
    updateGeometry();
}

AllDayMetrics AllDayStrip::metrics() const
{
    AllDayMetrics result;
    result.columns = m_columns;
    result.laneHeightPx = std::max(20, QFontMetrics(barFont()).height() + 4);
    result.laneCount = laneCount();
    result.isExpanded = m_isExpanded;
    if (m_isExpanded) {
        result.laneLimit = result.lanesFitting(m_heightLimit);
        result.topLane = std::clamp(m_scrollBar->value(), 0, std::max(0, result.laneCount - result.shownLanes()));
    }
    return result;
}

QFont AllDayStrip::barFont() const
{
    return SurfaceFonts::bold(SurfaceFonts::resized(font(), -1, 8));
}

QFont AllDayStrip::smallFont() const
{
    return SurfaceFonts::resized(font(), -2, 7);
}

int AllDayStrip::neededGutterPx() const
{
    return std::max<int>(DayColumns::StandardGutterPx,
                         QFontMetrics(smallFont()).horizontalAdvance(tr("all-day")) + GutterMarginPx + 4);
}

QSize AllDayStrip::sizeHint() const
{
    return { m_columns.gutterPx, metrics().totalHeightPx() };
}

QSize AllDayStrip::minimumSizeHint() const
{
    return sizeHint();
}

void AllDayStrip::relayout()
{
    updateScrollBar();
    const AllDayMetrics where = metrics();
    m_hiddenPerColumn = hiddenPerColumn(m_bars, where);
    m_shownBars.clear();
    QList<EventBlock> shown;
    for (const AllDayBar &bar : std::as_const(m_bars)) {
        if (!where.isShown(bar, m_bars))
            continue;
        const Event &event = events().at(bar.eventIndex);
        m_shownBars.append(bar);
        shown.append({ event.id, where.barRect(bar), event.startTime, bar.eventIndex });
    }
    setBlocks(shown);
}

void AllDayStrip::updateScrollBar()
{
    const AllDayMetrics where = metrics();
    const int beyond = m_isExpanded ? where.laneCount - where.shownLanes() : 0;
    const int width = m_scrollBar->sizeHint().width();
    m_scrollBar->setGeometry(this->width() - width, 0, width, where.lanesHeightPx());
    const QSignalBlocker quiet(m_scrollBar); // relayout() is at work already
    m_scrollBar->setRange(0, std::max(0, beyond));
    m_scrollBar->setPageStep(where.shownLanes());
    m_scrollBar->setVisible(beyond > 0);
}

QList<EventKey> AllDayStrip::walkOrder() const
{
    QList<EventKey> order;
    for (const AllDayBar &bar : m_bars)
        order.append({ events().at(bar.eventIndex).id, events().at(bar.eventIndex).startTime });
    return order;
}

void AllDayStrip::reveal(const EventKey &key)
{
    const auto bar = std::find_if(m_bars.begin(), m_bars.end(), [this, &key](const AllDayBar &candidate) {
        const Event &event = events().at(candidate.eventIndex);
        return key.matches({ event.id, event.startTime });
    });
    if (bar == m_bars.end() || metrics().isShown(*bar, m_bars))
        return;
    if (!m_isExpanded)
        setExpanded(true);
    const AllDayMetrics where = metrics();
    if (bar->lane < where.topLane)
        m_scrollBar->setValue(bar->lane);
    else if (bar->lane >= where.topLane + where.shownLanes())
        m_scrollBar->setValue(bar->lane - where.shownLanes() + 1);
}

QRect AllDayStrip::overflowChipRect(int column) const
{
    if (m_hiddenPerColumn.value(column, 0) == 0)
        return {};
    return metrics().cellRect(column, column, AllDayMetrics::CollapsedLanes - 1);
}

int AllDayStrip::overflowChipAt(QPoint point) const
{
    const int column = m_columns.columnAt(point.x());
    return column >= 0 && overflowChipRect(column).contains(point) ? column : -1;
}

QString AllDayStrip::overflowChipText(int column) const
{
    const int hidden = m_hiddenPerColumn.value(column, 0);
    const QString text = tr("+%1 more").arg(hidden);
    const int room = overflowChipRect(column).width() - 2 * TextInsetPx;
    //: the short form of "+%1 more"
    return QFontMetrics(smallFont()).horizontalAdvance(text) <= room ? text : tr("+%1").arg(hidden);
}

QStringList AllDayStrip::hiddenTitles(int column) const
{
    QStringList titles;
    const AllDayMetrics where = metrics();
    for (const AllDayBar &bar : m_bars) {
        if (bar.covers(column) && !where.isShown(bar, m_bars))
            titles.append(EventText::title(events().at(bar.eventIndex)));
    }
    return titles;
}

QString AllDayStrip::chipToolTip(int column) const
{
    QStringList lines = hiddenTitles(column);
    if (const qsizetype beyond = lines.size() - MaxToolTipTitles; beyond > 0) {
        lines = lines.mid(0, MaxToolTipTitles);
        lines.append(tr("+%1 more").arg(beyond));
    }
    return lines.join(u'\n');
}

int AllDayStrip::controlAt(QPoint point) const
{
    return chevronRect().contains(point) ? Chevron : overflowChipAt(point);
}

QRect AllDayStrip::chevronRect() const
{
    const AllDayMetrics where = metrics();
    if (!m_isExpanded || !where.overflows())
        return {};
    return { m_columns.gutterPx, where.lanesHeightPx(), m_columns.right() - m_columns.gutterPx,
             AllDayMetrics::ChevronRowPx };
}

void AllDayStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.fillRect(QRect(0, height() - 1, width(), 1), Theme::border());
    painter.setFont(smallFont());
    painter.setPen(Theme::textMuted());
    const QRect gutter(0, 0, m_columns.gutterPx - GutterMarginPx, height());
    painter.drawText(gutter, Qt::AlignRight | Qt::AlignVCenter, tr("all-day"));
    for (int i = 0; i < blocks().size(); ++i)
        paintBar(painter, blocks().at(i), m_shownBars.at(i));
    paintChips(painter);
    paintChevron(painter);
    paintFocusMark(painter, m_columns.gutterPx);
    paintGhost(painter);
    paintDropPlace(painter);
}

void AllDayStrip::paintBar(QPainter &painter, const EventBlock &block, const AllDayBar &bar) const
{
    const Event &event = eventOf(block);
    BlockColors colors = colorsOf(event, BodyAlpha, FaintBodyAlpha, palette().color(QPalette::Base));
    if (Theme::activeMode() == Theme::Mode::Light)
        colors.stripe = colors.stripe.darker(StripeDarkness);
    paintShape(painter, block, colors, StripeWidthPx);
    QFont textFont = barFont();
    textFont.setStrikeOut(event.status == EventStatus::Cancelled);
    painter.setFont(textFont);
    painter.setPen(colors.text);
    const QFontMetrics fontMetrics(textFont);
    QRect text = block.rect.adjusted(TextInsetPx, 0, -TextInsetPx, 0);
    // Arrows at the ends of what goes on beyond the days on show.
    const int arrowWidth = fontMetrics.horizontalAdvance(BeyondRight) + 2;
    if (bar.endsLater) {
        painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, BeyondRight);
        text.setRight(text.right() - arrowWidth);
    }
    if (bar.beginsEarlier) {
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, BeyondLeft);
        text.setLeft(text.left() + arrowWidth);
    }
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics.elidedText(EventText::title(event), Qt::ElideRight, text.width()));
}

void AllDayStrip::paintChips(QPainter &painter) const
{
    const QFontMetrics fontMetrics(smallFont());
    painter.setFont(smallFont());
    for (int column = 0; column < m_columns.count; ++column) {
        const QRect chip = overflowChipRect(column);
        if (chip.isEmpty())
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(EventColors::withAlpha(palette().color(QPalette::Mid), 80));
        painter.drawRoundedRect(chip, ChipRadiusPx, ChipRadiusPx);
        painter.setPen(palette().color(QPalette::WindowText));
        const QString label = overflowChipText(column);
        const bool fits = fontMetrics.horizontalAdvance(label) <= chip.width() - 2 * TextInsetPx;
        const int inset = fits ? TextInsetPx : NarrowChipInsetPx;
        painter.drawText(chip.adjusted(inset, 0, -inset, 0), Qt::AlignLeft | Qt::AlignVCenter, label);
    }
}

void AllDayStrip::paintChevron(QPainter &painter) const
{
    const QRect row = chevronRect();
    if (row.isEmpty())
        return;
    painter.fillRect(row, EventColors::withAlpha(palette().color(QPalette::Mid), 50));
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1.6));
    const QPoint top = row.center() - QPoint(0, 2);
    painter.drawLine(top, top + QPoint(-5, 5));
    painter.drawLine(top, top + QPoint(5, 5));
}

bool AllDayStrip::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (const int column = overflowChipAt(help->pos()); column >= 0) {
            QToolTip::showText(help->globalPos(), Theme::plainToolTip(chipToolTip(column)), this,
                               overflowChipRect(column));
            return true;
        }
    }
    return EventDragCanvas::event(event);
}

void AllDayStrip::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isPlain || isDragging() || !metrics().overflows())
        return EventDragCanvas::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Plus:
        return setExpanded(true);
    case Qt::Key_Minus:
        return setExpanded(false);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!findEvent(selection()))
            return setExpanded(!m_isExpanded);
        break;
    case Qt::Key_Escape:
        if (m_isExpanded && selection().isEmpty())
            return setExpanded(false);
        break;
    default:
        break;
    }
    EventDragCanvas::keyPressEvent(event);
}

void AllDayStrip::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return EventDragCanvas::mousePressEvent(event);
    m_pressedControl = controlAt(event->position().toPoint());
    m_lastPressOnControl = m_pressedControl != NoControl;
    if (!m_lastPressOnControl)
        EventDragCanvas::mousePressEvent(event);
}

void AllDayStrip::mouseDoubleClickEvent(QMouseEvent *event)
{
    // After a click on a chip an event lies where the chip was: the second click was not meant for it.
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton && m_lastPressOnControl)
        m_pressedControl = controlAt(point);
    else if (event->button() != Qt::LeftButton || !eventIdAt(point).isEmpty())
        EventDragCanvas::mouseDoubleClickEvent(event);
    else if (const int column = m_columns.columnAt(point.x()); column >= 0 && m_first.isValid())
        emit emptyDayActivated(m_first.addDays(column));
}

TimelineDrag AllDayStrip::dragFrom(QPoint point) const
{
    const int index = blockIndexAt(blocks(), point);
    const int column = m_columns.columnAt(point.x());
    if (index < 0 || column < 0)
        return {};
    const EventBlock &block = blocks().at(index);
    TimelineDrag::Grip grip;
    grip.key = block.key();
    grip.rect = block.rect;
    grip.column = column;
    grip.isFixed = isReadOnly(eventOf(block));
    grip.isAllDay = true;
    return TimelineDrag::onBlock(point, grip);
}

TimelineMetrics AllDayStrip::dragMetrics() const
{
    TimelineMetrics result;
    result.columns = m_columns;
    return result;
}

QString AllDayStrip::ghostLabel(const TimelineDrag &drag) const
{
    const Event *dragged = findEvent(drag.grip().key);
    const QDate first = dragged ? EventDays::firstDay(*dragged) : QDate();
    return QLocale().toString(first.addDays(drag.days()), tr("ddd, MMM d", "first day of a dragged event"));
}

std::optional<EventCanvas::DropPlace> AllDayStrip::dropPlaceAt(QPoint point) const
{
    const int column = m_columns.columnAt(point.x());
    if (column < 0 || !m_first.isValid())
        return std::nullopt;
    const QRect rect(m_columns.left(column) + 2, 2, m_columns.columnWidthPx() - 4, height() - 5);
    return DropPlace{ m_first.addDays(column).startOfDay(), true, rect };
}

void AllDayStrip::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_pressedControl == NoControl)
        return EventDragCanvas::mouseReleaseEvent(event);
    if (std::exchange(m_pressedControl, NoControl) == controlAt(event->position().toPoint()))
        setExpanded(!m_isExpanded);
}

Qt::CursorShape AllDayStrip::cursorAt(QPoint point) const
{
    return controlAt(point) != NoControl ? Qt::PointingHandCursor : EventDragCanvas::cursorAt(point);
}

void AllDayStrip::wheelEvent(QWheelEvent *event)
{
    if (!m_scrollBar->isVisible() || event->modifiers().testFlag(Qt::ControlModifier))
        return event->ignore();
    m_scrollBar->setValue(m_scrollBar->value() - m_wheelNotches.add(event->angleDelta().y()));
    event->accept();
}
