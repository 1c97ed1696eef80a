#include "calendar/TimeForm.h"

#include "calendar/ICalLineText.h"
#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "calendar/TimeZones.h"
#include "calendar/WallClock.h"

using namespace ICal;

namespace {

constexpr int LastYear = 9999;

QDateTime shownIn(const QDateTime &time, const QTimeZone &zone)
{
    return WallClock(zone).at(time.toMSecsSinceEpoch());
}

}

TimeForm TimeForm::zoned(const QString &tzid)
{
    TimeForm form(Kind::Zoned);
    form.m_tzid = tzid;
    return form;
}

TimeForm TimeForm::of(const ContentLine &line)
{
    const QByteArrayView value = line.value();
    if (ICalParser::parseDateTimeValue(QString::fromUtf8(value)).isDate)
        return TimeForm(Kind::Date);
    if (const QByteArrayView tzid = line.parameter("TZID"); !tzid.isEmpty())
        return zoned(QString::fromUtf8(tzid));
    return TimeForm(value.endsWith('Z') ? Kind::Utc : Kind::Floating);
}

TimeForm TimeForm::naming(const QDateTime &time) const
{
    if (m_kind == Kind::Date || m_kind == Kind::Utc)
        return *this;
    const QDateTime read = ICalParser::parseDateTimeValue(QString::fromLatin1(value(time)), m_tzid).value;
    return read.isValid() && read.toSecsSinceEpoch() == time.toSecsSinceEpoch() ? *this : TimeForm(Kind::Utc);
}

QByteArray TimeForm::value(const QDateTime &time) const
{
    if (!time.isValid())
        return {};
    const bool isZoned = m_kind == Kind::Zoned || m_kind == Kind::Floating;
    const QDateTime shown = isZoned ? shownIn(time, m_kind == Kind::Zoned ? TimeZones::find(m_tzid) : QTimeZone())
        : m_kind == Kind::Utc ? time.toUTC()
                                    : time;
    if (shown.date().year() < 1 || shown.date().year() > LastYear)
        return {};
    if (m_kind == Kind::Utc)
        return RruleExpander::formatRecurrenceId(shown).toLatin1();
    return shown.toString(isDate() ? u"yyyyMMdd" : u"yyyyMMdd'T'HHmmss").toLatin1();
}

QByteArray TimeForm::parameters() const
{
    if (isDate())
        return ";VALUE=DATE";
    return m_kind == Kind::Zoned ? ";TZID=" + parameterValue(m_tzid) : QByteArray();
}

QByteArray TimeForm::line(const QByteArray &name, const QDateTime &time) const
{
    return name + parameters() + ':' + value(time);
}

QByteArray TimeForm::lineAfter(const ContentLine &old, const QDateTime &time) const
{
    const bool saysDate = isWord(old.parameter("VALUE"), "DATE");
    if (of(old) == *this && saysDate == isDate())
        return withValue(old, value(time));
    const QByteArray others = withoutParameters(old, { "VALUE", "TZID" });
    const QByteArrayView further = ContentLine(others).parameters();
    const QByteArray name = old.name().toByteArray() + (further.isEmpty() ? "" : ";") + further.toByteArray();
    return line(name, time);
}
