#include "ui/ActionTable.h"

#include <QWidget>

namespace {

// "&Go to &Today…" is "Go to Today" in a list of keys; "&&" stands for a real ampersand.
QString withoutMnemonic(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&' && ++i >= text.size())
            break;
        plain.append(text.at(i));
    }
    if (plain.endsWith(u'…'))
        plain.chop(1);
    return plain;
}

}

ActionTable::ActionTable(QWidget *window)
    : QObject(window)
    , m_window(window)
{
}

QAction *ActionTable::add(const Row &row)
{
    auto *action = new QAction(row.text, m_window);
    action->setMenuRole(row.role);
    action->setCheckable(row.checkable);
    QList<QKeySequence> keys;
    for (const QKeySequence &key : row.keys) {
        if (m_takenKeys.contains(key))
            continue;
        m_takenKeys.append(key);
        keys.append(key);
    }
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WindowShortcut);
    connect(action, &QAction::triggered, this, [run = row.run] { run(); });
    m_window->addAction(action);

    m_order.append(action);
    m_byId.insert(row.id, action);
    m_groups.insert(action, row.group);
    m_helpTexts.insert(action, row.helpText);
    if (row.needsCalendar)
        m_needCalendar.append(action);
    return action;
}

QAction *ActionTable::action(const QString &id) const
{
    return m_byId.value(id);
}

void ActionTable::setCalendarsExist(bool exist)
{
    for (QAction *action : std::as_const(m_needCalendar))
        action->setEnabled(exist);
}

QList<ShortcutInfo> ActionTable::shortcuts() const
{
    QStringList groups;
    QHash<QString, QList<ShortcutInfo>> byGroup;
    for (QAction *action : m_order) {
        if (action->shortcuts().isEmpty() || !action->isVisible())
            continue;
        const QString group = m_groups.value(action);
        if (!groups.contains(group))
            groups.append(group);
        const QString help = m_helpTexts.value(action);
        byGroup[group].append({ group, help.isEmpty() ? withoutMnemonic(action->text()) : help, action->shortcuts() });
    }
    QList<ShortcutInfo> result;
    for (const QString &group : std::as_const(groups))
        result += byGroup.value(group);
    return result;
}

QList<QKeySequence> ActionTable::keysFor(QKeySequence::StandardKey standard, const QKeySequence &fallback)
{
    const QList<QKeySequence> keys = QKeySequence::keyBindings(standard);
    return keys.isEmpty() ? QList<QKeySequence>{ fallback } : keys;
}
