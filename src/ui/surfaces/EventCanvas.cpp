#include "ui/surfaces/EventCanvas.h"

#include "calendar/services/EventText.h"
#include "models/Constants.h"
#include "ui/dialogs/IcsDrop.h"
#include "ui/dialogs/TaskDragMime.h"
#include "ui/surfaces/EventCanvasAccessible.h"
#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/TimelineGeometry.h"
#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

EventCanvas::EventCanvas(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    EventCanvasAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
}

void EventCanvas::setSelectedOccurrence(const QString &id, const QDateTime &occurrenceStart)
{
    setSelection({ id, occurrenceStart });
}

bool EventCanvas::isSelected(const EventBlock &block) const
{
    if (m_selection.isEmpty() || m_selection.id != block.eventId)
        return false;
    const Event *selected = findEvent(m_selection);
    return selected && selected->startTime == block.occurrenceStart;
}

QString EventCanvas::eventIdAt(QPoint point) const
{
    const int index = blockIndexAt(blocks(), point);
    return index < 0 ? QString() : m_blocks.at(index).eventId;
}

const Event *EventCanvas::findEvent(const EventKey &key) const
{
    const Event *found = nullptr;
    for (const Event &event : m_events) {
        if (key.matches({ event.id, event.startTime }) && (!found || event.startTime < found->startTime))
            found = &event;
    }
    return found;
}

int EventCanvas::blockIndexOf(const EventKey &key) const
{
    layOutIfDirty();
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
    const int stripePx = std::min(stripeWidthPx, std::max(1, block.rect.width() / 2)); // the body stays to be seen
    painter.drawRoundedRect(QRect(block.rect.topLeft(), QSize(stripePx, block.rect.height())), RadiusPx, RadiusPx);
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
    if (hasFocus() && m_showsFocus && blockIndexOf(m_selection) < 0)
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
    markDirty();
}

void EventCanvas::setBlocks(QList<EventBlock> blocks)
{
    m_blocks = std::move(blocks);
    m_isDirty = false;
    update();
}

void EventCanvas::markDirty()
{
    m_isDirty = true;
    update();
    settleSoon();
}

void EventCanvas::layOutIfDirty() const
{
    if (!m_isDirty)
        return;
    auto *self = const_cast<EventCanvas *>(this); // the blocks are a cache of what is known already
    self->m_isDirty = false;
    self->relayout();
}

void EventCanvas::settleSoon()
{
    if (!std::exchange(m_isSettling, true))
        QMetaObject::invokeMethod(
            this, [this] { settle(); }, Qt::QueuedConnection);
}

void EventCanvas::settle()
{
    if (std::exchange(m_haveFontsChanged, false))
        emit fontMetricsChanged();
    if (isVisible())
        layOutIfDirty();
    m_isSettling = false;
    if (m_followsEdit && hasFocus() && findEvent(m_selection)) {
        m_followsEdit = false;
        showToKeyboard(m_selection);
    }
}

void EventCanvas::setShowsFocus(bool shows)
{
    if (std::exchange(m_showsFocus, shows) != shows)
        update();
}

Qt::CursorShape EventCanvas::cursorAt(QPoint point) const
{
    return blockIndexAt(blocks(), point) < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor;
}

void EventCanvas::setSelection(const EventKey &key)
{
    if (m_selection == key)
        return;
    m_selection = key;
    m_isSelectedByMouse = false;
    update();
}

void EventCanvas::clearSelection()
{
    setSelection({});
    emit eventSelected({}, {}, {});
}

void EventCanvas::selectAndOpen(int blockIndex)
{
    const EventBlock block = blocks().at(blockIndex);
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
    m_isSelectedByMouse = false;
    setShowsFocus(true);
    showToKeyboard(key);
    emit eventFocused(key.id, key.occurrenceStart);
    return true;
}

void EventCanvas::showToKeyboard(const EventKey &key)
{
    reveal(key);
    const int block = blockIndexOf(key);
    if (block < 0)
        return;
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(block);
    QAccessible::updateAccessibility(&focused);
}

void EventCanvas::enterAtNearEnd(int step)
{
    const EventKey before = std::exchange(m_selection, {});
    if (!walk(step, false))
        m_selection = before; // of another surface
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
    const int index = blockIndexAt(blocks(), pos);
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
    const Qt::FocusReason reason = event->reason();
    const bool isByTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    const bool isReturning = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (!isReturning)
        setShowsFocus(isByTab || reason == Qt::ShortcutFocusReason);
    if (!isByTab)
        return;
    if (m_isSelectedByMouse && findEvent(m_selection))
        reveal(m_selection);
    else
        enterAtNearEnd(reason == Qt::TabFocusReason ? 1 : -1);
}

void EventCanvas::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
        m_haveFontsChanged = true;
        markDirty();
        updateGeometry();
        break;
    case QEvent::PaletteChange:
        onPaletteChanged();
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
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!handleEditKey(*event) && !(isPlain && handleKey(event->key())))
        QWidget::keyPressEvent(event);
}

bool EventCanvas::handleEditKey(const QKeyEvent &event)
{
    const Event *selected = findEvent(m_selection);
    if (!selected)
        return false;
    const EventKey key{ selected->id, selected->startTime };
    if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) {
        if (checkWritable(*selected))
            emit eventDeleteRequested(key.id);
        return true;
    }
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool resizes = modifiers == (Qt::ShiftModifier | Qt::AltModifier);
    if (!resizes && modifiers != Qt::ShiftModifier)
        return false;
    int days = 0;
    int minutes = 0;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        days = event.key() == Qt::Key_Right ? 1 : -1;
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        minutes = event.key() == Qt::Key_Down ? SlotMinutes : -SlotMinutes;
        break;
    default:
        return false;
    }
    if ((selected->isAllDay && minutes != 0) || (resizes && days != 0))
        return false;
    if (!checkWritable(*selected))
        return true;
    m_followsEdit = true;
    if (resizes)
        emit eventResizeRequested(key.id, key.occurrenceStart, minutes);
    else
        emit eventMoveRequested(key.id, key.occurrenceStart, days, minutes);
    return true;
}

bool EventCanvas::checkWritable(const Event &event)
{
    if (!isReadOnly(event))
        return true;
    emit refused(tr("\"%1\" belongs to a read-only calendar.").arg(EventText::title(event)));
    return false;
}

void EventCanvas::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void EventCanvas::dragMoveEvent(QDragMoveEvent *event)
{
    const bool isTask = event->mimeData()->hasFormat(QLatin1StringView(TaskDragMime::kTaskRowId));
    if (!isTask && !IcsDrop::hasIcs(event->mimeData()))
        return event->ignore();
    event->acceptProposedAction();
    const auto place = isTask ? dropPlaceAt(event->position().toPoint()) : std::nullopt;
    showDropPlace(place ? place->rect : QRect());
}

void EventCanvas::dragLeaveEvent(QDragLeaveEvent *)
{
    showDropPlace({});
}

void EventCanvas::dropEvent(QDropEvent *event)
{
    showDropPlace({});
    if (const QStringList paths = IcsDrop::localPathsIn(event->mimeData()); !paths.isEmpty()) {
        event->acceptProposedAction();
        emit icsDropped(paths);
        return;
    }
    const QPoint point = event->position().toPoint();
    const QString taskId = QString::fromUtf8(event->mimeData()->data(QLatin1StringView(TaskDragMime::kTaskRowId)));
    const auto place = dropPlaceAt(point);
    if (taskId.isEmpty() || !place)
        return event->ignore();
    event->acceptProposedAction();
    emit taskDropped(taskId, place->when, place->allDay, mapToGlobal(point));
}

void EventCanvas::showDropPlace(const QRect &rect)
{
    if (std::exchange(m_dropPlace, rect) != rect)
        update();
}

void EventCanvas::paintDropPlace(QPainter &painter) const
{
    if (m_dropPlace.isEmpty())
        return;
    painter.setPen(QPen(Theme::accent(), 1.6, Qt::DashLine));
    painter.setBrush(EventColors::withAlpha(Theme::accent(), 40));
    painter.drawRoundedRect(m_dropPlace, 4, 4);
}

bool EventCanvas::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Up:
        setShowsFocus(true); // also where there is nothing to walk to
        return walk(key == Qt::Key_Down ? 1 : -1, true);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        setShowsFocus(true);
        if (!findEvent(m_selection))
            return false;
        openSelected();
        return true;
    case Qt::Key_Escape:
        setShowsFocus(true);
        if (m_selection.isEmpty())
            return false;
        clearSelection();
        return true;
    default:
        return false;
    }
}

void EventCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    setShowsFocus(false);
    const int index = blockIndexAt(blocks(), event->position().toPoint());
    m_pressed = index < 0 ? EventKey() : m_blocks.at(index).key();
    event->accept();
}

void EventCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const Qt::CursorShape shape = cursorAt(event->position().toPoint());
    if (shape != cursor().shape())
        setCursor(shape);
    QWidget::mouseMoveEvent(event);
}

void EventCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed)
        return QWidget::mouseReleaseEvent(event);
    const EventKey pressed = *std::exchange(m_pressed, std::nullopt);
    const int index = blockIndexAt(blocks(), event->position().toPoint());
    if (index < 0 && pressed.isEmpty())
        return clearSelection();
    if (index < 0 || m_blocks.at(index).key() != pressed)
        return;
    setSelection(pressed);
    m_isSelectedByMouse = true;
    selectAndOpen(index);
}

void EventCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The second press came as this event, so its release is no click of its own.
    const int index = blockIndexAt(blocks(), event->position().toPoint());
    if (event->button() != Qt::LeftButton || index < 0)
        return QWidget::mouseDoubleClickEvent(event);
    const EventKey key = m_blocks.at(index).key();
    setSelection(key); // the first click may have closed a card that lay above
    emit eventActivated(key.id);
}

void EventCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const int index = isByKeyboard ? blockIndexOf(m_selection) : blockIndexAt(blocks(), event->pos());
    if (index < 0)
        return QWidget::contextMenuEvent(event);
    const EventBlock block = m_blocks.at(index);
    const QRect onScreen = block.rect & visibleRegion().boundingRect();
    const QPoint globalPos =
        isByKeyboard ? mapToGlobal((onScreen.isEmpty() ? block.rect : onScreen).center()) : event->globalPos();
    setSelection(block.key());
    m_isSelectedByMouse |= !isByKeyboard;
    emit eventContextRequested(block.eventId, globalPos);
}
