#include "ui/MainWindow.h"

#include "app/state/AppState.h"
#include "models/Event.h"
#include "models/FilterRule.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "ui/ActionTable.h"
#include "ui/FiltersPill.h"
#include "ui/GroupButton.h"
#include "ui/dialogs/IcsDrop.h"
#include "ui/IcsImportFlow.h"
#include "ui/MainMenus.h"
#include "ui/NoAccountsPage.h"
#include "ui/PlainKeyGuard.h"
#include "ui/Sidebar.h"
#include "ui/ViewArea.h"
#include "ui/WindowLayout.h"
#include "ui/dialogs/AboutBox.h"
#include "ui/dialogs/CalendarFormDialog.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/KeyboardHelpDialog.h"
#include "ui/dialogs/ManageFiltersDialog.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/PreferencesDialog.h"
#include "ui/dialogs/Prompt.h"

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
const QString SidebarVisibleKey = QStringLiteral("ui/sidebarVisible");

}

MainWindow::MainWindow(AppState *state, QWidget *parent)
    : QMainWindow(parent)
    , m_state(state)
{
    setWindowTitle(tr("Quillon Calendar"));
    resize(FirstSize);
    setAcceptDrops(true);
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
    m_panes->addWidget(m_sidebar);
    m_panes->addWidget(m_center);
    m_panes->setStretchFactor(0, 0);
    m_panes->setStretchFactor(1, 1);
    setCentralWidget(m_panes);
    m_sidebar->setVisible(isSidebarWanted());

    connect(empty, &NoAccountsPage::addRequested, this, &MainWindow::openNewCalendarDialog);
    connect(m_viewArea, &ViewArea::filterEditRequested, this,
            [this](const FilterRule &rule) { (new FilterFormDialog(m_state, rule, this))->open(); });
    connect(m_viewArea, &ViewArea::filterFromEventRequested, this, &MainWindow::onFilterFromEvent);
}

void MainWindow::buildStatusBar()
{
    auto *pill = new FiltersPill(m_state);
    connect(pill, &FiltersPill::addRequested, this, &MainWindow::openAddFilterDialog);
    connect(pill, &FiltersPill::manageRequested, this, &MainWindow::openManageFiltersDialog);
    statusBar()->addPermanentWidget(pill);
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
    (new KeyboardHelpDialog(m_menus->table()->shortcuts(), this))->open();
}

void MainWindow::openAboutBox()
{
    showAboutBox(this);
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
