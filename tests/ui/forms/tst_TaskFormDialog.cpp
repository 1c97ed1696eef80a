#include "storage/TaskRepository.h"
#include "support/ScratchState.h"
#include "ui/forms/DateTimePicker.h"
#include "ui/forms/TaskFormDialog.h"

#include <QtTest>

class TestTaskFormDialog : public QObject {
    Q_OBJECT

private:
    Task stored(const QString &id, const std::function<void(Task &)> &change)
    {
        Task task;
        task.id = task.uid = task.title = id;
        task.calendarId = ScratchState::calendarId();
        change(task);
        return (*m_state)->tasks()->insert(task) ? (*m_state)->tasks()->getById(id).value() : Task();
    }

    std::unique_ptr<ScratchState> m_state;

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }

    void subtaskOfACompletedTask()
    {
        const Task parent = stored(QStringLiteral("p"), [](Task &task) { task.status = TaskStatus::Completed; });
        TaskFormDialog form(m_state->state(), nullptr);
        form.setParentTask(parent);
        QCOMPARE(form.edited().parentTaskUid, parent.uid);
    }

    void showsWhatIsStored_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<int>("percent");
        QTest::newRow("completed elsewhere") << QString(TaskStatus::Completed) << 50;
        QTest::newRow("not started, some progress") << QString(TaskStatus::NeedsAction) << 30;
        QTest::newRow("full, yet open") << QString(TaskStatus::InProcess) << 100;
    }
    void showsWhatIsStored()
    {
        QFETCH(QString, status);
        QFETCH(int, percent);
        const Task task = stored(QStringLiteral("t"), [&](Task &each) {
            each.status = status;
            each.percentComplete = percent;
            each.title = QStringLiteral(" t ");
            each.categories = QStringList{ QStringLiteral("a,b"), QStringLiteral("c") };
        });
        TaskFormDialog form(m_state->state(), task, nullptr);
        QCOMPARE(form.edited(), task);
    }

    void isDueAfterItStarts_data()
    {
        QTest::addColumn<int>("dueDay");
        QTest::addColumn<bool>("ok");
        QTest::newRow("on the day, which ends after the start") << 1 << true;
        QTest::newRow("the day before") << 0 << false;
    }
    void isDueAfterItStarts()
    {
        const QDate firstDay(2026, 5, 4);
        const Task task = stored(QStringLiteral("t"), [&](Task &each) {
            each.startDate = QDateTime(firstDay.addDays(1), QTime(23, 0)).toUTC();
            each.startIsDateOnly = false;
            each.dueDate = QDateTime(firstDay.addDays(3), QTime(0, 0), Qt::UTC);
        });
        TaskFormDialog form(m_state->state(), task, nullptr);
        QFETCH(int, dueDay);
        form.findChildren<DateTimePicker *>().at(0)->setDateTime(QDateTime(firstDay.addDays(dueDay), QTime(9, 0)));
        form.accept();
        QFETCH(bool, ok);
        QCOMPARE(form.problemText().isEmpty(), ok);
        const QDate due = (*m_state)->tasks()->getById(task.id)->dueDate->date();
        QCOMPARE(due, firstDay.addDays(ok ? dueDay : 3));
    }
};

QTEST_MAIN(TestTaskFormDialog)
#include "tst_TaskFormDialog.moc"
