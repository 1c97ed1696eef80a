#include "ui/dialogs/ManageFiltersDialog.h"

#include "app/state/AppState.h"
#include "storage/FilterRuleRepository.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/FilterText.h"

ManageFiltersDialog::ManageFiltersDialog(AppState *state, QWidget *parent)
    : OrderedListDialog(tr("Manage Filters"),
                        tr("No filters yet. A filter hides or dims events on this device; it never changes them."),
                        parent)
    , m_state(state)
{
    refill();
    connect(state->filterRules(), &FilterRuleRepository::filterRulesChanged, this, &ManageFiltersDialog::refill,
            Qt::QueuedConnection);
}

QList<OrderedListDialog::Row> ManageFiltersDialog::rows()
{
    QList<Row> rows;
    const QList<FilterRule> rules = m_state->filterRules()->getAll();
    for (const FilterRule &rule : rules) {
        rows.append({ .id = rule.id,
                      .title = rule.name.simplified(),
                      .detail = FilterText::describe(rule, m_state),
                      .icon = {},
                      .checkable = true,
                      .checked = rule.enabled });
    }
    return rows;
}

void ManageFiltersDialog::addRow()
{
    (new FilterFormDialog(m_state, this))->open();
}

void ManageFiltersDialog::editRow(const QString &id)
{
    if (const auto rule = m_state->filterRules()->getById(id))
        (new FilterFormDialog(m_state, *rule, this))->open();
}

void ManageFiltersDialog::deleteRow(const QString &id)
{
    if (const auto rule = m_state->filterRules()->getById(id))
        FilterFormDialog::askToDelete(m_state, *rule, this);
}

void ManageFiltersDialog::setRowChecked(const QString &id, bool checked)
{
    m_state->filterRules()->setEnabled(id, checked);
}

void ManageFiltersDialog::reorder(const QStringList &ids)
{
    m_state->filterRules()->reorder(ids);
}
