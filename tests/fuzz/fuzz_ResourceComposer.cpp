// A server's text, whatever it is, with one change of the user written over it.

#include "calendar/ICalParser.h"
#include "calendar/ResourceComposer.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdint>

namespace {

const ResourceComposer::Context context{ .now = QDateTime(QDate(2026, 3, 15), QTime(9, 0), Qt::UTC),
                                         .ownAddresses = { QStringLiteral("me@example.com") } };

void require(bool holds)
{
    if (!holds)
        qFatal("a property of the composer does not hold");
}

void requireLines(const QByteArray &text)
{
    for (const QByteArray &line : text.split('\n'))
        require(line.isEmpty() || line.endsWith('\r'));
    require(text.isEmpty() || text.startsWith("BEGIN:VCALENDAR"));
}

Event changed(Event event, int choice)
{
    event.title = QStringLiteral("Changed; here, and \\ there");
    if (choice & 1)
        event.location = QStringLiteral("Room\r\nBEGIN:VEVENT");
    if (choice & 2)
        event.recurrenceRule = QStringLiteral("FREQ=DAILY;COUNT=3");
    if (choice & 4)
        event.reminders.append(Reminder());
    if (choice & 8)
        event.attendees.clear();
    return event;
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const int choice = size ? data[0] : 0;
    const QList<Event> events = ICalParser::parse(text);
    for (const Event &event : events.first(std::min<qsizetype>(events.size(), 3))) {
        if (!event.startTime.isValid())
            continue;
        const auto composed = ResourceComposer::composeEvents(text, { changed(event, choice) }, {}, context);
        requireLines(composed.text);
        require(composed.isChanged);
        const QList<Event> again = ICalParser::parse(composed.text);
        require(std::ranges::any_of(again, [](const Event &e) { return e.title.startsWith(u"Changed; here"); }));
        requireLines(ResourceComposer::composeEvents(text, {}, { event }, context).text);
    }
    const QList<Task> tasks = ICalParser::parseTasks(text);
    for (Task task : tasks.first(std::min<qsizetype>(tasks.size(), 3))) {
        task.title = QStringLiteral("Changed\nhere");
        task.status = QStringLiteral("completed");
        requireLines(ResourceComposer::composeTask(text, task, context).text);
    }
    return 0;
}
