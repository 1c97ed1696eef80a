#include "app/state/DefaultCalendar.h"
#include "models/ViewDef.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/CalendarListWidget.h"
#include "ui/CalendarMenu.h"
#include "ui/ElidedLabel.h"
#include "ui/Sidebar.h"
#include "ui/dialogs/FormDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QTest>

class tst_CalendarListWidget : public QObject {
    Q_OBJECT

private slots:
    void checkBoxDecidesOverVisibility();
    void renames_data();
    void renames();
    void typedNamesHaveTheLimitOfForms();
    void saysWhatMarksOnlyShow();
    void menuMakesDefault();
    void menuShowsOnlyThis();
    void deletesLocalCalendarsAfterAsking();
    void deletesNoCalendarOfAServer();
    void saysThatAGroupDecides();

private:
    static Calendar stored(ScratchState &state, const QString &id) { return state->calendars()->getById(id).value(); }
    static QAction *menuAction(CalendarListWidget &list, const QString &calendarId, const QString &text);
};

QAction *tst_CalendarListWidget::menuAction(CalendarListWidget &list, const QString &calendarId, const QString &text)
{
    list.setCurrentItem(list.itemFor(calendarId));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list.viewport(), &event);
    const QList<CalendarMenu *> menus = list.findChildren<CalendarMenu *>();
    if (menus.isEmpty())
        return nullptr;
    const QList<QAction *> actions = menus.last()->actions();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    menus.last()->close();
    return nullptr;
}

void tst_CalendarListWidget::checkBoxDecidesOverVisibility()
{
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    CalendarListWidget list(state.state());
    list.show();
    list.itemFor(work)->setCheckState(0, Qt::Unchecked);
    QVERIFY(!stored(state, work).isVisible);
    QVERIFY(stored(state, ScratchState::calendarId()).isVisible);

    list.setCurrentItem(list.itemFor(work));
    QTest::keyClick(&list, Qt::Key_Space);
    QVERIFY(stored(state, work).isVisible);

    // A change from elsewhere shows, and the current row stays current.
    QVERIFY(state->calendars()->setVisible(work, false));
    QTRY_COMPARE(list.itemFor(work)->checkState(0), Qt::Unchecked);
    QCOMPARE(list.currentItem(), list.itemFor(work));
}

void tst_CalendarListWidget::renames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a name") << "Office"
                            << "Office";
    QTest::newRow("blanks around") << "  Office "
                                   << "Office";
    QTest::newRow("nothing keeps the old one") << "   "
                                               << "Work";
}

void tst_CalendarListWidget::renames()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    CalendarListWidget list(state.state());
    list.itemFor(work)->setText(0, typed);
    QCOMPARE(stored(state, work).name, expected);
    QTRY_COMPARE(list.itemFor(work)->text(0), expected);
}

void tst_CalendarListWidget::typedNamesHaveTheLimitOfForms()
{
    ScratchState state;
    CalendarListWidget list(state.state());
    list.show();
    list.renameCalendar(ScratchState::calendarId());
    const auto *editor = list.findChild<QLineEdit *>();
    QVERIFY(editor);
    QCOMPARE(editor->maxLength(), FormDialog::MaxNameLength);
}

void tst_CalendarListWidget::saysWhatMarksOnlyShow()
{
    ScratchState state;
    const QString feed = state.addCalendar(QStringLiteral("Holidays"));
    Calendar calendar = stored(state, feed);
    calendar.isReadOnly = true;
    QVERIFY(state->calendars()->update(calendar));
    const CalendarListWidget list(state.state());
    QCOMPARE(list.itemFor(feed)->data(0, Qt::AccessibleTextRole).toString(), QStringLiteral("Holidays, read-only"));
    QCOMPARE(list.itemFor(ScratchState::calendarId())->data(0, Qt::AccessibleTextRole).toString(),
             QStringLiteral("Personal, default calendar"));
}

void tst_CalendarListWidget::menuMakesDefault()
{
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    CalendarListWidget list(state.state());
    QVERIFY(!menuAction(list, ScratchState::calendarId(), QStringLiteral("Make &Default")));
    QAction *action = menuAction(list, work, QStringLiteral("Make &Default"));
    QVERIFY(action);
    action->trigger();
    QVERIFY(stored(state, work).isDefault);
    QVERIFY(!stored(state, ScratchState::calendarId()).isDefault);
    QCOMPARE(DefaultCalendar::preferredCalendarId(state->preferences(), false), work);
    QTRY_VERIFY(list.itemFor(work)->data(0, CalendarListWidget::DefaultRole).toBool());
}

void tst_CalendarListWidget::menuShowsOnlyThis()
{
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    const QString club = state.addCalendar(QStringLiteral("Club"));
    QVERIFY(state->calendars()->setVisible(club, false));
    CalendarListWidget list(state.state());
    QAction *only = menuAction(list, club, QStringLiteral("Show &Only This"));
    QVERIFY(only);
    only->trigger();
    QVERIFY(stored(state, club).isVisible);
    QVERIFY(!stored(state, work).isVisible);
    QVERIFY(!stored(state, ScratchState::calendarId()).isVisible);
}

void tst_CalendarListWidget::deletesLocalCalendarsAfterAsking()
{
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    CalendarListWidget list(state.state());
    Prompt::ScopedAnswers answers;
    answers.sayYes = false;
    menuAction(list, work, QStringLiteral("De&lete Calendar…"))->trigger();
    QCOMPARE(answers.asked.size(), 1);
    QCOMPARE(answers.asked.first().text, QStringLiteral("Delete \"Work\" and all its events? This cannot be undone."));
    QCoreApplication::processEvents();
    QVERIFY(state->calendars()->getById(work));

    answers.sayYes = true;
    menuAction(list, work, QStringLiteral("De&lete Calendar…"))->trigger();
    QTRY_VERIFY(!state->calendars()->getById(work));
    QTRY_VERIFY(!list.itemFor(work));
}

void tst_CalendarListWidget::deletesNoCalendarOfAServer()
{
    ScratchState state;
    auto account = state->accounts()->getAll().constFirst();
    account.type = AccountType::CalDAV;
    QVERIFY(state->accounts()->update(account));
    CalendarListWidget list(state.state());
    QVERIFY(menuAction(list, ScratchState::calendarId(), QStringLiteral("&Rename")));
    QVERIFY(!menuAction(list, ScratchState::calendarId(), QStringLiteral("De&lete Calendar…")));
}

void tst_CalendarListWidget::saysThatAGroupDecides()
{
    ScratchState state;
    const QString work = state.addCalendar(QStringLiteral("Work"));
    ViewDef group;
    group.id = QStringLiteral("g");
    group.name = QStringLiteral("Office & more");
    group.calendarIds = QStringLiteral("[\"%1\",\"gone\"]").arg(work);
    QVERIFY(state->views()->insert(group));
    Sidebar sidebar(state.state());
    sidebar.show();
    auto *hint = sidebar.findChild<ElidedLabel *>(QStringLiteral("groupHint"));
    QVERIFY(!hint->isVisible());

    state->setActiveViewId(group.id);
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), QStringLiteral("Showing group “Office & more”"));
    CalendarListWidget *list = sidebar.calendarList();
    const auto isOutside = [list](const QString &id) {
        return list->itemFor(id)->data(0, CalendarListWidget::OutsideGroupRole).toBool();
    };
    QTRY_VERIFY(isOutside(ScratchState::calendarId()));
    QVERIFY(!isOutside(work));

    // With none of its calendars left the group decides nothing.
    QVERIFY(state->calendars()->removeDeep(work));
    QVERIFY(!hint->isVisible());
}

QTEST_MAIN(tst_CalendarListWidget)
#include "tst_CalendarListWidget.moc"
