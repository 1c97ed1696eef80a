#include "ui/tasks/TasksPaneRow.h"

#include "app/state/AppState.h"
#include "calendar/services/TaskText.h"
#include "ui/dialogs/TaskDragMime.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

#include <utility>

namespace {

constexpr int WidenedPx = 2; // around the check box
constexpr int MaxShownChars = 300;
constexpr int PageRows = 10; // that Page Up and Page Down pass
constexpr int AllRows = 1'000'000;

}

TasksPaneRow::TasksPaneRow(AppState *state, const TaskListing::Row &row, const Look &look, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("tasksPaneRow"));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setRow(row, look);
}

void TasksPaneRow::setRow(const TaskListing::Row &row, const Look &look)
{
    const QString dueText = row.dueDate ? TaskText::date(m_state, *row.dueDate, row.dueIsDateOnly) : QString();
    if (row == m_row && look == m_look && dueText == m_dueText)
        return; // as most are on a reload
    m_row = row;
    m_look = look;
    m_dueText = dueText;
    setAccessibleName(sentence());
    setToolTip(Theme::plainToolTip(wholeText()));
    updateGeometry();
    update();
}

bool TasksPaneRow::isOnCheckbox(QPoint point) const
{
    return checkboxRect().adjusted(-WidenedPx, -WidenedPx, WidenedPx, WidenedPx).contains(point);
}

TasksPaneRow::Zone TasksPaneRow::zoneForCursor(int y) const
{
    const int edge = height() / 4;
    if (height() < 1)
        return Zone::Onto;
    if (y < edge)
        return Zone::Above;
    return y > height() - edge ? Zone::Below : Zone::Onto;
}

QString TasksPaneRow::sentence() const
{
    QStringList parts{ TaskText::title(m_row) };
    if (!m_dueText.isEmpty())
        parts.append(tr("due %1", "date").arg(m_dueText));
    if (const QString priority = TaskText::priority(m_row.priority); !priority.isEmpty())
        parts.append(tr("priority %1").arg(priority));
    parts.append(TaskText::status(m_row.status));
    if (m_row.depth > 0 || m_row.isCutOff)
        parts.append(tr("subtask"));
    return parts.join(QStringLiteral(", "));
}

// What a narrow pane cuts off.
QString TasksPaneRow::wholeText() const
{
    QStringList lines{ TaskText::title(m_row), m_dueText };
    lines += tags();
    if (m_look.showCategories)
        lines.append(m_row.categories.join(QStringLiteral(", ")).simplified());
    if (m_look.showNotes)
        lines.append(m_row.description.left(MaxShownChars).simplified());
    lines.removeAll(QString());
    return lines.join(u'\n');
}

void TasksPaneRow::toggle()
{
    emit completionToggled(m_row.id, !m_row.isCompleted());
}

bool TasksPaneRow::event(QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::event(event);
}

void TasksPaneRow::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    m_pressedAt = event->position().toPoint();
    m_isPressOnCheckbox = m_isPressed && isOnCheckbox(m_pressedAt);
    event->accept();
}

void TasksPaneRow::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint delta = event->position().toPoint() - m_pressedAt;
    if (!m_isPressed || m_isPressOnCheckbox || !m_isDraggable || !event->buttons().testFlag(Qt::LeftButton)
        || delta.manhattanLength() < QApplication::startDragDistance())
        return QWidget::mouseMoveEvent(event);
    m_isPressed = false;
    startDrag();
}

void TasksPaneRow::startDrag()
{
    auto *mime = new QMimeData;
    mime->setData(QLatin1StringView(TaskDragMime::kTaskUid), m_row.uid.toUtf8());
    mime->setData(QLatin1StringView(TaskDragMime::kTaskRowId), m_row.id.toUtf8());
    // The row may go while it is dragged: a sync may delete its task.
    auto *drag = new QDrag(parentWidget());
    drag->setMimeData(mime);
    drag->setPixmap(grab());
    drag->setHotSpot(m_pressedAt);
    drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
}

void TasksPaneRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !std::exchange(m_isPressed, false))
        return QWidget::mouseReleaseEvent(event);
    const QPoint point = event->position().toPoint();
    if (m_isPressOnCheckbox && isOnCheckbox(point))
        toggle();
    else if (!m_isPressOnCheckbox && rect().contains(point))
        emit rowSelected(m_row.id, { mapToGlobal(QPoint()), size() });
}

void TasksPaneRow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !isOnCheckbox(event->position().toPoint()))
        emit rowActivated(m_row.id);
    else
        mousePressEvent(event); // two quick clicks on the box are two clicks
}

void TasksPaneRow::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    emit contextRequested(m_row.id, isByKeyboard ? mapToGlobal(rect().center()) : event->globalPos());
}

void TasksPaneRow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
        return toggle();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit rowSelected(m_row.id, { mapToGlobal(QPoint()), size() });
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        emit deleteRequested(m_row.id);
        return;
    case Qt::Key_Home:
    case Qt::Key_End:
        emit walkRequested(event->key() == Qt::Key_End ? AllRows : -AllRows);
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        emit walkRequested(event->key() == Qt::Key_PageDown ? PageRows : -PageRows);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int step = event->key() == Qt::Key_Down ? 1 : -1;
        if (event->modifiers().testFlag(Qt::AltModifier))
            emit moveRequested(step);
        else
            emit walkRequested(step);
        return;
    }
    default:
        QWidget::keyPressEvent(event);
    }
}

void TasksPaneRow::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void TasksPaneRow::dragMoveEvent(QDragMoveEvent *event)
{
    const QByteArray uid = event->mimeData()->data(QLatin1StringView(TaskDragMime::kTaskUid));
    if (uid.isEmpty() || QString::fromUtf8(uid) == m_row.uid) {
        setDropZone(Zone::None);
        return event->ignore();
    }
    emit draggedOver();
    setDropZone(zoneForCursor(event->position().toPoint().y()));
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void TasksPaneRow::dragLeaveEvent(QDragLeaveEvent *)
{
    emit dragEnded();
    setDropZone(Zone::None);
}

void TasksPaneRow::dropEvent(QDropEvent *event)
{
    const QString uid = QString::fromUtf8(event->mimeData()->data(QLatin1StringView(TaskDragMime::kTaskUid)));
    const Zone zone = zoneForCursor(event->position().toPoint().y());
    emit dragEnded();
    setDropZone(Zone::None);
    if (uid.isEmpty() || uid == m_row.uid)
        return event->ignore();
    event->setDropAction(Qt::MoveAction);
    event->accept();
    emit taskDropped(uid, m_row.uid, zone);
}

void TasksPaneRow::setDropZone(Zone zone)
{
    if (std::exchange(m_dropZone, zone) != zone)
        update();
}
