#include "ui/GroupButton.h"

#include "app/state/AppState.h"
#include "models/ViewDef.h"
#include "storage/ViewRepository.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/theme/Theme.h"

#include <QActionGroup>
#include <QMenu>

#include <algorithm>

GroupButton::GroupButton(AppState *state, QWidget *parent)
    : QToolButton(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("groupButton"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setPopupMode(QToolButton::InstantPopup);
    setAutoRaise(true);
    setCursor(Qt::PointingHandCursor);
    setToolTip(tr("Calendar group"));
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSize(Theme::FontSizeBody + 1);
    setFont(bold);
    connect(state, &AppState::activeViewChanged, this, &GroupButton::refresh);
    connect(state->views(), &ViewRepository::viewsChanged, this, &GroupButton::refresh);
    refresh();
}

void GroupButton::refresh()
{
    const QList<ViewDef> groups = m_state->views()->getAll();
    const auto active = std::find_if(groups.begin(), groups.end(),
                                     [this](const ViewDef &group) { return group.id == m_state->activeViewId(); });
    const bool found = active != groups.end();
    setText(found ? Theme::plainLabel(active->name) : tr("All Calendars"));
    setAccessibleName(tr("Calendar group: %1").arg(found ? active->name : tr("All Calendars")));
    setIcon(Theme::calendarDotIcon(found ? active->color : QString()));

    auto *menu = new QMenu(this);
    addGroupEntries(menu, groups);
    addEditEntries(menu, found ? &*active : nullptr);
    // The change may come from an entry of the old menu, which is still at work then.
    if (QMenu *old = this->menu())
        old->deleteLater();
    setMenu(menu);
}

void GroupButton::addGroupEntries(QMenu *menu, const QList<ViewDef> &groups)
{
    auto *exclusive = new QActionGroup(menu);
    for (const ViewDef &group : groups) {
        QAction *action = menu->addAction(Theme::plainLabel(group.name));
        if (!group.color.isEmpty())
            action->setIcon(Theme::calendarDotIcon(group.color));
        action->setCheckable(true);
        action->setChecked(group.id == m_state->activeViewId());
        exclusive->addAction(action);
        connect(action, &QAction::triggered, this, [this, id = group.id] { m_state->setActiveViewId(id); });
    }
    if (!groups.isEmpty())
        menu->addSeparator();
}

void GroupButton::addEditEntries(QMenu *menu, const ViewDef *active)
{
    connect(menu->addAction(tr("Add Calendar Group…")), &QAction::triggered, this,
            [this] { createGroup(m_state, window()); });
    if (!active)
        return;
    connect(menu->addAction(tr("Edit Current Group…")), &QAction::triggered, this,
            [this, group = *active] { (new ViewFormDialog(m_state, group, window()))->open(); });
    if (active->id == ViewDefaults::AllCalendarsId)
        return;
    connect(menu->addAction(tr("Delete Current Group")), &QAction::triggered, this,
            [this, group = *active] { ManageViewsDialog::askToDelete(m_state, group, window()); });
}

void GroupButton::createGroup(AppState *state, QWidget *window)
{
    auto *dialog = new ViewFormDialog(state, window);
    connect(dialog, &QDialog::accepted, state, [state, dialog] {
        if (!dialog->resultViewId().isEmpty())
            state->setActiveViewId(dialog->resultViewId());
    });
    dialog->open();
}
