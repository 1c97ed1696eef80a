#include "ui/MainMenus.h"

#include "app/state/AppState.h"
#include "app/state/UndoStack.h"
#include "ui/ActionTable.h"
#include "ui/GroupMenu.h"
#include "ui/HorizonChip.h"
#include "ui/MainWindow.h"
#include "ui/ViewArea.h"
#include "ui/ViewModes.h"

#include <QActionGroup>
#include <QMenuBar>

#include <functional>

MainMenus::MainMenus(AppState *state, MainWindow *window, ViewArea *viewArea)
    : QObject(window)
    , m_state(state)
    , m_window(window)
    , m_viewArea(viewArea)
    , m_table(new ActionTable(window))
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildToolsMenu();
    buildHelpMenu();
    followViewState();
}

void MainMenus::buildFileMenu()
{
    const QString group = tr("General");
    QMenu *menu = m_window->menuBar()->addMenu(tr("&File"));
    menu->addAction(m_table->add({ .id = QStringLiteral("newEvent"),
                                   .group = group,
                                   .text = tr("&New Event…"),
                                   .keys = ActionTable::keysFor(QKeySequence::New, Qt::CTRL | Qt::Key_N),
                                   .run = [this] { m_window->openNewEventDialog(); },
                                   .needsCalendar = true }));
    menu->addAction(m_table->add({ .id = QStringLiteral("newTask"),
                                   .group = group,
                                   .text = tr("New &Task…"),
                                   .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_T },
                                   .run = [this] { m_window->openNewTaskDialog(); },
                                   .needsCalendar = true }));
    QAction *quickAdd = m_table->add({ .id = QStringLiteral("quickAdd"),
                                       .group = group,
                                       .text = tr("Quick &Add…"),
                                       .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_N },
                                       .run = [this] { m_window->showQuickAddDialog(); },
                                       .needsCalendar = true });
    quickAdd->setStatusTip(tr("Type an event in plain English (\"lunch Thursday 1pm\")"));
    menu->addAction(quickAdd);
    menu->addSeparator();
    menu->addAction(m_table->add(
        { .id = QStringLiteral("newCalendar"), .group = group, .text = tr("New &Calendar…"), .run = [this] {
             m_window->openNewCalendarDialog();
         } }));
    menu->addAction(m_table->add(
        { .id = QStringLiteral("calendarAccounts"), .group = group, .text = tr("Calendar Acc&ounts…"), .run = [this] {
             m_window->openCalendarAccounts();
         } }));
    menu->addSeparator();
    menu->addAction(m_table->add({ .id = QStringLiteral("syncNow"),
                                   .group = group,
                                   .text = tr("&Sync Now"),
                                   .keys = { Qt::CTRL | Qt::Key_R },
                                   .run = [this] { m_window->runSyncNow(); } }));
    QAction *fullSync = m_table->add({ .id = QStringLiteral("forceFullSync"),
                                       .group = group,
                                       .text = tr("Force F&ull Sync…"),
                                       .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_R },
                                       .run = [this] { m_window->runForceFullSync(); } });
    fullSync->setStatusTip(tr("Re-pull every event from every account, ignoring sync tokens"));
    menu->addAction(fullSync);
    menu->addAction(m_table->add({ .id = QStringLiteral("importIcs"),
                                   .group = group,
                                   .text = tr("&Import ICS File…"),
                                   .run = [this] { m_window->chooseIcsFiles(); },
                                   .needsCalendar = true }));
    menu->addSeparator();
    menu->addAction(m_table->add({ .id = QStringLiteral("quit"),
                                   .group = group,
                                   .text = tr("&Quit"),
                                   .keys = ActionTable::keysFor(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q),
                                   .run = [this] { m_window->quitApplication(); },
                                   .role = QAction::QuitRole }));
}

void MainMenus::buildEditMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&Edit"));
    m_undo = m_table->add({ .id = QStringLiteral("undo"),
                            .group = tr("General"),
                            .text = tr("&Undo"),
                            .helpText = tr("Undo (drag/resize/delete)"),
                            .keys = ActionTable::keysFor(QKeySequence::Undo, Qt::CTRL | Qt::Key_Z),
                            .run = [this] { m_window->undo(); } });
    menu->addAction(m_undo);
    menu->addSeparator();
    connect(m_state->undoStack(), &UndoStack::changed, this, &MainMenus::showUndo);
    showUndo();
    menu->addAction(m_table->add({ .id = QStringLiteral("preferences"),
                                   .group = tr("General"),
                                   .text = tr("&Preferences…"),
                                   .keys = ActionTable::keysFor(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma),
                                   .run = [this] { m_window->openPreferencesDialog(); },
                                   .role = QAction::PreferencesRole }));
}

void MainMenus::buildViewMenu()
{
    const QString group = tr("View");
    QMenu *menu = m_window->menuBar()->addMenu(tr("&View"));
    m_sidebar = m_table->add({ .id = QStringLiteral("toggleSidebar"),
                               .group = group,
                               .text = tr("Toggle &Sidebar"),
                               .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_S },
                               .run = [this] { m_window->setSidebarVisible(m_sidebar->isChecked()); },
                               .checkable = true });
    m_sidebar->setChecked(m_window->isSidebarWanted());
    menu->addAction(m_sidebar);
    m_tasksPane = m_table->add({ .id = QStringLiteral("toggleTasksPane"),
                                 .group = group,
                                 .text = tr("Toggle &Tasks Pane"),
                                 .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_K },
                                 .run = [this] { m_window->setTasksPaneVisible(m_tasksPane->isChecked()); },
                                 .checkable = true });
    m_tasksPane->setChecked(m_window->isTasksPaneWanted());
    m_compact = m_table->add({ .id = QStringLiteral("compactDensity"),
                               .group = group,
                               .text = tr("&Compact Density"),
                               .keys = { Qt::CTRL | Qt::SHIFT | Qt::Key_D },
                               .run =
                                   [this] {
                                       m_state->setDensityFor(m_state->viewMode(),
                                                              m_compact->isChecked() ? QStringLiteral("compact")
                                                                                     : QStringLiteral("comfortable"));
                                   },
                               .checkable = true });
    menu->addAction(m_compact);
    menu->addAction(m_tasksPane);
    menu->addSeparator();
    addModes(menu);
    addHorizons(menu->addMenu(tr("Days Timeline S&pan")));
    menu->addSeparator();
    addNavigation(menu->addMenu(tr("&Go")));
    menu->addSeparator();
    addZoom(menu);
}

// The digits do not follow the order of the buttons; a mode without a surface has no entry and no key.
void MainMenus::addModes(QMenu *menu)
{
    struct ModeRow {
        QString mode;
        QString text;
    };
    const ModeRow rows[] = {
        { QStringLiteral("day"), tr("&Day") },     { QStringLiteral("days"), tr("Da&ys") },
        { QStringLiteral("week"), tr("&Week") },   { QStringLiteral("grid"), tr("Gr&id") },
        { QStringLiteral("month"), tr("&Month") }, { QStringLiteral("year"), tr("Yea&r") },
    };
    auto *exclusive = new QActionGroup(this);
    int digit = 0;
    for (const ModeRow &row : rows) {
        ++digit;
        if (!ViewArea::availableModes().contains(row.mode))
            continue;
        QAction *action = m_table->add({ .id = row.mode,
                                         .group = tr("View"),
                                         .text = row.text,
                                         .keys = { QKeySequence(Qt::Key_0 + digit) },
                                         .run = [this, mode = row.mode] { m_viewArea->setMode(mode); },
                                         .needsCalendar = true,
                                         .checkable = true });
        exclusive->addAction(action);
        menu->addAction(action);
    }
}

void MainMenus::addHorizons(QMenu *menu)
{
    int digit = 0;
    for (const int days : ViewModes::Horizons) {
        const Qt::Key key = Qt::Key(Qt::Key_0 + ++digit);
        menu->addAction(m_table->add({ .id = QStringLiteral("horizon%1").arg(days),
                                       .group = tr("Days timeline span"),
                                       .text = HorizonChip::label(days),
                                       .keys = { QKeySequence(Qt::CTRL | Qt::SHIFT | key) },
                                       .run = [this, days] { m_viewArea->showHorizon(days); },
                                       .needsCalendar = true }));
    }
}

void MainMenus::addNavigation(QMenu *menu)
{
    const QString group = tr("Navigation");
    const auto add = [&](const char *id, const QString &text, const QKeySequence &key, std::function<void()> run) {
        menu->addAction(m_table->add({ .id = QLatin1StringView(id),
                                       .group = group,
                                       .text = text,
                                       .keys = { key },
                                       .run = std::move(run),
                                       .needsCalendar = true }));
    };
    add("today", tr("&Today"), Qt::Key_T, [this] { m_viewArea->goToToday(); });
    menu->addSeparator();
    add("next", tr("&Next"), Qt::Key_J, [this] { m_viewArea->stepDate(1); });
    add("previous", tr("&Previous"), Qt::Key_K, [this] { m_viewArea->stepDate(-1); });
    add("weekLater", tr("A &Week Later"), Qt::Key_L, [this] { m_viewArea->moveDays(7); });
    add("weekEarlier", tr("A W&eek Earlier"), Qt::Key_H, [this] { m_viewArea->moveDays(-7); });
    add("monthLater", tr("A &Month Later"), Qt::SHIFT | Qt::Key_J, [this] { m_viewArea->moveMonths(1); });
    add("monthEarlier", tr("A M&onth Earlier"), Qt::SHIFT | Qt::Key_K, [this] { m_viewArea->moveMonths(-1); });
    menu->addSeparator();
    add("back", tr("&Back"), Qt::ALT | Qt::Key_Left, [this] { m_state->navigateBack(); });
    add("forward", tr("&Forward"), Qt::ALT | Qt::Key_Right, [this] { m_state->navigateForward(); });
}

void MainMenus::addZoom(QMenu *menu)
{
    const QString group = tr("View");
    QList<QKeySequence> zoomIn = ActionTable::keysFor(QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Plus);
    zoomIn.append(Qt::CTRL | Qt::Key_Equal); // where plus is on the shifted level of that key
    menu->addAction(m_table->add({ .id = QStringLiteral("zoomIn"),
                                   .group = group,
                                   .text = tr("&Zoom In"),
                                   .keys = zoomIn,
                                   .run = [this] { m_viewArea->zoomBy(1); },
                                   .needsCalendar = true }));
    menu->addAction(m_table->add({ .id = QStringLiteral("zoomOut"),
                                   .group = group,
                                   .text = tr("Zoom &Out"),
                                   .keys = ActionTable::keysFor(QKeySequence::ZoomOut, Qt::CTRL | Qt::Key_Minus),
                                   .run = [this] { m_viewArea->zoomBy(-1); },
                                   .needsCalendar = true }));
}

void MainMenus::buildToolsMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&Tools"));
    const auto add = [&](const char *id, const QString &text, std::function<void()> run) {
        menu->addAction(m_table->add({ .id = QLatin1StringView(id),
                                       .group = tr("General"),
                                       .text = text,
                                       .run = std::move(run),
                                       .needsCalendar = true }));
    };
    add("addFilter", tr("Add &Filter…"), [this] { m_window->openAddFilterDialog(); });
    add("manageFilters", tr("Manage Fil&ters…"), [this] { m_window->openManageFiltersDialog(); });
    menu->addSeparator();
    add("addGroup", tr("Add Calendar &Group…"), [this] { m_window->openAddViewDialog(); });
    add("manageGroups", tr("Manage Calendar Gr&oups…"), [this] { m_window->openManageViewsDialog(); });
    new GroupMenu(m_state, m_table, menu->addMenu(tr("&Calendar Groups")));
    menu->addSeparator();
    add("manageTemplates", tr("Manage Te&mplates…"), [this] { m_window->openManageTemplatesDialog(); });
    if (m_state->conflicts()) {
        menu->addSeparator();
        add("syncConflicts", tr("&Sync Conflicts…"), [this] { m_window->openSyncConflicts(); });
    }
}

void MainMenus::buildHelpMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&Help"));
    menu->addAction(m_table->add({ .id = QStringLiteral("keyboardHelp"),
                                   .group = tr("General"),
                                   .text = tr("&Keyboard Shortcuts"),
                                   .keys = ActionTable::keysFor(QKeySequence::HelpContents, Qt::Key_F1),
                                   .run = [this] { m_window->openKeyboardHelp(); } }));
    menu->addSeparator();
    const auto add = [&](const char *id, const QString &text, void (MainWindow::*requested)()) {
        menu->addAction(m_table->add({ .id = QLatin1StringView(id),
                                       .group = tr("General"),
                                       .text = text,
                                       .run = std::bind_front(requested, m_window) }));
    };
    add("whatsNew", tr("&What's New"), &MainWindow::whatsNewRequested);
    add("sendFeedback", tr("Send &Feedback…"), &MainWindow::feedbackRequested);
    add("checkForUpdates", tr("Check for &Updates…"), &MainWindow::updateCheckRequested);
    menu->addSeparator();
    menu->addAction(m_table->add({ .id = QStringLiteral("about"),
                                   .group = tr("General"),
                                   .text = tr("&About Quillon Calendar"),
                                   .run = [this] { m_window->openAboutBox(); },
                                   .role = QAction::AboutRole }));
}

QList<ShortcutInfo> MainMenus::keysOfSurfaces()
{
    const QString events = tr("Events in the calendar");
    const QString allDay = tr("All-day events that do not all fit");
    constexpr auto ShiftAlt = Qt::SHIFT | Qt::ALT;
    return { { events, tr("Select the next one or the one before"), { Qt::Key_Down, Qt::Key_Up } },
             { events, tr("Open the selected one"), { Qt::Key_Return } },
             { events, tr("Delete it"), { Qt::Key_Delete, Qt::Key_Backspace } },
             { events, tr("Move it by a day"), { Qt::SHIFT | Qt::Key_Right, Qt::SHIFT | Qt::Key_Left } },
             { events, tr("Move it by a quarter of an hour"), { Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Up } },
             { events, tr("Let it end later or earlier"), { ShiftAlt | Qt::Key_Down, ShiftAlt | Qt::Key_Up } },
             { events, tr("Select none"), { Qt::Key_Escape } },
             { allDay, tr("Show all"), { Qt::Key_Plus } },
             { allDay, tr("Show the first ones only"), { Qt::Key_Minus } },
             { allDay, tr("Show more or fewer, while none is selected"), { Qt::Key_Return } } };
}

void MainMenus::showUndo()
{
    const UndoStack *stack = m_state->undoStack();
    m_undo->setEnabled(stack->canUndo());
    m_undo->setStatusTip(stack->topSummary());
}

void MainMenus::followViewState()
{
    connect(m_state, &AppState::viewModeChanged, this, &MainMenus::showViewState);
    connect(m_state, &AppState::densityChanged, this, &MainMenus::showViewState);
    showViewState();
}

void MainMenus::showViewState()
{
    m_compact->setChecked(m_state->isCompact(m_state->viewMode()));
    if (QAction *mode = m_table->action(m_state->viewMode()))
        mode->setChecked(true);
}
