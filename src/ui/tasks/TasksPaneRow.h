#pragma once

#include "calendar/services/TaskListing.h"

#include <QWidget>

class AppState;

/// One task of the pane, painted by itself. The left button toggles its check box, selects or drags it, a double
/// click activates it; other tasks can be dropped onto it, above it or below it.
class TasksPaneRow : public QWidget {
    Q_OBJECT

public:
    enum class Zone { None, Above, Onto, Below };

    struct Look {
        bool showNotes = false;
        bool showCategories = false;
        bool isWaitingToSync = false;
        QString color; ///< of the task or its calendar

        bool operator==(const Look &) const = default;
    };

    TasksPaneRow(AppState *state, const TaskListing::Row &row, const Look &look, QWidget *parent = nullptr);

    void setRow(const TaskListing::Row &row, const Look &look);
    [[nodiscard]] const TaskListing::Row &row() const { return m_row; }
    [[nodiscard]] QRect checkboxRect() const;
    void setDraggable(bool draggable) { m_isDraggable = draggable; }
    /// Where a drop at \p y lies in a row of this height: the upper quarter, the lower one, or between.
    [[nodiscard]] Zone zoneForCursor(int y) const;
    [[nodiscard]] int siblingIndicatorLeftX() const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void rowSelected(const QString &taskId, const QRect &globalRect);
    void rowActivated(const QString &taskId);
    void contextRequested(const QString &taskId, const QPoint &globalPos);
    void completionToggled(const QString &taskId, bool completed);
    void deleteRequested(const QString &taskId);
    void draggedOver(); ///< with another task
    void dragEnded(); ///< over this row: it left, or was dropped
    void taskDropped(const QString &uid, const QString &targetUid, TasksPaneRow::Zone zone);
    void walkRequested(int step); ///< to the row so many further down, or up; at most to the last or the first
    void moveRequested(int step); ///< of the task, among its siblings

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    [[nodiscard]] bool isOnCheckbox(QPoint point) const;
    [[nodiscard]] int textLeft() const;
    [[nodiscard]] QString sentence() const;
    [[nodiscard]] QString wholeText() const;
    [[nodiscard]] QStringList tags() const;
    [[nodiscard]] bool hasSecondLine() const;
    [[nodiscard]] int lineCount() const;
    void toggle();
    void startDrag();
    void setDropZone(Zone zone);
    void paintCheckbox(QPainter &painter) const;
    void paintTitle(QPainter &painter, const QRect &line) const;
    void paintFacts(QPainter &painter, QRect line) const;
    void paintChips(QPainter &painter, QRect line) const;
    int paintPill(QPainter &painter, const QRect &line, const QString &text, const QColor &color, bool filled) const;
    void paintDropMark(QPainter &painter) const;

    AppState *m_state;
    TaskListing::Row m_row;
    Look m_look;
    QString m_dueText;
    bool m_isDraggable = false;
    bool m_isPressed = false;
    bool m_isPressOnCheckbox = false;
    QPoint m_pressedAt;
    Zone m_dropZone = Zone::None;
};
