#include "models/FilterRule.h"
#include "models/ViewDef.h"
#include "storage/CalendarRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/GroupButton.h"
#include "ui/HorizonChip.h"
#include "ui/ModeBar.h"
#include "ui/ViewArea.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/surfaces/WeekView.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

namespace {

const QDate Wednesday(2025, 11, 19);

struct Area {
    Area()
    {
        state->setCurrentDate(Wednesday);
        state->preferences()->setInt(QStringLiteral("ui/weekStartDay"), 1);
        view = std::make_unique<ViewArea>(state.state());
    }

    ScratchState state;
    std::unique_ptr<ViewArea> view;
};

void addGroup(ScratchState &state, const QString &id, const QString &calendarIds = QStringLiteral("[]"))
{
    ViewDef group;
    group.id = id;
    group.name = id;
    group.calendarIds = calendarIds;
    if (!state->views()->insert(group))
        qFatal("cannot store a scratch group");
}

QAction *entry(const QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

}

class tst_ViewArea : public QObject {
    Q_OBJECT

private slots:
    void modeChoosesSurfaceAndLabel_data();
    void modeChoosesSurfaceAndLabel();
    void staleModeIsRewritten();
    void buttonsStep();
    void chipStaysInTheModeTheKeyDoesNot();
    void clickedHeaderOpensTheDay();
    void countsHiddenEvents();
    void wheelPages();
    void wheelPagesNotUnderAMenu();
    void groupMenuActivates();
    void groupMenuDeletes();
    void longGroupNameIsElided();
    void createdGroupBecomesActive();
    void narrowWindowElidesTheDate();
};

void tst_ViewArea::modeChoosesSurfaceAndLabel_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("label");
    QTest::newRow("day") << "day" << 0 << "Wednesday, November 19, 2025";
    QTest::newRow("week") << "week" << 1 << "Nov 17 – 23, 2025";
    QTest::newRow("days") << "days" << 2 << "Nov 19 – 25, 2025";
}

void tst_ViewArea::modeChoosesSurfaceAndLabel()
{
    QFETCH(QString, mode);
    Area area;
    area.view->setMode(mode);
    QTEST(area.view->findChild<QStackedWidget *>()->currentIndex(), "index");
    QTEST(area.view->dateText(), "label");
    QCOMPARE(area.state->viewMode(), mode);
    auto *bar = area.view->findChild<ModeBar *>();
    QVERIFY(bar->button(mode)->isChecked());
    QCOMPARE(bar->chip()->isHidden(), mode != QStringLiteral("days"));
}

void tst_ViewArea::staleModeIsRewritten()
{
    ScratchState state;
    state->preferences()->set(QStringLiteral("ui/viewMode"), QStringLiteral("year"));
    state->restoreViewState();
    const ViewArea area(state.state());
    QCOMPARE(area.mode(), QStringLiteral("week"));
    QCOMPARE(state->viewMode(), QStringLiteral("week"));
    QSignalSpy modeChanges(state.state(), &AppState::viewModeChanged);
    state->navigateBack(); // nobody was there
    QCOMPARE(modeChanges.size(), 0);
}

void tst_ViewArea::buttonsStep()
{
    Area area;
    area.state->setWeekHorizon(14);
    area.view->setMode(QStringLiteral("days"));
    area.view->show();
    QToolButton *forward = nullptr;
    const QList<QToolButton *> buttons = area.view->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->text() == QStringLiteral("▶"))
            forward = button;
    }
    QVERIFY(forward);
    QTest::mouseClick(forward, Qt::LeftButton);
    QCOMPARE(area.state->currentDate(), Wednesday.addDays(14));
    QTest::mouseClick(area.view->findChild<QToolButton *>(QStringLiteral("today")), Qt::LeftButton);
    QCOMPARE(area.state->currentDate(), QDate::currentDate());
}

void tst_ViewArea::chipStaysInTheModeTheKeyDoesNot()
{
    Area area;
    auto *chip = area.view->findChild<HorizonChip *>();
    QAction *ten = entry(chip->menu(), HorizonChip::label(10));
    QVERIFY(ten);
    ten->trigger();
    QCOMPARE(area.state->weekHorizon(), 10);
    QCOMPARE(area.view->mode(), QStringLiteral("week"));
    QCOMPARE(chip->text(), QStringLiteral("10d"));
    QVERIFY(ten->isChecked());

    area.view->showHorizon(3);
    QCOMPARE(area.state->weekHorizon(), 3);
    QCOMPARE(area.view->mode(), QStringLiteral("days"));
    QVERIFY(!ten->isChecked());

    area.state->setWeekHorizon(4); // none of the choices
    const QList<QAction *> choices = chip->menu()->actions();
    for (const QAction *choice : choices)
        QVERIFY(!choice->isChecked());
}

void tst_ViewArea::clickedHeaderOpensTheDay()
{
    Area area;
    emit area.view->findChild<WeekView *>()->dayActivated(Wednesday.addDays(2));
    QCOMPARE(area.view->mode(), QStringLiteral("day"));
    QCOMPARE(area.state->currentDate(), Wednesday.addDays(2));
    area.state->navigateBack(); // both in one step
    QCOMPARE(area.view->mode(), QStringLiteral("week"));
    QCOMPARE(area.state->currentDate(), Wednesday);
}

void tst_ViewArea::countsHiddenEvents()
{
    Area area;
    for (const int days : { -2, 0, 4, 5 }) // Monday, Wednesday, Sunday, and the Monday after
        area.state.addAllDayEvent(QStringLiteral("Leave"), Wednesday.addDays(days));
    FilterRule rule;
    rule.id = QStringLiteral("rule");
    rule.name = rule.id;
    rule.type = FilterType::Pattern;
    rule.conditions = QStringLiteral("{\"runtimeType\":\"pattern\",\"titleContains\":[\"leave\"]}");
    QVERIFY(area.state->filterRules()->insert(rule));
    QSignalSpy counted(area.state.state(), &AppState::filterHiddenCountChanged);
    QCoreApplication::processEvents();
    QCOMPARE(counted.size(), 0); // nobody sees it yet
    area.view->show();
    QTRY_COMPARE(area.state->filterHiddenCount(), 3);
    area.view->setMode(QStringLiteral("day"));
    area.view->stepDate(1);
    area.view->stepDate(-1);
    QTRY_COMPARE(area.state->filterHiddenCount(), 1);
    QVERIFY(area.state->calendars()->setVisible(ScratchState::calendarId(), false));
    QTRY_COMPARE(area.state->filterHiddenCount(), 0);
}

void tst_ViewArea::wheelPages()
{
    Area area;
    area.view->show();
    QWidget dialog; // the wheel pages wherever it turns
    const auto turn = [](QWidget *over, QPoint angle) {
        QWheelEvent event(QPointF(5, 5), over->mapToGlobal(QPointF(5, 5)), {}, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(over, &event);
    };
    turn(&dialog, { 120, 0 });
    QCOMPARE(area.state->currentDate(), Wednesday);
    turn(area.view->findChild<WeekView *>(), { 120, 0 });
    QCOMPARE(area.state->currentDate(), Wednesday.addDays(-7));
}

void tst_ViewArea::wheelPagesNotUnderAMenu()
{
    Area area;
    area.view->show();
    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    menu.popup({ 10, 10 });
    QTRY_VERIFY(menu.isVisible());
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, { 480, 0 }, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(area.view.get(), &event);
    QCOMPARE(area.state->currentDate(), Wednesday);
    menu.close();
    QCoreApplication::sendEvent(area.view.get(), &event);
    QCOMPARE(area.state->currentDate(), Wednesday.addDays(-7));
}

void tst_ViewArea::groupMenuActivates()
{
    Area area;
    addGroup(area.state, QStringLiteral("R&D"));
    auto *button = area.view->findChild<GroupButton *>();
    QAction *group = entry(button->menu(), QStringLiteral("R&&D"));
    QVERIFY(group);
    QVERIFY(!entry(button->menu(), QStringLiteral("Delete Current Group"))); // not the built-in one
    group->trigger();
    QCOMPARE(area.state->activeViewId(), QStringLiteral("R&D"));
    QCOMPARE(button->text().trimmed(), QStringLiteral("R&&D"));

    area.state->setActiveViewId(QStringLiteral("gone"));
    QCOMPARE(button->text().trimmed(), QStringLiteral("All Calendars"));
    QVERIFY(!entry(button->menu(), QStringLiteral("Edit Current Group…")));
}

void tst_ViewArea::groupMenuDeletes()
{
    Area area;
    addGroup(area.state, QStringLiteral("Office"));
    area.state->setActiveViewId(QStringLiteral("Office"));
    Prompt::ScopedAnswers answers;
    auto *button = area.view->findChild<GroupButton *>();
    entry(button->menu(), QStringLiteral("Delete Current Group"))->trigger();
    const Prompt::ScopedAnswers::Asked expected{ QStringLiteral("question"), QStringLiteral("Delete group?"),
                                                 QStringLiteral("Delete \"Office\"? You can recreate it later.") };
    QCOMPARE(answers.asked, QList<Prompt::ScopedAnswers::Asked>{ expected });
    QTRY_COMPARE(area.state->activeViewId(), QString(ViewDefaults::AllCalendarsId));
    QVERIFY(!entry(button->menu(), QStringLiteral("Office")));
}

void tst_ViewArea::longGroupNameIsElided()
{
    Area area;
    const QString name = QStringLiteral("<b>Sales & Support</b> ").repeated(10).trimmed();
    addGroup(area.state, name);
    area.state->setActiveViewId(name);
    auto *button = area.view->findChild<GroupButton *>();
    QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) < 240);
    QVERIFY(button->text().trimmed().startsWith(QStringLiteral("<b>Sales && S")));
    QCOMPARE(button->toolTip(), QStringLiteral("<qt>%1</qt>").arg(name.toHtmlEscaped()));
    area.state->setActiveViewId(ViewDefaults::AllCalendarsId);
    QCOMPARE(button->toolTip(), QStringLiteral("Calendar group"));
}

void tst_ViewArea::createdGroupBecomesActive()
{
    Area area;
    area.view->show();
    auto *button = area.view->findChild<GroupButton *>();
    entry(button->menu(), QStringLiteral("Add Calendar Group…"))->trigger();
    auto *dialog = area.view->findChild<ViewFormDialog *>();
    QVERIFY(dialog);
    dialog->findChild<QLineEdit *>()->setText(QStringLiteral("Family"));
    dialog->accept();
    QTRY_COMPARE(button->text().trimmed(), QStringLiteral("Family"));
    QCOMPARE(area.state->activeViewId(), dialog->resultViewId());
}

void tst_ViewArea::narrowWindowElidesTheDate()
{
    Area area;
    area.view->setMode(QStringLiteral("day"));
    const int narrow = area.view->minimumSizeHint().width();
    area.view->setMode(QStringLiteral("week")); // a much shorter text
    QCOMPARE(area.view->minimumSizeHint().width(), narrow);
}

QTEST_MAIN(tst_ViewArea)
#include "tst_ViewArea.moc"
