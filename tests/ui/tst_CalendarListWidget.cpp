#include "app/state/DefaultCalendar.h"
#include "support/ScratchState.h"
#include "ui/CalendarListWidget.h"
#include "ui/CalendarMenu.h"
#include "ui/theme/ElidedLabel.h"
#include "ui/Sidebar.h"
#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

/// The list with the calendars "Personal", which a first start creates, and "Work".
class tst_CalendarListWidget : public QObject {
    Q_OBJECT

private:
    CalendarRepository *calendars() { return (*m_state)->calendars(); }
    Calendar stored(const QString &id) { return calendars()->getById(id).value(); }

    QAction *menuAction(const QString &calendarId, const QString &text)
    {
        m_list->setCurrentItem(m_list->itemFor(calendarId));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(m_list->viewport(), &event);
        CalendarMenu *menu = m_list->findChildren<CalendarMenu *>().last();
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        menu->close();
        return nullptr;
    }

    const QString m_personal = ScratchState::calendarId();
    QString m_work;
    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<CalendarListWidget> m_list;

private slots:
    void init()
    {
        m_list.reset();
        m_state = std::make_unique<ScratchState>();
        m_work = m_state->addCalendar(u"Work"_qs);
        m_list = std::make_unique<CalendarListWidget>(m_state->state());
    }

    void checkBoxDecidesOverVisibility()
    {
        m_list->itemFor(m_work)->setCheckState(0, Qt::Unchecked);
        QVERIFY(!stored(m_work).isVisible);
        QVERIFY(stored(m_personal).isVisible);
        m_list->setCurrentItem(m_list->itemFor(m_work));
        QTest::keyClick(m_list.get(), Qt::Key_Space);
        QVERIFY(stored(m_work).isVisible);
        // A change from elsewhere shows, and the current row stays current.
        QVERIFY(calendars()->setVisible(m_work, false));
        QTRY_COMPARE(m_list->itemFor(m_work)->checkState(0), Qt::Unchecked);
        QCOMPARE(m_list->currentItem(), m_list->itemFor(m_work));
    }

    void renames()
    {
        const QList<std::pair<QString, QString>> rows{ { u"  Office "_qs, u"Office"_qs }, { u"   "_qs, u"Office"_qs } };
        for (const auto &[typed, expected] : rows) {
            m_list->itemFor(m_work)->setText(0, typed);
            QCOMPARE(stored(m_work).name, expected);
            QTRY_COMPARE(m_list->itemFor(m_work)->text(0), expected);
        }
    }

    void menuMakesDefault()
    {
        QVERIFY(!menuAction(m_personal, u"Make &Default"_qs));
        QAction *action = menuAction(m_work, u"Make &Default"_qs);
        QVERIFY(action);
        action->trigger();
        QVERIFY(stored(m_work).isDefault);
        QVERIFY(!stored(m_personal).isDefault);
        QCOMPARE(DefaultCalendar::preferredCalendarId((*m_state)->preferences(), false), m_work);
        // What a mark only shows is said too.
        m_state->makeReadOnly(m_personal);
        const auto said = [this](const QString &id) {
            return m_list->itemFor(id)->data(0, Qt::AccessibleTextRole).toString();
        };
        QTRY_COMPARE(said(m_work), u"Work, default calendar"_qs);
        QCOMPARE(said(m_personal), u"Personal, read-only"_qs);
    }

    void menuShowsOnlyThis()
    {
        const QString club = m_state->addCalendar(u"Club"_qs);
        QVERIFY(calendars()->setVisible(club, false));
        QTRY_VERIFY(m_list->itemFor(club));
        menuAction(club, u"Show &Only This"_qs)->trigger();
        QVERIFY(stored(club).isVisible);
        QVERIFY(!stored(m_work).isVisible);
        QVERIFY(!stored(m_personal).isVisible);
    }

    void deletesLocalCalendarsAfterAsking()
    {
        Prompt::ScopedAnswers answers;
        answers.sayYes = false;
        menuAction(m_work, u"De&lete Calendar…"_qs)->trigger();
        QCOMPARE(answers.asked.size(), 1);
        QCOMPARE(answers.asked.first().text, u"Delete \"Work\" and all its events? This cannot be undone."_qs);
        QCoreApplication::processEvents();
        QVERIFY(calendars()->getById(m_work));
        answers.sayYes = true;
        menuAction(m_work, u"De&lete Calendar…"_qs)->trigger();
        QTRY_VERIFY(!calendars()->getById(m_work));
        QTRY_VERIFY(!m_list->itemFor(m_work));

        auto account = (*m_state)->accounts()->getAll().constFirst();
        account.type = AccountType::CalDAV; // what a server has is not for this program to delete
        QVERIFY((*m_state)->accounts()->update(account));
        QVERIFY(menuAction(m_personal, u"&Rename"_qs));
        QVERIFY(!menuAction(m_personal, u"De&lete Calendar…"_qs));
    }

    void saysThatAGroupDecides()
    {
        const QString group = m_state->addGroup(u"Office & more"_qs, { m_work, u"gone"_qs }).id;
        Sidebar sidebar(m_state->state());
        sidebar.show();
        auto *hint = sidebar.findChild<ElidedLabel *>(u"groupHint"_qs);
        QVERIFY(!hint->isVisible());
        (*m_state)->setActiveViewId(group);
        QVERIFY(hint->isVisible());
        QCOMPARE(hint->text(), u"Showing group “Office & more”"_qs);
        const auto isOutside = [&sidebar](const QString &id) {
            return sidebar.calendarList()->itemFor(id)->data(0, CalendarListWidget::OutsideGroupRole).toBool();
        };
        QTRY_VERIFY(isOutside(m_personal));
        QVERIFY(!isOutside(m_work));
        // With none of its calendars left the group decides nothing.
        QVERIFY(calendars()->removeDeep(m_work));
        QVERIFY(!hint->isVisible());
    }
};

QTEST_MAIN(tst_CalendarListWidget)
#include "tst_CalendarListWidget.moc"
