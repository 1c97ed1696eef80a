#pragma once

#include "models/Event.h"
#include "ui/surfaces/EventBlock.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QWidget>

#include <optional>

class AppState;
class QPainter;
struct BlockColors;

/// The base of the surfaces that paint events themselves. It keeps the events and the blocks as last laid
/// out, the selection, and answers mouse, keyboard, tool tip and assistive technology from them. It changes
/// nothing stored: what the user asks for goes out as a signal.
///
/// Tab walks the events and leaves at the ends; the arrows up and down walk and wrap; Return opens; Escape
/// clears the selection.
class EventCanvas : public QWidget {
    Q_OBJECT

public:
    EventCanvas(AppState *state, QWidget *parent);

    /// The selection as the program knows it. The occurrence stays if the id is the same.
    void setSelectedEventId(const QString &id);
    [[nodiscard]] const EventKey &selection() const { return m_selection; }
    [[nodiscard]] bool isSelected(const EventBlock &block) const;

    [[nodiscard]] const QList<EventBlock> &blocks() const { return m_blocks; }
    [[nodiscard]] QString eventIdAt(QPoint point) const; ///< empty if there is none
    [[nodiscard]] const Event &eventOf(const EventBlock &block) const { return m_events.at(block.eventIndex); }
    /// The instance shown for \p key, or null.
    [[nodiscard]] const Event *findEvent(const EventKey &key) const;
    /// The topmost block of \p key that is on show, or -1.
    [[nodiscard]] int blockIndexOf(const EventKey &key) const;

    /// A sentence for assistive technology.
    [[nodiscard]] QString describe(const EventBlock &block) const;

    void selectAndOpen(int blockIndex); ///< as a click does

signals:
    /// \p id is empty after a click beside all events.
    void eventSelected(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect);
    void eventFocused(const QString &id); ///< by keyboard
    void eventActivated(const QString &id);
    void eventContextRequested(const QString &id, const QPoint &globalPos);
    void fontMetricsChanged(); ///< the gutter may need another width

protected:
    [[nodiscard]] AppState *state() const { return m_state; }
    [[nodiscard]] const QList<Event> &events() const { return m_events; }
    /// The colours of the event's block on \p base. Dimmed and cancelled events are fainter.
    [[nodiscard]] BlockColors colorsOf(const Event &event, int bodyAlpha, int faintBodyAlpha, const QColor &base) const;
    [[nodiscard]] QRect globalRect(const QRect &rect) const;

    void setEvents(const QList<Event> &events, const QHash<QString, QString> &calendarColors,
                   const QSet<QString> &dimmedIds);
    void setBlocks(QList<EventBlock> blocks);

    /// Body, stripe and, for the selected block, the selection with the mark of the keyboard's focus.
    void paintShape(QPainter &painter, const EventBlock &block, const BlockColors &colors, int stripeWidthPx) const;
    /// Shows in the gutter that the keyboard is here, while no block with the focus says so.
    void paintFocusMark(QPainter &painter, int gutterPx) const;

    /// Computes the blocks anew; called when the font, the size or the palette has changed.
    virtual void relayout() = 0;
    /// All events in the order in which the keyboard walks them.
    [[nodiscard]] virtual QList<EventKey> walkOrder() const = 0;
    /// Brings the event into view, after a step of the keyboard.
    virtual void reveal(const EventKey &key) = 0;
    [[nodiscard]] virtual Qt::CursorShape cursorOver(const EventBlock &block) const;

    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool walk(int step, bool wrap);
    void setSelection(const EventKey &key);
    void openSelected();
    void clearSelection();
    bool showToolTip(QPoint globalPos, QPoint pos);

    AppState *m_state;
    QList<Event> m_events;
    QHash<QString, QString> m_calendarColors;
    QSet<QString> m_dimmedIds;
    QList<EventBlock> m_blocks;
    EventKey m_selection;
    std::optional<EventKey> m_pressed; // an empty key: beside all blocks
};
