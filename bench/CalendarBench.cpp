#include "CalendarBench.h"

#include "calendar/EventExpansion.h"
#include "calendar/ICalParser.h"
#include "peers/Report.h"

#include <QFile>

namespace {

std::optional<QByteArray> readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

QDateTime dayInUtc(const QString &text)
{
    return {QDate::fromString(text, u"yyyyMMdd"), QTime(0, 0), Qt::UTC};
}

/// What a range query hands to the expansion: every series, and the singles of the window.
QList<Event> rowsInRange(const QList<Event> &all, const QDateTime &from, const QDateTime &to)
{
    QList<Event> rows;
    std::ranges::copy_if(all, std::back_inserter(rows), [&](const Event &event) {
        return event.isRecurring() || (event.startTime < to && (!event.endTime || *event.endTime > from));
    });
    return rows;
}

}

bool CalendarBench::parse(const QString &path)
{
    const auto text = readAll(path);
    if (!text)
        return false;
    const Report::Stopwatch watch;
    const QList<Event> events = ICalParser::parse(*text);
    const QList<Task> tasks = ICalParser::parseTasks(*text);
    Report::parse("ours", size_t(events.size() + tasks.size()), size_t(text->size()), watch.elapsedMs());
    return true;
}

bool CalendarBench::expand(const QString &path, const QString &from, const QString &to, int repeats)
{
    const auto text = readAll(path);
    const QDateTime start = dayInUtc(from);
    const QDateTime end = dayInUtc(to);
    if (!text || !start.isValid() || !end.isValid())
        return false;
    const QList<Event> all = ICalParser::parse(*text);
    for (int rep = 0; rep < repeats; ++rep) {
        const Report::Stopwatch watch;
        const QList<Event> instances = EventExpansion::expand(rowsInRange(all, start, end), start, end);
        Report::expand("ours", rep, size_t(instances.size()), watch.elapsedMs());
    }
    return true;
}
