#include "app/state/UndoStack.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"
#include "ui/actions/EventActions.h"
#include "ui/actions/EventDetailsPopover.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/EventFormDialog.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QtTest>

namespace {

const QDate Monday(2026, 6, 15);

}

class TestEventActions : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] Event stored(const QString &id) const { return (*m_state)->events()->getById(id).value_or(Event()); }
    [[nodiscard]] EventDetailsPopover *card() const { return m_window->findChild<EventDetailsPopover *>(); }

    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<QWidget> m_window;
    EventActions *m_actions = nullptr;
    Event m_event;

private slots:
    void init()
    {
        m_state = std::make_unique<ScratchState>();
        m_event = m_state->addEvent(QStringLiteral("Review"), QDateTime(Monday, QTime(9, 0)),
                                    QDateTime(Monday, QTime(10, 0)));
        m_window = std::make_unique<QWidget>();
        m_actions = new EventActions(m_state->state(), m_window.get());
        m_window->resize(900, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_state.reset();
    }

    void cardTellsAndGoes()
    {
        m_event.description =
            QStringLiteral("<p>See <a href=\"javascript:x\">this</a> & <a href=\"https://a.example\">that</a>"
                           "</p><script>alert(1)</script>");
        Attendee bob;
        bob.email = QStringLiteral("b@example.com");
        bob.name = QStringLiteral("<b>Bob</b>");
        bob.status = QStringLiteral("declined");
        m_event.attendees = { bob };
        QVERIFY((*m_state)->events()->update(m_event));
        m_actions->open(m_event.id, m_event.startTime, {});
        QVERIFY(card() && card()->isVisible());
        QVERIFY(m_window->rect().contains(card()->geometry()));
        QCOMPARE(QAccessible::queryAccessibleInterface(card())->role(), QAccessible::Dialog); // it is announced
        const QString html = card()->findChild<QTextBrowser *>()->toHtml();
        QVERIFY(html.contains(u"https://a.example"_qs) && !html.contains(u"javascript"_qs)
                && !html.contains(u"alert"_qs));
        const QList<QLabel *> labels = card()->findChildren<QLabel *>();
        QVERIFY(std::ranges::any_of(labels, [](const QLabel *label) {
            return label->textFormat() == Qt::PlainText && label->text().contains(u"<b>Bob</b>"_qs);
        }));
        QTest::keyClick(card(), Qt::Key_Escape);
        QTRY_VERIFY(!card());
        m_actions->open(m_event.id, m_event.startTime, {});
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, QPoint(3, 3));
        QTRY_VERIFY(!card());
    }

    void cardFollowsItsRow()
    {
        m_actions->open(m_event.id, m_event.startTime, {});
        m_event.title = QStringLiteral("Retrospective");
        QVERIFY((*m_state)->events()->update(m_event));
        QTRY_COMPARE(card()->accessibleName(), m_event.title);
        QVERIFY((*m_state)->events()->remove(m_event.id));
        QTRY_VERIFY(!card());
    }

    void cardKeepsTheFocusOverNewContent()
    {
        m_actions->open(m_event.id, m_event.startTime, {});
        QTest::keyClick(card(), Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != card());
        m_event.title = QStringLiteral("Retrospective");
        QVERIFY((*m_state)->events()->update(m_event));
        QTRY_COMPARE(card()->accessibleName(), m_event.title);
        QCOMPARE(QApplication::focusWidget(), card());
    }

    void secondClickOnTheCardEdits()
    {
        const QRect wide(m_window->mapToGlobal(QPoint(0, 0)), m_window->size()); // no room beside it
        m_actions->open(m_event.id, m_event.startTime, wide);
        QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(40, 40), card()->mapToGlobal(QPointF(40, 40)),
                           Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(card(), &second);
        QTRY_VERIFY(m_window->findChild<EventFormDialog *>());
        QTRY_VERIFY(!card());
    }

    void deletingAsksAndCanBeUndone()
    {
        Prompt::ScopedAnswers answers;
        m_actions->remove(m_event.id);
        QTRY_VERIFY(stored(m_event.id).deletedAt);
        QCOMPARE(answers.asked.at(0).title, u"Delete event?"_qs);
        QVERIFY(answers.asked.at(0).text.startsWith(u"Delete \"Review\"? You can undo with "_qs));
        QCOMPARE((*m_state)->undoStack()->topSummary(), u"Deleted \"Review\""_qs);
        (*m_state)->undoStack()->undo();
        QVERIFY(!stored(m_event.id).deletedAt);
    }

    void seriesAskForTheScope()
    {
        m_event.recurrenceRule = QStringLiteral("FREQ=DAILY");
        QVERIFY((*m_state)->events()->update(m_event));
        const QDateTime third = QDateTime(Monday.addDays(2), QTime(9, 0));
        Prompt::ScopedAnswers answers;
        m_actions->move(m_event.id, third, 0, 30);
        QTRY_COMPARE(answers.asked.size(), 1); // cancelled
        QCOMPARE((*m_state)->events()->getSeries(m_event.uid, m_event.calendarId).size(), 1);
        answers.choice = 0;
        m_actions->move(m_event.id, third, 0, 30);
        QTRY_COMPARE((*m_state)->events()->getSeries(m_event.uid, m_event.calendarId).size(), 2);
        QVERIFY((*m_state)->selectedEventId() != m_event.id);
        QCOMPARE(stored(m_event.id).startTime.toLocalTime().time(), QTime(9, 0));
        answers.choice = 2;
        m_actions->move(m_event.id, third.addDays(1), 0, -60);
        QTRY_COMPARE(stored(m_event.id).startTime.toLocalTime().time(), QTime(8, 0));
        QCOMPARE((*m_state)->selectedEventId(), m_event.id);
        QCOMPARE((*m_state)->selectedOccurrence(), third.addDays(1).addSecs(-3600));
    }

    void readOnlyEventsAreRefusedWithAMessage()
    {
        m_state->makeReadOnly(m_event.calendarId);
        QSignalSpy message(m_actions, &EventActions::message);
        Prompt::ScopedAnswers answers;
        m_actions->move(m_event.id, m_event.startTime, 1, 0);
        m_actions->resize(m_event.id, m_event.startTime, 15);
        m_actions->remove(m_event.id);
        QCOMPARE(message.size(), 3);
        QVERIFY(answers.asked.isEmpty());
        QCOMPARE(stored(m_event.id).startTime, m_event.startTime);
        m_actions->open(m_event.id, m_event.startTime, {});
        QCOMPARE(card()->findChildren<QPushButton *>(Qt::FindDirectChildrenOnly).size(), 1); // to look at the form
    }
};

QTEST_MAIN(TestEventActions)
#include "tst_EventActions.moc"
