#include "ui/forms/ManageTemplatesDialog.h"

#include "app/state/AppState.h"
#include "models/EventTemplate.h"
#include "storage/TemplateRepository.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/DateTimePicker.h"
#include "ui/forms/TemplateFormDialog.h"
#include "ui/theme/Theme.h"

ManageTemplatesDialog::ManageTemplatesDialog(AppState *state, QWidget *parent)
    : OrderedListDialog(tr("Manage Templates"),
                        tr("No templates yet. A template fills in a new event: title, place, length, reminders."),
                        parent)
    , m_state(state)
{
    refill();
    connect(state->templates(), &TemplateRepository::templatesChanged, this, &ManageTemplatesDialog::refill,
            Qt::QueuedConnection);
}

QList<OrderedListDialog::Row> ManageTemplatesDialog::rows()
{
    QList<Row> rows;
    const QList<EventTemplate> templates = m_state->templates()->getAll();
    for (const EventTemplate &entry : templates) {
        const QString length = entry.isAllDay ? tr("All day") : DateTimePicker::durationText(entry.durationMinutes);
        const QString detail = entry.title.isEmpty() || entry.title == entry.name
            ? length
            : tr("%1 · %2", "title, length").arg(entry.title.simplified(), length);
        rows.append({ .id = entry.id,
                      .title = entry.name.simplified(),
                      .detail = detail,
                      .icon = Theme::calendarDotIcon(entry.color) });
    }
    return rows;
}

void ManageTemplatesDialog::addRow()
{
    (new TemplateFormDialog(m_state, this))->open();
}

void ManageTemplatesDialog::editRow(const QString &id)
{
    if (const auto entry = m_state->templates()->getById(id))
        (new TemplateFormDialog(m_state, *entry, this))->open();
}

void ManageTemplatesDialog::deleteRow(const QString &id)
{
    const auto entry = m_state->templates()->getById(id);
    if (!entry)
        return;
    Prompt::question(this, tr("Delete template?"), tr("Delete \"%1\"? Events made from it stay.").arg(entry->name),
                     m_state, [state = m_state, id] { state->templates()->softDelete(id); });
}

void ManageTemplatesDialog::reorder(const QStringList &ids)
{
    m_state->templates()->reorder(ids);
}
