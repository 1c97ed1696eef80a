#include "calendar/NLParser.h"
#include "support/TestData.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

QString shown(const QDateTime &time, const QString &pattern)
{
    return time.toString((time.date().year() == 2026 ? u"MM-dd"_s : u"yyyy-MM-dd"_s) + pattern);
}

/// "event | 05-06 12:30-14:00 | lunch | work", with "-" for no date and time, and "never" for one that does not exist.
QString described(const ParsedQuickAdd &parsed)
{
    QString when = u"-"_s;
    if (!parsed.start.isValid())
        when = u"never"_s;
    else if (parsed.isAllDay)
        when = shown(parsed.start, {}) + (*parsed.end == parsed.start.addDays(1) ? QString() : u" and more"_s);
    else if (parsed.hasTime)
        when = shown(parsed.start, u" HH:mm"_s) + u'-'
            + (parsed.end->date() == parsed.start.date() ? parsed.end->toString(u"HH:mm"_s)
                                                         : shown(*parsed.end, u" HH:mm"_s));
    const QString kind = parsed.isReminder ? u"reminder"_s : parsed.isTask ? u"task"_s : u"event"_s;
    QStringList parts{ kind, when, parsed.title };
    if (!parsed.tags.isEmpty())
        parts.append(parsed.tags.join(u','));
    return parts.join(u" | "_s);
}

}

class tst_NLParser : public QObject {
    Q_OBJECT

private slots:
    void parse_data()
    {
        columns<QString>("expected");
        const auto line = [](const char *text, const char *expected) { row(text, QString::fromUtf8(expected)); };
        // Intents
        line("buy milk", "task | - | buy milk");
        line("task: file taxes friday", "task | 05-08 | file taxes");
        line("Task - file taxes at 9", "task | 05-05 09:00-10:00 | file taxes");
        line("task file taxes", "task | - | task file taxes");
        line("todo buy eggs", "task | - | buy eggs");
        line("to-do: buy eggs", "task | - | buy eggs");
        line("add a task to mow the lawn", "task | - | mow the lawn");
        line("new todo call Bob tomorrow", "task | 05-06 | call Bob");
        line("remind me to call mum at 6pm", "reminder | 05-05 18:00-19:00 | call mum");
        line("remind me that rent is due tomorrow", "reminder | 05-06 | rent is due");
        line("remind me friday to call", "reminder | 05-08 | call");
        line("REMINDER: water plants", "reminder | - | water plants");
        line("reminder to stretch at noon", "reminder | 05-05 12:00-13:00 | stretch");
        line("remember to pay rent on jan 3", "reminder | 2027-01-03 | pay rent");
        line("don't forget the milk", "reminder | - | the milk");
        line("dont let me forget to sing", "reminder | - | sing");
        // Tags
        line("lunch with Sam tomorrow at 12:30pm for 90 min #work",
             "event | 05-06 12:30-14:00 | lunch with Sam | work");
        line("plan #Work #q3_a-b it #work", "task | - | plan it | Work,q3_a-b");
        line("#\u00dcbung h\u00f6ren", "task | - | h\u00f6ren | \u00dcbung");
        line("C# lesson at 4pm", "event | 05-05 16:00-17:00 | C# lesson");
        line("retro #meet-friday-x", "event | 05-08 | retro | meet-friday-x"); // one stretch, claimed twice
        // Relative to now: a Tuesday, 10:12
        line("gym in 30 mins", "event | 05-05 10:42-11:42 | gym");
        line("call in 2hrs", "event | 05-05 12:12-13:12 | call");
        line("call in 20 Hours", "event | 05-06 06:12-07:12 | call");
        line("dinner tonight", "event | 05-05 19:00-20:00 | dinner");
        line("dinner tonight at 8pm", "event | 05-05 20:00-21:00 | dinner");
        line("dinner tonight tomorrow", "event | 05-06 19:00-20:00 | dinner");
        line("call in 20 hours tonight", "event | 05-06 06:12-07:12 | call");
        line("walk this morning", "event | 05-05 09:00-10:00 | walk");
        line("walk This   Afternoon", "event | 05-05 15:00-16:00 | walk");
        line("dentist next week", "event | 05-12 | dentist");
        line("report next week at 9am", "event | 05-12 09:00-10:00 | report");
        line("call in 99999999999999999999 hours", "event | never | call");
        // Dates
        line("yesterday", "event | 05-04 | ");
        line("ship today", "event | 05-05 | ship");
        line("review on tuesday", "event | 05-05 | review");
        line("review next tuesday", "event | 05-12 | review");
        line("review next friday", "event | 05-08 | review");
        line("gym thurs", "event | 05-07 | gym");
        line("gym mon", "event | 05-11 | gym");
        line("gym monthly", "task | - | gym monthly");
        line("trip in 3 days", "event | 05-08 | trip");
        line("trip in 2 Weeks at noon", "event | 05-19 12:00-13:00 | trip");
        line("trip in 999999 weeks", "event | never | trip"); // in the year 21191
        line("trip in 99999999999999999999 days", "event | never | trip");
        line("tea may 5", "event | 05-05 | tea");
        line("tea May 4", "event | 2027-05-04 | tea");
        line("tea on sept 9", "event | 09-09 | tea");
        line("tea june 31", "event | never | tea");
        line("tea feb 29", "event | never | tea"); // 2026 has none
        line("party feb 31", "event | never | party");
        line("tea jan 100", "task | - | tea jan 100");
        line("friday jan 3", "event | 05-08 | jan 3"); // a weekday counts before a date
        // Times
        line("meeting at 3", "event | 05-05 03:00-04:00 | meeting");
        line("meeting at 3:30 PM", "event | 05-05 15:30-16:30 | meeting");
        line("meeting at 0830", "event | 05-05 08:30-09:30 | meeting");
        line("meeting at 1530", "event | 05-05 15:30-16:30 | meeting");
        line("meeting at 2560", "task | - | meeting at 2560");
        line("meeting at 2560 5pm", "event | 05-05 17:00-18:00 | meeting at 2560");
        line("meeting at 25:00", "event | never | meeting");
        line("meeting at 9:75", "event | never | meeting");
        line("meeting at 13pm", "event | 05-05 13:00-14:00 | meeting");
        line("tea 12am", "event | 05-05 00:00-01:00 | tea");
        line("tea 12pm", "event | 05-05 12:00-13:00 | tea");
        line("tea 5:45 pm", "event | 05-05 17:45-18:45 | tea");
        line("at midnight tea", "event | 05-05 00:00-01:00 | tea");
        line("standup from 9 to 9:30am", "event | 05-05 09:00-09:30 | standup");
        line("work from 3pm to 5", "event | 05-05 15:00-17:00 | work");
        line("work from 9:30 to 17", "event | 05-05 09:30-17:00 | work");
        line("party from 10pm to 1am", "event | 05-05 22:00-05-06 01:00 | party");
        line("nap from 1pm to 1pm", "event | 05-05 13:00-05-06 13:00 | nap");
        line("work from 9 to 25", "event | never | work");
        // Durations
        line("call at 9 for 1.5 hours", "event | 05-05 09:00-10:30 | call");
        line("call at 9 for 45min", "event | 05-05 09:00-09:45 | call");
        line("call at 9 for 2.9 minutes", "event | 05-05 09:00-09:02 | call");
        line("call for 2h", "task | - | call");
        line("call friday for 2h", "event | 05-08 | call");
        line("work from 9 to 11 for 3 hours", "event | 05-05 09:00-11:00 | work");
        line("call at 9 for 99999999999999999999 hours", "event | never | call");
        // Titles
        line("for friday lunch", "event | 05-08 | lunch");
        line("on call tomorrow", "event | 05-06 | call");
        line("wait for", "task | - | wait");
        line("  lunch \t with   Sam  at noon ", "event | 05-05 12:00-13:00 | lunch with Sam");
    }
    void parse()
    {
        const QDateTime now(QDate(2026, 5, 5), QTime(10, 12), QTimeZone("Asia/Kolkata"));
        const ParsedQuickAdd parsed = NLParser::parse(QString::fromUtf8(QTest::currentDataTag()), now);
        QTEST(described(parsed), "expected");
        QVERIFY(!parsed.start.isValid() || parsed.start.timeZone() == now.timeZone());
    }

    void startsAtTheNextHalfHour_data()
    {
        columns<QString, QString>("now", "expected");
        row("full hour", "2026-05-05T10:00:45.500", "2026-05-05T10:00:00");
        row("half hour", "2026-05-05T10:30:00.000", "2026-05-05T10:30:00");
        row("to the half", "2026-05-05T10:01:59.000", "2026-05-05T10:30:00");
        row("to the full", "2026-05-05T10:31:00.000", "2026-05-05T11:00:00");
        row("over midnight", "2026-12-31T23:59:59.999", "2027-01-01T00:00:00");
    }
    void startsAtTheNextHalfHour()
    {
        QFETCH(QString, now);
        for (const char *text : { "", "buy milk" }) {
            const auto parsed =
                NLParser::parse(QString::fromLatin1(text), QDateTime::fromString(now, Qt::ISODateWithMs));
            QTEST(parsed.start.toString(Qt::ISODateWithMs).left(19), "expected");
            QCOMPARE(parsed.start.time().msec(), 0);
        }
    }

    void keepsToTheClockWhereItChanges_data()
    {
        columns<QByteArray, QDateTime, QString, QDateTime>("zone", "now", "text", "expected");
        row("a time left out", "Europe/Berlin"_ba, utc("2026-03-28T12:00"), "tea tomorrow at 2:30",
            utc("2026-03-29T01:30"));
        row("a time that comes twice", "Europe/Berlin"_ba, utc("2026-10-24T12:00"), "tea tomorrow at 2:30",
            utc("2026-10-25T00:30"));
        row("within the second hour", "Europe/Berlin"_ba, utc("2026-10-25T01:10"), "tea in 30 min",
            utc("2026-10-25T01:40"));
        row("midnight left out", "America/Havana"_ba, utc("2026-03-07T12:00"), "tea tomorrow", utc("2026-03-08T05:00"));
    }
    void keepsToTheClockWhereItChanges()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDateTime, now);
        QFETCH(QString, text);
        QTEST(NLParser::parse(text, now.toTimeZone(QTimeZone(zone))).start, "expected");
    }
};

QTEST_GUILESS_MAIN(tst_NLParser)
#include "tst_NLParser.moc"
