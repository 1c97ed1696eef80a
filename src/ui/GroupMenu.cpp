#include "ui/GroupMenu.h"

#include "app/state/AppState.h"
#include "models/ViewDef.h"
#include "storage/ViewRepository.h"
#include "ui/ActionTable.h"
#include "ui/dialogs/GroupName.h"
#include "ui/theme/Theme.h"

#include <QMenu>

GroupMenu::GroupMenu(AppState *state, ActionTable *table, QMenu *menu)
    : QObject(menu)
    , m_state(state)
    , m_menu(menu)
{
    addRows(table);
    connect(state, &AppState::activeViewChanged, this, &GroupMenu::refresh);
    connect(state->views(), &ViewRepository::viewsChanged, this, &GroupMenu::refresh);
    refresh();
}

void GroupMenu::addRows(ActionTable *table)
{
    const QString group = tr("Calendar groups");
    m_next = table->add({ .id = QStringLiteral("nextGroup"),
                          .group = group,
                          .text = tr("&Next Group"),
                          .keys = { QKeySequence(Qt::CTRL | Qt::Key_BracketRight) },
                          .run = [this] { activateNeighbour(1); } });
    m_previous = table->add({ .id = QStringLiteral("previousGroup"),
                              .group = group,
                              .text = tr("&Previous Group"),
                              .keys = { QKeySequence(Qt::CTRL | Qt::Key_BracketLeft) },
                              .run = [this] { activateNeighbour(-1); } });
    for (int position = 0; position < NumberedGroups; ++position) {
        m_numbered.append(table->add({ .id = QStringLiteral("group%1").arg(position + 1),
                                       .group = group,
                                       .text = {},
                                       .keys = { QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + position)) },
                                       .run = [this, position] { activateAt(position); },
                                       .checkable = true }));
    }
}

void GroupMenu::activateAt(int position)
{
    const QList<ViewDef> groups = m_state->views()->getAll();
    if (position < groups.size())
        m_state->setActiveViewId(groups.at(position).id);
    refresh(); // the click may have unchecked the active group
}

void GroupMenu::activateNeighbour(int step)
{
    const QList<ViewDef> groups = m_state->views()->getAll();
    if (groups.isEmpty())
        return;
    qsizetype current = -1;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        if (groups.at(i).id == m_state->activeViewId())
            current = i;
    }
    const qsizetype count = groups.size();
    const qsizetype target = current < 0 ? 0 : (current + step + count) % count;
    m_state->setActiveViewId(groups.at(target).id);
}

void GroupMenu::refresh()
{
    m_menu->clear();
    for (QAction *action : std::as_const(m_further))
        action->deleteLater();
    m_further.clear();
    const QList<ViewDef> groups = m_state->views()->getAll();
    for (qsizetype i = 0; i < groups.size(); ++i) {
        QAction *action = i < NumberedGroups ? m_numbered.at(i) : new QAction(this);
        if (i >= NumberedGroups) {
            action->setCheckable(true);
            connect(action, &QAction::triggered, this, [this, i] { activateAt(int(i)); });
            m_further.append(action);
        }
        action->setText(Theme::plainLabel(groupDisplayName(groups.at(i))));
        action->setIcon(Theme::calendarDotIcon(groups.at(i).color));
        action->setChecked(groups.at(i).id == m_state->activeViewId());
        m_menu->addAction(action);
    }
    for (qsizetype i = 0; i < NumberedGroups; ++i)
        m_numbered.at(i)->setVisible(i < groups.size());
    m_menu->addSeparator();
    m_menu->addAction(m_next);
    m_menu->addAction(m_previous);
}
