#include "calendar/services/TaskText.h"

#include "calendar/services/TimeFormat.h"
#include "models/Task.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr int MaxShownChars = 300;
constexpr int HighestMedium = 5;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(TaskText)
};

}

QString TaskText::title(const Task &task)
{
    const QString title = task.title.left(MaxShownChars).simplified();
    return title.isEmpty() ? Tr::tr("(Untitled)") : title;
}

QString TaskText::status(const QString &status)
{
    if (status == TaskStatus::InProcess)
        return Tr::tr("In progress");
    if (status == TaskStatus::Completed)
        return Tr::tr("Completed");
    if (status == TaskStatus::Cancelled)
        return Tr::tr("Cancelled");
    return Tr::tr("Not started");
}

QString TaskText::priority(int priority)
{
    if (priority <= 0)
        return {};
    if (priority < HighestMedium)
        return Tr::tr("High");
    return priority == HighestMedium ? Tr::tr("Medium") : Tr::tr("Low");
}

QDate TaskText::day(const QDateTime &value, bool dateOnly)
{
    return dateOnly ? value.date() : value.toLocalTime().date();
}

QString TaskText::date(AppState *state, const QDateTime &value, bool dateOnly)
{
    const QDate today = QDate::currentDate();
    const QDate shown = day(value, dateOnly);
    //: a date of this year, and one of another, as date patterns
    const QString pattern = shown.year() == today.year() ? Tr::tr("ddd, MMM d") : Tr::tr("ddd, MMM d, yyyy");
    const QString text = shown == today ? Tr::tr("Today") : QLocale().toString(shown, pattern);
    if (dateOnly)
        return text;
    //: %1 is a date, %2 a time
    return Tr::tr("%1, %2").arg(text, TimeFormat::formatTime(state, value.toLocalTime()));
}
