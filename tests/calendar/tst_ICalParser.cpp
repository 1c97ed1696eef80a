#include "calendar/ICalParser.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <QTimeZone>

namespace {

QByteArray vevent(const QByteArray &lines)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Someone//Else//EN\r\nBEGIN:VEVENT\r\n" + lines
        + "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
}

// The one event made of a UID and these lines.
Event eventOf(const QByteArray &lines)
{
    const QList<Event> events = ICalParser::parse(vevent("UID:u\r\n" + lines));
    return events.size() == 1 ? events.first() : Event();
}

QDateTime utc(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), Qt::UTC);
}

QStringList uidsOf(const QList<Event> &events)
{
    QStringList uids;
    for (const Event &event : events)
        uids.append(event.uid);
    return uids;
}

QStringList exceptionsOf(const Event &event)
{
    QStringList dates;
    const QJsonArray array = QJsonDocument::fromJson(event.exceptionDates.toUtf8()).array();
    for (const QJsonValue &value : array)
        dates.append(value.toString());
    return dates;
}

}

class tst_ICalParser : public QObject {
    Q_OBJECT

private slots:
    void textProperties_data();
    void textProperties();
    void readsTheOtherProperties();
    void startTimes_data();
    void startTimes();
    void endTimes_data();
    void endTimes();
    void recurrenceIds_data();
    void recurrenceIds();
    void exceptionDates_data();
    void exceptionDates();
    void reminders_data();
    void reminders();
    void anAlarmIsAScope();
    void organizers_data();
    void organizers();
    void attendees();
    void takesTheFirstParentRelation();
    void keepsTheTextOfTheEvent();
    void joinsFoldsWithinACharacter();
    void replacesBytesThatAreNotUtf8();
    void eventsFoundInDamagedText_data();
    void eventsFoundInDamagedText();
    void countsWhatItSkips();
    void keepsALimitOnAbsurdEvents();
    void leavesOutWhatIsTooLarge_data();
    void leavesOutWhatIsTooLarge();
    void readsTheSameInSlices_data();
    void readsTheSameInSlices();
    void aSliceEndsWithinJunk_data();
    void aSliceEndsWithinJunk();
    void durations_data();
    void durations();
    void triggers_data();
    void triggers();
    void escaping_data();
    void escaping();
    void replacesTimes_data();
    void replacesTimes();
    void leavesTextWithoutAnEventAlone();
};

void tst_ICalParser::textProperties_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("escapes") << QByteArray("a\\,b\\;c\\nd\\Ne\\\\f") << u"a,b;c\nd\ne\\f"_qs;
    QTest::newRow("unknown escape stays") << QByteArray("a\\xb") << u"a\\xb"_qs;
    QTest::newRow("backslash before an escape") << QByteArray("\\\\n") << u"\\n"_qs;
    QTest::newRow("unknown escape, then an escape") << QByteArray("\\x\\,") << u"\\x,"_qs;
    QTest::newRow("backslash at the end") << QByteArray("a\\") << u"a\\"_qs;
    QTest::newRow("colons, semicolons and quotes") << QByteArray("a:b;\"c\"") << u"a:b;\"c\""_qs;
    QTest::newRow("UTF-8") << QByteArray("K\xC3\xB6ln \xF0\x9F\x8E\x89") << u"K\u00F6ln \U0001F389"_qs;
    QTest::newRow("fold") << QByteArray("a \r\n b\r\n\tc") << u"a bc"_qs;
    QTest::newRow("empty") << QByteArray() << QString();
}

void tst_ICalParser::textProperties()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, expected);
    const Event event = eventOf("SUMMARY:" + value + "\r\ndescription;LANGUAGE=\"x:y;z\":" + value
                                + "\r\nLocation;ALTREP=\"http://a;b\":" + value);
    QCOMPARE(event.title, expected);
    QCOMPARE(event.description, expected);
    QCOMPARE(event.location, expected);
}

void tst_ICalParser::readsTheOtherProperties()
{
    const Event event = eventOf("STATUS:TENTATIVE\nSEQUENCE:7\nURL:http://e.org/a\\,b\nRRULE:FREQ=DAILY;COUNT=3\n"
                                "CREATED:20260102T030405Z\nLAST-MODIFIED:20260203T040506Z\n"
                                "DTSTART:20260315T090000Z\nCATEGORIES:x\nX-FOO:bar");
    QCOMPARE(event.uid, u"u"_qs);
    QCOMPARE(event.status, u"tentative"_qs);
    QCOMPARE(event.sequence, 7);
    QCOMPARE(event.eventUrl, u"http://e.org/a\\,b"_qs);
    QCOMPARE(event.recurrenceRule, u"FREQ=DAILY;COUNT=3"_qs);
    QCOMPARE(event.created, QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC));
    QCOMPARE(event.lastModified, QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6), Qt::UTC));
    QCOMPARE(event.timezone, u"UTC"_qs);
    QCOMPARE(event.exceptionDates, QString());
    QVERIFY(event.masterEventUid.isEmpty());

    QCOMPARE(eventOf("SEQUENCE:many").sequence, 0);
    QCOMPARE(eventOf("SUMMARY:x").status, u"confirmed"_qs);
}

void tst_ICalParser::startTimes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QDateTime>("expected");
    QTest::addColumn<bool>("isAllDay");
    QTest::addColumn<QString>("timezone");

    const QString utcName = u"UTC"_qs;
    const QString paris = u"Europe/Paris"_qs;
    QTest::newRow("date") << QByteArray("DTSTART;VALUE=DATE:20260315") << utc(2026, 3, 15) << true << utcName;
    QTest::newRow("date without its parameter")
        << QByteArray("DTSTART:20260315") << utc(2026, 3, 15) << true << utcName;
    QTest::newRow("leap day") << QByteArray("DTSTART:20240229") << utc(2024, 2, 29) << true << utcName;
    QTest::newRow("UTC") << QByteArray("DTSTART:20260315T090000Z") << utc(2026, 3, 15, 9) << false << utcName;
    QTest::newRow("zone, winter") << QByteArray("DTSTART;TZID=Europe/Paris:20260315T090000") << utc(2026, 3, 15, 8)
                                  << false << paris;
    QTest::newRow("zone, summer") << QByteArray("dtstart;tzid=Europe/Paris:20260715T090000") << utc(2026, 7, 15, 7)
                                  << false << paris;
    QTest::newRow("zone and Z") << QByteArray("DTSTART;TZID=Europe/Paris:20260315T090000Z") << utc(2026, 3, 15, 9)
                                << false << paris;
    QTest::newRow("quoted zone") << QByteArray("DTSTART;TZID=\"Europe/Paris\";X=1:20260315T090000")
                                 << utc(2026, 3, 15, 8) << false << paris;
    QTest::newRow("Windows zone") << QByteArray("DTSTART;TZID=Eastern Standard Time:20260315T090000")
                                  << utc(2026, 3, 15, 13) << false << u"America/New_York"_qs;
    QTest::newRow("quoted zone with a colon") << QByteArray("DTSTART;TZID=\"tzone://Microsoft/Utc\":20260315T090000")
                                              << utc(2026, 3, 15, 9) << false << utcName;
    QTest::newRow("path to a zone") << QByteArray("DTSTART;TZID=/example.org/20070129_1/Asia/Tokyo:20260315T090000")
                                    << utc(2026, 3, 15, 0) << false << u"Asia/Tokyo"_qs;
    // RFC 5545 §3.3.5: the offset before the gap; the first of two.
    QTest::newRow("in the spring gap") << QByteArray("DTSTART;TZID=Europe/Paris:20260329T023000")
                                       << utc(2026, 3, 29, 1, 30) << false << paris;
    QTest::newRow("in the autumn overlap")
        << QByteArray("DTSTART;TZID=Europe/Paris:20261025T023000") << utc(2026, 10, 25, 0, 30) << false << paris;
    QTest::newRow("day of the change, before it")
        << QByteArray("DTSTART;TZID=Europe/Paris:20260329T013000") << utc(2026, 3, 29, 0, 30) << false << paris;
    QTest::newRow("day of the change, after it")
        << QByteArray("DTSTART;TZID=Europe/Paris:20260329T033000") << utc(2026, 3, 29, 1, 30) << false << paris;
    QTest::newRow("floating") << QByteArray("DTSTART:20260315T090000") << QDateTime(QDate(2026, 3, 15), QTime(9, 0))
                              << false << utcName;
    QTest::newRow("unknown zone") << QByteArray("DTSTART;TZID=Nowhere:20260315T090000")
                                  << QDateTime(QDate(2026, 3, 15), QTime(9, 0)) << false << u"Nowhere"_qs;
    QTest::newRow("empty zone") << QByteArray("DTSTART;TZID=:20260315T090000")
                                << QDateTime(QDate(2026, 3, 15), QTime(9, 0)) << false << utcName;
    QTest::newRow("no such date") << QByteArray("DTSTART:20260230") << QDateTime() << true << utcName;
    QTest::newRow("no such month") << QByteArray("DTSTART:20261315T090000Z") << QDateTime() << false << utcName;
    QTest::newRow("no such hour") << QByteArray("DTSTART:20260315T250000Z") << QDateTime() << false << utcName;
    QTest::newRow("date with Z") << QByteArray("DTSTART:20260315Z") << QDateTime() << false << utcName;
    QTest::newRow("fraction") << QByteArray("DTSTART:20260315T090000.5Z") << QDateTime() << false << utcName;
    QTest::newRow("offset") << QByteArray("DTSTART:20260315T090000+0100") << QDateTime() << false << utcName;
    QTest::newRow("ISO form") << QByteArray("DTSTART:2026-03-15T09:00:00") << QDateTime() << false << utcName;
    QTest::newRow("not ASCII") << QByteArray("DTSTART:2026031\xC3\x9F") << QDateTime() << false << utcName;
    QTest::newRow("no value") << QByteArray("DTSTART") << QDateTime() << false << utcName;
}

void tst_ICalParser::startTimes()
{
    QFETCH(QByteArray, line);
    QFETCH(QDateTime, expected);
    const Event event = eventOf(line);
    QCOMPARE(event.startTime.isValid(), expected.isValid());
    QCOMPARE(event.startTime, expected);
    QTEST(event.timezone, "timezone");
    if (expected.isValid() || line.contains("20260230"))
        QTEST(event.isAllDay, "isAllDay");
    // A day is stored as it was written, wherever the machine is.
    if (event.isAllDay && expected.isValid())
        QCOMPARE(event.startTime.timeSpec(), Qt::UTC);
}

void tst_ICalParser::endTimes_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QDateTime>("expected"); // invalid: no end

    const QByteArray start = "DTSTART:20260315T090000Z\n";
    QTest::newRow("DTEND") << QByteArray(start + "DTEND:20260315T103000Z") << utc(2026, 3, 15, 10, 30);
    QTest::newRow("date") << QByteArray("DTSTART:20260315\nDTEND;VALUE=DATE:20260317") << utc(2026, 3, 17);
    QTest::newRow("none") << start << QDateTime();
    QTest::newRow("90 minutes") << QByteArray(start + "DURATION:PT90M") << utc(2026, 3, 15, 10, 30);
    QTest::newRow("duration first") << QByteArray("DURATION:P1DT2H\n" + start) << utc(2026, 3, 16, 11);
    QTest::newRow("days of a date") << QByteArray("DTSTART:20260315\nDURATION:P2D") << utc(2026, 3, 17);
    QTest::newRow("zero duration") << QByteArray(start + "DURATION:PT0S") << QDateTime();
    QTest::newRow("negative duration") << QByteArray(start + "DURATION:-PT1H") << QDateTime();
    QTest::newRow("DTEND before DURATION")
        << QByteArray(start + "DTEND:20260315T100000Z\nDURATION:PT5H") << utc(2026, 3, 15, 10);
    QTest::newRow("DTEND after DURATION")
        << QByteArray(start + "DURATION:PT5H\nDTEND:20260315T100000Z") << utc(2026, 3, 15, 10);
    QTest::newRow("unreadable DTEND, DURATION") << QByteArray(start + "DURATION:PT5H\nDTEND:soon") << QDateTime();
    QTest::newRow("duration over a clock change")
        << QByteArray("DTSTART;TZID=Europe/Paris:20260329T013000\nDURATION:PT1H") << utc(2026, 3, 29, 1, 30);
    QTest::newRow("beyond the last year") << QByteArray(start + "DURATION:P999999999999999999999W") << QDateTime();
    QTest::newRow("duration without a start") << QByteArray("DURATION:PT1H") << QDateTime();
}

void tst_ICalParser::endTimes()
{
    QFETCH(QByteArray, lines);
    QFETCH(QDateTime, expected);
    const Event event = eventOf(lines);
    QCOMPARE(event.uid, u"u"_qs);
    QCOMPARE(event.endTime.has_value(), expected.isValid());
    QCOMPARE(event.endTime.value_or(QDateTime()), expected);
}

void tst_ICalParser::recurrenceIds_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("expected");

    QTest::newRow("date") << QByteArray("RECURRENCE-ID;VALUE=DATE:20260315") << u"20260315T000000Z"_qs;
    QTest::newRow("zone") << QByteArray("RECURRENCE-ID;TZID=Europe/Paris:20260315T090000") << u"20260315T080000Z"_qs;
    QTest::newRow("UTC") << QByteArray("RECURRENCE-ID:20260315T090000Z") << u"20260315T090000Z"_qs;
    QTest::newRow("day before in UTC") << QByteArray("RECURRENCE-ID;TZID=Asia/Tokyo:20260315T050000")
                                       << u"20260314T200000Z"_qs;
    QTest::newRow("unreadable") << QByteArray("RECURRENCE-ID:the third") << u"the third"_qs;
}

void tst_ICalParser::recurrenceIds()
{
    QFETCH(QByteArray, line);
    const Event event = eventOf("DTSTART:20260315T100000Z\r\n" + line);
    QTEST(event.recurrenceId, "expected");
    QCOMPARE(event.masterEventUid, u"u"_qs);
    QVERIFY(event.isOverride());
}

void tst_ICalParser::exceptionDates_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QStringList>("expected");

    const QByteArray timed = "DTSTART;TZID=Europe/Paris:20260302T090000\n";
    const QByteArray allDay = "DTSTART;VALUE=DATE:20260302\n";
    QTest::newRow("zone, winter and summer")
        << QByteArray(timed + "EXDATE;TZID=Europe/Paris:20260309T090000,20260330T090000")
        << QStringList{ u"20260309T080000Z"_qs, u"20260330T070000Z"_qs };
    QTest::newRow("several lines, before DTSTART")
        << QByteArray("EXDATE:20260309T080000Z\n" + timed + "EXDATE;TZID=\"W. Europe Standard Time\":20260316T090000")
        << QStringList{ u"20260309T080000Z"_qs, u"20260316T080000Z"_qs };
    QTest::newRow("floating") << QByteArray("DTSTART:20260302T090000\nEXDATE:20260309T090000")
                              << QStringList{ u"20260309T090000"_qs };
    QTest::newRow("unknown zone") << QByteArray("DTSTART;TZID=Mars:20260302T090000\nEXDATE;TZID=Mars:20260309T090000")
                                  << QStringList{ u"20260309T090000"_qs };
    QTest::newRow("dates") << QByteArray(allDay + "EXDATE;VALUE=DATE:20260309,20260316")
                           << QStringList{ u"20260309"_qs, u"20260316"_qs };
    // 09:00 in Paris, before and after the clock change of 29 March.
    QTest::newRow("dates of a timed series, before DTSTART")
        << QByteArray("EXDATE;VALUE=DATE:20260309,20260330\n" + timed + "EXDATE:20260316T080000Z")
        << QStringList{ u"20260309T080000Z"_qs, u"20260330T070000Z"_qs, u"20260316T080000Z"_qs };
    QTest::newRow("date of a series west of UTC")
        << QByteArray("DTSTART;TZID=America/Los_Angeles:20260302T200000\nEXDATE;VALUE=DATE:20260309")
        << QStringList{ u"20260310T030000Z"_qs };
    QTest::newRow("date of a series in UTC")
        << QByteArray("DTSTART:20260302T233000Z\nEXDATE:20260309") << QStringList{ u"20260309T233000Z"_qs };
    QTest::newRow("date of a series with a zone and Z")
        << QByteArray("DTSTART;TZID=Asia/Tokyo:20260301T230000Z\nEXDATE:20260309")
        << QStringList{ u"20260308T230000Z"_qs };
    QTest::newRow("date of a floating series")
        << QByteArray("DTSTART:20260302T090000\nEXDATE;VALUE=DATE:20260309") << QStringList{ u"20260309T090000"_qs };
    QTest::newRow("date of a series without a start")
        << QByteArray("EXDATE;VALUE=DATE:20260309") << QStringList{ u"20260309"_qs };
    QTest::newRow("midnights of an all-day series")
        << QByteArray("EXDATE;TZID=Asia/Tokyo:20260309T000000\n" + allDay + "EXDATE:20260316T000000Z")
        << QStringList{ u"20260309"_qs, u"20260316"_qs };
    QTest::newRow("unreadable ones left out")
        << QByteArray(timed + "EXDATE:,soon, 20260309T080000Z ,20261399") << QStringList{ u"20260309T080000Z"_qs };
    QTest::newRow("in a clock change") << QByteArray(timed + "EXDATE;TZID=Europe/Paris:20260329T023000")
                                       << QStringList{ u"20260329T013000Z"_qs };
}

void tst_ICalParser::exceptionDates()
{
    QFETCH(QByteArray, lines);
    QTEST(exceptionsOf(eventOf(lines)), "expected");
}

void tst_ICalParser::reminders_data()
{
    QTest::addColumn<QByteArray>("alarm");
    QTest::addColumn<int>("minutes"); // -1: none
    QTest::addColumn<QString>("action");

    const QString display = u"display"_qs;
    QTest::newRow("before") << QByteArray("ACTION:DISPLAY\nTRIGGER:-PT15M") << 15 << display;
    QTest::newRow("at the start") << QByteArray("ACTION:DISPLAY\nTRIGGER:PT0S") << 0 << display;
    QTest::newRow("long form") << QByteArray("TRIGGER:-P0DT1H10M0S\nACTION:display") << 70 << display;
    QTest::newRow("a week") << QByteArray("ACTION:DISPLAY\nTRIGGER:-P1W") << 7 * 24 * 60 << display;
    QTest::newRow("audio") << QByteArray("ACTION:Audio\nTRIGGER;RELATED=START:-PT5M") << 5 << u"audio"_qs;
    QTest::newRow("no action") << QByteArray("TRIGGER;VALUE=DURATION:-PT5M") << 5 << display;
    QTest::newRow("absurdly long before")
        << QByteArray("TRIGGER:-P999999999999W") << std::numeric_limits<int>::max() / 60 << display;
    QTest::newRow("after") << QByteArray("ACTION:DISPLAY\nTRIGGER:PT15M") << -1 << display;
    QTest::newRow("seconds after") << QByteArray("ACTION:DISPLAY\nTRIGGER:+PT15S") << -1 << display;
    QTest::newRow("before the end") << QByteArray("ACTION:DISPLAY\nTRIGGER;RELATED=end:-PT15M") << -1 << display;
    QTest::newRow("absolute") << QByteArray("ACTION:DISPLAY\nTRIGGER;VALUE=DATE-TIME:20260315T080000Z") << -1
                              << display;
    QTest::newRow("mail") << QByteArray("ACTION:EMAIL\nTRIGGER:-PT15M\nATTENDEE:mailto:a@e.org") << -1 << display;
    QTest::newRow("no trigger") << QByteArray("ACTION:DISPLAY") << -1 << display;
}

void tst_ICalParser::reminders()
{
    QFETCH(QByteArray, alarm);
    QFETCH(int, minutes);
    const Event event = eventOf("DTSTART:20260315T090000Z\nBEGIN:VALARM\n" + alarm + "\nEND:VALARM");
    QCOMPARE(event.reminders.size(), minutes < 0 ? 0 : 1);
    QVERIFY(event.attendees.isEmpty());
    if (minutes < 0)
        return;
    QCOMPARE(event.reminders.first().minutesBefore, minutes);
    QTEST(event.reminders.first().action, "action");
    QVERIFY(!event.reminders.first().triggerTime);
}

void tst_ICalParser::anAlarmIsAScope()
{
    const Event event =
        eventOf("DTSTART:20260315T090000Z\nSUMMARY:Lunch\nDESCRIPTION:With Ada\n"
                "BEGIN:VALARM\nUID:alarm\nDESCRIPTION:Reminder\nSUMMARY:Alarm\nDURATION:PT5M\nREPEAT:2\n"
                "TRIGGER:-PT30M\nEND:VALARM\n"
                "BEGIN:VALARM\nTRIGGER:-PT10M\nEND:VALARM\nLOCATION:Café");
    QCOMPARE(event.uid, u"u"_qs);
    QCOMPARE(event.title, u"Lunch"_qs);
    QCOMPARE(event.description, u"With Ada"_qs);
    QCOMPARE(event.location, u"Café"_qs);
    QVERIFY(!event.endTime);
    QCOMPARE(event.reminders.size(), 2);
    QCOMPARE(event.reminders.last().minutesBefore, 10);
    QVERIFY(event.rawIcalendar.contains(u"BEGIN:VALARM\r\nUID:alarm\r\nDESCRIPTION:Reminder\r\n"));
}

void tst_ICalParser::organizers_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QByteArray("ORGANIZER;CN=Jane:mailto:jane@e.org") << u"jane@e.org"_qs << u"Jane"_qs;
    QTest::newRow("quoted name, upper case")
        << QByteArray("ORGANIZER;CN=\"Doe, Jane\":MAILTO:jane") << u"jane"_qs << u"\"Doe, Jane\""_qs;
    QTest::newRow("colon and semicolon in quotes")
        << QByteArray("ORGANIZER;SENT-BY=\"mailto:x@e.org\";CN=\"a;CN=b:c\":mailto:jane") << u"jane"_qs
        << u"\"a;CN=b:c\""_qs;
    QTest::newRow("quote never closed") << QByteArray("ORGANIZER;CN=\"Jane:mailto:jane") << u"jane"_qs << u"\"Jane"_qs;
    QTest::newRow("last of two names") << QByteArray("ORGANIZER;CN=a;cn=b:mailto:jane") << u"jane"_qs << u"b"_qs;
    QTest::newRow("no name, no scheme") << QByteArray("ORGANIZER:jane@e.org") << u"jane@e.org"_qs << QString();
    QTest::newRow("parameter without value") << QByteArray("ORGANIZER;CN;=x;:mailto:jane") << u"jane"_qs << QString();
}

void tst_ICalParser::organizers()
{
    QFETCH(QByteArray, line);
    const Event event = eventOf(line);
    QTEST(event.organizerEmail, "email");
    QTEST(event.organizerName, "name");
}

void tst_ICalParser::attendees()
{
    const Event event = eventOf("ATTENDEE;CUTYPE=INDIVIDUAL;ROLE=REQ-PARTICIPANT;PARTSTAT=ACCEPTED;CN=\"Doe, "
                                "Jane\";RSVP=TRUE:mailto:jane@e.org\n"
                                "ATTENDEE;ROLE=OPT-PARTICIPANT;PARTSTAT=declined;RSVP=FALSE:MAILTO:bob@e.org\n"
                                "ATTENDEE;ROLE=CHAIR;CUTYPE=ROOM;PARTSTAT=X-MAYBE:urn:uuid:1\n"
                                "ATTENDEE;CN=Nobody:mailto:");
    QCOMPARE(event.attendees.size(), 3);
    Attendee jane;
    jane.email = u"jane@e.org"_qs;
    jane.name = u"Doe, Jane"_qs;
    jane.status = u"accepted"_qs;
    jane.type = u"INDIVIDUAL"_qs;
    jane.rsvp = true;
    QCOMPARE(event.attendees[0], jane);
    Attendee bob;
    bob.email = u"bob@e.org"_qs;
    bob.role = u"optional"_qs;
    bob.status = u"declined"_qs;
    QCOMPARE(event.attendees[1], bob);
    QCOMPARE(event.attendees[2].email, u"urn:uuid:1"_qs);
    QCOMPARE(event.attendees[2].role, u"chair"_qs);
    QCOMPARE(event.attendees[2].status, u"needs-action"_qs);
    QCOMPARE(event.attendees[2].type, u"ROOM"_qs);
}

void tst_ICalParser::takesTheFirstParentRelation()
{
    QCOMPARE(eventOf("RELATED-TO;RELTYPE=CHILD:a\nRELATED-TO;RELTYPE=parent:b\\,c\nRELATED-TO:d").relatedToUid,
             u"b,c"_qs);
}

void tst_ICalParser::keepsTheTextOfTheEvent()
{
    const QByteArray text = "BEGIN:VCALENDAR\nMETHOD:PUBLISH\nBEGIN:VTIMEZONE\nTZID:X\nEND:VTIMEZONE\n"
                            "BEGIN:VEVENT\nUID:a\nsummary:fol\n ded\nX-ODD;P=\"1\":v\n\nATTACH:x\nEND:VEVENT\n"
                            "BEGIN:VEVENT\nUID:b\nEND:VEVENT\nEND:VCALENDAR\n";
    const QList<Event> events = ICalParser::parse(text);
    QCOMPARE(events.size(), 2);
    QCOMPARE(events[0].rawIcalendar,
             u"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quillon//Calendar Desktop//EN\r\nBEGIN:VEVENT\r\nUID:a\r\n"
             "summary:folded\r\nX-ODD;P=\"1\":v\r\n\r\nATTACH:x\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n"_qs);
    QCOMPARE(events[1].rawIcalendar,
             u"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quillon//Calendar Desktop//EN\r\nBEGIN:VEVENT\r\nUID:b\r\n"
             "END:VEVENT\r\nEND:VCALENDAR\r\n"_qs);
    QCOMPARE(ICalParser::parse(events[0].rawIcalendar).first(), events[0]);
}

void tst_ICalParser::joinsFoldsWithinACharacter()
{
    QCOMPARE(eventOf("SUMMARY:K\xC3\r\n \xB6ln").title, u"Köln"_qs);
}

void tst_ICalParser::replacesBytesThatAreNotUtf8()
{
    const Event event = eventOf("SUMMARY:K\xF6ln\r\nDTSTART:20260315");
    QCOMPARE(event.title, u"K\uFFFDln"_qs);
    QCOMPARE(event.startTime, utc(2026, 3, 15));
    QVERIFY(event.rawIcalendar.contains(u"SUMMARY:K\uFFFDln\r\n"));
}

void tst_ICalParser::eventsFoundInDamagedText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("uids");

    const QByteArray a = "BEGIN:VEVENT\nUID:a\nEND:VEVENT\n";
    const QByteArray b = "BEGIN:VEVENT\nUID:b\nEND:VEVENT\n";
    const QStringList both{ u"a"_qs, u"b"_qs };
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF" + a + b) << both;
    QTest::newRow("mixed line ends") << QByteArray(QByteArray(a).replace("\n", "\r\n") + b) << both;
    QTest::newRow("no final line end") << QByteArray(a + b.chopped(1)) << both;
    QTest::newRow("cut off") << QByteArray(a + b.chopped(3)) << QStringList{ u"a"_qs };
    QTest::newRow("cut off, then another") << QByteArray(a.chopped(11) + b) << QStringList{ u"b"_qs };
    QTest::newRow("stray ends") << QByteArray("END:VEVENT\n" + a + "END:VALARM\nEND:VEVENT\n" + b) << both;
    QTest::newRow("alarm never closed") << QByteArray(
        "BEGIN:VEVENT\nUID:a\nBEGIN:VALARM\nUID:x\nTRIGGER:-PT5M\nEND:VEVENT\n" + b)
                                        << both;
    QTest::newRow("alarm never opened") << QByteArray("BEGIN:VEVENT\nEND:VALARM\nUID:a\nEND:VEVENT\n" + b) << both;
    QTest::newRow("without a UID") << QByteArray("BEGIN:VEVENT\nSUMMARY:x\nEND:VEVENT\n" + b) << QStringList{ u"b"_qs };
    QTest::newRow("one UID twice") << QByteArray(a + a) << QStringList{ u"a"_qs, u"a"_qs };
    QTest::newRow("other components") << QByteArray("BEGIN:VTODO\nUID:x\nEND:VTODO\n" + a
                                                    + "BEGIN:VJOURNAL\nUID:y\nEND:VJOURNAL\n" + b)
                                      << both;
    QTest::newRow("binary") << QByteArray(QByteArray("\0\xFF\xFE\x01:;\"\r\r\n ", 12).repeated(500) + "\n" + a + b)
                            << both;
    QTest::newRow("begins with a fold") << QByteArray(" x\n" + a + b) << both;
}

void tst_ICalParser::eventsFoundInDamagedText()
{
    QFETCH(QByteArray, text);
    QTEST(uidsOf(ICalParser::parse(text)), "uids");
    QTEST(uidsOf(ICalParser::parse(QString::fromLatin1(text).remove(u"\u00EF\u00BB\u00BF"_qs))), "uids");
}

void tst_ICalParser::countsWhatItSkips()
{
    const QByteArray text = "BEGIN:VEVENT\nDTSTART:20260315\nEND:VEVENT\nBEGIN:VEVENT\nUID:\nEND:VEVENT\n"
                            "BEGIN:VEVENT\nUID:a\nDTSTART:soon\nEND:VEVENT\n"
                            "BEGIN:VEVENT\nUID:b\nDTSTART:20260315\nEND:VEVENT\n";
    ICalParser::EventReader reader(text);
    const QList<Event> events = reader.read(100, text.size());
    QCOMPARE(uidsOf(events), QStringList({ u"a"_qs, u"b"_qs }));
    QVERIFY(!events.first().startTime.isValid());
    QCOMPARE(reader.skipped(), (ICalParser::Skipped{ .withoutUid = 2, .withoutStart = 1 }));
    QVERIFY(reader.atEnd());
    QCOMPARE(reader.bytesRead(), reader.size());
}

void tst_ICalParser::keepsALimitOnAbsurdEvents()
{
    const QByteArray attendee = "ATTENDEE:mailto:a@e.org\r\n";
    const QByteArray alarm = "BEGIN:VALARM\r\nTRIGGER:-PT5M\r\nEND:VALARM\r\n";
    const QByteArray text = "DTSTART:20260302T090000Z\r\n" + attendee.repeated(1001) + alarm.repeated(101)
        + "EXDATE:" + QByteArray("20260303T090000Z,").repeated(9000)
        + "\r\nEXDATE:" + QByteArray("20260304T090000Z,").repeated(1001);
    const Event event = eventOf(text);
    QCOMPARE(event.attendees.size(), 1000);
    QCOMPARE(event.reminders.size(), 100);
    QCOMPARE(exceptionsOf(event).size(), 10'000);
    QVERIFY(event.rawIcalendar.contains(QString::fromLatin1(text)));
}

void tst_ICalParser::leavesOutWhatIsTooLarge_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("times");
    QTest::addColumn<bool>("isKept");

    constexpr int limit = 16 * 1024 * 1024;
    const QByteArray line = "X-LINE:" + QByteArray(1015, 'x') + "\r\n"; // 1 KiB
    QTest::newRow("one line") << QByteArray("X-LINE:" + QByteArray(limit, 'x') + "\r\n") << 1 << false;
    QTest::newRow("many lines") << line << limit / 1024 << false;
    QTest::newRow("many lines, not too many") << line << limit / 1024 - 1 << true;
}

void tst_ICalParser::leavesOutWhatIsTooLarge()
{
    QFETCH(QByteArray, line);
    QFETCH(int, times);
    QFETCH(bool, isKept);
    const QByteArray text = vevent("UID:a\r\n" + line.repeated(times) + "DTSTART:20260315") + vevent("UID:b");
    ICalParser::EventReader reader(text);
    QCOMPARE(uidsOf(reader.read(10, text.size())), isKept ? QStringList({ u"a"_qs, u"b"_qs }) : QStringList{ u"b"_qs });
    QCOMPARE(reader.skipped().tooLarge, isKept ? 0 : 1);
    QCOMPARE(reader.skipped().withoutUid, 0);
}

void tst_ICalParser::readsTheSameInSlices_data()
{
    QTest::addColumn<int>("maxEvents");
    QTest::addColumn<qsizetype>("maxBytes");

    QTest::newRow("one event at a time") << 1 << qsizetype(1'000'000);
    QTest::newRow("three events") << 3 << qsizetype(1'000'000);
    QTest::newRow("one byte") << 100 << qsizetype(1);
    QTest::newRow("7 bytes") << 100 << qsizetype(7);
    QTest::newRow("100 bytes") << 2 << qsizetype(100);
}

void tst_ICalParser::readsTheSameInSlices()
{
    QFETCH(int, maxEvents);
    QFETCH(qsizetype, maxBytes);
    QByteArray text = "BEGIN:VCALENDAR\r\n";
    for (int i = 0; i < 20; ++i) {
        text += "BEGIN:VEVENT\r\nUID:" + QByteArray::number(i)
            + "\r\nSUMMARY:a long \r\n line in \r\n three pieces\r\nDTSTART;TZID=Europe/Paris:20260315T090000\r\n"
              "EXDATE:20260316T080000Z\r\nEND:VEVENT\r\n";
    }
    ICalParser::EventReader reader(text);
    QList<Event> events;
    while (!reader.atEnd()) {
        const qsizetype before = reader.bytesRead();
        const QList<Event> more = reader.read(maxEvents, maxBytes);
        QVERIFY(more.size() <= maxEvents);
        QVERIFY(reader.bytesRead() > before);
        events.append(more);
    }
    QCOMPARE(events.size(), 20);
    QCOMPARE(events[19].title, u"a long line in three pieces"_qs);
    QCOMPARE(events, ICalParser::parse(text));
}

void tst_ICalParser::aSliceEndsWithinJunk_data()
{
    QTest::addColumn<QByteArray>("piece");

    QTest::newRow("lines") << QByteArray("no event here\n");
    QTest::newRow("one line with many folds") << QByteArray("x\n ");
    QTest::newRow("begins without an end") << QByteArray("BEGIN:VEVENT\n");
    QTest::newRow("ends without a UID") << QByteArray("BEGIN:VEVENT\nEND:VEVENT\n");
}

void tst_ICalParser::aSliceEndsWithinJunk()
{
    QFETCH(QByteArray, piece);
    const QByteArray text = piece.repeated(20'000);
    ICalParser::EventReader reader(text);
    QVERIFY(reader.read(10, 1000).isEmpty());
    QVERIFY2(reader.bytesRead() >= 1000 && reader.bytesRead() < 1100, qPrintable(QString::number(reader.bytesRead())));
    QVERIFY(reader.read(10, text.size()).isEmpty());
    QVERIFY(reader.atEnd());
}

void tst_ICalParser::durations_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");

    // RFC 5545 §3.3.6
    QTest::newRow("RFC, mixed") << u"P15DT5H0M20S"_qs << qint64(15) * 86'400 + 5 * 3'600 + 20;
    QTest::newRow("RFC, weeks") << u"P7W"_qs << qint64(7) * 604'800;
    QTest::newRow("minutes") << u"PT90M"_qs << qint64(5'400);
    QTest::newRow("months") << u"P1M"_qs << qint64(30) * 86'400;
    QTest::newRow("hours outside the time part") << u"P5H3S"_qs << qint64(0);
    QTest::newRow("unknown letter takes its number") << u"P5X2D"_qs << qint64(2) * 86'400;
    QTest::newRow("sign") << u"-PT1H"_qs << qint64(0);
    QTest::newRow("empty") << QString() << qint64(0);
    QTest::newRow("no P") << u"1H"_qs << qint64(0);
    QTest::newRow("number without a unit") << u"PT5"_qs << qint64(0);
}

void tst_ICalParser::durations()
{
    QFETCH(QString, text);
    QTEST(ICalParser::parseDurationSeconds(text), "seconds");
}

void tst_ICalParser::triggers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("minutes");

    QTest::newRow("before") << u"-PT30M"_qs << 30;
    QTest::newRow("after counts the same") << u" PT15M "_qs << 15;
    QTest::newRow("plus") << u"+PT1H"_qs << 60;
    QTest::newRow("rounded down") << u"-PT119S"_qs << 1;
    QTest::newRow("absolute") << u"20260315T090000Z"_qs << -1;
    QTest::newRow("empty") << QString() << -1;
    QTest::newRow("sign alone") << u"-"_qs << -1;
}

void tst_ICalParser::triggers()
{
    QFETCH(QString, text);
    QTEST(ICalParser::parseTriggerMinutes(text), "minutes");
}

void tst_ICalParser::escaping_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    QTest::addColumn<QString>("readBack");

    QTest::newRow("all") << u"a,b;c\\d\ne"_qs << u"a\\,b\\;c\\\\d\\ne"_qs << u"a,b;c\\d\ne"_qs;
    QTest::newRow("CR LF") << u"a\r\nb"_qs << u"a\\nb"_qs << u"a\nb"_qs;
    QTest::newRow("CR alone") << u"a\rb\r"_qs << u"a\\nb\\n"_qs << u"a\nb\n"_qs;
    QTest::newRow("CR CR LF") << u"\r\r\n"_qs << u"\\n\\n"_qs << u"\n\n"_qs;
    QTest::newRow("backslash n") << u"\\n"_qs << u"\\\\n"_qs << u"\\n"_qs;
}

void tst_ICalParser::escaping()
{
    QFETCH(QString, text);
    QFETCH(QString, escaped);
    QCOMPARE(ICalParser::escapeText(text), escaped);
    QTEST(ICalParser::unescapeText(escaped), "readBack");
}

void tst_ICalParser::replacesTimes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("hasEnd");
    QTest::addColumn<QByteArray>("expected"); // lines end in CRLF

    QTest::newRow("first event only")
        << QByteArray("A\nBEGIN:VEVENT\nDTSTART;TZID=X:1\nRRULE:R\ndtend:2\nEND:VEVENT\nBEGIN:VEVENT\nDTSTART:3\n")
        << true << QByteArray("A\nBEGIN:VEVENT\n<start>\nRRULE:R\n<end>\nEND:VEVENT\nBEGIN:VEVENT\nDTSTART:3\n");
    QTest::newRow("end added") << QByteArray("BEGIN:VEVENT\nDTSTART:1\nEXDATE:2\nEND:VEVENT\n") << true
                               << QByteArray("BEGIN:VEVENT\n<start>\nEXDATE:2\n<end>\nEND:VEVENT\n");
    QTest::newRow("duration becomes an end") << QByteArray("BEGIN:VEVENT\r\nDURATION:PT1H\r\nDTSTART:1\r\nEND:VEVENT")
                                             << true << QByteArray("BEGIN:VEVENT\n<start>\n<end>\nEND:VEVENT");
    QTest::newRow("duration of an alarm stays")
        << QByteArray("BEGIN:VEVENT\nDTSTART:1\nBEGIN:VALARM\nDURATION:PT5M\nEND:VALARM\nEND:VEVENT\n") << true
        << QByteArray("BEGIN:VEVENT\n<start>\nBEGIN:VALARM\nDURATION:PT5M\nEND:VALARM\n<end>\nEND:VEVENT\n");
    QTest::newRow("no end given") << QByteArray("BEGIN:VEVENT\nDTSTART:1\nDTEND:2\nEND:VEVENT\n") << false
                                  << QByteArray("BEGIN:VEVENT\n<start>\nDTEND:20260315T090000Z\nEND:VEVENT\n");
    QTest::newRow("dates stay, times are added")
        << QByteArray("BEGIN:VEVENT\nDTSTART;VALUE=DATE:20260301\nEND:VEVENT\n") << true
        << QByteArray("BEGIN:VEVENT\nDTSTART;VALUE=DATE:20260301\n<start>\n<end>\nEND:VEVENT\n");
}

void tst_ICalParser::replacesTimes()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, hasEnd);
    QFETCH(QByteArray, expected);
    const QDateTime start = QDateTime(QDate(2026, 3, 15), QTime(10, 0), QTimeZone("Europe/Paris"));
    const QDateTime end = hasEnd ? start.addSecs(3600) : QDateTime();
    expected.replace("<start>", "DTSTART:20260315T090000Z").replace("<end>", "DTEND:20260315T100000Z");
    expected.replace("\n", "\r\n");
    const QString before = QString::fromUtf8(text);
    QCOMPARE(ICalParser::replaceVeventDtstartDtend(before, start, end).toUtf8(), expected);
    QCOMPARE(ICalParser::replaceVeventDtstartDtend(before, QDateTime(), end), before);
}

void tst_ICalParser::leavesTextWithoutAnEventAlone()
{
    const QString text = u"BEGIN:VTODO\nDTSTART:1\nEND:VTODO\n"_qs;
    QCOMPARE(ICalParser::replaceVeventDtstartDtend(text, utc(2026, 3, 15), utc(2026, 3, 16)), text);
    QCOMPARE(ICalParser::replaceVeventDtstartDtend(QString(), utc(2026, 3, 15), utc(2026, 3, 16)), QString());
}

QTEST_GUILESS_MAIN(tst_ICalParser)
#include "tst_ICalParser.moc"
