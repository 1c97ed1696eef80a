#include "ui/MainWindow.h"

#include "app/state/AppState.h"
#include "app/state/UndoStack.h"
#include "calendar/WallClockShift.h"
#include "calendar/services/QuickAdd.h"
#include "models/Event.h"
#include "models/FilterRule.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/AccountPill.h"
#include "ui/ActionTable.h"
#include "ui/FiltersPill.h"
#include "ui/GroupButton.h"
#include "ui/IcsImportFlow.h"
#include "ui/MainMenus.h"
#include "ui/NoAccountsPage.h"
#include "ui/PlainKeyGuard.h"
#include "ui/Sidebar.h"
#include "ui/ViewArea.h"
#include "ui/WindowLayout.h"
#include "ui/accounts/CalDavConnectionDialog.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/accounts/ConflictResolutionDialog.h"
#include "ui/accounts/ManageSourcesDialog.h"
#include "ui/actions/EventActions.h"
#include "ui/actions/TaskActions.h"
#include "ui/dialogs/AboutBox.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/IcsDrop.h"
#include "ui/dialogs/KeyboardHelpDialog.h"
#include "ui/dialogs/ManageFiltersDialog.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/PreferencesDialog.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/WelcomeDialog.h"
#include "ui/forms/ManageTemplatesDialog.h"
#include "ui/forms/QuickAddDialog.h"
#include "ui/tasks/TasksPane.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

namespace {

constexpr QSize FirstSize(1440, 900);
constexpr int MessageMs = 5000;
const QString SidebarVisibleKey = QStringLiteral("ui/sidebarVisible");
const QString FirstLaunchSeenKey = QStringLiteral("ui/firstLaunchSeen");
const QString TasksPaneVisibleKey = QStringLiteral("ui/tasksPaneVisible");

}

MainWindow::MainWindow(AppState *state, QWidget *parent)
    : QMainWindow(parent)
    , m_state(state)
{
    setWindowTitle(tr("Quillon Calendar"));
    resize(FirstSize);
    setAcceptDrops(true);
    buildActions();
    buildCentralPanes();
    m_menus = new MainMenus(state, this, m_viewArea);
    m_import = new IcsImportFlow(state, this);
    connect(m_import, &IcsImportFlow::statusMessage, statusBar(), &QStatusBar::showMessage);

    m_layout = std::make_unique<WindowLayout>(state->preferences(), this, m_panes);
    m_layout->restore();
    m_layout->clampToScreen();
    connect(state->calendars(), &CalendarRepository::calendarsChanged, this, &MainWindow::refreshCenterPane);
    refreshCenterPane();
    buildStatusBar();
    new PlainKeyGuard(this);
    qApp->installEventFilter(this);
    m_viewArea->setFocus(); // keys reach the events first, and not the mini month above them
}

MainWindow::~MainWindow() = default;

ActionTable *MainWindow::actionTable() const
{
    return m_menus->table();
}

void MainWindow::buildActions()
{
    m_eventActions = new EventActions(m_state, this);
    m_taskActions = new TaskActions(m_state, this);
    m_eventActions->setTaskActions(m_taskActions);
    connect(m_eventActions, &EventActions::message, this, &MainWindow::showMessage);
    connect(m_taskActions, &TaskActions::message, this, &MainWindow::showMessage);
    connect(m_taskActions, &TaskActions::eventRequested, this, [this](const QString &id) { focusEvent(id, {}); });
    connect(m_eventActions, &EventActions::filterEditRequested, this,
            [this](const FilterRule &rule) { (new FilterFormDialog(m_state, rule, this))->open(); });
    connect(m_eventActions, &EventActions::filterFromEventRequested, this, &MainWindow::onFilterFromEvent);
    connect(m_state->undoStack(), &UndoStack::undone, this,
            [this](const QString &summary) { showMessage(tr("Undid: %1").arg(summary)); });
    connect(m_state->undoStack(), &UndoStack::failed, this, &MainWindow::showMessage);
}

void MainWindow::buildCentralPanes()
{
    m_panes = new QSplitter(Qt::Horizontal, this);
    m_panes->setChildrenCollapsible(false);
    m_sidebar = new Sidebar(m_state);
    m_center = new QStackedWidget;
    auto *empty = new NoAccountsPage(m_state);
    m_viewArea = new ViewArea(m_state);
    m_center->addWidget(empty);
    m_center->addWidget(m_viewArea);
    m_rightPanes = new QSplitter(Qt::Vertical);
    m_rightPanes->setChildrenCollapsible(false);
    m_tasksPane = new TasksPane(m_state, m_taskActions);
    m_rightPanes->addWidget(m_tasksPane);
    m_panes->addWidget(m_sidebar);
    m_panes->addWidget(m_center);
    m_panes->addWidget(m_rightPanes);
    m_panes->setStretchFactor(0, 0);
    m_panes->setStretchFactor(1, 1);
    setCentralWidget(m_panes);
    m_sidebar->setVisible(isSidebarWanted());
    m_rightPanes->setVisible(isTasksPaneWanted());

    connect(empty, &NoAccountsPage::addRequested, this, &MainWindow::openAddAccountDialog);
    m_viewArea->connectActions(m_eventActions);
    connect(m_viewArea, &ViewArea::icsDropped, this, &MainWindow::importIcsFiles);
    connect(m_viewArea, &ViewArea::message, this, &MainWindow::showMessage);
}

void MainWindow::buildStatusBar()
{
    auto *pill = new FiltersPill(m_state);
    connect(pill, &FiltersPill::addRequested, this, &MainWindow::openAddFilterDialog);
    connect(pill, &FiltersPill::manageRequested, this, &MainWindow::openManageFiltersDialog);
    auto *accounts = new AccountPill(m_state, statusBar()); // it shows itself
    connect(accounts, &QToolButton::clicked, this, &MainWindow::openCalendarAccounts);
    statusBar()->addPermanentWidget(accounts);
    statusBar()->addPermanentWidget(pill);
    if (SyncScheduler *scheduler = m_state->syncScheduler())
        connect(scheduler, &SyncScheduler::statusMessage, statusBar(), &QStatusBar::showMessage);
}

void MainWindow::openCalendarAccounts()
{
    (new ManageSourcesDialog(m_state, this))->open();
}

void MainWindow::openAddAccountDialog()
{
    (new CalDavConnectionDialog(m_state, this))->open();
}

void MainWindow::openSyncConflicts()
{
    (new ConflictResolutionDialog(m_state, this))->open();
}

void MainWindow::runSyncNow()
{
    if (SyncScheduler *scheduler = m_state->syncScheduler())
        scheduler->runSyncNow();
}

void MainWindow::runForceFullSync()
{
    Prompt::question(
        this, tr("Force full sync?"),
        tr("Re-fetch every event and task from every account, ignoring saved sync tokens. Useful when items look stale "
           "or out of date.\n\nAny unsynced local edits will be discarded in favour of the server's copy. Pending "
           "deletions are preserved.\n\nHeavy accounts may take a minute or two and use more bandwidth than usual."),
        this, [this] {
            if (SyncScheduler *scheduler = m_state->syncScheduler())
                scheduler->runForceFullSync();
        });
}

void MainWindow::refreshCenterPane()
{
    const bool calendarsExist = !m_state->calendars()->getAll().isEmpty();
    m_center->setCurrentIndex(calendarsExist ? 1 : 0);
    m_menus->table()->setCalendarsExist(calendarsExist);
}

bool MainWindow::isSidebarWanted() const
{
    return m_state->preferences()->getBool(SidebarVisibleKey, true);
}

void MainWindow::setSidebarVisible(bool visible)
{
    m_sidebar->setVisible(visible);
    m_state->preferences()->setBool(SidebarVisibleKey, visible);
}

bool MainWindow::isTasksPaneWanted() const
{
    return m_state->preferences()->getBool(TasksPaneVisibleKey, true);
}

void MainWindow::setTasksPaneVisible(bool visible)
{
    m_rightPanes->setVisible(visible);
    m_state->preferences()->setBool(TasksPaneVisibleKey, visible);
}

void MainWindow::showMessage(const QString &text)
{
    statusBar()->showMessage(text, MessageMs);
}

void MainWindow::focusWindow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow(); // on Wayland Qt takes the token of the asking program from the environment
}

void MainWindow::showToday()
{
    focusWindow();
    m_viewArea->goToToday();
}

void MainWindow::importIcsFromCommand(const QString &path)
{
    importIcsFiles({ path });
}

void MainWindow::importIcsFiles(const QStringList &paths)
{
    focusWindow();
    m_import->start(paths);
}

void MainWindow::chooseIcsFiles()
{
    Prompt::openFiles(this, tr("Import ICS file"), tr("iCalendar files (*.ics);;All files (*)"), this,
                      [this](const QStringList &paths) { importIcsFiles(paths); });
}

void MainWindow::openNewCalendarDialog()
{
    (new CalendarFormDialog(m_state, this))->open();
}

void MainWindow::openNewEventDialog()
{
    focusWindow();
    m_eventActions->createNow();
}

void MainWindow::openNewTaskDialog()
{
    m_taskActions->create();
}

void MainWindow::openManageTemplatesDialog()
{
    (new ManageTemplatesDialog(m_state, this))->open();
}

void MainWindow::undo()
{
    m_state->undoStack()->undo();
}

void MainWindow::showQuickAddDialog()
{
    focusWindow();
    auto *dialog = new QuickAddDialog(m_state, this);
    connect(dialog, &QuickAddDialog::added, this,
            [this](const QString &title) { showMessage(tr("Added: %1").arg(title)); });
    dialog->open();
}

void MainWindow::quickAddFromCommand(const QString &text)
{
    if (text.trimmed().isEmpty())
        return showQuickAddDialog();
    if (m_state->calendars()->getAll().isEmpty())
        return showMessage(tr("Quick-add ignored: no calendars configured."));
    const bool isStored = !QuickAdd::commit(m_state, text).isEmpty();
    showMessage((isStored ? tr("Added: %1") : tr("Quick-add couldn't parse: \"%1\"")).arg(text));
}

void MainWindow::focusEvent(const QString &id, QDate date)
{
    if (date.isValid())
        m_state->setCurrentDate(date);
    focusWindow();
    const auto event = m_state->events()->getById(id);
    if (!event)
        return;
    QDateTime occurrence = event->startTime;
    if (event->isRecurring() && !event->isOverride() && date.isValid())
        occurrence = event->isAllDay
            ? QDateTime(date, QTime(0, 0), Qt::UTC)
            : WallClockShift{ event->startTime.toLocalTime().date().daysTo(date), 0 }.applied(event->startTime);
    m_eventActions->open(id, occurrence, {});
}

void MainWindow::focusTask(const QString &uid)
{
    focusWindow();
    m_taskActions->openByUid(uid);
}

void MainWindow::openPreferencesDialog()
{
    (new PreferencesDialog(m_state, this))->open();
}

void MainWindow::openAddFilterDialog()
{
    (new FilterFormDialog(m_state, this))->open();
}

void MainWindow::openManageFiltersDialog()
{
    (new ManageFiltersDialog(m_state, this))->open();
}

void MainWindow::openAddViewDialog()
{
    GroupButton::createGroup(m_state, this);
}

void MainWindow::openManageViewsDialog()
{
    (new ManageViewsDialog(m_state, this))->open();
}

void MainWindow::openKeyboardHelp()
{
    (new KeyboardHelpDialog(m_menus->table()->shortcuts() + MainMenus::keysOfSurfaces(), this))->open();
}

void MainWindow::openAboutBox()
{
    showAboutBox(this);
}

void MainWindow::welcomeOnFirstLaunch()
{
    PreferencesRepository *preferences = m_state->preferences();
    if (!isVisible() || QApplication::activeModalWidget() || preferences->getBool(FirstLaunchSeenKey, false))
        return;
    preferences->setBool(FirstLaunchSeenKey, true);
    auto *dialog = new WelcomeDialog(m_state, this);
    connect(dialog, &WelcomeDialog::importRequested, this, &MainWindow::chooseIcsFiles);
    connect(dialog, &WelcomeDialog::addCalendarRequested, this, &MainWindow::openNewCalendarDialog);
    dialog->open();
}

void MainWindow::onFilterFromEvent(const Event &event)
{
    auto *dialog = new FilterFormDialog(m_state, this);
    dialog->seedFromEvent(event);
    dialog->open();
}

void MainWindow::quitApplication()
{
    m_quitting = true;
    QApplication::closeAllWindows();
    QCoreApplication::quit();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_layout->save();
    m_state->flushViewState();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (IcsDrop::hasIcs(event->mimeData()))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = IcsDrop::localPathsIn(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    importIcsFiles(paths);
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || QApplication::activeModalWidget())
        return QMainWindow::eventFilter(watched, event);
    const Qt::MouseButton button = static_cast<QMouseEvent *>(event)->button();
    if (button != Qt::BackButton && button != Qt::ForwardButton)
        return false;
    if (button == Qt::BackButton)
        m_state->navigateBack();
    else
        m_state->navigateForward();
    event->accept();
    return true;
}
