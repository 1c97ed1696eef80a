#include "calendar/TaskTree.h"

#include <QTest>

namespace {

Task task(const char *uid, const char *parent = "", bool completed = false, int sortOrder = 0)
{
    Task task;
    task.uid = QString::fromLatin1(uid);
    task.title = task.uid;
    task.parentTaskUid = QString::fromLatin1(parent);
    task.status = completed ? TaskStatus::Completed : TaskStatus::NeedsAction;
    task.sortOrder = sortOrder;
    return task;
}

/// Each task behind as many dashes as it is deep.
QString outline(const QList<TreeTask> &tasks)
{
    QStringList lines;
    for (const TreeTask &task : tasks)
        lines.append(QString(task.depth, u'-') + task.title);
    return lines.join(u' ');
}

bool byTitle(const Task &a, const Task &b)
{
    return a.title < b.title;
}

}

class tst_TaskTree : public QObject {
    Q_OBJECT

private slots:
    void flattens_data();
    void flattens();
    void sorts();
    void sortsByHandFirst();
    void oneUidTwice();
    void veryDeep();
    void keepsCompleted_data();
    void keepsCompleted();
};

void tst_TaskTree::flattens_data()
{
    QTest::addColumn<QList<Task>>("tasks");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QList<Task>() << QString();
    QTest::newRow("child before parent before grandparent")
        << QList<Task>{ task("c", "b"), task("b", "a"), task("a") } << QStringLiteral("a -b --c");
    QTest::newRow("list order without a comparator")
        << QList<Task>{ task("z"), task("b", "z"), task("a", "z"), task("y") } << QStringLiteral("z -b -a y");
    QTest::newRow("unknown parent") << QList<Task>{ task("a", "gone"), task("b", "a") } << QStringLiteral("a -b");
    QTest::newRow("cycle") << QList<Task>{ task("a", "b"), task("b", "a"), task("c", "b"), task("d") }
                           << QStringLiteral("a -b --c d");
    QTest::newRow("below a cycle") << QList<Task>{ task("c", "b"), task("b", "a"), task("a", "b") }
                                   << QStringLiteral("b -c -a");
    QTest::newRow("its own parent") << QList<Task>{ task("a", "a"), task("b") } << QStringLiteral("a b");
    QTest::newRow("no UIDs at all") << QList<Task>{ task(""), task("") } << QStringLiteral(" ");
}

void tst_TaskTree::flattens()
{
    QFETCH(QList<Task>, tasks);
    QTEST(outline(TaskTree::flatten(tasks)), "expected");
}

void tst_TaskTree::sorts()
{
    const QList<Task> tasks{ task("b"), task("d", "b"), task("a"), task("c", "b") };
    QCOMPARE(outline(TaskTree::flatten(tasks, byTitle)), QStringLiteral("a b -c -d"));
}

void tst_TaskTree::sortsByHandFirst()
{
    const QList<Task> tasks{ task("b"), task("a"), task("y", "", false, 5), task("x", "", false, 7),
                             task("z", "", false, -2) };
    QCOMPARE(outline(TaskTree::flatten(tasks, TaskTree::withManualSortOrder(byTitle))), QStringLiteral("z y x a b"));
    QCOMPARE(outline(TaskTree::flatten(tasks, TaskTree::withManualSortOrder({}))), QStringLiteral("z y x b a"));
}

void tst_TaskTree::oneUidTwice()
{
    // Two calendars can hold a task of one UID. A child is still listed once, and nothing goes round.
    const QList<Task> tasks{ task("a"), task("a"), task("c", "a"), task("a", "a") };
    QCOMPARE(outline(TaskTree::flatten(tasks)), QStringLiteral("a -c -a a"));
}

void tst_TaskTree::veryDeep()
{
    constexpr int depth = 30'000;
    QList<Task> tasks;
    tasks.reserve(depth);
    Task link = task("0", "", true);
    for (int i = 0; i < depth; ++i) {
        tasks.append(link);
        link.parentTaskUid = link.uid;
        link.uid = QString::number(i + 1);
    }
    tasks.last().status = TaskStatus::NeedsAction;
    QCOMPARE(TaskTree::flatten(tasks).last().depth, depth - 1);
    QCOMPARE(TaskTree::completedKeptByActiveTree(tasks).size(), depth - 1);
}

void tst_TaskTree::keepsCompleted_data()
{
    QTest::addColumn<QList<Task>>("tasks");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("nothing") << QList<Task>() << QStringList();
    QTest::newRow("all completed") << QList<Task>{ task("a", "", true), task("b", "a", true) } << QStringList();
    QTest::newRow("active grandchild") << QList<Task>{ task("a", "", true), task("b", "a", true), task("c", "b"),
                                                       task("d", "a", true) }
                                       << QStringList{ QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("d") };
    QTest::newRow("completed leaf of an active parent")
        << QList<Task>{ task("b", "a", true), task("a") } << QStringList{ QStringLiteral("b") };
    QTest::newRow("other trees do not help")
        << QList<Task>{ task("a", "", true), task("b"), task("c", "b", true) } << QStringList{ QStringLiteral("c") };
}

void tst_TaskTree::keepsCompleted()
{
    QFETCH(QList<Task>, tasks);
    QStringList kept = TaskTree::completedKeptByActiveTree(tasks).values();
    kept.sort();
    QTEST(kept, "expected");
}

QTEST_GUILESS_MAIN(tst_TaskTree)
#include "tst_TaskTree.moc"
