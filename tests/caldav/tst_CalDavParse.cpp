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
        columns<QString, QString>("content", "found"); // p: the container
        row("relative", "<p><m:href>/p/a%20b/</m:href></p>", "https://example.com/p/a%20b/");
        row("absolute", "<p><m:href>\nhttps://dav.example.com:8443/p/\n</m:href></p>",
            "https://dav.example.com:8443/p/");
        row("in a later container", "<p></p><p><m:href>/p/</m:href></p>", "https://example.com/p/");
        row("empty one first", "<p><m:href>\n</m:href><m:href>/p/</m:href></p>", "");
        row("outside of the container", "<m:href>/p/</m:href><p><m:unauthenticated/></p>", "");
        row("cut in the address", "<p><m:href>/p/\x01", "");
    }
    void hrefs()
    {
        QFETCH(QString, content);
        const auto found = [&](auto parse, const char *container) {
            QByteArray name(container), body = multistatus(content.toUtf8());
            const std::optional<QUrl> url =
                parse(body.replace("<p>", '<' + name + '>').replace("</p>", "</" + name + '>'), Base);
            return url ? url->toString(QUrl::FullyEncoded) : QString();
        };
        QTEST(found(parsePrincipalUrl, "m:current-user-principal"), "found");
        QTEST(found(parseCalendarHomeSet, "calendar-home-set"), "found");
        QCOMPARE(found(parseCalendarHomeSet, "m:current-user-principal"), QString());
    }

    void calendarProperties_data()
    {
        columns<QString, QString>("properties", "expected"); // name, colour, description, ctag, token, components
        row("all",
            "<m:displayname>A&amp;B</m:displayname><i:calendar-color>#aabbcc</i:calendar-color>"
            "<calendar-description>d</calendar-description><s:getctag>c1</s:getctag><m:sync-token>t1</m:sync-token>"
            "<supported-calendar-component-set><comp name='VTODO'/><comp/><comp name='vevent'/>"
            "</supported-calendar-component-set>",
            "A&B,#aabbcc,d,c1,t1,VTODO+vevent");
        row("none", "", "/c/,,,,,VEVENT");
        row("colour with alpha", "<i:calendar-color> #AABBCCDD\n</i:calendar-color>", "/c/,#AABBCC,,,,VEVENT");
        row("short colour", "<i:calendar-color>#FFF</i:calendar-color>", "/c/,,,,,VEVENT");
        row("other namespaces", "<displayname>n</displayname><m:getctag>c</m:getctag>", "/c/,,,,,VEVENT");
        row("markup in a name", "<m:displayname>a<x:b/></m:displayname>", "");
    }
    void calendarProperties()
    {
        QFETCH(QString, properties);
        QStringList found;
        for (const DiscoveredCalendar &c : parseCalendarList(calendar(properties.toUtf8()), Base))
            found = { c.displayName, c.color, c.description, c.ctag, c.syncToken, c.components.join(u'+') };
        QTEST(found.join(u','), "expected");
    }

    void onlyCalendarsAreListed()
    {
        const QByteArray type = "<m:resourcetype><calendar/></m:resourcetype>";
        const QList<DiscoveredCalendar> found = parseCalendarList(
            multistatus(response("/home/", "<m:resourcetype><m:collection/></m:resourcetype>") + response("", type)
                        + response("/book/", "<m:resourcetype><x:calendar/></m:resourcetype><calendar/>")
                        + response("/a%20b/", type + "<x:owner><m:href>/owner/</m:href></x:owner>"))
                    .chopped(17)
                + "<m:response><m:href>/cut/</m:href>" + type,
            Base);
        QCOMPARE(found.size(), 1);
        QCOMPARE(QUrl(found.constFirst().url), QUrl(u"https://example.com/a%20b/"_s));
        QCOMPARE(found.constFirst().displayName, u"/a b/"_s);
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
        const auto one = [](const QByteArray &properties) { return multistatus(response("/1.ics", properties)); };
        const auto etag = [&](const QByteArray &value) { return one("<m:getetag>" + value + "</m:getetag>"); };
        row("quoted etag", etag("&quot;abc&quot;"), "/1.ics abc ", true);
        row("weak etag", etag("W/\"abc\""), "/1.ics W/\"abc\" ", true);
        row("one quote", etag("\""), "/1.ics \" ", true);
        row("etag on a line of its own", etag("\n \"abc\"\n"), "/1.ics abc ", true);
        row("collection, no href", multistatus(response("/c/", "") + response("", "")), "", true);
        row("first href counts", one("<m:href>/2.ics</m:href>"), "/1.ics  ", true);
        row("encoded href", multistatus(response("//h/a%20b%23%3F%2541%C3%A4.ics", "")), u"/a b#?%41ä.ics  "_s, true);
        row("text in parts", one("<calendar-data>a<!-- - -->&lt;<![CDATA[<b>\n]]>&#13;c</calendar-data>"),
            "/1.ics  a<<b>\n\rc", true);
        row("markup in a text",
            multistatus(response("/1.ics", "") + response("/2.ics", "<m:getetag><x:b/></m:getetag>")), "/1.ics  ",
            false);
        row("cut", multistatus(response("/1.ics", "") + response("/2.ics", "")).chopped(60), "/1.ics  ", false);
        row("cut behind the last one", one("").chopped(5), "/1.ics  ", false);
        row("junk at the end", one("") + "<", "/1.ics  ", false);
        row("other root", "<html>" + one("").sliced(21) + "</html>", "/1.ics  ", false);
        row("empty", QByteArray(), "", false);
        row("Latin-1",
            one("").sliced(21).prepend("<?xml version='1.0' encoding='iso-8859-1'?>").replace("1.ics", "\xe4"),
            u"/ä  "_s, true);
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
