#include "calendar/services/EventEdits.h"
#include "support/ScratchState.h"
#include "support/TestData.h"
#include "ui/ActionTable.h"
#include "ui/CalendarListWidget.h"
#include "ui/MainWindow.h"
#include "ui/NoAccountsPage.h"
#include "ui/PlainKeyGuard.h"
#include "ui/Sidebar.h"
#include "ui/ViewArea.h"
#include "ui/accounts/CalDavConnectionDialog.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/actions/EventDetailsPopover.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/WelcomeDialog.h"
#include "ui/surfaces/WeekView.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QDate Tuesday(2025, 11, 18);
const QDate Wednesday(2025, 11, 19);

}

class tst_MainWindow : public QObject {
    Q_OBJECT

private:
    static void checkMnemonics(const QList<QAction *> &actions)
    {
        QList<QKeySequence> seen;
        for (const QAction *action : actions) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
            QVERIFY2(mnemonic.isEmpty() || !seen.contains(mnemonic), qPrintable(action->text()));
            seen.append(mnemonic);
            if (action->menu())
                checkMnemonics(action->menu()->actions());
        }
    }

    void open()
    {
        m_window.reset(); // a restart, if there was one
        m_window = std::make_unique<MainWindow>(m_scratch->state());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    AppState *state() { return m_scratch->state(); }
    QAction *action(const char *id) { return m_window->actionTable()->action(QLatin1StringView(id)); }

    std::unique_ptr<ScratchState> m_scratch;
    std::unique_ptr<MainWindow> m_window;

private slots:
    void init()
    {
        m_window.reset();
        m_scratch = std::make_unique<ScratchState>();
        state()->setCurrentDate(Tuesday);
        state()->setCurrentDate(Wednesday);
    }

    void everyKeyHasOneAction()
    {
        open();
        QList<QKeySequence> keys;
        const QList<QAction *> actions = m_window->findChildren<QAction *>();
        for (const QAction *action : actions) {
            for (const QKeySequence &key : action->shortcuts()) {
                QVERIFY2(!keys.contains(key), qPrintable(key.toString() + u' ' + action->text()));
                keys.append(key);
            }
        }
        // What the help lists is what works.
        qsizetype listed = 0;
        const QList<ShortcutInfo> infos = m_window->actionTable()->shortcuts();
        for (const ShortcutInfo &info : infos) {
            QVERIFY(!info.label.contains(u'&'));
            listed += info.keys.size();
        }
        const int unusedGroupKeys = 9 - int(state()->views()->getAll().size());
        QCOMPARE(listed, keys.size() - unusedGroupKeys);
        for (const QKeySequence &fallback :
             { QKeySequence(Qt::Key_F1), QKeySequence(Qt::CTRL | Qt::Key_Comma), QKeySequence(Qt::CTRL | Qt::Key_Q) })
            QVERIFY2(keys.contains(fallback), qPrintable(fallback.toString()));
        checkMnemonics(m_window->menuBar()->actions());
    }

    void keysNavigate_data()
    {
        columns<QKeySequence, QDate, QString, int>("key", "date", "mode", "horizon");
        const auto row = [](const char *name, QKeyCombination key, QDate date, const char *mode = "week",
                            int horizon = 7) { ::row(name, QKeySequence(key), date, mode, horizon); };
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
        row("Alt+Left", Qt::ALT | Qt::Key_Left, Tuesday);
    }

    void keysNavigate()
    {
        QFETCH(QKeySequence, key);
        open();
        m_window->viewArea()->setFocus();
        QTest::keySequence(m_window.get(), key);
        QTEST(state()->currentDate(), "date");
        QTEST(state()->viewMode(), "mode");
        QTEST(state()->weekHorizon(), "horizon");
    }

    void plainKeys()
    {
        const auto isPlain = [](int key, Qt::KeyboardModifiers modifiers, const QString &text) {
            return PlainKeyGuard::isPlainKey(QKeyEvent(QEvent::ShortcutOverride, key, modifiers, text));
        };
        QVERIFY(isPlain(0x041E, {}, u"о"_qs)); // Cyrillic
        QVERIFY(isPlain(0x039E, Qt::ShiftModifier, u"Ξ"_qs));
        QVERIFY(isPlain(0x1F600, {}, u"😀"_qs)); // outside the BMP
        QVERIFY(isPlain(Qt::Key_1, Qt::KeypadModifier, u"1"_qs));
        QVERIFY(!isPlain(Qt::Key_J, Qt::ControlModifier, u"\n"_qs));
        QVERIFY(!isPlain(0x041E, Qt::AltModifier, u"о"_qs));
        QVERIFY(!isPlain(Qt::Key_Return, {}, u"\r"_qs));
        QVERIFY(!isPlain(Qt::Key_F1, {}, {}));
    }

    void plainKeysBelongToWhoUsesThem()
    {
        m_scratch->addCalendar(u"Journal"_qs);
        open();
        QLineEdit edit(m_window.get());
        edit.show();
        edit.setFocus();
        QTest::keyClicks(&edit, u"jk1"_qs);
        QCOMPARE(edit.text(), u"jk1"_qs);
        m_window->menuBar()->setFocus();
        QTest::keyClick(m_window->menuBar(), Qt::Key_J);
        CalendarListWidget *list = m_window->sidebar()->calendarList();
        list->setFocus();
        QTest::keyClick(list, Qt::Key_J);
        QCOMPARE(list->currentItem()->text(0), u"Journal"_qs);
        QCOMPARE(state()->currentDate(), Wednesday);
        QTest::keyClick(list, Qt::Key_Left, Qt::AltModifier); // no plain key
        QCOMPARE(state()->currentDate(), Tuesday);
    }

    void keysActivateGroups()
    {
        m_scratch->addGroup(u"a"_qs);
        m_scratch->addGroup(u"b"_qs); // after "a" and the built-in group
        open();
        const auto activeAfter = [this](Qt::Key key) {
            QTest::keyClick(m_window.get(), key, Qt::ControlModifier);
            return state()->activeViewId();
        };
        QCOMPARE(activeAfter(Qt::Key_3), u"b"_qs);
        QCOMPARE(activeAfter(Qt::Key_BracketRight), QString(ViewDefaults::AllCalendarsId));
        QCOMPARE(activeAfter(Qt::Key_BracketLeft), u"b"_qs);
        QCOMPARE(activeAfter(Qt::Key_9), u"b"_qs);
    }

    void mouseButtonsWalkTheHistory()
    {
        open();
        QTest::mouseClick(m_window->viewArea(), Qt::BackButton);
        QCOMPARE(state()->currentDate(), Tuesday);
        QTest::mouseClick(m_window->sidebar()->calendarList()->viewport(), Qt::ForwardButton);
        QCOMPARE(state()->currentDate(), Wednesday);
    }

    void emptyDatabaseShowsThePage()
    {
        QVERIFY(state()->calendars()->removeDeep(ScratchState::calendarId()));
        open();
        auto *page = m_window->findChild<NoAccountsPage *>();
        QVERIFY(page->isVisible());
        QVERIFY(!action("importIcs")->isEnabled());
        QVERIFY(action("newCalendar")->isEnabled());
        page->findChild<QPushButton *>()->click();
        QVERIFY(m_window->findChild<CalDavConnectionDialog *>());
        action("newCalendar")->trigger();
        auto *dialog = m_window->findChild<CalendarFormDialog *>();
        dialog->findChild<QLineEdit *>()->setText(u"Home"_qs);
        dialog->accept();
        QVERIFY(m_window->viewArea()->isVisible());
        QVERIFY(action("importIcs")->isEnabled());
    }

    void layoutSurvivesARestart()
    {
        open();
        m_window->resize(780, 640);
        m_window->findChild<QSplitter *>()->setSizes({ 280, 500 });
        const QList<int> sizes = m_window->findChild<QSplitter *>()->sizes();
        QVERIFY(m_window->close());
        open();
        QCOMPARE(m_window->size(), QSize(780, 640));
        QCOMPARE(m_window->findChild<QSplitter *>()->sizes(), sizes);
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        open();
        QVERIFY(!m_window->sidebar()->isVisible());
        QVERIFY(!action("toggleSidebar")->isChecked());
        action("toggleSidebar")->trigger();
        QVERIFY(m_window->sidebar()->isVisible());
    }

    void unreadableLayoutIsSkipped()
    {
        for (const char *key : { "ui/window/geometry", "ui/window/state", "ui/window/splitter" })
            state()->preferences()->set(QLatin1StringView(key), u"no, this is %% not it"_qs);
        open();
        // The first size, or what a screen leaves beside the frame.
        const QSize screen = m_window->screen()->availableSize();
        const int height = std::min(900, screen.height());
        QCOMPARE(m_window->width(), std::min(1440, screen.width()));
        QVERIFY(m_window->height() <= height && m_window->height() > height - 60);
        const QList<int> sizes = m_window->findChild<QSplitter *>()->sizes();
        QVERIFY(sizes.at(0) > 0 && sizes.at(1) > 0);
    }

    void defaultSizeNeedsNoHorizontalScrolling()
    {
        open();
        m_window->resize(1440, 900);
        m_window->findChild<QSplitter *>()->setSizes({ 360, 1080 });
        QTRY_COMPARE(m_window->width(), 1440);
        const QList<WeekView *> views = m_window->viewArea()->findChildren<WeekView *>();
        const auto shown =
            std::find_if(views.begin(), views.end(), [](const WeekView *view) { return view->isVisible(); });
        QVERIFY(shown != views.end());
        QCOMPARE((*shown)->scrollArea()->horizontalScrollBar()->maximum(), 0);
    }

    void droppedFileIsImported()
    {
        QFile file(m_scratch->path(u"a.ics"_qs));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:a\r\nDTSTART:20251119T100000Z\r\nEND:VEVENT\r\n"
                   "END:VCALENDAR\r\n");
        file.close();
        open();
        QMimeData data;
        data.setUrls({ QUrl::fromLocalFile(file.fileName()) });
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        QVERIFY(drop.isAccepted());
        QTRY_VERIFY(m_window->findChild<ImportDialog *>());
        m_window->findChild<ImportDialog *>()->reject();
    }

    void undoIsToldInTheStatusBar()
    {
        const Event event = m_scratch->addEvent(QStringLiteral("Call"), QDateTime(Wednesday, QTime(9, 0)),
                                                QDateTime(Wednesday, QTime(10, 0)));
        open();
        QVERIFY(!action("undo")->isEnabled());
        QVERIFY(EventEdits::move(state(), event.id, event.startTime, 0, 30).ok);
        action("undo")->trigger();
        QCOMPARE(m_window->statusBar()->currentMessage(), u"Undid: Moved \"Call\""_qs);
        QCOMPARE(state()->events()->getById(event.id)->startTime, event.startTime);
    }

    void focusedOccurrenceIsShownOnItsDay()
    {
        Event daily = m_scratch->addEvent(QStringLiteral("Call"), QDateTime(Tuesday, QTime(9, 0)),
                                          QDateTime(Tuesday, QTime(10, 0)));
        daily.recurrenceRule = QStringLiteral("FREQ=DAILY");
        QVERIFY(state()->events()->update(daily));
        open();
        m_window->focusEvent(daily.id, QDate(2026, 1, 31));
        QCOMPARE(state()->currentDate(), QDate(2026, 1, 31));
        QCOMPARE(state()->selectedEventId(), daily.id);
        QCOMPARE(state()->selectedOccurrence(), QDateTime(QDate(2026, 1, 31), QTime(9, 0)));
        const auto *card = m_window->findChild<EventDetailsPopover *>();
        QVERIFY(card && card->isVisible());
        m_window->focusEvent(QStringLiteral("gone"), Tuesday);
        QCOMPARE(state()->currentDate(), Tuesday);
    }

    void quickAddCommandAnswersInTheStatusBar()
    {
        open();
        const auto answerTo = [this](const QString &text) {
            m_window->quickAddFromCommand(text);
            return m_window->statusBar()->currentMessage();
        };
        const Calendar calendar = *state()->calendars()->getById(ScratchState::calendarId());
        QVERIFY(state()->calendars()->remove(calendar.id));
        QCOMPARE(answerTo(u"Lunch"_qs), u"Quick-add ignored: no calendars configured."_qs);
        QVERIFY(state()->calendars()->insert(calendar));
        QCOMPARE(answerTo(u"Lunch Nov 20 1pm"_qs), u"Added: Lunch Nov 20 1pm"_qs);
        m_scratch->makeReadOnly(calendar.id);
        QCOMPARE(answerTo(u"Lunch"_qs), u"Quick-add couldn't parse: \"Lunch\""_qs);
    }

    void greetsOnce()
    {
        m_window = std::make_unique<MainWindow>(state());
        m_window->welcomeOnFirstLaunch();
        QVERIFY(!m_window->findChild<WelcomeDialog *>()); // nobody would see it
        m_window->show();
        m_window->welcomeOnFirstLaunch();
        auto *welcome = m_window->findChild<WelcomeDialog *>();
        QVERIFY(welcome && welcome->isVisible());
        const Prompt::ScopedAnswers answers;
        welcome->findChild<QPushButton *>()->click(); // to import a file
        QVERIFY(!welcome->isVisible());
        QCOMPARE(answers.asked.size(), 1);
        QCOMPARE(answers.asked.constFirst().kind, u"openFiles"_qs);
        m_window->welcomeOnFirstLaunch();
        QVERIFY(!QApplication::activeModalWidget());
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
