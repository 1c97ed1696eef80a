#include "calendar/WallClockShift.h"

#include "calendar/CivilDate.h"
#include "calendar/WallClock.h"

WallClockShift WallClockShift::between(const QDateTime &from, const QDateTime &to)
{
    if (!from.isValid() || !to.isValid())
        return {};
    const QDateTime end = WallClock(from).at(to.toMSecsSinceEpoch());
    return { .days = from.date().daysTo(end.date()), .seconds = from.time().secsTo(end.time()) };
}

QDateTime WallClockShift::applied(const QDateTime &when) const
{
    // Reading the clock anew would lose which of two equal hours it was.
    if (isNull() || !when.isValid())
        return when;
    const qint64 ms = when.time().msecsSinceStartOfDay() + seconds * 1000;
    const qint64 carriedDays = Civil::floorDiv(ms, Civil::MsPerDay);
    const int msOfDay = static_cast<int>(Civil::floorMod(ms, Civil::MsPerDay));
    return WallClock(when).at(when.date().addDays(days + carriedDays), QTime::fromMSecsSinceStartOfDay(msOfDay));
}
