#include "models/ViewDef.h"
#include "storage/Savepoint.h"
#include "storage/ViewRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Savepoint : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_database = std::make_unique<ScratchDatabase>();
        m_views = std::make_unique<ViewRepository>(m_database->get());
    }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_views.reset();
        m_database.reset();
    }

    void rollsBackAtTheEndOfItsScope()
    {
        const quint64 generation = (*m_database)->dataGeneration();
        const quint64 purges = (*m_database)->eventPurges();
        {
            Savepoint outer(m_database->get());
            Savepoint inner(m_database->get());
            QVERIFY(add(u"a"_s));
            QVERIFY(inner.commit()); // the outermost decides
        }
        QCOMPARE(storedIds(), u""_s);
        QVERIFY((*m_database)->db().transaction()); // none is left open
        QVERIFY((*m_database)->db().rollback());
        QVERIFY((*m_database)->dataGeneration() > generation);
        QCOMPARE((*m_database)->eventPurges(), purges);

        quint64 purgesInside = 0;
        {
            Savepoint savepoint(m_database->get());
            (*m_database)->eventsPurged();
            purgesInside = (*m_database)->eventPurges();
        }
        QVERIFY((*m_database)->eventPurges() > purgesInside);
    }

    void nests()
    {
        Savepoint outer(m_database->get());
        QVERIFY(add(u"a"_s));
        {
            Savepoint inner(m_database->get());
            QVERIFY(add(u"b"_s));
            Savepoint innermost(m_database->get());
            QVERIFY(add(u"c"_s));
            QVERIFY(innermost.commit());
        }
        Savepoint second(m_database->get());
        QVERIFY(add(u"d"_s));
        QVERIFY(second.commit());
        QVERIFY(outer.commit());
        QVERIFY(!outer.commit());
        outer.rollback(); // too late
        QCOMPARE(storedIds(), u"a d"_s);
        QCOMPARE((*m_database)->savepointDepth(), 0);
    }

    void fullDiskLeavesNothingHalfWritten()
    {
        const int pages = m_database->text(u"PRAGMA page_count"_s).toInt();
        m_database->execute(u"PRAGMA max_page_count = %1"_s.arg(pages + 4));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"ViewRepository::insert failed: .*full"_s));
        bool refused = false;
        {
            Savepoint savepoint(m_database->get());
            for (int i = 0; i < 50 && !refused; ++i)
                refused = !add(QString::number(i), 3000);
        }
        QVERIFY(refused);
        QCOMPARE(storedIds(), u""_s);

        m_database->execute(u"PRAGMA max_page_count = 1000000"_s);
        QVERIFY(add(u"a"_s, 3000));
        QCOMPARE(storedIds(), u"a"_s);
    }

    void refusesWritesAfterTheTransactionWasLost()
    {
        QVERIFY(add(u"a"_s));
        const quint64 purges = (*m_database)->eventPurges();
        {
            Savepoint savepoint(m_database->get());
            QVERIFY(add(u"b"_s));
            // What SQLite does by itself on a full disk.
            m_database->execute(u"ROLLBACK"_s);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"ViewRepository::insert failed: UNIQUE"_s));
            QVERIFY(!add(u"a"_s));
            QTest::ignoreMessage(QtWarningMsg, "ViewRepository::insert failed: the transaction was given up");
            QVERIFY(!add(u"c"_s));
            QCOMPARE(m_views->getAll().size(), 2); // reading goes on
            QTest::ignoreMessage(QtWarningMsg, "Savepoint commit failed: the transaction was given up");
            QVERIFY(!savepoint.commit());
        }
        QVERIFY((*m_database)->eventPurges() > purges);
        QVERIFY(add(u"d"_s));
        QCOMPARE(storedIds(), u"a d"_s);
    }

private:
    bool add(const QString &id, qsizetype nameSize = 1)
    {
        ViewDef view;
        view.id = id;
        view.name = QString(nameSize, u'x');
        return m_views->insert(view);
    }
    QString storedIds()
    {
        return m_database->text(u"SELECT id FROM calendar_views WHERE id != 'all-calendars' ORDER BY id"_s);
    }

    std::unique_ptr<ScratchDatabase> m_database;
    std::unique_ptr<ViewRepository> m_views;
};

QTEST_GUILESS_MAIN(tst_Savepoint)
#include "tst_Savepoint.moc"
