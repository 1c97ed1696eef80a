#include "calendar/NLParser.h"

#include "calendar/WallClock.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int MinutesPerHour = 60;
constexpr qint64 SecondsPerMinute = 60;
constexpr int DaysPerWeek = 7;
constexpr int HalfHour = 30; // minutes
constexpr int DefaultMinutes = 60;
// Later years take more than four digits, and no format that dates are written in has room for them.
constexpr int LastYear = 9999;
// Reaches past the last year in any unit, and no sum of such numbers overflows.
constexpr qint64 LargestNumber = 10'000'000'000;

// Each name is found by its first three letters, and stands in a cell of four.
constexpr QLatin1StringView Weekdays{ "mon tue wed thu fri sat sun" };
constexpr QLatin1StringView Months{ "jan feb mar apr may jun jul aug sep oct nov dec" };

QRegularExpression compiled(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

/// 1 for the first name of \p names; \p word begins with one of them.
int placeOf(const QString &word, QLatin1StringView names)
{
    constexpr qsizetype letters = 3;
    return static_cast<int>(names.indexOf(word.toCaseFolded().left(letters)) / (letters + 1)) + 1;
}

qint64 numberIn(QStringView digits)
{
    bool isSmall = false;
    const qint64 number = digits.toLongLong(&isSmall);
    return isSmall ? std::min(number, LargestNumber) : LargestNumber;
}

bool isHours(QStringView unit)
{
    return unit.startsWith(u'h', Qt::CaseInsensitive);
}

QDate ifWritable(QDate date)
{
    return date.isValid() && date.year() <= LastYear ? date : QDate();
}

/// Invalid if there is no such time of day. \p half is "am", "pm" or empty for 24 hours.
QTime timeOfDay(QStringView hourText, QStringView minuteText, QStringView half)
{
    int hour = hourText.toInt();
    if (half.compare(QLatin1StringView("pm"), Qt::CaseInsensitive) == 0 && hour < 12)
        hour += 12;
    else if (half.compare(QLatin1StringView("am"), Qt::CaseInsensitive) == 0 && hour == 12)
        hour = 0;
    return QTime(hour, minuteText.toInt());
}

/// \p now at the next full or half hour, unless it is one.
QDateTime roundedUp(const QDateTime &now)
{
    const QTime time = now.time();
    const QDateTime minute = now.addMSecs(-time.msec()).addSecs(-time.second());
    const int over = time.minute() % HalfHour;
    return over == 0 ? minute : minute.addSecs((HalfHour - over) * SecondsPerMinute);
}

/// The recognisers of one line. Each looks at the whole line and only notes which part of it was meant for it, so
/// that positions stay true; the title is what nobody claimed.
class Line {
public:
    Line(const QString &text, const QDateTime &now)
        : m_text(text.trimmed())
        , m_now(now)
        , m_today(now.date())
    {
    }

    ParsedQuickAdd read();

private:
    struct Times {
        QTime start;
        std::optional<QTime> end;
    };

    QRegularExpressionMatch claim(const QRegularExpression &pattern);
    void readIntent();
    void readTags();
    void readRelative();
    std::optional<QDate> readDate();
    std::optional<Times> readTimes();
    qint64 readMinutes();
    void settleTimes(const std::optional<QDate> &date, const std::optional<Times> &times, qint64 minutes);
    [[nodiscard]] QDateTime at(QDate date, QTime time) const;
    [[nodiscard]] QString unclaimed();
    [[nodiscard]] QString title();

    QString m_text;
    QDateTime m_now;
    QDate m_today;
    ParsedQuickAdd m_found;
    QList<std::pair<qsizetype, qsizetype>> m_claimed; // from, to
    QDateTime m_moment; // an instant that the line gives or implies, not just a place on the clock
    std::optional<QDate> m_relativeDate;
    std::optional<QTime> m_relativeTime;
};

ParsedQuickAdd Line::read()
{
    m_moment = roundedUp(m_now);
    if (m_text.isEmpty()) {
        m_found.start = m_moment;
        return m_found;
    }
    readIntent();
    readTags();
    readRelative();
    const std::optional<QDate> date = readDate();
    const std::optional<Times> times = readTimes();
    settleTimes(date, times, readMinutes());
    m_found.title = title();
    if (!m_found.isReminder && !m_found.isTask && !m_found.isAllDay && !m_found.hasTime)
        m_found.isTask = true;
    return m_found;
}

QRegularExpressionMatch Line::claim(const QRegularExpression &pattern)
{
    const QRegularExpressionMatch match = pattern.match(m_text);
    if (match.hasMatch())
        m_claimed.emplaceBack(match.capturedStart(), match.capturedEnd());
    return match;
}

void Line::readIntent()
{
    static const QRegularExpression reminder =
        compiled(QStringLiteral(R"(^\s*(?:remind\s+me\s+(?:to|that|about)\s+|remind\s+me\s+)"
                                R"(|reminder\s*[:\-]?\s*(?:to\s+)?|remember\s+to\s+)"
                                R"(|don'?t\s+(?:let\s+me\s+)?forget\s+(?:to\s+)?))"));
    static const QRegularExpression task =
        compiled(QStringLiteral(R"(^\s*(?:task\s*[:\-]\s*|to-?do\s*[:\-]?\s*)"
                                R"(|(?:add|new)\s+(?:a\s+)?(?:task|to-?do)\s+(?:to\s+)?))"));
    m_found.isReminder = claim(reminder).hasMatch();
    m_found.isTask = !m_found.isReminder && claim(task).hasMatch();
}

void Line::readTags()
{
    static const QRegularExpression tag(QStringLiteral(R"(#([\p{L}\p{N}_\-]+))"));
    for (auto matches = tag.globalMatch(m_text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        m_claimed.emplaceBack(match.capturedStart(), match.capturedEnd());
        if (!m_found.tags.contains(match.captured(1), Qt::CaseInsensitive))
            m_found.tags.append(match.captured(1));
    }
}

void Line::readRelative()
{
    static const QRegularExpression inSome =
        compiled(QStringLiteral(R"(\bin\s+(\d+)\s*(minutes?|mins?|hours?|hrs?)\b)"));
    static const QRegularExpression partOfDay =
        compiled(QStringLiteral(R"(\b(tonight|this\s+(?:morning|afternoon|evening))\b)"));
    static const QRegularExpression nextWeek = compiled(QStringLiteral(R"(\bnext\s+week\b)"));

    if (const auto match = claim(inSome); match.hasMatch()) {
        const int minutes = isHours(match.capturedView(2)) ? MinutesPerHour : 1;
        m_moment = m_now.addSecs(numberIn(match.capturedView(1)) * minutes * SecondsPerMinute);
        m_relativeDate = ifWritable(m_moment.date());
        m_relativeTime = m_moment.time();
    }
    if (const auto match = claim(partOfDay); match.hasMatch()) {
        const auto names = [&match](const char *part) {
            return match.capturedView().contains(QLatin1StringView(part), Qt::CaseInsensitive);
        };
        const int hour = names("morning") ? 9 : names("afternoon") ? 15 : 19;
        m_relativeTime = m_relativeTime.value_or(QTime(hour, 0));
        m_relativeDate = m_relativeDate.value_or(m_today);
    }
    if (claim(nextWeek).hasMatch())
        m_relativeDate = m_relativeDate.value_or(m_today.addDays(DaysPerWeek));
}

/// Of several dates the kind that is named first here counts, wherever it stands. Invalid if there is no such date.
std::optional<QDate> Line::readDate()
{
    static const QRegularExpression day = compiled(QStringLiteral(R"(\b(today|tomorrow|yesterday)\b)"));
    static const QString weekdayNames = QStringLiteral(R"((monday|tuesday|wednesday|thursday|friday|saturday|sunday)"
                                                       R"(|mon|tue|tues|wed|thu|thur|thurs|fri|sat|sun)\b)");
    static const QRegularExpression nextWeekday = compiled(QStringLiteral(R"(\bnext\s+)") + weekdayNames);
    static const QRegularExpression weekday = compiled(QStringLiteral(R"(\b(?:on\s+)?)") + weekdayNames);
    static const QRegularExpression inSome = compiled(QStringLiteral(R"(\bin\s+(\d+)\s+(days?|weeks?)\b)"));
    static const QRegularExpression dayOfMonth =
        compiled(QStringLiteral(R"(\b(?:on\s+)?(jan|feb|mar|apr|may|jun|jul|aug|sep|sept|oct|nov|dec|january|february)"
                                R"(|march|april|june|july|august|september|october|november|december)\s+(\d{1,2})\b)"));

    const auto daysTo = [this](const QString &name, int atLeast) {
        const int days = placeOf(name, Weekdays) - m_today.dayOfWeek();
        return days < atLeast ? days + DaysPerWeek : days;
    };
    if (const auto match = claim(day); match.hasMatch()) {
        const QString word = match.captured().toCaseFolded();
        return m_today.addDays(word == u"today" ? 0 : word == u"tomorrow" ? 1 : -1);
    }
    if (const auto match = claim(nextWeekday); match.hasMatch())
        return m_today.addDays(daysTo(match.captured(1), 1));
    if (const auto match = claim(weekday); match.hasMatch())
        return m_today.addDays(daysTo(match.captured(1), 0));
    if (const auto match = claim(inSome); match.hasMatch()) {
        const bool isWeeks = match.capturedView(2).startsWith(u'w', Qt::CaseInsensitive);
        return ifWritable(m_today.addDays(numberIn(match.capturedView(1)) * (isWeeks ? DaysPerWeek : 1)));
    }
    if (const auto match = claim(dayOfMonth); match.hasMatch()) {
        const int month = placeOf(match.captured(1), Months);
        const int dayNumber = match.capturedView(2).toInt();
        const QDate thisYear(m_today.year(), month, dayNumber);
        const bool isOver = thisYear.isValid() && thisYear < m_today;
        return isOver ? QDate(m_today.year() + 1, month, dayNumber) : thisYear;
    }
    return m_relativeDate;
}

std::optional<Line::Times> Line::readTimes()
{
    static const QRegularExpression fromTo = compiled(
        QStringLiteral(R"(\bfrom\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\s+to\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\b)"));
    static const QRegularExpression noon = compiled(QStringLiteral(R"(\b(?:at\s+)?noon\b)"));
    static const QRegularExpression midnight = compiled(QStringLiteral(R"(\b(?:at\s+)?midnight\b)"));
    static const QRegularExpression at = compiled(QStringLiteral(R"(\bat\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\b)"));
    static const QRegularExpression atDigits = compiled(QStringLiteral(R"(\bat\s+(\d{4})\b)"));
    static const QRegularExpression half = compiled(QStringLiteral(R"(\b(\d{1,2})(?::(\d{2}))?\s*(am|pm)\b)"));

    if (const auto match = claim(fromTo); match.hasMatch()) {
        // "from 3 to 5pm": both are in the afternoon.
        const QStringView startHalf = match.capturedView(match.capturedLength(3) > 0 ? 3 : 6);
        const QStringView endHalf = match.capturedView(match.capturedLength(6) > 0 ? 6 : 3);
        return Times{ timeOfDay(match.capturedView(1), match.capturedView(2), startHalf),
                      timeOfDay(match.capturedView(4), match.capturedView(5), endHalf) };
    }
    if (claim(noon).hasMatch())
        return Times{ QTime(12, 0), {} };
    if (claim(midnight).hasMatch())
        return Times{ QTime(0, 0), {} };
    const auto single = [](const QRegularExpressionMatch &match) {
        return Times{ timeOfDay(match.capturedView(1), match.capturedView(2), match.capturedView(3)), {} };
    };
    if (const auto match = claim(at); match.hasMatch())
        return single(match);
    if (const auto match = atDigits.match(m_text); match.hasMatch()) {
        const QStringView digits = match.capturedView(1);
        const QTime time = timeOfDay(digits.first(2), digits.last(2), {});
        if (time.isValid()) { // else it is a number of something, as in "meet at 4711 Main Street"
            claim(atDigits);
            return Times{ time, {} };
        }
    }
    if (const auto match = claim(half); match.hasMatch())
        return single(match);
    return std::nullopt;
}

qint64 Line::readMinutes()
{
    static const QRegularExpression duration =
        compiled(QStringLiteral(R"(\bfor\s+(\d+(?:\.\d+)?)\s*(min|mins|minute|minutes|h|hr|hrs|hour|hours)\b)"));
    const auto match = claim(duration);
    if (!match.hasMatch())
        return DefaultMinutes;
    const double number = match.capturedView(1).toDouble() * (isHours(match.capturedView(2)) ? MinutesPerHour : 1);
    return static_cast<qint64>(std::min(number, static_cast<double>(LargestNumber)));
}

void Line::settleTimes(const std::optional<QDate> &date, const std::optional<Times> &times, qint64 minutes)
{
    m_found.hasTime = times || m_relativeTime;
    m_found.isAllDay = !m_found.hasTime && date;
    const bool isOpen = !m_found.hasTime && !date;
    const QDate startDate = date.value_or(isOpen ? m_moment.date() : m_today);
    const QTime startTime = times ? times->start : isOpen ? m_moment.time() : m_relativeTime.value_or(QTime(0, 0));
    const bool hasAllTimes = !times || !times->end || times->end->isValid();
    m_found.start = hasAllTimes ? at(startDate, startTime) : QDateTime();
    if (!m_found.start.isValid())
        return;
    if (times && times->end) {
        m_found.end = at(startDate, *times->end);
        if (*m_found.end <= m_found.start)
            m_found.end = at(startDate.addDays(1), *times->end);
    } else if (m_found.isAllDay) {
        m_found.end = at(startDate.addDays(1), QTime(0, 0));
    } else {
        m_found.end = m_found.start.addSecs(minutes * SecondsPerMinute);
    }
    if (!ifWritable(m_found.end->date()).isValid()) {
        m_found.start = {};
        m_found.end.reset();
    }
}

QDateTime Line::at(QDate date, QTime time) const
{
    // "in 30 min" within the hour that a clock change repeats: the clock alone would give the first one.
    if (date == m_moment.date() && time == m_moment.time())
        return m_moment;
    return WallClock(m_now).at(date, time);
}

QString Line::unclaimed()
{
    std::ranges::sort(m_claimed);
    QString rest;
    qsizetype done = 0;
    for (const auto &[from, to] : std::as_const(m_claimed)) {
        if (from > done)
            rest += QStringView(m_text).sliced(done, from - done);
        done = std::max(done, to);
    }
    rest += QStringView(m_text).sliced(done);
    return rest;
}

QString Line::title()
{
    static const QRegularExpression looseEnds = compiled(QStringLiteral(R"(^(?:on|at|for)\s+|\s+(?:on|at|for)$)"));
    static const QRegularExpression introduction = compiled(QStringLiteral(R"(^(?:to|that|about)\s+)"));
    const QString title = unclaimed().remove(looseEnds).simplified();
    if (!m_found.isReminder && !m_found.isTask)
        return title;
    return QString(title).remove(introduction).simplified();
}

}

ParsedQuickAdd NLParser::parse(const QString &text, const QDateTime &now)
{
    return Line(text, now).read();
}
