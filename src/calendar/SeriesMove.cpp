#include "calendar/SeriesMove.h"

#include "calendar/CivilDate.h"
#include "calendar/InstanceName.h"
#include "calendar/RecurrenceRule.h"
#include "calendar/RruleExpander.h"
#include "calendar/RuleEnd.h"

#include <algorithm>

namespace {

using Frequency = RecurrenceRule::Frequency;

// Names come from files: one in the year 9999 must not have a yearly series laid out up to there.
constexpr qint64 FarthestMs = 100 * 366 * Civil::MsPerDay;
// How much further the n-th instance may move than the first: month ends, and weeks of a long interval.
constexpr qint64 SlackMs = 800 * Civil::MsPerDay;

/// What the clock of \p time shows, free of its zone.
QDateTime digits(const QDateTime &time)
{
    return QDateTime(time.date(), time.time(), Qt::UTC);
}

/// No instance after this one is asked for.
qint64 lastNamed(const Event &series, const RecurrenceRule &rule, const QList<Event> &overrides)
{
    qint64 last = rule.untilMs.value_or(series.startTime.toMSecsSinceEpoch() - 1);
    for (const InstanceName &name : InstanceName::listFrom(series.exceptionDates))
        last = std::max(last, name.startMs);
    for (const Event &row : overrides) {
        if (const auto name = InstanceName::parse(row.recurrenceId))
            last = std::max(last, name->startMs);
    }
    return std::min(last, series.startTime.toMSecsSinceEpoch() + FarthestMs);
}

QList<qint64> endlessStarts(Event series, qint64 beforeMs)
{
    series.recurrenceRule = RuleEnd::removed(series.recurrenceRule);
    return RruleExpander::startsBefore(series, beforeMs);
}

bool keepsDays(const RecurrenceRule &rule, QDate from, QDate to)
{
    if (rule.weekdays == 0)
        return false;
    const qint64 days = from.daysTo(to);
    const qint64 weekDays = days + from.dayOfWeek() - to.dayOfWeek(); // from Monday to Monday
    return (rule.frequency == Frequency::Daily && days % rule.interval == 0)
        || (rule.frequency == Frequency::Weekly && weekDays / 7 % rule.interval == 0);
}

}

SeriesMove::SeriesMove(const Event &before, const Event &after, const QList<Event> &overrides)
    : m_isMoved(before.startTime != after.startTime || before.timezone != after.timezone
                || before.isAllDay != after.isAllDay)
    , m_from(before.startTime)
    , m_to(after.startTime)
    , m_newTime(after.startTime.time())
    , m_shift(WallClockShift::between(digits(before.startTime), digits(after.startTime)))
{
    if (!m_isMoved || before.recurrenceRule != after.recurrenceRule)
        return;
    const RecurrenceRule rule = RecurrenceRule::parse(before.recurrenceRule);
    m_keepsDays = keepsDays(rule, before.startTime.date(), after.startTime.date());
    if (m_keepsDays)
        m_shift.days = 0;
    const qint64 last = lastNamed(before, rule, overrides);
    const qint64 furtherMs = std::max<qint64>(0, before.startTime.msecsTo(after.startTime)) + SlackMs;
    m_starts = endlessStarts(before, last + 1);
    if (!m_starts.isEmpty() && !m_keepsDays)
        m_newStarts = endlessStarts(after, last + furtherMs);
}

qint64 SeriesMove::target(qint64 startMs) const
{
    if (!m_isMoved)
        return startMs;
    const QDateTime start = m_from.at(startMs);
    const auto found = std::ranges::lower_bound(m_starts, startMs);
    if (found != m_starts.end() && *found == startMs) {
        const qsizetype index = std::distance(m_starts.begin(), found);
        if (m_keepsDays)
            return m_to.at(start.date(), m_newTime).toMSecsSinceEpoch();
        if (index < m_newStarts.size())
            return m_newStarts.at(index);
    }
    const QDateTime moved = m_shift.applied(digits(start));
    return m_to.at(moved.date(), moved.time()).toMSecsSinceEpoch();
}

QString SeriesMove::movedDates(const QString &json) const
{
    return InstanceName::changedList(json, [this](const InstanceName &name) {
        return InstanceName{ target(name.startMs), name.form };
    });
}

QString SeriesMove::movedRule(const Event &after) const
{
    const RecurrenceRule rule = RecurrenceRule::parse(after.recurrenceRule);
    if (m_starts.isEmpty() || !rule.untilMs || rule.count > 0)
        return after.recurrenceRule;
    const auto end = std::ranges::upper_bound(m_starts, *rule.untilMs);
    if (end == m_starts.begin() || *rule.untilMs > m_starts.first() + FarthestMs)
        return after.recurrenceRule;
    const qint64 lastMs = target(*std::prev(end));
    const QList<qint64> left = RruleExpander::startsBefore(after, *rule.untilMs + 1);
    if (!left.isEmpty() && left.last() == lastMs)
        return after.recurrenceRule;
    const QDateTime last = QDateTime::fromMSecsSinceEpoch(lastMs, Qt::UTC);
    return after.isAllDay ? RuleEnd::on(after.recurrenceRule, last.date()) : RuleEnd::at(after.recurrenceRule, last);
}
