// Every request of a sync run fails once, in every way. Whatever happens, nothing that the user wrote is gone, a good
// run afterwards brings both sides together, and a further one has nothing to write.

#include "caldav/SilenceGuard.h"
#include "support/SyncWorld.h"
#include "support/TestData.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct NamedFault {
    const char *name;
    FakeCalDav::Fault fault;
};

const QList<NamedFault> &faults()
{
    using Fault = FakeCalDav::Fault;
    static const QList<NamedFault> list{
        { "401", { Fault::Status, 401 } },
        { "403", { Fault::Status, 403 } },
        { "404", { Fault::Status, 404 } },
        { "412", { Fault::Status, 412 } },
        { "500", { Fault::Status, 500 } },
        { "507", { Fault::Status, 507 } },
        { "cut", { Fault::CutBody, 0 } },
        { "half", { Fault::TruncatedXml, 0 } },
        { "foreign", { Fault::ForeignXml, 0 } },
        { "silence", { Fault::Silence, 0 } },
        { "silence after", { Fault::SilenceAfter, 0 } },
        { "before", { Fault::DropBefore, 0 } },
        { "after", { Fault::DropAfter, 0 } },
    };
    return list;
}

}

class tst_CalDavFaults : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { SilenceGuard::setHaste(1000); } // two minutes in 120 ms

    void everyRequestFailsOnce_data()
    {
        columns<int>("fault");
        for (int i = 0; i < faults().size(); ++i)
            row(faults().at(i).name, i);
    }
    void everyRequestFailsOnce()
    {
        QFETCH(const int, fault);
        const int requests = SyncWorld::requestsOfASync();
        QVERIFY(requests >= 10);
        for (int index = 0; index < requests; ++index) {
            SyncWorld world;
            world.server.fail(index, faults().at(fault).fault);
            const QString failure = world.device.sync();
            const QByteArray where = "request " + QByteArray::number(index) + ": " + failure.toUtf8();
            QVERIFY2(world.lost().isEmpty(), (where + " lost " + world.lost().join(u' ').toUtf8()).constData());

            // A conflict takes two: the first brings the server's etag.
            world.device.sync();
            QCOMPARE(world.device.sync(), QString());
            const QByteArray differences = world.differences().join(u"; ").toUtf8();
            QVERIFY2(differences.isEmpty(), (where + ' ' + differences).constData());
            QVERIFY2(world.lost().isEmpty(), (where + " later lost " + world.lost().join(u' ').toUtf8()).constData());

            world.device.sync(); // takes etags that an answer did not give
            const int writes = world.device.writes();
            const int puts = world.server.count("PUT");
            QCOMPARE(world.device.sync(), QString());
            QCOMPARE(world.device.writes(), writes);
            QCOMPARE(world.server.count("PUT"), puts);
        }
    }

    void aListingMayTakeLongToBegin()
    {
        SyncWorld world;
        world.server.fail(1, { FakeCalDav::Fault::Silence, 0 });
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!world.device.sync().isEmpty());
        QVERIFY2(clock.elapsed() > 550, "ten minutes are 600 ms here");
    }

    void answersWithoutEtagsConverge()
    {
        SyncWorld world;
        world.server.givesEtagOnPut = false;
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.server.count("GET"), 0);
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.differences(), QStringList());
        const int writes = world.device.writes();
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.device.writes(), writes);
    }
};

QTEST_GUILESS_MAIN(tst_CalDavFaults)
#include "tst_CalDavFaults.moc"
