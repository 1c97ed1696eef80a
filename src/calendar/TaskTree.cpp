#include "calendar/TaskTree.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace {

struct Node {
    qsizetype index; // in the flat list
    int depth;
};

constexpr qsizetype NoParent = -1;

/// The place of each task's parent in the list.
std::vector<qsizetype> parentsOf(const QList<Task> &tasks)
{
    QHash<QString, qsizetype> places;
    places.reserve(tasks.size());
    for (qsizetype i = tasks.size() - 1; i >= 0; --i) // where two tasks have one UID, the first is the parent
        places.insert(tasks.at(i).uid, i);
    std::vector<qsizetype> parents;
    parents.reserve(static_cast<size_t>(tasks.size()));
    for (const Task &task : tasks)
        parents.push_back(task.parentTaskUid.isEmpty() ? NoParent : places.value(task.parentTaskUid, NoParent));
    return parents;
}

/// Makes the first task of each cycle a root.
void breakCycles(std::vector<qsizetype> &parents)
{
    const auto parentOf = [&](qsizetype task) -> qsizetype & { return parents[static_cast<size_t>(task)]; };
    std::vector<qsizetype> walks(parents.size(), NoParent); // which walk came to a task
    const auto walkOf = [&](qsizetype task) -> qsizetype & { return walks[static_cast<size_t>(task)]; };
    for (qsizetype walk = 0; walk < std::ssize(parents); ++walk) {
        qsizetype task = walk;
        while (task != NoParent && walkOf(task) == NoParent) {
            walkOf(task) = walk;
            task = parentOf(task);
        }
        if (task == NoParent || walkOf(task) != walk)
            continue;
        qsizetype first = task; // the walk came round to where it had been
        for (qsizetype next = parentOf(task); next != task; next = parentOf(next))
            first = std::min(first, next);
        parentOf(first) = NoParent;
    }
}

/// The children of each task by its UID, roots under the empty one; as indices, in list order.
QHash<QString, std::vector<qsizetype>> groupByParent(const QList<Task> &tasks)
{
    std::vector<qsizetype> parents = parentsOf(tasks);
    breakCycles(parents);
    QHash<QString, std::vector<qsizetype>> groups;
    for (qsizetype i = 0; i < tasks.size(); ++i) {
        const qsizetype parent = parents[static_cast<size_t>(i)];
        groups[parent == NoParent ? QString() : tasks.at(parent).uid].push_back(i);
    }
    return groups;
}

/// Parents before their children. Without recursion: lists from files can be as deep as they are long.
std::vector<Node> depthFirst(const QList<Task> &tasks, const TaskTree::Comparator &less)
{
    QHash<QString, std::vector<qsizetype>> groups = groupByParent(tasks);
    std::vector<Node> order;
    order.reserve(tasks.size());
    std::vector<Node> stack;
    // Each group is taken out when it is reached: where two tasks have one UID the first gets the
    // children, and nothing can come round again.
    const auto pushGroup = [&](const QString &parent, int depth) {
        std::vector<qsizetype> group = groups.take(parent);
        if (less) {
            std::stable_sort(group.begin(), group.end(),
                             [&](qsizetype a, qsizetype b) { return less(tasks.at(a), tasks.at(b)); });
        }
        for (auto index = group.crbegin(); index != group.crend(); ++index)
            stack.push_back({ *index, depth });
    };
    pushGroup(QString(), 0);
    while (!stack.empty()) {
        const Node node = stack.back();
        stack.pop_back();
        order.push_back(node);
        pushGroup(tasks.at(node.index).uid, node.depth + 1);
    }
    return order;
}

}

QList<TreeTask> TaskTree::flatten(const QList<Task> &tasks, const Comparator &less)
{
    QList<TreeTask> result;
    result.reserve(tasks.size());
    for (const Node &node : depthFirst(tasks, less))
        result.append({ tasks.at(node.index), node.depth });
    return result;
}

TaskTree::Comparator TaskTree::withManualSortOrder(const Comparator &less)
{
    return [less](const Task &a, const Task &b) {
        if (a.sortOrder != 0 && b.sortOrder != 0)
            return a.sortOrder < b.sortOrder;
        if (a.sortOrder != 0 || b.sortOrder != 0)
            return a.sortOrder != 0;
        return less && less(a, b);
    };
}

QSet<QString> TaskTree::completedKeptByActiveTree(const QList<Task> &tasks)
{
    QSet<QString> kept;
    const std::vector<Node> order = depthFirst(tasks, {});
    const auto isRoot = [](const Node &node) { return node.depth == 0; };
    for (auto tree = order.begin(); tree != order.end();) {
        const auto treeEnd = std::find_if(tree + 1, order.end(), isRoot);
        const auto isCompleted = [&](const Node &node) { return tasks.at(node.index).isCompleted(); };
        if (!std::all_of(tree, treeEnd, isCompleted)) {
            for (auto node = tree; node != treeEnd; ++node) {
                if (isCompleted(*node))
                    kept.insert(tasks.at(node->index).uid);
            }
        }
        tree = treeEnd;
    }
    return kept;
}
