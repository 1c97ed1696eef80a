#include "ui/CalendarMenu.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "models/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "sync/SyncScheduler.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/accounts/CalendarRemoval.h"
#include "ui/dialogs/ColorButton.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"
#include "ui/theme/Theme.h"

#include <QActionGroup>

CalendarMenu::CalendarMenu(AppState *state, const Calendar &calendar, QWidget *parent)
    : QMenu(parent)
    , m_state(state)
    , m_calendar(calendar)
{
    setAttribute(Qt::WA_DeleteOnClose);
    connect(addAction(tr("&Rename")), &QAction::triggered, this, [this] { emit renameRequested(m_calendar.id); });
    addColors();
    const QString current = ImportDialog::defaultTarget(state, ImportDialog::writableCalendars(state));
    if (!calendar.isReadOnly && calendar.id != current)
        connect(addAction(tr("Make &Default")), &QAction::triggered, this, &CalendarMenu::makeDefault);
    addSeparator();
    addVisibility();
    addSeparator();
    connect(addAction(tr("&Edit…")), &QAction::triggered, this,
            [this] { (new CalendarFormDialog(m_state, m_calendar, parentWidget()->window()))->open(); });
    addDelete();
}

void CalendarMenu::addColors()
{
    QMenu *colors = addMenu(tr("&Color"));
    auto *exclusive = new QActionGroup(colors);
    for (const ColorButton::Swatch &swatch : ColorButton::palette()) {
        QAction *action = colors->addAction(Theme::calendarDotIcon(swatch.color), swatch.name);
        action->setCheckable(true);
        action->setChecked(swatch.color.compare(m_calendar.color, Qt::CaseInsensitive) == 0);
        exclusive->addAction(action);
        connect(action, &QAction::triggered, this, [this, color = swatch.color] { setColor(color); });
    }
}

void CalendarMenu::addVisibility()
{
    connect(addAction(tr("Show &Only This")), &QAction::triggered, this, &CalendarMenu::showOnly);
    connect(addAction(tr("Show &All")), &QAction::triggered, this, &CalendarMenu::showAll);
}

// Only what lives on this device alone can be deleted; the rest belongs to a server, which keeps it.
void CalendarMenu::addDelete()
{
    const auto account = m_state->accounts()->getById(m_calendar.accountId);
    if (account && SyncScheduler::isCalDavFamily(*account)) {
        connect(addAction(tr("Re&move from This Device…")), &QAction::triggered, this,
                [this] { CalendarRemoval::ask(m_state, m_calendar, parentWidget()->window()); });
        return;
    }
    if (!account || account->type != AccountType::Quillon)
        return;
    connect(addAction(tr("De&lete Calendar…")), &QAction::triggered, this, [this] {
        // The question outlives this menu, so the answer must not depend on it.
        const auto erase = [state = m_state, id = m_calendar.id] { state->calendars()->removeDeep(id); };
        Prompt::question(parentWidget()->window(), tr("Delete calendar?"),
                         tr("Delete \"%1\" and all its events? This cannot be undone.").arg(m_calendar.name), m_state,
                         erase);
    });
}

void CalendarMenu::setColor(const QString &color)
{
    auto calendar = m_state->calendars()->getById(m_calendar.id);
    if (!calendar || calendar->color == color)
        return;
    calendar->color = color;
    calendar->updatedAt = QDateTime::currentDateTimeUtc();
    m_state->calendars()->update(*calendar);
}

// The user's explicit choice is asked before the calendar's own mark, so both have to follow.
void CalendarMenu::makeDefault()
{
    m_state->calendars()->setDefault(m_calendar.id);
    m_state->preferences()->set(DefaultCalendar::defaultKey(false), m_calendar.id);
}

void CalendarMenu::showOnly()
{
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        const bool visible = calendar.id == m_calendar.id;
        if (calendar.isVisible != visible)
            m_state->calendars()->setVisible(calendar.id, visible);
    }
}

void CalendarMenu::showAll()
{
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (!calendar.isVisible)
            m_state->calendars()->setVisible(calendar.id, true);
    }
}
