#include "ui/forms/EventFormDialog.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "calendar/EventDays.h"
#include "calendar/RuleEnd.h"
#include "calendar/services/EventEdits.h"
#include "calendar/services/TimeFormat.h"
#include "models/EventTemplate.h"
#include "storage/CalendarRepository.h"
#include "storage/TemplateRepository.h"
#include "ui/dialogs/PlainText.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/AttendeesEditor.h"
#include "ui/forms/CalendarCombo.h"
#include "ui/forms/ColorField.h"
#include "ui/forms/CompoundField.h"
#include "ui/forms/DateTimePicker.h"
#include "ui/forms/RecurrenceButton.h"
#include "ui/forms/ReminderList.h"
#include "ui/forms/RemindersEditor.h"
#include "ui/theme/Theme.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeZone>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int WidthPx = 560;
constexpr int NotesMinHeightPx = 110;
constexpr qint64 DefaultLengthSecs = 3600;
constexpr int HalfHour = 30;

QDateTime utcDay(QDate date)
{
    return { date, QTime(0, 0), Qt::UTC };
}

QDateTime localWithoutSeconds(const QDateTime &when)
{
    const QDateTime local = when.toLocalTime();
    return local.addMSecs(-(local.time().msecsSinceStartOfDay() % 60000));
}

}

EventFormDialog::EventFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Event"), parent)
    , m_state(state)
{
    buildLayout();
    setInitialStart(defaultStart(QDateTime::currentDateTime()), DefaultLengthSecs / 60);
    addSaveButtons(tr("Create event"));
    m_baseline = edited();
}

EventFormDialog::EventFormDialog(AppState *state, const Event &shown, QWidget *parent)
    : FormDialog(tr("Edit Event"), parent)
    , m_state(state)
    , m_shown(shown)
    , m_isNew(false)
    , m_isReadOnly(EventEdits::isReadOnly(state, shown))
{
    buildLayout();
    prefill(shown);
    if (m_isReadOnly)
        setReadOnly();
    else
        addSaveButtons(tr("Save changes"));
    m_baseline = edited();
}

QDateTime EventFormDialog::defaultStart(const QDateTime &now)
{
    const QDateTime start = localWithoutSeconds(now);
    const int beyond = start.time().minute() % HalfHour;
    return beyond == 0 ? start : start.addSecs((HalfHour - beyond) * 60);
}

void EventFormDialog::buildLayout()
{
    setMinimumWidth(WidthPx);
    auto *heading = new QLabel(m_isNew ? tr("New event") : tr("Edit event"));
    heading->setFont(Theme::headingFont(heading->font()));
    body()->addWidget(heading);
    if (!m_isReadOnly)
        body()->addWidget(makeHint(m_isNew ? tr("Fill in the basics. Start time and calendar are required.")
                                           : tr("Update the details below and save to apply.")));
    if (!m_isReadOnly && m_shown.isSeries())
        body()->addWidget(makeHint(tr("Changes apply to all events in the series.")));
    if (m_shown.isOverride())
        body()->addWidget(makeHint(tr("This is one event of a series, changed on its own.")));

    m_title = new QLineEdit;
    m_title->setPlaceholderText(tr("Lunch with Sarah, sprint planning…"));
    m_color = new ColorField(tr("Event color"));
    m_repeat = new RecurrenceButton(m_state->firstDayOfWeek());
    m_repeat->setEnabled(!m_shown.isOverride()); // one event of a series does not repeat
    m_location = new QLineEdit;
    m_location->setPlaceholderText(tr("Address, room, or video link"));
    m_attendees = new AttendeesEditor;
    m_reminders = new RemindersEditor;
    m_notes = new QPlainTextEdit;
    m_notes->setPlaceholderText(tr("Notes, agenda, links…"));
    m_notes->setMinimumHeight(NotesMinHeightPx);
    m_notes->setTabChangesFocus(true);

    QFormLayout *form = addForm();
    form->addRow(tr("&Title"), m_title);
    form->addRow(tr("&Calendar"), buildCalendarRow());
    form->addRow(tr("Color"), m_color);
    QWidget *when = buildWhen();
    form->addRow(tr("&Starts"), m_start);
    form->addRow(tr("&Ends"), m_end);
    form->addRow(QString(), when);
    form->addRow(tr("&Repeats"), m_repeat);
    form->addRow(tr("&Location"), m_location);
    form->addRow(tr("Attendees"), m_attendees);
    form->addRow(tr("Re&minders"), m_reminders);
    form->addRow(tr("&Notes"), m_notes);
    body()->addStretch();
    populateCalendars();
    connectControls();
    m_title->setFocus();
}

QWidget *EventFormDialog::buildCalendarRow()
{
    m_calendar = new CalendarCombo;
    m_templates = new QPushButton(tr("From template…"));
    m_templates->setAutoDefault(false);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_calendar, 1);
    layout->addWidget(m_templates);
    setFirstControl(row, m_calendar);
    return row;
}

QWidget *EventFormDialog::buildWhen()
{
    m_start = new DateTimePicker(m_state->firstDayOfWeek());
    m_start->setAccessibleNames(tr("Start date"), tr("Start time"));
    m_end = new DateTimePicker(m_state->firstDayOfWeek());
    m_end->setAccessibleNames(tr("End date"), tr("End time"));
    for (DateTimePicker *picker : { m_start, m_end })
        picker->setUse24Hour(TimeFormat::use24Hour(m_state));
    m_end->setRelativeTo(m_start);
    m_allDay = new QCheckBox(tr("All &day"));
    return m_allDay;
}

void EventFormDialog::connectControls()
{
    connect(m_start, &DateTimePicker::dateTimeChanged, this, &EventFormDialog::onStartChanged);
    connect(m_end, &DateTimePicker::dateTimeChanged, this, &EventFormDialog::onEndChanged);
    connect(m_allDay, &QCheckBox::toggled, this, &EventFormDialog::onAllDayToggled);
    connect(m_calendar, &QComboBox::currentIndexChanged, this, &EventFormDialog::refreshColor);
    connect(m_templates, &QPushButton::clicked, this, &EventFormDialog::openTemplatePicker);
    refreshColor();
}

void EventFormDialog::populateCalendars()
{
    QList<Calendar> offered;
    QString preferred =
        m_isNew ? DefaultCalendar::preferredCalendarId(m_state->preferences(), false) : m_shown.calendarId;
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        const bool isOwn = !m_isNew && calendar.id == m_shown.calendarId;
        if (!isOwn && (!calendar.isVisible || calendar.isReadOnly || m_isReadOnly))
            continue;
        offered.append(calendar);
        if (calendar.isDefault && preferred.isEmpty())
            preferred = calendar.id;
    }
    m_calendar->setCalendars(offered);
    m_calendar->select(preferred);
}

void EventFormDialog::refreshColor()
{
    m_color->setCalendarColor(m_calendar->calendarColor());
}

void EventFormDialog::setInitialStart(const QDateTime &start, int minutes)
{
    m_start->setDateTime(start);
    m_end->setDateTime(start.addSecs(qint64(minutes) * 60));
    m_repeat->setStartDate(m_start->date());
    rememberLength();
    m_baseline = edited();
}

void EventFormDialog::setDraft(const Event &draft)
{
    m_shown = draft;
    prefill(draft);
    m_baseline = edited();
}

void EventFormDialog::prefill(const Event &event)
{
    m_title->setText(event.title);
    m_calendar->select(event.calendarId);
    m_color->setColor(event.color);
    prefillTimes(event);
    m_repeat->setRule(RuleEnd::asDay(event.recurrenceRule, event.isAllDay));
    m_location->setText(event.location);
    m_attendees->setAttendees(event.attendees);
    QList<int> minutes;
    for (const Reminder &reminder : event.reminders)
        minutes.append(reminder.minutesBefore);
    m_reminders->setMinutes(minutes);
    m_notes->setPlainText(event.description);
    m_notes->document()->setModified(false);
    const QByteArray zone = event.timezone.toUtf8();
    if (!event.isAllDay && zone != "UTC" && zone != QTimeZone::systemTimeZoneId())
        body()->insertWidget(body()->count() - 1,
                             makeHint(tr("Times are shown as your clock has them. The event is planned in %1.")
                                          .arg(PlainText::breakLongWords(event.timezone))));
}

void EventFormDialog::prefillTimes(const Event &event)
{
    if (event.isAllDay) {
        // The hours wait for the case that the event gets some.
        const QTime hour = defaultStart(QDateTime::currentDateTime()).time();
        const QDate first = EventDays::firstDay(event);
        const QDate last = EventDays::lastDay(event);
        m_start->setDateTime(QDateTime(first, hour));
        m_end->setDateTime(QDateTime(last, hour).addSecs(DefaultLengthSecs));
        m_end->setDate(last);
    } else {
        m_start->setDateTime(event.startTime);
        m_end->setDateTime(event.endTime.value_or(event.startTime));
    }
    m_allDay->setChecked(event.isAllDay);
    m_repeat->setStartDate(m_start->date());
    rememberLength();
}

void EventFormDialog::setReadOnly()
{
    body()->insertWidget(1, makeHint(tr("This event belongs to a read-only calendar.")));
    m_title->setReadOnly(true);
    m_location->setReadOnly(true);
    m_notes->setReadOnly(true);
    for (QWidget *widget : QList<QWidget *>{ m_color, m_allDay })
        widget->setEnabled(false);
    m_templates->hide();
    // As a label: the text of a disabled button is hard to read.
    auto *repeats = makeHint(m_repeat->text());
    delete body()->replaceWidget(m_repeat, repeats);
    m_repeat->hide();
    m_start->setReadOnly(true);
    m_end->setReadOnly(true);
    m_attendees->setReadOnly(true);
    m_reminders->setReadOnly(true);
    addCloseButton();
}

void EventFormDialog::onAllDayToggled(bool allDay)
{
    m_start->setDateOnly(allDay);
    m_end->setDateOnly(allDay);
    if (!allDay && m_end->dateTime() <= m_start->dateTime())
        m_end->setDateTime(m_start->dateTime().addSecs(DefaultLengthSecs));
    rememberLength();
}

// The days of a timed event and the hours of an all-day one wait for the other kind.
void EventFormDialog::rememberLength()
{
    m_lengthDays = m_start->date().daysTo(m_end->date());
    if (!m_allDay->isChecked())
        m_lengthSecs = m_start->dateTime().secsTo(m_end->dateTime());
}

// The end goes along, so that the event keeps its length.
void EventFormDialog::onStartChanged()
{
    m_repeat->setStartDate(m_start->date());
    if (m_allDay->isChecked())
        m_end->setDate(m_start->date().addDays(m_lengthDays));
    else
        m_end->setDateTime(m_start->dateTime().addSecs(m_lengthSecs));
}

void EventFormDialog::onEndChanged()
{
    m_isEndTouched = true;
    rememberLength();
}

void EventFormDialog::openTemplatePicker()
{
    const QList<EventTemplate> templates = m_state->templates()->getAll();
    if (templates.isEmpty()) {
        Prompt::information(this, tr("No templates"),
                            tr("You haven't created any event templates yet. Open Tools → Manage Templates to create "
                               "one."));
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const EventTemplate &entry : templates)
        menu->addAction(Theme::calendarDotIcon(entry.color), Theme::plainLabel(entry.name), this,
                        [this, entry] { applyTemplate(entry); });
    menu->popup(m_templates->mapToGlobal(m_templates->rect().bottomLeft()));
}

void EventFormDialog::applyTemplate(const EventTemplate &eventTemplate)
{
    if (!eventTemplate.title.isEmpty())
        m_title->setText(eventTemplate.title);
    if (!eventTemplate.location.isEmpty())
        m_location->setText(eventTemplate.location);
    if (!eventTemplate.description.isEmpty()) {
        m_notes->setPlainText(eventTemplate.description);
        m_notes->document()->setModified(true);
    }
    if (!eventTemplate.color.isEmpty())
        m_color->setColor(eventTemplate.color);
    if (!eventTemplate.calendarId.isEmpty())
        m_calendar->select(eventTemplate.calendarId);
    m_allDay->setChecked(eventTemplate.isAllDay);
    if (eventTemplate.durationMinutes > 0) {
        m_end->setDateTime(m_start->dateTime().addSecs(qint64(eventTemplate.durationMinutes) * 60));
        if (eventTemplate.isAllDay) // the end picker shows the last day, and not the one after it
            m_end->setDate(m_start->date().addDays(std::max(0, eventTemplate.durationMinutes / (24 * 60) - 1)));
        onEndChanged();
    }
    if (!eventTemplate.reminders.isEmpty())
        m_reminders->setMinutes(eventTemplate.reminders);
    if (!eventTemplate.recurrenceRule.isEmpty() && m_repeat->isEnabled())
        m_repeat->setRule(RuleEnd::asDay(eventTemplate.recurrenceRule));
}

Event EventFormDialog::edited() const
{
    Event event = m_shown;
    event.calendarId = m_calendar->calendarId();
    event.title = PlainText::typed(m_title->text(), m_shown.title);
    if (m_notes->document()->isModified()) // else its line ends stay as the server wrote them
        event.description = m_notes->toPlainText();
    event.location = PlainText::typed(m_location->text(), m_shown.location);
    event.color = m_color->color();
    event.isAllDay = m_allDay->isChecked();
    event.recurrenceRule = editedRule();
    event.reminders = ReminderList::withMinutes(m_shown.reminders, m_reminders->minutes());
    event.attendees = m_attendees->attendees();
    const bool keepsNoEnd = !m_isNew && !m_shown.endTime && !m_isEndTouched;
    if (event.isAllDay) {
        event.startTime = utcDay(m_start->date());
        event.endTime = utcDay(m_end->date().addDays(1));
    } else {
        // The pickers know no seconds; a time that was left alone keeps them.
        const auto chosen = [](const DateTimePicker *picker, const QDateTime &shown) {
            return shown.isValid() && picker->dateTime() == localWithoutSeconds(shown) ? shown : picker->dateTime();
        };
        event.startTime = chosen(m_start, m_shown.isAllDay ? QDateTime() : m_shown.startTime);
        event.endTime = chosen(m_end, m_shown.isAllDay ? QDateTime() : m_shown.endTime.value_or(QDateTime()));
    }
    if (keepsNoEnd)
        event.endTime.reset();
    return event;
}

QString EventFormDialog::editedRule() const
{
    const bool isAllDay = m_allDay->isChecked();
    if (m_repeat->rule() == RuleEnd::asDay(m_shown.recurrenceRule, m_shown.isAllDay) && isAllDay == m_shown.isAllDay)
        return m_shown.recurrenceRule;
    return isAllDay ? m_repeat->rule() : RuleEnd::asInstant(m_repeat->rule());
}

bool EventFormDialog::hasUnsavedChanges() const
{
    return !m_isReadOnly && edited() != m_baseline;
}

bool EventFormDialog::check()
{
    const auto refuse = [this](const QString &title, const QString &text, QWidget *at) {
        Prompt::warning(this, title, text);
        at->setFocus();
        return false;
    };
    if (m_title->text().trimmed().isEmpty())
        return refuse(tr("Title required"), tr("Please enter a title for the event."), m_title);
    if (m_calendar->count() == 0)
        return refuse(tr("No calendars"), tr("Create a calendar first."), m_calendar);
    const Event event = edited();
    if (event.endTime && *event.endTime < event.startTime)
        return refuse(tr("End before start"), tr("The end time is earlier than the start time."), m_end);
    return true;
}

bool EventFormDialog::save()
{
    if (m_isReadOnly || !check())
        return false;
    const Event event = edited();
    const EventEdits::Outcome outcome =
        m_isNew ? EventEdits::create(m_state, event) : EventEdits::save(m_state, m_baseline, event);
    if (!outcome.ok) {
        Prompt::warning(this, outcome.isFailure ? tr("Database Error") : tr("Not saved"), outcome.why);
        return false;
    }
    if (m_isNew)
        DefaultCalendar::recordLastUsed(m_state->preferences(), false, event.calendarId);
    m_eventId = outcome.id;
    return true;
}
