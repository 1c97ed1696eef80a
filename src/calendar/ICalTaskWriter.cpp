#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"

namespace {

/// The text of a list of content lines, unfolded.
class Lines {
public:
    void add(const QString &property, QString value)
    {
        // An id that holds a line break must not end the line.
        static const QString escapedBreak = QStringLiteral("\\n");
        value.replace(u'\n', escapedBreak).replace(u'\r', escapedBreak);
        m_text += property + u':' + value + QStringLiteral("\r\n");
    }
    void addIfSet(const QString &property, const QString &value)
    {
        if (!value.isEmpty())
            add(property, value);
    }
    void addIfPositive(const QString &property, int number)
    {
        if (number > 0)
            add(property, QString::number(number));
    }
    void addDate(const QString &property, const std::optional<QDateTime> &date, bool isDateOnly)
    {
        if (!date)
            return;
        if (isDateOnly)
            add(property + QStringLiteral(";VALUE=DATE"), date->toString(QStringLiteral("yyyyMMdd")));
        else
            add(property, RruleExpander::formatRecurrenceId(*date));
    }
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
};

QString escapedList(const QStringList &texts)
{
    QStringList escaped;
    for (const QString &text : texts)
        escaped.append(ICalParser::escapeText(text));
    return escaped.join(u',');
}

void addPrivateProperties(Lines &lines, const Task &task)
{
    if (task.repeatMode == u"fromCompletionDate")
        lines.add(QStringLiteral("X-QUILLON-REPEAT-MODE"), task.repeatMode);
    if (task.itemType == u"reminder")
        lines.add(QStringLiteral("X-QUILLON-ITEM-TYPE"), task.itemType);
    lines.addIfPositive(QStringLiteral("X-QUILLON-SORT-ORDER"), task.sortOrder);
}

/// A trigger needs a date that it hangs on: without one the alarms stay in the record alone.
void addAlarms(Lines &lines, const Task &task)
{
    if (!task.dueDate && !task.startDate)
        return;
    const QString trigger =
        task.dueDate ? QStringLiteral("TRIGGER;RELATED=END") : QStringLiteral("TRIGGER;RELATED=START");
    for (const Reminder &reminder : task.reminders) {
        const int minutes = reminder.minutesBefore;
        lines.add(QStringLiteral("BEGIN"), QStringLiteral("VALARM"));
        lines.add(QStringLiteral("ACTION"),
                  reminder.action.isEmpty() ? QStringLiteral("DISPLAY") : reminder.action.toUpper());
        lines.add(QStringLiteral("DESCRIPTION"), ICalParser::escapeText(task.title));
        lines.add(trigger, minutes == 0 ? QStringLiteral("PT0S") : QStringLiteral("-PT%1M").arg(minutes));
        lines.add(QStringLiteral("END"), QStringLiteral("VALARM"));
    }
}

}

QString ICalParser::serializeTaskToVCalendar(const Task &task)
{
    Lines lines;
    lines.add(QStringLiteral("BEGIN"), QStringLiteral("VCALENDAR"));
    lines.add(QStringLiteral("VERSION"), QStringLiteral("2.0"));
    lines.add(QStringLiteral("PRODID"), QString::fromLatin1(ProductId));
    lines.add(QStringLiteral("BEGIN"), QStringLiteral("VTODO"));
    lines.add(QStringLiteral("UID"), task.uid);
    lines.add(QStringLiteral("DTSTAMP"), RruleExpander::formatRecurrenceId(QDateTime::currentDateTimeUtc()));
    lines.add(QStringLiteral("SUMMARY"), escapeText(task.title));
    lines.add(QStringLiteral("STATUS"), task.status.isEmpty() ? QStringLiteral("NEEDS-ACTION") : task.status.toUpper());
    lines.addIfPositive(QStringLiteral("SEQUENCE"), task.sequence);
    lines.addIfPositive(QStringLiteral("PRIORITY"), task.priority);
    lines.addIfPositive(QStringLiteral("PERCENT-COMPLETE"), task.percentComplete);
    lines.addDate(QStringLiteral("DTSTART"), task.startDate, task.startIsDateOnly);
    lines.addDate(QStringLiteral("DUE"), task.dueDate, task.dueIsDateOnly);
    lines.addDate(QStringLiteral("COMPLETED"), task.completedDate, false);
    lines.addIfSet(QStringLiteral("RRULE"), task.recurrenceRule);
    lines.addIfSet(QStringLiteral("CATEGORIES"), escapedList(task.categories));
    lines.addIfSet(QStringLiteral("RELATED-TO;RELTYPE=PARENT"), task.parentTaskUid);
    addPrivateProperties(lines, task);
    lines.addIfSet(QStringLiteral("DESCRIPTION"), escapeText(task.description));
    addAlarms(lines, task);
    lines.add(QStringLiteral("END"), QStringLiteral("VTODO"));
    lines.add(QStringLiteral("END"), QStringLiteral("VCALENDAR"));
    return lines.text();
}
