#include "caldav/CalDavParse.h"

#include "support/TestData.h"

using namespace CalDavParse;
using namespace Qt::StringLiterals;

namespace {

const QUrl Base(u"https://example.com/"_s);

QByteArray multistatus(const QByteArray &content)
{
    return "<?xml version='1.0'?><m:multistatus xmlns:m='DAV:' xmlns='urn:ietf:params:xml:ns:caldav' "
           "xmlns:s='http://calendarserver.org/ns/' xmlns:i='http://apple.com/ns/ical/' xmlns:x='urn:x'>"
        + content + "</m:multistatus>\n";
}

QByteArray response(const QByteArray &href, const QByteArray &properties)
{
    return "<m:response><m:href>" + href + "</m:href><m:propstat><m:prop>" + properties
        + "</m:prop><m:status>HTTP/1.1 404 Not Found</m:status></m:propstat></m:response>";
}

QByteArray calendar(const QByteArray &properties)
{
    return multistatus(response("/c/", "<m:resourcetype><m:collection/><calendar/></m:resourcetype>" + properties));
}

QString inOneLine(const QList<EventResource> &resources)
{
    QStringList lines;
    for (const EventResource &resource : resources)
        lines.append(resource.href + u' ' + resource.etag + u' ' + resource.calendarData);
    return lines.join(u'|');
}

}

class tst_CalDavParse : public QObject {
    Q_OBJECT

private slots:
    void hrefs_data()
    {
        columns<QByteArray, QString>("body", "found");
        const QByteArray start = "<m:current-user-principal>", end = "</m:current-user-principal>";
        row("relative", multistatus(start + "<m:href>/p/a%20b/</m:href>" + end), "https://example.com/p/a%20b/");
        row("absolute", multistatus(start + "<m:href>\nhttps://dav.example.com:8443/p/\n</m:href>" + end),
            "https://dav.example.com:8443/p/");
        row("in a later container", multistatus(start + end + start + "<m:href>/p/</m:href>" + end),
            "https://example.com/p/");
        row("empty one first", multistatus(start + "<m:href/><m:href>/p/</m:href>" + end), "");
        row("outside of the container", multistatus("<m:href>/p/</m:href>" + start + "<m:unauthenticated/>" + end), "");
        row("other namespace", multistatus(start + "<href>/p/</href>" + end), "");
        row("cut in the address", multistatus(start + "<m:href>/p/").chopped(17), "");
        row("not XML", QByteArray("Sign in"), "");
    }
    void hrefs()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, found);
        const auto text = [](const std::optional<QUrl> &url) {
            return url ? url->toString(QUrl::FullyEncoded) : QString();
        };
        QCOMPARE(text(parsePrincipalUrl(body, Base)), found);
        QCOMPARE(text(parseCalendarHomeSet(body, Base)), QString());
        body.replace("m:current-user-principal", "calendar-home-set");
        QCOMPARE(text(parseCalendarHomeSet(body, Base)), found);
    }

    void calendarProperties_data()
    {
        columns<QByteArray, QString>("properties", "expected"); // name, colour, description, ctag, token, components
        row("all",
            QByteArray("<m:displayname>A&amp;B</m:displayname><i:calendar-color>#aabbcc</i:calendar-color>"
                       "<calendar-description>d</calendar-description><s:getctag>c1</s:getctag>"
                       "<m:sync-token>t1</m:sync-token><supported-calendar-component-set><comp name='VTODO'/>"
                       "<comp/><comp name='vevent'/></supported-calendar-component-set>"),
            "A&B,#aabbcc,d,c1,t1,VTODO+vevent");
        row("none", QByteArray(), "/c/,,,,,VEVENT");
        row("colour with alpha", QByteArray("<i:calendar-color> #AABBCCDD\n</i:calendar-color>"),
            "/c/,#AABBCC,,,,VEVENT");
        row("short colour", QByteArray("<i:calendar-color>#FFF</i:calendar-color>"), "/c/,,,,,VEVENT");
        row("empty component set", QByteArray("<supported-calendar-component-set/>"), "/c/,,,,,VEVENT");
        row("other namespaces", QByteArray("<displayname>n</displayname><m:getctag>c</m:getctag>"), "/c/,,,,,VEVENT");
        row("markup in a name", QByteArray("<m:displayname>a<x:b/></m:displayname>"), "");
    }
    void calendarProperties()
    {
        QFETCH(QByteArray, properties);
        QStringList found;
        for (const DiscoveredCalendar &c : parseCalendarList(calendar(properties), Base)) {
            QCOMPARE(c.url, u"https://example.com/c/"_s);
            found = { c.displayName, c.color, c.description, c.ctag, c.syncToken, c.components.join(u'+') };
        }
        QTEST(found.join(u','), "expected");
    }

    void onlyCalendarsAreListed()
    {
        const QByteArray type = "<m:resourcetype><calendar/></m:resourcetype>";
        const QByteArray body = multistatus(
            response("/home/", "<m:resourcetype><m:collection/></m:resourcetype>")
            + response("/book/", "<m:resourcetype><x:calendar/></m:resourcetype><calendar/>") + response("", type)
            + response("/a%20b/", type + "<x:owner><m:href>/owner/</m:href></x:owner>") + response("/cut/", type));
        const auto paths = [](const QByteArray &text) {
            QStringList names;
            for (const DiscoveredCalendar &found : parseCalendarList(text, Base))
                names.append(found.displayName);
            return names.join(u' ');
        };
        QCOMPARE(paths(body), u"/a b/ /cut/"_s);
        QCOMPARE(paths(body.first(body.indexOf("/cut/") + 20)), u"/a b/"_s);
    }

    void ctag()
    {
        QCOMPARE(parseCtag(multistatus("<x:y/><s:getctag>\"7\"</s:getctag>")), u"\"7\""_s);
        QCOMPARE(parseCtag(multistatus("<s:getctag/><s:getctag>8</s:getctag>")), std::nullopt);
        QCOMPARE(parseCtag("<s:getctag xmlns:s='http://calendarserver.org/ns/'>12"), std::nullopt);
    }

    void eventResources_data()
    {
        columns<QByteArray, QString, bool>("body", "expected", "isComplete");
        const auto etag = [](const QByteArray &value) {
            return multistatus(response("/c/1.ics", "<m:getetag>" + value + "</m:getetag>"));
        };
        row("quoted etag", etag("&quot;abc&quot;"), "/c/1.ics abc ", true);
        row("weak etag", etag("W/\"abc\""), "/c/1.ics W/\"abc\" ", true);
        row("one quote", etag("\""), "/c/1.ics \" ", true);
        row("etag on a line of its own", etag("\n \"abc\"\n"), "/c/1.ics abc ", true);
        row("collection", multistatus(response("/c/", "") + response("/c/2.ics", "")), "/c/2.ics  ", true);
        row("no href", multistatus(response("", "<m:getetag>1</m:getetag>")), "", true);
        row("first href counts", multistatus(response("/1.ics", "<m:href>/2.ics</m:href>")), "/1.ics  ", true);
        row("encoded href", multistatus(response("http://other/a%20b%23%3F%252F%C3%A4.ics", "")), u"/a b#?%2Fä.ics  "_s,
            true);
        row("text in pieces",
            multistatus(response("/1.ics", "<calendar-data>a<!-- - -->&lt;<![CDATA[<b>\n]]>&#13;c</calendar-data>")),
            "/1.ics  a<<b>\n\rc", true);
        row("markup in a text",
            multistatus(response("/1.ics", "") + response("/2.ics", "<m:getetag>a<x:b/></m:getetag>")), "/1.ics  ",
            false);
        row("cut", multistatus(response("/1.ics", "") + response("/2.ics", "")).chopped(60), "/1.ics  ", false);
        row("cut behind the last one", multistatus(response("/1.ics", "")).chopped(5), "/1.ics  ", false);
        row("junk at the end", multistatus(response("/1.ics", "")) + "<", "/1.ics  ", false);
        row("no responses", multistatus(""), "", true);
        row("other root", QByteArray("<html><body/></html>"), "", false);
        row("other namespace", QByteArray("<multistatus xmlns='x'/>"), "", false);
        row("empty", QByteArray(), "", false);
        row("Latin-1",
            "<?xml version='1.0' encoding='iso-8859-1'?>" + multistatus(response("/\xe4.ics", "")).sliced(21),
            u"/ä.ics  "_s, true);
    }
    void eventResources()
    {
        QFETCH(QByteArray, body);
        QTEST(inOneLine(parseEventResources(body, Base)), "expected");
        EventResourceReader reader(body, Base);
        while (!reader.atEnd())
            reader.read(1, 1);
        QTEST(reader.isCompleteMultistatus(), "isComplete");
    }

    // Large enough that pieces end within names, texts, references and CDATA sections.
    void piecesGiveTheWhole()
    {
        QByteArray content, expected;
        for (int i = 0; i < 400; ++i) {
            const QByteArray n = QByteArray::number(i), text(i * 7, 'x');
            content += response("/" + n + ".ics",
                                "<m:getetag>\"" + n + "\"</m:getetag><calendar-data>&amp;" + text
                                    + (i % 2 ? "<![CDATA[é<" + text + "]]>" : "é&lt;" + text) + "</calendar-data>");
            expected += (i ? "|/" : "/") + n + ".ics " + n + " &" + text + "é<" + text;
        }
        EventResourceReader reader(multistatus(content), Base);
        QList<EventResource> all;
        int calls = 0;
        for (; !reader.atEnd(); ++calls) {
            const QList<EventResource> some = reader.read(3, 1000);
            QVERIFY(some.size() <= 3);
            all += some;
        }
        QVERIFY(calls > 400 / 3);
        QCOMPARE(inOneLine(all), QString::fromUtf8(expected));
        QVERIFY(reader.isCompleteMultistatus());
    }

    void entitiesAreRefused()
    {
        const QByteArray laughs = "<!DOCTYPE m [<!ENTITY a 'ha'><!ENTITY b '&a;&a;'>]>"
            + multistatus(response("/1.ics", "<calendar-data>&b;</calendar-data>")).sliced(21);
        EventResourceReader reader(laughs, Base);
        QVERIFY(reader.read(10, 10'000).isEmpty());
        QVERIFY(reader.atEnd() && !reader.isCompleteMultistatus());
        QVERIFY(parseCalendarList("<!DOCTYPE m [<!ENTITY a 'ha'>]>" + calendar("").sliced(21), Base).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_CalDavParse)
#include "tst_CalDavParse.moc"
