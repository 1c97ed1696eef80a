#include "calendar/TaskTree.h"
#include "support/TestData.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Tasks written "uid", "uid<parent", with "!" in front of a completed one and "=order" behind.
QList<Task> tasksFrom(const QString &text)
{
    static const QRegularExpression form(u"(!?)(\\w+)(?:<(\\w+))?(?:=(-?\\d+))?"_s);
    QList<Task> tasks;
    for (const QRegularExpressionMatch &match : form.globalMatch(text)) {
        Task &task = tasks.emplace_back();
        task.uid = task.title = match.captured(2);
        task.parentTaskUid = match.captured(3);
        task.status = match.captured(1).isEmpty() ? TaskStatus::NeedsAction : TaskStatus::Completed;
        task.sortOrder = match.captured(4).toInt();
    }
    return tasks;
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
    void flattens_data()
    {
        columns<QString, QString, QString>("tasks", "expected", "sorted");
        row("child before parent before grandparent", "c<b b<a a", "a -b --c", "a -b --c");
        row("siblings", "z b<z a<z y", "z -b -a y", "y z -a -b");
        row("unknown parent", "a<gone b<a", "a -b", "a -b");
        row("cycle", "a<b b<a c<b d", "a -b --c d", "a -b --c d");
        row("below a cycle", "c<b b<a a<b", "b -c -a", "b -a -c");
        row("its own parent", "a<a b", "a b", "a b");
        // Two calendars can hold a task of one UID. A child is still listed once, and nothing goes round.
        row("one UID twice", "a a c<a a<a", "a -c -a a", "a -a -c a");
        row("sorted by hand first", "b a y=5 x=7 z=-2", "b a y x z", "z y x a b");
    }
    void flattens()
    {
        QFETCH(QString, tasks);
        QTEST(outline(TaskTree::flatten(tasksFrom(tasks))), "expected");
        QTEST(outline(TaskTree::flatten(tasksFrom(tasks), TaskTree::withManualSortOrder(byTitle))), "sorted");
    }

    void veryDeep()
    {
        constexpr int depth = 30'000;
        QList<Task> tasks(depth);
        for (int i = 0; i < depth; ++i) {
            tasks[i].uid = QString::number(i);
            tasks[i].parentTaskUid = QString::number(i - 1);
            tasks[i].status = TaskStatus::Completed;
        }
        tasks.last().status = TaskStatus::NeedsAction;
        QCOMPARE(TaskTree::flatten(tasks).last().depth, depth - 1);
        QCOMPARE(TaskTree::completedKeptByActiveTree(tasks).size(), depth - 1);
    }

    void keepsCompleted_data()
    {
        columns<QString, QString>("tasks", "expected");
        row("all completed", "!a !b<a", "");
        row("active grandchild", "!a !b<a c<b !d<a", "a b d");
        row("completed leaf of an active parent", "!b<a a", "b");
        row("other trees do not help", "!a b !c<b", "c");
    }
    void keepsCompleted()
    {
        QFETCH(QString, tasks);
        QStringList kept = TaskTree::completedKeptByActiveTree(tasksFrom(tasks)).values();
        kept.sort();
        QTEST(kept.join(u' '), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_TaskTree)
#include "tst_TaskTree.moc"
