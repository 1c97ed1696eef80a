#include "caldav/CalDavXml.h"

#include "support/TestData.h"

using namespace CalDavXml;
using namespace Qt::StringLiterals;

namespace {

const QByteArray Declaration = "<?xml version='1.0' encoding='utf-8'?>\n";
const QByteArray D = "xmlns:d='DAV:'";
const QByteArray C = "xmlns:c='urn:ietf:params:xml:ns:caldav'";
const QByteArray CS = "xmlns:cs='http://calendarserver.org/ns/'";
const QByteArray IC = "xmlns:ic='http://apple.com/ns/ical/'";

// Lines after the declaration, with ' for ".
QByteArray body(std::initializer_list<QByteArray> lines)
{
    QByteArray text = Declaration;
    for (const QByteArray &line : lines)
        text += line + '\n';
    return text.replace('\'', '"');
}

QByteArray query(const QByteArray &component, std::initializer_list<QByteArray> timeRange)
{
    return body({ "<c:calendar-query " + D + " " + C + ">", "  <d:prop>", "    <d:getetag/>", "    <c:calendar-data/>",
                  "  </d:prop>", "  <c:filter>", "    <c:comp-filter name='VCALENDAR'>",
                  "      <c:comp-filter name='" + component + "'>" })
        + body(timeRange).sliced(Declaration.size())
        + "      </c:comp-filter>\n    </c:comp-filter>\n  </c:filter>\n</c:calendar-query>\n";
}

QByteArray patch(std::initializer_list<QByteArray> lines)
{
    return body({ "<d:propertyupdate " + D + " " + C + " " + IC + ">", "  <d:set>", "    <d:prop>" })
        + body(lines).sliced(Declaration.size()) + "    </d:prop>\n  </d:set>\n</d:propertyupdate>\n";
}

}

class tst_CalDavXml : public QObject {
    Q_OBJECT

private slots:
    void bodies_data()
    {
        columns<QByteArray, QByteArray>("actual", "expected");
        row("principal", currentUserPrincipalBody(),
            body({ "<d:propfind " + D + ">", "  <d:prop>", "    <d:current-user-principal/>", "  </d:prop>",
                   "</d:propfind>" }));
        row("home set", calendarHomeSetBody(),
            body({ "<d:propfind " + D + " " + C + ">", "  <d:prop>", "    <c:calendar-home-set/>",
                   "    <d:displayname/>", "  </d:prop>", "</d:propfind>" }));
        row("enumeration", calendarEnumerationBody(),
            body({ "<d:propfind " + D + " " + C + " " + CS + " " + IC + ">", "  <d:prop>", "    <d:resourcetype/>",
                   "    <d:displayname/>", "    <c:calendar-description/>", "    <c:supported-calendar-component-set/>",
                   "    <c:calendar-timezone/>", "    <ic:calendar-color/>", "    <cs:getctag/>", "    <d:sync-token/>",
                   "    <d:current-user-privilege-set/>", "  </d:prop>", "</d:propfind>" }));
        row("ctag", ctagBody(),
            body({ "<d:propfind " + D + " " + CS + ">", "  <d:prop>", "    <cs:getctag/>", "    <d:sync-token/>",
                   "  </d:prop>", "</d:propfind>" }));

        row("query", calendarQueryBody({}, {}, u"VTODO"_s), query("VTODO", {}));
        row("query from", calendarQueryBody(utc("2026-01-02T03:04"), {}, u"VEVENT"_s),
            query("VEVENT", { "        <c:time-range start='20260102T030400Z'/>" }));
        row("query to", calendarQueryBody({}, utc("2026-12-31T23:59"), u"VEVENT"_s),
            query("VEVENT", { "        <c:time-range end='20261231T235900Z'/>" }));
        const QDateTime inIndia(QDate(2026, 1, 1), QTime(2, 0), Qt::OffsetFromUTC, 19800);
        row("query between", calendarQueryBody(inIndia, utc("2026-02-01"), u"VEVENT"_s),
            query("VEVENT", { "        <c:time-range start='20251231T203000Z' end='20260201T000000Z'/>" }));

        row("multiget", calendarMultigetBody({ u"/a%20b/1.ics"_s, u"/ä b&c.ics"_s }),
            body({ "<c:calendar-multiget " + D + " " + C + ">", "  <d:prop>", "    <d:getetag/>",
                   "    <c:calendar-data/>", "  </d:prop>", "  <d:href>/a%20b/1.ics</d:href>",
                   "  <d:href>/ä b&c.ics</d:href>", "</c:calendar-multiget>" }));

        const QByteArray mkcalendar = "<c:mkcalendar " + D + " " + C + " " + IC + ">";
        const QByteArray components = "      <c:supported-calendar-component-set>\n        <c:comp name='VEVENT'/>\n"
                                      "        <c:comp name='VTODO'/>\n      </c:supported-calendar-component-set>";
        const QByteArray mkcalendarEnd = "    </d:prop>\n  </d:set>\n</c:mkcalendar>";
        row("mkcalendar with all", mkcalendarBody(u"A&B <\"x\"> 'é'"_s, u"#4285f4"_s, u"1 < 2"_s),
            body({ mkcalendar, "  <d:set>", "    <d:prop>",
                   "      <d:displayname>A&amp;B &lt;&quot;x&quot;&gt; &apos;é&apos;</d:displayname>",
                   "      <c:calendar-description>1 &lt; 2</c:calendar-description>", components,
                   "      <ic:calendar-color>#4285F4FF</ic:calendar-color>", mkcalendarEnd }));
        row("mkcalendar without a name", mkcalendarBody({}, {}, {}),
            body({ mkcalendar, "  <d:set>", "    <d:prop>", "      <d:displayname></d:displayname>", components,
                   mkcalendarEnd }));

        row("patch of all", calendarPropPatchBody(u"N"_s, u"abcdef"_s, u"T"_s),
            patch({ "      <d:displayname>N</d:displayname>", "      <ic:calendar-color>#ABCDEFFF</ic:calendar-color>",
                    "      <c:calendar-description>T</c:calendar-description>" }));
        row("patch of a short colour", calendarPropPatchBody({}, u"#abc"_s, {}),
            patch({ "      <ic:calendar-color>#ABC</ic:calendar-color>" }));
        row("patch of a colour with alpha", calendarPropPatchBody({}, u"#11223380"_s, {}),
            patch({ "      <ic:calendar-color>#11223380</ic:calendar-color>" }));
        row("patch of nothing", calendarPropPatchBody({}, {}, {}), patch({}));
    }
    void bodies()
    {
        QFETCH(QByteArray, actual);
        QTEST(actual, "expected");
    }
};

QTEST_APPLESS_MAIN(tst_CalDavXml)
#include "tst_CalDavXml.moc"
