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
/// clears the selection; Delete asks to delete. With Shift the arrows move the selected event by slots and days,
/// with Shift and Alt those up and down move its end.
class EventCanvas : public QWidget {
    Q_OBJECT

public:
    EventCanvas(AppState *state, QWidget *parent);

    /// The selection as the program knows it. An invalid start stands for the first occurrence on show.
    void setSelectedOccurrence(const QString &id, const QDateTime &occurrenceStart);
    [[nodiscard]] const EventKey &selection() const { return m_selection; }
    [[nodiscard]] bool isSelected(const EventBlock &block) const;

    [[nodiscard]] const QList<EventBlock> &blocks() const ///< lays out what has changed
    {
        layOutIfDirty();
        return m_blocks;
    }
    /// Calendars whose events may be looked at and not changed.
    void setReadOnlyCalendarIds(const QSet<QString> &ids) { m_readOnlyCalendarIds = ids; }
    [[nodiscard]] QString eventIdAt(QPoint point) const; ///< empty if there is none
    [[nodiscard]] const Event &eventOf(const EventBlock &block) const { return m_events.at(block.eventIndex); }
    /// The instance shown for \p key, the first one if it names no occurrence; or null.
    [[nodiscard]] const Event *findEvent(const EventKey &key) const;
    /// The topmost block of \p key that is on show, or -1.
    [[nodiscard]] int blockIndexOf(const EventKey &key) const;

    /// A sentence for assistive technology.
    [[nodiscard]] QString describe(const EventBlock &block) const;

    void selectAndOpen(int blockIndex); ///< as a click does

signals:
    /// \p id is empty after a click beside all events.
    void eventSelected(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect);
    void eventFocused(const QString &id, const QDateTime &occurrenceStart); ///< by keyboard
    void eventActivated(const QString &id);
    void eventContextRequested(const QString &id, const QPoint &globalPos);
    void eventMoveRequested(const QString &id, const QDateTime &occurrenceStart, int days, int minutes);
    void eventResizeRequested(const QString &id, const QDateTime &occurrenceStart, int minutes);
    void eventDeleteRequested(const QString &id);
    void taskDropped(const QString &taskId, const QDateTime &when, bool allDay, const QPoint &globalPos);
    void icsDropped(const QStringList &paths);
    void refused(const QString &why); ///< a change of an event that takes none
    void fontMetricsChanged(); ///< gutter and hours may need another size; once for many changes

protected:
    /// Where something that is dropped lands on the calendar.
    struct DropPlace {
        QDateTime when; ///< local; of an all-day place the date counts
        bool allDay = false;
        QRect rect; ///< to show it
    };

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
    /// Shows in the gutter that the keyboard is here, while no block with the focus says so. Only to those
    /// who use the keyboard: one who clicked knows where he is.
    void paintFocusMark(QPainter &painter, int gutterPx) const;

    /// The blocks are computed anew before they are next painted or asked for, once for all changes.
    void markDirty();
    /// Computes the blocks anew, and hands them to setBlocks().
    virtual void relayout() = 0;
    virtual void onPaletteChanged() { update(); }
    /// All events in the order in which the keyboard walks them.
    [[nodiscard]] virtual QList<EventKey> walkOrder() const = 0;
    /// Brings the event into view, after a step of the keyboard.
    virtual void reveal(const EventKey &key) = 0;
    [[nodiscard]] virtual Qt::CursorShape cursorAt(QPoint point) const;
    [[nodiscard]] virtual std::optional<DropPlace> dropPlaceAt(QPoint point) const = 0;
    /// Frames what a release would land on, while something is dragged over the surface.
    void paintDropPlace(QPainter &painter) const;
    /// The release to come is no click.
    void forgetPress() { m_pressed.reset(); }
    /// False for an event of a calendar that takes no changes; the user has been told then.
    bool checkWritable(const Event &event);
    [[nodiscard]] bool isReadOnly(const Event &event) const { return m_readOnlyCalendarIds.contains(event.calendarId); }

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
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool walk(int step, bool wrap);
    void enterAtNearEnd(int step);
    void showToKeyboard(const EventKey &key); ///< brings it into view and announces it
    void layOutIfDirty() const;
    void settleSoon();
    void settle();
    void setShowsFocus(bool shows);
    [[nodiscard]] bool handleKey(int key);
    [[nodiscard]] bool handleEditKey(const QKeyEvent &event);
    void showDropPlace(const QRect &rect);
    void setSelection(const EventKey &key);
    void openSelected();
    void clearSelection();
    bool showToolTip(QPoint globalPos, QPoint pos);

    AppState *m_state;
    QList<Event> m_events;
    QHash<QString, QString> m_calendarColors;
    QSet<QString> m_dimmedIds;
    QSet<QString> m_readOnlyCalendarIds;
    QRect m_dropPlace;
    QList<EventBlock> m_blocks;
    EventKey m_selection;
    bool m_isSelectedByMouse = false;
    bool m_showsFocus = false;
    bool m_isDirty = false;
    bool m_isSettling = false;
    bool m_followsEdit = false; // the keyboard changed the selected event, which comes back with the next reload
    bool m_haveFontsChanged = false;
    std::optional<EventKey> m_pressed; // an empty key: beside all blocks
};
