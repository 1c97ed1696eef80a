#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime utc(int day)
{
    return QDateTime(QDate(2026, 5, day), QTime(8, 0), Qt::UTC);
}

}

class tst_CalendarRepository : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsEveryField();
    void storesEmptyTexts();
    void hidesTombstones();
    void removeKeepsACalendarWithChildren();
    void removesDeep();
    void removesDeepWhollyOrNotAtAll();
    void hasOneDefault();
    void signalsEachWrite();

private:
    void addEvent(const QString &calendarId);

    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<CalendarRepository> m_calendars;
};

void tst_CalendarRepository::init()
{
    m_database = std::make_unique<ScratchDatabase>();
    m_calendars = std::make_unique<CalendarRepository>(m_database->get());
    m_database->addAccount(lit("a"));
}

void tst_CalendarRepository::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_calendars.reset();
    m_database.reset();
}

void tst_CalendarRepository::addEvent(const QString &calendarId)
{
    Event event;
    event.id = lit("e-") + calendarId;
    event.uid = event.id;
    event.calendarId = calendarId;
    event.startTime = utc(1);
    event.reminders = { Reminder{} };
    event.attendees = { Attendee{} };
    QVERIFY(EventRepository(m_database->get()).insert(event));
}

void tst_CalendarRepository::keepsEveryField()
{
    m_database->addAccount(lit("b"));
    Calendar calendar{
        .id = lit("c"),
        .accountId = lit("a"),
        .url = lit("https://h/c/"),
        .name = lit("Füße & Co"),
        .description = lit("d"),
        .color = lit("#123456"),
        .timezone = lit("Europe/Berlin"),
        .isVisible = false,
        .isReadOnly = true,
        .isDefault = true,
        .ctag = lit("ctag"),
        .syncToken = lit("sync"),
        .deltaSyncToken = lit("delta"),
        .supportedComponents = lit("[\"VTODO\"]"),
        .allowTasksOverride = true,
        .sortOrder = -3,
        .canonicalKey = lit("key"),
        .syncEnabled = true,
        .isShared = true,
        .sharedWithMe = true,
        .lastSyncError = lit("error"),
        .createdAt = utc(1),
        .updatedAt = utc(2),
        .deletedAt = QDateTime(),
    };
    QVERIFY(m_calendars->insert(calendar));
    QCOMPARE(m_calendars->getById(lit("c")), calendar);

    calendar = Calendar();
    calendar.id = lit("c");
    calendar.accountId = lit("b");
    calendar.createdAt = utc(1);
    calendar.updatedAt = utc(3);
    Calendar written = calendar;
    written.createdAt = utc(9);
    written.deletedAt = utc(9);
    QVERIFY(m_calendars->update(written));
    QCOMPARE(m_calendars->getById(lit("c")), calendar);
    QCOMPARE(m_calendars->getByAccount(lit("b")), QList<Calendar>{ calendar });
    QCOMPARE(m_calendars->getByAccount(lit("a")), QList<Calendar>());
}

void tst_CalendarRepository::storesEmptyTexts()
{
    // QString() would be NULL, which the NOT NULL columns refuse.
    Calendar calendar;
    calendar.id = lit("c");
    calendar.accountId = lit("a");
    calendar.color = QString();
    calendar.timezone = QString();
    calendar.supportedComponents = QString();
    QVERIFY(m_calendars->insert(calendar));
    QCOMPARE(m_database->count(lit("calendars"),
                               lit("name = '' AND url = '' AND color = '' AND ctag IS NULL AND canonical_key IS NULL")),
             1);
    QVERIFY(m_calendars->getById(lit("c"))->createdAt.isValid());
}

void tst_CalendarRepository::hidesTombstones()
{
    m_database->addCalendar(lit("c"), lit("a"));
    QVERIFY(m_calendars->softDelete(lit("c")));
    QCOMPARE(m_calendars->getById(lit("c")), std::nullopt);
    QCOMPARE(m_calendars->getAll().size(), 0);
    QCOMPARE(m_calendars->getByAccount(lit("a")).size(), 0);
    QCOMPARE(m_calendars->getDeleted().size(), 1);
    QVERIFY(m_calendars->getDeleted().first().deletedAt.isValid());
    QVERIFY(m_calendars->restore(lit("c")));
    QVERIFY(!m_calendars->getById(lit("c"))->deletedAt.isValid());
    QCOMPARE(m_calendars->getDeleted().size(), 0);
}

void tst_CalendarRepository::removeKeepsACalendarWithChildren()
{
    m_database->addCalendar(lit("c"), lit("a"));
    addEvent(lit("c"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^CalendarRepository::remove failed: .*FOREIGN KEY")));
    QVERIFY(!m_calendars->remove(lit("c")));
    QVERIFY(m_calendars->getById(lit("c")));
}

void tst_CalendarRepository::removesDeep()
{
    m_database->addCalendar(lit("c"), lit("a"));
    m_database->addCalendar(lit("kept"), lit("a"));
    addEvent(lit("c"));
    addEvent(lit("kept"));
    const quint64 purges = (*m_database)->eventPurges();
    QVERIFY(m_calendars->removeDeep(lit("c")));
    QCOMPARE(m_database->column(lit("SELECT id FROM calendars")), QStringList{ lit("kept") });
    QCOMPARE(m_database->column(lit("SELECT event_id FROM reminders")), QStringList{ lit("e-kept") });
    QCOMPARE(m_database->column(lit("SELECT event_id FROM attendees")), QStringList{ lit("e-kept") });
    QVERIFY((*m_database)->eventPurges() > purges);
}

void tst_CalendarRepository::removesDeepWhollyOrNotAtAll()
{
    m_database->addCalendar(lit("c"), lit("a"));
    addEvent(lit("c"));
    m_database->execute(lit("CREATE TRIGGER refuse BEFORE DELETE ON tasks BEGIN SELECT RAISE(ABORT, 'no'); END"));
    m_database->execute(
        lit("INSERT INTO tasks (id, calendar_id, uid, title, raw_icalendar) VALUES ('t', 'c', 'u', '', '')"));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(lit("^CalendarRepository::deleteDeep failed: no.*\n  DELETE FROM tasks")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(lit("deleteDeep failed: FOREIGN KEY.*\n  DELETE FROM calendars")));
    QSignalSpy changed(m_calendars.get(), &CalendarRepository::calendarsChanged);
    QVERIFY(!m_calendars->removeDeep(lit("c")));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_database->count(lit("events")), 1);
    QCOMPARE(m_database->count(lit("reminders")), 1);
}

void tst_CalendarRepository::hasOneDefault()
{
    for (const auto *id : { "c1", "c2", "c3" })
        m_database->addCalendar(lit(id), lit("a"));
    const QString defaults = lit("SELECT id FROM calendars WHERE is_default = 1");
    for (const auto *id : { "c1", "c2", "c2" }) {
        QVERIFY(m_calendars->setDefault(lit(id)));
        QCOMPARE(m_database->column(defaults), QStringList{ lit(id) });
    }

    m_database->execute(lit("CREATE TRIGGER refuse BEFORE UPDATE ON calendars WHEN NEW.id = 'c3'"
                            " BEGIN SELECT RAISE(ABORT, 'no'); END"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^CalendarRepository::setDefault set failed: no")));
    QVERIFY(!m_calendars->setDefault(lit("c3")));
    QCOMPARE(m_database->column(defaults), QStringList{ lit("c2") });
}

void tst_CalendarRepository::signalsEachWrite()
{
    m_database->addCalendar(lit("c"), lit("a"));
    QSignalSpy changed(m_calendars.get(), &CalendarRepository::calendarsChanged);
    quint64 generation = (*m_database)->dataGeneration();
    const QList<std::function<bool()>> writes{
        [this] { return m_calendars->setVisible(lit("c"), false); },
        [this] { return m_calendars->setDefault(lit("c")); },
        [this] { return m_calendars->softDelete(lit("c")); },
        [this] { return m_calendars->restore(lit("c")); },
        [this] { return m_calendars->update(*m_calendars->getById(lit("c"))); },
        [this] { return m_calendars->remove(lit("c")); },
    };
    for (qsizetype i = 0; i < writes.size(); ++i) {
        QVERIFY(writes.at(i)());
        QCOMPARE(changed.size(), i + 1);
        QVERIFY((*m_database)->dataGeneration() > generation);
        generation = (*m_database)->dataGeneration();
    }
}

QTEST_GUILESS_MAIN(tst_CalendarRepository)
#include "tst_CalendarRepository.moc"
