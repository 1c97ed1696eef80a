#include "ui/dialogs/ViewFormDialog.h"

#include "app/state/AppState.h"
#include "models/NewId.h"
#include "storage/ViewRepository.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/ColorButton.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

ViewFormDialog::ViewFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Calendar Group"), parent)
    , m_state(state)
{
    m_original.id = newId();
    m_original.createdAt = QDateTime::currentDateTimeUtc();
    QStringList used;
    const QList<ViewDef> views = state->views()->getAll();
    for (const ViewDef &view : views) {
        used.append(view.color);
        m_original.sortOrder = std::max(m_original.sortOrder, view.sortOrder + 1);
    }
    m_original.color = ColorButton::unusedColor(used);
    build();
    addSaveButtons(tr("Create"));
}

ViewFormDialog::ViewFormDialog(AppState *state, const ViewDef &view, QWidget *parent)
    : FormDialog(tr("Edit Calendar Group"), parent)
    , m_state(state)
    , m_original(view)
    , m_editing(true)
{
    build();
    addSaveButtons(tr("Save"));
}

void ViewFormDialog::build()
{
    m_name = new QLineEdit(this);
    showName(m_name, m_original.name);
    m_name->setPlaceholderText(tr("Group name"));
    m_name->selectAll();
    m_color = new ColorButton(this);
    m_color->setColor(m_original.color);
    QFormLayout *form = addForm();
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Color"), m_color);

    m_calendars = new CalendarChecklist(m_state, this);
    m_calendars->setCheckedIds(CalendarChecklist::idsFromJson(m_original.calendarIds));
    QLabel *section = addSection(tr("C&alendars"));
    section->setBuddy(m_calendars);
    body()->addWidget(m_calendars, 1);
    const bool builtIn = m_original.id == ViewDefaults::AllCalendarsId;
    body()->addWidget(makeHint(builtIn ? tr("This group shows all visible calendars, unless you check some here.")
                                       : tr("With none checked, the group shows all visible calendars.")));
    m_name->setFocus();
}

bool ViewFormDialog::save()
{
    const QString name = m_name->text().trimmed();
    if (name.isEmpty()) {
        showProblem(tr("Enter a name for the group."), m_name);
        return false;
    }
    ViewDef view = m_original;
    if (m_editing) {
        const std::optional<ViewDef> current = m_state->views()->getById(m_original.id);
        if (!current || current->deletedAt) {
            showProblem(tr("This group was deleted in the meantime."), nullptr);
            return false;
        }
        view = *current;
    }
    view.name = name;
    // A group without a color stays without one until the user chooses.
    if (!view.color.isEmpty() || m_color->color() != DefaultColor)
        view.color = m_color->color();
    view.calendarIds = m_calendars->checkedIdsJson();
    view.syncStatus = SyncStatus::Pending;
    view.updatedAt = QDateTime::currentDateTimeUtc();
    if (!(m_editing ? m_state->views()->update(view) : m_state->views()->insert(view))) {
        showProblem(tr("The group could not be saved."), nullptr);
        return false;
    }
    m_resultId = view.id;
    return true;
}
