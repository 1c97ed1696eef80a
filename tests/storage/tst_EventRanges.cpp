#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

const QDateTime firstDay = utc("2026-01-01");
constexpr int count = 300;

}

/// The range query answers partly from memory. Here it is held against the plain statement, on random rows,
/// after every kind of write.
class tst_EventRanges : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_random.seed(20260501);
        m_database = std::make_unique<ScratchDatabase>();
        m_events = std::make_unique<EventRepository>(m_database->get());
        m_database->addAccount(u"a"_s);
        m_database->addAccount(u"b"_s);
        m_database->addCalendar(u"c0"_s, u"a"_s);
        m_database->addCalendar(u"c1"_s, u"a"_s);
        m_database->addCalendar(u"c2"_s, u"b"_s);
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_events.reset();
        m_database.reset();
    }

    void agreesAfterWrites()
    {
        fill();
        compareRanges(200);
        for (int i = 0; i < 300 && !QTest::currentTestFailed(); ++i) {
            randomWrite();
            compareRanges(2);
        }
        QStringList many{ u"c1"_s }; // more than SQLite takes
        for (int i = 0; i < 40'000; ++i)
            many.append(u"other-%1"_s.arg(i));
        QCOMPARE(m_events->getInRange(firstDay, firstDay.addDays(40), many),
                 m_events->getInRange(firstDay, firstDay.addDays(40), { u"c1"_s }));
        const QList<Event> all = m_events->getInRange(firstDay, firstDay.addYears(1), {});
        QVERIFY(!all.isEmpty());
        for (const Event &event : all)
            QCOMPARE(event, m_events->getById(event.id)); // whole records
    }

    void agreesAfterRollbacks()
    {
        {
            // The first read of all happens where everything may still be rolled back.
            Savepoint savepoint(m_database->get());
            fill();
            compareRanges(5);
        }
        QVERIFY(m_events->getInRange(firstDay, firstDay.addYears(1), {}).isEmpty());
        fill();
        for (int i = 0; i < 40 && !QTest::currentTestFailed(); ++i) {
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
        }
    }

    void agreesAfterCascades()
    {
        fill();
        compareRanges(5);
        CalendarRepository calendars(m_database->get());
        QVERIFY(calendars.removeDeep(u"c0"_s));
        compareRanges(20);
        {
            Savepoint savepoint(m_database->get());
            QVERIFY(calendars.removeDeep(u"c1"_s));
            compareRanges(5);
        }
        compareRanges(20);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"sync_queue"_s));
        QVERIFY(AccountRepository(m_database->get()).remove(u"b"_s));
        compareRanges(20);
    }

    void agreesOnForeignTexts()
    {
        // What other programs may have written: no dates, half dates, dates that do not exist.
        const QStringList texts =
            u"2026-02-30T10:00:00Z|2026-03-05T10:00:00Z|2026-03-09T10:00:00Z|2026-03-02|2026-2-1T1:00|10:30|now|"
            "2459000.5||x|2026-02-28 10:00:00"_s.split(u'|');
        int id = 0;
        for (const QString &start : texts) {
            for (const QString &end : texts)
                m_database->execute(
                    u"INSERT INTO events (id, calendar_id, uid, title, start_time, end_time, raw_icalendar)"
                    " VALUES ('%1', 'c0', '%1', '', '%2', '%3', '')"_s.arg(++id)
                        .arg(start, end));
        }
        for (int day = 0; day < 30; ++day) {
            const QDateTime start(QDate(2026, 2, 20).addDays(day), QTime(0, 0));
            compareRange(start, start.addDays(1), {});
            compareRange(start, start.addDays(7), {});
        }
    }

    void findsOverridesWhereverTheyMoved()
    {
        fill();
        QStringList uids;
        for (int i = 0; i < count; i += 2)
            uids.append(u"uid-%1"_s.arg(i));
        const QString plain = u"SELECT id FROM events WHERE deleted_at IS NULL AND recurrence_id != ''"
                              " AND calendar_id IN ('c0', 'c2') AND master_event_uid IN ('%1')"
                              " ORDER BY start_time, rowid"_s.arg(uids.join(u"', '"_s));
        QVERIFY(!m_database->text(plain).isEmpty());
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(idsOf(m_events->getOverrides(uids, { u"c0"_s, u"c2"_s })), m_database->text(plain));
            randomWrite();
        }
        QVERIFY(m_events->getOverrides({}, {}).isEmpty());
    }

private:
    QString randomId() { return QString::number(m_random.bounded(count)); }

    template <typename T> T oneOf(const QList<T> &values) { return values.at(m_random.bounded(values.size())); }

    Event randomEvent(const QString &id)
    {
        const QList<QByteArray> zones{ "UTC", "Pacific/Kiritimati", "Pacific/Pago_Pago", "Europe/Berlin" };
        const QList<int> lengthsMin{ 0, 30, 90, 24 * 60, 7 * 24 * 60, 7 * 24 * 60 + 1, 8 * 24 * 60, 40 * 24 * 60, -60 };
        Event event;
        event.id = id;
        event.uid = u"uid-"_s + id;
        event.calendarId = u"c%1"_s.arg(m_random.bounded(3));
        event.title = QString::number(m_random.generate());
        event.startTime = firstDay.addSecs(m_random.bounded(120 * 24 * 60) * 60LL);
        const QByteArray zone = oneOf(zones);
        if (m_random.bounded(2) == 0)
            event.startTime = event.startTime.toTimeZone(QTimeZone(zone));
        event.timezone = QString::fromLatin1(zone);
        if (m_random.bounded(8) != 0)
            event.endTime = event.startTime.addSecs(oneOf(lengthsMin) * 60LL);
        if (event.endTime && m_random.bounded(6) == 0) // ends in another zone
            event.endTime = event.endTime->toTimeZone(QTimeZone(oneOf(zones)));
        event.isAllDay = m_random.bounded(4) == 0;
        if (m_random.bounded(5) == 0)
            event.recurrenceRule = u"FREQ=WEEKLY"_s;
        if (m_random.bounded(6) == 0) {
            event.masterEventUid = u"uid-"_s + randomId();
            event.recurrenceId = id;
        }
        if (m_random.bounded(10) == 0)
            event.deletedAt = firstDay;
        if (m_random.bounded(3) == 0)
            event.reminders = { Reminder{} };
        return event;
    }

    void fill()
    {
        Savepoint savepoint(m_database->get());
        for (int i = 0; i < count; ++i)
            QVERIFY(m_events->insert(randomEvent(QString::number(i))));
        QVERIFY(savepoint.commit());
    }

    void randomWrite()
    {
        const QString id = randomId();
        const std::optional<Event> stored = m_events->getById(id);
        switch (m_random.bounded(6)) {
        case 0:
            m_events->remove(id);
            break;
        case 1:
            m_events->hardDelete(id);
            break;
        case 2:
            m_events->markSynced(id, u"/h"_s, u"t"_s);
            break;
        case 3:
            m_events->restoreDeleted(stored.value_or(randomEvent(id)));
            break;
        default:
            stored ? m_events->update(randomEvent(id)) : m_events->insert(randomEvent(id));
            break;
        }
    }

    void compareRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds)
    {
        // Each row as "id title", so that stale content shows.
        QStringList actual;
        for (const Event &event : m_events->getInRange(start, end, calendarIds))
            actual.append(event.id + u' ' + event.title);
        QString sql = u"SELECT id || ' ' || title FROM events WHERE start_time < '%1' AND (end_time IS NULL"
                      " OR end_time > '%2' OR (recurrence_rule IS NOT NULL AND recurrence_rule != ''))"
                      " AND deleted_at IS NULL"_s.arg(end.toString(Qt::ISODate), start.toString(Qt::ISODate));
        if (!calendarIds.isEmpty())
            sql += u" AND calendar_id IN ('%1')"_s.arg(calendarIds.join(u"', '"_s));
        QCOMPARE(actual, m_database->column(sql + u" ORDER BY start_time, rowid"_s));
    }

    void compareRanges(int times)
    {
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            const QDateTime start(QDate(2025, 12, 20).addDays(m_random.bounded(140)), QTime(m_random.bounded(24), 0));
            compareRange(start, start.addDays(oneOf<int>({ 1, 7, 42, 400 })),
                         oneOf<QStringList>({ {}, { u"c0"_s }, { u"c1"_s, u"c2"_s }, { u"none"_s } }));
        }
    }

    QRandomGenerator m_random;
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<EventRepository> m_events;
};

QTEST_GUILESS_MAIN(tst_EventRanges)
#include "tst_EventRanges.moc"
