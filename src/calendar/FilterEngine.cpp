#include "calendar/FilterEngine.h"

#include <QStringMatcher>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

using FilterEngine::AllDayConditions;
using FilterEngine::FilterResult;
using FilterEngine::PatternConditions;
using FilterEngine::SpecificConditions;
using FilterEngine::TimeConditions;

namespace {

/// Letters without their case, one for one, as QString compares them without regard to case.
QString folded(const QString &text)
{
    QString result(text);
    for (QChar &c : result) {
        const bool isSmallAscii = c.unicode() < 0x80 && (c < u'A' || c > u'Z');
        if (!isSmallAscii)
            c = c.toCaseFolded();
    }
    return result;
}

enum Field { Title, Description, Location, FieldCount };

/// An event with what several rules ask of it, worked out at most once.
class Subject {
public:
    explicit Subject(const Event &event)
        : m_event(event)
    {
    }

    [[nodiscard]] const Event &event() const { return m_event; }

    [[nodiscard]] const QString &text(Field field) const
    {
        return field == Title ? m_event.title : field == Description ? m_event.description : m_event.location;
    }
    const QString &foldedText(Field field)
    {
        if (m_folded[field].isNull())
            m_folded[field] = folded(text(field));
        return m_folded[field];
    }

    /// 1 for Monday to 7 for Sunday, of the local start; 0 for an event without a start.
    int weekday()
    {
        readStart();
        return m_weekday;
    }
    /// The local start as "HH:mm".
    QStringView startTime()
    {
        readStart();
        return QStringView(m_time);
    }

private:
    void readStart()
    {
        if (m_hasStart)
            return;
        m_hasStart = true;
        const QDateTime local = m_event.startTime.toLocalTime();
        if (!local.isValid())
            return;
        m_weekday = local.date().dayOfWeek();
        const QTime time = local.time();
        const auto digit = [](int number) { return static_cast<char16_t>(u'0' + number % 10); };
        m_time = { digit(time.hour() / 10), digit(time.hour()), u':', digit(time.minute() / 10), digit(time.minute()) };
    }

    const Event &m_event;
    std::array<QString, FieldCount> m_folded;
    bool m_hasStart = false;
    int m_weekday = 0;
    std::array<char16_t, 5> m_time{};
};

class PatternMatcher {
public:
    explicit PatternMatcher(const PatternConditions &conditions)
        : m_caseSensitive(conditions.caseSensitive)
    {
        for (const QString &text : conditions.titleExact)
            m_titles.append(prepared(text));
        addParts(Title, conditions.titleContains);
        addParts(Description, conditions.descriptionContains);
        addParts(Location, conditions.locationContains);
    }

    bool matches(Subject &subject) const
    {
        if (!m_titles.isEmpty() && m_titles.contains(read(subject, Title)))
            return true;
        return holdsPart(subject, Title) || (!subject.text(Description).isEmpty() && holdsPart(subject, Description))
            || (!subject.text(Location).isEmpty() && holdsPart(subject, Location));
    }

private:
    [[nodiscard]] QString prepared(const QString &text) const { return m_caseSensitive ? text : folded(text); }
    const QString &read(Subject &subject, Field field) const
    {
        return m_caseSensitive ? subject.text(field) : subject.foldedText(field);
    }

    void addParts(Field field, const QStringList &parts)
    {
        for (const QString &part : parts)
            m_parts[field].emplace_back(prepared(part));
    }

    bool holdsPart(Subject &subject, Field field) const
    {
        const std::vector<QStringMatcher> &parts = m_parts[field];
        if (parts.empty())
            return false;
        const QString &text = read(subject, field);
        return std::any_of(parts.begin(), parts.end(),
                           [&](const QStringMatcher &part) { return part.indexIn(text) >= 0; });
    }

    bool m_caseSensitive;
    QStringList m_titles;
    std::array<std::vector<QStringMatcher>, FieldCount> m_parts;
};

class TimeMatcher {
public:
    explicit TimeMatcher(TimeConditions conditions)
        : m_conditions(std::move(conditions))
    {
        static const QStringList tokens{ QStringLiteral("mon"), QStringLiteral("tue"), QStringLiteral("wed"),
                                         QStringLiteral("thu"), QStringLiteral("fri"), QStringLiteral("sat"),
                                         QStringLiteral("sun") };
        for (const QString &day : std::as_const(m_conditions.daysOfWeek)) {
            const qsizetype index = tokens.indexOf(day.toLower());
            if (index >= 0)
                m_days |= 1U << index;
        }
        m_hasTime =
            !m_conditions.timeExact.isEmpty() || !m_conditions.rangeStart.isEmpty() || !m_conditions.rangeEnd.isEmpty();
    }

    bool matches(Subject &subject) const
    {
        const TimeConditions &want = m_conditions;
        const bool hasDays = !want.daysOfWeek.isEmpty();
        if (want.recurringOnly && !subject.event().isRecurring())
            return false;
        if ((!hasDays && !m_hasTime) || subject.weekday() == 0)
            return false;
        if (hasDays && (m_days >> (subject.weekday() - 1) & 1) == 0)
            return false;
        const QStringView time = subject.startTime();
        return (want.timeExact.isEmpty() || want.timeExact == time)
            && (want.rangeStart.isEmpty() || time >= want.rangeStart)
            && (want.rangeEnd.isEmpty() || time <= want.rangeEnd);
    }

private:
    TimeConditions m_conditions;
    unsigned m_days = 0; // bit 0 for Monday
    bool m_hasTime = false;
};

class SpecificMatcher {
public:
    explicit SpecificMatcher(const FilterRule &rule)
        : m_uid(rule.eventUid)
        , m_calendarId(rule.eventCalendarId)
    {
    }

    bool matches(Subject &subject) const
    {
        const Event &event = subject.event();
        return event.calendarId == m_calendarId
            && (event.uid == m_uid || (!event.providerEventId.isEmpty() && event.providerEventId == m_uid));
    }

private:
    QString m_uid;
    QString m_calendarId;
};

class AllDayMatcher {
public:
    explicit AllDayMatcher(const AllDayConditions &conditions)
        : m_recurringOnly(conditions.recurringOnly)
    {
    }

    bool matches(Subject &subject) const
    {
        return subject.event().isAllDay && (!m_recurringOnly || subject.event().isRecurring());
    }

private:
    bool m_recurringOnly;
};

using Matcher = std::variant<PatternMatcher, TimeMatcher, SpecificMatcher, AllDayMatcher>;

Matcher makeMatcher(const FilterRule &rule, const FilterEngine::FilterConditions &conditions)
{
    struct Maker {
        const FilterRule &rule;
        Matcher operator()(const PatternConditions &pattern) const { return PatternMatcher(pattern); }
        Matcher operator()(const TimeConditions &time) const { return TimeMatcher(time); }
        Matcher operator()(const SpecificConditions &) const { return SpecificMatcher(rule); }
        Matcher operator()(const AllDayConditions &allDay) const { return AllDayMatcher(allDay); }
    };
    return std::visit(Maker{ rule }, conditions);
}

struct CompiledRule {
    FilterRule rule;
    Matcher matcher;
    QSet<QString> calendarIds; // empty: all

    bool matches(Subject &subject) const
    {
        if (!calendarIds.isEmpty() && !calendarIds.contains(subject.event().calendarId))
            return false;
        return std::visit([&](const auto &alternative) { return alternative.matches(subject); }, matcher);
    }
};

std::vector<CompiledRule> compile(const QList<FilterRule> &rules)
{
    std::vector<CompiledRule> compiled;
    for (const FilterRule &rule : rules) {
        if (!rule.enabled || rule.deletedAt)
            continue;
        if (const auto conditions = FilterEngine::parseConditions(rule.conditions)) {
            compiled.push_back(
                { rule, makeMatcher(rule, *conditions), FilterEngine::parseCalendarIds(rule.calendarIds) });
        }
    }
    std::stable_sort(compiled.begin(), compiled.end(),
                     [](const CompiledRule &a, const CompiledRule &b) { return a.rule.priority < b.rule.priority; });
    return compiled;
}

const FilterRule *firstMatch(const std::vector<CompiledRule> &rules, const Event &event)
{
    Subject subject(event);
    const auto found =
        std::find_if(rules.begin(), rules.end(), [&](const CompiledRule &rule) { return rule.matches(subject); });
    return found == rules.end() ? nullptr : &found->rule;
}

}

FilterResult FilterEngine::apply(const QList<Event> &events, const QList<FilterRule> &rules)
{
    return apply(QList<Event>(events), rules);
}

FilterResult FilterEngine::apply(QList<Event> &&events, const QList<FilterRule> &rules)
{
    const std::vector<CompiledRule> compiled = compile(rules);
    FilterResult result;
    const auto isHidden = [&](const Event &event) {
        const FilterRule *rule = firstMatch(compiled, event);
        const bool hides = rule && rule->action == FilterAction::Hide;
        const bool dims = rule && rule->action == FilterAction::Dim;
        if (hides)
            ++result.hiddenCount;
        if (dims)
            result.dimmedIds.insert(event.id);
        if (hides || (dims && rule->suppressReminders))
            result.reminderSuppressedIds.insert(event.id);
        return hides;
    };
    // Implicit sharing: without a hit the list is not copied, even if the caller keeps it.
    events.removeIf(isHidden);
    result.events = std::move(events);
    return result;
}

std::optional<FilterRule> FilterEngine::firstMatchingRule(const Event &event, const QList<FilterRule> &rules)
{
    const std::vector<CompiledRule> compiled = compile(rules);
    const FilterRule *rule = firstMatch(compiled, event);
    return rule ? std::optional(*rule) : std::nullopt;
}
