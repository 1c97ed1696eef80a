#include "calendar/services/EventText.h"

#include "app/state/AppState.h"
#include "calendar/EventDays.h"
#include "calendar/services/TimeFormat.h"
#include "models/Constants.h"
#include "storage/CalendarRepository.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace {

constexpr int MaxShownChars = 300; // a title of megabytes would take seconds to measure
constexpr int MaxNameChars = 40;

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventText)
};

QString oneLine(const QString &text)
{
    return text.left(MaxShownChars).simplified();
}

QString range(const QString &from, const QString &to)
{
    return from + QStringLiteral(" – ") + to;
}

QString dayText(QDate date)
{
    //: weekday and date of an event, as a date pattern
    return QLocale().toString(date, Tr::tr("ddd, MMM d"));
}

/// The local end, if it says more than the start.
std::optional<QDateTime> shownEnd(const Event &event)
{
    if (!event.endTime || !event.endTime->isValid() || *event.endTime <= event.startTime)
        return {};
    return event.endTime->toLocalTime();
}

QString allDayWhen(const Event &event)
{
    const QDate first = EventDays::firstDay(event);
    const QDate last = EventDays::lastDay(event);
    const QString days = last > first ? range(dayText(first), dayText(last)) : dayText(first);
    //: %1 is a date, or two with a dash
    return Tr::tr("%1, all day").arg(days);
}

QStringList details(AppState *state, const Event &event)
{
    QStringList lines{ EventText::title(event), EventText::when(event, TimeFormat::eventTimeFormatString(state)) };
    if (event.status == EventStatus::Cancelled)
        lines.append(Tr::tr("Cancelled"));
    if (const QString place = EventText::location(event); !place.isEmpty())
        lines.append(place);
    if (const auto calendar = state->calendars()->getById(event.calendarId))
        lines.append(oneLine(calendar->name));
    return lines;
}

}

QString EventText::title(const Event &event)
{
    const QString title = oneLine(event.title);
    return title.isEmpty() ? Tr::tr("(Untitled)") : title;
}

QString EventText::location(const Event &event)
{
    return oneLine(event.location);
}

QString EventText::shortName(const QString &name)
{
    const QString line = oneLine(name);
    if (line.size() <= MaxNameChars)
        return line;
    QString start = line.left(MaxNameChars - 1);
    if (start.back().isHighSurrogate())
        start.chop(1);
    return start.trimmed() + u'…';
}

QString EventText::startTime(const Event &event, const QString &timePattern)
{
    return QLocale().toString(event.startTime.toLocalTime().time(), timePattern);
}

QString EventText::timeLine(const Event &event, const QString &timePattern)
{
    const QDateTime start = event.startTime.toLocalTime();
    const std::optional<QDateTime> end = shownEnd(event);
    if (!end)
        return startTime(event, timePattern);
    const bool spansDates = end->date() != start.date();
    const auto clock = [&timePattern, spansDates](const QDateTime &value) {
        const QString time = QLocale().toString(value.time(), timePattern);
        return spansDates ? QLocale().toString(value.date(), QStringLiteral("ddd ")) + time : time;
    };
    return range(clock(start), clock(*end));
}

QString EventText::when(const Event &event, const QString &timePattern)
{
    if (event.isAllDay)
        return allDayWhen(event);
    const QDateTime start = event.startTime.toLocalTime();
    const std::optional<QDateTime> end = shownEnd(event);
    const auto clock = [&timePattern](const QDateTime &value) { return QLocale().toString(value.time(), timePattern); };
    const auto moment = [&clock](const QDateTime &value) {
        return dayText(value.date()) + QStringLiteral(", ") + clock(value);
    };
    if (!end)
        return moment(start);
    const QString until = end->date() == start.date() ? clock(*end) : moment(*end);
    return range(moment(start), until);
}

QString EventText::toolTip(AppState *state, const Event &event)
{
    return details(state, event).join(u'\n');
}

QString EventText::sentence(AppState *state, const Event &event)
{
    return details(state, event).join(QStringLiteral(", "));
}

QString EventText::hourPattern(AppState *state)
{
    //: the label of an hour line, as a time pattern
    return TimeFormat::use24Hour(state) ? QStringLiteral("HH:mm") : Tr::tr("h AP");
}
