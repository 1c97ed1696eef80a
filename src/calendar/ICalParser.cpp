#include "calendar/ICalParser.h"

#include "calendar/ICalAlarm.h"
#include "calendar/ICalDateTime.h"
#include "calendar/ICalTexts.h"
#include "calendar/RruleExpander.h"

#include <limits>

namespace {

constexpr QStringView LineBreak{ u"\r\n" };

/// Copies lines, and puts other times into the first VEVENT among them.
class TimePatcher {
public:
    enum class Kind { Times, Dates };

    TimePatcher(Kind kind, const QString &start, const QString &end)
        : m_kind(kind)
        , m_start(startProperty(kind) + start)
        , m_end(endProperty(kind) + end)
    {
    }

    void addLine(QStringView line)
    {
        if (m_place == Place::InEvent)
            addEventLine(line);
        else
            add(line);
        if (m_place == Place::Before && startsWith(line, u"BEGIN:VEVENT"))
            m_place = Place::InEvent;
    }

    [[nodiscard]] bool foundEvent() const { return m_place != Place::Before; }
    [[nodiscard]] QString text() const { return m_text; }

private:
    enum class Place { Before, InEvent, After };

    static bool startsWith(QStringView line, QStringView prefix)
    {
        return line.startsWith(prefix, Qt::CaseInsensitive);
    }

    static QString startProperty(Kind kind)
    {
        return kind == Kind::Dates ? QStringLiteral("DTSTART;VALUE=DATE:") : QStringLiteral("DTSTART:");
    }

    static QString endProperty(Kind kind)
    {
        return kind == Kind::Dates ? QStringLiteral("DTEND;VALUE=DATE:") : QStringLiteral("DTEND:");
    }

    [[nodiscard]] bool isReplaced(QStringView line, QStringView property) const
    {
        return startsWith(line, property)
            && (m_kind == Kind::Dates || !startsWith(line.sliced(property.size()), u";VALUE=DATE"));
    }

    void addEventLine(QStringView line)
    {
        if (startsWith(line, u"BEGIN:VALARM"))
            m_isInAlarm = true; // its DURATION is the pause between repetitions
        if (m_isInAlarm && !startsWith(line, u"END:VEVENT")) {
            add(line);
            m_isInAlarm = !startsWith(line, u"END:VALARM");
        } else if (isReplaced(line, u"DTSTART")) {
            addStart();
        } else if (isReplaced(line, u"DTEND")) {
            addEnd();
        } else if (startsWith(line, u"END:VEVENT")) {
            if (!m_hasStart)
                addStart();
            if (!m_hasEnd)
                addEnd();
            add(line);
            m_place = Place::After;
        } else if (!startsWith(line, u"DURATION")) {
            add(line);
        }
    }

    void addStart()
    {
        add(m_start);
        m_hasStart = true;
    }

    void addEnd()
    {
        add(m_end);
        m_hasEnd = true;
    }

    void add(QStringView line)
    {
        if (!m_isFirst)
            m_text += LineBreak;
        m_isFirst = false;
        m_text += line;
    }

    Kind m_kind;
    QString m_start;
    QString m_end;
    QString m_text;
    Place m_place = Place::Before;
    bool m_isInAlarm = false;
    bool m_hasStart = false;
    bool m_hasEnd = false;
    bool m_isFirst = true;
};

QString patched(const QString &text, TimePatcher patcher)
{
    QStringView rest = text;
    for (qsizetype lineFeed = rest.indexOf(u'\n'); lineFeed >= 0; lineFeed = rest.indexOf(u'\n')) {
        const QStringView line = rest.first(lineFeed);
        patcher.addLine(line.endsWith(u'\r') ? line.chopped(1) : line);
        rest = rest.sliced(lineFeed + 1);
    }
    patcher.addLine(rest);
    return patcher.foundEvent() ? patcher.text() : text;
}

}

QList<Event> ICalParser::parse(const QByteArray &utf8)
{
    return EventReader(utf8).read(std::numeric_limits<int>::max(), utf8.size());
}

QList<Event> ICalParser::parse(const QString &text)
{
    return parse(text.toUtf8());
}

QList<Task> ICalParser::parseTasks(const QString &text)
{
    return parseTasks(text.toUtf8());
}

QString ICalParser::replaceVeventDtstartDtend(const QString &text, const QDateTime &newStart, const QDateTime &newEnd)
{
    if (!newStart.isValid())
        return text;
    const QDateTime &end = newEnd.isValid() ? newEnd : newStart;
    return patched(text,
                   TimePatcher(TimePatcher::Kind::Times, RruleExpander::formatRecurrenceId(newStart),
                               RruleExpander::formatRecurrenceId(end)));
}

QString ICalParser::replaceVeventDates(const QString &text, QDate newFirst, QDate newEnd)
{
    const QString format = QStringLiteral("yyyyMMdd");
    return patched(text, TimePatcher(TimePatcher::Kind::Dates, newFirst.toString(format), newEnd.toString(format)));
}

QString ICalParser::escapeText(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size() + 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isReturn = c == u'\r';
        if (isReturn || c == u'\n') {
            escaped += u"\\n";
            if (isReturn && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            continue;
        }
        if (c == u',' || c == u';' || c == u'\\')
            escaped += u'\\';
        escaped += c;
    }
    return escaped;
}

QString ICalParser::unescapeText(const QString &text)
{
    return ICal::unescapedText(text.toUtf8());
}

ICalParser::DateTimeValue ICalParser::parseDateTimeValue(QStringView value, QStringView tzid)
{
    return ICal::DateTimeReader().read(value.toUtf8(), tzid.toUtf8());
}

qint64 ICalParser::parseDurationSeconds(QStringView value)
{
    return ICal::durationSeconds(value.toUtf8());
}

int ICalParser::parseTriggerMinutes(QStringView value)
{
    return ICal::triggerMinutes(value.toUtf8());
}
