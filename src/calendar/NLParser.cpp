#include "calendar/NLParser.h"

#include <QList>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int DefaultMinutes = 60;
constexpr int MinutesPerHour = 60;
constexpr int HalfHour = 30;
constexpr int DaysPerWeek = 7;

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QString::fromLatin1(text), QRegularExpression::CaseInsensitiveOption);
}

QDateTime roundedUp(QDateTime when)
{
    when = when.addMSecs(-(when.time().msecsSinceStartOfDay() % 60000));
    const int beyond = when.time().minute() % HalfHour;
    return beyond == 0 ? when : when.addSecs((HalfHour - beyond) * 60);
}

int weekdayOf(const QString &name)
{
    static const QStringList days{ QStringLiteral("mon"), QStringLiteral("tue"), QStringLiteral("wed"),
                                   QStringLiteral("thu"), QStringLiteral("fri"), QStringLiteral("sat"),
                                   QStringLiteral("sun") };
    return int(days.indexOf(name.left(3).toLower())) + 1;
}

int monthOf(const QString &name)
{
    static const QStringList months{ QStringLiteral("jan"), QStringLiteral("feb"), QStringLiteral("mar"),
                                     QStringLiteral("apr"), QStringLiteral("may"), QStringLiteral("jun"),
                                     QStringLiteral("jul"), QStringLiteral("aug"), QStringLiteral("sep"),
                                     QStringLiteral("oct"), QStringLiteral("nov"), QStringLiteral("dec") };
    return int(months.indexOf(name.left(3).toLower())) + 1;
}

/// An hour and minutes with "am" or "pm", or on the clock of 24 hours without. Invalid when out of range.
QTime clockTime(const QString &hourText, const QString &minuteText, const QString &half)
{
    int hour = hourText.toInt();
    if (half.compare(u"pm", Qt::CaseInsensitive) == 0 && hour < 12)
        hour += 12;
    else if (half.compare(u"am", Qt::CaseInsensitive) == 0 && hour == 12)
        hour = 0;
    return { hour, minuteText.toInt() };
}

/// One pass over a line. The recognisers all read the same text and only note what they claim, so that
/// positions stay true and one stretch may be claimed twice.
class Reader {
public:
    Reader(const QString &text, const QDateTime &now)
        : m_text(text)
        , m_now(now)
        , m_today(now.date())
    {
    }

    ParsedQuickAdd read();

private:
    struct Span {
        qsizetype start;
        qsizetype length;
    };

    QRegularExpressionMatch claim(const QRegularExpression &regex);
    void strip(const QRegularExpressionMatch &match);
    bool readPrefix(const QRegularExpression &regex);
    void readIntent();
    void readTags();
    void readRelative();
    void readDate();
    bool readNamedDate();
    bool readWeekday();
    bool readDaysAhead();
    bool readMonthAndDay();
    void readTime();
    bool readTimeRange();
    bool readDigits();
    void takeTime(const QRegularExpressionMatch &match, QTime time);
    void settleTime();
    void settleEnd();
    int durationMinutes();
    [[nodiscard]] QString cleanedTitle() const;

    QString m_text;
    QDateTime m_now;
    QDate m_today;
    ParsedQuickAdd m_result;
    QList<Span> m_spans;
    std::optional<QDate> m_relativeDate;
    std::optional<QTime> m_relativeTime;
    std::optional<QDate> m_date; // there may be one that does not exist: 31 February
    std::optional<QTime> m_time;
    std::optional<QTime> m_endTime;
};

ParsedQuickAdd Reader::read()
{
    readIntent();
    readTags();
    readRelative();
    readDate();
    readTime();
    settleTime();
    settleEnd();
    m_result.title = cleanedTitle();
    if (!m_result.isReminder && !m_result.isTask && !m_result.isAllDay && !m_result.hasTime)
        m_result.isTask = true;
    return m_result;
}

void Reader::strip(const QRegularExpressionMatch &match)
{
    if (match.capturedLength() > 0)
        m_spans.append({ match.capturedStart(), match.capturedLength() });
}

QRegularExpressionMatch Reader::claim(const QRegularExpression &regex)
{
    const QRegularExpressionMatch match = regex.match(m_text);
    if (match.hasMatch())
        strip(match);
    return match;
}

bool Reader::readPrefix(const QRegularExpression &regex)
{
    const QRegularExpressionMatch match = regex.match(m_text);
    if (!match.hasMatch() || match.capturedEnd() <= 0)
        return false;
    m_spans.append({ 0, match.capturedEnd() });
    return true;
}

void Reader::readIntent()
{
    static const QRegularExpression reminder =
        pattern("^\\s*(?:remind\\s+me\\s+(?:to|that|about)\\s+|remind\\s+me\\s+|reminder\\s*[:\\-]?\\s*(?:to\\s+)?|"
                "remember\\s+to\\s+|don'?t\\s+(?:let\\s+me\\s+)?forget\\s+(?:to\\s+)?)");
    static const QRegularExpression task = pattern("^\\s*(?:task\\s*[:\\-]\\s*|to-?do\\s*[:\\-]?\\s*|"
                                                   "(?:add|new)\\s+(?:a\\s+)?(?:task|to-?do)\\s+(?:to\\s+)?)");
    m_result.isReminder = readPrefix(reminder);
    m_result.isTask = !m_result.isReminder && readPrefix(task);
}

void Reader::readTags()
{
    static const QRegularExpression tag(QStringLiteral("#([\\p{L}\\p{N}_\\-]+)"));
    for (auto it = tag.globalMatch(m_text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (!m_result.tags.contains(match.captured(1), Qt::CaseInsensitive))
            m_result.tags.append(match.captured(1));
        strip(match);
    }
}

void Reader::readRelative()
{
    static const QRegularExpression soon = pattern("\\bin\\s+(\\d+)\\s*(minutes?|mins?|hours?|hrs?)\\b");
    static const QRegularExpression partOfDay = pattern("\\b(tonight|this\\s+(?:morning|afternoon|evening))\\b");
    static const QRegularExpression nextWeek = pattern("\\bnext\\s+week\\b");
    if (const auto match = claim(soon); match.hasMatch()) {
        const qint64 unit = match.captured(2).startsWith(u'h', Qt::CaseInsensitive) ? 3600 : 60;
        const QDateTime then = m_now.addSecs(match.captured(1).toInt() * unit);
        m_relativeDate = then.date();
        m_relativeTime = then.time();
    }
    if (const auto match = claim(partOfDay); match.hasMatch()) {
        int hour = 19;
        if (match.captured(1).contains(u"morning", Qt::CaseInsensitive))
            hour = 9;
        else if (match.captured(1).contains(u"afternoon", Qt::CaseInsensitive))
            hour = 15;
        m_relativeTime = m_relativeTime.value_or(QTime(hour, 0));
        m_relativeDate = m_relativeDate.value_or(m_today);
    }
    if (claim(nextWeek).hasMatch())
        m_relativeDate = m_relativeDate.value_or(m_today.addDays(DaysPerWeek));
}

void Reader::readDate()
{
    if (!readNamedDate() && !readWeekday() && !readDaysAhead() && !readMonthAndDay())
        m_date = m_relativeDate;
}

bool Reader::readNamedDate()
{
    static const QRegularExpression named = pattern("\\b(today|tomorrow|yesterday)\\b");
    const auto match = claim(named);
    if (!match.hasMatch())
        return false;
    const QString name = match.captured(1).toLower();
    m_date = m_today.addDays(name == u"tomorrow" ? 1 : name == u"yesterday" ? -1 : 0);
    return true;
}

bool Reader::readWeekday()
{
    static const QRegularExpression next =
        pattern("\\bnext\\s+(monday|tuesday|wednesday|thursday|friday|saturday|sunday|"
                "mon|tue|tues|wed|thu|thur|thurs|fri|sat|sun)\\b");
    static const QRegularExpression coming =
        pattern("\\b(?:on\\s+)?(monday|tuesday|wednesday|thursday|friday|saturday|sunday|"
                "mon|tue|tues|wed|thu|thur|thurs|fri|sat|sun)\\b");
    auto match = claim(next);
    const bool isNext = match.hasMatch();
    if (!isNext)
        match = claim(coming);
    if (!match.hasMatch())
        return false;
    int days = weekdayOf(match.captured(1)) - m_today.dayOfWeek();
    if (days < (isNext ? 1 : 0))
        days += DaysPerWeek;
    m_date = m_today.addDays(days);
    return true;
}

bool Reader::readDaysAhead()
{
    static const QRegularExpression ahead = pattern("\\bin\\s+(\\d+)\\s+(days?|weeks?)\\b");
    const auto match = claim(ahead);
    if (!match.hasMatch())
        return false;
    const int days = match.captured(2).startsWith(u"week", Qt::CaseInsensitive) ? DaysPerWeek : 1;
    m_date = m_today.addDays(match.captured(1).toInt() * qint64(days));
    return true;
}

bool Reader::readMonthAndDay()
{
    static const QRegularExpression date =
        pattern("\\b(?:on\\s+)?(jan|feb|mar|apr|may|jun|jul|aug|sep|sept|oct|nov|dec|january|february|march|april|"
                "june|july|august|september|october|november|december)\\s+(\\d{1,2})\\b");
    const auto match = claim(date);
    if (!match.hasMatch())
        return false;
    const int month = monthOf(match.captured(1));
    const int day = match.captured(2).toInt();
    QDate found(m_today.year(), month, day);
    if (found.isValid() && found < m_today)
        found = QDate(m_today.year() + 1, month, day);
    m_date = found;
    return true;
}

void Reader::takeTime(const QRegularExpressionMatch &match, QTime time)
{
    m_time = time;
    strip(match);
}

void Reader::readTime()
{
    static const QRegularExpression noon = pattern("\\b(?:at\\s+)?noon\\b");
    static const QRegularExpression midnight = pattern("\\b(?:at\\s+)?midnight\\b");
    static const QRegularExpression at = pattern("\\bat\\s+(\\d{1,2})(?::(\\d{2}))?\\s*(am|pm)?\\b");
    static const QRegularExpression bare = pattern("\\b(\\d{1,2})(?::(\\d{2}))?\\s*(am|pm)\\b");
    if (readTimeRange())
        return;
    if (const auto match = noon.match(m_text); match.hasMatch())
        return takeTime(match, QTime(12, 0));
    if (const auto match = midnight.match(m_text); match.hasMatch())
        return takeTime(match, QTime(0, 0));
    if (const auto match = at.match(m_text); match.hasMatch())
        return takeTime(match, clockTime(match.captured(1), match.captured(2), match.captured(3)));
    if (readDigits())
        return;
    if (const auto match = bare.match(m_text); match.hasMatch())
        takeTime(match, clockTime(match.captured(1), match.captured(2), match.captured(3)));
}

bool Reader::readTimeRange()
{
    static const QRegularExpression range =
        pattern("\\bfrom\\s+(\\d{1,2})(?::(\\d{2}))?\\s*(am|pm)?\\s+to\\s+(\\d{1,2})(?::(\\d{2}))?\\s*(am|pm)?\\b");
    const auto match = range.match(m_text);
    if (!match.hasMatch())
        return false;
    const QString from = match.captured(3).isEmpty() ? match.captured(6) : match.captured(3);
    const QString to = match.captured(6).isEmpty() ? match.captured(3) : match.captured(6);
    takeTime(match, clockTime(match.captured(1), match.captured(2), from));
    m_endTime = clockTime(match.captured(4), match.captured(5), to);
    return true;
}

bool Reader::readDigits()
{
    static const QRegularExpression digits = pattern("\\bat\\s+(\\d{4})\\b");
    const auto match = digits.match(m_text);
    const int number = match.captured(1).toInt();
    const QTime time(number / 100, number % 100);
    if (!match.hasMatch() || !time.isValid())
        return false;
    takeTime(match, time);
    return true;
}

void Reader::settleTime()
{
    if (!m_time)
        m_time = m_relativeTime;
    m_result.hasTime = m_time.has_value();
    if (!m_time && m_date) {
        m_result.isAllDay = true;
        m_time = QTime(0, 0);
    }
    if (!m_time) {
        const QDateTime rounded = roundedUp(m_now);
        m_result.start = rounded;
        return;
    }
    const QDate date = m_date.value_or(m_today);
    // An invalid time must not pass for midnight.
    if (date.isValid() && m_time->isValid()) {
        m_result.start = m_now;
        m_result.start.setDate(date);
        m_result.start.setTime(*m_time);
    }
}

int Reader::durationMinutes()
{
    static const QRegularExpression duration =
        pattern("\\bfor\\s+(\\d+(?:\\.\\d+)?)\\s*(min|mins|minute|minutes|h|hr|hrs|hour|hours)\\b");
    const auto match = claim(duration);
    if (!match.hasMatch())
        return DefaultMinutes;
    const double number = match.captured(1).toDouble();
    const bool isHours = match.captured(2).startsWith(u'h', Qt::CaseInsensitive);
    constexpr double Most = 1e6; // about two years, and no overflow
    return int(std::min(number * (isHours ? MinutesPerHour : 1), Most));
}

void Reader::settleEnd()
{
    const int minutes = durationMinutes();
    if (!m_result.start.isValid())
        return;
    if (m_endTime && !m_endTime->isValid()) {
        m_result.start = QDateTime(); // "from 9 to 25"
        return;
    }
    QDateTime end = m_result.start;
    if (m_endTime) {
        end.setTime(*m_endTime);
        if (end <= m_result.start)
            end = end.addDays(1);
    } else if (m_result.isAllDay) {
        end = end.addDays(1);
        end.setTime(QTime(0, 0));
    } else {
        end = end.addSecs(qint64(minutes) * 60);
    }
    m_result.end = end;
}

QString Reader::cleanedTitle() const
{
    static const QRegularExpression preposition = pattern("^(?:on|at|for)\\s+|\\s+(?:on|at|for)$");
    static const QRegularExpression intent = pattern("^(?:to|that|about)\\s+");
    QList<Span> spans = m_spans;
    std::sort(spans.begin(), spans.end(), [](const Span &a, const Span &b) { return a.start < b.start; });
    QString title;
    qsizetype reached = 0;
    for (const Span &span : std::as_const(spans)) {
        if (span.start > reached)
            title += QStringView(m_text).mid(reached, span.start - reached);
        reached = std::max(reached, span.start + span.length);
    }
    title += QStringView(m_text).mid(reached);
    title = title.simplified().remove(preposition).simplified();
    if (m_result.isReminder || m_result.isTask)
        title = title.remove(intent).simplified();
    return title;
}

}

ParsedQuickAdd NLParser::parse(const QString &text, const QDateTime &now)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.isEmpty())
        return Reader(trimmed, now).read();
    ParsedQuickAdd nothing;
    nothing.start = roundedUp(now);
    return nothing;
}
