#include "ui/dialogs/CalendarFormDialog.h"

#include "app/state/AppState.h"
#include "app/state/LocalAccount.h"
#include "storage/CalendarRepository.h"
#include "ui/dialogs/ColorButton.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QUuid>
#include <QVBoxLayout>

#include <algorithm>

CalendarFormDialog::CalendarFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Calendar"), parent)
    , m_state(state)
{
    build();
    QStringList used;
    const QList<Calendar> calendars = state->calendars()->getAll();
    for (const Calendar &calendar : calendars)
        used.append(calendar.color);
    m_color->setColor(ColorButton::unusedColor(used));
    body()->addStretch();
    addSaveButtons(tr("Create"));
}

CalendarFormDialog::CalendarFormDialog(AppState *state, const Calendar &calendar, QWidget *parent)
    : FormDialog(tr("Edit Calendar"), parent)
    , m_state(state)
    , m_original(calendar)
    , m_editing(true)
{
    build();
    showName(m_name, calendar.name);
    m_name->selectAll();
    m_color->setColor(calendar.color);
    m_description->setPlainText(calendar.description);
    if (calendar.isReadOnly) {
        m_description->setReadOnly(true);
        body()->addWidget(makeHint(tr("This calendar is read-only. Its name and color change on this device only.")));
    }
    body()->addStretch();
    addSaveButtons(tr("Save"));
}

void CalendarFormDialog::build()
{
    m_name = new QLineEdit(this);
    m_name->setMaxLength(MaxNameLength);
    m_name->setPlaceholderText(tr("Calendar name"));
    m_color = new ColorButton(this);
    m_description = new QPlainTextEdit(this);
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight(fontMetrics().lineSpacing() * 4 + 16);
    QFormLayout *form = addForm();
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Color"), m_color);
    form->addRow(tr("&Description"), m_description);
    m_name->setFocus();
}

Calendar CalendarFormDialog::newCalendar() const
{
    const QList<Calendar> others = m_state->calendars()->getAll();
    Calendar calendar;
    calendar.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    calendar.accountId = LocalDefaults::LocalAccountId;
    calendar.url = LocalDefaults::CalendarUrlPrefix + calendar.id;
    calendar.supportedComponents = QStringLiteral("[\"VEVENT\",\"VTODO\"]");
    calendar.syncEnabled = true;
    calendar.isDefault = others.isEmpty();
    for (const Calendar &other : others)
        calendar.sortOrder = std::max(calendar.sortOrder, other.sortOrder);
    calendar.createdAt = QDateTime::currentDateTimeUtc();
    return calendar;
}

bool CalendarFormDialog::save()
{
    const QString name = m_name->text().trimmed();
    if (name.isEmpty()) {
        showProblem(tr("Enter a name for the calendar."), m_name);
        return false;
    }
    // A sync may have changed the row while the form was open; only what the form shows is replaced.
    std::optional<Calendar> calendar =
        m_editing ? m_state->calendars()->getById(m_original.id) : std::optional(newCalendar());
    if (!calendar) {
        showProblem(tr("This calendar was deleted in the meantime."), nullptr);
        return false;
    }
    calendar->name = name;
    calendar->color = m_color->color();
    if (m_description->document()->isModified()) // else its line ends stay as the server wrote them
        calendar->description = m_description->toPlainText();
    calendar->updatedAt = QDateTime::currentDateTimeUtc();
    const bool stored = m_editing ? m_state->calendars()->update(*calendar)
                                  : LocalAccount::ensure(m_state) && m_state->calendars()->insert(*calendar);
    if (!stored) {
        showProblem(tr("The calendar could not be saved."), nullptr);
        return false;
    }
    m_resultId = calendar->id;
    return true;
}
