#include "calendar/ICalParser.h"
#include "support/TestData.h"

#include <QRegularExpression>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

Task taskOf(const QByteArray &lines)
{
    return ICalParser::parseTasks("BEGIN:VTODO\r\nUID:t\r\n" + lines + "\r\nEND:VTODO\r\n").value(0);
}

Reminder reminder(int minutesBefore, const QString &action)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    result.action = action;
    return result;
}

}

/// What ICalParser reads and writes of tasks.
class tst_ICalTasks : public QObject {
    Q_OBJECT

private slots:
    void readsProperties()
    {
        const QByteArray lines = "SUMMARY:Buy\\, now\nDESCRIPTION:d\nDTSTART;TZID=Europe/Paris:20260314T090000\n"
                                 "DUE;VALUE=DATE:20260315\nSTATUS:IN-PROCESS\nPRIORITY:2\nPERCENT-COMPLETE:40\n"
                                 "RRULE:FREQ=WEEKLY\nCATEGORIES:old\nCATEGORIES:a, b ,,c\\;d\\,e\nSEQUENCE:3\n"
                                 "RELATED-TO;RELTYPE=SIBLING:a\nRELATED-TO:b\nRELATED-TO;RELTYPE=PARENT:c\n"
                                 "BEGIN:VALARM\nACTION:EMAIL\nSUMMARY:Alarm\nTRIGGER;RELATED=END:-PT30M\nEND:VALARM\n"
                                 "BEGIN:VALARM\nTRIGGER;VALUE=DATE-TIME:20260315T080000Z\nEND:VALARM\n"
                                 "BEGIN:VALARM\nTRIGGER:PT15M\nEND:VALARM\n"
                                 "COMPLETED:20260316T100000Z\nCREATED:20260101T000000Z\nLAST-MODIFIED:20260102T000000Z";
        Task expected;
        expected.uid = u"t"_s;
        expected.title = u"Buy, now"_s;
        expected.description = u"d"_s;
        expected.startDate = utc("2026-03-14T08:00");
        expected.startIsDateOnly = false;
        expected.dueDate = utc("2026-03-15");
        expected.dueIsDateOnly = true;
        expected.status = u"in-process"_s;
        expected.priority = 2;
        expected.percentComplete = 40;
        expected.recurrenceRule = u"FREQ=WEEKLY"_s;
        expected.categories = QStringList{ u"a"_s, u"b"_s, u"c;d,e"_s };
        expected.sequence = 3;
        expected.parentTaskUid = u"c"_s;
        expected.completedDate = utc("2026-03-16T10:00");
        expected.created = utc("2026-01-01");
        expected.lastModified = utc("2026-01-02");
        expected.reminders = { reminder(30, u"email"_s), reminder(15, u"display"_s) };
        expected.rawIcalendar = QString::fromUtf8("BEGIN:VTODO\r\nUID:t\r\n" + QByteArray(lines).replace("\n", "\r\n")
                                                  + "\r\nEND:VTODO\r\n");
        QCOMPARE(taskOf(lines), expected);
        QCOMPARE(taskOf("DUE:soon").dueDate, std::nullopt);
        QVERIFY(ICalParser::parseTasks("BEGIN:VTODO\nSUMMARY:x\nEND:VTODO\n"_ba).isEmpty());
    }

    void privateProperties()
    {
        const auto read = [](const QByteArray &line) {
            const Task task = taskOf("X-QUILLON-" + line);
            return u"%1 %2 %3"_s.arg(task.repeatMode, task.itemType).arg(task.sortOrder);
        };
        QCOMPARE(read("REPEAT-MODE: fromCompletionDate "), u"fromCompletionDate task 0"_s);
        QCOMPARE(read("REPEAT-MODE:FROMCOMPLETIONDATE"), u"fromDueDate task 0"_s);
        QCOMPARE(read("ITEM-TYPE:Reminder"), u"fromDueDate reminder 0"_s);
        QCOMPARE(read("ITEM-TYPE:note"), u"fromDueDate task 0"_s);
        QCOMPARE(read("SORT-ORDER: 12 "), u"fromDueDate task 12"_s);
        QCOMPARE(read("SORT-ORDER:-4"), u"fromDueDate task 0"_s);
    }

    void keepsOverridesInTheTextOfTheirSeries()
    {
        const auto vtodo = [](const char *uid, const char *line) {
            return QByteArray("BEGIN:VTODO\r\nUID:") + uid + "\r\n" + line + "\r\nEND:VTODO\r\n";
        };
        const QByteArray series = vtodo("a", "RRULE:FREQ=DAILY");
        const QByteArray first = vtodo("a", "RECURRENCE-ID:20260315T090000Z\r\nSUMMARY:1");
        const QByteArray second = vtodo("a", "RECURRENCE-ID:20260316T090000Z");
        const QByteArray orphan = vtodo("c", "RECURRENCE-ID:20260315T090000Z");
        const QByteArray other = vtodo("b", "SUMMARY:other");
        const QList<Task> tasks = ICalParser::parseTasks(first + other + series + orphan + second);
        QCOMPARE(tasks.size(), 2);
        QCOMPARE(tasks[0].rawIcalendar.toUtf8(), other);
        QCOMPARE(tasks[1].recurrenceRule, u"FREQ=DAILY"_s);
        QCOMPARE(tasks[1].title, QString());
        QCOMPARE(tasks[1].rawIcalendar.toUtf8(), series + first + second);
        QCOMPARE(ICalParser::parseTasks(tasks[1].rawIcalendar), QList<Task>{ tasks[1] });
    }

    void whatIsWrittenReadsBackEqual()
    {
        Task task;
        task.uid = u"t-1"_s;
        task.title = u"Büy, now"_s;
        task.description = u"two\nlines"_s;
        task.status = u"in-process"_s;
        task.sequence = 3;
        task.priority = 2;
        task.percentComplete = 40;
        task.startDate = QDateTime(QDate(2026, 3, 14), QTime(9, 0), QTimeZone("Europe/Paris"));
        task.startIsDateOnly = false;
        task.dueDate = utc("2026-03-15");
        task.completedDate = utc("2026-03-16T10:00");
        task.recurrenceRule = u"FREQ=WEEKLY"_s;
        task.categories = QStringList{ u"a"_s, u"b;c"_s };
        task.parentTaskUid = u"p\nUID:another"_s; // must not become a line of its own
        task.repeatMode = u"fromCompletionDate"_s;
        task.itemType = u"reminder"_s;
        task.sortOrder = 5;
        task.reminders = { reminder(0, u"display"_s), reminder(30, u"audio"_s) };

        QString text = ICalParser::serializeTaskToVCalendar(task);
        const QList<Task> again = ICalParser::parseTasks(text);
        task.rawIcalendar = again.value(0).rawIcalendar;
        QCOMPARE(again, QList<Task>{ task });
        text.replace(QRegularExpression(u"DTSTAMP:\\d{8}T\\d{6}Z"_s), u"DTSTAMP:now"_s);
        QCOMPARE(text.split(u"\r\n"_s).join(u'\n'),
                 u"BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Quillon//Calendar Desktop//EN\nBEGIN:VTODO\nUID:t-1\n"
                 "DTSTAMP:now\nSUMMARY:Büy\\, now\nSTATUS:IN-PROCESS\nSEQUENCE:3\nPRIORITY:2\nPERCENT-COMPLETE:40\n"
                 "DTSTART:20260314T080000Z\nDUE;VALUE=DATE:20260315\nCOMPLETED:20260316T100000Z\nRRULE:FREQ=WEEKLY\n"
                 "CATEGORIES:a,b\\;c\nRELATED-TO;RELTYPE=PARENT:p\\nUID:another\n"
                 "X-QUILLON-REPEAT-MODE:fromCompletionDate\nX-QUILLON-ITEM-TYPE:reminder\nX-QUILLON-SORT-ORDER:5\n"
                 "DESCRIPTION:two\\nlines\n"
                 "BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:Büy\\, now\nTRIGGER;RELATED=END:PT0S\nEND:VALARM\n"
                 "BEGIN:VALARM\nACTION:AUDIO\nDESCRIPTION:Büy\\, now\nTRIGGER;RELATED=END:-PT30M\nEND:VALARM\n"
                 "END:VTODO\nEND:VCALENDAR\n"_s);
    }

    void aTaskWithoutDatesIsWrittenWithoutAlarms()
    {
        Task task;
        task.uid = u"t"_s;
        task.status.clear();
        task.reminders = { Reminder() };
        QVERIFY(ICalParser::serializeTaskToVCalendar(task).endsWith(
            u"\r\nSUMMARY:\r\nSTATUS:NEEDS-ACTION\r\nEND:VTODO\r\nEND:VCALENDAR\r\n"));
        task.startDate = utc("2026-03-15");
        QVERIFY(ICalParser::serializeTaskToVCalendar(task).contains(u"TRIGGER;RELATED=START:PT0S\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_ICalTasks)
#include "tst_ICalTasks.moc"
