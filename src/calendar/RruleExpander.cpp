#include "calendar/RruleExpander.h"

#include "calendar/CivilDate.h"
#include "calendar/InstanceName.h"
#include "calendar/RecurrenceRule.h"
#include "calendar/WallClock.h"

#include <QVarLengthArray>

#include <algorithm>
#include <bit>
#include <iterator>

namespace {

using Civil::MsPerDay;
using Frequency = RecurrenceRule::Frequency;

constexpr qint64 DefaultDurationMs = 3'600'000;
// Three million years: no sum or product below can overflow with instants within this bound.
constexpr qint64 FarthestMs = 100'000'000'000'000'000;
// A wall-clock date and its UTC date differ by at most one day.
constexpr qint64 ZonePadDays = 2;

bool isNear(qint64 ms)
{
    return ms >= -FarthestMs && ms <= FarthestMs;
}

/// The dates on which a rule places instances, in order. Steps that end before the first day wanted are
/// jumped over, but they count.
class StartDays {
public:
    StartDays(const RecurrenceRule &rule, qint64 startDay, qint64 firstWanted, qint64 lastWanted)
        : m_rule(rule)
        , m_startDay(startDay)
        , m_firstWanted(firstWanted)
        , m_lastWanted(lastWanted)
        , m_limit(rule.count > 0 ? std::min(rule.count, RruleExpander::MaxInstances) : RruleExpander::MaxInstances)
    {
    }

    template <typename Use> void forEach(Use use) const
    {
        switch (m_rule.frequency) {
        case Frequency::Once:
            use(m_startDay);
            break;
        case Frequency::Daily:
            daily(use);
            break;
        case Frequency::Weekly:
            weekly(use);
            break;
        case Frequency::Monthly:
            monthly(m_rule.interval, use);
            break;
        case Frequency::Yearly:
            monthly(qint64(12) * m_rule.interval, use);
            break;
        }
    }

private:
    [[nodiscard]] bool hasDay(qint64 day) const { return (m_rule.weekdays >> (Civil::weekday(day) - 1) & 1) != 0; }

    template <typename Use> void daily(Use use) const
    {
        const qint64 interval = m_rule.interval;
        if (m_rule.weekdays == 0 || (interval % 7 == 0 && hasDay(m_startDay)))
            return everyDays(interval, use);
        if (interval % 7 == 0)
            return; // always the same weekday, and not one of those asked for
        // Seven steps meet each weekday once.
        const qint64 rounds = jumps(m_startDay, 7 * interval);
        qint64 index = rounds * std::popcount(m_rule.weekdays);
        for (qint64 day = m_startDay + rounds * 7 * interval; index < m_limit && day <= m_lastWanted; day += interval) {
            if (!hasDay(day))
                continue;
            if (day >= m_firstWanted)
                use(day);
            ++index;
        }
    }

    template <typename Use> void everyDays(qint64 interval, Use use) const
    {
        qint64 index = jumps(m_startDay, interval);
        for (qint64 day = m_startDay + index * interval; index < m_limit && day <= m_lastWanted; day += interval) {
            if (day >= m_firstWanted)
                use(day);
            ++index;
        }
    }

    template <typename Use> void weekly(Use use) const
    {
        const int startWeekday = Civil::weekday(m_startDay);
        const unsigned days = m_rule.weekdays != 0 ? m_rule.weekdays : 1U << (startWeekday - 1);
        const qint64 stride = qint64(7) * m_rule.interval;
        const qint64 weeks = jumps(m_startDay - (startWeekday - 1), stride);
        qint64 index = 0;
        if (weeks > 0) // the first week lacks the days before the start
            index = std::popcount(days >> (startWeekday - 1)) + (weeks - 1) * std::popcount(days);
        for (qint64 monday = m_startDay - (startWeekday - 1) + weeks * stride; monday <= m_lastWanted;
             monday += stride) {
            for (int weekday = 0; weekday < 7; ++weekday) {
                const qint64 day = monday + weekday;
                if ((days >> weekday & 1) == 0 || day < m_startDay)
                    continue;
                if (index >= m_limit || day > m_lastWanted)
                    return;
                if (day >= m_firstWanted)
                    use(day);
                ++index;
            }
        }
    }

    template <typename Use> void monthly(qint64 interval, Use use) const
    {
        const Civil::Date start = Civil::fromDays(m_startDay);
        qint64 month = start.year * 12 + start.month - 1;
        int dayOfMonth = start.day;
        qint64 index = 0;
        while (index < m_limit) {
            const qint64 year = Civil::floorDiv(month, 12);
            const int monthOfYear = static_cast<int>(month - year * 12) + 1;
            // A month end is cut and stays cut: 31 Jan, 28 Feb, 28 Mar. From the 28th down nothing is.
            if (dayOfMonth > 28)
                dayOfMonth = std::min(dayOfMonth, Civil::daysInMonth(year, monthOfYear));
            const qint64 day = Civil::toDays({ .year = year, .month = monthOfYear, .day = dayOfMonth });
            if (day > m_lastWanted)
                return;
            if (day >= m_firstWanted)
                use(day);
            const qint64 steps = dayOfMonth > 28 ? 1 : std::max<qint64>(1, monthsUntilWanted(month) / interval);
            month += steps * interval;
            index += steps;
        }
    }

    /// How many steps of \p stride days from \p day end before the first day wanted.
    [[nodiscard]] qint64 jumps(qint64 day, qint64 stride) const
    {
        return std::max<qint64>(0, Civil::floorDiv(m_firstWanted - day, stride));
    }

    [[nodiscard]] qint64 monthsUntilWanted(qint64 month) const
    {
        const Civil::Date wanted = Civil::fromDays(m_firstWanted);
        return wanted.year * 12 + wanted.month - 1 - month;
    }

    const RecurrenceRule &m_rule;
    qint64 m_startDay;
    qint64 m_firstWanted;
    qint64 m_lastWanted;
    int m_limit;
};

using Instants = QVarLengthArray<qint64, 16>;

/// Sorted.
Instants excludedStarts(const Event &master)
{
    Instants instants;
    for (const InstanceName &name : InstanceName::listFrom(master.exceptionDates))
        instants.append(name.startMs);
    std::sort(instants.begin(), instants.end());
    return instants;
}

/// Four or two digits at \p to.
void writeDigits(QChar *to, int count, int number)
{
    for (int i = count - 1; i >= 0; --i) {
        to[i] = QChar(u'0' + number % 10);
        number /= 10;
    }
}

/// The starts of a series' instances that overlap [fromMs, toMs), exceptions included.
Instants startsInWindow(const Event &master, const WallClock &clock, qint64 durationMs, qint64 fromMs, qint64 toMs)
{
    const RecurrenceRule rule = RecurrenceRule::parse(master.recurrenceRule);
    const qint64 firstStartMs = master.startTime.toMSecsSinceEpoch();
    // UNTIL is inclusive, but says nothing about an event that does not repeat.
    if (rule.untilMs && rule.frequency != Frequency::Once)
        toMs = std::min(toMs, *rule.untilMs + 1);

    const int msOfDay = master.startTime.time().msecsSinceStartOfDay();
    const qint64 startDay = QDate(1970, 1, 1).daysTo(master.startTime.date());
    const StartDays days(rule, startDay, Civil::floorDiv(fromMs - durationMs, MsPerDay) - ZonePadDays,
                         Civil::floorDiv(toMs, MsPerDay) + ZonePadDays);
    Instants starts;
    days.forEach([&](qint64 day) {
        // A start in an hour that occurs twice may be the second of the two.
        const qint64 startMs = day == startDay ? firstStartMs : clock.toUtcMs(day, msOfDay);
        if (startMs + durationMs > fromMs && startMs < toMs)
            starts.append(startMs);
    });
    return starts;
}

}

RruleExpander::Occurrences::Occurrences(const Event &master, qint64 fromMs, qint64 toMs)
    : m_master(master)
    , m_clock(master.startTime)
    , m_durationMs(DefaultDurationMs)
{
    const qint64 masterStartMs = master.startTime.toMSecsSinceEpoch();
    const bool hasEnd = master.endTime && master.endTime->isValid();
    const qint64 masterEndMs = hasEnd ? master.endTime->toMSecsSinceEpoch() : 0;
    fromMs = std::clamp(fromMs, -FarthestMs, FarthestMs);
    toMs = std::clamp(toMs, -FarthestMs, FarthestMs);
    if (!master.startTime.isValid() || !isNear(masterStartMs) || !isNear(masterEndMs) || masterStartMs >= toMs)
        return;

    if (hasEnd)
        m_durationMs = masterEndMs - masterStartMs;
    const Instants starts = startsInWindow(master, m_clock, m_durationMs, fromMs, toMs);
    if (starts.isEmpty())
        return;

    const Instants exceptions = excludedStarts(master);
    m_starts.reserve(starts.size());
    std::ranges::copy_if(starts, std::back_inserter(m_starts), [&exceptions](qint64 startMs) {
        return !std::binary_search(exceptions.begin(), exceptions.end(), startMs);
    });
}

void RruleExpander::Occurrences::appendAt(qint64 startMs, QList<Event> &events) const
{
    Event &copy = events.emplaceBack(m_master);
    copy.startTime = m_clock.sharedAt(startMs);
    copy.endTime = m_clock.sharedAt(startMs + m_durationMs);
    copy.recurrenceId = formatRecurrenceId(startMs);
}

QList<qint64> RruleExpander::startsBefore(const Event &master, qint64 beforeMs)
{
    if (!master.startTime.isValid() || !isNear(master.startTime.toMSecsSinceEpoch()))
        return {};
    const Instants starts = startsInWindow(master, WallClock(master.startTime), 0, -FarthestMs,
                                           std::clamp(beforeMs, -FarthestMs, FarthestMs));
    return QList<qint64>(starts.begin(), starts.end());
}

QList<Event> RruleExpander::expand(const Event &event, const QDateTime &from, const QDateTime &to)
{
    if (!event.isRecurring()) {
        const bool isOver = event.endTime && *event.endTime <= from;
        if (!event.startTime.isValid() || event.startTime >= to || isOver)
            return {};
        return { event };
    }
    const Occurrences found(event, from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch());
    QList<Event> result;
    result.reserve(found.starts().size());
    for (const qint64 startMs : found.starts())
        found.appendAt(startMs, result);
    return result;
}

QString RruleExpander::formatRecurrenceId(const QDateTime &start)
{
    return start.isValid() ? formatRecurrenceId(start.toMSecsSinceEpoch()) : QString();
}

QString RruleExpander::formatRecurrenceId(qint64 startMs)
{
    const qint64 day = Civil::floorDiv(startMs, MsPerDay);
    const Civil::Date date = Civil::fromDays(day);
    if (date.year < 1 || date.year > 9999)
        return QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC).toString(u"yyyyMMdd'T'HHmmss'Z'");
    const int second = static_cast<int>((startMs - day * MsPerDay) / 1000);
    QString id(16, Qt::Uninitialized);
    QChar *text = id.data();
    writeDigits(text, 4, static_cast<int>(date.year));
    writeDigits(text + 4, 2, date.month);
    writeDigits(text + 6, 2, date.day);
    text[8] = u'T';
    writeDigits(text + 9, 2, second / 3600);
    writeDigits(text + 11, 2, second / 60 % 60);
    writeDigits(text + 13, 2, second % 60);
    text[15] = u'Z';
    return id;
}
