#include "ui/actions/EventContextMenu.h"

#include "app/state/AppState.h"
#include "calendar/FilterEngine.h"
#include "calendar/services/EventText.h"
#include "storage/FilterRuleRepository.h"
#include "ui/theme/Theme.h"

EventContextMenu::EventContextMenu(AppState *state, const Event &event, QWidget *parent)
    : QMenu(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    addAction(tr("Edit…"), this, &EventContextMenu::editRequested);
    m_delete = addAction(tr("Delete"), this, &EventContextMenu::deleteRequested);
    addSeparator();
    if (const auto rule = FilterEngine::firstMatchingRule(event, state->filterRules()->getAll())) {
        addAction(tr("Edit filter \"%1\"…").arg(Theme::plainLabel(EventText::shortName(rule->name))), this,
                  [this, rule = *rule] { emit filterEditRequested(rule); });
    }
    addAction(tr("Create Filter from Event…"), this, [this, event] { emit filterFromEventRequested(event); });
}

void EventContextMenu::setDeletable(bool deletable)
{
    m_delete->setEnabled(deletable);
}
