#include "calendar/ICalParser.h"

#include <QTest>
#include <QTimeZone>

namespace {

Task taskOf(const QByteArray &lines)
{
    const QList<Task> tasks = ICalParser::parseTasks("BEGIN:VTODO\r\nUID:t\r\n" + lines + "\r\nEND:VTODO\r\n");
    return tasks.size() == 1 ? tasks.first() : Task();
}

QDateTime utc(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), Qt::UTC);
}

}

/// What ICalParser reads and writes of tasks.
class tst_ICalTasks : public QObject {
    Q_OBJECT

private slots:
    void readsProperties();
    void readsReminders();
    void privateProperties_data();
    void privateProperties();
    void keepsOverridesInTheTextOfTheirSeries();
    void writesPropertiesInOrder();
    void whatWasWrittenReadsBackEqual();
    void aTaskWithoutDatesIsWrittenWithoutAlarms();
};

void tst_ICalTasks::readsProperties()
{
    const QByteArray lines = "SUMMARY:Buy\\, now\nDESCRIPTION:d\nDTSTART;TZID=Europe/Paris:20260314T090000\n"
                             "DUE;VALUE=DATE:20260315\nSTATUS:IN-PROCESS\nPRIORITY:2\nPERCENT-COMPLETE:40\n"
                             "RRULE:FREQ=WEEKLY\nCATEGORIES:old\nCATEGORIES:a, b ,,c\\;d\nSEQUENCE:3\n"
                             "COMPLETED:20260316T100000Z\nCREATED:20260101T000000Z\nLAST-MODIFIED:20260102T000000Z";
    const Task task = taskOf(lines);
    QCOMPARE(task.title, u"Buy, now"_qs);
    QCOMPARE(task.description, u"d"_qs);
    QCOMPARE(task.startDate, utc(2026, 3, 14, 8));
    QVERIFY(!task.startIsDateOnly);
    QCOMPARE(task.dueDate, utc(2026, 3, 15));
    QVERIFY(task.dueIsDateOnly);
    QCOMPARE(task.status, u"in-process"_qs);
    QCOMPARE(task.priority, 2);
    QCOMPARE(task.percentComplete, 40);
    QCOMPARE(task.recurrenceRule, u"FREQ=WEEKLY"_qs);
    QCOMPARE(task.categories, QStringList({ u"a"_qs, u"b"_qs, u"c;d"_qs }));
    QCOMPARE(task.sequence, 3);
    QCOMPARE(task.completedDate, utc(2026, 3, 16, 10));
    QCOMPARE(task.created, utc(2026, 1, 1));
    QCOMPARE(task.lastModified, utc(2026, 1, 2));
    QCOMPARE(
        task.rawIcalendar,
        QString::fromUtf8("BEGIN:VTODO\r\nUID:t\r\n" + QByteArray(lines).replace("\n", "\r\n") + "\r\nEND:VTODO\r\n"));

    QCOMPARE(taskOf("DUE:soon").dueDate, std::nullopt);
    QCOMPARE(taskOf("RELATED-TO;RELTYPE=SIBLING:a\nRELATED-TO:b\nRELATED-TO;RELTYPE=PARENT:c").parentTaskUid, u"c"_qs);
    QVERIFY(ICalParser::parseTasks(QByteArray("BEGIN:VTODO\nSUMMARY:x\nEND:VTODO\n")).isEmpty());
}

void tst_ICalTasks::readsReminders()
{
    const Task task = taskOf("DUE:20260315T090000Z\nSUMMARY:Real\n"
                             "BEGIN:VALARM\nACTION:EMAIL\nSUMMARY:Alarm\nTRIGGER;RELATED=END:-PT30M\nEND:VALARM\n"
                             "BEGIN:VALARM\nTRIGGER;VALUE=DATE-TIME:20260315T080000Z\nEND:VALARM\n"
                             "BEGIN:VALARM\nTRIGGER:PT15M\nEND:VALARM");
    QCOMPARE(task.title, u"Real"_qs);
    QCOMPARE(task.reminders.size(), 2);
    QCOMPARE(task.reminders[0].minutesBefore, 30);
    QCOMPARE(task.reminders[0].action, u"email"_qs);
    QCOMPARE(task.reminders[1].minutesBefore, 15);
    QCOMPARE(task.reminders[1].action, u"display"_qs);
}

void tst_ICalTasks::privateProperties_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("repeatMode");
    QTest::addColumn<QString>("itemType");
    QTest::addColumn<int>("sortOrder");

    const QString due = u"fromDueDate"_qs;
    const QString task = u"task"_qs;
    QTest::newRow("completion") << QByteArray("X-QUILLON-REPEAT-MODE: fromCompletionDate ") << u"fromCompletionDate"_qs
                                << task << 0;
    QTest::newRow("mode in another case") << QByteArray("X-QUILLON-REPEAT-MODE:FROMCOMPLETIONDATE") << due << task << 0;
    QTest::newRow("reminder") << QByteArray("X-QUILLON-ITEM-TYPE:Reminder") << due << u"reminder"_qs << 0;
    QTest::newRow("other type") << QByteArray("X-QUILLON-ITEM-TYPE:note") << due << task << 0;
    QTest::newRow("order") << QByteArray("X-QUILLON-SORT-ORDER: 12 ") << due << task << 12;
    QTest::newRow("order 0") << QByteArray("X-QUILLON-SORT-ORDER:0") << due << task << 0;
    QTest::newRow("negative order") << QByteArray("X-QUILLON-SORT-ORDER:-4") << due << task << 0;
    QTest::newRow("no number") << QByteArray("X-QUILLON-SORT-ORDER:abc") << due << task << 0;
}

void tst_ICalTasks::privateProperties()
{
    QFETCH(QByteArray, line);
    const Task task = taskOf(line);
    QTEST(task.repeatMode, "repeatMode");
    QTEST(task.itemType, "itemType");
    QTEST(task.sortOrder, "sortOrder");
}

void tst_ICalTasks::keepsOverridesInTheTextOfTheirSeries()
{
    const QByteArray series = "BEGIN:VTODO\r\nUID:a\r\nRRULE:FREQ=DAILY\r\nEND:VTODO\r\n";
    const QByteArray first = "BEGIN:VTODO\r\nUID:a\r\nRECURRENCE-ID:20260315T090000Z\r\nSUMMARY:1\r\nEND:VTODO\r\n";
    const QByteArray second = "BEGIN:VTODO\r\nRECURRENCE-ID:20260316T090000Z\r\nUID:a\r\nEND:VTODO\r\n";
    const QByteArray orphan = "BEGIN:VTODO\r\nUID:c\r\nRECURRENCE-ID:20260315T090000Z\r\nEND:VTODO\r\n";
    const QByteArray other = "BEGIN:VTODO\r\nUID:b\r\nEND:VTODO\r\n";
    const QList<Task> tasks = ICalParser::parseTasks(first + other + series + orphan + second);
    QCOMPARE(tasks.size(), 2);
    QCOMPARE(tasks[0].uid, u"b"_qs);
    QCOMPARE(tasks[0].rawIcalendar.toUtf8(), other);
    QCOMPARE(tasks[1].recurrenceRule, u"FREQ=DAILY"_qs);
    QCOMPARE(tasks[1].title, QString());
    QCOMPARE(tasks[1].rawIcalendar.toUtf8(), series + first + second);
    QCOMPARE(ICalParser::parseTasks(tasks[1].rawIcalendar), QList<Task>{ tasks[1] });
}

void tst_ICalTasks::writesPropertiesInOrder()
{
    Task task;
    task.uid = u"t-1"_qs;
    task.title = u"Buy, now"_qs;
    task.description = u"two\r\nlines"_qs;
    task.status = u"in-process"_qs;
    task.sequence = 3;
    task.priority = 2;
    task.percentComplete = 40;
    task.startDate = QDateTime(QDate(2026, 3, 14), QTime(9, 0), QTimeZone("Europe/Paris"));
    task.startIsDateOnly = false;
    task.dueDate = utc(2026, 3, 15);
    task.completedDate = utc(2026, 3, 16, 10);
    task.recurrenceRule = u"FREQ=WEEKLY"_qs;
    task.categories = QStringList{ u"a"_qs, u"b;c"_qs };
    task.parentTaskUid = u"p"_qs;
    task.repeatMode = u"fromCompletionDate"_qs;
    task.itemType = u"reminder"_qs;
    task.sortOrder = 5;
    task.reminders = { Reminder(), Reminder() };
    task.reminders[1].minutesBefore = 30;
    task.reminders[1].action = u"audio"_qs;

    QStringList lines = ICalParser::serializeTaskToVCalendar(task).split(u"\r\n"_qs);
    QVERIFY(lines.value(5).startsWith(u"DTSTAMP:") && lines[5].size() == 24 && lines[5].endsWith(u'Z'));
    lines.removeAt(5);
    const QStringList expected{ u"BEGIN:VCALENDAR"_qs,
                                u"VERSION:2.0"_qs,
                                u"PRODID:-//Quillon//Calendar Desktop//EN"_qs,
                                u"BEGIN:VTODO"_qs,
                                u"UID:t-1"_qs,
                                u"SUMMARY:Buy\\, now"_qs,
                                u"STATUS:IN-PROCESS"_qs,
                                u"SEQUENCE:3"_qs,
                                u"PRIORITY:2"_qs,
                                u"PERCENT-COMPLETE:40"_qs,
                                u"DTSTART:20260314T080000Z"_qs,
                                u"DUE;VALUE=DATE:20260315"_qs,
                                u"COMPLETED:20260316T100000Z"_qs,
                                u"RRULE:FREQ=WEEKLY"_qs,
                                u"CATEGORIES:a,b\\;c"_qs,
                                u"RELATED-TO;RELTYPE=PARENT:p"_qs,
                                u"X-QUILLON-REPEAT-MODE:fromCompletionDate"_qs,
                                u"X-QUILLON-ITEM-TYPE:reminder"_qs,
                                u"X-QUILLON-SORT-ORDER:5"_qs,
                                u"DESCRIPTION:two\\nlines"_qs,
                                u"BEGIN:VALARM"_qs,
                                u"ACTION:DISPLAY"_qs,
                                u"DESCRIPTION:Buy\\, now"_qs,
                                u"TRIGGER;RELATED=END:PT0S"_qs,
                                u"END:VALARM"_qs,
                                u"BEGIN:VALARM"_qs,
                                u"ACTION:AUDIO"_qs,
                                u"DESCRIPTION:Buy\\, now"_qs,
                                u"TRIGGER;RELATED=END:-PT30M"_qs,
                                u"END:VALARM"_qs,
                                u"END:VTODO"_qs,
                                u"END:VCALENDAR"_qs,
                                QString() };
    QCOMPARE(lines, expected);
}

void tst_ICalTasks::whatWasWrittenReadsBackEqual()
{
    Task task;
    task.uid = u"t"_qs;
    task.title = u"Ünïcode; and\\more, of it"_qs;
    task.description = u"a\nb"_qs;
    task.status = u"completed"_qs;
    task.dueDate = utc(2026, 3, 15, 9);
    task.dueIsDateOnly = false;
    task.startDate = utc(2026, 3, 14);
    task.categories = QStringList{ u"home"_qs };
    task.parentTaskUid = u"p\nUID:another"_qs; // must not become a line of its own
    task.sortOrder = 2;
    task.reminders = { Reminder() };
    task.reminders[0].minutesBefore = 10;
    const QList<Task> again = ICalParser::parseTasks(ICalParser::serializeTaskToVCalendar(task));
    QCOMPARE(again.size(), 1);
    task.rawIcalendar = again.first().rawIcalendar;
    QCOMPARE(again.first(), task);
}

void tst_ICalTasks::aTaskWithoutDatesIsWrittenWithoutAlarms()
{
    Task task;
    task.uid = u"t"_qs;
    task.status.clear();
    task.reminders = { Reminder() };
    const QString undated = ICalParser::serializeTaskToVCalendar(task);
    QVERIFY(!undated.contains(u"VALARM"));
    QVERIFY(undated.contains(u"\r\nSTATUS:NEEDS-ACTION\r\n"));
    for (const auto name : { u"SEQUENCE", u"PRIORITY", u"X-QUILLON", u"RRULE", u"CATEGORIES", u"DESCRIPTION", u"DUE" })
        QVERIFY(!undated.contains(QStringView(name)));
    task.startDate = utc(2026, 3, 15);
    QVERIFY(ICalParser::serializeTaskToVCalendar(task).contains(u"TRIGGER;RELATED=START:PT0S\r\n"));
}

QTEST_GUILESS_MAIN(tst_ICalTasks)
#include "tst_ICalTasks.moc"
