#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

/// The changes of events that can be taken back, twenty at most; the oldest goes first. Not stored: a
/// restart forgets them. There is no redo.
class UndoStack : public QObject {
    Q_OBJECT

public:
    struct Action {
        QString summary; ///< what the user sees, translated: "Moved "Standup""
        std::function<void()> undo; ///< holds its own snapshot; called once
    };

    static constexpr int MaxActions = 20;

    using QObject::QObject;

    /// An action without an undo is ignored.
    void push(Action action);
    [[nodiscard]] bool canUndo() const { return !m_actions.isEmpty(); }
    [[nodiscard]] QString topSummary() const; ///< of the change that undo() takes back next
    /// Takes the last change back; does nothing if there is none.
    void undo();
    /// To be called by an action's undo that cannot take its change back, with a translated reason.
    void fail(const QString &why) { m_why = why; }
    void clear();

signals:
    void changed();
    void undone(const QString &summary);
    void failed(const QString &why); ///< in place of undone()

private:
    QList<Action> m_actions; // oldest first
    QString m_why; // of the action that runs
};
