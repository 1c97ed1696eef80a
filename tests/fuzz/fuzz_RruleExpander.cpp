#include "calendar/EventExpansion.h"
#include "calendar/RruleExpander.h"

#include <QTimeZone>

#include <array>
#include <cstdlib>
#include <cstring>

// The input is two instants and a zone for the start and the window, and then the text of the rule.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::array zones{ QTimeZone("Europe/Berlin"), QTimeZone("America/New_York"), QTimeZone("Pacific/Apia"),
                                   QTimeZone("Australia/Lord_Howe") };
    qint64 startMs = 0;
    qint64 fromMs = 0;
    constexpr size_t headSize = sizeof(startMs) + sizeof(fromMs) + 2;
    if (size < headSize)
        return 0;
    std::memcpy(&startMs, data, sizeof(startMs));
    std::memcpy(&fromMs, data + sizeof(startMs), sizeof(fromMs));
    const uint8_t kind = data[headSize - 2];
    const int windowDays = data[headSize - 1] * (kind & 128 ? 4 : 1);
    if (kind & 64) { // else the instants are mostly millions of years away
        startMs %= 4'000'000'000'000;
        fromMs %= 4'000'000'000'000;
    }
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data + headSize), static_cast<qsizetype>(size - headSize));

    Event master;
    master.uid = QStringLiteral("uid");
    master.startTime = (kind & 3) == 3 ? QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC)
                                       : QDateTime::fromMSecsSinceEpoch(startMs, zones[kind >> 2 & 3]);
    if (kind & 32)
        master.endTime = QDateTime::fromMSecsSinceEpoch(fromMs / 2, Qt::UTC);
    master.recurrenceRule = text.section(u'\n', 0, 0);
    master.exceptionDates = text.section(u'\n', 1);
    const QDateTime from = QDateTime::fromMSecsSinceEpoch(fromMs, Qt::UTC);
    const QDateTime to = from.addDays(windowDays);
    const QList<Event> found = RruleExpander::expand(master, from, to);
    if (found.size() > RruleExpander::MaxInstances)
        std::abort();
    for (const Event &event : found) {
        if (master.isRecurring() && (event.startTime >= to || *event.endTime <= from))
            std::abort();
    }
    if (EventExpansion::expand({ master }, from, to).size() != (master.isRecurring() ? found.size() : 1))
        std::abort();
    return 0;
}
