#include "ui/surfaces/EventCanvas.h"

#include "models/Constants.h"
#include "ui/surfaces/EventCanvasAccessible.h"
#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/EventText.h"
#include "ui/surfaces/TimelineGeometry.h"
#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

EventCanvas::EventCanvas(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    EventCanvasAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void EventCanvas::setSelectedEventId(const QString &id)
{
    if (id != m_selection.id)
        setSelection({ id, {} });
}

bool EventCanvas::isSelected(const EventBlock &block) const
{
    return !m_selection.isEmpty() && m_selection.matches(block.key());
}

QString EventCanvas::eventIdAt(QPoint point) const
{
    const int index = blockIndexAt(m_blocks, point);
    return index < 0 ? QString() : m_blocks.at(index).eventId;
}

const Event *EventCanvas::findEvent(const EventKey &key) const
{
    const auto found = std::find_if(m_events.begin(), m_events.end(), [&key](const Event &event) {
        return key.matches({ event.id, event.startTime });
    });
    return found == m_events.end() ? nullptr : &*found;
}

int EventCanvas::blockIndexOf(const EventKey &key) const
{
    const auto found = std::find_if(m_blocks.begin(), m_blocks.end(),
                                    [&key](const EventBlock &block) { return key.matches(block.key()); });
    return key.isEmpty() || found == m_blocks.end() ? -1 : static_cast<int>(found - m_blocks.begin());
}

BlockColors EventCanvas::colorsOf(const Event &event, int bodyAlpha, int faintBodyAlpha, const QColor &base) const
{
    constexpr int FaintTextAlpha = 140;
    constexpr int FaintStripeAlpha = 80;
    const QColor color = Theme::eventColor(event.color, m_calendarColors.value(event.calendarId));
    const QColor text = palette().color(QPalette::WindowText);
    if (!m_dimmedIds.contains(event.id) && event.status != EventStatus::Cancelled)
        return EventColors::blockColors(color, bodyAlpha, 255, base, text);
    BlockColors faint = EventColors::blockColors(color, faintBodyAlpha, FaintTextAlpha, base, text);
    faint.stripe.setAlpha(FaintStripeAlpha);
    return faint;
}

void EventCanvas::paintShape(QPainter &painter, const EventBlock &block, const BlockColors &colors,
                             int stripeWidthPx) const
{
    constexpr int RadiusPx = 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.body);
    painter.drawRoundedRect(block.rect, RadiusPx, RadiusPx);
    painter.setBrush(colors.stripe);
    painter.drawRoundedRect(QRect(block.rect.topLeft(), QSize(stripeWidthPx, block.rect.height())), RadiusPx, RadiusPx);
    if (!isSelected(block))
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Theme::accent(), 2));
    painter.drawRoundedRect(block.rect.adjusted(1, 1, -1, -1), RadiusPx, RadiusPx);
    if (!hasFocus())
        return;
    painter.setPen(QPen(Theme::textPrimary(), 1));
    painter.drawRoundedRect(QRectF(block.rect).adjusted(-0.5, -0.5, 0.5, 0.5), RadiusPx, RadiusPx);
}

void EventCanvas::paintFocusMark(QPainter &painter, int gutterPx) const
{
    if (hasFocus() && blockIndexOf(m_selection) < 0)
        painter.fillRect(QRect(gutterPx - 2, 0, 2, height()), Theme::accent());
}

QRect EventCanvas::globalRect(const QRect &rect) const
{
    return { mapToGlobal(rect.topLeft()), rect.size() };
}

void EventCanvas::setEvents(const QList<Event> &events, const QHash<QString, QString> &calendarColors,
                            const QSet<QString> &dimmedIds)
{
    m_events = events;
    m_calendarColors = calendarColors;
    m_dimmedIds = dimmedIds;
}

void EventCanvas::setBlocks(QList<EventBlock> blocks)
{
    m_blocks = std::move(blocks);
    update();
}

Qt::CursorShape EventCanvas::cursorOver(const EventBlock &) const
{
    return Qt::PointingHandCursor;
}

void EventCanvas::setSelection(const EventKey &key)
{
    if (m_selection == key)
        return;
    m_selection = key;
    update();
}

void EventCanvas::clearSelection()
{
    setSelection({});
    emit eventSelected({}, {}, {});
}

void EventCanvas::selectAndOpen(int blockIndex)
{
    const EventBlock block = m_blocks.at(blockIndex);
    setSelection(block.key());
    emit eventSelected(block.eventId, block.occurrenceStart, globalRect(block.rect));
}

QString EventCanvas::describe(const EventBlock &block) const
{
    return EventText::sentence(m_state, eventOf(block));
}

void EventCanvas::openSelected()
{
    if (const int index = blockIndexOf(m_selection); index >= 0)
        return selectAndOpen(index);
    emit eventSelected(m_selection.id, m_selection.occurrenceStart, {});
}

bool EventCanvas::walk(int step, bool wrap)
{
    const QList<EventKey> order = walkOrder();
    const auto current = std::find_if(order.begin(), order.end(), [this](const EventKey &key) {
        return !m_selection.isEmpty() && m_selection.matches(key);
    });
    const int index = current == order.end() ? -1 : static_cast<int>(current - order.begin());
    const int next = stepIndex(index, static_cast<int>(order.size()), step, wrap);
    if (next < 0)
        return false;
    const EventKey key = order.at(next);
    setSelection(key);
    reveal(key);
    if (const int block = blockIndexOf(key); block >= 0) {
        QAccessibleEvent focused(this, QAccessible::Focus);
        focused.setChild(block);
        QAccessible::updateAccessibility(&focused);
    }
    emit eventFocused(key.id);
    return true;
}

bool EventCanvas::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (showToolTip(help->globalPos(), help->pos()))
            return true;
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    return QWidget::event(event);
}

bool EventCanvas::showToolTip(QPoint globalPos, QPoint pos)
{
    const int index = blockIndexAt(m_blocks, pos);
    if (index < 0)
        return false;
    const EventBlock &block = m_blocks.at(index);
    const QString text = EventText::toolTip(m_state, eventOf(block));
    QToolTip::showText(globalPos, Theme::plainToolTip(text), this, block.rect);
    return true;
}

bool EventCanvas::focusNextPrevChild(bool next)
{
    return (hasFocus() && walk(next ? 1 : -1, false)) || QWidget::focusNextPrevChild(next);
}

void EventCanvas::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    const bool isByTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (!isByTab)
        return;
    if (findEvent(m_selection))
        reveal(m_selection);
    else
        walk(event->reason() == Qt::TabFocusReason ? 1 : -1, false);
}

void EventCanvas::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
        relayout();
        updateGeometry();
        emit fontMetricsChanged();
        break;
    case QEvent::PaletteChange:
        relayout();
        break;
    default:
        break;
    }
}

void EventCanvas::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    relayout();
}

void EventCanvas::keyPressEvent(QKeyEvent *event)
{
    bool isHandled = false;
    switch (event->key()) {
    case Qt::Key_Down:
        isHandled = walk(1, true);
        break;
    case Qt::Key_Up:
        isHandled = walk(-1, true);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        isHandled = findEvent(m_selection) != nullptr;
        if (isHandled)
            openSelected();
        break;
    case Qt::Key_Escape:
        isHandled = !m_selection.isEmpty();
        if (isHandled)
            clearSelection();
        break;
    default:
        break;
    }
    if (!isHandled)
        QWidget::keyPressEvent(event);
}

void EventCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    const int index = blockIndexAt(m_blocks, event->position().toPoint());
    m_pressed = index < 0 ? EventKey() : m_blocks.at(index).key();
    event->accept();
}

void EventCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const int index = blockIndexAt(m_blocks, event->position().toPoint());
    setCursor(index < 0 ? Qt::ArrowCursor : cursorOver(m_blocks.at(index)));
    QWidget::mouseMoveEvent(event);
}

void EventCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed)
        return QWidget::mouseReleaseEvent(event);
    const EventKey pressed = *std::exchange(m_pressed, std::nullopt);
    const int index = blockIndexAt(m_blocks, event->position().toPoint());
    if (index < 0 && pressed.isEmpty())
        clearSelection();
    else if (index >= 0 && m_blocks.at(index).key() == pressed)
        selectAndOpen(index);
}

void EventCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The second press came as this event, so its release is no click of its own.
    const QString id = eventIdAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || id.isEmpty())
        return QWidget::mouseDoubleClickEvent(event);
    emit eventActivated(id);
}

void EventCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const int index = isByKeyboard ? blockIndexOf(m_selection) : blockIndexAt(m_blocks, event->pos());
    if (index < 0)
        return QWidget::contextMenuEvent(event);
    const EventBlock block = m_blocks.at(index);
    const QRect onScreen = block.rect & visibleRegion().boundingRect();
    const QPoint globalPos =
        isByKeyboard ? mapToGlobal((onScreen.isEmpty() ? block.rect : onScreen).center()) : event->globalPos();
    setSelection(block.key());
    emit eventContextRequested(block.eventId, globalPos);
}
