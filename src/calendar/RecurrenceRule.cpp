#include "calendar/RecurrenceRule.h"

#include "calendar/CivilDate.h"

#include <QString>

#include <algorithm>
#include <array>

namespace {

using Frequency = RecurrenceRule::Frequency;

/// Compares without regard to the case of ASCII letters; \p word is in upper case.
bool isWord(QStringView text, QLatin1StringView word)
{
    if (text.size() != word.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if ((c >= u'a' && c <= u'z' ? c - (u'a' - u'A') : c) != word[i].unicode())
            return false;
    }
    return true;
}

/// The text up to the next \p separator, which is taken off \p rest with it. Null is left if there is none.
QStringView takePart(QStringView &rest, QChar separator)
{
    const qsizetype end = std::ranges::find(rest, separator) - rest.begin();
    const QStringView part = rest.first(end);
    rest = end == rest.size() ? QStringView() : rest.sliced(end + 1);
    return part;
}

Frequency frequencyFrom(QStringView text)
{
    if (isWord(text, QLatin1StringView("DAILY")))
        return Frequency::Daily;
    if (isWord(text, QLatin1StringView("WEEKLY")))
        return Frequency::Weekly;
    if (isWord(text, QLatin1StringView("MONTHLY")))
        return Frequency::Monthly;
    if (isWord(text, QLatin1StringView("YEARLY")))
        return Frequency::Yearly;
    return Frequency::Once;
}

quint8 weekdaysFrom(QStringView text)
{
    static constexpr std::array<QLatin1StringView, 7> tokens{ QLatin1StringView("MO"), QLatin1StringView("TU"),
                                                              QLatin1StringView("WE"), QLatin1StringView("TH"),
                                                              QLatin1StringView("FR"), QLatin1StringView("SA"),
                                                              QLatin1StringView("SU") };
    unsigned days = 0;
    while (!text.isEmpty()) {
        const QStringView token = takePart(text, u',');
        for (unsigned i = 0; i < tokens.size(); ++i) {
            if (isWord(token, tokens[i]))
                days |= 1U << i;
        }
    }
    return static_cast<quint8>(days);
}

std::optional<qint64> untilFrom(QStringView text)
{
    if (text.endsWith(u'Z'))
        text.chop(1);
    const std::optional<CompactTime> time = CompactTime::parse(text);
    if (!time)
        return std::nullopt;
    return time->day * Civil::MsPerDay + time->msOfDay;
}

/// -1 unless \p count digits are at \p text.
template <typename Char> int digits(const Char *text, int count)
{
    int number = 0;
    for (const Char *c = text; c < text + count; ++c) {
        if (*c < Char('0') || *c > Char('9'))
            return -1;
        number = number * 10 + (*c - Char('0'));
    }
    return number;
}

template <typename Char> std::optional<CompactTime> compactTimeFrom(const Char *text, qsizetype length)
{
    const bool isDate = length == 8;
    if (!isDate && (length != 15 || text[8] != Char('T')))
        return std::nullopt;
    const Civil::Date date{ .year = digits(text, 4), .month = digits(text + 4, 2), .day = digits(text + 6, 2) };
    if (date.year < 1 || date.month < 1 || date.month > 12 || date.day < 1
        || date.day > Civil::daysInMonth(date.year, date.month)) {
        return std::nullopt;
    }
    CompactTime time{ .day = Civil::toDays(date), .msOfDay = 0 };
    if (isDate)
        return time;
    const int hour = digits(text + 9, 2);
    const int minute = digits(text + 11, 2);
    const int second = digits(text + 13, 2);
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
        return std::nullopt;
    time.msOfDay = ((hour * 60 + minute) * 60 + second) * 1000;
    return time;
}

}

RecurrenceRule RecurrenceRule::parse(QStringView text)
{
    RecurrenceRule rule;
    while (!text.isEmpty()) {
        QStringView value = takePart(text, u';');
        const QStringView key = takePart(value, u'=');
        if (value.isNull())
            continue;
        if (isWord(key, QLatin1StringView("FREQ"))) {
            rule.frequency = frequencyFrom(value);
        } else if (isWord(key, QLatin1StringView("INTERVAL"))) {
            rule.interval = std::max(1, value.toInt());
        } else if (isWord(key, QLatin1StringView("COUNT"))) {
            rule.count = std::max(0, value.toInt());
        } else if (isWord(key, QLatin1StringView("UNTIL"))) {
            if (const std::optional<qint64> until = untilFrom(value))
                rule.untilMs = until;
        } else if (isWord(key, QLatin1StringView("BYDAY"))) {
            rule.weekdays = weekdaysFrom(value);
        }
    }
    return rule;
}

std::optional<CompactTime> CompactTime::parse(QStringView text)
{
    return compactTimeFrom(text.utf16(), text.size());
}

std::optional<CompactTime> CompactTime::parse(QByteArrayView text)
{
    return compactTimeFrom(text.data(), text.size());
}
