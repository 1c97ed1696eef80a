#include "ui/actions/TaskDropHandler.h"

#include "app/state/AppState.h"
#include "calendar/services/TaskEdits.h"
#include "calendar/services/TimeFormat.h"
#include "models/Event.h"
#include "models/Task.h"
#include "storage/PreferencesRepository.h"
#include "storage/TaskRepository.h"
#include "ui/actions/Later.h"
#include "ui/forms/EventFormDialog.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

namespace {

constexpr qint64 EventSeconds = 3600;
constexpr int MessageMs = 5000;

struct Drop {
    Q_DECLARE_TR_FUNCTIONS(TaskDropHandler)

public:
    AppState *state;
    Task task;
    QDateTime when;
    bool allDay;
    QWidget *parent;

    void makeEvent() const;
    void setDate(TaskEdits::DateField field) const;

private:
    [[nodiscard]] QString whenText() const;
    void say(const QString &text) const;
};

void Drop::makeEvent() const
{
    Event draft;
    draft.title = task.title;
    draft.description = task.description;
    draft.calendarId = task.calendarId;
    draft.relatedToUid = task.uid;
    draft.isAllDay = allDay;
    draft.startTime = allDay ? QDateTime(when.date(), QTime(0, 0), Qt::UTC) : when;
    draft.endTime = allDay ? draft.startTime.addDays(1) : when.addSecs(EventSeconds);
    auto *form = new EventFormDialog(state, parent->window());
    form->setDraft(draft);
    form->open();
}

void Drop::setDate(TaskEdits::DateField field) const
{
    if (const TaskEdits::Outcome outcome = TaskEdits::setDate(state, task.id, field, when, allDay); !outcome.ok)
        return say(outcome.why);
    const QString title = task.title.isEmpty() ? tr("Task") : task.title;
    say((field == TaskEdits::DateField::Start ? tr("Set start date for \"%1\" to %2")
                                              : tr("Set due date for \"%1\" to %2"))
            .arg(title, whenText()));
}

QString Drop::whenText() const
{
    const QString date = QLocale().toString(when.date(), QLocale::LongFormat);
    return allDay ? date : tr("%1, %2", "date, time").arg(date, TimeFormat::formatTime(state, when));
}

void Drop::say(const QString &text) const
{
    if (auto *window = qobject_cast<QMainWindow *>(parent->window()))
        window->statusBar()->showMessage(text, MessageMs);
}

void showMenu(const Drop &drop, const QPoint &globalPos)
{
    auto *menu = new QMenu(drop.parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Drop::tr("Create event from task"), drop.parent, [drop] { drop.makeEvent(); });
    menu->addAction(Drop::tr("Set start date"), drop.parent, [drop] { drop.setDate(TaskEdits::DateField::Start); });
    menu->addAction(Drop::tr("Set due date"), drop.parent, [drop] { drop.setDate(TaskEdits::DateField::Due); });
    menu->popup(globalPos);
}

}

void TaskDropHandler::handleDrop(AppState *state, const QString &taskId, const QDateTime &when, bool allDay,
                                 const QPoint &globalPos, QWidget *parent)
{
    if (!state || taskId.isEmpty() || !when.isValid())
        return;
    const auto task = state->tasks()->getById(taskId);
    if (!task || task->deletedAt)
        return;
    const Drop drop{ state, *task, when, allDay, parent };
    const QString action = state->preferences()->get(QStringLiteral("ui/taskDropAction"), QStringLiteral("ask"));
    later(parent, [drop, action, globalPos] {
        if (action == QLatin1StringView("event"))
            drop.makeEvent();
        else if (action == QLatin1StringView("start"))
            drop.setDate(TaskEdits::DateField::Start);
        else if (action == QLatin1StringView("due"))
            drop.setDate(TaskEdits::DateField::Due);
        else
            showMenu(drop, globalPos);
    });
}
