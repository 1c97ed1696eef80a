#include "storage/CalendarRepository.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_CalendarRepository : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<ScratchDatabase>();
        m_calendars = std::make_unique<CalendarRepository>(m_database->get());
        m_database->addAccount(u"a"_s);
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_calendars.reset();
        m_database.reset();
    }

    void hidesTombstones()
    {
        m_database->addCalendar(u"c"_s, u"a"_s);
        QCOMPARE(idsOf(m_calendars->getByAccount(u"a"_s)), u"c"_s);
        QCOMPARE(idsOf(m_calendars->getByAccount(u"b"_s)), u""_s);
        QVERIFY(m_calendars->softDelete(u"c"_s));
        QCOMPARE(m_calendars->getById(u"c"_s), std::nullopt);
        QVERIFY(m_calendars->getAll().isEmpty() && m_calendars->getByAccount(u"a"_s).isEmpty());
        QVERIFY(m_calendars->getDeleted().value(0).deletedAt.isValid());
        QVERIFY(m_calendars->restore(u"c"_s));
        QVERIFY(!m_calendars->getById(u"c"_s)->deletedAt.isValid());
        QVERIFY(m_calendars->getDeleted().isEmpty());
    }

    void removesDeep()
    {
        m_database->addFullCalendar(u"c"_s, u"a"_s);
        m_database->addFullCalendar(u"kept"_s, u"a"_s);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^CalendarRepository::remove failed: .*FOREIGN KEY"_s));
        QVERIFY(!m_calendars->remove(u"c"_s)); // as it has children
        const quint64 purges = (*m_database)->eventPurges();
        QVERIFY(m_calendars->removeDeep(u"c"_s));
        QCOMPARE(m_database->text(u"SELECT id FROM calendars"_s), u"kept"_s);
        for (const char *table : { "events", "tasks", "reminders", "attendees", "attachments", "task_reminders" })
            QCOMPARE(m_database->count(QString::fromLatin1(table)), 1);
        QVERIFY((*m_database)->eventPurges() > purges);
    }

    void removesDeepWhollyOrNotAtAll()
    {
        m_database->addFullCalendar(u"c"_s, u"a"_s);
        m_database->execute(u"CREATE TRIGGER refuse BEFORE DELETE ON tasks BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
        for (const QString &reason : { u"no.*\n  DELETE FROM tasks"_s, u"FOREIGN KEY.*\n  DELETE FROM calendars"_s })
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"deleteDeep failed: "_s + reason));
        QSignalSpy changed(m_calendars.get(), &CalendarRepository::calendarsChanged);
        QVERIFY(!m_calendars->removeDeep(u"c"_s));
        QCOMPARE(changed.size(), 0);
        QCOMPARE(m_database->count(u"events"_s) + m_database->count(u"reminders"_s), 2);
    }

    void hasOneDefault()
    {
        for (const QString &id : { u"c1"_s, u"c2"_s, u"c3"_s })
            m_database->addCalendar(id, u"a"_s);
        const QString defaults = u"SELECT id FROM calendars WHERE is_default = 1"_s;
        for (const QString &id : { u"c1"_s, u"c2"_s, u"c2"_s }) {
            QVERIFY(m_calendars->setDefault(id));
            QCOMPARE(m_database->text(defaults), id);
        }
        m_database->execute(u"CREATE TRIGGER refuse BEFORE UPDATE ON calendars WHEN NEW.id = 'c3'"
                            " BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^CalendarRepository::setDefault set failed: no"_s));
        QVERIFY(!m_calendars->setDefault(u"c3"_s));
        QCOMPARE(m_database->text(defaults), u"c2"_s);
    }

    void signalsEachWrite()
    {
        m_database->addCalendar(u"c"_s, u"a"_s);
        QSignalSpy changed(m_calendars.get(), &CalendarRepository::calendarsChanged);
        const quint64 generation = (*m_database)->dataGeneration();
        QVERIFY(m_calendars->setVisible(u"c"_s, false) && m_calendars->setDefault(u"c"_s));
        QVERIFY(m_calendars->update(*m_calendars->getById(u"c"_s)));
        QVERIFY(m_calendars->softDelete(u"c"_s) && m_calendars->restore(u"c"_s) && m_calendars->remove(u"c"_s));
        QCOMPARE(changed.size(), 6);
        QCOMPARE((*m_database)->dataGeneration(), generation + 6);
    }

private:
    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<CalendarRepository> m_calendars;
};

QTEST_GUILESS_MAIN(tst_CalendarRepository)
#include "tst_CalendarRepository.moc"
