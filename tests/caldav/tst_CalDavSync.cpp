// One or two devices and a server that lives in the test: what is where after a sync.

#include "calendar/ICalParser.h"
#include "calendar/services/RecurringEdits.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "storage/TaskRepository.h"
#include "support/FakeCalDav.h"
#include "support/SyncDevice.h"
#include "support/TestData.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray calendarText(const QByteArray &components)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Phone//EN\r\n" + components + "END:VCALENDAR\r\n";
}

QByteArray eventText(const QByteArray &uid, const QByteArray &title, const QByteArray &more = {})
{
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + title
        + "\r\nDTSTART:20260315T090000Z\r\nDTEND:20260315T100000Z\r\n" + more + "END:VEVENT\r\n";
}

QByteArray taskText(const QByteArray &uid, const QByteArray &title, const QByteArray &more = {})
{
    return "BEGIN:VTODO\r\nUID:" + uid + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + title + "\r\n" + more
        + "END:VTODO\r\n";
}

constexpr char Foreign[] = "X-PHONE-COLOR:7\r\nATTACH:https://example.com/plan.pdf\r\nCLASS:PRIVATE\r\n";

QByteArray series(const QByteArray &masterTitle, const QByteArray &overrideTitle)
{
    return calendarText(eventText("weekly", masterTitle, "RRULE:FREQ=WEEKLY;COUNT=5\r\n")
                        + "BEGIN:VEVENT\r\nUID:weekly\r\nDTSTAMP:20260101T000000Z\r\nRECURRENCE-ID:20260322T090000Z\r\n"
                          "SUMMARY:"
                        + overrideTitle + "\r\nDTSTART:20260322T110000Z\r\nDTEND:20260322T120000Z\r\nEND:VEVENT\r\n");
}

const QString SecondWeek = u"20260322T090000Z"_s;

}

class tst_CalDavSync : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_server = std::make_unique<FakeCalDav>();
        m_phone = std::make_unique<SyncDevice>(m_server->calendarUrl());
    }

    void bringsAndKeepsWhatTheServerHas()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup", "COLOR:red\r\n")));
        m_server->store("b.ics", series("Review", "Late review"));
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent", "DUE;VALUE=DATE:20260401\r\n")));
        m_server->store("broken.ics", "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:x\r\nSUMMARY:no start\r\nEND:VEVENT\r\n");
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->lastCount(), 4);
        QCOMPARE(m_phone->event(u"a"_s).title, u"Standup"_s);
        QCOMPARE(m_phone->event(u"weekly"_s, SecondWeek).title, u"Late review"_s);
        QCOMPARE(m_phone->task(u"t"_s).title, u"Pay rent"_s);
        QVERIFY(!m_phone->hasEvent(u"x"_s));
        QCOMPARE(m_phone->pendingCount(), 0);

        const int writes = m_phone->writes();
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->lastCount(), 4);
        QCOMPARE(m_phone->writes(), writes);
        QCOMPARE(m_server->count("PUT") + m_server->count("DELETE"), 0);
    }

    void followsChangesAndDeletionsOfTheServer()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        m_server->store("b.ics", series("Review", "Late review"));
        m_server->store("c.ics", calendarText(eventText("c", "Lunch")));
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent")));
        QCOMPARE(m_phone->sync(), QString());
        Event own = m_phone->event(u"a"_s);
        own.color = u"#112233"_s;
        QVERIFY(m_phone->state()->events()->update(own));

        m_server->store("a.ics", calendarText(eventText("a", "Short standup")));
        m_server->store("b.ics", calendarText(eventText("weekly", "Review", "RRULE:FREQ=WEEKLY;COUNT=5\r\n")));
        m_server->remove("c.ics");
        m_server->remove("t.ics");
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->event(u"a"_s).title, u"Short standup"_s);
        QCOMPARE(m_phone->event(u"a"_s).color, u"#112233"_s); // no server knows it
        QCOMPARE(m_phone->state()->events()->getSeries(u"weekly"_s, m_phone->calendarId()).size(), 1);
        QVERIFY(!m_phone->hasEvent(u"c"_s));
        QVERIFY(!m_phone->hasTask(u"t"_s));
    }

    void fetchesTextsThatTheListingLeavesOut()
    {
        m_server->givesTexts = false;
        m_server->store("with blank.ics", calendarText(eventText("a", "Standup")));
        m_server->store("50%.ics", calendarText(eventText("b", "Lunch")));
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->event(u"a"_s).title, u"Standup"_s);
        QCOMPARE(m_phone->event(u"b"_s).href, u"/alice/work/50%.ics"_s);

        // An edit needs the text beneath it, which a listing without changes does not bring.
        m_phone->edit(u"b"_s, [](Event &event) { event.title = u"Late lunch"_s; });
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("50%.ics").contains("SUMMARY:Late lunch"));
        QVERIFY(m_server->text("50%.ics").contains("PRODID:-//Phone//EN"));

        // A deletion needs none, but to know what is there: 404 of that is no answer.
        m_phone->removeEvent(u"b"_s);
        m_server->fail(2, { .kind = FakeCalDav::Fault::Status, .status = 404 });
        m_phone->sync();
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(!m_server->objects().contains("50%.ics"));
    }

    void pushesOnlyWhatChanged()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup", Foreign)));
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent", Foreign)));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"a"_s, [](Event &event) {
            event.title = u"Retro"_s;
            event.rawIcalendar.clear(); // poorer than the server's copy
        });
        m_phone->editTask(u"t"_s, [](Task &task) {
            task.status = TaskStatus::Completed;
            task.percentComplete = 100;
            task.completedDate = utc("2026-03-20T08:00");
            task.rawIcalendar.clear();
        });
        m_phone->addEvent(u"new/one?"_s, u"Fresh"_s, utc("2026-05-01T10:00"));
        m_phone->addTask(u"new-task"_s, u"Buy milk"_s);
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->pendingCount(), 0);

        const QByteArray event = m_server->text("a.ics");
        QVERIFY(event.contains("SUMMARY:Retro\r\n"));
        for (const char *line : { "X-PHONE-COLOR:7", "ATTACH:https://example.com/plan.pdf", "CLASS:PRIVATE",
                                  "DTSTART:20260315T090000Z", "PRODID:-//Phone//EN" })
            QVERIFY2(event.contains(line), line);
        const QByteArray task = m_server->text("t.ics");
        QVERIFY(task.contains("STATUS:COMPLETED\r\n") && task.contains("X-PHONE-COLOR:7\r\n"));
        QCOMPARE(m_server->objects().size(), 4);
        QVERIFY(m_server->text("new-task.ics").contains("SUMMARY:Buy milk\r\n"));
        QVERIFY(m_server->text("new-task.ics").contains("STATUS:NEEDS-ACTION\r\n"));

        const int writes = m_phone->writes();
        const int puts = m_server->count("PUT");
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->writes(), writes);
        QCOMPARE(m_server->count("PUT"), puts);
    }

    void anEditHereWinsOverOneThere()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup", "ATTENDEE:mailto:bo@x.org\r\n")));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"a"_s, [](Event &event) { event.title = u"Mine"_s; });
        m_server->store(
            "a.ics",
            calendarText(eventText("a", "Theirs", Foreign + "ATTENDEE;PARTSTAT=ACCEPTED:mailto:bo@x.org\r\n"_ba)));
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->event(u"a"_s).title, u"Mine"_s);
        QCOMPARE(m_phone->event(u"a"_s).attendees.value(0).status, u"accepted"_s);
        QVERIFY(m_server->text("a.ics").contains("SUMMARY:Mine"));
        QVERIFY(m_server->text("a.ics").contains("X-PHONE-COLOR:7"));
    }

    void anEditHereBringsBackWhatIsGoneThere()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent")));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"a"_s, [](Event &event) { event.title = u"Mine"_s; });
        m_phone->editTask(u"t"_s, [](Task &task) { task.title = u"Mine"_s; });
        m_server->remove("a.ics");
        m_server->remove("t.ics");
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("a.ics").contains("SUMMARY:Mine"));
        QVERIFY(m_server->text("t.ics").contains("SUMMARY:Mine"));
        QCOMPARE(m_phone->pendingCount(), 0);
    }

    void aSeriesAndItsOverridesAreOneResource()
    {
        m_server->store("s.ics", series("Review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(
            u"weekly"_s, [](Event &event) { event.title = u"Moved again"_s; }, SecondWeek);
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().size(), 1);
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Review"));
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Moved again"));
        QCOMPARE(m_phone->event(u"weekly"_s).etag, m_phone->event(u"weekly"_s, SecondWeek).etag);

        m_phone->removeEvent(u"weekly"_s, SecondWeek);
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().size(), 1);
        QVERIFY(!m_server->text("s.ics").contains("RECURRENCE-ID"));

        m_phone->removeEvent(u"weekly"_s);
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->objects().isEmpty());
        QCOMPARE(m_phone->pendingCount(), 0);
    }

    void aTextThatCannotBePatchedTakesNoInstanceAlong()
    {
        m_server->store("s.ics", series("Review", "Late review").replace("END:VCAL", "END:VALARM\r\nEND:VCAL"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"weekly"_s, [](Event &event) { event.title = u"Weekly review"_s; });
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Weekly review"));
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Late review"));
        QCOMPARE(m_phone->event(u"weekly"_s, SecondWeek).title, u"Late review"_s);
    }

    void aNewOverrideGoesToTheAddressOfItsSeries()
    {
        m_server->store("s.ics", calendarText(eventText("weekly", "Review", "RRULE:FREQ=WEEKLY;COUNT=5\r\n")));
        QCOMPARE(m_phone->sync(), QString());
        Event changed = m_phone->event(u"weekly"_s);
        changed.id = u"override"_s;
        changed.recurrenceRule.clear();
        changed.recurrenceId = SecondWeek;
        changed.masterEventUid = changed.uid;
        changed.startTime = utc("2026-03-22T15:00");
        changed.endTime = utc("2026-03-22T16:00");
        changed.href.clear();
        changed.etag.clear();
        changed.rawIcalendar.clear();
        changed.syncStatus = SyncStatus::Pending;
        QVERIFY(m_phone->state()->events()->insert(changed));
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().size(), 1);
        QVERIFY(m_server->text("s.ics").contains("RECURRENCE-ID:20260322T090000Z"));
        QCOMPARE(m_phone->event(u"weekly"_s, SecondWeek).href, u"/alice/work/s.ics"_s);
    }

    void aMovedSeriesTakesItsOverridesAlong()
    {
        m_server->store("s.ics", series("Review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"weekly"_s, [](Event &event) {
            event.startTime = utc("2026-03-15T10:00");
            event.endTime = utc("2026-03-15T11:00");
        });
        m_phone->edit(
            u"weekly"_s, [](Event &event) { event.recurrenceId = u"20260322T100000Z"_s; }, SecondWeek);
        m_server->store("s.ics", series("Their review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->text("s.ics").count("BEGIN:VEVENT"), 2);
        QVERIFY(m_server->text("s.ics").contains("RECURRENCE-ID:20260322T100000Z"));
        QCOMPARE(m_phone->state()->events()->getSeries(u"weekly"_s, m_phone->calendarId()).size(), 2);
        QCOMPARE(m_phone->pendingCount(), 0);
    }

    /// The overrides go to the new resource with the tail, and do not stay in the old one.
    void theTailOfASeriesTakesItsOverridesAlong_data()
    {
        columns<bool>("isBeingPushed");
        row("before the push", false);
        row("while the series is pushed", true);
    }
    void theTailOfASeriesTakesItsOverridesAlong()
    {
        QFETCH(bool, isBeingPushed);
        m_server->store("s.ics", series("Review", "Late review").replace("SUMMARY:", QByteArray(Foreign) + "SUMMARY:"));
        QCOMPARE(m_phone->sync(), QString());
        EventRepository *events = m_phone->state()->events();
        const QDateTime first = utc("2026-03-22T09:00");
        QString tailUid;
        const auto split = [&] {
            QVERIFY(RecurringEdits::apply(events, m_phone->event(u"weekly"_s), first, first.addDays(1), {},
                                          RecurringEdits::Scope::ThisAndFollowing, &tailUid));
        };
        if (isBeingPushed) {
            m_phone->edit(u"weekly"_s, [](Event &event) { event.location = u"Hall"_s; });
            m_server->whenAsked("PUT", split);
        } else {
            split();
        }
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().size(), 2);
        QCOMPARE(m_server->text("s.ics").count("BEGIN:VEVENT"), 1);
        const QByteArray tail = m_server->text(tailUid.toUtf8() + ".ics");
        QCOMPARE(tail.count("UID:" + tailUid.toUtf8()), 2);
        QCOMPARE(tail.count(Foreign), 2);
        QCOMPARE(events->getByCalendarIncludingDeleted(m_phone->calendarId()).size(), 3);
        QCOMPARE(m_phone->pendingCount(), 0);
    }

    void whatIsEditedUnderItsOldNameMeanwhileStays()
    {
        m_server->store("s.ics", series("Review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(
            u"weekly"_s, [](Event &event) { event.recurrenceId = u"20260322T100000Z"_s; }, SecondWeek);
        m_server->store("s.ics", series("Their review", "Late review"));
        m_server->whenAsked("PUT", [this] {
            m_phone->edit(
                u"weekly"_s, [](Event &event) { event.title = u"Mine"_s; }, SecondWeek);
        });
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->event(u"weekly"_s, SecondWeek).title, u"Mine"_s);
    }

    void anInstanceThatForgotItsOldNameLeavesItOnTheServerToo()
    {
        m_server->store("s.ics", series("Review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(
            u"weekly"_s,
            [](Event &event) {
                event.recurrenceId = u"20260322T100000Z"_s;
                event.rawIcalendar.clear();
            },
            SecondWeek);
        m_phone->edit(u"weekly"_s, [](Event &event) { event.startTime = utc("2026-03-15T10:00"); });
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->text("s.ics").count("RECURRENCE-ID"), 1);
    }

    void whatChangesWhileItIsPushedStaysPending()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        m_server->store("b.ics", calendarText(eventText("b", "Lunch")));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"a"_s, [](Event &event) { event.title = u"First"_s; });
        m_phone->removeEvent(u"b"_s);
        const Event deleted = m_phone->event(u"b"_s);
        m_server->whenAsked("PUT", [this] { m_phone->edit(u"a"_s, [](Event &event) { event.title = u"Second"_s; }); });
        m_server->whenAsked("DELETE", [this, deleted] { m_phone->state()->events()->restoreDeleted(deleted); });
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->event(u"a"_s).title, u"Second"_s);
        QCOMPARE(m_phone->event(u"a"_s).syncStatus, SyncStatus::Pending);
        QVERIFY(m_phone->hasEvent(u"b"_s));
        QCOMPARE(m_phone->event(u"b"_s).href, QString());
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("a.ics").contains("SUMMARY:Second"));
        QVERIFY(m_server->text("b.ics").contains("SUMMARY:Lunch"));
        QCOMPARE(m_phone->pendingCount(), 0);
    }

    void aRefusedRowDoesNotStopTheOthers()
    {
        m_phone->addEvent(u"a"_s, u"One"_s, utc("2026-05-01T10:00"));
        m_phone->addEvent(u"b"_s, u"Two"_s, utc("2026-05-02T10:00"));
        m_phone->addTask(u"t"_s, u"Three"_s);
        m_server->fail(2, { .kind = FakeCalDav::Fault::Status, .status = 507 }); // the first PUT
        QCOMPARE(m_phone->sync(), u"Server returned HTTP 507 pushing \"One\""_s);
        QCOMPARE(m_server->objects().keys().join(' '), QByteArray("b.ics t.ics"));
        QCOMPARE(m_phone->event(u"a"_s).syncStatus, SyncStatus::Pending);
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().size(), 3);
    }

    void aTaskThatTheCalendarRefusesFindsAHome()
    {
        m_server->takesTasks = false;
        Calendar calendar = *m_phone->state()->calendars()->getById(m_phone->calendarId());
        calendar.supportedComponents = u"[\"VEVENT\"]"_s;
        calendar.allowTasksOverride = true;
        QVERIFY(m_phone->state()->calendars()->update(calendar));
        m_phone->addTask(u"t"_s, u"Pay rent"_s);
        const QString message = m_phone->sync();
        QVERIFY2(message.startsWith(u"\"Pay rent\" was "), qPrintable(message));
        QVERIFY(!m_phone->state()->calendars()->getById(calendar.id)->supportsTasks());
        QCOMPARE(m_phone->lastCount(), 0); // and the run has completed
        QVERIFY(m_phone->state()->tasks()->findByUid(u"t"_s));
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_phone->state()->tasks()->findByUid(u"t"_s));
    }

    void aTaskIsPushedOverWhatChangedMeanwhile()
    {
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent")));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->editTask(u"t"_s, [](Task &task) { task.title = u"Mine"_s; });
        m_server->whenAsked("PUT", [this] { m_server->store("t.ics", calendarText(taskText("t", "Theirs"))); });
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("t.ics").contains("SUMMARY:Mine"));
    }

    void aForeignPageDoesNotPassForTheServersCopy()
    {
        m_server->givesTexts = false;
        m_server->store("a.ics", calendarText(eventText("a", "Standup", Foreign)));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"a"_s, [](Event &event) { event.title = u"Mine"_s; });
        m_server->fail(2, { .kind = FakeCalDav::Fault::ForeignXml, .status = 200 }); // the GET
        QVERIFY(!m_phone->sync().isEmpty());
        QVERIFY(m_server->text("a.ics").contains("SUMMARY:Standup"));
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(m_server->text("a.ics").contains("SUMMARY:Mine"));
    }

    void aSeriesIsNotLostWithTheAddressOfItsOverride()
    {
        m_server->givesTexts = false;
        m_server->store("s.ics", series("Review", "Late review"));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(
            u"weekly"_s, [](Event &event) { event.title = u"Mine"_s; }, SecondWeek);
        m_server->fail(2, { .kind = FakeCalDav::Fault::Status, .status = 404 }); // the GET
        QVERIFY(!m_phone->sync().isEmpty());
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_server->objects().keys().join(' '), QByteArray("s.ics"));
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Review"));
        QVERIFY(m_server->text("s.ics").contains("SUMMARY:Mine"));
    }

    void aRefusedResourceIsTriedOncePerRun()
    {
        m_server->store("s.ics", calendarText(eventText("weekly", "Review", "RRULE:FREQ=WEEKLY;COUNT=5\r\n")));
        QCOMPARE(m_phone->sync(), QString());
        m_phone->edit(u"weekly"_s, [](Event &event) { event.title = u"Mine"_s; });
        Event added = m_phone->event(u"weekly"_s);
        added.id = u"override"_s;
        added.masterEventUid = added.uid;
        added.recurrenceId = SecondWeek;
        added.recurrenceRule.clear();
        added.href.clear();
        added.startTime = utc("2026-03-08T15:00"); // its turn comes first
        QVERIFY(m_phone->state()->events()->insert(added));
        m_server->fail(2, { .kind = FakeCalDav::Fault::Status, .status = 507 });
        QVERIFY(!m_phone->sync().isEmpty());
        QCOMPARE(m_server->count("PUT"), 1);
    }

    void countsTellWhatWasReadOrTaken()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        m_server->store("t.ics", calendarText(taskText("t", "Pay rent")));
        m_server->store("u.ics", calendarText(taskText("u", "Buy milk")));
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->lastCount(), 3);
        m_phone->edit(u"a"_s, [](Event &event) { event.title = u"Mine"_s; });
        m_phone->editTask(u"t"_s, [](Task &task) { task.title = u"Mine"_s; });
        QCOMPARE(m_phone->sync(), QString());
        QCOMPARE(m_phone->lastCount(), 2); // a task that waits does not count
    }

    void aRemovedAccountEndsTheRunQuietly()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        m_server->whenAsked("REPORT", [this] { m_phone->state()->accounts()->remove(u"caldav-account"_s); });
        QCOMPARE(m_phone->sync(), QString());
        QVERIFY(!m_phone->hasEvent(u"a"_s));
    }

    void runsOfOneCalendarWaitForEachOther()
    {
        m_server->store("a.ics", calendarText(eventText("a", "Standup")));
        CalDavSyncClient first(m_phone->state().state());
        CalDavSyncClient second(m_phone->state().state());
        const QSignalSpy firstEnded(&first, &CalDavSyncClient::calendarSyncEnded);
        const QSignalSpy secondEnded(&second, &CalDavSyncClient::calendarSyncEnded);
        const Calendar calendar = *m_phone->state()->calendars()->getById(m_phone->calendarId());
        first.syncCalendar(calendar, {}, u"alice"_s, u"secret"_s, {});
        second.syncCalendar(calendar, {}, u"alice"_s, u"secret"_s, {});
        QTRY_COMPARE(firstEnded.size() + secondEnded.size(), 2);
        QByteArrayList methods;
        for (const HttpServer::Request &request : m_server->http().requests())
            methods.append(request.method);
        QCOMPARE(methods.join(' '), QByteArray("PROPFIND REPORT REPORT PROPFIND REPORT REPORT"));
    }

private:
    std::unique_ptr<FakeCalDav> m_server;
    std::unique_ptr<SyncDevice> m_phone;
};

QTEST_GUILESS_MAIN(tst_CalDavSync)
#include "tst_CalDavSync.moc"
