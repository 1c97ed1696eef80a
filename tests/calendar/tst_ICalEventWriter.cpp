#include "calendar/ICalEventWriter.h"
#include "models/Event.h"
#include "support/TestData.h"

using namespace Qt::StringLiterals;

class tst_ICalEventWriter : public QObject {
    Q_OBJECT

private slots:
    void writesOneEvent()
    {
        Event event;
        event.uid = u"u%1"_s;
        event.title = u"a, %2\r\nDTSTART:1\rb\n"_s;
        event.startTime = QDateTime(QDate(2026, 5, 5), QTime(9, 0), Qt::OffsetFromUTC, 7200);
        const QString head = u"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quillon//Calendar Desktop//EN\r\n"
                             "BEGIN:VEVENT\r\nUID:u%1\r\nSUMMARY:a, %2 DTSTART:1 b \r\nDTSTART:20260505T070000Z\r\n"_s;
        const QString tail = u"END:VEVENT\r\nEND:VCALENDAR\r\n"_s;
        QCOMPARE(ICalEventWriter::buildEventRawIcal(event), head + u"DTEND:20260505T070000Z\r\n"_s + tail);
        event.endTime = utc("2026-05-06T08:30");
        event.relatedToUid = u"t\n1"_s;
        QCOMPARE(ICalEventWriter::buildEventRawIcal(event),
                 head + u"DTEND:20260506T083000Z\r\nRELATED-TO;RELTYPE=PARENT:t 1\r\n"_s + tail);
    }
};

QTEST_GUILESS_MAIN(tst_ICalEventWriter)
#include "tst_ICalEventWriter.moc"
