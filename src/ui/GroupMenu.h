#pragma once

#include <QList>
#include <QObject>

class ActionTable;
class AppState;
class QAction;
class QMenu;

/// The submenu of calendar groups. The first nine have Ctrl with their number as a shortcut; further ones
/// are in the menu alone. Some keyboards cannot type the brackets of "next" and "previous".
class GroupMenu : public QObject {
    Q_OBJECT

public:
    static constexpr int NumberedGroups = 9;

    GroupMenu(AppState *state, ActionTable *table, QMenu *menu);

    void activateAt(int position); ///< counted from 0; nothing happens beyond the last group
    void activateNeighbour(int step); ///< +1 the next, -1 the previous, round the ends

private:
    void addRows(ActionTable *table);
    void refresh();

    AppState *m_state;
    QMenu *m_menu;
    QList<QAction *> m_numbered;
    QList<QAction *> m_further;
    QAction *m_next = nullptr;
    QAction *m_previous = nullptr;
};
