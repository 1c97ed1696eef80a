#include "storage/TaskRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

#include <limits>

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime utc(int day, int hour = 0)
{
    return QDateTime(QDate(2026, 5, day), QTime(hour, 0), Qt::UTC);
}

Task todo(const QString &id, const std::optional<QDateTime> &due = {})
{
    Task task;
    task.id = id;
    task.uid = lit("uid-") + id;
    task.calendarId = lit("c");
    task.title = id;
    task.dueDate = due;
    return task;
}

Reminder reminder(int minutesBefore)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    return result;
}

QString idsOf(const QList<Task> &tasks)
{
    QStringList ids;
    for (const Task &task : tasks)
        ids.append(task.id);
    return ids.join(u' ');
}

}

class tst_TaskRepository : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsEveryField();
    void fillsInWhatTheRowLeavesOpen();
    void readsOddCategories();
    void ordersUndatedLast();
    void findsWhatIsDueInARange();
    void findsUndated();
    void hidesTombstones();
    void hardDeleteTakesReminders();
    void completesAndReopens();
    void advancesRepeatingTasks_data();
    void advancesRepeatingTasks();
    void advancesFromNow();
    void completesWhatHasNoFurtherDate_data();
    void completesWhatHasNoFurtherDate();
    void computesTriggerTimes();
    void remindsAnewWhenTheDateMoves();
    void failsWholly();
    void gathersSignals();

private:
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<TaskRepository> m_tasks;
};

void tst_TaskRepository::init()
{
    m_database = std::make_unique<ScratchDatabase>();
    m_tasks = std::make_unique<TaskRepository>(m_database->get());
    m_database->addAccount(lit("a"));
    m_database->addCalendar(lit("c"), lit("a"));
    m_database->addCalendar(lit("d"), lit("a"));
}

void tst_TaskRepository::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_tasks.reset();
    m_database.reset();
}

void tst_TaskRepository::keepsEveryField()
{
    Task task{
        .id = lit("id"),
        .calendarId = lit("c"),
        .uid = lit("uid"),
        .etag = lit("e"),
        .href = lit("/h"),
        .title = lit("Prüfen"),
        .description = lit("d"),
        .status = TaskStatus::InProcess,
        .priority = 3,
        .percentComplete = 40,
        .dueDate = utc(9, 17),
        .startDate = QDateTime(QDate(2026, 5, 8), QTime(8, 0), Qt::OffsetFromUTC, 7200),
        .dueIsDateOnly = false,
        .startIsDateOnly = false,
        .completedDate = utc(10),
        .categories = { lit("home"), lit("a \"b\", c") },
        .parentTaskUid = lit("parent"),
        .sortOrder = 5,
        .color = lit("#010203"),
        .recurrenceRule = lit("FREQ=DAILY"),
        .repeatMode = lit("fromCompletionDate"),
        .itemType = lit("reminder"),
        .sequence = 2,
        .rawIcalendar = lit("BEGIN:VCALENDAR"),
        .created = utc(1),
        .lastModified = utc(2),
        .syncStatus = SyncStatus::Pending,
        .deletedAt = utc(3),
        .reminders = { { .id = lit("r"),
                         .eventId = QString(),
                         .taskId = lit("id"),
                         .minutesBefore = 7,
                         .action = lit("audio"),
                         .acknowledged = true,
                         .triggerTime = utc(1) } },
    };
    QVERIFY(m_tasks->insert(task));
    QCOMPARE(m_tasks->getById(lit("id")), task);

    Task other = todo(lit("id"));
    other.calendarId = lit("d");
    other.created = utc(1);
    QVERIFY(m_tasks->update(other));
    std::optional<Task> read = m_tasks->getById(lit("id"));
    QVERIFY(read->lastModified > utc(2));
    read->lastModified = other.lastModified;
    QCOMPARE(read, other);
}

void tst_TaskRepository::fillsInWhatTheRowLeavesOpen()
{
    Task task = todo(lit("t"));
    task.syncStatus.clear();
    task.repeatMode.clear();
    task.itemType.clear();
    QVERIFY(m_tasks->insert(task));
    QCOMPARE(m_database->column(lit("SELECT sync_status || repeat_mode || item_type FROM tasks")),
             QStringList{ lit("syncedfromDueDatetask") });
    QVERIFY(m_tasks->update(task));
    QCOMPARE(m_database->column(lit("SELECT sync_status FROM tasks")), QStringList{ lit("pending") });
    m_database->execute(lit("UPDATE tasks SET repeat_mode = '', item_type = ''"));
    QCOMPARE(m_tasks->getById(lit("t"))->repeatMode, lit("fromDueDate"));
    QCOMPARE(m_tasks->getById(lit("t"))->itemType, lit("task"));
}

void tst_TaskRepository::readsOddCategories()
{
    QVERIFY(m_tasks->insert(todo(lit("t"))));
    QCOMPARE(m_database->column(lit("SELECT categories FROM tasks")), QStringList{ lit("[]") });
    for (const auto *text : { "", "{\"a\": 1}", "[\"a\"", "a, b" }) {
        m_database->execute(lit("UPDATE tasks SET categories = '%1'").arg(lit(text)));
        QCOMPARE(m_tasks->getById(lit("t"))->categories, QStringList());
    }
}

void tst_TaskRepository::ordersUndatedLast()
{
    QVERIFY(m_tasks->insert(todo(lit("undated"))));
    QVERIFY(m_tasks->insert(todo(lit("late"), utc(9))));
    Task second = todo(lit("second"), utc(5));
    second.sortOrder = 2;
    QVERIFY(m_tasks->insert(second));
    Task first = todo(lit("first"), utc(5));
    first.sortOrder = 1;
    QVERIFY(m_tasks->insert(first));
    QCOMPARE(idsOf(m_tasks->getByCalendar(lit("c"))), lit("first second late undated"));
}

void tst_TaskRepository::findsWhatIsDueInARange()
{
    Task done = todo(lit("done"), utc(5));
    done.status = TaskStatus::Completed;
    done.reminders = { reminder(5) };
    QVERIFY(m_tasks->insert(done));
    QVERIFY(m_tasks->insert(todo(lit("before"), utc(4))));
    QVERIFY(m_tasks->insert(todo(lit("at-end"), utc(7))));
    Task starting = todo(lit("starting"), utc(20));
    starting.startDate = utc(6);
    QVERIFY(m_tasks->insert(starting));
    Task elsewhere = todo(lit("elsewhere"), utc(6));
    elsewhere.calendarId = lit("d");
    QVERIFY(m_tasks->insert(elsewhere));

    const QDateTime from(QDate(2026, 5, 5), QTime(0, 0));
    const QDateTime to(QDate(2026, 5, 7), QTime(0, 0));
    QCOMPARE(idsOf(m_tasks->getInDueRange(from, to, {})), lit("done elsewhere starting"));
    QCOMPARE(idsOf(m_tasks->getInDueRange(from, to, { lit("c") })), lit("done starting"));
    QCOMPARE(m_tasks->getInDueRange(from, to, { lit("c") }).first().reminders.size(), 1);
    QStringList many{ lit("d") };
    for (int i = 0; i < 2000; ++i)
        many.append(QString::number(i));
    QCOMPARE(idsOf(m_tasks->getInDueRange(from, to, many)), lit("elsewhere"));
}

void tst_TaskRepository::findsUndated()
{
    for (const auto *status : { "needs-action", "in-process", "completed", "cancelled" }) {
        Task task = todo(lit(status));
        task.status = lit(status);
        task.sortOrder = task.id == lit("in-process") ? 0 : 1;
        QVERIFY(m_tasks->insert(task));
    }
    QVERIFY(m_tasks->insert(todo(lit("dated"), utc(1))));
    QCOMPARE(idsOf(m_tasks->getUndated({})), lit("in-process needs-action"));
    QCOMPARE(idsOf(m_tasks->getUndated({ lit("d") })), QString());
}

void tst_TaskRepository::hidesTombstones()
{
    Task task = todo(lit("t"), utc(5));
    QVERIFY(m_tasks->insert(task));
    QVERIFY(!m_tasks->hasPending());
    QVERIFY(m_tasks->remove(lit("t")));
    QVERIFY(m_tasks->hasPending());
    QCOMPARE(m_tasks->getByCalendar(lit("c")).size(), 0);
    QCOMPARE(m_tasks->getInDueRange(utc(1), utc(9), {}).size(), 0);
    QCOMPARE(m_tasks->findByUid(task.uid), std::nullopt);
    QCOMPARE(m_tasks->getByCalendarIncludingDeleted(lit("c")).size(), 1);
    QCOMPARE(m_tasks->getPending(lit("c")).size(), 1);
    QVERIFY(m_tasks->getByUid(task.uid, lit("c"))->deletedAt);
    QVERIFY(m_tasks->markSynced(lit("t"), lit("/h"), lit("e")));
    QVERIFY(!m_tasks->hasPending());
}

void tst_TaskRepository::hardDeleteTakesReminders()
{
    for (const auto *id : { "gone", "kept" }) {
        Task task = todo(lit(id), utc(5));
        task.reminders = { reminder(5) };
        QVERIFY(m_tasks->insert(task));
    }
    QVERIFY(m_tasks->hardDelete(lit("gone")));
    QCOMPARE(m_database->column(lit("SELECT task_id FROM task_reminders")), QStringList{ lit("kept") });
}

void tst_TaskRepository::completesAndReopens()
{
    QVERIFY(m_tasks->insert(todo(lit("t"), utc(5))));
    QVERIFY(m_tasks->setCompleted(lit("t"), true));
    Task task = *m_tasks->getById(lit("t"));
    QVERIFY(task.isCompleted());
    QVERIFY(qAbs(task.completedDate.value().secsTo(QDateTime::currentDateTimeUtc())) < 60);
    QCOMPARE(task.percentComplete, 100);
    QCOMPARE(task.sequence, 1);
    QCOMPARE(task.syncStatus, QString(SyncStatus::Pending));
    QVERIFY(task.rawIcalendar.contains(lit("STATUS:COMPLETED")));

    QVERIFY(m_tasks->setCompleted(lit("t"), false));
    task = *m_tasks->getById(lit("t"));
    QCOMPARE(task.status, QString(TaskStatus::NeedsAction));
    QVERIFY(!task.completedDate);
    QCOMPARE(task.percentComplete, 0);
    QCOMPARE(task.sequence, 2);
    QVERIFY(!m_tasks->setCompleted(lit("none"), true));

    task.sequence = std::numeric_limits<int>::max();
    QVERIFY(m_tasks->update(task));
    QVERIFY(m_tasks->setCompleted(lit("t"), true));
    QCOMPARE(m_tasks->getById(lit("t"))->sequence, std::numeric_limits<int>::max());
}

void tst_TaskRepository::advancesRepeatingTasks_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<bool>("isDateOnly");
    QTest::addColumn<QDateTime>("date");
    QTest::addColumn<QDateTime>("next");
    const QTimeZone newYork("America/New_York");
    QTest::newRow("daily") << lit("FREQ=DAILY") << true << utc(30) << utc(31);
    QTest::newRow("monthly over the end")
        << lit("FREQ=MONTHLY") << true << utc(5) << QDateTime(QDate(2026, 6, 5), QTime(0, 0), Qt::UTC);
    QTest::newRow("every third week, timed") << lit("FREQ=WEEKLY;INTERVAL=3") << false << utc(1, 17) << utc(22, 17);
    QTest::newRow("two left") << lit("FREQ=DAILY;COUNT=2") << true << utc(1) << utc(2);
    // Stored with its offset, so the step keeps the instant's time of day there.
    QTest::newRow("offset") << lit("FREQ=DAILY") << false << QDateTime(QDate(2026, 5, 1), QTime(9, 0), newYork)
                            << QDateTime(QDate(2026, 5, 2), QTime(9, 0), newYork);
}

void tst_TaskRepository::advancesRepeatingTasks()
{
    QFETCH(QString, rule);
    QFETCH(bool, isDateOnly);
    QFETCH(QDateTime, date);
    QFETCH(QDateTime, next);
    for (const bool isDue : { true, false }) {
        Task task = todo(isDue ? lit("due") : lit("start"));
        (isDue ? task.dueDate : task.startDate) = date;
        (isDue ? task.dueIsDateOnly : task.startIsDateOnly) = isDateOnly;
        task.recurrenceRule = rule;
        task.status = TaskStatus::InProcess;
        task.percentComplete = 50;
        QVERIFY(m_tasks->insert(task));
        QVERIFY(m_tasks->setCompleted(task.id, true));

        const Task advanced = *m_tasks->getById(task.id);
        QCOMPARE(advanced.status, QString(TaskStatus::NeedsAction));
        QCOMPARE(advanced.percentComplete, 0);
        QCOMPARE(advanced.sequence, 1);
        QCOMPARE(advanced.syncStatus, QString(SyncStatus::Pending));
        QVERIFY(!advanced.completedDate);
        QCOMPARE(isDue ? advanced.dueDate : advanced.startDate, next);
        QVERIFY(!(isDue ? advanced.startDate : advanced.dueDate));
        QVERIFY(advanced.rawIcalendar.contains(lit("STATUS:NEEDS-ACTION")));
    }
}

void tst_TaskRepository::advancesFromNow()
{
    Task task = todo(lit("t"), utc(1));
    task.recurrenceRule = lit("FREQ=DAILY;INTERVAL=10");
    task.repeatMode = lit("fromCompletionDate");
    QVERIFY(m_tasks->insert(task));
    const QDate today = QDate::currentDate();
    QVERIFY(m_tasks->setCompleted(lit("t"), true));
    const QDateTime due = m_tasks->getById(lit("t"))->dueDate.value();
    QCOMPARE(due.toUTC().time(), QTime(0, 0));
    const QDate expected = today.addDays(10);
    QVERIFY(due.date() == expected || due.date() == expected.addDays(1)); // midnight may pass meanwhile
}

void tst_TaskRepository::completesWhatHasNoFurtherDate_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("repeatMode");
    QTest::addColumn<bool>("isDated");
    QTest::newRow("undated") << lit("FREQ=DAILY") << lit("fromDueDate") << false;
    QTest::newRow("last one") << lit("FREQ=DAILY;COUNT=1") << lit("fromDueDate") << true;
    QTest::newRow("last one, from now") << lit("FREQ=DAILY;COUNT=1") << lit("fromCompletionDate") << true;
    QTest::newRow("ended") << lit("FREQ=DAILY;UNTIL=20260501T120000Z") << lit("fromDueDate") << true;
    QTest::newRow("unreadable") << lit("FREQ=SOMETIMES") << lit("fromDueDate") << true;
}

void tst_TaskRepository::completesWhatHasNoFurtherDate()
{
    QFETCH(QString, rule);
    QFETCH(QString, repeatMode);
    QFETCH(bool, isDated);
    Task task = todo(lit("t"), isDated ? std::optional(utc(1)) : std::nullopt);
    task.recurrenceRule = rule;
    task.repeatMode = repeatMode;
    QVERIFY(m_tasks->insert(task));
    QVERIFY(m_tasks->setCompleted(lit("t"), true));
    QVERIFY(m_tasks->getById(lit("t"))->isCompleted());
    QCOMPARE(m_tasks->getById(lit("t"))->dueDate, task.dueDate);
}

void tst_TaskRepository::computesTriggerTimes()
{
    Task both = todo(lit("both"), utc(9, 12));
    both.dueIsDateOnly = false;
    both.startDate = utc(1);
    Task start = todo(lit("start"));
    start.startDate = utc(2);
    Task neither = todo(lit("neither"));
    for (Task *task : { &both, &start, &neither }) {
        task->reminders = { reminder(90) };
        QVERIFY(m_tasks->insert(*task));
    }
    QCOMPARE(m_tasks->getById(lit("both"))->reminders.value(0).triggerTime, utc(9, 11).addSecs(-1800));
    QCOMPARE(m_tasks->getById(lit("start"))->reminders.value(0).triggerTime, utc(1, 23).addSecs(-1800));
    QCOMPARE(m_tasks->getById(lit("neither"))->reminders.value(0).triggerTime, std::nullopt);
}

void tst_TaskRepository::remindsAnewWhenTheDateMoves()
{
    Task task = todo(lit("t"), utc(9));
    task.startDate = utc(1);
    task.reminders = { reminder(60) };
    QVERIFY(m_tasks->insert(task));
    m_database->execute(lit("UPDATE task_reminders SET acknowledged = 1"));
    const auto stored = [this] { return m_tasks->getById(lit("t"))->reminders.value(0); };

    Task changed = task; // as read from a server: no ids, nothing acknowledged
    changed.title = lit("other");
    changed.startDate = utc(2); // not what the reminder hangs on
    QVERIFY(m_tasks->update(changed));
    QVERIFY(stored().acknowledged);
    QCOMPARE(stored().triggerTime, utc(8, 23));

    changed.dueDate = utc(10);
    QVERIFY(m_tasks->update(changed));
    QVERIFY(!stored().acknowledged);
    QCOMPARE(stored().triggerTime, utc(9, 23));

    changed = *m_tasks->getById(lit("t"));
    changed.dueDate.reset();
    QVERIFY(m_tasks->update(changed));
    QCOMPARE(stored().triggerTime, utc(1, 23));
}

void tst_TaskRepository::failsWholly()
{
    QVERIFY(m_tasks->insert(todo(lit("t"))));
    const Task before = *m_tasks->getById(lit("t"));
    m_database->execute(
        lit("CREATE TRIGGER refuse BEFORE INSERT ON task_reminders BEGIN SELECT RAISE(ABORT, 'no'); END"));
    Task changed = before;
    changed.title = lit("changed");
    changed.reminders = { reminder(5) };
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^TaskRepository::writeReminders insert failed: no")));
    QVERIFY(!m_tasks->update(changed));
    QCOMPARE(m_tasks->getById(lit("t")), before);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^TaskRepository::insert failed: .*FOREIGN KEY")));
    changed.calendarId = lit("none");
    changed.id = lit("u");
    QVERIFY(!m_tasks->insert(changed));
}

void tst_TaskRepository::gathersSignals()
{
    QSignalSpy changed(m_tasks.get(), &TaskRepository::tasksChanged);
    QVERIFY(m_tasks->insert(todo(lit("a"))));
    Task other = todo(lit("b"));
    other.calendarId = lit("d");
    QVERIFY(m_tasks->insert(other));
    QVERIFY(m_tasks->remove(lit("a")));
    QVERIFY(m_tasks->hardDelete(lit("b")));
    QVERIFY(changed.wait());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toString(), lit("d"));
}

QTEST_GUILESS_MAIN(tst_TaskRepository)
#include "tst_TaskRepository.moc"
