#pragma once

#include <QDate>
#include <QMainWindow>
#include <QStringList>

#include <memory>

class ActionTable;
class AppState;
class EventActions;
class FiltersPill;
class IcsImportFlow;
class MainMenus;
class PlainKeyGuard;
class QSplitter;
class QStackedWidget;
class Sidebar;
class TaskActions;
class TasksPane;
class ViewArea;
class WindowLayout;
struct Event;
struct FilterRule;

/// The window: menus, panes and status bar. Opens the dialogs, takes dropped files, and is where the
/// commands of a second launch arrive.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(AppState *state, QWidget *parent = nullptr);
    ~MainWindow() override;

    [[nodiscard]] bool isQuitting() const { return m_quitting; }
    [[nodiscard]] bool isSidebarWanted() const; ///< the stored choice, also while the window is hidden
    [[nodiscard]] bool isTasksPaneWanted() const;
    [[nodiscard]] ActionTable *actionTable() const;
    [[nodiscard]] ViewArea *viewArea() const { return m_viewArea; }
    [[nodiscard]] Sidebar *sidebar() const { return m_sidebar; }

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void focusWindow(); ///< shows, raises and activates it
    void showToday();
    void importIcsFromCommand(const QString &path); ///< absolute
    void importIcsFiles(const QStringList &paths); ///< one dialog for all of them
    void chooseIcsFiles();
    void openNewCalendarDialog();
    void openCalendarAccounts();
    void openAddAccountDialog();
    void openSyncConflicts();
    void runSyncNow();
    void runForceFullSync();
    void openPreferencesDialog();
    void openAddFilterDialog();
    void openManageFiltersDialog();
    void openAddViewDialog();
    void openManageViewsDialog();
    void openKeyboardHelp();
    void openAboutBox();
    /// Greets whoever has not been greeted yet. Holds back while the window is hidden or another dialog is open:
    /// the next launch will do.
    void welcomeOnFirstLaunch();
    void showMessage(const QString &text); ///< in the status bar, for a while
    void openNewEventDialog();
    void openNewTaskDialog();
    void showQuickAddDialog();
    void openManageTemplatesDialog();
    void undo(); ///< the last change of an event
    void quickAddFromCommand(const QString &text);
    /// Shows the event's details, on \p date if that is valid.
    void focusEvent(const QString &id, QDate date);
    void focusTask(const QString &uid);
    void setSidebarVisible(bool visible);
    void setTasksPaneVisible(bool visible);
    void quitApplication();

signals:
    /// From the help menu. The program answers them: it knows where releases come from and feedback goes.
    void whatsNewRequested();
    void feedbackRequested();
    void updateCheckRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildCentralPanes();
    void buildActions();
    void buildStatusBar();
    void refreshCenterPane();
    void onFilterFromEvent(const Event &event);

    AppState *m_state;
    EventActions *m_eventActions = nullptr;
    TaskActions *m_taskActions = nullptr;
    QSplitter *m_panes = nullptr;
    QSplitter *m_rightPanes = nullptr;
    TasksPane *m_tasksPane = nullptr;
    Sidebar *m_sidebar = nullptr;
    QStackedWidget *m_center = nullptr; // the page without calendars, and the view area
    ViewArea *m_viewArea = nullptr;
    MainMenus *m_menus = nullptr;
    IcsImportFlow *m_import = nullptr;
    std::unique_ptr<WindowLayout> m_layout;
    bool m_quitting = false;
};
