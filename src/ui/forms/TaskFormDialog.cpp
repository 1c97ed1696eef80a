#include "ui/forms/TaskFormDialog.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "calendar/RuleEnd.h"
#include "calendar/TaskTree.h"
#include "calendar/services/TaskEdits.h"
#include "calendar/services/TaskText.h"
#include "calendar/services/TimeFormat.h"
#include "storage/CalendarRepository.h"
#include "storage/TaskRepository.h"
#include "ui/dialogs/PlainText.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/CalendarCombo.h"
#include "ui/forms/ColorField.h"
#include "ui/forms/CompoundField.h"
#include "ui/forms/OptionalDateField.h"
#include "ui/forms/RecurrenceButton.h"
#include "ui/forms/ReminderList.h"
#include "ui/forms/RemindersEditor.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int WidthPx = 560;
constexpr int NotesMinHeightPx = 110;
constexpr int HighPriority = 1;
constexpr int MediumPriority = 5;
constexpr int LowPriority = 9;
constexpr int MaxParents = 500; // more would be no list to choose from

bool hasChangedDates(const Task &before, const Task &after)
{
    return before.dueDate != after.dueDate || before.startDate != after.startDate
        || before.dueIsDateOnly != after.dueIsDateOnly || before.startIsDateOnly != after.startIsDateOnly;
}

QString categoriesText(const Task &task)
{
    return task.categories.join(QStringLiteral(", "));
}

// A day without a time begins before all of its times and ends after them.
bool isDueBeforeStart(const Task &task)
{
    if (!task.dueDate || !task.startDate)
        return false;
    if (!task.dueIsDateOnly && !task.startIsDateOnly)
        return *task.dueDate < *task.startDate;
    return TaskText::day(*task.dueDate, task.dueIsDateOnly) < TaskText::day(*task.startDate, task.startIsDateOnly);
}

}

TaskFormDialog::TaskFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Task"), parent)
    , m_state(state)
{
    build();
    prefill(m_shown);
    connectControls();
    addSaveButtons(tr("Create task"));
    m_baseline = edited();
}

TaskFormDialog::TaskFormDialog(AppState *state, const Task &task, QWidget *parent)
    : FormDialog(task.itemType == QLatin1StringView("reminder") ? tr("Edit Reminder") : tr("Edit Task"), parent)
    , m_state(state)
    , m_shown(task)
    , m_isNew(false)
    , m_isReadOnly(TaskEdits::isReadOnly(state, task))
{
    build();
    prefill(task);
    connectControls();
    if (m_isReadOnly)
        setReadOnly();
    else
        addSaveButtons(tr("Save changes"));
    m_baseline = edited();
}

void TaskFormDialog::setParentTask(const Task &parentTask)
{
    m_shown.parentTaskUid = parentTask.uid;
    m_chosenParentUid = parentTask.uid;
    m_calendar->select(parentTask.calendarId);
    populateParents();
    m_baseline = edited();
}

void TaskFormDialog::build()
{
    setMinimumWidth(WidthPx);
    buildFields();
    QFormLayout *form = addForm();
    form->addRow(tr("&Title"), m_title);
    form->addRow(tr("&Calendar"), m_calendar);
    form->addRow(tr("&Part of"), m_parent);
    form->addRow(tr("&Due"), m_due);
    form->addRow(tr("&Starts"), m_start);
    form->addRow(tr("&Repeats"), m_repeat);
    form->addRow(tr("Ne&xt date"), m_repeatMode);
    form->addRow(tr("Re&minders"), m_reminders);
    form->addRow(tr("Pr&iority"), m_priority);
    form->addRow(tr("Stat&us"), buildProgress());
    form->addRow(tr("Cate&gories"), m_categories);
    form->addRow(tr("Color"), m_color);
    form->addRow(tr("&Notes"), m_notes);
    body()->addStretch();
    m_title->setFocus();
}

void TaskFormDialog::buildFields()
{
    const Qt::DayOfWeek firstDay = m_state->firstDayOfWeek();
    const bool use24Hour = TimeFormat::use24Hour(m_state);
    m_title = new QLineEdit;
    m_title->setPlaceholderText(tr("What is to be done"));
    m_calendar = new CalendarCombo;
    populateCalendars();
    m_parent = new QComboBox;
    m_parent->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_due = new OptionalDateField(firstDay, use24Hour);
    m_due->setAccessibleNames(tr("Due date"), tr("Due time"));
    m_start = new OptionalDateField(firstDay, use24Hour);
    m_start->setAccessibleNames(tr("Start date"), tr("Start time"));
    m_repeat = new RecurrenceButton(firstDay);
    m_repeatMode = new QComboBox;
    m_repeatMode->addItem(tr("From the due date"), QStringLiteral("fromDueDate"));
    m_repeatMode->addItem(tr("From the day of completion"), QStringLiteral("fromCompletionDate"));
    m_reminders = new RemindersEditor;
    m_priority = new QComboBox;
    m_priority->addItem(tr("None"), 0);
    for (const int priority : { HighPriority, MediumPriority, LowPriority })
        m_priority->addItem(TaskText::priority(priority), priority);
    m_categories = new QLineEdit;
    m_categories->setPlaceholderText(tr("Home, errands"));
    m_color = new ColorField(tr("Task color"));
    m_notes = new QPlainTextEdit;
    m_notes->setPlaceholderText(tr("Notes, links…"));
    m_notes->setMinimumHeight(NotesMinHeightPx);
    m_notes->setTabChangesFocus(true);
}

QWidget *TaskFormDialog::buildProgress()
{
    m_status = new QComboBox;
    for (const QLatin1StringView status :
         { TaskStatus::NeedsAction, TaskStatus::InProcess, TaskStatus::Completed, TaskStatus::Cancelled })
        m_status->addItem(TaskText::status(status), QString(status));
    m_progress = new QSpinBox;
    m_progress->setRange(0, 100);
    m_progress->setSingleStep(10);
    m_progress->setSuffix(tr(" %"));
    m_progress->setAccessibleName(tr("Progress in percent"));
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_status, 1);
    layout->addWidget(m_progress);
    setFirstControl(row, m_status);
    return row;
}

void TaskFormDialog::connectControls()
{
    connect(m_calendar, &QComboBox::currentIndexChanged, this, [this] {
        m_color->setCalendarColor(m_calendar->calendarColor());
        populateParents();
    });
    connect(m_parent, &QComboBox::activated, this, [this] { m_chosenParentUid = m_parent->currentData().toString(); });
    connect(m_status, &QComboBox::activated, this, &TaskFormDialog::onStatusChosen);
    connect(m_progress, &QSpinBox::valueChanged, this, &TaskFormDialog::onProgressChanged);
    connect(m_due, &OptionalDateField::changed, this, &TaskFormDialog::onDueChanged);
    connect(m_start, &OptionalDateField::changed, this, &TaskFormDialog::onDueChanged);
    connect(m_repeat, &RecurrenceButton::ruleChanged, this, &TaskFormDialog::onDueChanged);
}

void TaskFormDialog::populateCalendars()
{
    const QStringList writable = TaskEdits::writableCalendarIds(m_state);
    QList<Calendar> offered;
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (writable.contains(calendar.id) || (!m_isNew && calendar.id == m_shown.calendarId))
            offered.append(calendar);
    }
    m_calendar->setCalendars(offered);
    m_calendar->select(m_isNew ? TaskEdits::defaultCalendarId(m_state) : m_shown.calendarId);
}

// A task may hang below any other of its calendar, but not below itself or what hangs below it.
void TaskFormDialog::populateParents()
{
    m_parent->clear();
    m_parent->addItem(tr("No other task"), QString());
    const QList<TreeTask> tasks = TaskTree::flatten(m_state->tasks()->getByCalendar(m_calendar->calendarId()), {});
    int ownDepth = -1;
    for (const TreeTask &task : tasks) {
        if (ownDepth >= 0 && task.depth > ownDepth)
            continue;
        ownDepth = !m_isNew && task.uid == m_shown.uid ? task.depth : -1;
        const bool isOffered =
            task.itemType == QLatin1StringView("task") && !task.isCompleted() && m_parent->count() <= MaxParents;
        const bool isCurrent = task.uid == m_shown.parentTaskUid;
        if (ownDepth >= 0 || !(isOffered || isCurrent))
            continue;
        m_parent->addItem(QString(task.depth * 2, u' ') + TaskText::title(task), task.uid);
    }
    m_parent->setCurrentIndex(std::max(0, m_parent->findData(m_chosenParentUid)));
}

void TaskFormDialog::prefill(const Task &task)
{
    m_title->setText(task.title);
    m_color->setCalendarColor(m_calendar->calendarColor());
    m_color->setColor(task.color);
    m_chosenParentUid = task.parentTaskUid;
    populateParents();
    m_due->setValue(task.dueDate, task.dueIsDateOnly);
    m_start->setValue(task.startDate, task.startIsDateOnly);
    m_repeat->setRule(RuleEnd::asDay(task.recurrenceRule, task.repeatsByDay()));
    m_repeatMode->setCurrentIndex(std::max(0, m_repeatMode->findData(task.repeatMode)));
    QList<int> minutes;
    for (const Reminder &reminder : task.reminders)
        minutes.append(reminder.minutesBefore);
    m_reminders->setMinutes(minutes);
    if (m_priority->findData(task.priority) < 0)
        m_priority->addItem(
            tr("%1 (%2)", "priority, its number").arg(TaskText::priority(task.priority)).arg(task.priority),
            task.priority);
    m_priority->setCurrentIndex(m_priority->findData(task.priority));
    m_status->setCurrentIndex(std::max(0, m_status->findData(task.status)));
    m_progress->setValue(task.percentComplete);
    m_categories->setText(categoriesText(task));
    m_notes->setPlainText(task.description);
    m_notes->document()->setModified(false);
    onDueChanged();
}

void TaskFormDialog::setReadOnly()
{
    body()->insertWidget(0, makeHint(tr("This task belongs to a read-only calendar.")));
    for (QLineEdit *field : { m_title, m_categories })
        field->setReadOnly(true);
    m_notes->setReadOnly(true);
    for (QWidget *widget :
         QList<QWidget *>{ m_calendar, m_parent, m_repeat, m_repeatMode, m_priority, m_status, m_progress, m_color })
        widget->setEnabled(false);
    m_due->setReadOnly(true);
    m_start->setReadOnly(true);
    m_reminders->setReadOnly(true);
    addCloseButton();
}

void TaskFormDialog::onStatusChosen()
{
    const QString status = m_status->currentData().toString();
    if (status == TaskStatus::Completed)
        m_progress->setValue(100);
    else if (status == TaskStatus::NeedsAction || m_progress->value() == 100)
        m_progress->setValue(0);
}

void TaskFormDialog::onProgressChanged(int percent)
{
    const QString status = m_status->currentData().toString();
    QString fitting = status;
    if (percent == 100)
        fitting = TaskStatus::Completed;
    else if (status == TaskStatus::Completed || (status == TaskStatus::NeedsAction && percent > 0))
        fitting = percent > 0 ? TaskStatus::InProcess : TaskStatus::NeedsAction;
    m_status->setCurrentIndex(m_status->findData(fitting));
}

// A rule steps from a date, and a reminder waits for one.
void TaskFormDialog::onDueChanged()
{
    const QDate due = m_due->date();
    const QDate anchor = due.isValid() ? due : m_start->date();
    m_repeat->setStartDate(anchor);
    m_repeat->setEnabled(!m_isReadOnly && (anchor.isValid() || !m_repeat->rule().isEmpty()));
    m_repeatMode->setEnabled(!m_isReadOnly && !m_repeat->rule().isEmpty());
    m_reminders->setEnabled(anchor.isValid() || !m_reminders->minutes().isEmpty());
}

QStringList TaskFormDialog::editedCategories() const
{
    if (m_categories->text() == categoriesText(m_shown))
        return m_shown.categories; // a comma within one separates nothing
    QStringList result;
    const QStringList parts = m_categories->text().split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (const QString name = part.trimmed(); !name.isEmpty() && !result.contains(name, Qt::CaseInsensitive))
            result.append(name);
    }
    return result;
}

Task TaskFormDialog::edited() const
{
    Task task = m_shown;
    task.title = PlainText::typed(m_title->text(), m_shown.title);
    task.calendarId = m_calendar->calendarId();
    task.parentTaskUid = m_parent->currentData().toString();
    task.dueDate = m_due->value();
    task.dueIsDateOnly = m_due->isDateOnly();
    task.startDate = m_start->value();
    task.startIsDateOnly = m_start->isDateOnly();
    const QString rule = m_repeat->rule();
    const bool byDay = task.repeatsByDay();
    if (byDay != m_shown.repeatsByDay() || rule != RuleEnd::asDay(m_shown.recurrenceRule, byDay))
        task.recurrenceRule = byDay ? rule : RuleEnd::asInstant(rule);
    task.repeatMode = m_repeatMode->currentData().toString();
    task.reminders = ReminderList::withMinutes(m_shown.reminders, m_reminders->minutes());
    task.priority = m_priority->currentData().toInt();
    task.status = m_status->currentData().toString();
    task.percentComplete = m_progress->value();
    task.categories = editedCategories();
    task.color = m_color->color();
    if (m_notes->document()->isModified())
        task.description = m_notes->toPlainText();
    return task;
}

bool TaskFormDialog::hasUnsavedChanges() const
{
    return !m_isReadOnly && edited() != m_baseline;
}

bool TaskFormDialog::save()
{
    const Task task = edited();
    if (task.title.isEmpty()) {
        showProblem(tr("Please enter a title for the task."), m_title);
        return false;
    }
    if (task.calendarId.isEmpty()) {
        showProblem(tr("No calendar can hold tasks. Create a local calendar first."), m_calendar);
        return false;
    }
    if (hasChangedDates(m_baseline, task) && isDueBeforeStart(task)) {
        showProblem(tr("The task is due before it starts."), m_due);
        return false;
    }
    const TaskEdits::Outcome outcome =
        m_isNew ? TaskEdits::create(m_state, task) : TaskEdits::save(m_state, m_baseline, task);
    if (!outcome.ok) {
        showProblem(outcome.why.isEmpty() ? tr("Could not save the task.") : outcome.why, nullptr);
        return false;
    }
    if (m_isNew)
        DefaultCalendar::recordLastUsed(m_state->preferences(), true, task.calendarId);
    m_taskId = outcome.id;
    return true;
}
