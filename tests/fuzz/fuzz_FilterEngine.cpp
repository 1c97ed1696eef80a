#include "calendar/FilterEngine.h"

#include <QTimeZone>

#include <cstdlib>

// The input is the text of a rule's conditions, as a server may send it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString json = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<FilterEngine::FilterConditions> conditions = FilterEngine::parseConditions(json);
    // What was understood reads back as itself.
    if (conditions && FilterEngine::parseConditions(FilterEngine::conditionsToJson(*conditions)) != conditions)
        std::abort();

    Event event;
    event.title = QStringLiteral("Daily Standup \u00C4\u00DF");
    event.description = json;
    event.startTime = QDateTime(QDate(2026, 5, 4), QTime(9, 0), QTimeZone("Europe/Berlin"));
    FilterRule rule;
    rule.conditions = json;
    rule.calendarIds = json;
    const FilterEngine::FilterResult result = FilterEngine::apply({ event, Event() }, { rule, rule });
    if (result.events.size() + result.hiddenCount != 2)
        std::abort();
    FilterEngine::firstMatchingRule(event, { rule });
    return 0;
}
