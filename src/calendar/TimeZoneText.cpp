#include "calendar/TimeZoneText.h"

#include "calendar/ICalLineText.h"
#include "calendar/TimeZones.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <vector>

using ICal::TreeComponent;

namespace {

// RFC 5545 knows years of four digits only, and few zones had an offset before.
constexpr int EarliestYear = 1900;
constexpr int LatestYear = 9000;
// From here on systems have rules more than recorded history.
constexpr int RulesYear = 2030;
constexpr int YearsAhead = 50;
// Fewer changes are a coincidence, not a rule.
constexpr size_t ShortestRule = 5;
constexpr int DaysPerWeek = 7;

/// A change of the clock.
struct Onset {
    QDateTime local; // by the clock before it, as UTC digits
    int offsetFrom = 0; // seconds east of UTC
    int offsetTo = 0;
    bool isDaylight = false;
    QString name;

    [[nodiscard]] QDate date() const { return local.date(); }
};
using Onsets = std::vector<Onset>;

bool isSameChange(const Onset &a, const Onset &b)
{
    return a.offsetFrom == b.offsetFrom && a.offsetTo == b.offsetTo && a.isDaylight == b.isDaylight && a.name == b.name;
}

Onset onset(const QDateTime &utc, int offsetFrom, const QTimeZone::OffsetData &to)
{
    return { .local = utc.addSecs(offsetFrom),
             .offsetFrom = offsetFrom,
             .offsetTo = to.offsetFromUtc,
             .isDaylight = to.daylightTimeOffset != 0,
             .name = to.abbreviation };
}

/// The first entry says what is in force when \p firstYear begins.
Onsets onsetsFrom(const QTimeZone &zone, int firstYear, int lastYear)
{
    const QDateTime from(QDate(firstYear, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime to(QDate(lastYear, 12, 31), QTime(23, 59), Qt::UTC);
    const QTimeZone::OffsetData first{ .abbreviation = zone.abbreviation(from),
                                       .atUtc = from,
                                       .offsetFromUtc = zone.offsetFromUtc(from),
                                       .standardTimeOffset = zone.standardTimeOffset(from),
                                       .daylightTimeOffset = zone.daylightTimeOffset(from) };
    Onsets onsets{ onset(from, first.offsetFromUtc, first) };
    const QTimeZone::OffsetDataList changes = TimeZones::changes(zone, from, to);
    for (const QTimeZone::OffsetData &change : changes) {
        Onset next = onset(change.atUtc, onsets.back().offsetTo, change);
        if (next.offsetFrom != next.offsetTo || next.name != onsets.back().name)
            onsets.push_back(std::move(next));
    }
    return onsets;
}

/// One weekday of a month, within seven days of it: "the last Sunday of March".
class YearlyDay {
public:
    explicit YearlyDay(QDate date)
        : m_month(date.month())
        , m_weekday(date.dayOfWeek())
        , m_firstDay(date.day())
        , m_lastDay(date.day())
    {
    }

    /// False for a day that is not the only such one beside those taken so far.
    bool take(QDate date)
    {
        const int first = std::min(m_firstDay, date.day());
        const int last = std::max(m_lastDay, date.day());
        if (date.month() != m_month || date.dayOfWeek() != m_weekday || last - first >= DaysPerWeek)
            return false;
        m_firstDay = first;
        m_lastDay = last;
        return true;
    }

    /// Empty if the days taken leave open which seven are meant.
    [[nodiscard]] QByteArray rule() const
    {
        if (m_lastDay - m_firstDay != DaysPerWeek - 1)
            return {};
        static constexpr std::array days{ "MO", "TU", "WE", "TH", "FR", "SA", "SU" };
        const QByteArray day(days[size_t(m_weekday) - 1]);
        const QByteArray rule = "FREQ=YEARLY;BYMONTH=" + QByteArray::number(m_month) + ";BYDAY=";
        if (m_lastDay == QDate(2000, m_month, 1).daysInMonth())
            return rule + "-1" + day;
        if (m_lastDay % DaysPerWeek == 0)
            return rule + QByteArray::number(m_lastDay / DaysPerWeek) + day;
        QByteArrayList monthDays;
        for (int i = m_firstDay; i <= m_lastDay; ++i)
            monthDays.append(QByteArray::number(i));
        return rule + day + ";BYMONTHDAY=" + monthDays.join(',');
    }

private:
    int m_month;
    int m_weekday;
    int m_firstDay;
    int m_lastDay;
};

QByteArray offsetText(int seconds)
{
    constexpr int secondsPerMinute = 60;
    const int minutes = std::abs(seconds) / secondsPerMinute;
    const auto twoDigits = [](int number) { return QByteArray::number(number).rightJustified(2, '0'); };
    QByteArray text = (seconds < 0 ? '-' : '+') + twoDigits(minutes / 60) + twoDigits(minutes % 60);
    if (const int rest = std::abs(seconds) % secondsPerMinute; rest != 0)
        text += twoDigits(rest);
    return text;
}

QByteArray stamp(const Onset &onset)
{
    return onset.local.toString(u"yyyyMMdd'T'HHmmss").toLatin1();
}

TreeComponent observance(const Onset &first)
{
    TreeComponent component(first.isDaylight ? "DAYLIGHT" : "STANDARD");
    component.addLine("DTSTART:" + stamp(first));
    component.addLine("TZOFFSETFROM:" + offsetText(first.offsetFrom));
    component.addLine("TZOFFSETTO:" + offsetText(first.offsetTo));
    component.addLine("TZNAME:" + ICal::textValue(first.name));
    return component;
}

/// A rule for the changes that come each year up to \p lastYear, which are taken off \p onsets. These are all of
/// one kind.
std::optional<TreeComponent> takeRule(Onsets &onsets, int lastYear)
{
    if (onsets.empty() || onsets.back().date().year() != lastYear)
        return std::nullopt;
    YearlyDay day(onsets.back().date());
    const QTime time = onsets.back().local.time();
    auto first = onsets.end() - 1;
    while (first != onsets.begin()) {
        const Onset &earlier = *(first - 1);
        if (earlier.date().year() != first->date().year() - 1 || earlier.local.time() != time
            || !day.take(earlier.date()))
            break;
        --first;
    }
    const QByteArray rule = day.rule();
    if (rule.isEmpty() || size_t(onsets.end() - first) < ShortestRule)
        return std::nullopt;
    TreeComponent component = observance(*first);
    component.addLine("RRULE:" + rule);
    onsets.erase(first, onsets.end());
    return component;
}

TreeComponent listed(const Onsets &onsets)
{
    TreeComponent component = observance(onsets.front());
    QByteArrayList dates;
    for (const Onset &onset : onsets)
        dates.append(stamp(onset));
    dates.removeFirst(); // it is DTSTART
    if (!dates.isEmpty())
        component.addLine("RDATE:" + dates.join(','));
    return component;
}

}

TreeComponent TimeZoneText::component(const QString &tzid, const QTimeZone &zone, int firstYear)
{
    TreeComponent component("VTIMEZONE");
    component.addLine("TZID:" + ICal::textValue(tzid));
    firstYear = std::clamp(firstYear, EarliestYear, LatestYear);
    const int lastYear = std::max(firstYear, RulesYear) + YearsAhead;
    const Onsets onsets = onsetsFrom(zone, firstYear, lastYear);

    std::vector<Onsets> kinds; // each in order
    for (const Onset &onset : onsets) {
        const auto kind =
            std::ranges::find_if(kinds, [&](const Onsets &other) { return isSameChange(other.front(), onset); });
        if (kind != kinds.end())
            kind->push_back(onset);
        else
            kinds.push_back({ onset });
    }
    for (Onsets &kind : kinds) {
        const std::optional<TreeComponent> rule = takeRule(kind, lastYear);
        if (!kind.empty())
            component.addComponent(listed(kind));
        if (rule)
            component.addComponent(*rule);
    }
    return component;
}
