#include "ui/GroupButton.h"

#include "app/state/AppState.h"
#include "models/ViewDef.h"
#include "storage/ViewRepository.h"
#include "ui/dialogs/GroupName.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/theme/Theme.h"

#include <QActionGroup>
#include <QEvent>
#include <QMenu>

#include <algorithm>

namespace {

constexpr int MaxNamePx = 220; // the row's other buttons and the date need their room

}

GroupButton::GroupButton(AppState *state, QWidget *parent)
    : QToolButton(parent)
    , m_state(state)
{
    setObjectName(QStringLiteral("groupButton"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setPopupMode(QToolButton::InstantPopup);
    setAutoRaise(true);
    setCursor(Qt::PointingHandCursor);
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
    m_name = found ? groupDisplayName(*active) : allCalendarsName();
    showName();
    setAccessibleName(tr("Calendar group: %1").arg(m_name));
    setIcon(Theme::calendarDotIcon(found ? active->color : QString()));

    auto *menu = new QMenu(this);
    addGroupEntries(menu, groups);
    addEditEntries(menu, found ? &*active : nullptr);
    // The change may come from an entry of the old menu, which is still at work then.
    if (QMenu *old = this->menu())
        old->deleteLater();
    setMenu(menu);
}

void GroupButton::showName()
{
    const QString shown = fontMetrics().elidedText(m_name, Qt::ElideRight, MaxNamePx);
    setText(u' ' + Theme::plainLabel(shown)); // the style leaves hardly any room beside the dot
    setToolTip(shown == m_name ? tr("Calendar group") : Theme::plainToolTip(m_name));
}

void GroupButton::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        showName();
}

void GroupButton::addGroupEntries(QMenu *menu, const QList<ViewDef> &groups)
{
    auto *exclusive = new QActionGroup(menu);
    for (const ViewDef &group : groups) {
        QAction *action = menu->addAction(Theme::plainLabel(groupDisplayName(group)));
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
