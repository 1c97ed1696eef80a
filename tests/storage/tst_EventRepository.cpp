#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTest>
#include <QTimeZone>

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime utc(int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(2026, 5, day), QTime(hour, minute), Qt::UTC);
}

Event meeting(const QString &id, const QDateTime &start, int minutes = 60)
{
    Event event;
    event.id = id;
    event.uid = lit("uid-") + id;
    event.calendarId = lit("c");
    event.title = id;
    event.startTime = start;
    event.endTime = start.addSecs(minutes * 60);
    return event;
}

Reminder reminder(int minutesBefore)
{
    Reminder result;
    result.minutesBefore = minutesBefore;
    return result;
}

QStringList idsOf(const QList<Event> &events)
{
    QStringList ids;
    for (const Event &event : events)
        ids.append(event.id);
    return ids;
}

}

class tst_EventRepository : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsEveryField();
    void keepsZonesAndWholeDays_data();
    void keepsZonesAndWholeDays();
    void fillsInWhatTheRecordLeavesOpen();
    void readsStampsOfSqlite();
    void refusesAnEventWithoutStart();
    void refusesWritesWithoutASavepoint();
    void refusesASecondRowWithTheSameIdentity();
    void looksUpOverridesApartFromTheirSeries();
    void removalLeavesATombstone();
    void hardDeletes();
    void restoresTombstones();
    void restoresWhatASyncPurged();
    void marksSynced();
    void searches();
    void findsLinkedEvents();
    void copiesGetChildrenOfTheirOwn();
    void computesTriggerTimes();
    void keepsReminderStateWhileTheStartStays();
    void remindsAnewWhenTheStartMoves();
    void failsWholly();
    void fillsChildrenOfManyEvents();
    void gathersSignals();

private:
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<EventRepository> m_events;
};

void tst_EventRepository::init()
{
    m_database = std::make_unique<ScratchDatabase>();
    m_events = std::make_unique<EventRepository>(m_database->get());
    m_database->addAccount(lit("a"));
    m_database->addCalendar(lit("c"), lit("a"));
    m_database->addCalendar(lit("d"), lit("a"));
}

void tst_EventRepository::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_events.reset();
    m_database.reset();
}

void tst_EventRepository::keepsEveryField()
{
    const QTimeZone berlin("Europe/Berlin");
    Event event{
        .id = lit("id"),
        .calendarId = lit("c"),
        .uid = lit("uid@example.org"),
        .providerEventId = lit("provider"),
        .etag = lit("\"etag\""),
        .href = lit("/c/id.ics"),
        .title = lit("Ärger; mit, 'allem'"),
        .description = lit("two\nlines"),
        .location = lit("here"),
        .geoLocation = lit("1;2"),
        .startTime = QDateTime(QDate(2026, 5, 1), QTime(9, 30), berlin),
        .endTime = QDateTime(QDate(2026, 5, 1), QTime(10, 30), berlin),
        .isAllDay = false,
        .timezone = lit("Europe/Berlin"),
        .recurrenceRule = lit("FREQ=DAILY"),
        .recurrenceDates = lit("[\"20260509\"]"),
        .exceptionDates = lit("[\"20260508\"]"),
        .recurrenceId = lit("20260501T073000Z"),
        .masterEventUid = lit("master"),
        .status = EventStatus::Tentative,
        .eventUrl = lit("https://e"),
        .conferenceUrl = lit("https://m"),
        .organizerEmail = lit("o@example.org"),
        .organizerName = lit("O"),
        .sequence = 4,
        .rawIcalendar = lit("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n"),
        .color = lit("#010203"),
        .created = utc(2),
        .lastModified = utc(3),
        .syncStatus = SyncStatus::Pending,
        .deletedAt = utc(4),
        .relatedToUid = lit("task"),
        .reminders = { { .id = lit("r"),
                         .eventId = lit("id"),
                         .taskId = QString(),
                         .minutesBefore = 7,
                         .action = lit("audio"),
                         .acknowledged = true,
                         .triggerTime = utc(1) } },
        .attendees = { { .id = lit("p"),
                         .eventId = lit("id"),
                         .email = lit("p@example.org"),
                         .name = lit("P"),
                         .role = lit("chair"),
                         .status = lit("accepted"),
                         .type = lit("ROOM"),
                         .rsvp = true } },
    };
    QVERIFY(m_events->insert(event));
    QCOMPARE(m_events->getById(lit("id")), event);
    QCOMPARE(m_events->getById(lit("id"))->startTime.timeZone(), berlin);

    Event other = meeting(lit("id"), utc(9, 8));
    other.calendarId = lit("d");
    other.created = utc(2);
    other.syncStatus = SyncStatus::Synced;
    Event written = other;
    written.created = utc(20);
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    QVERIFY(m_events->update(written));
    std::optional<Event> read = m_events->getById(lit("id"));
    QVERIFY(read->lastModified >= before);
    read->lastModified = other.lastModified;
    QCOMPARE(read, other);
    QCOMPARE(
        m_database->count(lit("events"), lit("href IS NULL AND recurrence_id IS NULL AND recurrence_rule IS NULL")), 1);
}

void tst_EventRepository::keepsZonesAndWholeDays_data()
{
    QTest::addColumn<bool>("isAllDay");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QDateTime>("written");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QDateTime>("read");
    const QDate day(2026, 5, 1);
    const QTimeZone auckland("Pacific/Auckland");
    const QDateTime morning(day, QTime(9, 0), auckland); // UTC+12 in May
    QTest::newRow("zone") << false << lit("Pacific/Auckland") << morning << lit("2026-05-01T09:00:00+12:00") << morning;
    QTest::newRow("UTC shown in its zone")
        << false << lit("Pacific/Auckland") << morning.toUTC() << lit("2026-04-30T21:00:00Z") << morning;
    QTest::newRow("unknown zone") << false << lit("Nowhere/Atall") << morning << lit("2026-05-01T09:00:00+12:00")
                                  << QDateTime(day, QTime(9, 0), Qt::OffsetFromUTC, 12 * 3600);
    QTest::newRow("no zone") << false << QString() << morning.toUTC() << lit("2026-04-30T21:00:00Z") << morning.toUTC();
    const QDateTime wholeDay(day, QTime(0, 0), Qt::UTC);
    QTest::newRow("all day") << true << lit("America/Los_Angeles") << wholeDay << lit("2026-05-01T00:00:00Z")
                             << wholeDay;
    QTest::newRow("all day, local midnight")
        << true << lit("UTC") << QDateTime(day, QTime(0, 0)) << lit("2026-05-01T00:00:00Z") << wholeDay;
    QTest::newRow("all day, midnight of a zone")
        << true << lit("Pacific/Auckland") << QDateTime(day, QTime(0, 0), auckland) << lit("2026-05-01T00:00:00Z")
        << wholeDay;
}

void tst_EventRepository::keepsZonesAndWholeDays()
{
    QFETCH(bool, isAllDay);
    QFETCH(QString, zone);
    QFETCH(QDateTime, written);
    QFETCH(QString, stored);
    QFETCH(QDateTime, read);
    Event event = meeting(lit("e"), written);
    event.endTime = written;
    event.isAllDay = isAllDay;
    event.timezone = zone;
    QVERIFY(m_events->insert(event));
    QCOMPARE(m_database->column(lit("SELECT start_time FROM events")), QStringList{ stored });
    QCOMPARE(m_database->column(lit("SELECT end_time FROM events")), QStringList{ stored });
    const std::optional<Event> result = m_events->getById(lit("e"));
    QCOMPARE(result->startTime, read);
    QCOMPARE(result->startTime.date(), read.date());
    QCOMPARE(result->startTime.offsetFromUtc(), read.offsetFromUtc());
    QCOMPARE(result->endTime.value(), read);
}

void tst_EventRepository::fillsInWhatTheRecordLeavesOpen()
{
    Event event = meeting(lit("e"), utc(1));
    event.syncStatus.clear();
    event.reminders = { Reminder{ .id = {},
                                  .eventId = {},
                                  .taskId = {},
                                  .minutesBefore = 5,
                                  .action = {},
                                  .acknowledged = false,
                                  .triggerTime = {} } };
    event.attendees = { Attendee{
        .id = {}, .eventId = {}, .email = {}, .name = {}, .role = {}, .status = {}, .type = {}, .rsvp = false } };
    QVERIFY(m_events->insert(event));
    const Event read = *m_events->getById(lit("e"));
    QCOMPARE(read.syncStatus, QString(SyncStatus::Synced));
    QVERIFY(qAbs(read.created.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    QVERIFY(qAbs(read.lastModified.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    QCOMPARE(read.reminders.value(0).id.size(), 36);
    QCOMPARE(read.reminders.value(0).action, lit("display"));
    QCOMPARE(read.attendees.value(0).role, lit("required"));
    QCOMPARE(read.attendees.value(0).status, lit("needs-action"));
    event.syncStatus.clear();
    QVERIFY(m_events->update(event));
    QCOMPARE(m_events->getById(lit("e"))->syncStatus, QString(SyncStatus::Pending));
}

void tst_EventRepository::readsStampsOfSqlite()
{
    m_database->execute(lit("INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created)"
                            " VALUES ('e', 'c', 'u', '', '2026-05-01T00:00:00Z', '', '2026-05-01 10:20:30')"));
    const Event event = *m_events->getById(lit("e"));
    QCOMPARE(event.created, QDateTime(QDate(2026, 5, 1), QTime(10, 20, 30), Qt::UTC));
    QCOMPARE(event.timezone, lit("UTC"));
    QVERIFY(!event.endTime);
}

void tst_EventRepository::refusesAnEventWithoutStart()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^EventRepository::insert failed: .*start_time")));
    QVERIFY(!m_events->insert(meeting(lit("e"), QDateTime())));
}

void tst_EventRepository::refusesWritesWithoutASavepoint()
{
    Event stored = meeting(lit("stored"), utc(1));
    stored.reminders = { reminder(5) };
    QVERIFY(m_events->insert(stored));
    const Event before = *m_events->getById(stored.id);

    // As long as a statement that writes is not at its end, SQLite opens no savepoint.
    QSqlQuery writing((*m_database)->db());
    QVERIFY(writing.exec(lit("UPDATE calendars SET name = name RETURNING id")));
    const QRegularExpression refusal(lit("Savepoint open failed:.*in progress"));
    for (int i = 0; i < 3; ++i)
        QTest::ignoreMessage(QtWarningMsg, refusal);
    QVERIFY(!m_events->insert(meeting(lit("new"), utc(2))));
    stored.title = lit("changed");
    stored.reminders.clear();
    QVERIFY(!m_events->update(stored));
    QVERIFY(!m_events->hardDelete(stored.id));
    writing.finish();

    QVERIFY(!m_events->getById(lit("new")));
    QCOMPARE(m_events->getById(stored.id), before);
}

void tst_EventRepository::refusesASecondRowWithTheSameIdentity()
{
    Event event = meeting(lit("first"), utc(1));
    event.reminders = { reminder(5) };
    QVERIFY(m_events->insert(event));
    Event second = event;
    second.id = lit("second");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^EventRepository::insert failed: UNIQUE")));
    QVERIFY(!m_events->insert(second));
    QCOMPARE(m_database->count(lit("events")), 1);
    QCOMPARE(m_database->count(lit("reminders")), 1);
    second.calendarId = lit("d");
    QVERIFY(m_events->insert(second));
}

void tst_EventRepository::looksUpOverridesApartFromTheirSeries()
{
    const QString instance = lit("20260502T000000Z");
    Event override = meeting(lit("override"), utc(2, 5));
    override.uid = lit("series");
    override.masterEventUid = lit("series");
    override.recurrenceId = instance;
    QVERIFY(m_events->insert(override));
    Event master = meeting(lit("master"), utc(1));
    master.uid = lit("series");
    QVERIFY(m_events->insert(master));

    QCOMPARE(m_events->getByUidAndRecurrenceId(lit("series"), lit("c"), QString())->id, lit("master"));
    QCOMPARE(m_events->getByUidAndRecurrenceId(lit("series"), lit("c"), lit(""))->id, lit("master"));
    QCOMPARE(m_events->getByUidAndRecurrenceId(lit("series"), lit("c"), instance)->id, lit("override"));
    QCOMPARE(m_events->getByUidAndRecurrenceId(lit("series"), lit("d"), instance), std::nullopt);
    QCOMPARE(m_events->getByUid(lit("series"), lit("c"))->id, lit("master"));
    QCOMPARE(m_events->getByUid(lit("none"), lit("c")), std::nullopt);
}

void tst_EventRepository::removalLeavesATombstone()
{
    Event event = meeting(lit("e"), utc(1));
    event.reminders = { reminder(5) };
    QVERIFY(m_events->insert(event));
    QVERIFY(!m_events->hasPending());
    QVERIFY(m_events->remove(lit("e")));
    QVERIFY(m_events->hasPending());

    QCOMPARE(m_events->getByCalendar(lit("c")).size(), 0);
    QCOMPARE(m_events->getInRange(utc(1), utc(2), {}).size(), 0);
    QCOMPARE(m_events->search(lit("e"), 10).size(), 0);
    QCOMPARE(m_events->getByCalendarIncludingDeleted(lit("c")).size(), 1);
    QCOMPARE(m_events->getPending(lit("c")).size(), 1);
    const Event tombstone = *m_events->getById(lit("e"));
    QVERIFY(tombstone.deletedAt);
    QCOMPARE(tombstone.syncStatus, QString(SyncStatus::Pending));
    QCOMPARE(tombstone.reminders.size(), 1);
    QCOMPARE(m_events->getByUid(event.uid, lit("c")), tombstone);
}

void tst_EventRepository::hardDeletes()
{
    for (const auto *id : { "gone", "kept" }) {
        Event event = meeting(lit(id), utc(1));
        event.reminders = { reminder(5) };
        event.attendees = { Attendee{} };
        QVERIFY(m_events->insert(event));
        m_database->execute(
            lit("INSERT INTO attachments (id, event_id, filename) VALUES ('f%1', '%1', 'x')").arg(lit(id)));
    }
    QVERIFY(m_events->hardDelete(lit("gone")));
    QCOMPARE(m_events->getById(lit("gone")), std::nullopt);
    for (const auto *table : { "reminders", "attendees", "attachments" })
        QCOMPARE(m_database->column(lit("SELECT event_id FROM %1").arg(lit(table))), QStringList{ lit("kept") });
}

void tst_EventRepository::restoresTombstones()
{
    Event event = meeting(lit("e"), utc(1));
    event.href = lit("/e.ics");
    event.reminders = { reminder(5) };
    QVERIFY(m_events->insert(event));
    event = *m_events->getById(lit("e"));
    QVERIFY(m_events->remove(lit("e")));
    QVERIFY(m_events->restoreDeleted(event));

    Event restored = *m_events->getById(lit("e"));
    QCOMPARE(restored.syncStatus, QString(SyncStatus::Pending));
    restored.syncStatus = event.syncStatus;
    restored.lastModified = event.lastModified;
    QCOMPARE(restored, event);
}

void tst_EventRepository::restoresWhatASyncPurged()
{
    Event event = meeting(lit("e"), utc(1));
    event.href = lit("/e.ics");
    event.etag = lit("1");
    event.providerEventId = lit("p");
    QVERIFY(m_events->insert(event));
    QVERIFY(m_events->remove(lit("e")));
    event = *m_events->getById(lit("e"));
    QVERIFY(m_events->hardDelete(lit("e")));
    QVERIFY(m_events->restoreDeleted(event));
    const Event restored = *m_events->getById(lit("e"));
    QVERIFY(!restored.deletedAt);
    QCOMPARE(restored.syncStatus, QString(SyncStatus::Pending));
    QCOMPARE(restored.href + restored.etag + restored.providerEventId, QString());
}

void tst_EventRepository::marksSynced()
{
    Event event = meeting(lit("e"), utc(1));
    event.syncStatus = SyncStatus::Pending;
    QVERIFY(m_events->insert(event));
    QVERIFY(m_events->markSynced(lit("e"), lit("/h"), lit("t")));
    QVERIFY(!m_events->hasPending());
    QCOMPARE(m_events->getById(lit("e"))->href, lit("/h"));
    QCOMPARE(m_events->getById(lit("e"))->etag, lit("t"));
}

void tst_EventRepository::searches()
{
    Event a = meeting(lit("Dentist"), utc(2));
    Event b = meeting(lit("b"), utc(1));
    b.location = lit("at the dentist's");
    Event c = meeting(lit("c"), utc(3));
    c.description = lit("call DENTIST");
    QVERIFY(m_events->insert(a) && m_events->insert(b) && m_events->insert(c));
    QVERIFY(m_events->insert(meeting(lit("other"), utc(1))));
    QCOMPARE(idsOf(m_events->search(lit("dentist"), 10)), QStringList({ lit("b"), lit("Dentist"), lit("c") }));
    QCOMPARE(idsOf(m_events->search(lit("dentist"), 2)), QStringList({ lit("b"), lit("Dentist") }));
    QCOMPARE(idsOf(m_events->search(lit("d%t"), 10)).size(), 3);
    QCOMPARE(m_events->search(lit("'; --"), 10).size(), 0);
}

void tst_EventRepository::findsLinkedEvents()
{
    Event event = meeting(lit("e"), utc(1));
    event.relatedToUid = lit("task");
    QVERIFY(m_events->insert(event));
    QVERIFY(m_events->insert(meeting(lit("other"), utc(1))));
    QCOMPARE(idsOf(m_events->findByRelatedToUid(lit("task"))), QStringList{ lit("e") });
}

void tst_EventRepository::copiesGetChildrenOfTheirOwn()
{
    Event event = meeting(lit("e"), utc(1));
    event.reminders = { reminder(5) };
    event.attendees = { Attendee{} };
    QVERIFY(m_events->insert(event));
    Event copy = *m_events->getById(lit("e"));
    copy.id = lit("copy");
    copy.uid = lit("copy");
    QVERIFY(m_events->insert(copy));
    QCOMPARE(m_events->getById(lit("copy"))->reminders.value(0).eventId, lit("copy"));
    QCOMPARE(m_events->getById(lit("e"))->reminders.size(), 1);
    QCOMPARE(m_events->getById(lit("e"))->attendees.size(), 1);
}

void tst_EventRepository::computesTriggerTimes()
{
    Event event = meeting(lit("e"), utc(2, 0, 10));
    event.reminders = { reminder(0), reminder(30), reminder(2'000'000) };
    QVERIFY(m_events->insert(event));
    const QList<Reminder> read = m_events->getById(lit("e"))->reminders;
    QCOMPARE(read.at(0).triggerTime.value(), utc(2, 0, 10));
    QCOMPARE(read.at(1).triggerTime.value(), utc(1, 23, 40));
    QCOMPARE(read.at(2).triggerTime.value(), utc(2, 0, 10).addSecs(-120'000'000));
}

void tst_EventRepository::keepsReminderStateWhileTheStartStays()
{
    Event event = meeting(lit("e"), utc(2, 10));
    event.reminders = { reminder(5), reminder(30) };
    QVERIFY(m_events->insert(event));
    m_database->execute(lit("UPDATE reminders SET acknowledged = 1, trigger_time = '2026-05-02T09:25:00Z'"
                            " WHERE minutes_before = 30"));

    // The reader of a file knows nothing of ids; the form kept a record from before the note was shown.
    Event fromServer = event;
    fromServer.title = lit("renamed");
    fromServer.startTime = event.startTime.toTimeZone(QTimeZone("Asia/Tokyo"));
    fromServer.reminders = { reminder(30), reminder(5), reminder(60) };
    Event fromForm = *m_events->getById(lit("e"));
    fromForm.reminders[1].acknowledged = false;
    for (const Event &written : { fromServer, fromForm }) {
        QVERIFY(m_events->update(written));
        const QList<Reminder> read = m_events->getById(lit("e"))->reminders;
        QCOMPARE(read.size(), written.reminders.size());
        QVERIFY(!read.at(0).acknowledged);
        QVERIFY(read.at(1).acknowledged);
        QCOMPARE(read.at(1).triggerTime.value(), utc(2, 9, 25));
    }

    Event otherLead = *m_events->getById(lit("e"));
    otherLead.reminders[1].minutesBefore = 45;
    QVERIFY(m_events->update(otherLead));
    const Reminder moved = m_events->getById(lit("e"))->reminders.at(1);
    QVERIFY(!moved.acknowledged);
    QCOMPARE(moved.triggerTime.value(), utc(2, 9, 15));
}

void tst_EventRepository::remindsAnewWhenTheStartMoves()
{
    Event event = meeting(lit("e"), utc(2, 10));
    event.reminders = { reminder(30) };
    QVERIFY(m_events->insert(event));
    m_database->execute(lit("UPDATE reminders SET acknowledged = 1"));
    Event moved = *m_events->getById(lit("e"));
    moved.startTime = utc(3, 10);
    QVERIFY(m_events->update(moved));
    const Reminder read = m_events->getById(lit("e"))->reminders.value(0);
    QVERIFY(!read.acknowledged);
    QCOMPARE(read.triggerTime.value(), utc(3, 9, 30));
}

void tst_EventRepository::failsWholly()
{
    Event event = meeting(lit("e"), utc(1));
    event.reminders = { reminder(5) };
    event.attendees = { Attendee{} };
    QVERIFY(m_events->insert(event));
    const Event before = *m_events->getById(lit("e"));
    m_database->execute(lit("CREATE TRIGGER refuse BEFORE INSERT ON attendees BEGIN SELECT RAISE(ABORT, 'no'); END"));

    Event changed = before;
    changed.title = lit("changed");
    changed.reminders.clear();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^writeAttendeeRows insert failed: no")));
    QVERIFY(!m_events->update(changed));
    QCOMPARE(m_events->getById(lit("e")), before);
    Event second = meeting(lit("f"), utc(1));
    second.attendees = { Attendee{} };
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^writeAttendeeRows insert failed: no")));
    QVERIFY(!m_events->insert(second));
    QCOMPARE(m_events->getById(lit("f")), std::nullopt);
    m_database->execute(lit("DROP TRIGGER refuse"));
}

void tst_EventRepository::fillsChildrenOfManyEvents()
{
    // More than one statement's worth of ids.
    constexpr int many = 2000;
    {
        Savepoint savepoint(m_database->get());
        for (int i = 0; i < many; ++i) {
            Event event = meeting(QString::number(i), utc(1).addSecs(i));
            event.reminders = { reminder(i + 1), reminder(0) };
            if (i % 3 == 0)
                event.attendees = { Attendee{} };
            QVERIFY(m_events->insert(event));
        }
        QVERIFY(savepoint.commit());
    }
    const QList<Event> read = m_events->getInRange(utc(1), utc(2), { lit("c") });
    QCOMPARE(read.size(), many);
    for (const Event &event : read) {
        const int i = event.id.toInt();
        QCOMPARE(event.reminders.size(), 2);
        QCOMPARE(event.reminders.at(0).minutesBefore, 0);
        QCOMPARE(event.reminders.at(1).minutesBefore, i + 1);
        QCOMPARE(event.attendees.size(), i % 3 == 0 ? 1 : 0);
    }
    QCOMPARE(m_events->getByCalendar(lit("c")), read);
}

void tst_EventRepository::gathersSignals()
{
    QSignalSpy changed(m_events.get(), &EventRepository::eventsChanged);
    Event other = meeting(lit("b"), utc(1));
    other.calendarId = lit("d");
    QVERIFY(m_events->insert(meeting(lit("a"), utc(1))));
    QVERIFY(m_events->insert(other));
    QVERIFY(m_events->remove(lit("a")));
    QVERIFY(m_events->hardDelete(lit("b")));
    QCOMPARE(changed.size(), 0);
    QVERIFY(changed.wait());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toString(), lit("d"));
}

QTEST_GUILESS_MAIN(tst_EventRepository)
#include "tst_EventRepository.moc"
