#include "support/SyncWorld.h"

#include "calendar/ICalParser.h"
#include "storage/TaskRepository.h"
#include "support/TestData.h"

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

}

SyncWorld::SyncWorld()
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

int SyncWorld::requestsOfASync()
{
    SyncWorld world;
    const int before = world.server.requestCount();
    world.device.sync();
    return world.server.requestCount() - before;
}

bool SyncWorld::serverSays(const QByteArray &name, const QByteArray &line) const
{
    return server.text(name + ".ics").contains(line);
}

bool SyncWorld::eventWaits(const QString &uid, const QString &title)
{
    const auto row = device.state()->events()->getByUid(uid, device.calendarId());
    return row && row->title == title && row->syncStatus == SyncStatus::Pending && !row->deletedAt;
}

bool SyncWorld::taskWaits(const QString &uid, const QString &title)
{
    const auto row = device.state()->tasks()->getByUid(uid, device.calendarId());
    return row && row->title == title && row->syncStatus == SyncStatus::Pending && !row->deletedAt;
}

QStringList SyncWorld::lost()
{
    QStringList missing;
    const auto check = [&missing](const char *what, bool isThere, bool waits) {
        if (!isThere && !waits)
            missing.append(QLatin1StringView(what));
    };
    check("edited", serverSays("edited", "SUMMARY:Edited"), eventWaits(u"edited"_s, u"Edited"_s));
    check("series", serverSays("series", "LOCATION:Edited"), eventWaits(u"series"_s, u"As it was"_s));
    check("added", serverSays("added", "SUMMARY:Added"), eventWaits(u"added"_s, u"Added"_s));
    check("task-edited", serverSays("task-edited", "SUMMARY:Edited"), taskWaits(u"task-edited"_s, u"Edited"_s));
    check("task-added", serverSays("task-added", "SUMMARY:Added"), taskWaits(u"task-added"_s, u"Added"_s));
    check("deleted", !server.objects().contains("deleted.ics"), !device.hasEvent(u"deleted"_s));
    check("task-deleted", !server.objects().contains("task-deleted.ics"), !device.hasTask(u"task-deleted"_s));
    return missing;
}

QStringList SyncWorld::differences()
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
