#pragma once

#include <QtGlobal>

#include <algorithm>

/// Arithmetic on dates of the proleptic Gregorian calendar: plain integers, no range checks. Days count
/// from 1970-01-01. Years are astronomical: year 0 exists, and is what QDate calls -1.
namespace Civil {

inline constexpr qint64 MsPerDay = 86'400'000;

constexpr qint64 floorDiv(qint64 a, qint64 b)
{
    return a / b - (a % b != 0 && (a < 0) != (b < 0) ? 1 : 0);
}

constexpr qint64 floorMod(qint64 a, qint64 b)
{
    return a - floorDiv(a, b) * b;
}

constexpr bool isLeapYear(qint64 year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// \p month is 1 to 12.
constexpr int daysInMonth(qint64 year, int month)
{
    if (month == 2)
        return isLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

struct Date {
    qint64 year = 1970;
    int month = 1; ///< 1 to 12
    int day = 1; ///< 1 to 31
};

// Both conversions count in years that begin on 1 March, so that the leap day is the last of its year:
// the months then start (153 * m + 2) / 5 days into the year, m being 0 for March.
inline constexpr qint64 DaysIn400Years = 146'097;
inline constexpr qint64 MarchYear0ToEpoch = 719'468; // days from 0000-03-01 to 1970-01-01

constexpr qint64 toDays(Date date)
{
    const int marchMonth = (date.month + 9) % 12;
    const qint64 marchYear = date.month <= 2 ? date.year - 1 : date.year;
    const qint64 leapDays = floorDiv(marchYear, 4) - floorDiv(marchYear, 100) + floorDiv(marchYear, 400);
    return marchYear * 365 + leapDays + (153 * marchMonth + 2) / 5 + date.day - 1 - MarchYear0ToEpoch;
}

constexpr Date fromDays(qint64 days)
{
    const qint64 shifted = days + MarchYear0ToEpoch;
    const qint64 cycle = floorDiv(shifted, DaysIn400Years);
    const auto dayOfCycle = static_cast<int>(shifted - cycle * DaysIn400Years);
    // The last day of a century, and of the cycle, belongs to the year before it.
    const int century = std::min(dayOfCycle / 36'524, 3);
    const int dayOfCentury = dayOfCycle - century * 36'524;
    const int leapCycle = dayOfCentury / 1'461;
    const int dayOfLeapCycle = dayOfCentury - leapCycle * 1'461;
    const int yearOfLeapCycle = std::min(dayOfLeapCycle / 365, 3);
    const int dayOfYear = dayOfLeapCycle - yearOfLeapCycle * 365;
    const int marchMonth = (5 * dayOfYear + 2) / 153;
    const qint64 marchYear = cycle * 400 + century * 100 + leapCycle * 4 + yearOfLeapCycle;
    return { .year = marchMonth >= 10 ? marchYear + 1 : marchYear,
             .month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9,
             .day = dayOfYear - (153 * marchMonth + 2) / 5 + 1 };
}

/// 1 for Monday to 7 for Sunday.
constexpr int weekday(qint64 days)
{
    return static_cast<int>(floorMod(days + 3, 7)) + 1;
}

} // namespace Civil
