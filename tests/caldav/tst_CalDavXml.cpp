#include "caldav/CalDavXml.h"

#include "support/TestData.h"

using namespace CalDavXml;
using namespace Qt::StringLiterals;

namespace {

// A body behind its declaration: ' for ", | for the end of a line, and the namespaces by their prefix.
QByteArray body(QByteArray text)
{
    text.prepend("<?xml version='1.0' encoding='utf-8'?>|").append('|');
    text.replace("@d", "xmlns:d='DAV:'").replace("@c", "xmlns:c='urn:ietf:params:xml:ns:caldav'");
    text.replace("@i", "xmlns:ic='http://apple.com/ns/ical/'");
    return text.replace('\'', '"').replace('|', '\n');
}

QByteArray query(const QByteArray &component, const QByteArray &timeRange)
{
    return body("<c:calendar-query @d @c>|  <d:prop>|    <d:getetag/>|    <c:calendar-data/>|  </d:prop>|  <c:filter>|"
                "    <c:comp-filter name='VCALENDAR'>|      <c:comp-filter name='"
                + component + "'>|" + timeRange
                + "      </c:comp-filter>|    </c:comp-filter>|  </c:filter>|</c:calendar-query>");
}

QByteArray mkcalendar(const QByteArray &before, const QByteArray &after)
{
    return body("<c:mkcalendar @d @c @i>|  <d:set>|    <d:prop>|" + before
                + "      <c:supported-calendar-component-set>|        <c:comp name='VEVENT'/>|"
                  "        <c:comp name='VTODO'/>|      </c:supported-calendar-component-set>|"
                + after + "    </d:prop>|  </d:set>|</c:mkcalendar>");
}

QByteArray patch(const QByteArray &lines)
{
    return body("<d:propertyupdate @d @c @i>|  <d:set>|    <d:prop>|" + lines
                + "    </d:prop>|  </d:set>|</d:propertyupdate>");
}

}

class tst_CalDavXml : public QObject {
    Q_OBJECT

private slots:
    void bodies_data()
    {
        columns<QByteArray, QByteArray>("actual", "expected");
        row("multiget", calendarMultigetBody({ u"/a%20b/1.ics"_s, u"/ä b&c.ics"_s }),
            body("<c:calendar-multiget @d @c>|  <d:prop>|    <d:getetag/>|    <c:calendar-data/>|  </d:prop>|"
                 "  <d:href>/a%20b/1.ics</d:href>|  <d:href>/ä b&c.ics</d:href>|</c:calendar-multiget>"));

        const QDateTime inIndia(QDate(2026, 1, 1), QTime(2, 0), Qt::OffsetFromUTC, 19800);
        row("query", calendarQueryBody({}, {}, u"VTODO"_s), query("VTODO", {}));
        row("query to", calendarQueryBody({}, inIndia, u"VEVENT"_s),
            query("VEVENT", "        <c:time-range end='20251231T203000Z'/>|"));
        row("query between", calendarQueryBody(inIndia, utc("2026-02-01"), u"VEVENT"_s),
            query("VEVENT", "        <c:time-range start='20251231T203000Z' end='20260201T000000Z'/>|"));

        row("mkcalendar with all", mkcalendarBody(u"A&B <\"x\"> 'é'"_s, u"#4285f4"_s, u"1 < 2"_s),
            mkcalendar("      <d:displayname>A&amp;B &lt;&quot;x&quot;&gt; &apos;é&apos;</d:displayname>|"
                       "      <c:calendar-description>1 &lt; 2</c:calendar-description>|",
                       "      <ic:calendar-color>#4285F4FF</ic:calendar-color>|"));
        row("mkcalendar with nothing", mkcalendarBody({}, {}, {}),
            mkcalendar("      <d:displayname></d:displayname>|", {}));

        row("patch of all", calendarPropPatchBody(u"N"_s, u"abcdef"_s, u"T"_s),
            patch("      <d:displayname>N</d:displayname>|      <ic:calendar-color>#ABCDEFFF</ic:calendar-color>|"
                  "      <c:calendar-description>T</c:calendar-description>|"));
        row("patch of an odd colour", calendarPropPatchBody({}, u"#abcd"_s, {}),
            patch("      <ic:calendar-color>#ABCD</ic:calendar-color>|"));
    }
    void bodies()
    {
        QFETCH(QByteArray, actual);
        QTEST(actual, "expected");
    }
};

QTEST_APPLESS_MAIN(tst_CalDavXml)
#include "tst_CalDavXml.moc"
