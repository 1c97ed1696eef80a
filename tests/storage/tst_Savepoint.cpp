#include "models/ViewDef.h"
#include "storage/Savepoint.h"
#include "storage/ViewRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QTest>

namespace {

ViewDef view(const QString &id)
{
    ViewDef result;
    result.id = id;
    result.name = id;
    return result;
}

QStringList storedIds(ScratchDatabase &database)
{
    return database.column(QStringLiteral("SELECT id FROM calendar_views WHERE id != 'all-calendars' ORDER BY id"));
}

}

class tst_Savepoint : public QObject {
    Q_OBJECT

private slots:
    void keepsWhatWasCommitted();
    void rollsBackAtTheEndOfItsScope();
    void nests();
    void outermostDecides();
    void rollbackCountsAsAChange();
    void fullDiskLeavesNothingHalfWritten();
    void refusesWritesAfterTheTransactionWasLost();
};

void tst_Savepoint::keepsWhatWasCommitted()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    Savepoint savepoint(database.get());
    QVERIFY(savepoint.isActive());
    QVERIFY(views.insert(view(QStringLiteral("a"))));
    QVERIFY(savepoint.commit());
    QVERIFY(!savepoint.commit());
    savepoint.rollback();
    QCOMPARE(storedIds(database), QStringList{ QStringLiteral("a") });
    QCOMPARE(database->savepointDepth(), 0);
}

void tst_Savepoint::rollsBackAtTheEndOfItsScope()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    {
        Savepoint savepoint(database.get());
        QVERIFY(views.insert(view(QStringLiteral("a"))));
    }
    QCOMPARE(storedIds(database), QStringList());
    QVERIFY(database->db().transaction()); // none is left open
    QVERIFY(database->db().rollback());
}

void tst_Savepoint::nests()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    Savepoint outer(database.get());
    QVERIFY(views.insert(view(QStringLiteral("a"))));
    {
        Savepoint inner(database.get());
        QVERIFY(views.insert(view(QStringLiteral("b"))));
        Savepoint innermost(database.get());
        QVERIFY(views.insert(view(QStringLiteral("c"))));
        QVERIFY(innermost.commit());
    }
    Savepoint second(database.get());
    QVERIFY(views.insert(view(QStringLiteral("d"))));
    QVERIFY(second.commit());
    QVERIFY(outer.commit());
    QCOMPARE(storedIds(database), QStringList({ QStringLiteral("a"), QStringLiteral("d") }));
}

void tst_Savepoint::outermostDecides()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    {
        Savepoint outer(database.get());
        Savepoint inner(database.get());
        QVERIFY(views.insert(view(QStringLiteral("a"))));
        QVERIFY(inner.commit());
    }
    QCOMPARE(storedIds(database), QStringList());
}

void tst_Savepoint::rollbackCountsAsAChange()
{
    ScratchDatabase database;
    const quint64 generation = database->dataGeneration();
    const quint64 purges = database->eventPurges();
    {
        Savepoint savepoint(database.get());
    }
    QVERIFY(database->dataGeneration() > generation);
    QCOMPARE(database->eventPurges(), purges);

    quint64 purgesInside = 0;
    {
        Savepoint savepoint(database.get());
        database->eventsPurged();
        purgesInside = database->eventPurges();
    }
    QVERIFY(database->eventPurges() > purgesInside);
}

void tst_Savepoint::fullDiskLeavesNothingHalfWritten()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    const int pages = database.column(QStringLiteral("PRAGMA page_count")).first().toInt();
    database.execute(QStringLiteral("PRAGMA max_page_count = %1").arg(pages + 4));

    ViewDef large = view(QString());
    large.name = QString(3000, u'x');
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ViewRepository::insert failed: .*full")));
    bool refused = false;
    {
        Savepoint savepoint(database.get());
        for (int i = 0; i < 50 && !refused; ++i) {
            large.id = QString::number(i);
            refused = !views.insert(large);
        }
    }
    QVERIFY(refused);
    QCOMPARE(storedIds(database), QStringList());

    database.execute(QStringLiteral("PRAGMA max_page_count = 1000000"));
    QVERIFY(views.insert(large));
    QCOMPARE(storedIds(database).size(), 1);
    QCOMPARE(database.problems(), QString());
}

void tst_Savepoint::refusesWritesAfterTheTransactionWasLost()
{
    ScratchDatabase database;
    ViewRepository views(database.get());
    QVERIFY(views.insert(view(QStringLiteral("a"))));
    const quint64 purges = database->eventPurges();
    {
        Savepoint savepoint(database.get());
        QVERIFY(views.insert(view(QStringLiteral("b"))));
        // What SQLite does by itself on a full disk.
        database.execute(QStringLiteral("ROLLBACK"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ViewRepository::insert failed: UNIQUE")));
        QVERIFY(!views.insert(view(QStringLiteral("a"))));
        QTest::ignoreMessage(QtWarningMsg, "ViewRepository::insert failed: the transaction was given up");
        QVERIFY(!views.insert(view(QStringLiteral("c"))));
        QCOMPARE(views.getAll().size(), 2); // reading goes on
        QTest::ignoreMessage(QtWarningMsg, "Savepoint commit failed: the transaction was given up");
        QVERIFY(!savepoint.commit());
    }
    QVERIFY(database->eventPurges() > purges);
    QCOMPARE(storedIds(database), QStringList{ QStringLiteral("a") });
    QVERIFY(views.insert(view(QStringLiteral("d"))));
}

QTEST_GUILESS_MAIN(tst_Savepoint)
#include "tst_Savepoint.moc"
