#include "ui/forms/TemplateFormDialog.h"

#include "app/state/AppState.h"
#include "storage/CalendarRepository.h"
#include "storage/TemplateRepository.h"
#include "ui/forms/CalendarCombo.h"
#include "ui/forms/ColorField.h"
#include "ui/forms/CompoundField.h"
#include "ui/forms/RecurrenceButton.h"
#include "ui/forms/RemindersEditor.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;
constexpr int MaxHours = 99;
constexpr int MaxDays = 365;
constexpr int MinuteStep = 15;

}

TemplateFormDialog::TemplateFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Template"), parent)
    , m_state(state)
{
    build();
    fill(m_original);
    addSaveButtons(tr("Create"));
}

TemplateFormDialog::TemplateFormDialog(AppState *state, const EventTemplate &eventTemplate, QWidget *parent)
    : FormDialog(tr("Edit Template"), parent)
    , m_state(state)
    , m_original(eventTemplate)
{
    build();
    fill(eventTemplate);
    addSaveButtons(tr("Save"));
}

void TemplateFormDialog::build()
{
    m_name = new QLineEdit;
    m_name->setMaxLength(MaxNameLength);
    m_name->setPlaceholderText(tr("Template name"));
    m_title = new QLineEdit;
    m_title->setPlaceholderText(tr("Title of the event"));
    m_location = new QLineEdit;
    m_location->setPlaceholderText(tr("Address, room, or video link"));
    m_calendar = new CalendarCombo;
    m_calendar->addItem(tr("Any calendar"), QString());
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (!calendar.isReadOnly || calendar.id == m_original.calendarId)
            m_calendar->addCalendar(calendar);
    }
    m_color = new ColorField(tr("Event color"));
    connect(m_calendar, &QComboBox::currentIndexChanged, m_color,
            [this] { m_color->setCalendarColor(m_calendar->calendarColor()); });
    m_repeat = new RecurrenceButton(m_state->firstDayOfWeek());
    m_repeat->setStartDate(QDate::currentDate());
    m_reminders = new RemindersEditor;
    m_notes = new QPlainTextEdit;
    m_notes->setTabChangesFocus(true);
    m_notes->setFixedHeight(fontMetrics().lineSpacing() * 4 + 16);

    QFormLayout *form = addForm();
    form->addRow(tr("Te&mplate"), m_name);
    form->addRow(tr("&Title"), m_title);
    form->addRow(tr("&Calendar"), m_calendar);
    form->addRow(tr("Color"), m_color);
    form->addRow(tr("&Length"), buildLength());
    form->addRow(tr("&Repeats"), m_repeat);
    form->addRow(tr("L&ocation"), m_location);
    form->addRow(tr("Rem&inders"), m_reminders);
    form->addRow(tr("&Notes"), m_notes);
    body()->addStretch();
    m_name->setFocus();
}

QWidget *TemplateFormDialog::buildLength()
{
    const auto spin = [](int maximum, const QString &suffix) {
        auto *box = new QSpinBox;
        box->setRange(0, maximum);
        box->setSuffix(suffix);
        return box;
    };
    m_hours = spin(MaxHours, tr(" hr"));
    m_minutes = spin(MinutesPerHour - 1, tr(" min"));
    m_minutes->setSingleStep(MinuteStep);
    m_days = spin(MaxDays, tr(" day(s)"));
    m_days->setMinimum(1);
    m_allDay = new QCheckBox(tr("All &day"));
    connect(m_allDay, &QCheckBox::toggled, this, &TemplateFormDialog::onAllDayToggled);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hours);
    layout->addWidget(m_minutes);
    layout->addWidget(m_days);
    layout->addWidget(m_allDay);
    layout->addStretch();
    setFirstControl(row, m_hours);
    return row;
}

void TemplateFormDialog::onAllDayToggled(bool allDay)
{
    m_hours->setVisible(!allDay);
    m_minutes->setVisible(!allDay);
    m_days->setVisible(allDay);
}

void TemplateFormDialog::fill(const EventTemplate &eventTemplate)
{
    showName(m_name, eventTemplate.name);
    m_title->setText(eventTemplate.title);
    m_location->setText(eventTemplate.location);
    m_calendar->select(eventTemplate.calendarId);
    m_color->setCalendarColor(m_calendar->calendarColor());
    m_color->setColor(eventTemplate.color);
    m_hours->setMaximum(std::max(MaxHours, eventTemplate.durationMinutes / MinutesPerHour));
    m_hours->setValue(eventTemplate.durationMinutes / MinutesPerHour);
    m_minutes->setValue(eventTemplate.durationMinutes % MinutesPerHour);
    m_days->setValue(std::max(1, eventTemplate.durationMinutes / MinutesPerDay));
    m_allDay->setChecked(eventTemplate.isAllDay);
    onAllDayToggled(eventTemplate.isAllDay);
    m_repeat->setRule(eventTemplate.recurrenceRule);
    m_reminders->setMinutes(eventTemplate.reminders);
    m_notes->setPlainText(eventTemplate.description);
    m_notes->document()->setModified(false);
    m_baseline = edited();
}

EventTemplate TemplateFormDialog::edited() const
{
    EventTemplate result = m_original;
    result.name = m_name->text().trimmed();
    result.title = m_title->text().trimmed();
    result.location = m_location->text().trimmed();
    result.calendarId = m_calendar->calendarId();
    result.color = m_color->color();
    result.isAllDay = m_allDay->isChecked();
    result.durationMinutes =
        result.isAllDay ? m_days->value() * MinutesPerDay : m_hours->value() * MinutesPerHour + m_minutes->value();
    result.recurrenceRule = m_repeat->rule();
    result.reminders = m_reminders->minutes();
    if (m_notes->document()->isModified())
        result.description = m_notes->toPlainText();
    return result;
}

bool TemplateFormDialog::hasUnsavedChanges() const
{
    return edited() != m_baseline;
}

bool TemplateFormDialog::save()
{
    EventTemplate result = edited();
    if (result.name.isEmpty()) {
        showProblem(tr("Enter a name for the template."), m_name);
        return false;
    }
    bool isStored = false;
    if (!m_original.id.isEmpty() && !hasUnsavedChanges())
        return true;
    if (m_original.id.isEmpty()) {
        const QList<EventTemplate> others = m_state->templates()->getAll();
        for (const EventTemplate &other : others)
            result.sortOrder = std::max(result.sortOrder, other.sortOrder + 1);
        isStored = m_state->templates()->insert(result);
    } else if (const auto stored = m_state->templates()->getById(m_original.id)) {
        result.sortOrder = stored->sortOrder; // another window may have moved it
        isStored = m_state->templates()->update(result);
    } else {
        showProblem(tr("This template was deleted in the meantime."), nullptr);
        return false;
    }
    if (!isStored)
        showProblem(tr("The template could not be saved."), nullptr);
    return isStored;
}
