#pragma once

#include "models/Task.h"

#include <QList>
#include <QSet>
#include <QString>

#include <functional>

/// Tasks in the depth-first order of their tree. A task whose parent is not in the list is a root, and so is
/// the first task of a cycle of parents: every task appears, once.
namespace TaskTree {

using Comparator = std::function<bool(const Task &, const Task &)>;

/// Parents before their children; siblings by \p less if it is set, else in list order.
QList<TreeTask> flatten(const QList<Task> &tasks, const Comparator &less = {});

/// Tasks with a place chosen by hand first, by that place; the others by \p less.
Comparator withManualSortOrder(const Comparator &less);

/// UIDs of the completed tasks that stay visible when completed ones are hidden, because their tree
/// holds an active task.
QSet<QString> completedKeptByActiveTree(const QList<Task> &tasks);

} // namespace TaskTree
