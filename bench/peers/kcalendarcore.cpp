// KCalendarCore: `parse FILE` and `expand FILE FROM TO REPEATS`, dates as yyyyMMdd in UTC.

#include "Report.h"

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>
#include <KCalendarCore/OccurrenceIterator>

#include <QCoreApplication>
#include <QFile>
#include <QTimeZone>

#include <cstdlib>
#include <cstring>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3)
        return 2;
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray text = file.readAll();

    const Report::Stopwatch parsing;
    KCalendarCore::MemoryCalendar::Ptr calendar(new KCalendarCore::MemoryCalendar(QTimeZone::utc()));
    KCalendarCore::ICalFormat format;
    if (!format.fromRawString(calendar, text))
        return 1;
    if (!std::strcmp(argv[1], "parse"))
        Report::parse("kcalendarcore", std::size_t(calendar->rawIncidences().size()), std::size_t(text.size()),
                      parsing.elapsedMs());

    const auto day = [](const char *date) {
        return QDateTime(QDate::fromString(QString::fromLatin1(date), QStringLiteral("yyyyMMdd")), QTime(0, 0), Qt::UTC);
    };
    for (int rep = 0; argc >= 6 && rep < std::atoi(argv[5]); ++rep) {
        const Report::Stopwatch expanding;
        std::size_t count = 0;
        KCalendarCore::OccurrenceIterator it(*calendar, day(argv[3]), day(argv[4]).addSecs(-1));
        for (; it.hasNext(); it.next())
            ++count;
        Report::expand("kcalendarcore", rep, count, expanding.elapsedMs());
    }
}
