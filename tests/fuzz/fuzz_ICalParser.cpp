#include "calendar/ICalParser.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdint>

namespace {

void require(bool holds)
{
    if (!holds)
        qFatal("a property of the parser does not hold");
}

void readInSlices(const QByteArray &text, int maxEvents, qsizetype maxBytes)
{
    ICalParser::EventReader reader(text);
    QList<Event> events;
    while (!reader.atEnd()) {
        const qsizetype before = reader.bytesRead();
        const QList<Event> more = reader.read(maxEvents, maxBytes);
        require(more.size() <= maxEvents && reader.bytesRead() > before);
        events.append(more);
    }
    require(events == ICalParser::parse(text));
}

void writeAndReadAgain(const Task &task)
{
    const QList<Task> again = ICalParser::parseTasks(ICalParser::serializeTaskToVCalendar(task));
    require(again.size() == 1);
    // A UID is written without escapes; a byte order mark at the start of a text goes when it is decoded.
    const auto survives = [](const QString &text) {
        return !text.contains(u'\r') && !text.startsWith(QChar::ByteOrderMark);
    };
    if (survives(task.uid) && !task.uid.contains(u'\\'))
        require(again.first().uid == task.uid);
    if (survives(task.title))
        require(again.first().title == task.title);
    require(again.first().recurrenceRule.isEmpty() == task.recurrenceRule.isEmpty());
    require(again.first().sequence == std::max(task.sequence, 0));
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    readInSlices(text, 2, 40);
    const QDateTime start(QDate(2026, 3, 15), QTime(9, 0), Qt::UTC);
    for (const Event &event : ICalParser::parse(text)) {
        const QString moved = ICalParser::replaceVeventDtstartDtend(event.rawIcalendar, start, start.addSecs(3600));
        require(ICalParser::replaceVeventDtstartDtend(moved, start, {}).contains(u"DTSTART"));
    }
    for (const Task &task : ICalParser::parseTasks(text))
        writeAndReadAgain(task);
    const QString decoded = QString::fromUtf8(text);
    require(ICalParser::parseDurationSeconds(decoded) >= 0 && ICalParser::parseTriggerMinutes(decoded) >= -1);
    ICalParser::replaceVeventDtstartDtend(decoded, start, {});
    return 0;
}
