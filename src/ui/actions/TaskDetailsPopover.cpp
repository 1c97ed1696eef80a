#include "ui/actions/TaskDetailsPopover.h"

#include "app/state/AppState.h"
#include "calendar/DescriptionFormat.h"
#include "calendar/RruleFormat.h"
#include "calendar/RuleEnd.h"
#include "calendar/services/EventText.h"
#include "calendar/services/TaskEdits.h"
#include "calendar/services/TaskText.h"
#include "models/Constants.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"
#include "ui/actions/DetailGlyphs.h"
#include "ui/theme/Theme.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr int MaxLinkedEvents = 5;

}

TaskDetailsPopover::TaskDetailsPopover(AppState *state, const Task &task, QWidget *anchor)
    : DetailsPopover(anchor)
    , m_state(state)
    , m_task(task)
{
    populate();
    connect(state->tasks(), &TaskRepository::tasksChanged, this, &TaskDetailsPopover::onTasksChanged);
}

void TaskDetailsPopover::onTasksChanged()
{
    const auto stored = m_state->tasks()->getById(m_task.id);
    if (!stored || stored->deletedAt)
        return dismiss();
    if (*stored == m_task)
        return;
    m_task = *stored;
    populate();
    fitToContent();
}

void TaskDetailsPopover::populate()
{
    clear();
    const auto calendar = m_state->calendars()->getById(m_task.calendarId);
    const QColor color = Theme::eventColor(m_task.color, calendar ? calendar->color : QString());
    setHeading(TaskText::title(m_task), color.name(), m_task.isCompleted());
    addDates();
    addState();
    if (!m_task.categories.isEmpty())
        addLine(DetailGlyphs::Label, tr("Categories"), m_task.categories.join(QLatin1StringView(", ")));
    if (!m_task.parentTaskUid.isEmpty()) {
        if (const auto parentTask = m_state->tasks()->findByUid(m_task.parentTaskUid))
            addLine(DetailGlyphs::Tree, tr("Part of"), TaskText::title(*parentTask));
    }
    if (calendar)
        addLine(DetailGlyphs::Calendar, tr("Calendar"), calendar->name);
    addLinkedEvents();
    if (!m_task.description.trimmed().isEmpty())
        addRichText(DetailGlyphs::Notes, tr("Notes"),
                    DescriptionFormat::toSafeHtml(m_task.description, {}, Theme::link().name()));
    addActions();
}

void TaskDetailsPopover::addDates()
{
    // The two look alike: each says which it is.
    const auto add = [this](const QString &name, const QDateTime &date, bool isDateOnly) {
        const QString text = DetailsPopover::tr("%1: %2", "kind of detail, its text")
                                 .arg(name, TaskText::date(m_state, date, isDateOnly));
        addLine(DetailGlyphs::Clock, name, text)->setAccessibleName(text);
    };
    if (m_task.dueDate)
        add(tr("Due"), *m_task.dueDate, m_task.dueIsDateOnly);
    if (m_task.startDate)
        add(tr("Starts"), *m_task.startDate, m_task.startIsDateOnly);
    if (!m_task.recurrenceRule.isEmpty())
        addLine(DetailGlyphs::Repeat, tr("Repeats"),
                RruleFormat::humanReadable(RuleEnd::asDay(m_task.recurrenceRule, m_task.repeatsByDay())));
    QStringList reminders;
    for (const Reminder &reminder : std::as_const(m_task.reminders))
        reminders.append(RruleFormat::humanReadableReminder(reminder.minutesBefore));
    if (!reminders.isEmpty())
        addLine(DetailGlyphs::Bell, tr("Reminders"), reminders.join(QLatin1StringView("\n")));
}

void TaskDetailsPopover::addState()
{
    if (const QString priority = TaskText::priority(m_task.priority); !priority.isEmpty())
        addLine(DetailGlyphs::Flag, tr("Priority"), priority);
    QString status = TaskText::status(m_task.status);
    if (m_task.percentComplete > 0 && !m_task.isCompleted())
        status = tr("%1, %2%", "status, progress").arg(status).arg(m_task.percentComplete);
    addLine(DetailGlyphs::Progress, tr("Status"), status);
}

void TaskDetailsPopover::addLinkedEvents()
{
    const QList<Event> events = m_state->events()->findByRelatedToUid(m_task.uid);
    for (qsizetype i = 0; i < events.size() && i < MaxLinkedEvents; ++i) {
        QPushButton *button =
            addLinkButton(DetailGlyphs::Link, tr("Event"), EventText::shortName(EventText::title(events.at(i))));
        connect(button, &QPushButton::clicked, this, [this, id = events.at(i).id] { emit eventRequested(id); });
    }
}

void TaskDetailsPopover::addActions()
{
    const bool isWritable = !TaskEdits::isReadOnly(m_state, m_task);
    const auto add = [this](const QString &text, auto &&run) {
        connect(addButton(text), &QPushButton::clicked, this, [this, run] {
            run();
            dismiss();
        });
    };
    if (isWritable) {
        add(tr("Delete"), [this] { emit deleteRequested(m_task.id); });
        const bool completes = !m_task.isCompleted();
        add(completes ? tr("Complete") : tr("Not Completed"),
            [this, completes] { emit completeRequested(m_task.id, completes); });
    }
    add(isWritable ? tr("Edit…") : tr("Open…"), [this] { emit editRequested(m_task.id); });
}
