#include "calendar/services/TaskListing.h"
#include "storage/TaskRepository.h"
#include "support/ScratchState.h"

#include <QTest>

#include <algorithm>

using Filter = TaskListing::Filter;

namespace {

const QDate Today(2026, 6, 17);

Task task(const QString &title, std::optional<QDate> due = {}, const QString &parentTitle = {})
{
    Task result;
    result.id = result.uid = result.title = title;
    result.calendarId = ScratchState::calendarId();
    if (due)
        result.dueDate = QDateTime(*due, QTime(0, 0), Qt::UTC);
    result.parentTaskUid = parentTitle;
    return result;
}

QString outline(const QList<TaskListing::Section> &sections)
{
    QStringList rows;
    for (const TaskListing::Section &section : sections) {
        for (const TaskListing::Row &row : section.rows)
            rows.append(QString(row.depth, u'-') + row.title + QString(row.isCutOff ? 1 : 0, u'~'));
    }
    return rows.join(u' ');
}

}

class TestTaskListing : public QObject {
    Q_OBJECT

private slots:
    void matches_data()
    {
        QTest::addColumn<int>("daysFromToday");
        QTest::addColumn<QString>("expected"); // all, today, this week, overdue
        QTest::newRow("yesterday") << -1 << "y--y";
        QTest::newRow("today") << 0 << "yyy-";
        QTest::newRow("in a week") << 7 << "y-y-";
        QTest::newRow("later") << 8 << "y---";
    }
    void matches()
    {
        QFETCH(int, daysFromToday);
        const QDate due = Today.addDays(daysFromToday);
        Task dated = task(QStringLiteral("t"), due);
        Task timed = dated;
        timed.dueIsDateOnly = false;
        timed.dueDate = QDateTime(due, QTime(23, 59)); // of the local day, wherever the machine is
        for (Task shown : { dated, timed }) {
            QString result;
            for (const Filter filter : { Filter::All, Filter::Today, Filter::ThisWeek, Filter::Overdue })
                result += TaskListing::matches(shown, filter, Today) ? u'y' : u'-';
            QTEST(result, "expected");
            shown.itemType = QStringLiteral("reminder");
            QVERIFY(!TaskListing::matches(shown, Filter::All, Today));
        }
    }

    void ordersOnTheClockOnTheWall()
    {
        const auto timed = [](const QString &title, QDate day, QTime time) {
            Task result = task(title);
            result.dueDate = QDateTime(day, time).toUTC();
            result.dueIsDateOnly = false;
            return result;
        };
        const QStringList expected{ QStringLiteral("late evening before"),
                                    QStringLiteral("early"),
                                    QStringLiteral("late"),
                                    QStringLiteral("today"),
                                    QStringLiteral("tomorrow early"),
                                    QStringLiteral("tomorrow"),
                                    QStringLiteral("some day") };
        QList<Task> tasks{ task(expected.at(6)),
                           task(expected.at(5), Today.addDays(1)),
                           task(expected.at(3), Today),
                           timed(expected.at(4), Today.addDays(1), QTime(0, 0)),
                           timed(expected.at(2), Today, QTime(23, 59)),
                           timed(expected.at(1), Today, QTime(0, 0)),
                           timed(expected.at(0), Today.addDays(-1), QTime(23, 59)) };
        std::ranges::sort(tasks, TaskListing::isBefore);
        QStringList titles;
        for (const Task &each : std::as_const(tasks))
            titles.append(each.title);
        QCOMPARE(titles, expected);
    }

    void loads_data()
    {
        QTest::addColumn<int>("filter");
        QTest::addColumn<bool>("hideCompleted");
        QTest::addColumn<QString>("expected");
        QTest::newRow("all") << int(Filter::All) << false << "late -child plan -done soon none gone";
        QTest::newRow("completed ones stay in a live tree")
            << int(Filter::All) << true << "late -child plan -done soon none";
        QTest::newRow("parent filtered out") << int(Filter::Today) << false << "child~";
    }
    void loads()
    {
        ScratchState scratch;
        QList<Task> tasks{ task(QStringLiteral("none")),
                           task(QStringLiteral("soon"), Today.addDays(3)),
                           task(QStringLiteral("late"), Today.addDays(-3)),
                           task(QStringLiteral("child"), Today, QStringLiteral("late")),
                           task(QStringLiteral("gone"), Today.addDays(-9)),
                           task(QStringLiteral("plan"), Today.addDays(1)),
                           task(QStringLiteral("done"), {}, QStringLiteral("plan")) };
        tasks[4].status = TaskStatus::Completed;
        tasks[6].status = TaskStatus::Completed;
        for (const Task &each : std::as_const(tasks))
            QVERIFY(scratch->tasks()->insert(each));
        QFETCH(int, filter);
        QFETCH(bool, hideCompleted);
        QTEST(outline(TaskListing::load(scratch.state(), { Filter(filter), false, hideCompleted }, Today)), "expected");
    }
};

QTEST_GUILESS_MAIN(TestTaskListing)
#include "tst_TaskListing.moc"
