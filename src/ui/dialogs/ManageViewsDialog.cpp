#include "ui/dialogs/ManageViewsDialog.h"

#include "app/state/AppState.h"
#include "models/Calendar.h"
#include "models/ViewDef.h"
#include "storage/CalendarRepository.h"
#include "storage/ViewRepository.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/GroupName.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/theme/Theme.h"

ManageViewsDialog::ManageViewsDialog(AppState *state, QWidget *parent)
    : OrderedListDialog(tr("Manage Calendar Groups"),
                        tr("No groups yet. A group shows the calendars you choose, under one name."), parent)
    , m_state(state)
{
    refill();
    connect(state->views(), &ViewRepository::viewsChanged, this, &ManageViewsDialog::refill, Qt::QueuedConnection);
}

void ManageViewsDialog::askToDelete(AppState *state, const ViewDef &view, QWidget *parent)
{
    Prompt::question(parent, tr("Delete group?"),
                     tr("Delete \"%1\"? You can recreate it later.").arg(groupDisplayName(view)), state,
                     [state, id = view.id] {
                         if (state->views()->softDelete(id) && state->activeViewId() == id)
                             state->setActiveViewId(ViewDefaults::AllCalendarsId);
                     });
}

QList<OrderedListDialog::Row> ManageViewsDialog::rows()
{
    QHash<QString, QString> names;
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars)
        names.insert(calendar.id, calendar.name.simplified());

    QList<Row> rows;
    const QList<ViewDef> views = m_state->views()->getAll();
    for (const ViewDef &view : views) {
        QStringList members;
        const QStringList ids = CalendarChecklist::idsFromJson(view.calendarIds);
        for (const QString &id : ids) {
            if (names.contains(id))
                members.append(names.value(id));
        }
        rows.append({ .id = view.id,
                      .title = groupDisplayName(view).simplified(),
                      .detail = members.isEmpty() ? tr("All visible calendars") : members.join(QStringLiteral(", ")),
                      .icon = Theme::calendarDotIcon(view.color),
                      .pinned = view.id == ViewDefaults::AllCalendarsId });
    }
    return rows;
}

void ManageViewsDialog::addRow()
{
    (new ViewFormDialog(m_state, this))->open();
}

void ManageViewsDialog::editRow(const QString &id)
{
    if (const auto view = m_state->views()->getById(id))
        (new ViewFormDialog(m_state, *view, this))->open();
}

void ManageViewsDialog::deleteRow(const QString &id)
{
    if (const auto view = m_state->views()->getById(id))
        askToDelete(m_state, *view, this);
}

void ManageViewsDialog::reorder(const QStringList &ids)
{
    m_state->views()->reorder(ids);
}
