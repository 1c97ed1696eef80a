#include "ui/forms/QuickAddDialog.h"

#include "app/state/AppState.h"
#include "calendar/services/EventText.h"
#include "calendar/services/QuickAdd.h"
#include "calendar/services/TaskText.h"
#include "calendar/services/TimeFormat.h"
#include "storage/CalendarRepository.h"
#include "ui/theme/Theme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int RefreshMs = 15000;
constexpr int MaxLineChars = 500;

QLabel *plainLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}

QuickAddDialog::QuickAddDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Quick Add"), parent)
    , m_state(state)
    , m_line(new QLineEdit)
    , m_clock(new QTimer(this))
{
    m_line->setPlaceholderText(tr("lunch with Sam tomorrow at 12:30pm for 90 min"));
    m_line->setMaxLength(MaxLineChars);
    m_line->setAccessibleName(tr("What to add, in plain English"));
    body()->addWidget(m_line);
    buildPreview();
    body()->addStretch();
    m_add = addSaveButtons(tr("Add"));
    connect(m_line, &QLineEdit::textChanged, this, &QuickAddDialog::refresh);
    m_clock->setInterval(RefreshMs);
    connect(m_clock, &QTimer::timeout, this, &QuickAddDialog::refresh);
    m_clock->start();
    refresh();
    m_line->setFocus();
}

void QuickAddDialog::buildPreview()
{
    QFormLayout *form = addForm();
    m_kind = plainLabel();
    m_title = plainLabel();
    m_when = plainLabel();
    m_calendar = plainLabel();
    form->addRow(tr("Creates"), m_kind);
    form->addRow(tr("Title"), m_title);
    form->addRow(tr("When"), m_when);
    form->addRow(tr("Calendar"), m_calendar);
    m_hint = makeHint({});
    body()->addWidget(m_hint);
}

void QuickAddDialog::refresh()
{
    clearProblem();
    const QuickAdd::Draft draft = QuickAdd::draft(m_state, m_line->text(), {});
    m_add->setEnabled(!std::holds_alternative<std::monostate>(draft.record));
    m_hint->setText(!draft.why.isEmpty()
                        ? draft.why
                        : tr("Begin with \"task:\" or \"remind me to\" for a task or a reminder. #tags become "
                             "categories of tasks."));
    if (const auto *event = std::get_if<Event>(&draft.record)) {
        showKind(tr("Event"), event->title, EventText::when(*event, TimeFormat::eventTimeFormatString(m_state)),
                 event->calendarId);
    } else if (const auto *task = std::get_if<Task>(&draft.record)) {
        const bool isReminder = task->itemType == QLatin1StringView("reminder");
        const QString when =
            task->dueDate ? TaskText::date(m_state, *task->dueDate, task->dueIsDateOnly) : tr("No date");
        showKind(isReminder ? tr("Reminder") : tr("Task"), task->title, when, task->calendarId);
    } else {
        showKind(QStringLiteral("–"), QStringLiteral("–"), QStringLiteral("–"), {});
    }
}

void QuickAddDialog::showKind(const QString &kind, const QString &title, const QString &when, const QString &calendarId)
{
    const auto calendar = m_state->calendars()->getById(calendarId);
    m_kind->setText(kind);
    m_title->setText(title);
    m_when->setText(when);
    m_calendar->setText(calendar ? calendar->name : QStringLiteral("–"));
}

bool QuickAddDialog::save()
{
    const QString text = m_line->text().trimmed();
    const QString title = m_title->text();
    if (QuickAdd::commit(m_state, text).isEmpty()) {
        const QString why = QuickAdd::draft(m_state, text, {}).why;
        showProblem(why.isEmpty() ? tr("This could not be added.") : why, m_line);
        return false;
    }
    emit added(title);
    return true;
}
