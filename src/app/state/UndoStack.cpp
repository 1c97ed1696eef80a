#include "app/state/UndoStack.h"

#include <utility>

void UndoStack::push(Action action)
{
    if (!action.undo)
        return;
    m_actions.append(std::move(action));
    while (m_actions.size() > MaxActions)
        m_actions.removeFirst();
    emit changed();
}

QString UndoStack::topSummary() const
{
    return m_actions.isEmpty() ? QString() : m_actions.constLast().summary;
}

void UndoStack::undo()
{
    if (m_actions.isEmpty())
        return;
    const Action action = m_actions.takeLast();
    m_why.clear();
    action.undo();
    emit changed();
    if (m_why.isEmpty())
        emit undone(action.summary);
    else
        emit failed(m_why);
}

void UndoStack::clear()
{
    if (m_actions.isEmpty())
        return;
    m_actions.clear();
    emit changed();
}
