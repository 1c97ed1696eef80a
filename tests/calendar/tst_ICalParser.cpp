#include "calendar/ICalParser.h"
#include "support/TestData.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

// The one event made of a UID and these lines.
Event eventOf(const QByteArray &lines)
{
    const QList<Event> events = ICalParser::parse("BEGIN:VEVENT\r\nUID:u\r\n" + lines + "\r\nEND:VEVENT\r\n");
    return events.size() == 1 ? events.first() : Event();
}

/// The instant, "…Z"; the date of a whole day; of a floating time the wall clock. Empty if invalid.
QString shown(const QDateTime &time, bool isDate)
{
    if (isDate && time.timeSpec() == Qt::UTC) // stored as written, wherever the machine is
        return time.date().toString(Qt::ISODate);
    return (time.timeSpec() == Qt::LocalTime ? time : time.toUTC()).toString(Qt::ISODate);
}

QString uidsOf(const QList<Event> &events)
{
    QStringList uids;
    for (const Event &event : events)
        uids.append(event.uid);
    return uids.join(u' ');
}

}

class tst_ICalParser : public QObject {
    Q_OBJECT

private slots:
    void textProperties_data()
    {
        columns<QByteArray, QString>("value", "expected");
        row("escapes", "a\\,b\\;c\\nd\\Ne\\\\f"_ba, "a,b;c\nd\ne\\f");
        row("unknown escape, then an escape", "\\x\\,"_ba, "\\x,");
        row("backslash at the end", "a\\"_ba, "a\\");
        row("colons, semicolons and quotes", "a:b;\"c\""_ba, "a:b;\"c\"");
        row("UTF-8", "K\xC3\xB6ln \xF0\x9F\x8E\x89"_ba, "K\u00F6ln \U0001F389");
        row("not UTF-8", "K\xF6ln"_ba, "K\uFFFDln");
        row("folds", "a \r\n b\r\n\tc"_ba, "a bc");
        row("fold within a character", "K\xC3\r\n \xB6ln"_ba, "K\u00F6ln");
    }
    void textProperties()
    {
        QFETCH(QByteArray, value);
        QFETCH(QString, expected);
        const Event event = eventOf("SUMMARY:" + value + "\r\ndescription;LANGUAGE=\"x:y;z\":" + value
                                    + "\r\nLocation;ALTREP=\"http://a;b\":" + value);
        QCOMPARE(event.title, expected);
        QCOMPARE(event.description, expected);
        QCOMPARE(event.location, expected);
        QCOMPARE(ICalParser::unescapeText(ICalParser::escapeText(expected)), expected);
    }

    void otherProperties()
    {
        Event expected;
        expected.uid = u"u"_s;
        expected.status = u"tentative"_s;
        expected.sequence = 7;
        expected.eventUrl = u"http://e.org/a\\,b"_s;
        expected.recurrenceRule = u"FREQ=DAILY;COUNT=3"_s;
        expected.created = utc("2026-01-02T03:04:05");
        expected.lastModified = utc("2026-02-03T04:05:06");
        expected.startTime = utc("2026-03-15T09:00");
        expected.relatedToUid = u"b,c"_s;
        Event event = eventOf("STATUS:TENTATIVE\nSEQUENCE:7\nURL:http://e.org/a\\,b\nRRULE:FREQ=DAILY;COUNT=3\n"
                              "CREATED:20260102T030405Z\nLAST-MODIFIED:20260203T040506Z\nDTSTART:20260315T090000Z\n"
                              "RELATED-TO;RELTYPE=CHILD:a\nRELATED-TO;RELTYPE=parent:b\\,c\nRELATED-TO:d\nX-FOO:bar");
        event.rawIcalendar.clear();
        QCOMPARE(event, expected);
        QCOMPARE(eventOf("SEQUENCE:many").sequence, 0);

        const Event override = eventOf("RECURRENCE-ID;TZID=Asia/Tokyo:20260315T050000");
        QCOMPARE(override.recurrenceId + override.masterEventUid, u"20260314T200000Zu"_s);
        QCOMPARE(eventOf("RECURRENCE-ID;VALUE=DATE:20260315").recurrenceId, u"20260315T000000Z"_s);
        QCOMPARE(eventOf("RECURRENCE-ID:the third").recurrenceId, u"the third"_s);
    }

    void startTimes_data()
    {
        columns<QString, QString, QString>("line", "expected", "zone");
        row("date", "DTSTART;VALUE=DATE:20260315", "2026-03-15", "UTC");
        row("leap day without its parameter", "DTSTART:20240229", "2024-02-29", "UTC");
        row("UTC", "DTSTART:20260315T090000Z", "2026-03-15T09:00:00Z", "UTC");
        row("zone", "dtstart;tzid=Europe/Paris:20260315T090000", "2026-03-15T08:00:00Z", "Europe/Paris");
        row("zone and Z", "DTSTART;TZID=Europe/Paris:20260315T090000Z", "2026-03-15T09:00:00Z", "Europe/Paris");
        row("quoted, with a colon", "DTSTART;TZID=\"tzone://Microsoft/Utc\";X=1:20260315T090000",
            "2026-03-15T09:00:00Z", "UTC");
        row("Windows", "DTSTART;TZID=Eastern Standard Time:20260315T090000", "2026-03-15T13:00:00Z",
            "America/New_York");
        // RFC 5545 §3.3.5: the offset before the gap.
        row("in the gap", "DTSTART;TZID=Europe/Paris:20260329T023000", "2026-03-29T01:30:00Z", "Europe/Paris");
        row("floating", "DTSTART:20260315T090000", "2026-03-15T09:00:00", "UTC");
        row("unknown zone", "DTSTART;TZID=Nowhere:20260315T090000", "2026-03-15T09:00:00", "Nowhere");
        for (const char *value : { "20260230", "20261315T090000Z", "20260315T250000Z", "20260315Z",
                                   "20260315T090000.5Z", "20260315T090000+0100", "2026-03-15T09:00:00", "2026031ß" })
            row(value, QLatin1StringView("DTSTART:") + QString::fromUtf8(value), "", "UTC");
        row("no value", "DTSTART", "", "UTC");
    }
    void startTimes()
    {
        QFETCH(QString, line);
        const Event event = eventOf(line.toUtf8());
        QTEST(shown(event.startTime, event.isAllDay), "expected");
        QTEST(event.timezone, "zone");
    }

    void endTimes_data()
    {
        columns<QString, QString>("lines", "expected"); // of an event at 09:00
        row("90 minutes", "DURATION:PT90M", "2026-03-15T10:30:00Z");
        row("duration first, days of a date", "DURATION:P2D\nDTSTART:20260315", "2026-03-17");
        row("negative duration", "DURATION:-PT1H", "");
        row("DTEND before DURATION", "DTEND:20260315T100000Z\nDURATION:PT5H", "2026-03-15T10:00:00Z");
        row("unreadable DTEND, DURATION", "DURATION:PT5H\nDTEND:soon", "");
        row("duration over a clock change", "DTSTART;TZID=Europe/Paris:20260329T013000\nDURATION:PT1H",
            "2026-03-29T01:30:00Z");
        row("beyond the last year", "DURATION:P999999999999999999999W", "");
        row("duration without a start", "DTSTART:soon\nDURATION:PT1H", "");
    }
    void endTimes()
    {
        QFETCH(QString, lines);
        const Event event = eventOf("DTSTART:20260315T090000Z\n" + lines.toUtf8());
        QCOMPARE(event.uid, u"u"_s);
        QTEST(shown(event.endTime.value_or(QDateTime()), event.isAllDay), "expected");
    }

    void exceptionDates_data()
    {
        columns<QString, QString>("lines", "expected");
        const QString timed = u"DTSTART;TZID=Europe/Paris:20260302T090000\n"_s;
        const QString allDay = u"DTSTART;VALUE=DATE:20260302\n"_s;
        row("winter and summer", timed + u"EXDATE;TZID=Europe/Paris:20260309T090000,20260330T090000"_s,
            R"(["20260309T080000Z","20260330T070000Z"])");
        row("several lines, before DTSTART",
            u"EXDATE:20260309T080000Z\n"_s + timed + u"EXDATE;TZID=\"W. Europe Standard Time\":20260316T090000"_s,
            R"(["20260309T080000Z","20260316T080000Z"])");
        row("floating", "DTSTART:20260302T090000\nEXDATE:20260309T090000", R"(["20260309T090000"])");
        // 09:00 in Paris, before and after the clock change of 29 March.
        row("dates of a timed series, before DTSTART",
            u"EXDATE;VALUE=DATE:20260309,20260330\n"_s + timed + u"EXDATE:20260316T080000Z"_s,
            R"(["20260309T080000Z","20260330T070000Z","20260316T080000Z"])");
        row("date of a series west of UTC",
            "DTSTART;TZID=America/Los_Angeles:20260302T200000\nEXDATE;VALUE=DATE:20260309", R"(["20260310T030000Z"])");
        row("date of a series with a zone and Z", "DTSTART;TZID=Asia/Tokyo:20260301T230000Z\nEXDATE:20260309",
            R"(["20260308T230000Z"])");
        row("date of a floating series", "DTSTART:20260302T090000\nEXDATE;VALUE=DATE:20260309",
            R"(["20260309T090000"])");
        row("date of a series without a start", "EXDATE;VALUE=DATE:20260309", R"(["20260309"])");
        row("midnights of an all-day series",
            u"EXDATE;TZID=Asia/Tokyo:20260309T000000\n"_s + allDay + u"EXDATE:20260316T000000Z"_s,
            R"(["20260309","20260316"])");
        row("unreadable ones left out", timed + u"EXDATE:,soon, 20260309T080000Z ,20261399"_s,
            R"(["20260309T080000Z"])");
    }
    void exceptionDates()
    {
        QFETCH(QString, lines);
        QTEST(eventOf(lines.toUtf8()).exceptionDates, "expected");
    }

    void reminders_data()
    {
        columns<QString, int, QString>("alarm", "minutes", "action"); // -1: none
        row("before", "ACTION:DISPLAY\nTRIGGER:-PT15M", 15, "display");
        row("at the start", "ACTION:DISPLAY\nTRIGGER:PT0S", 0, "display");
        row("long form", "TRIGGER;VALUE=DURATION:-P0DT1H10M0S\nACTION:display", 70, "display");
        row("audio", "ACTION:Audio\nTRIGGER;RELATED=START:-PT5M", 5, "audio");
        row("absurdly long before", "TRIGGER:-P999999999999W", std::numeric_limits<int>::max() / 60, "display");
        row("after", "ACTION:DISPLAY\nTRIGGER:PT15M", -1, "");
        row("before the end", "ACTION:DISPLAY\nTRIGGER;RELATED=end:-PT15M", -1, "");
        row("absolute", "ACTION:DISPLAY\nTRIGGER;VALUE=DATE-TIME:20260315T080000Z", -1, "");
        row("mail", "ACTION:EMAIL\nTRIGGER:-PT15M\nATTENDEE:mailto:a@e.org", -1, "");
    }
    void reminders()
    {
        QFETCH(QString, alarm);
        // Nothing in an alarm is the event's.
        const Event event = eventOf("DTSTART:20260315T090000Z\nSUMMARY:Lunch\nBEGIN:VALARM\nUID:alarm\nSUMMARY:Alarm\n"
                                    "DURATION:PT5M\n"
                                    + alarm.toUtf8() + "\nEND:VALARM\nLOCATION:Here");
        const bool isNone = event.reminders.isEmpty();
        const Reminder found = event.reminders.value(0);
        QTEST(isNone ? -1 : found.minutesBefore, "minutes");
        QTEST(isNone ? u""_s : found.action, "action");
        QVERIFY(!found.triggerTime && !event.endTime && event.attendees.isEmpty());
        QCOMPARE(event.uid + event.title + event.location, u"uLunchHere"_s);
    }

    void people()
    {
        const Event event = eventOf("ATTENDEE;CUTYPE=INDIVIDUAL;PARTSTAT=ACCEPTED;CN=\"Doe, Jane\";RSVP=TRUE:jane\n"
                                    "ATTENDEE;ROLE=OPT-PARTICIPANT;PARTSTAT=declined;RSVP=FALSE:MAILTO:bob@e.org\n"
                                    "ATTENDEE;ROLE=CHAIR;CUTYPE=ROOM;PARTSTAT=X-MAYBE:urn:uuid:1\n"
                                    "ATTENDEE;CN=Nobody:mailto:");
        QStringList found;
        for (const Attendee &a : event.attendees)
            found << QStringList{ a.email, a.name, a.role, a.status, a.type, QString::number(a.rsvp) }.join(u'|');
        QCOMPARE(found,
                 QStringList({ u"jane|Doe, Jane|required|accepted|INDIVIDUAL|1"_s, u"bob@e.org||optional|declined||0"_s,
                               u"urn:uuid:1||chair|needs-action|ROOM|0"_s }));

        const auto organizer = [](const QByteArray &line) {
            const Event invitation = eventOf("ORGANIZER" + line);
            return invitation.organizerEmail + u'|' + invitation.organizerName;
        };
        QCOMPARE(organizer(";CN=\"Doe, Jane\":MAILTO:jane"), u"jane|\"Doe, Jane\""_s);
        QCOMPARE(organizer(";SENT-BY=\"mailto:x@e.org\";CN=\"a;CN=b:c\":mailto:jane"), u"jane|\"a;CN=b:c\""_s);
        QCOMPARE(organizer(";CN=\"Jane:mailto:jane"), u"jane|\"Jane"_s); // never closed
        QCOMPARE(organizer(";CN;=x;:jane@e.org"), u"jane@e.org|"_s);
    }

    void keepsTheTextOfTheEvent()
    {
        const QByteArray text = "BEGIN:VCALENDAR\nMETHOD:PUBLISH\nBEGIN:VTIMEZONE\nTZID:X\nEND:VTIMEZONE\n"
                                "BEGIN:VEVENT\nUID:a\nsummary:fol\n ded\nX-ODD;P=\"1\":v\n\nATTACH:x\nEND:VEVENT\n"
                                "BEGIN:VEVENT\nUID:b\nEND:VEVENT\nEND:VCALENDAR\n";
        const QList<Event> events = ICalParser::parse(text);
        QCOMPARE(uidsOf(events), u"a b"_s);
        QCOMPARE(events[0].rawIcalendar,
                 u"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quillon//Calendar Desktop//EN\r\nBEGIN:VEVENT\r\n"
                 "UID:a\r\nsummary:folded\r\nX-ODD;P=\"1\":v\r\n\r\nATTACH:x\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n"_s);
        for (const Event &event : events)
            QCOMPARE(ICalParser::parse(event.rawIcalendar), QList<Event>{ event });
    }

    void eventsFoundInDamagedText_data()
    {
        columns<QByteArray, QString>("text", "uids");
        const QByteArray a = "BEGIN:VEVENT\nUID:a\nEND:VEVENT\n";
        const QByteArray b = "BEGIN:VEVENT\nUID:b\nEND:VEVENT\n";
        row("byte order mark, mixed line ends",
            QByteArray("\xEF\xBB\xBF" + QByteArray(a).replace("\n", "\r\n") + b.chopped(1)), "a b");
        row("cut off", QByteArray(a + b.chopped(3)), "a");
        row("cut off, then another", QByteArray(a.chopped(11) + b), "b");
        row("stray ends", QByteArray("END:VEVENT\n" + a + "END:VALARM\nEND:VEVENT\n" + b), "a b");
        row("alarm never closed", QByteArray("BEGIN:VEVENT\nUID:a\nBEGIN:VALARM\nUID:x\nEND:VEVENT\n" + b), "a b");
        row("alarm never opened", QByteArray("BEGIN:VEVENT\nEND:VALARM\nUID:a\nEND:VEVENT\n" + b), "a b");
        row("other components", QByteArray("BEGIN:VTODO\nUID:x\nEND:VTODO\n" + a), "a");
        row("binary", QByteArray(QByteArray("\0\xFF\xFE\x01:;\"\r\r\n ", 12).repeated(500) + "\n" + a), "a");
        row("begins with a fold", QByteArray(" x\n" + a), "a");
    }
    void eventsFoundInDamagedText()
    {
        QFETCH(QByteArray, text);
        QTEST(uidsOf(ICalParser::parse(text)), "uids");
    }

    void leavesOutWhatIsTooLarge()
    {
        constexpr int limit = 16 * 1024 * 1024;
        const auto found = [](const QByteArray &lines) {
            ICalParser::EventReader reader("BEGIN:VEVENT\r\nUID:a\r\n" + lines
                                           + "END:VEVENT\r\nBEGIN:VEVENT\r\nUID:b\r\nEND:VEVENT\r\n");
            return u"%1, %2 too large"_s.arg(uidsOf(reader.read(10, reader.size()))).arg(reader.skipped().tooLarge);
        };
        const QByteArray line = "X-LINE:" + QByteArray(1015, 'x') + "\r\n"; // 1 KiB
        QCOMPARE(found("X-LINE:" + QByteArray(limit, 'x') + "\r\n"), u"b, 1 too large"_s);
        QCOMPARE(found(line.repeated(limit / 1024)), u"b, 1 too large"_s);
        QCOMPARE(found(line.repeated(limit / 1024 - 1)), u"a b, 0 too large"_s);
    }

    void readsTheSameInSlices()
    {
        QByteArray text = "BEGIN:VCALENDAR\r\n";
        for (int i = 0; i < 20; ++i)
            text += "BEGIN:VEVENT\r\nUID:" + QByteArray::number(i)
                + "\r\nSUMMARY:a long \r\n line in \r\n three pieces\r\nEXDATE:20260316T080000Z\r\nEND:VEVENT\r\n";
        for (const auto &[maxEvents, maxBytes] : { std::pair(3, 1'000'000), std::pair(100, 1), std::pair(2, 100) }) {
            ICalParser::EventReader reader(text);
            QList<Event> events;
            while (!reader.atEnd()) {
                const qsizetype before = reader.bytesRead();
                const QList<Event> more = reader.read(maxEvents, maxBytes);
                QVERIFY(more.size() <= maxEvents && reader.bytesRead() > before);
                events.append(more);
            }
            QCOMPARE(events.size(), 20);
            QCOMPARE(events[19].title, u"a long line in three pieces"_s);
            QCOMPARE(events, ICalParser::parse(text));
        }
    }

    void aSliceEndsWithinJunk()
    {
        for (const char *piece : { "no event here\n", "x\n ", "BEGIN:VEVENT\n", "BEGIN:VEVENT\nEND:VEVENT\n" }) {
            ICalParser::EventReader reader(QByteArray(piece).repeated(20'000));
            QVERIFY2(reader.read(10, 1000).isEmpty(), piece);
            QVERIFY2(reader.bytesRead() >= 1000 && reader.bytesRead() < 1100, piece);
            QVERIFY2(reader.read(10, reader.size()).isEmpty() && reader.atEnd(), piece);
        }
    }

    void durationsAndTriggers()
    {
        const auto seconds = [](QStringView text) { return ICalParser::parseDurationSeconds(text); };
        QCOMPARE(seconds(u"P15DT5H0M20S"), qint64(15) * 86'400 + 5 * 3'600 + 20); // RFC 5545 §3.3.6
        QCOMPARE(seconds(u"P7W"), qint64(7) * 604'800);
        QCOMPARE(seconds(u"P1M"), qint64(30) * 86'400);
        QCOMPARE(seconds(u"P5X2D"), qint64(2) * 86'400); // an unknown letter takes its number
        for (const QStringView text : { u"", u"-PT1H", u"1H", u"PT5", u"P5H3S" })
            QCOMPARE(seconds(text), 0);
        QCOMPARE(ICalParser::parseTriggerMinutes(u" PT15M "), 15); // after counts as before
        QCOMPARE(ICalParser::parseTriggerMinutes(u"-PT119S"), 1);
        QCOMPARE(ICalParser::parseTriggerMinutes(u"20260315T090000Z"), -1);
    }

    void replacesTimes_data()
    {
        columns<QString, bool, QString>("text", "hasEnd", "expected"); // S and E for the lines of the new times
        row("first event only", "A|BEGIN:VEVENT|DTSTART;TZID=X:1|RRULE:R|dtend:2|END:VEVENT|BEGIN:VEVENT|DTSTART:3|",
            true, "A|BEGIN:VEVENT|S|RRULE:R|E|END:VEVENT|BEGIN:VEVENT|DTSTART:3|");
        row("end added", "BEGIN:VEVENT|DTSTART:1|EXDATE:2|END:VEVENT|", true, "BEGIN:VEVENT|S|EXDATE:2|E|END:VEVENT|");
        row("duration becomes an end", "BEGIN:VEVENT|DURATION:PT1H|DTSTART:1|END:VEVENT", true,
            "BEGIN:VEVENT|S|E|END:VEVENT");
        row("duration of an alarm stays", "BEGIN:VEVENT|DTSTART:1|BEGIN:VALARM|DURATION:PT5M|END:VALARM|END:VEVENT|",
            true, "BEGIN:VEVENT|S|BEGIN:VALARM|DURATION:PT5M|END:VALARM|E|END:VEVENT|");
        row("no end given", "BEGIN:VEVENT|DTSTART:1|DTEND:2|END:VEVENT|", false,
            "BEGIN:VEVENT|S|DTEND:20260315T090000Z|END:VEVENT|");
        row("dates stay, times are added", "BEGIN:VEVENT|DTSTART;VALUE=DATE:20260301|END:VEVENT|", true,
            "BEGIN:VEVENT|DTSTART;VALUE=DATE:20260301|S|E|END:VEVENT|");
        row("no event", "BEGIN:VTODO|DTSTART:1|END:VTODO|", true, "BEGIN:VTODO|DTSTART:1|END:VTODO|");
    }
    void replacesTimes()
    {
        QFETCH(QString, text);
        QFETCH(bool, hasEnd);
        QFETCH(QString, expected);
        const QDateTime start = QDateTime(QDate(2026, 3, 15), QTime(10, 0), QTimeZone("Europe/Paris"));
        const QDateTime end = hasEnd ? start.addSecs(3600) : QDateTime();
        expected.replace(u"|S|"_s, u"|DTSTART:20260315T090000Z|"_s).replace(u"|E|"_s, u"|DTEND:20260315T100000Z|"_s);
        expected.replace(u"|"_s, u"\r\n"_s);
        text.replace(u"|"_s, u"\n"_s);
        const QString replaced = ICalParser::replaceVeventDtstartDtend(text, start, end);
        QCOMPARE(replaced.contains(u'\r') ? replaced : QString(replaced).replace(u"\n"_s, u"\r\n"_s), expected);
        QCOMPARE(ICalParser::replaceVeventDtstartDtend(text, QDateTime(), end), text);
    }
};

QTEST_GUILESS_MAIN(tst_ICalParser)
#include "tst_ICalParser.moc"
