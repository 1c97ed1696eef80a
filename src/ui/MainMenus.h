#pragma once

#include <QList>
#include <QObject>

class ActionTable;
class AppState;
class MainWindow;
class QAction;
class QMenu;
class ViewArea;
struct ShortcutInfo;

/// The menu bar of the main window and all its shortcuts. What the actions do is with the window and the
/// view area; here stand their texts, keys and places.
class MainMenus : public QObject {
    Q_OBJECT

public:
    MainMenus(AppState *state, MainWindow *window, ViewArea *viewArea);

    [[nodiscard]] ActionTable *table() const { return m_table; }
    /// What a surface with the focus answers by itself, for the keyboard help.
    static QList<ShortcutInfo> keysOfSurfaces();

private:
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void addModes(QMenu *menu);
    void addHorizons(QMenu *menu);
    void addNavigation(QMenu *menu);
    void addZoom(QMenu *menu);
    void buildToolsMenu();
    void buildHelpMenu();
    void showUndo();
    void followViewState();
    void showViewState();

    AppState *m_state;
    MainWindow *m_window;
    ViewArea *m_viewArea;
    ActionTable *m_table;
    QAction *m_sidebar = nullptr;
    QAction *m_tasksPane = nullptr;
    QAction *m_compact = nullptr;
    QAction *m_undo = nullptr;
};
