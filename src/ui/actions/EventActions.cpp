#include "ui/actions/EventActions.h"

#include "app/state/AppState.h"
#include "calendar/WallClockShift.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "ui/actions/EventContextMenu.h"
#include "ui/actions/EventDetailsPopover.h"
#include "ui/actions/Later.h"
#include "ui/actions/TaskActions.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/EventFormDialog.h"
#include "ui/forms/RecurringEditScopeDialog.h"

#include <QKeySequence>
#include <QWidget>

#include <optional>
#include <utility>

namespace {

std::optional<Event> liveEvent(AppState *state, const QString &id)
{
    auto event = state->events()->getById(id);
    return event && !event->deletedAt ? event : std::nullopt;
}

}

EventActions::EventActions(AppState *state, QWidget *window)
    : QObject(window)
    , m_state(state)
    , m_window(window)
{
}

void EventActions::open(const QString &id, const QDateTime &occurrenceStart, const QRect &globalRect)
{
    m_state->setSelectedOccurrence(id, occurrenceStart);
    const auto stored = liveEvent(m_state, id);
    if (!stored)
        return;
    auto *popover = new EventDetailsPopover(m_state, EventEdits::shownAt(*stored, occurrenceStart), m_window);
    connect(popover, &EventDetailsPopover::editRequested, this,
            [this, id, occurrenceStart] { edit(id, occurrenceStart); });
    connect(popover, &DetailsPopover::openingClickDoubled, this,
            [this, id, occurrenceStart] { edit(id, occurrenceStart); });
    connect(popover, &EventDetailsPopover::deleteRequested, this, [this, id] { remove(id); });
    if (m_tasks)
        connect(popover, &EventDetailsPopover::taskRequested, m_tasks, &TaskActions::openByUid);
    popover->showNear(globalRect);
}

void EventActions::edit(const QString &id, const QDateTime &occurrenceStart)
{
    later(this, [this, id, occurrenceStart] {
        if (auto *popover = DetailsPopover::current(m_window))
            popover->dismiss();
        if (const auto stored = liveEvent(m_state, id))
            (new EventFormDialog(m_state, EventEdits::shownAt(*stored, occurrenceStart), m_window))->open();
    });
}

void EventActions::createNow()
{
    later(this, [this] {
        if (!m_state->calendars()->getAll().isEmpty())
            (new EventFormDialog(m_state, m_window))->open();
    });
}

void EventActions::create(const QDateTime &start, int minutes)
{
    later(this, [this, start, minutes] {
        if (m_state->calendars()->getAll().isEmpty())
            return;
        auto *form = new EventFormDialog(m_state, m_window);
        form->setInitialStart(start, minutes);
        form->open();
    });
}

void EventActions::createAllDay(QDate first, int days)
{
    Event draft;
    draft.isAllDay = true;
    draft.startTime = QDateTime(first, QTime(0, 0), Qt::UTC);
    draft.endTime = draft.startTime.addDays(days);
    createFrom(draft);
}

void EventActions::createFrom(const Event &draft)
{
    later(this, [this, draft] {
        if (m_state->calendars()->getAll().isEmpty())
            return;
        auto *form = new EventFormDialog(m_state, m_window);
        form->setDraft(draft);
        form->open();
    });
}

void EventActions::move(const QString &id, const QDateTime &occurrenceStart, int days, int minutes)
{
    if (days == 0 && minutes == 0)
        return;
    const WallClockShift shift{ .days = days, .seconds = minutes * 60 };
    changeTimes(id, occurrenceStart, shift, [this, id, occurrenceStart, days, minutes](EventEdits::Scope scope) {
        return EventEdits::move(m_state, id, occurrenceStart, days, minutes, scope);
    });
}

void EventActions::resize(const QString &id, const QDateTime &occurrenceStart, int minutes)
{
    if (minutes == 0)
        return;
    changeTimes(id, occurrenceStart, {}, [this, id, occurrenceStart, minutes](EventEdits::Scope scope) {
        return EventEdits::resize(m_state, id, occurrenceStart, minutes, scope);
    });
}

void EventActions::changeTimes(const QString &id, const QDateTime &occurrenceStart, const WallClockShift &shift,
                               std::function<EventEdits::Outcome(EventEdits::Scope)> write)
{
    const auto stored = liveEvent(m_state, id);
    if (!stored)
        return;
    if (EventEdits::isReadOnly(m_state, *stored)) {
        emit message(EventEdits::readOnlyText(m_state, *stored));
        return;
    }
    const QDateTime newStart = shift.applied(stored->isAllDay ? occurrenceStart : occurrenceStart.toLocalTime());
    if (!stored->isRecurring() || stored->isOverride()) {
        onTimesChanged(write(EventEdits::Scope::All), newStart);
        return;
    }
    later(this, [this, title = stored->title, newStart, write = std::move(write)]() mutable {
        RecurringEditScopeDialog::ask(title, m_window, this,
                                      [this, newStart, write = std::move(write)](EventEdits::Scope scope) {
                                          onTimesChanged(write(scope), newStart);
                                      });
    });
}

// The selection goes along, also to the series that a scope has split off.
void EventActions::onTimesChanged(const EventEdits::Outcome &outcome, const QDateTime &newStart)
{
    report(outcome);
    const auto stored = outcome.ok ? liveEvent(m_state, outcome.id) : std::nullopt;
    if (stored)
        m_state->setSelectedOccurrence(stored->id, stored->isRecurring() ? newStart : stored->startTime);
}

void EventActions::remove(const QString &id)
{
    const auto stored = liveEvent(m_state, id);
    if (!stored)
        return;
    if (EventEdits::isReadOnly(m_state, *stored)) {
        emit message(EventEdits::readOnlyText(m_state, *stored));
        return;
    }
    later(this, [this, id, title = stored->title] {
        const QString undoKey = QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText);
        Prompt::question(m_window, tr("Delete event?"), tr("Delete \"%1\"? You can undo with %2.").arg(title, undoKey),
                         this, [this, id] { report(EventEdits::remove(m_state, id)); });
    });
}

void EventActions::showContextMenu(const Event &shown, const QPoint &globalPos)
{
    const auto stored = liveEvent(m_state, shown.id);
    if (!stored)
        return;
    m_state->setSelectedOccurrence(shown.id, shown.startTime);
    auto *menu = new EventContextMenu(m_state, shown, m_window);
    menu->setDeletable(!EventEdits::isReadOnly(m_state, *stored));
    connect(menu, &EventContextMenu::editRequested, this,
            [this, id = shown.id, start = shown.startTime] { edit(id, start); });
    connect(menu, &EventContextMenu::deleteRequested, this, [this, id = shown.id] { remove(id); });
    connect(menu, &EventContextMenu::filterEditRequested, this, &EventActions::filterEditRequested);
    connect(menu, &EventContextMenu::filterFromEventRequested, this, &EventActions::filterFromEventRequested);
    menu->popup(globalPos);
}

void EventActions::report(const EventEdits::Outcome &outcome)
{
    if (!outcome.why.isEmpty())
        emit message(outcome.why);
}
