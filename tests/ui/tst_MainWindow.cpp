#include "models/ViewDef.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/ActionTable.h"
#include "ui/CalendarListWidget.h"
#include "ui/MainWindow.h"
#include "ui/NoAccountsPage.h"
#include "ui/PlainKeyGuard.h"
#include "ui/Sidebar.h"
#include "ui/ViewArea.h"
#include "ui/dialogs/CalendarFormDialog.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/WelcomeDialog.h"
#include "ui/surfaces/WeekView.h"

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>
#include <QUrl>

namespace {

const QDate Wednesday(2025, 11, 19);

}

class tst_MainWindow : public QObject {
    Q_OBJECT

private slots:
    void everyKeyHasOneAction();
    void menusHaveUniqueMnemonics();
    void fallbackKeysAreThere();
    void keysNavigate_data();
    void keysNavigate();
    void plainKeys_data();
    void plainKeys();
    void plainKeysBelongToWhoUsesThem();
    void keysActivateGroups();
    void mouseButtonsWalkTheHistory();
    void emptyDatabaseShowsThePage();
    void layoutSurvivesARestart();
    void unreadableLayoutIsSkipped();
    void defaultSizeNeedsNoHorizontalScrolling();
    void sidebarToggleIsKept();
    void densityFollowsTheMode();
    void droppedFileIsImported();
    void greetsOnce();
    void quittingIsKnown();

private:
    static void checkMnemonics(const QList<QAction *> &actions);
};

void tst_MainWindow::everyKeyHasOneAction()
{
    ScratchState state;
    const MainWindow window(state.state());
    QList<QKeySequence> keys;
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        for (const QKeySequence &key : action->shortcuts()) {
            QVERIFY2(!keys.contains(key), qPrintable(key.toString() + u' ' + action->text()));
            keys.append(key);
        }
    }
    QVERIFY(keys.size() > 30);
    // What the help lists is what works.
    qsizetype listed = 0;
    const QList<ShortcutInfo> infos = window.actionTable()->shortcuts();
    for (const ShortcutInfo &info : infos) {
        QVERIFY(!info.label.contains(u'&'));
        listed += info.keys.size();
    }
    const int unusedGroupKeys = 9 - int(state->views()->getAll().size());
    QCOMPARE(listed, keys.size() - unusedGroupKeys);
}

void tst_MainWindow::checkMnemonics(const QList<QAction *> &actions)
{
    QList<QKeySequence> seen;
    for (const QAction *action : actions) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        if (!mnemonic.isEmpty())
            QVERIFY2(!seen.contains(mnemonic), qPrintable(action->text()));
        seen.append(mnemonic);
        if (action->menu())
            checkMnemonics(action->menu()->actions());
    }
}

void tst_MainWindow::menusHaveUniqueMnemonics()
{
    ScratchState state;
    const MainWindow window(state.state());
    const QList<QAction *> menus = window.menuBar()->actions();
    QCOMPARE(menus.size(), 5);
    checkMnemonics(menus);
}

void tst_MainWindow::fallbackKeysAreThere()
{
    ScratchState state;
    const MainWindow window(state.state());
    const auto keys = [&window](const char *id) {
        return window.actionTable()->action(QLatin1StringView(id))->shortcuts();
    };
    QVERIFY(keys("keyboardHelp").contains(QKeySequence(Qt::Key_F1)));
    QVERIFY(keys("preferences").contains(QKeySequence(Qt::CTRL | Qt::Key_Comma)));
    QVERIFY(keys("quit").contains(QKeySequence(Qt::CTRL | Qt::Key_Q)));
}

void tst_MainWindow::keysNavigate_data()
{
    QTest::addColumn<QKeySequence>("key");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("horizon");
    const auto row = [](const char *name, QKeyCombination key, QDate date, const char *mode = "week", int horizon = 7) {
        QTest::newRow(name) << QKeySequence(key) << date << QString::fromLatin1(mode) << horizon;
    };
    row("T", Qt::Key_T, QDate::currentDate());
    row("J", Qt::Key_J, QDate(2025, 11, 26));
    row("K", Qt::Key_K, QDate(2025, 11, 12));
    row("H", Qt::Key_H, QDate(2025, 11, 12));
    row("L", Qt::Key_L, QDate(2025, 11, 26));
    row("Shift+J", Qt::SHIFT | Qt::Key_J, QDate(2025, 12, 19));
    row("Shift+K", Qt::SHIFT | Qt::Key_K, QDate(2025, 10, 19));
    row("1", Qt::Key_1, Wednesday, "day");
    row("2", Qt::Key_2, Wednesday, "days");
    row("5, which has no surface yet", Qt::Key_5, Wednesday);
    row("Ctrl+Shift+5", Qt::CTRL | Qt::SHIFT | Qt::Key_5, Wednesday, "days", 14);
    row("Alt+Left", Qt::ALT | Qt::Key_Left, QDate(2025, 11, 18));
}

void tst_MainWindow::keysNavigate()
{
    QFETCH(QKeySequence, key);
    ScratchState state;
    state->setCurrentDate(QDate(2025, 11, 18));
    state->setCurrentDate(Wednesday);
    MainWindow window(state.state());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.viewArea()->setFocus();
    QTest::keySequence(&window, key);
    QTEST(state->currentDate(), "date");
    QTEST(state->viewMode(), "mode");
    QTEST(state->weekHorizon(), "horizon");
}

void tst_MainWindow::plainKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPlain");
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, const QString &text, bool isPlain) {
        QTest::newRow(name) << key << modifiers << text << isPlain;
    };
    row("Latin", Qt::Key_J, {}, QStringLiteral("j"), true);
    row("Cyrillic", 0x041E, {}, QStringLiteral("о"), true);
    row("Greek capital", 0x039E, Qt::ShiftModifier, QStringLiteral("Ξ"), true);
    row("outside the BMP", 0x1F600, {}, QStringLiteral("😀"), true);
    row("digit of the keypad", Qt::Key_1, Qt::KeypadModifier, QStringLiteral("1"), true);
    row("space", Qt::Key_Space, {}, QStringLiteral(" "), true);
    row("Ctrl+letter", Qt::Key_J, Qt::ControlModifier, QStringLiteral("\n"), false);
    row("Alt+Cyrillic", 0x041E, Qt::AltModifier, QStringLiteral("о"), false);
    row("Return", Qt::Key_Return, {}, QStringLiteral("\r"), false);
    row("Delete", Qt::Key_Delete, {}, QStringLiteral("\x7f"), false);
    row("F1", Qt::Key_F1, {}, {}, false);
}

void tst_MainWindow::plainKeys()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QTEST(PlainKeyGuard::isPlainKey(QKeyEvent(QEvent::ShortcutOverride, key, modifiers, text)), "isPlain");
}

void tst_MainWindow::plainKeysBelongToWhoUsesThem()
{
    ScratchState state;
    state->setCurrentDate(Wednesday);
    state.addCalendar(QStringLiteral("Journal"));
    MainWindow window(state.state());
    auto *edit = new QLineEdit(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("jk1"));
    QCOMPARE(edit->text(), QStringLiteral("jk1"));
    QCOMPARE(state->currentDate(), Wednesday);

    CalendarListWidget *list = window.sidebar()->calendarList();
    window.menuBar()->setFocus();
    QTest::keyClick(window.menuBar(), Qt::Key_J);
    QCOMPARE(state->currentDate(), Wednesday);

    list->setFocus();
    QTest::keyClick(list, Qt::Key_J);
    QCOMPARE(state->currentDate(), Wednesday);
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("Journal"));
    QTest::keyClick(list, Qt::Key_Left, Qt::AltModifier); // no plain key
    QVERIFY(state->currentDate() != Wednesday);
}

void tst_MainWindow::keysActivateGroups()
{
    ScratchState state;
    for (const char *name : { "a", "b" }) {
        ViewDef group;
        group.id = QLatin1StringView(name);
        group.name = group.id;
        group.sortOrder = 1;
        QVERIFY(state->views()->insert(group));
    }
    QStringList ids;
    const QList<ViewDef> groups = state->views()->getAll();
    for (const ViewDef &group : groups)
        ids.append(group.id);
    QCOMPARE(ids.size(), 3);
    MainWindow window(state.state());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(state->activeViewId(), ids.at(2));
    QTest::keyClick(&window, Qt::Key_BracketRight, Qt::ControlModifier);
    QCOMPARE(state->activeViewId(), ids.at(0));
    QTest::keyClick(&window, Qt::Key_BracketLeft, Qt::ControlModifier);
    QCOMPARE(state->activeViewId(), ids.at(2));
    QTest::keyClick(&window, Qt::Key_9, Qt::ControlModifier);
    QCOMPARE(state->activeViewId(), ids.at(2));
}

void tst_MainWindow::mouseButtonsWalkTheHistory()
{
    ScratchState state;
    state->setCurrentDate(QDate(2025, 11, 18));
    state->setCurrentDate(Wednesday);
    MainWindow window(state.state());
    window.show();
    QTest::mouseClick(window.viewArea(), Qt::BackButton);
    QCOMPARE(state->currentDate(), QDate(2025, 11, 18));
    QTest::mouseClick(window.sidebar()->calendarList()->viewport(), Qt::ForwardButton);
    QCOMPARE(state->currentDate(), Wednesday);
}

void tst_MainWindow::emptyDatabaseShowsThePage()
{
    ScratchState state;
    QVERIFY(state->calendars()->removeDeep(ScratchState::calendarId()));
    MainWindow window(state.state());
    window.show();
    auto *page = window.findChild<NoAccountsPage *>();
    QVERIFY(page->isVisible());
    QVERIFY(!window.actionTable()->action(QStringLiteral("importIcs"))->isEnabled());
    QVERIFY(window.actionTable()->action(QStringLiteral("newCalendar"))->isEnabled());

    page->findChild<QPushButton *>()->click();
    auto *dialog = window.findChild<CalendarFormDialog *>();
    QVERIFY(dialog);
    dialog->findChild<QLineEdit *>()->setText(QStringLiteral("Home"));
    dialog->accept();
    QVERIFY(window.viewArea()->isVisible());
    QVERIFY(window.actionTable()->action(QStringLiteral("importIcs"))->isEnabled());
}

void tst_MainWindow::layoutSurvivesARestart()
{
    ScratchState state;
    QList<int> sizes;
    {
        MainWindow window(state.state());
        window.show();
        window.resize(780, 640);
        auto *panes = window.findChild<QSplitter *>();
        panes->setSizes({ 280, 500 });
        sizes = panes->sizes();
        QVERIFY(window.close());
    }
    MainWindow window(state.state());
    window.show();
    QCOMPARE(window.size(), QSize(780, 640));
    QCOMPARE(window.findChild<QSplitter *>()->sizes(), sizes);
}

void tst_MainWindow::unreadableLayoutIsSkipped()
{
    ScratchState state;
    for (const char *key : { "ui/window/geometry", "ui/window/state", "ui/window/splitter" })
        state->preferences()->set(QLatin1StringView(key), QStringLiteral("no, this is %% not it"));
    MainWindow window(state.state());
    // The first size, or what a screen leaves beside the frame.
    const QSize screen = window.screen()->availableSize();
    QCOMPARE(window.width(), std::min(1440, screen.width()));
    QVERIFY(window.height() <= std::min(900, screen.height()) && window.height() > std::min(900, screen.height()) - 60);
    window.show();
    const QList<int> sizes = window.findChild<QSplitter *>()->sizes();
    QVERIFY(sizes.at(0) > 0 && sizes.at(1) > 0);
}

void tst_MainWindow::defaultSizeNeedsNoHorizontalScrolling()
{
    ScratchState state;
    MainWindow window(state.state());
    window.show();
    window.resize(1440, 900);
    auto *panes = window.findChild<QSplitter *>();
    panes->setSizes({ 360, 1080 });
    QTRY_COMPARE(window.width(), 1440);
    QVERIFY(window.sidebar()->isVisible());
    const QScrollArea *scroll = nullptr;
    const QList<WeekView *> views = window.viewArea()->findChildren<WeekView *>();
    for (const WeekView *view : views) {
        if (view->isVisible())
            scroll = view->scrollArea();
    }
    QVERIFY(scroll);
    QVERIFY(!scroll->horizontalScrollBar()->isVisible());
    QCOMPARE(scroll->horizontalScrollBar()->maximum(), 0);
}

void tst_MainWindow::sidebarToggleIsKept()
{
    ScratchState state;
    {
        MainWindow window(state.state());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!window.sidebar()->isVisible());
    }
    MainWindow window(state.state());
    window.show();
    QVERIFY(!window.sidebar()->isVisible());
    QAction *toggle = window.actionTable()->action(QStringLiteral("toggleSidebar"));
    QVERIFY(!toggle->isChecked());
    toggle->trigger();
    QVERIFY(window.sidebar()->isVisible());
}

void tst_MainWindow::densityFollowsTheMode()
{
    ScratchState state;
    const MainWindow window(state.state());
    QAction *compact = window.actionTable()->action(QStringLiteral("compactDensity"));
    compact->trigger();
    QVERIFY(state->isCompact(QStringLiteral("week")));
    state->setViewMode(QStringLiteral("day"));
    QVERIFY(!compact->isChecked());
    state->setViewMode(QStringLiteral("week"));
    QVERIFY(compact->isChecked());
}

void tst_MainWindow::droppedFileIsImported()
{
    ScratchState state;
    QFile file(state.path(QStringLiteral("a.ics")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:a\r\nDTSTART:20251119T100000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    file.close();
    MainWindow window(state.state());
    window.show();
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(file.fileName()) });
    QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
    QVERIFY(drop.isAccepted());
    QTRY_VERIFY(window.findChild<ImportDialog *>());
    window.findChild<ImportDialog *>()->reject();
}

void tst_MainWindow::greetsOnce()
{
    ScratchState state;
    MainWindow window(state.state());
    window.welcomeOnFirstLaunch();
    QVERIFY(!window.findChild<WelcomeDialog *>()); // nobody would see it
    window.show();
    window.welcomeOnFirstLaunch();
    auto *welcome = window.findChild<WelcomeDialog *>();
    QVERIFY(welcome && welcome->isVisible());
    const Prompt::ScopedAnswers answers;
    emit welcome->importRequested();
    QCOMPARE(answers.asked.size(), 1);
    QCOMPARE(answers.asked.constFirst().kind, QStringLiteral("openFiles"));
    welcome->reject();
    window.welcomeOnFirstLaunch();
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MainWindow::quittingIsKnown()
{
    ScratchState state;
    MainWindow window(state.state());
    window.show();
    QVERIFY(!window.isQuitting());
    window.quitApplication();
    QVERIFY(window.isQuitting());
    QVERIFY(!window.isVisible());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
