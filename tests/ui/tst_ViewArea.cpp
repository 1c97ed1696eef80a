#include "support/ScratchState.h"
#include "ui/GroupButton.h"
#include "ui/HorizonChip.h"
#include "ui/ModeBar.h"
#include "ui/ViewArea.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/surfaces/WeekView.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QDate Wednesday(2025, 11, 19);

}

class tst_ViewArea : public QObject {
    Q_OBJECT

private:
    AppState *state() { return m_scratch->state(); }
    GroupButton *groupButton() { return m_area->findChild<GroupButton *>(); }

    static QAction *entry(const QToolButton *button, const QString &text)
    {
        const QList<QAction *> actions = button->menu()->actions();
        const auto found = std::find_if(actions.begin(), actions.end(),
                                        [&text](const QAction *action) { return action->text() == text; });
        return found == actions.end() ? nullptr : *found;
    }

    std::unique_ptr<ScratchState> m_scratch;
    std::unique_ptr<ViewArea> m_area;

private slots:
    void init()
    {
        m_area.reset();
        m_scratch = std::make_unique<ScratchState>();
        state()->setCurrentDate(Wednesday);
        state()->preferences()->setInt(u"ui/weekStartDay"_qs, 1);
        m_area = std::make_unique<ViewArea>(state());
    }

    void modeChoosesSurfaceAndLabel()
    {
        const QStringList labels{ u"Wednesday, November 19, 2025"_qs, u"Nov 17 – 23, 2025"_qs,
                                  u"Nov 19 – 25, 2025"_qs };
        const QStringList modes{ u"day"_qs, u"week"_qs, u"days"_qs };
        auto *bar = m_area->findChild<ModeBar *>();
        for (int i = 0; i < modes.size(); ++i) {
            m_area->setMode(modes.at(i));
            QCOMPARE(m_area->findChild<QStackedWidget *>()->currentIndex(), i);
            QCOMPARE(m_area->dateText(), labels.at(i));
            QCOMPARE(state()->viewMode(), modes.at(i));
            QVERIFY(bar->button(modes.at(i))->isChecked());
            QCOMPARE(bar->chip()->isHidden(), modes.at(i) != u"days");
        }
    }

    void staleModeIsRewritten()
    {
        state()->preferences()->set(u"ui/viewMode"_qs, u"year"_qs);
        state()->restoreViewState();
        const ViewArea area(state());
        QCOMPARE(area.mode(), u"week"_qs);
        QCOMPARE(state()->viewMode(), u"week"_qs);
    }

    void buttonsStep()
    {
        state()->setWeekHorizon(14);
        m_area->setMode(u"days"_qs);
        const QList<QToolButton *> buttons = m_area->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->text() == u"▶")
                button->click();
        }
        QCOMPARE(state()->currentDate(), Wednesday.addDays(14));
        m_area->findChild<QToolButton *>(u"today"_qs)->click();
        QCOMPARE(state()->currentDate(), QDate::currentDate());
    }

    void chipStaysInTheModeTheKeyDoesNot()
    {
        auto *chip = m_area->findChild<HorizonChip *>();
        QAction *ten = entry(chip, HorizonChip::label(10));
        QVERIFY(ten);
        ten->trigger();
        QCOMPARE(state()->weekHorizon(), 10);
        QCOMPARE(m_area->mode(), u"week"_qs);
        QCOMPARE(chip->text(), u"10d"_qs);
        QVERIFY(ten->isChecked());
        m_area->showHorizon(4); // none of the choices
        QCOMPARE(state()->weekHorizon(), 4);
        QCOMPARE(m_area->mode(), u"days"_qs);
        QVERIFY(!ten->isChecked());
    }

    void clickedHeaderOpensTheDay()
    {
        emit m_area->findChild<WeekView *>()->dayActivated(Wednesday.addDays(2));
        QCOMPARE(m_area->mode(), u"day"_qs);
        QCOMPARE(state()->currentDate(), Wednesday.addDays(2));
        state()->navigateBack(); // both in one step
        QCOMPARE(m_area->mode(), u"week"_qs);
        QCOMPARE(state()->currentDate(), Wednesday);
    }

    void countsHiddenEvents()
    {
        for (const int days : { -2, 0, 4, 5 }) // Monday, Wednesday, Sunday, and the Monday after
            m_scratch->addAllDayEvent(u"Leave"_qs, Wednesday.addDays(days));
        m_scratch->addFilter(u"rule"_qs, u"leave"_qs);
        QSignalSpy counted(state(), &AppState::filterHiddenCountChanged);
        QSignalSpy stored(state()->events(), &EventRepository::eventsChanged);
        QVERIFY(stored.wait());
        QCoreApplication::processEvents();
        QCOMPARE(counted.size(), 0); // nobody sees it yet
        m_area->show();
        QTRY_COMPARE(state()->filterHiddenCount(), 3);
        m_area->setMode(u"day"_qs);
        QTRY_COMPARE(state()->filterHiddenCount(), 1);
        QVERIFY(state()->calendars()->setVisible(ScratchState::calendarId(), false));
        QTRY_COMPARE(state()->filterHiddenCount(), 0);
    }

    void wheelPages()
    {
        m_area->show();
        QWidget dialog; // the wheel pages wherever it turns
        for (QWidget *over : { &dialog, static_cast<QWidget *>(m_area->findChild<WeekView *>()) }) {
            QCOMPARE(state()->currentDate(), Wednesday);
            QWheelEvent event({ 5, 5 }, over->mapToGlobal(QPointF(5, 5)), {}, { 120, 0 }, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(over, &event);
        }
        QCOMPARE(state()->currentDate(), Wednesday.addDays(-7));
    }

    void groupMenuActivatesAndDeletes()
    {
        m_scratch->addGroup(u"R&D"_qs);
        QAction *group = entry(groupButton(), u"R&&D"_qs);
        QVERIFY(group);
        QVERIFY(!entry(groupButton(), u"Delete Current Group"_qs)); // not the built-in one
        group->trigger();
        QCOMPARE(state()->activeViewId(), u"R&D"_qs);
        QCOMPARE(groupButton()->text().trimmed(), u"R&&D"_qs);
        Prompt::ScopedAnswers answers;
        entry(groupButton(), u"Delete Current Group"_qs)->trigger();
        QCOMPARE(answers.asked.size(), 1);
        QTRY_COMPARE(state()->activeViewId(), QString(ViewDefaults::AllCalendarsId));
        QVERIFY(!entry(groupButton(), u"R&&D"_qs));
        state()->setActiveViewId(u"gone"_qs);
        QCOMPARE(groupButton()->text().trimmed(), u"All Calendars"_qs);
        QVERIFY(!entry(groupButton(), u"Edit Current Group…"_qs));
    }

    void longGroupNameIsElided()
    {
        const QString name = u"<b>Sales & Support</b> "_qs.repeated(10).trimmed();
        m_scratch->addGroup(name);
        state()->setActiveViewId(name);
        QVERIFY(groupButton()->fontMetrics().horizontalAdvance(groupButton()->text()) < 240);
        QVERIFY(groupButton()->text().trimmed().startsWith(u"<b>Sales && S"));
        QCOMPARE(groupButton()->toolTip(), u"<qt>%1</qt>"_qs.arg(name.toHtmlEscaped()));
    }

    void createdGroupBecomesActive()
    {
        entry(groupButton(), u"Add Calendar Group…"_qs)->trigger();
        auto *dialog = m_area->findChild<ViewFormDialog *>();
        QVERIFY(dialog);
        dialog->findChild<QLineEdit *>()->setText(u"Family"_qs);
        dialog->accept();
        QTRY_COMPARE(groupButton()->text().trimmed(), u"Family"_qs);
        QCOMPARE(state()->activeViewId(), dialog->resultViewId());
    }

    void narrowWindowElidesTheDate()
    {
        m_area->setMode(u"day"_qs);
        const int narrow = m_area->minimumSizeHint().width();
        m_area->setMode(u"week"_qs); // a much shorter text
        QCOMPARE(m_area->minimumSizeHint().width(), narrow);
    }
};

QTEST_MAIN(tst_ViewArea)
#include "tst_ViewArea.moc"
