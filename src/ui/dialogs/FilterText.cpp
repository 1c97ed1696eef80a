#include "ui/dialogs/FilterText.h"

#include "app/state/AppState.h"
#include "calendar/FilterEngine.h"
#include "calendar/services/TimeFormat.h"
#include "models/Calendar.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "ui/dialogs/FilterTimeEditor.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr int MaxParts = 3;

QString translated(const char *source)
{
    return QCoreApplication::translate("FilterText", source);
}

QString shortened(const QStringList &parts, const QString &separator)
{
    if (parts.size() <= MaxParts)
        return parts.join(separator);
    return parts.mid(0, MaxParts).join(separator) + separator + u'…';
}

QString patternText(const FilterEngine::PatternConditions &pattern)
{
    QStringList parts;
    const auto add = [&parts](const QStringList &texts, const QString &form) {
        for (const QString &text : texts)
            parts.append(form.arg(text.simplified()));
    };
    add(pattern.titleExact, translated(QT_TRANSLATE_NOOP("FilterText", "title is \"%1\"")));
    add(pattern.titleContains, translated(QT_TRANSLATE_NOOP("FilterText", "title contains \"%1\"")));
    add(pattern.descriptionContains, translated(QT_TRANSLATE_NOOP("FilterText", "description contains \"%1\"")));
    add(pattern.locationContains, translated(QT_TRANSLATE_NOOP("FilterText", "location contains \"%1\"")));
    return shortened(parts, translated(QT_TRANSLATE_NOOP("FilterText", " or ")));
}

QString timeText(const FilterEngine::TimeConditions &time, AppState *state)
{
    QStringList parts;
    const auto add = [&](const QString &value, const QString &form) {
        const QTime parsed = FilterTimeEditor::parseTime(value);
        if (!value.isEmpty())
            parts.append(form.arg(parsed.isValid() ? TimeFormat::formatTime(state, parsed) : value));
    };
    add(time.timeExact, translated(QT_TRANSLATE_NOOP("FilterText", "starts at %1")));
    add(time.rangeStart, translated(QT_TRANSLATE_NOOP("FilterText", "starts from %1")));
    add(time.rangeEnd, translated(QT_TRANSLATE_NOOP("FilterText", "starts until %1")));
    const QLocale locale;
    for (const QString &token : time.daysOfWeek) {
        const int day = int(FilterTimeEditor::dayTokens().indexOf(token.toLower())) + 1;
        if (day > 0)
            parts.append(locale.standaloneDayName(day, QLocale::ShortFormat));
    }
    if (time.recurringOnly && !parts.isEmpty())
        parts.append(translated(QT_TRANSLATE_NOOP("FilterText", "repeating only")));
    return parts.join(QStringLiteral(", "));
}

QString specificText(const FilterRule &rule, AppState *state)
{
    const auto event = state->events()->getByUid(rule.eventUid, rule.eventCalendarId);
    return event ? translated(QT_TRANSLATE_NOOP("FilterText", "the event \"%1\"")).arg(event->title.simplified())
                 : translated(QT_TRANSLATE_NOOP("FilterText", "one event"));
}

QString calendarsText(const FilterRule &rule, AppState *state)
{
    const QSet<QString> ids = FilterEngine::parseCalendarIds(rule.calendarIds);
    if (ids.isEmpty())
        return {};
    QStringList names;
    const QList<Calendar> calendars = state->calendars()->getAll();
    for (const Calendar &calendar : calendars) {
        if (ids.contains(calendar.id))
            names.append(calendar.name.simplified());
    }
    return names.isEmpty() ? translated(QT_TRANSLATE_NOOP("FilterText", "no calendar of this device"))
                           : shortened(names, QStringLiteral(", "));
}

}

namespace FilterText {

QString describeConditions(const FilterRule &rule, AppState *state)
{
    const auto conditions = FilterEngine::parseConditions(rule.conditions);
    if (!conditions)
        return {};
    if (const auto *pattern = std::get_if<FilterEngine::PatternConditions>(&*conditions))
        return patternText(*pattern);
    if (const auto *time = std::get_if<FilterEngine::TimeConditions>(&*conditions))
        return timeText(*time, state);
    if (const auto *allDay = std::get_if<FilterEngine::AllDayConditions>(&*conditions)) {
        return allDay->recurringOnly ? translated(QT_TRANSLATE_NOOP("FilterText", "repeating all-day events"))
                                     : translated(QT_TRANSLATE_NOOP("FilterText", "all-day events"));
    }
    return specificText(rule, state);
}

QString describe(const FilterRule &rule, AppState *state)
{
    QStringList parts;
    if (rule.action == FilterAction::Hide)
        parts.append(translated(QT_TRANSLATE_NOOP("FilterText", "Hides")));
    else if (rule.action == FilterAction::Dim)
        parts.append(translated(QT_TRANSLATE_NOOP("FilterText", "Dims")));
    const QString conditions = describeConditions(rule, state);
    parts.append(conditions.isEmpty() ? translated(QT_TRANSLATE_NOOP("FilterText", "matches nothing")) : conditions);
    const QString calendars = calendarsText(rule, state);
    if (!calendars.isEmpty())
        parts.append(calendars);
    return parts.join(QStringLiteral(" · "));
}

} // namespace FilterText
