#pragma once

#include "models/Event.h"
#include "models/FilterRule.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

/// Judges events by the user's filter rules. Never changes an event. No state.
namespace FilterEngine {

/// The four lists are alternatives: one hit is enough.
struct PatternConditions {
    QStringList titleContains{};
    QStringList titleExact{};
    QStringList descriptionContains{};
    QStringList locationContains{};
    bool caseSensitive = false;

    bool operator==(const PatternConditions &) const = default;
};

/// All given parts must hold, on the occurrence's local start. Texts are "HH:mm" or empty.
struct TimeConditions {
    QString timeExact{};
    QString rangeStart{}; ///< inclusive
    QString rangeEnd{}; ///< inclusive
    QStringList daysOfWeek{}; ///< "mon" to "sun"
    bool recurringOnly = false;

    bool operator==(const TimeConditions &) const = default;
};

/// The event meant stands in FilterRule::eventUid and eventCalendarId.
struct SpecificConditions {
    bool operator==(const SpecificConditions &) const = default;
};

struct AllDayConditions {
    bool recurringOnly = false;

    bool operator==(const AllDayConditions &) const = default;
};

using FilterConditions = std::variant<PatternConditions, TimeConditions, SpecificConditions, AllDayConditions>;

struct FilterResult {
    QList<Event> events; ///< those not hidden, in input order
    QSet<QString> dimmedIds; ///< event ids: one dimmed occurrence dims its series in the window
    int hiddenCount = 0; ///< instances
    QSet<QString> reminderSuppressedIds;
};

/// None for text that is not a JSON object of a known "runtimeType".
std::optional<FilterConditions> parseConditions(const QString &json);
/// The JSON text that parseConditions reads back, in the form shared with other devices.
QString conditionsToJson(const FilterConditions &conditions);
QSet<QString> parseCalendarIds(const QString &json);

/// The first rule by priority that matches decides over an event; disabled and unreadable rules are skipped.
FilterResult apply(const QList<Event> &events, const QList<FilterRule> &rules);
FilterResult apply(QList<Event> &&events, const QList<FilterRule> &rules); ///< spares the copies
std::optional<FilterRule> firstMatchingRule(const Event &event, const QList<FilterRule> &rules);

} // namespace FilterEngine
