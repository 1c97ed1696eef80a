#pragma once

#include "calendar/services/TaskListing.h"
#include "ui/tasks/TasksPaneRow.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class AppState;
class QLabel;
class QMenu;
class QScrollArea;
class QTimer;
class QToolButton;
class QVBoxLayout;
class TaskActions;

/// The tasks of the visible calendars as an indented tree, with a filter, options, and dragging. A long list is
/// built in slices of the event loop. A reload keeps the rows of the tasks that stay, and so focus and scrolling.
class TasksPane : public QWidget {
    Q_OBJECT

public:
    using Filter = TaskListing::Filter;

    /// \p actions must outlive the pane.
    TasksPane(AppState *state, TaskActions *actions, QWidget *parent = nullptr);

    void reload();
    void setFilter(Filter filter);
    void setGroupByCalendar(bool on);
    void setHideCompleted(bool on);
    void setShowNotes(bool on);
    void setShowCategories(bool on);
    [[nodiscard]] const TaskListing::Options &options() const { return m_options; }
    [[nodiscard]] QList<TasksPaneRow *> rows() const { return m_rows; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// One line of the list that is still to be built.
    struct Pending {
        int section;
        int row; ///< -1: the section's header
    };

    QWidget *buildToolbar();
    void buildFilterMenu(QMenu *menu);
    QAction *addOption(QMenu *menu, const QString &text, bool on, void (TasksPane::*setter)(bool));
    void connectSources();
    void reloadSoon();
    void clearContent();
    void discardGoneRows();
    void buildSlice();
    void discard(QWidget *line);
    bool place(QWidget *line); ///< below what is placed already; false if it was there
    bool placeRow(const TaskListing::Row &row);
    void buildEmptyState();
    QWidget *buildSectionHeader(const QString &title, const QString &color, int count);
    TasksPaneRow *buildRow(const TaskListing::Row &row, const TasksPaneRow::Look &look);
    void onWalk(int step);
    void onMove(int step);
    void scrollWhileDragging();
    void onTaskDropped(const QString &uid, const QString &targetUid, TasksPaneRow::Zone zone);
    void storeFlag(bool *flag, bool on, const QString &key);
    void showFilterName();

    AppState *m_state;
    TaskActions *m_actions;
    TaskListing::Options m_options;
    bool m_showNotes = false;
    bool m_showCategories = false;
    bool m_isStale = true;
    QTimer *m_reloadTimer;
    QTimer *m_sliceTimer;
    QTimer *m_dragScrollTimer;
    QToolButton *m_filterButton = nullptr;
    QToolButton *m_addButton = nullptr;
    QScrollArea *m_scroll;
    QVBoxLayout *m_list; // what is placed, old rows, and a stretch
    QList<TaskListing::Section> m_sections;
    QList<Pending> m_pending;
    int m_placed = 0; // lines, headers too
    QList<TasksPaneRow *> m_rows; // in order
    QHash<QString, TasksPaneRow *> m_oldRows; // by task; to be placed anew, and until then below what is
    QList<QWidget *> m_otherLines; // headers, or what an empty list says
    QHash<QString, QString> m_calendarColors;
    QSet<QString> m_syncableCalendarIds;
};
