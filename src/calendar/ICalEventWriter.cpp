#include "calendar/ICalEventWriter.h"

#include "calendar/ICalParser.h"
#include "calendar/RruleExpander.h"
#include "models/Event.h"

namespace {

// A line break would end the property and begin another one.
QString oneLine(QString text)
{
    return text.replace(QLatin1StringView("\r\n"), QLatin1StringView(" ")).replace(u'\r', u' ').replace(u'\n', u' ');
}

}

QString ICalEventWriter::buildEventRawIcal(const Event &event)
{
    const QString start = RruleExpander::formatRecurrenceId(event.startTime);
    const QString end = event.endTime ? RruleExpander::formatRecurrenceId(*event.endTime) : QString();
    QString text = QStringLiteral("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:")
        + QLatin1StringView(ICalParser::ProductId)
        + QStringLiteral("\r\nBEGIN:VEVENT\r\nUID:%1\r\nSUMMARY:%2\r\nDTSTART:%3\r\nDTEND:%4\r\n")
              .arg(oneLine(event.uid), oneLine(event.title), start, end.isEmpty() ? start : end);
    if (!event.relatedToUid.isEmpty())
        text += QStringLiteral("RELATED-TO;RELTYPE=PARENT:%1\r\n").arg(oneLine(event.relatedToUid));
    return text + QStringLiteral("END:VEVENT\r\nEND:VCALENDAR\r\n");
}
