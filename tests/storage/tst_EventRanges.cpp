#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "support/ScratchDatabase.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>
#include <QTimeZone>

#include <algorithm>

// The range query answers partly from memory. Here it is held against the plain statement, on random
// rows, after every kind of write.

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

const QDateTime firstDay(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);

}

class tst_EventRanges : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void agreesOnRandomRows();
    void agreesAfterWrites();
    void agreesAfterRollbacks();
    void agreesInsideASavepoint();
    void agreesAfterCascades();
    void agreesOnForeignTexts();
    void findsOverridesWhereverTheyMoved();
    void takesManyCalendars();
    void givesWholeRecords();

private:
    Event randomEvent(const QString &id);
    QString randomId() { return QString::number(m_random.bounded(count)); }
    void fill();
    void randomWrite();
    QStringList plainIds(const QString &start, const QString &end, const QStringList &calendarIds);
    void compareRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds);
    void compareRanges(int times);

    static constexpr int count = 300;
    QRandomGenerator m_random{ 20260501 };
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<EventRepository> m_events;
};

void tst_EventRanges::init()
{
    m_random.seed(20260501);
    m_database = std::make_unique<ScratchDatabase>();
    m_events = std::make_unique<EventRepository>(m_database->get());
    m_database->addAccount(lit("a"));
    m_database->addAccount(lit("b"));
    for (const auto *id : { "c0", "c1" })
        m_database->addCalendar(lit(id), lit("a"));
    m_database->addCalendar(lit("c2"), lit("b"));
}

void tst_EventRanges::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_events.reset();
    m_database.reset();
}

Event tst_EventRanges::randomEvent(const QString &id)
{
    const QList<QByteArray> zones{ "UTC", "Pacific/Kiritimati", "Pacific/Pago_Pago", "Europe/Berlin" };
    const QList<int> lengthsMin{ 0, 30, 90, 24 * 60, 7 * 24 * 60, 7 * 24 * 60 + 1, 8 * 24 * 60, 40 * 24 * 60, -60 };
    Event event;
    event.id = id;
    event.uid = lit("uid-") + id;
    event.calendarId = lit("c%1").arg(m_random.bounded(3));
    event.title = QString::number(m_random.generate());
    event.startTime = firstDay.addSecs(m_random.bounded(120 * 24 * 60) * 60LL);
    const QByteArray zone = zones.at(m_random.bounded(zones.size()));
    if (m_random.bounded(2) == 0)
        event.startTime = event.startTime.toTimeZone(QTimeZone(zone));
    event.timezone = QString::fromLatin1(zone);
    if (m_random.bounded(8) != 0)
        event.endTime = event.startTime.addSecs(lengthsMin.at(m_random.bounded(lengthsMin.size())) * 60LL);
    if (event.endTime && m_random.bounded(6) == 0) // ends in another zone
        event.endTime = event.endTime->toTimeZone(QTimeZone(zones.at(m_random.bounded(zones.size()))));
    event.isAllDay = m_random.bounded(4) == 0;
    if (m_random.bounded(5) == 0)
        event.recurrenceRule = lit("FREQ=WEEKLY");
    if (m_random.bounded(6) == 0) {
        event.masterEventUid = lit("uid-") + randomId();
        event.recurrenceId = id;
    }
    if (m_random.bounded(10) == 0)
        event.deletedAt = firstDay;
    if (m_random.bounded(3) == 0)
        event.reminders = { Reminder{} };
    return event;
}

void tst_EventRanges::fill()
{
    Savepoint savepoint(m_database->get());
    for (int i = 0; i < count; ++i)
        QVERIFY(m_events->insert(randomEvent(QString::number(i))));
    QVERIFY(savepoint.commit());
}

// Each row as "id title", so that stale content shows.
QStringList tst_EventRanges::plainIds(const QString &start, const QString &end, const QStringList &calendarIds)
{
    QString sql = lit("SELECT id || ' ' || title FROM events WHERE start_time < ? AND (end_time IS NULL OR end_time > ?"
                      " OR (recurrence_rule IS NOT NULL AND recurrence_rule != '')) AND deleted_at IS NULL");
    if (!calendarIds.isEmpty())
        sql += lit(" AND calendar_id IN ('%1')").arg(calendarIds.join(lit("', '")));
    QSqlQuery query((*m_database)->db());
    query.prepare(sql + lit(" ORDER BY start_time, rowid"));
    query.bindValue(0, end);
    query.bindValue(1, start);
    if (!query.exec())
        qFatal("%s", qPrintable(query.lastError().text()));
    QStringList ids;
    while (query.next())
        ids.append(query.value(0).toString());
    return ids;
}

void tst_EventRanges::compareRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
{
    QStringList actual;
    for (const Event &event : m_events->getInRange(start, end, calendarIds))
        actual.append(event.id + u' ' + event.title);
    QCOMPARE(actual, plainIds(start.toString(Qt::ISODate), end.toString(Qt::ISODate), calendarIds));
}

void tst_EventRanges::compareRanges(int times)
{
    const QList<QStringList> calendars{ {}, { lit("c0") }, { lit("c1"), lit("c2") }, { lit("none") } };
    const QList<int> lengthsDays{ 1, 7, 42, 400 };
    for (int i = 0; i < times; ++i) {
        const QDateTime start(QDate(2025, 12, 20).addDays(m_random.bounded(140)), QTime(m_random.bounded(24), 0));
        const QDateTime end = start.addDays(lengthsDays.at(m_random.bounded(lengthsDays.size())));
        compareRange(start, end, calendars.at(m_random.bounded(calendars.size())));
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_EventRanges::agreesOnRandomRows()
{
    fill();
    compareRanges(200);
    QVERIFY(!plainIds(lit("2026-02-01T00:00:00"), lit("2026-02-08T00:00:00"), {}).isEmpty());
}

void tst_EventRanges::randomWrite()
{
    const QString id = randomId();
    switch (m_random.bounded(7)) {
    case 0:
        m_events->remove(id);
        break;
    case 1:
        m_events->hardDelete(id);
        break;
    case 2:
        m_events->markSynced(id, lit("/h"), lit("t"));
        break;
    case 3:
        m_events->restoreDeleted(m_events->getById(id).value_or(randomEvent(id)));
        break;
    case 4:
        if (!m_events->getById(id))
            m_events->insert(randomEvent(id));
        break;
    default:
        if (m_events->getById(id)) {
            Event event = randomEvent(id);
            m_events->update(event);
        }
        break;
    }
}

void tst_EventRanges::agreesAfterWrites()
{
    fill();
    for (int i = 0; i < 300; ++i) {
        randomWrite();
        compareRanges(2);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_EventRanges::agreesAfterRollbacks()
{
    fill();
    for (int i = 0; i < 40; ++i) {
        compareRanges(1);
        {
            Savepoint outer(m_database->get());
            randomWrite();
            {
                Savepoint inner(m_database->get());
                randomWrite();
                compareRanges(1);
                if (m_random.bounded(2) == 0)
                    QVERIFY(inner.commit());
            }
            compareRanges(1);
            randomWrite();
            if (m_random.bounded(2) == 0)
                QVERIFY(outer.commit());
        }
        compareRanges(2);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_EventRanges::agreesInsideASavepoint()
{
    // The first read of all happens where everything may still be rolled back.
    {
        Savepoint savepoint(m_database->get());
        fill();
        compareRanges(5);
    }
    QCOMPARE(m_events->getInRange(firstDay, firstDay.addYears(1), {}).size(), 0);
    compareRanges(5);
}

void tst_EventRanges::agreesAfterCascades()
{
    fill();
    compareRanges(5);
    CalendarRepository calendars(m_database->get());
    QVERIFY(calendars.removeDeep(lit("c0")));
    compareRanges(20);
    {
        Savepoint savepoint(m_database->get());
        QVERIFY(calendars.removeDeep(lit("c1")));
        compareRanges(5);
    }
    compareRanges(20);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("sync_queue")));
    QVERIFY(AccountRepository(m_database->get()).remove(lit("b")));
    compareRanges(20);
}

void tst_EventRanges::agreesOnForeignTexts()
{
    // What other programs may have written: no dates, half dates, dates that do not exist.
    const QStringList texts{ lit("2026-02-30T10:00:00Z"),
                             lit("2026-03-05T10:00:00Z"),
                             lit("2026-03-09T10:00:00Z"),
                             lit("2026-03-02"),
                             lit("2026-2-1T1:00"),
                             lit("10:30"),
                             lit("now"),
                             lit("2459000.5"),
                             lit(""),
                             lit("x"),
                             lit("2026-02-28 10:00:00") };
    int id = 0;
    for (const QString &start : texts) {
        for (const QString &end : texts) {
            m_database->execute(
                lit("INSERT INTO events (id, calendar_id, uid, title, start_time, end_time, raw_icalendar)"
                    " VALUES ('%1', 'c0', '%1', '', '%2', '%3', '')")
                    .arg(++id)
                    .arg(start, end));
        }
    }
    for (int day = 0; day < 30; ++day) {
        const QDateTime start(QDate(2026, 2, 20).addDays(day), QTime(0, 0));
        compareRange(start, start.addDays(1), {});
        compareRange(start, start.addDays(7), {});
    }
}

void tst_EventRanges::findsOverridesWhereverTheyMoved()
{
    fill();
    QStringList uids;
    for (int i = 0; i < count; i += 2)
        uids.append(lit("uid-%1").arg(i));
    const QStringList calendars{ lit("c0"), lit("c2") };
    const auto plain = [&] {
        return m_database->column(lit("SELECT id FROM events WHERE deleted_at IS NULL AND recurrence_id != ''"
                                      " AND calendar_id IN ('c0', 'c2') AND master_event_uid IN ('%1')"
                                      " ORDER BY start_time, rowid")
                                      .arg(uids.join(lit("', '"))));
    };
    const auto found = [&] {
        QStringList ids;
        for (const Event &event : m_events->getOverrides(uids, calendars))
            ids.append(event.id);
        return ids;
    };
    QVERIFY(!plain().isEmpty());
    QCOMPARE(found(), plain());
    for (int i = 0; i < 100; ++i) {
        randomWrite();
        QCOMPARE(found(), plain());
    }
    QCOMPARE(m_events->getOverrides({}, {}).size(), 0);
}

void tst_EventRanges::takesManyCalendars()
{
    fill();
    QStringList ids{ lit("c1") };
    for (int i = 0; i < 40'000; ++i)
        ids.append(lit("other-%1").arg(i));
    const QDateTime start(QDate(2026, 2, 1), QTime(0, 0));
    QCOMPARE(m_events->getInRange(start, start.addDays(7), ids),
             m_events->getInRange(start, start.addDays(7), { lit("c1") }));
}

void tst_EventRanges::givesWholeRecords()
{
    fill();
    const QList<Event> events = m_events->getInRange(firstDay, firstDay.addYears(1), {});
    QVERIFY(!events.isEmpty());
    for (const Event &event : events)
        QCOMPARE(event, m_events->getById(event.id));
}

QTEST_GUILESS_MAIN(tst_EventRanges)
#include "tst_EventRanges.moc"
