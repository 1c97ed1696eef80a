#include "ui/dialogs/FilterFormDialog.h"

#include "app/state/AppState.h"
#include "calendar/FilterEngine.h"
#include "models/Event.h"
#include "models/NewId.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/FilterEventChoice.h"
#include "ui/dialogs/FilterPatternEditor.h"
#include "ui/dialogs/FilterPreview.h"
#include "ui/dialogs/FilterText.h"
#include "ui/dialogs/FilterTimeEditor.h"
#include "ui/dialogs/Prompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int MaxPriority = 9999;
constexpr int MinWidth = 560; // the days of the week stand in one row

void capitalize(QString &text)
{
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
}

}

FilterFormDialog::FilterFormDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("New Filter"), parent)
    , m_state(state)
{
    m_original.id = newId();
    m_original.type = FilterType::Pattern;
    m_original.createdAt = QDateTime::currentDateTimeUtc();
    build();
    load(m_original);
    addSaveButtons(tr("Create"));
}

FilterFormDialog::FilterFormDialog(AppState *state, const FilterRule &rule, QWidget *parent)
    : FormDialog(tr("Edit Filter"), parent)
    , m_state(state)
    , m_original(rule)
    , m_editing(true)
{
    build();
    load(rule);
    addSaveButtons(tr("Save"));
    connect(addSideButton(tr("&Delete")), &QPushButton::clicked, this,
            [this] { askToDelete(m_state, m_original, this, [this] { reject(); }); });
}

void FilterFormDialog::build()
{
    setMinimumWidth(MinWidth);
    m_form = addForm();
    m_name = new QLineEdit(this);
    m_name->setMaxLength(MaxNameLength);
    m_name->setObjectName(QStringLiteral("name"));
    m_form->addRow(tr("&Name"), m_name);
    buildConditions();
    buildScope();
    buildEffect();
    addSection(tr("Preview"));
    m_preview = new FilterPreview(m_state, this);
    body()->addWidget(m_preview);
    body()->addStretch();
    watchEdits();
    m_name->setFocus();
}

void FilterFormDialog::buildConditions()
{
    m_kind = new QComboBox(this);
    m_kind->setObjectName(QStringLiteral("kind"));
    m_kind->addItem(tr("Text in the event"), QString(FilterType::Pattern));
    m_kind->addItem(tr("Day or start time"), QString(FilterType::Time));
    m_kind->addItem(tr("All-day events"), QString(FilterType::AllDay));
    m_kind->addItem(tr("One event"), QString(FilterType::Specific));
    m_pattern = new FilterPatternEditor(this);
    m_time = new FilterTimeEditor(m_state, this);
    m_allDayRecurring = new QCheckBox(tr("Only &repeating events"), this);
    m_event = new FilterEventChoice(this);
    m_event->setAccessibleName(tr("Event"));
    m_form->addRow(tr("&Filter by"), m_kind);
    for (QWidget *editor : std::initializer_list<QWidget *>{ m_pattern, m_time, m_allDayRecurring, m_event })
        m_form->addRow(QString(), editor);
}

void FilterFormDialog::buildScope()
{
    m_scope = new QComboBox(this);
    m_scope->setObjectName(QStringLiteral("scope"));
    m_scope->addItems({ tr("In all calendars"), tr("Only in chosen calendars") });
    m_calendars = new CalendarChecklist(m_state, this);
    m_form->addRow(tr("&Calendars"), m_scope);
    m_form->addRow(QString(), m_calendars);
}

void FilterFormDialog::buildEffect()
{
    m_action = new QComboBox(this);
    m_action->setObjectName(QStringLiteral("action"));
    m_action->addItem(tr("Hide the events"), QString(FilterAction::Hide));
    m_action->addItem(tr("Dim the events"), QString(FilterAction::Dim));
    m_suppress = new QCheckBox(tr("&Silence their reminders"), this);
    m_suppress->setToolTip(tr("Reminders of hidden events are always silent."));
    m_priority = new QSpinBox(this);
    m_priority->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_priority->setRange(0, MaxPriority);
    m_priority->setToolTip(tr("Of several filters that match an event, the one with the lowest number decides."));
    m_enabled = new QCheckBox(tr("Filter is &on"), this);
    m_form->addRow(tr("&Effect"), m_action);
    m_form->addRow(QString(), m_suppress);
    m_form->addRow(tr("&Priority"), m_priority);
    m_form->addRow(QString(), m_enabled);
}

void FilterFormDialog::watchEdits()
{
    connect(m_kind, &QComboBox::currentIndexChanged, this, &FilterFormDialog::onKindChanged);
    connect(m_pattern, &FilterPatternEditor::edited, this, &FilterFormDialog::onEdited);
    connect(m_time, &FilterTimeEditor::edited, this, &FilterFormDialog::onEdited);
    connect(m_allDayRecurring, &QCheckBox::toggled, this, &FilterFormDialog::onEdited);
    connect(m_event, &QComboBox::currentIndexChanged, this, &FilterFormDialog::onEdited);
    connect(m_scope, &QComboBox::currentIndexChanged, this, &FilterFormDialog::onEdited);
    connect(m_calendars, &CalendarChecklist::checkedIdsChanged, this, &FilterFormDialog::onEdited);
    connect(m_action, &QComboBox::currentIndexChanged, this, &FilterFormDialog::onEdited);
}

void FilterFormDialog::load(const FilterRule &rule)
{
    showName(m_name, rule.name);
    m_action->setCurrentIndex(rule.action == FilterAction::Dim ? 1 : 0);
    m_suppress->setChecked(rule.suppressReminders);
    m_enabled->setChecked(rule.enabled);
    m_priority->setRange(qMin(0, rule.priority), qMax(MaxPriority, rule.priority));
    m_priority->setValue(rule.priority);
    const QStringList calendarIds = CalendarChecklist::idsFromJson(rule.calendarIds);
    m_calendars->setCheckedIds(calendarIds);
    m_scope->setCurrentIndex(calendarIds.isEmpty() ? 0 : 1);

    QString type = rule.type;
    if (const auto conditions = FilterEngine::parseConditions(rule.conditions)) {
        if (const auto *pattern = std::get_if<FilterEngine::PatternConditions>(&*conditions)) {
            type = FilterType::Pattern;
            m_pattern->setConditions(*pattern);
        } else if (const auto *time = std::get_if<FilterEngine::TimeConditions>(&*conditions)) {
            type = FilterType::Time;
            m_time->setConditions(*time);
        } else if (const auto *allDay = std::get_if<FilterEngine::AllDayConditions>(&*conditions)) {
            type = FilterType::AllDay;
            m_allDayRecurring->setChecked(allDay->recurringOnly);
        } else {
            type = FilterType::Specific;
        }
    }
    loadEvent(rule);
    selectKind(type);
}

void FilterFormDialog::loadEvent(const FilterRule &rule)
{
    if (rule.eventUid.isEmpty())
        return;
    const auto event = m_state->events()->getByUid(rule.eventUid, rule.eventCalendarId);
    m_event->choose(rule.eventUid, rule.eventCalendarId, event ? event->title : QString());
}

void FilterFormDialog::seedFromEvent(const Event &event)
{
    m_name->setText(event.title.simplified());
    if (!event.title.isEmpty())
        m_pattern->setConditions(
            { .titleContains = {}, .titleExact = { event.title }, .descriptionContains = {}, .locationContains = {} });
    if (!event.isAllDay && event.startTime.isValid())
        m_time->suggestTime(event.startTime.toLocalTime().time());
    if (!event.uid.isEmpty())
        m_event->choose(event.uid, event.calendarId, event.title);
    selectKind(event.title.isEmpty() ? QString(FilterType::Specific) : QString(FilterType::Pattern));
    onEdited();
}

QString FilterFormDialog::kind() const
{
    return m_kind->currentData().toString();
}

void FilterFormDialog::selectKind(const QString &type)
{
    m_kind->setCurrentIndex(qMax(0, m_kind->findData(type)));
    onKindChanged();
}

void FilterFormDialog::onKindChanged()
{
    const QString type = kind();
    if (type == FilterType::Specific)
        m_event->offer(m_preview->upcomingEvents());
    m_form->setRowVisible(m_pattern, type == FilterType::Pattern);
    m_form->setRowVisible(m_time, type == FilterType::Time);
    m_form->setRowVisible(m_allDayRecurring, type == FilterType::AllDay);
    m_form->setRowVisible(m_event, type == FilterType::Specific);
    onEdited();
}

void FilterFormDialog::onEdited()
{
    clearProblem();
    m_form->setRowVisible(m_calendars, m_scope->currentIndex() == 1);
    m_suppress->setEnabled(m_action->currentData().toString() != FilterAction::Hide);
    const FilterRule edited = rule();
    QString name = FilterText::describeConditions(edited, m_state);
    capitalize(name);
    m_name->setPlaceholderText(name.isEmpty() ? tr("Filter name") : name);
    m_preview->schedule(edited);
}

QString FilterFormDialog::conditionsJson() const
{
    const QString type = kind();
    if (type == FilterType::Time)
        return FilterEngine::conditionsToJson(m_time->conditions());
    if (type == FilterType::AllDay)
        return FilterEngine::conditionsToJson(FilterEngine::AllDayConditions{ m_allDayRecurring->isChecked() });
    if (type == FilterType::Specific)
        return FilterEngine::conditionsToJson(FilterEngine::SpecificConditions{});
    return FilterEngine::conditionsToJson(m_pattern->conditions());
}

FilterRule FilterFormDialog::rule() const
{
    FilterRule rule = m_original;
    rule.name = m_name->text().trimmed();
    rule.type = kind();
    rule.conditions = conditionsJson();
    const bool specific = rule.type == FilterType::Specific;
    rule.eventUid = specific ? m_event->eventUid() : QString();
    rule.eventCalendarId = specific ? m_event->eventCalendarId() : QString();
    rule.calendarIds = m_scope->currentIndex() == 1 ? m_calendars->checkedIdsJson() : QStringLiteral("[]");
    rule.action = m_action->currentData().toString();
    rule.suppressReminders = m_suppress->isChecked();
    rule.priority = m_priority->value();
    rule.enabled = m_enabled->isChecked();
    return rule;
}

bool FilterFormDialog::validate()
{
    const QString type = kind();
    const auto refuse = [this](const QString &text, QWidget *at) {
        showProblem(text, at);
        return false;
    };
    FilterEngine::PatternConditions texts = m_pattern->conditions();
    texts.caseSensitive = false;
    if (type == FilterType::Pattern && texts == FilterEngine::PatternConditions())
        return refuse(tr("Enter at least one text to look for."), m_pattern->firstField());
    if (type == FilterType::Time && m_time->isBlank())
        return refuse(tr("Choose at least one day or time."), m_time->firstField());
    if (type == FilterType::Specific && m_event->eventUid().isEmpty())
        return refuse(tr("Choose the event that the filter is for."), m_event);
    if (m_scope->currentIndex() == 1 && m_calendars->checkedIds().isEmpty())
        return refuse(tr("Choose at least one calendar."), m_calendars);
    return true;
}

bool FilterFormDialog::save()
{
    if (!validate())
        return false;
    FilterRule stored = rule();
    if (stored.name.isEmpty())
        stored.name = m_name->placeholderText().left(MaxNameLength);
    stored.syncStatus = SyncStatus::Pending;
    stored.updatedAt = QDateTime::currentDateTimeUtc();
    if (m_editing) {
        const auto current = m_state->filterRules()->getById(stored.id);
        if (!current || current->deletedAt) {
            showProblem(tr("This filter was deleted in the meantime."), nullptr);
            return false;
        }
    }
    if (!(m_editing ? m_state->filterRules()->update(stored) : m_state->filterRules()->insert(stored))) {
        showProblem(tr("The filter could not be saved."), nullptr);
        return false;
    }
    m_resultId = stored.id;
    return true;
}

void FilterFormDialog::askToDelete(AppState *state, const FilterRule &rule, QWidget *parent,
                                   std::function<void()> onDeleted)
{
    QObject *context = parent ? static_cast<QObject *>(parent) : state;
    Prompt::question(parent, tr("Delete filter?"),
                     tr("Delete \"%1\"? The events it hides or dims show again.").arg(rule.name), context,
                     [state, id = rule.id, onDeleted = std::move(onDeleted)] {
                         if (state->filterRules()->softDelete(id) && onDeleted)
                             onDeleted();
                     });
}
