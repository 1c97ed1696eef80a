// Every request of a sync run fails once, in every way. Whatever happens, nothing that the user wrote is gone, a good
// run afterwards brings both sides together, and a further one has nothing to write.

#include "calendar/ICalParser.h"
#include "caldav/SilenceGuard.h"
#include "storage/TaskRepository.h"
#include "support/FakeCalDav.h"
#include "support/SyncDevice.h"
#include "support/TestData.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray event(const QByteArray &uid, const QByteArray &title, const QByteArray &more = {})
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Phone//EN\r\nBEGIN:VEVENT\r\nUID:" + uid
        + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + title
        + "\r\nDTSTART:20260315T090000Z\r\nDTEND:20260315T100000Z\r\nX-KEPT:yes\r\n" + more
        + "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

QByteArray task(const QByteArray &uid, const QByteArray &title)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Phone//EN\r\nBEGIN:VTODO\r\nUID:" + uid
        + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + title + "\r\nX-KEPT:yes\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
}

/// A calendar in which both sides have changed something since they last met.
struct World {
    FakeCalDav server;
    SyncDevice device{ server.calendarUrl() };

    World()
    {
        for (const QByteArray name : { "edited", "deleted", "theirs", "gone-there" })
            server.store(name + ".ics", event(name, "As it was"));
        server.store("series.ics", event("series", "As it was", "RRULE:FREQ=DAILY;COUNT=9\r\n"));
        for (const QByteArray name : { "task-edited", "task-deleted" })
            server.store(name + ".ics", task(name, "As it was"));
        if (const QString failure = device.sync(); !failure.isEmpty())
            qFatal("%s", qPrintable(failure));

        device.edit(u"edited"_s, [](Event &row) { row.title = u"Edited"_s; });
        device.edit(u"series"_s, [](Event &row) { row.location = u"Edited"_s; });
        device.removeEvent(u"deleted"_s);
        device.addEvent(u"added"_s, u"Added"_s, utc("2026-04-01T09:00"));
        device.editTask(u"task-edited"_s, [](Task &row) { row.title = u"Edited"_s; });
        device.removeTask(u"task-deleted"_s);
        device.addTask(u"task-added"_s, u"Added"_s);
        server.store("theirs.ics", event("theirs", "Changed there"));
        server.store("new-there.ics", event("new-there", "New there"));
        server.remove("gone-there.ics");
    }

    [[nodiscard]] bool serverSays(const QByteArray &name, const QByteArray &line) const
    {
        return server.text(name + ".ics").contains(line);
    }

    /// What the user wrote is with the server, or still here and waiting.
    QStringList lost()
    {
        QStringList missing;
        const auto check = [&missing](const char *what, bool isThere, bool waits) {
            if (!isThere && !waits)
                missing.append(QLatin1StringView(what));
        };
        const auto waits = [this](const QString &uid, const QString &title) {
            const auto row = device.state()->events()->getByUid(uid, device.calendarId());
            return row && row->title == title && row->syncStatus == SyncStatus::Pending && !row->deletedAt;
        };
        const auto taskWaits = [this](const QString &uid, const QString &title) {
            const auto row = device.state()->tasks()->getByUid(uid, device.calendarId());
            return row && row->title == title && row->syncStatus == SyncStatus::Pending && !row->deletedAt;
        };
        check("edited", serverSays("edited", "SUMMARY:Edited"), waits(u"edited"_s, u"Edited"_s));
        check("series", serverSays("series", "LOCATION:Edited"), waits(u"series"_s, u"As it was"_s));
        check("added", serverSays("added", "SUMMARY:Added"), waits(u"added"_s, u"Added"_s));
        check("task-edited", serverSays("task-edited", "SUMMARY:Edited"), taskWaits(u"task-edited"_s, u"Edited"_s));
        check("task-added", serverSays("task-added", "SUMMARY:Added"), taskWaits(u"task-added"_s, u"Added"_s));
        check("deleted", !server.objects().contains("deleted.ics"), !device.hasEvent(u"deleted"_s));
        check("task-deleted", !server.objects().contains("task-deleted.ics"), !device.hasTask(u"task-deleted"_s));
        return missing;
    }

    /// Where the two sides differ.
    QStringList differences()
    {
        QStringList result;
        QStringList there;
        for (const FakeCalDav::Object &object : server.objects()) {
            for (const Event &row : ICalParser::parse(object.text))
                there.append(row.uid + u'/' + row.title + u'/' + row.location);
            for (const Task &row : ICalParser::parseTasks(object.text))
                there.append(row.uid + u'/' + row.title);
            if (!object.text.contains("X-KEPT:yes") && !object.text.contains(":Added"))
                result.append(u"a foreign property is gone"_s);
        }
        QStringList here;
        for (const Event &row : device.state()->events()->getByCalendar(device.calendarId()))
            here.append(row.uid + u'/' + row.title + u'/' + row.location);
        for (const Task &row : device.state()->tasks()->getByCalendar(device.calendarId()))
            here.append(row.uid + u'/' + row.title);
        there.sort();
        here.sort();
        if (here != there)
            result.append(u"here: "_s + here.join(u' ') + u" there: "_s + there.join(u' '));
        if (device.pendingCount() > 0)
            result.append(u"pending rows"_s);
        return result;
    }
};

struct NamedFault {
    const char *name;
    FakeCalDav::Fault fault;
};

const QList<NamedFault> &faults()
{
    using Fault = FakeCalDav::Fault;
    static const QList<NamedFault> list{
        { "401", { Fault::Status, 401 } },       { "403", { Fault::Status, 403 } },
        { "404", { Fault::Status, 404 } },       { "412", { Fault::Status, 412 } },
        { "500", { Fault::Status, 500 } },       { "507", { Fault::Status, 507 } },
        { "cut", { Fault::CutBody, 0 } },        { "half", { Fault::TruncatedXml, 0 } },
        { "foreign", { Fault::ForeignXml, 0 } }, { "silence", { Fault::Silence, 0 } },
        { "before", { Fault::DropBefore, 0 } },  { "after", { Fault::DropAfter, 0 } },
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
        int requests = 1;
        for (int index = 0; index < requests; ++index) {
            World world;
            const int before = world.server.requestCount();
            world.server.fail(index, faults().at(fault).fault);
            const QString failure = world.device.sync();
            requests = std::max(requests, world.server.requestCount() - before);
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
        QVERIFY(requests >= 10);
    }

    void answersWithoutEtagsConverge()
    {
        World world;
        world.server.givesEtagOnPut = false;
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.differences(), QStringList());
        const int writes = world.device.writes();
        QCOMPARE(world.device.sync(), QString());
        QCOMPARE(world.device.writes(), writes);
    }
};

QTEST_GUILESS_MAIN(tst_CalDavFaults)
#include "tst_CalDavFaults.moc"
