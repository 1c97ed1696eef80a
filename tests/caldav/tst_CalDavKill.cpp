// The program dies in the middle of a sync, at each of its requests in turn, and is started again.

#include "caldav/CalDavSyncClient.h"
#include "storage/CalendarRepository.h"
#include "support/SyncWorld.h"
#include "support/TestData.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The part of the program that may die: opens the database, syncs the calendar, ends with 0.
int syncOnce(const QString &databasePath, const QString &calendarId)
{
    AppState state;
    if (!state.openStorage(databasePath))
        return 2;
    CalDavSyncClient client(&state);
    QObject::connect(&client, &CalDavSyncClient::calendarSyncEnded, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    client.syncCalendar(*state.calendars()->getById(calendarId), {}, u"alice"_s, u"secret"_s, {});
    return QCoreApplication::exec();
}

}

class tst_CalDavKill : public QObject {
    Q_OBJECT

private slots:
    void nothingIsLost_data()
    {
        columns<bool>("isStored");
        row("before the server acts", false);
        row("after the server acted", true);
    }
    void nothingIsLost()
    {
        QFETCH(const bool, isStored);
        const int requests = SyncWorld::requestsOfASync();
        QVERIFY(requests >= 10);
        for (int index = 0; index < requests; ++index) {
            SyncWorld world;
            const int before = world.server.requestCount();
            using Fault = FakeCalDav::Fault;
            world.server.fail(index, { isStored ? Fault::SilenceAfter : Fault::Silence, 0 });
            killAtRequest(world, before + index + 1);
            const QByteArray where = "request " + QByteArray::number(index);
            QVERIFY2(world.lost().isEmpty(), (where + " lost " + world.lost().join(u' ').toUtf8()).constData());

            world.device.sync();
            QCOMPARE(world.device.sync(), QString());
            const QByteArray differences = world.differences().join(u"; ").toUtf8();
            QVERIFY2(differences.isEmpty(), (where + ' ' + differences).constData());
            QVERIFY2(world.lost().isEmpty(), (where + " later lost " + world.lost().join(u' ').toUtf8()).constData());
        }
    }

private:
    static void killAtRequest(SyncWorld &world, int count)
    {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(),
                      { u"--sync"_s, world.device.state().path(u"calendar.db"_s), world.device.calendarId() });
        QTRY_VERIFY_WITH_TIMEOUT(world.server.requestCount() >= count || program.state() == QProcess::NotRunning,
                                 30000);
        QVERIFY(world.server.requestCount() >= count);
        program.kill();
        program.waitForFinished();
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--sync")
        return syncOnce(arguments.value(2), arguments.value(3));
    tst_CalDavKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_CalDavKill.moc"
