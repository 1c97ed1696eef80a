#include "storage/PreferencesRepository.h"
#include "storage/TaskRepository.h"
#include "support/ScratchState.h"
#include "ui/actions/TaskActions.h"
#include "ui/actions/TaskDetailsPopover.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/TaskDragMime.h"
#include "ui/forms/TaskFormDialog.h"
#include "ui/tasks/TasksPane.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>

/// Three tasks, "b" below "a".
class TestTasksPane : public QObject {
    Q_OBJECT

private:
    void add(const QString &title, const QString &parentUid = {})
    {
        Task task;
        task.id = task.uid = task.title = title;
        task.calendarId = ScratchState::calendarId();
        task.parentTaskUid = parentUid;
        QVERIFY((*m_state)->tasks()->insert(task));
    }
    [[nodiscard]] Task stored(const QString &id) const { return (*m_state)->tasks()->getById(id).value_or(Task()); }
    [[nodiscard]] TasksPaneRow *row(const QString &id) const
    {
        const QList<TasksPaneRow *> rows = m_pane->rows();
        const auto found = std::ranges::find_if(rows, [&](const TasksPaneRow *each) { return each->row().id == id; });
        return found == rows.end() ? nullptr : *found;
    }
    [[nodiscard]] QString outline() const
    {
        QStringList names;
        for (const TasksPaneRow *each : m_pane->rows())
            names.append(QString(each->row().depth, u'-') + each->row().title);
        return names.join(u' ');
    }
    static bool drop(QWidget *target, QPoint point, const QString &uid)
    {
        QMimeData data;
        data.setData(QLatin1StringView(TaskDragMime::kTaskUid), uid.toUtf8());
        QDragEnterEvent enter(point, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent event(point, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
        return enter.isAccepted() && event.isAccepted();
    }

    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<QWidget> m_window;
    TaskActions *m_actions = nullptr;
    TasksPane *m_pane = nullptr;

private slots:
    void init()
    {
        m_state = std::make_unique<ScratchState>();
        add(QStringLiteral("a"));
        add(QStringLiteral("b"), QStringLiteral("a"));
        add(QStringLiteral("c"));
        m_window = std::make_unique<QWidget>();
        m_actions = new TaskActions(m_state->state(), m_window.get());
        m_pane = new TasksPane(m_state->state(), m_actions, m_window.get());
        m_window->resize(700, 600);
        m_pane->resize(320, 600);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_COMPARE(outline(), QStringLiteral("a -b c"));
    }

    void cleanup()
    {
        m_window.reset();
        m_state.reset();
    }

    void boxCompletesAndRowOpens()
    {
        QTest::mouseClick(row(QStringLiteral("c")), Qt::LeftButton, {},
                          row(QStringLiteral("c"))->checkboxRect().center());
        QVERIFY(stored(QStringLiteral("c")).isCompleted());
        QVERIFY(!m_window->findChild<TaskDetailsPopover *>());
        QTest::mouseClick(row(QStringLiteral("a")), Qt::LeftButton, {}, QPoint(200, 12));
        QVERIFY(m_window->findChild<TaskDetailsPopover *>());
        QTest::mouseDClick(row(QStringLiteral("a")), Qt::LeftButton, {}, QPoint(200, 12));
        QTRY_VERIFY(m_window->findChild<TaskFormDialog *>());
        m_window->findChild<TaskFormDialog *>()->reject();
    }

    void dropsMoveInTheTree()
    {
        // A row 4 pixels tall and more has quarters; what is between them means "below this one".
        TasksPaneRow *target = row(QStringLiteral("a"));
        QCOMPARE(target->zoneForCursor(0), TasksPaneRow::Zone::Above);
        QCOMPARE(target->zoneForCursor(target->height() / 2), TasksPaneRow::Zone::Onto);
        QCOMPARE(target->zoneForCursor(target->height() - 1), TasksPaneRow::Zone::Below);
        QVERIFY(drop(target, target->rect().center(), QStringLiteral("c")));
        QTRY_COMPARE(stored(QStringLiteral("c")).parentTaskUid, QStringLiteral("a"));
        QTRY_COMPARE(m_pane->rows().size(), 3);
        QTRY_COMPARE(row(QStringLiteral("c"))->row().depth, 1);
        QVERIFY(drop(row(QStringLiteral("b")), QPoint(100, 1), QStringLiteral("c")));
        QTRY_COMPARE(outline(), QStringLiteral("a -c -b"));
        QVERIFY(!drop(row(QStringLiteral("b")), QPoint(100, 1), QStringLiteral("b"))); // onto itself
        Prompt::ScopedAnswers answers;
        drop(row(QStringLiteral("c")), row(QStringLiteral("c"))->rect().center(),
             QStringLiteral("a")); // into its own tree
        QTRY_COMPARE(answers.asked.size(), 1);
        QCOMPARE(stored(QStringLiteral("a")).parentTaskUid, QString());
    }

    void keyboardWalksAndActs()
    {
        row(QStringLiteral("a"))->setFocus();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Down);
        QCOMPARE(m_window->focusWidget(), row(QStringLiteral("b")));
        QTest::keyClick(m_window->focusWidget(), Qt::Key_PageDown);
        QCOMPARE(m_window->focusWidget(), row(QStringLiteral("c")));
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Up);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Space);
        QVERIFY(stored(QStringLiteral("b")).isCompleted());
        QTRY_VERIFY(row(QStringLiteral("b"))->row().isCompleted()); // built anew
        QTRY_COMPARE(m_window->focusWidget(), row(QStringLiteral("b"))); // and the keyboard is still there
        Prompt::ScopedAnswers answers;
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Delete);
        QTRY_COMPARE(answers.asked.size(), 1);
        QTRY_COMPARE(outline(), QStringLiteral("a c"));
        QTRY_COMPARE(m_window->focusWidget(), row(QStringLiteral("c")));
    }

    void reloadKeepsRowsAndTheirOrder()
    {
        TasksPaneRow *kept = row(QStringLiteral("a"));
        kept->setFocus();
        add(QStringLiteral("0"));
        QTRY_COMPARE(outline(), QStringLiteral("0 a -b c"));
        QCOMPARE(row(QStringLiteral("a")), kept);
        QVERIFY(kept->hasFocus());
        row(QStringLiteral("0"))->setFocus();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget(), kept);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Down, Qt::AltModifier);
        QTRY_COMPARE(outline(), QStringLiteral("0 c a -b"));
        QVERIFY(kept->hasFocus());
        QVERIFY(row(QStringLiteral("c"))->y() < kept->y() && kept->y() < row(QStringLiteral("b"))->y());
    }

    void optionsAreKept()
    {
        m_pane->setFilter(TasksPane::Filter::Overdue);
        m_pane->setGroupByCalendar(true);
        QTRY_VERIFY(m_pane->rows().isEmpty());
        const TasksPane again(m_state->state(), m_actions);
        QCOMPARE(again.options().filter, TasksPane::Filter::Overdue);
        QVERIFY(again.options().groupByCalendar && !again.options().hideCompleted);
    }

    void longListsComeInSlices()
    {
        for (int i = 0; i < 300; ++i)
            add(QString::number(i));
        m_pane->reload();
        QVERIFY(m_pane->rows().size() < 303);
        QTRY_COMPARE(m_pane->rows().size(), 303);
    }
};

QTEST_MAIN(TestTasksPane)
#include "tst_TasksPane.moc"
