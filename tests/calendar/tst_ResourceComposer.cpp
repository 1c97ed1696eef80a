#include "calendar/ICalParser.h"
#include "calendar/InstanceName.h"
#include "calendar/ResourceComposer.h"
#include "calendar/TimeZones.h"
#include "support/TestData.h"

#include <QFile>
#include <QTimeZone>

#include <functional>

using namespace Qt::StringLiterals;
using ResourceComposer::Composed;

namespace {

using Edit = std::function<void(Event &)>;
using TaskEdit = std::function<void(Task &)>;

constexpr int Master = 0;
constexpr int FirstOverride = 1;

/// What another program wrote: with properties and alarms that have no column, and a zone of its own.
QByteArray foreignText()
{
    QFile file(QStringLiteral(QUILLON_TEST_DATA "/foreign-series.ics"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace("\n", "\r\n") : QByteArray();
}

ResourceComposer::Context context()
{
    return { .now = utc("2026-02-01T12:00"), .ownAddresses = { u"ME@x.org"_s } };
}

Composed compose(const QByteArray &text, const QList<Event> &changed, const QList<Event> &removed = {})
{
    return ResourceComposer::composeEvents(text, changed, removed, context());
}

bool isStamp(const QByteArray &line)
{
    return line == "DTSTAMP:20260201T120000Z" || line == "LAST-MODIFIED:20260201T120000Z"
        || line.startsWith("SEQUENCE:") || line == "DTSTAMP:20260101T000000Z";
}

/// "-removed" and "+added" physical lines, but for stamps, by the longest common subsequence.
QString difference(const QByteArray &before, const QByteArray &after)
{
    const QByteArrayList a = before.split('\n');
    const QByteArrayList b = after.split('\n');
    std::vector<std::vector<int>> common(size_t(a.size()) + 1, std::vector<int>(size_t(b.size()) + 1));
    for (auto i = size_t(a.size()); i-- > 0;) {
        for (auto j = size_t(b.size()); j-- > 0;)
            common[i][j] = a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
    QStringList lines;
    const auto tell = [&lines](QChar sign, const QByteArray &line) {
        if (!isStamp(line.trimmed()))
            lines.append(sign + QString::fromUtf8(line.trimmed()));
    };
    size_t i = 0;
    size_t j = 0;
    while (i < size_t(a.size()) || j < size_t(b.size())) {
        if (i < size_t(a.size()) && j < size_t(b.size()) && a[i] == b[j]) {
            ++i;
            ++j;
        } else if (j == size_t(b.size()) || (i < size_t(a.size()) && common[i + 1][j] >= common[i][j + 1])) {
            tell(u'-', a[i++]);
        } else {
            tell(u'+', b[j++]);
        }
    }
    return lines.join(u"\n");
}

/// The event with what a server hears of it, in one form.
Event told(Event event)
{
    event.rawIcalendar.clear();
    event.created = event.lastModified = {};
    event.sequence = 0;
    event.startTime = event.startTime.toUTC();
    if (event.endTime)
        event.endTime = event.endTime->toUTC();
    if (event.isAllDay)
        event.timezone = u"UTC"_s;
    QStringList exceptions;
    for (const InstanceName &name : InstanceName::listFrom(event.exceptionDates))
        exceptions.append(QString::number(name.startMs));
    exceptions.sort();
    event.exceptionDates = exceptions.join(u',');
    std::ranges::sort(event.reminders, {}, [](const Reminder &r) { return std::pair(r.minutesBefore, r.action); });
    std::ranges::sort(event.attendees, {}, &Attendee::email);
    return event;
}

QList<Event> told(QList<Event> events)
{
    std::ranges::sort(events, {}, &Event::recurrenceId);
    for (Event &event : events)
        event = told(event);
    return events;
}

/// What was composed reads as the rows, and there is nothing to add to it.
void verifySettled(const Composed &composed, const QList<Event> &rows)
{
    QCOMPARE(told(ICalParser::parse(composed.text)), told(rows));
    const Composed again = compose(composed.text, rows);
    QCOMPARE(again.text, composed.text);
    QVERIFY(!again.isChanged);
    for (const QByteArray &line : composed.text.split('\n'))
        QVERIFY2(line.isEmpty() || (line.endsWith('\r') && line.size() <= 76), line.constData());
}

Event single(const QString &zone, const QString &start, const QString &end)
{
    const auto at = [&zone](const QString &text) {
        return QDateTime(utc(text).date(), utc(text).time(), QTimeZone(zone.toLatin1()));
    };
    Event event;
    event.uid = u"new"_s;
    event.title = u"T"_s;
    event.timezone = zone;
    event.startTime = at(start);
    event.endTime = at(end);
    return event;
}

Reminder reminder(int minutesBefore, const QString &action = u"display"_s)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    result.action = action;
    return result;
}

Event master(const QString &zone, const QString &start, const QString &end, const QString &rule)
{
    Event series = single(zone, start, end);
    series.recurrenceRule = rule;
    return series;
}

Event overrideOf(const Event &master, const QString &recurrenceId, const QDateTime &start)
{
    Event row = master;
    row.recurrenceRule.clear();
    row.exceptionDates.clear();
    row.recurrenceId = recurrenceId;
    row.masterEventUid = master.uid;
    row.startTime = start;
    row.endTime = start.addSecs(master.startTime.secsTo(*master.endTime));
    row.title = u"other"_s;
    return row;
}

QByteArray calendar(const QByteArray &lines)
{
    return QByteArray("BEGIN:VCALENDAR\nVERSION:2.0\n" + lines + "END:VCALENDAR\n").replace("\n", "\r\n");
}

qsizetype count(const Composed &composed, const char *text)
{
    return composed.text.count(text);
}

}

class tst_ResourceComposer : public QObject {
    Q_OBJECT

private slots:
    void changesOnlyTheLinesOfAChange_data()
    {
        columns<int, Edit, QString>("row", "edit", "expected");
        const auto change = [](const char *name, int index, const Edit &edit, const QString &expected) {
            row(name, index, edit, expected);
        };
        change("nothing that a server hears of", Master,
               [](Event &e) {
                   e.color = u"#fff"_s;
                   e.sequence = 9;
                   e.etag = u"1"_s;
                   e.attendees[0].email = u"ANN@x.org"_s;
                   e.startTime = e.startTime.toUTC();
                   e.exceptionDates = u"[\"20260330T070000Z\",\"20260309T080000Z\",\"20260316T080000Z\"]"_s;
                   e.recurrenceRule = u"COUNT=10;FREQ=WEEKLY"_s;
                   e.endTime = e.endTime->toUTC();
               },
               {});
        change(
            "title", Master, [](Event &e) { e.title = u"Neu; \\,"_s; },
            u"-SUMMARY;LANGUAGE=de:Besprechung\n+SUMMARY;LANGUAGE=de:Neu\\; \\\\\\,"_s);
        change(
            "description", Master, [](Event &e) { e.description = u"a\r\nb"_s; },
            u"-DESCRIPTION;ALTREP=\"cid:x\":Old\\, and\n-folded\n+DESCRIPTION:a\\nb"_s);
        change(
            "longer", Master, [](Event &e) { e.endTime = e.endTime->addSecs(1800); },
            u"-DURATION:PT1H\n+DTEND;TZID=W. Europe Standard Time:20260302T103000"_s);
        change(
            "no end", FirstOverride, [](Event &e) { e.endTime.reset(); },
            u"-DTEND;TZID=W. Europe Standard Time:20260323T120000"_s);
        change(
            "start, in the other program's zone", FirstOverride,
            [](Event &e) { e.startTime = utc("2026-03-23T09:30"); },
            u"-DTSTART;TZID=W. Europe Standard Time:20260323T110000\n"
            "+DTSTART;TZID=W. Europe Standard Time:20260323T103000"_s);
        change(
            "one exception less", Master,
            [](Event &e) { e.exceptionDates = u"[\"20260316T080000Z\",\"20260330T070000Z\"]"_s; },
            u"-EXDATE;TZID=W. Europe Standard Time:20260309T090000,20260316T090000\n"
            "+EXDATE;TZID=W. Europe Standard Time:20260316T090000"_s);
        change(
            "one exception more", Master,
            [](Event &e) { e.exceptionDates.replace(u"]"_s, u",\"20260413T070000Z\"]"_s); },
            u"+EXDATE;TZID=W. Europe Standard Time:20260413T090000"_s);
        change(
            "rule", Master, [](Event &e) { e.recurrenceRule = u"FREQ=WEEKLY;UNTIL=20260420"_s; },
            u"-RRULE:FREQ=WEEKLY;COUNT=10\n+RRULE:FREQ=WEEKLY;UNTIL=20260420T000000Z"_s);
        change(
            "url", Master, [](Event &e) { e.eventUrl = u"https://n\r\nATTENDEE:x"_s; },
            u"-URL:https://example.com/old\n+URL:https://nATTENDEE:x"_s);
        change(
            "call", Master, [](Event &e) { e.conferenceUrl = u"https://meet.example/x"_s; },
            u"+CONFERENCE;VALUE=URI:https://meet.example/x"_s);
        change(
            "organizer's name", Master, [](Event &e) { e.organizerName = u"Chief"_s; },
            u"-ORGANIZER;CN=\"Boss, The\";SENT-BY=\"mailto:s@x.org\":MAILTO:boss@x.org\n"
            "+ORGANIZER;CN=Chief;SENT-BY=\"mailto:s@x.org\":MAILTO:boss@x.org"_s);
        change(
            "other organizer", Master, [](Event &e) { e.organizerEmail = u"urn:x:1"_s; },
            u"-ORGANIZER;CN=\"Boss, The\";SENT-BY=\"mailto:s@x.org\":MAILTO:boss@x.org\n"
            "+ORGANIZER;CN=\"Boss, The\":urn:x:1"_s);
        change("another's answer", Master, [](Event &e) { e.attendees[0].status = u"declined"_s; }, {});
        change(
            "own answer", Master, [](Event &e) { e.attendees[1].status = u"tentative"_s; },
            u"-ATTENDEE;CN=Me;PARTSTAT=NEEDS-ACTION;RSVP=TRUE:mailto:me@x.org\n"
            "+ATTENDEE;CN=Me;PARTSTAT=TENTATIVE;RSVP=TRUE:mailto:me@x.org"_s);
        change(
            "role", Master, [](Event &e) { e.attendees[0].role = u"optional"_s; },
            u"-ATTENDEE;CN=Ann;PARTSTAT=ACCEPTED;X-NUM-GUESTS=0:mailto:Ann@x.org\n"
            "+ATTENDEE;CN=Ann;PARTSTAT=ACCEPTED;X-NUM-GUESTS=0;ROLE=OPT-PARTICIPANT:mailt\n+o:Ann@x.org"_s);
        change(
            "one guest less", Master, [](Event &e) { e.attendees.removeFirst(); },
            u"-ATTENDEE;CN=Ann;PARTSTAT=ACCEPTED;X-NUM-GUESTS=0:mailto:Ann@x.org"_s);
        change(
            "one guest more", Master,
            [](Event &e) {
                Attendee guest;
                guest.email = u"bob@x.org"_s;
                guest.name = u"Bob \"B\", Jr"_s;
                guest.type = u"ROOM"_s;
                guest.rsvp = true;
                e.attendees.append(guest);
            },
            u"+ATTENDEE;CN=\"Bob 'B', Jr\";CUTYPE=ROOM;ROLE=REQ-PARTICIPANT;PARTSTAT=NEEDS-A\n+CTION;RSVP=TRUE:mailto:bob@x.org"_s);
        change(
            "no linked task", Master, [](Event &e) { e.relatedToUid.clear(); }, u"-RELATED-TO:task-1"_s);
        change(
            "no reminder", Master, [](Event &e) { e.reminders.clear(); },
            u"-ACTION:DISPLAY\n-DESCRIPTION:soon\n-TRIGGER:-PT900S\n-X-ALARM:1\n-END:VALARM\n-BEGIN:VALARM"_s);
        change(
            "a reminder more", Master, [](Event &e) { e.reminders.append(reminder(0)); },
            u"+BEGIN:VALARM\n+ACTION:DISPLAY\n+DESCRIPTION:Besprechung\n+TRIGGER:PT0S\n+END:VALARM"_s);
    }
    void changesOnlyTheLinesOfAChange()
    {
        QFETCH(int, row);
        QFETCH(Edit, edit);
        QFETCH(QString, expected);
        const QByteArray text = foreignText();
        QList<Event> rows = ICalParser::parse(text);
        QCOMPARE(rows.size(), 3);
        edit(rows[row]);
        const Composed composed = compose(text, rows);
        QCOMPARE(difference(text, composed.text), expected);
        QCOMPARE(composed.isChanged, !expected.isEmpty());
        const QList<Event> stamped = ICalParser::parse(composed.text);
        for (int i = 0; i < rows.size(); ++i) {
            const int read = i == Master ? 4 : 0;
            QCOMPARE(stamped[i].sequence, composed.isChanged && i == row ? std::max(read + 1, rows[i].sequence) : read);
        }
        QVERIFY(!compose(composed.text, rows).isChanged);
    }

    void newResourcesReadAsTheirRecords_data()
    {
        columns<QList<Event>, QStringList>("rows", "lines");
        const auto rows = [](const char *name, const QList<Event> &events, const QStringList &lines) {
            row(name, events, lines);
        };
        Event second = single(u"America/Los_Angeles"_s, u"2026-11-01T00:30"_s, u"2026-11-01T00:45"_s);
        second.startTime = utc("2026-11-01T08:45"); // 01:45 there, the first of two
        second.endTime = utc("2026-11-01T09:15"); // 01:15 there, the second of two
        rows("end in the second of two equal hours", { second },
             { u"DTSTART;TZID=America/Los_Angeles:20261101T014500"_s, u"DTEND:20261101T091500Z"_s });
        Event holiday = master(u"UTC"_s, u"2026-12-24"_s, u"2026-12-27"_s, u"FREQ=YEARLY;UNTIL=20301224"_s);
        holiday.isAllDay = true;
        holiday.exceptionDates = u"[\"20281224\"]"_s;
        rows("all-day series with an override",
             { overrideOf(holiday, u"20271224T000000Z"_s, utc("2027-12-23")), holiday },
             { u"DTSTART;VALUE=DATE:20261224"_s, u"DTEND;VALUE=DATE:20261227"_s, u"EXDATE;VALUE=DATE:20281224"_s,
               u"RRULE:FREQ=YEARLY;UNTIL=20301224"_s, u"RECURRENCE-ID;VALUE=DATE:20271224"_s });
        Event standup = master(u"Pacific/Kiritimati"_s, u"2026-03-02T09:00"_s, u"2026-03-02T09:15"_s,
                               u"FREQ=WEEKLY;UNTIL=20270101T000000Z"_s);
        standup.exceptionDates = u"[\"20260308T190000Z\"]"_s;
        rows("series of the farthest zone",
             { standup, overrideOf(standup, u"20260315T190000Z"_s, utc("2026-03-16T01:00")) },
             { u"TZID:Pacific/Kiritimati"_s, u"EXDATE;TZID=Pacific/Kiritimati:20260309T090000"_s,
               u"RECURRENCE-ID;TZID=Pacific/Kiritimati:20260316T090000"_s });
        Event full = single(u"Europe/Berlin"_s, u"2026-03-02T09:00"_s, u"2026-03-02T09:00"_s);
        full.uid = u"a,b\nc"_s;
        full.title = u"\u00e4\u20ac\U0001f600"_s.repeated(40);
        full.description = u"two\nlines, \\n \\"_s;
        full.location = u" room; 1 "_s;
        full.status = u"tentative"_s;
        full.eventUrl = u"https://x.org/a,b;c"_s;
        full.organizerEmail = u"boss@x.org"_s;
        full.organizerName = u"\"Boss: x\""_s;
        full.relatedToUid = u"t;1"_s;
        full.reminders = { reminder(10), reminder(10), reminder(0, u"audio"_s) };
        full.attendees.resize(2);
        full.attendees[0].email = u"a@x.org"_s;
        full.attendees[0].role = u"chair"_s;
        full.attendees[0].status = u"accepted"_s;
        full.attendees[1].email = u"urn:uuid:1"_s;
        full.attendees[1].name = u"N\u00f6"_s;
        full.attendees[1].role = u"optional"_s;
        full.attendees[1].rsvp = true;
        rows("all columns", { full }, { u"STATUS:TENTATIVE"_s });
        Event open = single(u"UTC"_s, u"2026-03-02T09:00"_s, u"2026-03-02T10:00"_s);
        open.endTime.reset();
        rows("no end", { open }, { u"DTSTART:20260302T090000Z"_s });
    }
    void newResourcesReadAsTheirRecords()
    {
        QFETCH(QList<Event>, rows);
        QFETCH(QStringList, lines);
        const Composed composed = compose({}, rows);
        QVERIFY(composed.isChanged);
        QVERIFY(composed.text.startsWith(
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quillon//Calendar Desktop//EN\r\nBEGIN:V"));
        for (const QString &line : lines)
            QVERIFY2(composed.text.contains("\r\n" + line.toUtf8() + "\r\n"), composed.text.constData());
        verifySettled(composed, rows);
    }

    void takesTheTextThatANewRowCameWith()
    {
        Event row = single(u"UTC"_s, u"2026-03-02T09:00"_s, u"2026-03-02T10:00"_s);
        row.rawIcalendar = QString::fromUtf8(
            calendar("METHOD:REQUEST\nBEGIN:VEVENT\nUID:new\nSUMMARY:Old\nX-A:1\nATTACH;TZID=Own:" + QByteArray(99, 'x')
                     + "\nDTSTART:20260302T090000Z\nDTEND:20260302T100000Z\nEND:VEVENT\n"
                       "BEGIN:VTIMEZONE\nTZID:Own\nX-OWN:1\nEND:VTIMEZONE\n"));
        const Composed composed = compose({}, { row });
        QVERIFY(composed.text.contains("\r\nSUMMARY:T\r\nX-A:1\r\nATTACH;TZID=Own:xxx"));
        QVERIFY(composed.text.contains("\r\nTZID:Own\r\nX-OWN:1\r\n"));
        QVERIFY(!composed.text.contains("METHOD"));
        verifySettled(composed, { row });
        row.uid = u"its tail"_s;
        const Composed tail = compose({}, { row });
        QVERIFY(tail.text.contains("\r\nUID:its tail\r\nSUMMARY:T\r\nX-A:1\r\n"));
        verifySettled(tail, { row });
    }

    void movesASeriesToAnotherForm()
    {
        Event series = master(u"Europe/Berlin"_s, u"2026-03-02T09:00"_s, u"2026-03-02T10:00"_s,
                              u"FREQ=DAILY;UNTIL=20260320T080000Z"_s);
        series.exceptionDates = u"[\"20260304T080000Z\"]"_s;
        const QByteArray text = compose({}, { series }).text;
        const Event moved = overrideOf(series, u"20260309T080000Z"_s, utc("2026-03-09T12:00"));
        Event elsewhere = series;
        elsewhere.timezone = u"Asia/Kolkata"_s;
        const QByteArray abroad = compose(compose(text, { moved }).text, { elsewhere }).text;
        for (const char *line : { "DTSTART", "EXDATE", "RECURRENCE-ID" })
            QVERIFY2(abroad.contains(QByteArray("\r\n") + line + ";TZID=Asia/Kolkata:2026"), abroad.constData());
        verifySettled(compose(abroad, { elsewhere, moved }), { elsewhere, moved });

        series.isAllDay = true;
        series.startTime = utc("2026-03-03");
        series.endTime = utc("2026-03-04");
        series.recurrenceRule = u"FREQ=DAILY;UNTIL=20260320"_s;
        const qint64 excludedMs = utc("2026-03-05").toMSecsSinceEpoch();
        series.exceptionDates = u"[\"%1\"]"_s.arg(InstanceName{ excludedMs, InstanceName::Form::Local }.text());
        verifySettled(compose(text, { series }), { series });
        series.recurrenceRule.clear();
        series.exceptionDates.clear();
        verifySettled(compose(text, { series }), { series });
    }

    void aSeriesThatFloatsIsOnTheMachinesClock()
    {
        const QByteArray text = calendar("BEGIN:VEVENT\nUID:u\nDTSTART:20260302T090000\nDTEND:20260302T100000\n"
                                         "RRULE:FREQ=WEEKLY\nEXDATE:20260309T090000\nEND:VEVENT\n");
        Event row = ICalParser::parse(text).value(0);
        row.timezone = TimeZones::systemName();
        row.startTime = row.startTime.toTimeZone(QTimeZone(row.timezone.toLatin1()));
        QVERIFY(!compose(text, { row }).isChanged);
        row.startTime = row.startTime.addSecs(3600);
        QCOMPARE(difference(text, compose(text, { row }).text),
                 u"-DTSTART:20260302T090000\n+DTSTART:20260302T100000"_s);
    }

    void aMoveKeepsTheFormOfTheTimes_data()
    {
        columns<QString, QString>("times", "later"); // by an hour
        row("floating", u"DTSTART:20260302T090000\nDTEND:20260302T100000"_s,
            u"DTSTART:20260302T100000\nDTEND:20260302T110000"_s);
        row("zone and UTC at once", u"DTSTART;TZID=Europe/Berlin:20260302T080000Z\nDURATION:PT1H"_s,
            u"DTSTART;TZID=Europe/Berlin:20260302T100000\nDTEND;TZID=Europe/Berlin:20260302T110000"_s);
        row("parameters", u"DTSTART;X-A=1;TZID=\"Europe/Berlin\";VALUE=DATE-TIME:20260302T090000"_s,
            u"DTSTART;X-A=1;TZID=\"Europe/Berlin\";VALUE=DATE-TIME:20260302T100000"_s);
        row("a flight", u"DTSTART;TZID=No/Where:20260302T090000\nDTEND;TZID=Asia/Kolkata:20260302T233000"_s,
            u"DTSTART;TZID=No/Where:20260302T100000\nDTEND;TZID=Asia/Kolkata:20260303T003000"_s);
        row("after the last year that zones list", u"DTSTART;TZID=Europe/Berlin:20400702T090000"_s,
            u"DTSTART;TZID=Europe/Berlin:20400702T100000"_s);
    }
    void aMoveKeepsTheFormOfTheTimes()
    {
        QFETCH(QString, times);
        QFETCH(QString, later);
        Event row = ICalParser::parse(calendar("BEGIN:VEVENT\nUID:u\n" + times.toUtf8() + "\nEND:VEVENT\n")).value(0);
        row.startTime = row.startTime.addSecs(3600);
        if (row.endTime)
            row.endTime = row.endTime->addSecs(3600);
        const Composed composed =
            compose(calendar("BEGIN:VEVENT\nUID:u\n" + times.toUtf8() + "\nEND:VEVENT\n"), { row });
        QVERIFY2(composed.text.contains("UID:u\r\n" + later.toUtf8().replace("\n", "\r\n") + "\r\n"),
                 composed.text.constData());
        verifySettled(composed, { row });
    }

    void addsAndRemovesOverrides()
    {
        const QByteArray text = foreignText();
        const QList<Event> rows = ICalParser::parse(text);
        const Composed without = compose(text, { rows[Master] }, { rows[FirstOverride] });
        const qsizetype begin = text.indexOf("BEGIN:VEVENT", text.indexOf("BEGIN:VEVENT") + 1);
        const qsizetype end = text.indexOf("BEGIN:VEVENT", begin + 1);
        QCOMPARE(without.text, QByteArray(text).remove(begin, end - begin));

        Event added = overrideOf(rows[Master], u"20260420T070000Z"_s, utc("2026-04-20T12:00"));
        added.attendees.clear();
        added.rawIcalendar.clear();
        const Composed with = compose(text, { added });
        QVERIFY(with.text.contains("\r\nRECURRENCE-ID;TZID=W. Europe Standard Time:20260420T090000\r\n"));
        QVERIFY(!difference(text, with.text).contains(u"\n-"));
        QVERIFY(difference(text, with.text).contains(u"DTSTART;TZID=W. Europe Standard Time:20260420T140000"));
        for (const char *line :
             { "CLASS:PRIVATE", "CATEGORIES:A,B", "X-FOO;X-BAR", "ACTION:EMAIL", "ATTENDEE;CN=Nobody:" })
            QCOMPARE(count(with, line), 2);
        QCOMPARE(count(with, "ATTENDEE;CN=Ann"), 1);
        QCOMPARE(told(ICalParser::parse(with.text)), told(rows + QList<Event>{ added }));

        const Composed orphans = compose(text, {}, { rows[Master] });
        QCOMPARE(told(ICalParser::parse(orphans.text)), told(rows.mid(1)));
        const Composed empty = compose(text, {}, rows);
        QVERIFY(empty.isChanged && empty.text.isEmpty());
    }

    /// A series that moves takes its overrides along, which then have each other's former names.
    void renamesOverrides()
    {
        QList<Event> rows = ICalParser::parse(foreignText());
        rows[1].recurrenceId = rows[2].recurrenceId;
        rows[2].recurrenceId = u"20260413T070000Z"_s;
        const Composed composed = compose(foreignText(), rows);
        QCOMPARE(difference(foreignText(), composed.text),
                 u"-RECURRENCE-ID;TZID=W. Europe Standard Time:20260323T090000\n"
                 "+RECURRENCE-ID;TZID=W. Europe Standard Time:20260406T090000\n"
                 "-RECURRENCE-ID;TZID=W. Europe Standard Time:20260406T090000\n"
                 "+RECURRENCE-ID;TZID=W. Europe Standard Time:20260413T090000"_s);
        QVERIFY(!compose(composed.text, rows).isChanged);
    }

    void survivesOddTexts()
    {
        const Event row = single(u"UTC"_s, u"2026-03-02T09:00"_s, u"2026-03-02T10:00"_s);
        for (const QByteArray &text : { "x"_ba, "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:new\r\nEND:VCALENDAR\r\n"_ba,
                                        "BEGIN:VEVENT\r\nUID:new\r\nEND:VEVENT\r\n"_ba, "END:VCALENDAR\r\n"_ba,
                                        "BEGIN:VCALENDAR\r\n"_ba.repeated(100'000) })
            verifySettled(compose(text, { row }), { row });
        const QByteArray odd = "\xEF\xBB\xBF"
                               "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:new\nX-A:\xFF\n \xC3\nDTSTART;VALUE=DATE:20260301\n"
                               "DTSTART:20260302T090000Z\nX-LONG:"
            + QByteArray(99, 'x')
            + "\n"
              "DTEND:20260302T100000Z\n\nSUMMARY:U\nEND:VEVENT\nEND:VCALENDAR";
        const Composed composed = compose(odd, { row });
        QVERIFY(composed.text.contains("\r\nX-A:\xFF\r\n \xC3\r\nDTSTART:20260302T090000Z\r\nX-LONG:xxx"));
        verifySettled(composed, { row });
        Event broken;
        broken.uid = u"b\r\nBEGIN:VALARM"_s;
        broken.organizerEmail = u"a\nATTENDEE:b"_s;
        broken.recurrenceRule = u"FREQ=DAILY\nX:1"_s;
        broken.timezone = u"No\nWhere"_s;
        broken.status = u"x\ny"_s;
        const Composed injected = compose({}, { broken });
        for (const char *line : { "\r\nBEGIN:VALARM", "\r\nATTENDEE", "\r\nX:1", "\r\nY" })
            QCOMPARE(count(injected, line), 0);
        QVERIFY(!compose(injected.text, { broken }).isChanged);
    }

    void tasksChangeOnlyTheLinesOfAChange_data()
    {
        columns<TaskEdit, QString>("edit", "expected");
        const auto change = [](const char *name, const TaskEdit &edit, const QString &expected) {
            row(name, edit, expected);
        };
        change("nothing that a server hears of",
               [](Task &t) {
                   t.color = u"#fff"_s;
                   t.dueDate = t.dueDate->toUTC();
               },
               {});
        change(
            "done",
            [](Task &t) {
                t.status = u"completed"_s;
                t.percentComplete = 100;
                t.completedDate = utc("2026-03-01T08:00");
            },
            u"-STATUS:IN-PROCESS\n+STATUS:COMPLETED\n-PERCENT-COMPLETE:40\n+PERCENT-COMPLETE:100\n"
            "+COMPLETED:20260301T080000Z"_s);
        change(
            "due on a day",
            [](Task &t) {
                t.dueIsDateOnly = true;
                t.dueDate = utc("2026-03-16");
            },
            u"-DUE;TZID=Europe/Paris:20260315T090000\n+DUE;VALUE=DATE:20260316"_s);
        change(
            "start at an hour",
            [](Task &t) {
                t.startIsDateOnly = false;
                t.startDate = utc("2026-03-14T08:00");
            },
            u"-DTSTART;VALUE=DATE:20260314\n+DTSTART;TZID=Europe/Paris:20260314T090000"_s);
        change(
            "no dates",
            [](Task &t) {
                t.dueDate.reset();
                t.startDate.reset();
                t.reminders.clear();
            },
            u"-DTSTART;VALUE=DATE:20260314\n-DUE;TZID=Europe/Paris:20260315T090000\n"
            "-BEGIN:VALARM\n-ACTION:EMAIL\n-DESCRIPTION:d\n-TRIGGER;RELATED=END:-PT30M\n-END:VALARM"_s);
        change(
            "categories",
            [](Task &t) {
                t.categories = QStringList{ u"b"_s, u"c;d"_s };
            },
            u"-CATEGORIES:a, b\n+CATEGORIES:b,c\\;d"_s);
        change(
            "no categories", [](Task &t) { t.categories.clear(); }, u"-CATEGORIES:unread\n-CATEGORIES:a, b"_s);
        change(
            "other parent", [](Task &t) { t.parentTaskUid = u"p2"_s; },
            u"-RELATED-TO;RELTYPE=PARENT:p1\n+RELATED-TO;RELTYPE=PARENT:p2"_s);
        change(
            "place and kind",
            [](Task &t) {
                t.sortOrder = 0;
                t.itemType = u"reminder"_s;
                t.repeatMode = u"fromCompletionDate"_s;
                t.priority = 0;
            },
            u"-PRIORITY:2\n-X-QUILLON-SORT-ORDER:5\n"
            "+X-QUILLON-REPEAT-MODE:fromCompletionDate\n+X-QUILLON-ITEM-TYPE:reminder"_s);
        change(
            "reminder", [](Task &t) { t.reminders[0].minutesBefore = 10; },
            u"-TRIGGER;RELATED=END:-PT30M\n+TRIGGER;RELATED=END:-PT10M"_s);
    }
    void tasksChangeOnlyTheLinesOfAChange()
    {
        QFETCH(TaskEdit, edit);
        QFETCH(QString, expected);
        const QByteArray text =
            calendar("BEGIN:VTODO\nUID:t\nDTSTAMP:20260101T000000Z\nSUMMARY:Buy\nSTATUS:IN-PROCESS\nPRIORITY:2\n"
                     "PERCENT-COMPLETE:40\nDTSTART;VALUE=DATE:20260314\nDUE;TZID=Europe/Paris:20260315T090000\n"
                     "RRULE:FREQ=WEEKLY\nCATEGORIES:unread\nCATEGORIES:a, b\nRELATED-TO;RELTYPE=SIBLING:s\n"
                     "RELATED-TO;RELTYPE=PARENT:p1\nX-QUILLON-SORT-ORDER:5\nX-APPLE-SORT-ORDER:1\n"
                     "BEGIN:VALARM\nACTION:EMAIL\nDESCRIPTION:d\nTRIGGER;RELATED=END:-PT30M\nEND:VALARM\nEND:VTODO\n"
                     "BEGIN:VTODO\nUID:t\nRECURRENCE-ID:20260322T080000Z\nSUMMARY:once\nEND:VTODO\n");
        Task task = ICalParser::parseTasks(text).value(0);
        edit(task);
        const Composed composed = ResourceComposer::composeTask(text, task, context());
        QCOMPARE(difference(text, composed.text), expected);
        QCOMPARE(composed.isChanged, !expected.isEmpty());
        QVERIFY(!ResourceComposer::composeTask(composed.text, task, context()).isChanged);

        // As a new one it reads the same, and its changed instance comes along.
        const Composed fresh = ResourceComposer::composeTask({}, task, context());
        QVERIFY(fresh.text.contains("SUMMARY:once"));
        Task read = ICalParser::parseTasks(fresh.text).value(0);
        read.rawIcalendar = task.rawIcalendar;
        read.lastModified = task.lastModified;
        read.color = task.color;
        if (!task.dueDate)
            read.dueIsDateOnly = task.dueIsDateOnly;
        QCOMPARE(read, task);
    }
};

QTEST_GUILESS_MAIN(tst_ResourceComposer)
#include "tst_ResourceComposer.moc"
