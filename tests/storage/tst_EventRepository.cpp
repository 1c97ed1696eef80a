#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QRegularExpression>
#include <QSqlQuery>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

Reminder reminder(int minutesBefore)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    return result;
}

/// An hour in the calendar "c", without children.
Event meeting(const QString &id, const QDateTime &start = utc("2026-05-01"))
{
    Event event;
    event.id = id;
    event.uid = u"uid-"_s + id;
    event.calendarId = u"c"_s;
    event.title = id;
    event.startTime = start;
    event.endTime = start.addSecs(3600);
    return event;
}

Event meetingWithChildren(const QString &id, const QDateTime &start = utc("2026-05-01"))
{
    Event event = meeting(id, start);
    event.reminders = { reminder(30) };
    event.attendees = { Attendee{} };
    return event;
}

}

class tst_EventRepository : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<ScratchDatabase>();
        m_events = std::make_unique<EventRepository>(m_database->get());
        m_database->addAccount(u"a"_s);
        m_database->addCalendar(u"c"_s, u"a"_s);
        m_database->addCalendar(u"d"_s, u"a"_s);
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_events.reset();
        m_database.reset();
    }

    void keepsZonesAndWholeDays_data()
    {
        columns<bool, QString, QDateTime, QString, QDateTime>("isAllDay", "zone", "written", "stored", "read");
        const QDate day(2026, 5, 1);
        const QTimeZone auckland("Pacific/Auckland");
        const QDateTime morning(day, QTime(9, 0), auckland); // UTC+12 in May
        row("zone", false, "Pacific/Auckland", morning, "2026-05-01T09:00:00+12:00", morning);
        row("UTC shown in its zone", false, "Pacific/Auckland", morning.toUTC(), "2026-04-30T21:00:00Z", morning);
        row("unknown zone", false, "Nowhere/Atall", morning, "2026-05-01T09:00:00+12:00",
            QDateTime(day, QTime(9, 0), Qt::OffsetFromUTC, 12 * 3600));
        row("no zone", false, "", morning.toUTC(), "2026-04-30T21:00:00Z", morning.toUTC());
        const QDateTime wholeDay = utc("2026-05-01");
        row("all day", true, "America/Los_Angeles", wholeDay, "2026-05-01T00:00:00Z", wholeDay);
        row("all day, local midnight", true, "UTC", QDateTime(day, QTime(0, 0)), "2026-05-01T00:00:00Z", wholeDay);
        row("all day, midnight of a zone", true, "Pacific/Auckland", QDateTime(day, QTime(0, 0), auckland),
            "2026-05-01T00:00:00Z", wholeDay);
    }
    void keepsZonesAndWholeDays()
    {
        QFETCH(bool, isAllDay);
        QFETCH(QString, zone);
        QFETCH(QDateTime, written);
        QFETCH(QString, stored);
        QFETCH(QDateTime, read);
        Event event = meeting(u"e"_s, written);
        event.endTime = written;
        event.isAllDay = isAllDay;
        event.timezone = zone;
        QVERIFY(m_events->insert(event));
        QCOMPARE(m_database->text(u"SELECT start_time || ' ' || end_time FROM events"_s), stored + u' ' + stored);
        event = storedEvent(u"e"_s);
        QCOMPARE(event.startTime, read);
        QCOMPARE(event.startTime.date(), read.date());
        QCOMPARE(event.startTime.offsetFromUtc(), read.offsetFromUtc());
        QCOMPARE(event.endTime.value(), read);
    }

    void keepsChildren()
    {
        Event event = meetingWithChildren(u"e"_s, utc("2026-05-02T00:10"));
        event.syncStatus.clear();
        event.reminders = { reminder(0), reminder(30), reminder(2'000'000) };
        event.reminders[0].action.clear();
        event.attendees[0].email = u"p@example.org"_s;
        event.attendees[0].role.clear();
        event.attendees[0].status.clear();
        QVERIFY(m_events->insert(event));
        const Event read = storedEvent(u"e"_s);
        QCOMPARE(read.syncStatus, QString(SyncStatus::Synced));
        QVERIFY(qAbs(read.created.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        QCOMPARE(read.reminders.value(0).id.size(), 36);
        QCOMPARE(read.reminders.value(0).action, u"display"_s);
        QCOMPARE(read.reminders.value(0).triggerTime, utc("2026-05-02T00:10"));
        QCOMPARE(read.reminders.value(1).triggerTime, utc("2026-05-01T23:40"));
        QCOMPARE(read.reminders.value(2).triggerTime, utc("2026-05-02T00:10").addSecs(-120'000'000));
        QCOMPARE(read.attendees.value(0).email, u"p@example.org"_s);
        QCOMPARE(read.attendees.value(0).role + read.attendees.value(0).status, u"requiredneeds-action"_s);

        // A copy's children are its own.
        Event copy = read;
        copy.id = copy.uid = u"copy"_s;
        copy.recurrenceId.clear();
        QVERIFY(m_events->insert(copy));
        QCOMPARE(storedEvent(u"copy"_s).reminders.size(), 3);
        QCOMPARE(storedEvent(u"e"_s), read);

        Event moved = meeting(u"e"_s);
        moved.calendarId = u"d"_s;
        moved.syncStatus.clear();
        QVERIFY(m_events->update(moved));
        moved = storedEvent(u"e"_s);
        QCOMPARE(moved.calendarId + moved.syncStatus, u"dpending"_s);
        QVERIFY(moved.reminders.isEmpty() && moved.attendees.isEmpty());
        QVERIFY(qAbs(moved.lastModified.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    }

    void refusesWritesWithoutASavepoint()
    {
        Event event = meetingWithChildren(u"stored"_s);
        QVERIFY(m_events->insert(event));
        const Event before = storedEvent(event.id);

        // As long as a statement that writes is not at its end, SQLite opens no savepoint.
        QSqlQuery writing((*m_database)->db());
        QVERIFY(writing.exec(u"UPDATE calendars SET name = name RETURNING id"_s));
        for (int i = 0; i < 3; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Savepoint open failed:.*in progress"_s));
        QVERIFY(!m_events->insert(meeting(u"new"_s)));
        event.title = u"changed"_s;
        event.reminders.clear();
        QVERIFY(!m_events->update(event));
        QVERIFY(!m_events->hardDelete(event.id));
        writing.finish();
        QCOMPARE(m_events->getByCalendar(u"c"_s), QList<Event>{ before });
    }

    void failsWholly()
    {
        QVERIFY(m_events->insert(meetingWithChildren(u"e"_s)));
        const Event before = storedEvent(u"e"_s);
        Event second = meetingWithChildren(u"second"_s);
        second.uid = before.uid;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^EventRepository::insert failed: UNIQUE"_s));
        QVERIFY(!m_events->insert(second));

        m_database->execute(u"CREATE TRIGGER refuse BEFORE INSERT ON attendees BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
        Event changed = before;
        changed.title = u"changed"_s;
        changed.reminders.clear();
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^writeAttendeeRows insert failed: no"_s));
        QVERIFY(!m_events->update(changed));
        QVERIFY(!m_events->insert(meetingWithChildren(u"f"_s)));
        QCOMPARE(m_events->getByCalendar(u"c"_s), QList<Event>{ before });
        QCOMPARE(m_database->count(u"reminders"_s), 1);

        m_database->execute(u"DROP TRIGGER refuse"_s);
        second.calendarId = u"d"_s;
        QVERIFY(m_events->insert(second));
    }

    void looksUpOverridesApartFromTheirSeries()
    {
        const QString instance = u"20260502T000000Z"_s;
        Event override = meeting(u"override"_s);
        override.uid = override.masterEventUid = u"series"_s;
        override.recurrenceId = instance;
        QVERIFY(m_events->insert(override));
        Event master = meeting(u"master"_s);
        master.uid = u"series"_s;
        QVERIFY(m_events->insert(master));

        const auto find = [this](const char *calendarId, const QString &recurrenceId) {
            const auto found =
                m_events->getByUidAndRecurrenceId(u"series"_s, QString::fromLatin1(calendarId), recurrenceId);
            return found ? found->id : QString();
        };
        QCOMPARE(find("c", QString()), u"master"_s);
        QCOMPARE(find("c", u""_s), u"master"_s);
        QCOMPARE(find("c", instance), u"override"_s);
        QCOMPARE(find("d", instance), QString());
        QCOMPARE(m_events->getByUid(u"series"_s, u"c"_s)->id, u"master"_s);
        QCOMPARE(m_events->getByUid(u"none"_s, u"c"_s), std::nullopt);
    }

    void removalLeavesATombstone()
    {
        Event event = meetingWithChildren(u"e"_s);
        event.href = u"/e.ics"_s;
        QVERIFY(m_events->insert(event));
        event = storedEvent(u"e"_s);
        QVERIFY(!m_events->hasPending());
        QVERIFY(m_events->remove(u"e"_s));
        QVERIFY(m_events->hasPending());
        QVERIFY(m_events->getByCalendar(u"c"_s).isEmpty());
        QVERIFY(m_events->getInRange(utc("2026-05-01"), utc("2026-05-02"), {}).isEmpty());
        QVERIFY(m_events->search(u"e"_s, 10).isEmpty());
        const Event tombstone = storedEvent(u"e"_s);
        QVERIFY(tombstone.deletedAt);
        QCOMPARE(m_events->getByCalendarIncludingDeleted(u"c"_s), QList<Event>{ tombstone });
        QCOMPARE(m_events->getPending(u"c"_s), QList<Event>{ tombstone });
        QCOMPARE(m_events->getByUid(event.uid, u"c"_s), tombstone);

        QVERIFY(m_events->restoreDeleted(event));
        Event restored = storedEvent(u"e"_s);
        QCOMPARE(restored.syncStatus, QString(SyncStatus::Pending));
        restored.syncStatus = event.syncStatus;
        restored.lastModified = event.lastModified;
        QCOMPARE(restored, event);
        QVERIFY(m_events->markSynced(u"e"_s, u"/h"_s, u"t"_s));
        QVERIFY(!m_events->hasPending());
        QCOMPARE(m_database->text(u"SELECT href || etag FROM events"_s), u"/ht"_s);
    }

    void restoresWhatASyncPurged()
    {
        Event event = meetingWithChildren(u"e"_s);
        event.href = u"/e.ics"_s;
        event.etag = u"1"_s;
        event.providerEventId = u"p"_s;
        QVERIFY(m_events->insert(event));
        QVERIFY(m_events->remove(u"e"_s));
        event = storedEvent(u"e"_s);
        QVERIFY(m_events->hardDelete(u"e"_s));
        QVERIFY(m_events->restoreDeleted(event));
        const Event restored = storedEvent(u"e"_s);
        QVERIFY(!restored.deletedAt && restored.reminders.size() == 1);
        QCOMPARE(restored.syncStatus, QString(SyncStatus::Pending));
        QCOMPARE(restored.href + restored.etag + restored.providerEventId, QString());
    }

    void hardDeletesWithChildren()
    {
        m_database->addFullCalendar(u"gone"_s, u"a"_s);
        m_database->addFullCalendar(u"kept"_s, u"a"_s);
        QVERIFY(m_events->hardDelete(u"e-gone"_s));
        QCOMPARE(m_database->text(u"SELECT id FROM events"_s), u"e-kept"_s);
        for (const QString &table : { u"reminders"_s, u"attendees"_s, u"attachments"_s })
            QCOMPARE(m_database->text(u"SELECT event_id FROM "_s + table), u"e-kept"_s);
    }

    void searches()
    {
        Event early = meeting(u"b"_s, utc("2026-05-01"));
        early.location = u"at the dentist's"_s;
        Event late = meeting(u"c"_s, utc("2026-05-03"));
        late.description = u"call DENTIST"_s;
        late.relatedToUid = u"task"_s;
        for (const Event &event : { meeting(u"Dentist"_s, utc("2026-05-02")), early, late, meeting(u"other"_s) })
            QVERIFY(m_events->insert(event));
        QCOMPARE(idsOf(m_events->search(u"dentist"_s, 10)), u"b Dentist c"_s);
        QCOMPARE(idsOf(m_events->search(u"dentist"_s, 2)), u"b Dentist"_s);
        QCOMPARE(idsOf(m_events->search(u"'; --"_s, 10)), u""_s);
        QCOMPARE(idsOf(m_events->findByRelatedToUid(u"task"_s)), u"c"_s);
    }

    void keepsReminderStateWhileTheStartStays()
    {
        Event event = meeting(u"e"_s, utc("2026-05-02T10:00"));
        event.reminders = { reminder(5), reminder(30) };
        QVERIFY(m_events->insert(event));
        m_database->execute(u"UPDATE reminders SET acknowledged = 1, trigger_time = '2026-05-02T09:25:00Z'"
                            " WHERE minutes_before = 30"_s);

        // The reader of a file knows nothing of ids; the form kept a record from before the note was shown.
        Event fromServer = event;
        fromServer.startTime = event.startTime.toTimeZone(QTimeZone("Asia/Tokyo"));
        fromServer.reminders = { reminder(30), reminder(5), reminder(60) };
        Event fromForm = storedEvent(u"e"_s);
        fromForm.reminders[1].acknowledged = false;
        for (const Event &written : { fromServer, fromForm }) {
            QVERIFY(m_events->update(written));
            const QList<Reminder> read = storedEvent(u"e"_s).reminders;
            QCOMPARE(read.size(), written.reminders.size());
            QVERIFY(!read.at(0).acknowledged && read.at(1).acknowledged);
            QCOMPARE(read.at(1).triggerTime, utc("2026-05-02T09:25"));
        }

        Event otherLead = storedEvent(u"e"_s);
        otherLead.reminders[1].minutesBefore = 45;
        QVERIFY(m_events->update(otherLead));
        Reminder due = storedEvent(u"e"_s).reminders.at(1);
        QVERIFY(!due.acknowledged);
        QCOMPARE(due.triggerTime, utc("2026-05-02T09:15"));

        m_database->execute(u"UPDATE reminders SET acknowledged = 1"_s);
        Event moved = storedEvent(u"e"_s);
        moved.startTime = utc("2026-05-03T10:00");
        QVERIFY(m_events->update(moved));
        due = storedEvent(u"e"_s).reminders.at(1);
        QVERIFY(!due.acknowledged);
        QCOMPARE(due.triggerTime, utc("2026-05-03T09:15"));
    }

    void fillsChildrenOfManyEvents()
    {
        constexpr int many = 2000; // more than one statement's worth of ids
        {
            Savepoint savepoint(m_database->get());
            for (int i = 0; i < many; ++i) {
                Event event = meeting(QString::number(i), utc("2026-05-01").addSecs(i));
                event.reminders = { reminder(i + 1), reminder(0) };
                if (i % 3 == 0)
                    event.attendees = { Attendee{} };
                QVERIFY(m_events->insert(event));
            }
            QVERIFY(savepoint.commit());
        }
        const QList<Event> read = m_events->getInRange(utc("2026-05-01"), utc("2026-05-02"), { u"c"_s });
        QCOMPARE(read.size(), many);
        for (const Event &event : read) {
            const int i = event.id.toInt();
            QCOMPARE(event.reminders.size(), 2);
            QCOMPARE(event.reminders.at(0).minutesBefore, 0);
            QCOMPARE(event.reminders.at(1).minutesBefore, i + 1);
            QCOMPARE(event.attendees.size(), i % 3 == 0 ? 1 : 0);
        }
        QCOMPARE(m_events->getByCalendar(u"c"_s), read);
    }

private:
    Event storedEvent(const QString &id) { return m_events->getById(id).value_or(Event()); }

    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<EventRepository> m_events;
};

QTEST_GUILESS_MAIN(tst_EventRepository)
#include "tst_EventRepository.moc"
