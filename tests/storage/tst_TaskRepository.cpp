#include "storage/TaskRepository.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QTimeZone>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

Reminder reminder(int minutesBefore)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    return result;
}

/// In the calendar "c".
Task todo(const QString &id, const std::optional<QDateTime> &due = {})
{
    Task task;
    task.id = id;
    task.uid = u"uid-"_s + id;
    task.calendarId = u"c"_s;
    task.title = id;
    task.dueDate = due;
    return task;
}

}

class tst_TaskRepository : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<ScratchDatabase>();
        m_tasks = std::make_unique<TaskRepository>(m_database->get());
        m_database->addAccount(u"a"_s);
        m_database->addCalendar(u"c"_s, u"a"_s);
        m_database->addCalendar(u"d"_s, u"a"_s);
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_tasks.reset();
        m_database.reset();
    }

    void fillsInWhatTheRowLeavesOpen()
    {
        Task task = todo(u"t"_s);
        task.syncStatus.clear();
        task.repeatMode.clear();
        task.itemType.clear();
        QVERIFY(m_tasks->insert(task));
        const QString stored = u"SELECT sync_status || repeat_mode || item_type || categories FROM tasks"_s;
        QCOMPARE(m_database->text(stored), u"syncedfromDueDatetask[]"_s);
        QVERIFY(m_tasks->update(task));
        QCOMPARE(m_database->text(stored), u"pendingfromDueDatetask[]"_s);
        QVERIFY(qAbs(storedTask().lastModified.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        m_database->execute(u"UPDATE tasks SET repeat_mode = '', item_type = ''"_s);
        QCOMPARE(storedTask().repeatMode + storedTask().itemType, u"fromDueDatetask"_s);
        for (const QString &text : { u""_s, u"{\"a\": 1}"_s, u"[\"a\""_s }) {
            m_database->execute(u"UPDATE tasks SET categories = '%1'"_s.arg(text));
            QCOMPARE(storedTask().categories, QStringList());
        }
    }

    void findsWhatIsDueInARange()
    {
        Task done = todo(u"done"_s, utc("2026-05-05"));
        done.status = TaskStatus::Completed;
        done.reminders = { reminder(5) };
        Task starting = todo(u"starting"_s, utc("2026-05-20"));
        starting.startDate = utc("2026-05-06");
        Task elsewhere = todo(u"elsewhere"_s, utc("2026-05-06"));
        elsewhere.calendarId = u"d"_s;
        for (const Task &task : { todo(u"undated"_s), done, starting, elsewhere, todo(u"before"_s, utc("2026-05-04")),
                                  todo(u"at-end"_s, utc("2026-05-07")) })
            QVERIFY(m_tasks->insert(task));

        const QDateTime from(QDate(2026, 5, 5), QTime(0, 0));
        const auto found = [&](const QStringList &calendarIds) {
            return m_tasks->getInDueRange(from, from.addDays(2), calendarIds);
        };
        QCOMPARE(idsOf(found({})), u"done elsewhere starting"_s);
        QCOMPARE(idsOf(found({ u"c"_s })), u"done starting"_s);
        QCOMPARE(found({ u"c"_s }).first().reminders.size(), 1);
        QCOMPARE(idsOf(m_tasks->getByCalendar(u"c"_s)), u"before done at-end starting undated"_s);

        m_database->execute(u"UPDATE tasks SET due_date = NULL"_s);
        m_database->execute(u"UPDATE tasks SET status = 'cancelled' WHERE id = 'before'"_s);
        m_database->execute(u"UPDATE tasks SET sort_order = rowid"_s);
        QCOMPARE(idsOf(m_tasks->getUndated({})), u"undated starting elsewhere at-end"_s);
        QCOMPARE(idsOf(m_tasks->getUndated({ u"d"_s })), u"elsewhere"_s);
    }

    void removalLeavesATombstone()
    {
        QVERIFY(m_tasks->insert(todo(u"t"_s, utc("2026-05-05"))));
        QVERIFY(!m_tasks->hasPending());
        QVERIFY(m_tasks->remove(u"t"_s));
        QVERIFY(m_tasks->hasPending());
        QVERIFY(m_tasks->getByCalendar(u"c"_s).isEmpty());
        QVERIFY(m_tasks->getInDueRange(utc("2026-05-01"), utc("2026-05-09"), {}).isEmpty());
        QVERIFY(!m_tasks->findByUid(u"uid-t"_s));
        QVERIFY(storedTask().deletedAt);
        QCOMPARE(m_tasks->getByCalendarIncludingDeleted(u"c"_s), QList<Task>{ storedTask() });
        QCOMPARE(m_tasks->getPending(u"c"_s), QList<Task>{ storedTask() });
        QCOMPARE(m_tasks->getByUid(u"uid-t"_s, u"c"_s), storedTask());
        QVERIFY(m_tasks->markSynced(u"t"_s, u"/h"_s, u"e"_s));
        QVERIFY(!m_tasks->hasPending());

        m_database->addFullCalendar(u"gone"_s, u"a"_s);
        m_database->addFullCalendar(u"kept"_s, u"a"_s);
        QVERIFY(m_tasks->hardDelete(u"t-gone"_s));
        QCOMPARE(m_database->text(u"SELECT task_id FROM task_reminders"_s), u"t-kept"_s);
    }

    void completesAndReopens()
    {
        QVERIFY(m_tasks->insert(todo(u"t"_s, utc("2026-05-05"))));
        QVERIFY(m_tasks->setCompleted(u"t"_s, true));
        Task task = storedTask();
        QVERIFY(task.isCompleted());
        QVERIFY(qAbs(task.completedDate.value().secsTo(QDateTime::currentDateTimeUtc())) < 60);
        QCOMPARE(task.percentComplete, 100);
        QCOMPARE(task.sequence, 1);
        QCOMPARE(task.syncStatus, QString(SyncStatus::Pending));
        QVERIFY(task.rawIcalendar.contains(u"STATUS:COMPLETED"));

        QVERIFY(m_tasks->setCompleted(u"t"_s, false));
        task = storedTask();
        QCOMPARE(task.status, QString(TaskStatus::NeedsAction));
        QVERIFY(!task.completedDate);
        QCOMPARE(task.percentComplete, 0);
        QCOMPARE(task.sequence, 2);
        QVERIFY(!m_tasks->setCompleted(u"none"_s, true));

        task.sequence = std::numeric_limits<int>::max();
        QVERIFY(m_tasks->update(task) && m_tasks->setCompleted(u"t"_s, true));
        QCOMPARE(storedTask().sequence, std::numeric_limits<int>::max());
    }

    void advancesRepeatingTasks_data()
    {
        columns<QString, bool, QDateTime, QDateTime>("rule", "isDateOnly", "date", "next");
        const QTimeZone newYork("America/New_York");
        row("monthly", "FREQ=MONTHLY", true, utc("2026-05-05"), utc("2026-06-05"));
        row("every third week, timed", "FREQ=WEEKLY;INTERVAL=3", false, utc("2026-05-01T17:00"),
            utc("2026-05-22T17:00"));
        row("two left", "FREQ=DAILY;COUNT=2", true, utc("2026-05-01"), utc("2026-05-02"));
        // Stored with its offset, so the step keeps the instant's time of day there.
        row("offset", "FREQ=DAILY", false, QDateTime(QDate(2026, 5, 1), QTime(9, 0), newYork),
            QDateTime(QDate(2026, 5, 2), QTime(9, 0), newYork));
    }
    void advancesRepeatingTasks()
    {
        QFETCH(QString, rule);
        QFETCH(bool, isDateOnly);
        QFETCH(QDateTime, date);
        QFETCH(QDateTime, next);
        for (const bool isDue : { true, false }) {
            Task task = todo(u"t"_s);
            (isDue ? task.dueDate : task.startDate) = date;
            (isDue ? task.dueIsDateOnly : task.startIsDateOnly) = isDateOnly;
            task.recurrenceRule = rule;
            task.status = TaskStatus::InProcess;
            task.percentComplete = 50;
            QVERIFY(m_tasks->insert(task));
            QVERIFY(m_tasks->setCompleted(u"t"_s, true));

            const Task advanced = storedTask();
            QCOMPARE(advanced.status, QString(TaskStatus::NeedsAction));
            QCOMPARE(advanced.percentComplete, 0);
            QCOMPARE(advanced.sequence, 1);
            QVERIFY(!advanced.completedDate);
            QCOMPARE(isDue ? advanced.dueDate : advanced.startDate, next);
            QVERIFY(!(isDue ? advanced.startDate : advanced.dueDate));
            QVERIFY(advanced.rawIcalendar.contains(u"STATUS:NEEDS-ACTION"));
            QVERIFY(m_tasks->hardDelete(u"t"_s));
        }
    }

    void advancesFromNow()
    {
        Task task = todo(u"t"_s, utc("2026-05-01"));
        task.recurrenceRule = u"FREQ=DAILY;INTERVAL=10"_s;
        task.repeatMode = u"fromCompletionDate"_s;
        QVERIFY(m_tasks->insert(task));
        const QDate expected = QDate::currentDate().addDays(10);
        QVERIFY(m_tasks->setCompleted(u"t"_s, true));
        const QDateTime due = storedTask().dueDate.value();
        QCOMPARE(due.toUTC().time(), QTime(0, 0));
        QVERIFY(due.date() == expected || due.date() == expected.addDays(1)); // midnight may pass meanwhile
    }

    void completesWhatHasNoFurtherDate_data()
    {
        columns<QString, QString>("rule", "repeatMode");
        row("last one", "FREQ=DAILY;COUNT=1", "fromDueDate");
        row("last one, from now", "FREQ=DAILY;COUNT=1", "fromCompletionDate");
        row("ended", "FREQ=DAILY;UNTIL=20260501T120000Z", "fromDueDate");
        row("unreadable", "FREQ=SOMETIMES", "fromDueDate");
        row("undated", "FREQ=DAILY", "fromDueDate");
        row("undated, from now", "FREQ=DAILY", "fromCompletionDate");
    }
    void completesWhatHasNoFurtherDate()
    {
        Task task = todo(u"t"_s, utc("2026-05-01"));
        QFETCH(QString, rule);
        task.recurrenceRule = rule;
        QFETCH(QString, repeatMode);
        task.repeatMode = repeatMode;
        if (QByteArray(QTest::currentDataTag()).startsWith("undated"))
            task.dueDate.reset();
        QVERIFY(m_tasks->insert(task));
        QVERIFY(m_tasks->setCompleted(u"t"_s, true));
        QVERIFY(storedTask().isCompleted());
        QCOMPARE(storedTask().dueDate, task.dueDate);
    }

    void remindsAnewWhenTheDateMoves()
    {
        Task task = todo(u"t"_s, utc("2026-05-09"));
        task.startDate = utc("2026-05-01");
        task.reminders = { reminder(60) };
        QVERIFY(m_tasks->insert(task));
        m_database->execute(u"UPDATE task_reminders SET acknowledged = 1"_s);
        const auto stored = [this] { return storedTask().reminders.value(0); };

        Task changed = task; // as read from a server: no ids, nothing acknowledged
        changed.startDate = utc("2026-05-02"); // not what the reminder hangs on
        QVERIFY(m_tasks->update(changed));
        QVERIFY(stored().acknowledged);
        QCOMPARE(stored().triggerTime, utc("2026-05-08T23:00"));

        changed.dueDate = utc("2026-05-10T12:00");
        changed.dueIsDateOnly = false;
        QVERIFY(m_tasks->update(changed));
        QVERIFY(!stored().acknowledged);
        QCOMPARE(stored().triggerTime, utc("2026-05-10T11:00"));

        changed.dueDate.reset();
        QVERIFY(m_tasks->update(changed));
        QCOMPARE(stored().triggerTime, utc("2026-05-01T23:00"));
        changed.startDate.reset();
        QVERIFY(m_tasks->update(changed));
        QCOMPARE(stored().triggerTime, std::nullopt);
    }

private:
    Task storedTask() { return m_tasks->getById(u"t"_s).value_or(Task()); }

    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<TaskRepository> m_tasks;
};

QTEST_GUILESS_MAIN(tst_TaskRepository)
#include "tst_TaskRepository.moc"
