#include "ui/actions/TaskActions.h"

#include "app/state/AppState.h"
#include "calendar/services/TaskText.h"
#include "storage/TaskRepository.h"
#include "ui/actions/Later.h"
#include "ui/actions/TaskDetailsPopover.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/TaskFormDialog.h"

#include <QMenu>
#include <QWidget>

#include <optional>

namespace {

std::optional<Task> liveTask(AppState *state, const QString &id)
{
    auto task = state->tasks()->getById(id);
    return task && !task->deletedAt ? task : std::nullopt;
}

}

TaskActions::TaskActions(AppState *state, QWidget *window)
    : QObject(window)
    , m_state(state)
    , m_window(window)
{
}

void TaskActions::open(const QString &id, const QRect &globalRect)
{
    const auto task = liveTask(m_state, id);
    if (!task)
        return;
    auto *popover = new TaskDetailsPopover(m_state, *task, m_window);
    connect(popover, &TaskDetailsPopover::editRequested, this, &TaskActions::edit);
    connect(popover, &DetailsPopover::openingClickDoubled, this, [this, id] { edit(id); });
    connect(popover, &TaskDetailsPopover::deleteRequested, this, &TaskActions::remove);
    connect(popover, &TaskDetailsPopover::completeRequested, this, &TaskActions::setCompleted);
    connect(popover, &TaskDetailsPopover::eventRequested, this, &TaskActions::eventRequested);
    popover->showNear(globalRect);
}

void TaskActions::openByUid(const QString &uid)
{
    if (const auto task = m_state->tasks()->findByUid(uid))
        open(task->id, {});
}

void TaskActions::edit(const QString &id)
{
    later(this, [this, id] {
        if (auto *popover = DetailsPopover::current(m_window))
            popover->dismiss();
        if (const auto task = liveTask(m_state, id))
            (new TaskFormDialog(m_state, *task, m_window))->open();
    });
}

void TaskActions::create()
{
    later(this, [this] { (new TaskFormDialog(m_state, m_window))->open(); });
}

void TaskActions::createSubtask(const QString &parentId)
{
    later(this, [this, parentId] {
        const auto parentTask = liveTask(m_state, parentId);
        if (!parentTask)
            return;
        auto *form = new TaskFormDialog(m_state, m_window);
        form->setParentTask(*parentTask);
        form->open();
    });
}

void TaskActions::setCompleted(const QString &id, bool completed)
{
    report(TaskEdits::setCompleted(m_state, id, completed));
}

void TaskActions::remove(const QString &id)
{
    const auto task = liveTask(m_state, id);
    if (!task)
        return;
    if (TaskEdits::isReadOnly(m_state, *task))
        return report(TaskEdits::remove(m_state, id)); // refuses, and says why
    later(this, [this, id, title = TaskText::title(*task)] {
        Prompt::question(m_window, tr("Delete task?"), tr("Delete \"%1\"? Its subtasks stay.").arg(title), this,
                         [this, id] { report(TaskEdits::remove(m_state, id)); });
    });
}

void TaskActions::place(const QString &uid, const QString &targetUid, TaskEdits::DropZone zone)
{
    later(this, [this, uid, targetUid, zone] {
        if (const auto outcome = TaskEdits::place(m_state, uid, targetUid, zone); !outcome.why.isEmpty())
            Prompt::information(m_window, tr("Can't move task"), outcome.why);
    });
}

void TaskActions::showContextMenu(const QString &id, const QPoint &globalPos)
{
    const auto task = liveTask(m_state, id);
    if (!task)
        return;
    const bool isWritable = !TaskEdits::isReadOnly(m_state, *task);
    auto *menu = new QMenu(m_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Edit…"), this, [this, id] { edit(id); });
    menu->addAction(task->isCompleted() ? tr("Mark as Not Completed") : tr("Mark as Completed"), this,
                    [this, id, done = !task->isCompleted()] { setCompleted(id, done); })
        ->setEnabled(isWritable);
    menu->addAction(tr("Add Subtask…"), this, [this, id] { createSubtask(id); })
        ->setEnabled(TaskEdits::writableCalendarIds(m_state).contains(task->calendarId));
    menu->addSeparator();
    menu->addAction(tr("Delete"), this, [this, id] { remove(id); })->setEnabled(isWritable);
    menu->popup(globalPos);
}

void TaskActions::report(const TaskEdits::Outcome &outcome)
{
    if (!outcome.why.isEmpty())
        emit message(outcome.why);
}
