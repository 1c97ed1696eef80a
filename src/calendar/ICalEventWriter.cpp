#include "calendar/ICalEventWriter.h"

#include "calendar/ICalParser.h"
#include "models/Event.h"

namespace {

QString stamp(const QDateTime &when)
{
    return when.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

/// A line break in a value would begin another property.
QString oneLine(QString value)
{
    for (QChar &character : value) {
        if (character == u'\r' || character == u'\n')
            character = u' ';
    }
    return value;
}

}

QString ICalEventWriter::buildEventRawIcal(const Event &event)
{
    QString text = QStringLiteral("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:%1\r\nBEGIN:VEVENT\r\n")
                       .arg(QLatin1StringView(ICalParser::ProductId));
    const auto line = [&text](QLatin1StringView name, const QString &value) {
        text += name + oneLine(value) + QStringLiteral("\r\n");
    };
    line(QLatin1StringView("UID:"), event.uid);
    line(QLatin1StringView("SUMMARY:"), event.title);
    line(QLatin1StringView("DTSTART:"), stamp(event.startTime));
    line(QLatin1StringView("DTEND:"), stamp(event.endTime.value_or(event.startTime)));
    if (!event.relatedToUid.isEmpty())
        line(QLatin1StringView("RELATED-TO;RELTYPE=PARENT:"), event.relatedToUid);
    return text + QStringLiteral("END:VEVENT\r\nEND:VCALENDAR\r\n");
}
