#include "caldav/CalDavClient.h"
#include "caldav/CalDavParse.h"
#include "caldav/CalDavPath.h"
#include "caldav/CredentialScope.h"

#include "support/HttpServer.h"
#include "support/SelfSigned.h"
#include "support/TestData.h"

#include <QSignalSpy>
#include <QSslConfiguration>
#include <QTestEventLoop>

using namespace Qt::StringLiterals;
using Fault = HttpServer::Fault;

namespace {

// A client whose answers are kept.
class Caller {
public:
    Caller() { client.setCredentials(u"ann"_s, u"p:w"_s); }

    void call(const QByteArray &verb, const QUrl &url)
    {
        if (verb == "PROPFIND")
            client.propfind(url, "<x/>", 0, keep());
        else if (verb == "REPORT")
            client.report(url, "<x/>", 1, keep());
        else if (verb == "GET")
            client.get(url, keep());
        else if (verb == "PUT")
            client.put(url, "<x/>", u"text/calendar; charset=utf-8"_s, keep(), u"tag"_s);
        else if (verb == "DELETE")
            client.del(url, keep(), u"tag"_s);
        else if (verb == "MKCALENDAR")
            client.mkcalendar(url, "<x/>", keep());
        else
            client.proppatch(url, "<x/>", keep());
    }
    CalDavClient::Callback keep()
    {
        return [this](const CalDavClient::Response &response) {
            answers.append(response);
            m_loop.exitLoop();
        };
    }
    CalDavClient::Response ask(const QByteArray &verb, const QUrl &url)
    {
        const qsizetype before = answers.size();
        call(verb, url);
        if (answers.size() > before)
            qFatal("answered before the call returned");
        m_loop.enterLoop(5);
        return answers.value(before);
    }

    QList<CalDavClient::Response> answers; // outlives the client
    CalDavClient client;

private:
    QTestEventLoop m_loop; // polling would cost 10 ms for each hop between the threads of the network manager
};

// The path of a listed resource as it is kept.
QString kept(const QString &href)
{
    const QByteArray list =
        "<m:multistatus xmlns:m='DAV:'><m:response><m:href>" + href.toUtf8() + "</m:href></m:response></m:multistatus>";
    return CalDavParse::parseEventResources(list, QUrl(u"http://h/c/"_s)).value(0).href;
}

HttpServer::Reply redirectTo(const QUrl &url, int status = 302)
{
    return { .status = status, .body = {}, .headers = { { "Location", url.toEncoded() } } };
}

}

class tst_CalDavClient : public QObject {
    Q_OBJECT

private slots:
    void requests_data()
    {
        columns<QByteArray>("verb");
        for (const char *verb : { "PROPFIND", "REPORT", "GET", "PUT", "DELETE", "MKCALENDAR", "PROPPATCH" })
            row(verb, QByteArray(verb));
    }
    void requests()
    {
        QFETCH(QByteArray, verb);
        HttpServer server;
        for (const int status : { 301, 302, 303, 307, 308 })
            server.enqueue(redirectTo(QUrl(u"b%20c/"_s + QString::number(status)), status));
        server.enqueue({ .status = 207, .body = "ok", .headers = { { "eTag", "\"1\"" } } });
        const CalDavClient::Response answer = Caller().ask(verb, server.url(u"/a/"_s));
        QCOMPARE(answer.status, 207);
        QVERIFY(answer.isSuccess() && answer.isWhole && answer.body == "ok");
        QCOMPARE(answer.header("ETag"), "\"1\"");

        QCOMPARE(server.requests().size(), 6);
        QCOMPARE(server.requests().constLast().target, "/a/b%20c/b%20c/b%20c/b%20c/b%20c/308");
        const bool hasBody = verb != "GET" && verb != "DELETE";
        const QByteArray xml = hasBody ? "application/xml; charset=utf-8" : "";
        for (const HttpServer::Request &request : server.requests()) {
            QCOMPARE(request.method, verb);
            QCOMPARE(request.body, hasBody ? "<x/>" : "");
            QCOMPARE(request.headers.value("content-type"), verb == "PUT" ? "text/calendar; charset=utf-8" : xml);
            QCOMPARE(request.headers.value("depth"), verb == "PROPFIND" ? "0" : verb == "REPORT" ? "1" : "");
            QCOMPARE(request.headers.value("if-match"), verb == "PUT" || verb == "DELETE" ? "\"tag\"" : "");
            QCOMPARE(request.headers.value("authorization"), "Basic YW5uOnA6dw=="); // base64 of "ann:p:w"
            QCOMPARE(request.headers.value("user-agent"), "QuillonCalendar/1.3.7 (Qt)");
        }
    }

    void whereRedirectsEnd()
    {
        for (const char *location : { "/a", "", "ftp://127.0.0.1/a" }) {
            HttpServer server;
            server.setHandler(
                [&](const HttpServer::Request &) { return redirectTo(QUrl(QString::fromLatin1(location))); });
            QCOMPARE(Caller().ask("PUT", server.url()).status, 302);
            QCOMPARE(server.requests().size(), *location == '/' ? 6 : 1);
        }
    }

    void credentialsStayWithinADomain_data()
    {
        columns<QString, QString, bool>("origin", "target", "covers");
        row("same host", "https://example.com/a", "https://example.com:8443/b", true);
        row("subdomain", "https://example.com", "https://p42.dav.example.com", true);
        row("sibling", "https://www.example.co.uk", "https://dav.example.co.uk", true);
        row("to https", "http://example.com", "https://example.com", true);
        row("to http", "https://example.com", "http://example.com", false);
        row("same ending", "https://example.com", "https://badexample.com", false);
        row("same country", "https://a.co.uk", "https://b.co.uk", false);
        row("same hoster", "https://ann.github.io", "https://bob.github.io", false);
        row("same local network", "https://nas.local", "https://tv.local", false);
        row("addresses", "https://10.0.0.1", "https://12.0.0.1", false);
    }
    void credentialsStayWithinADomain()
    {
        QFETCH(QString, origin);
        QFETCH(QString, target);
        QTEST(CredentialScope::covers(QUrl(origin), QUrl(target)), "covers");
    }

    void credentialsDoNotGoElsewhere()
    {
        HttpServer server;
        QUrl elsewhere = server.url(u"/b"_s);
        elsewhere.setHost(u"localhost"_s);
        server.enqueue(redirectTo(elsewhere));
        server.enqueue(redirectTo(server.url(u"/c"_s)));
        Caller().ask("REPORT", server.url(u"/a"_s));
        QList<bool> isKnown;
        for (const HttpServer::Request &request : server.requests())
            isKnown.append(request.headers.contains("authorization"));
        QCOMPARE(isKnown, QList<bool>({ true, false, true }));
    }

    void refusedCredentialsAreNotTriedAgain()
    {
        HttpServer server;
        server.setHandler([](const HttpServer::Request &) {
            return HttpServer::Reply{ 401, "no", { { "WWW-Authenticate", "Basic realm=r" } } };
        });
        QUrl url = server.url();
        url.setUserInfo(u"bob:secret"_s);
        Caller caller;
        caller.client.setCredentials({}, u"p"_s);
        const CalDavClient::Response answer = caller.ask("PUT", url);
        QCOMPARE(answer.status, 401);
        QVERIFY(answer.error.isEmpty() && answer.body == "no");
        QCOMPARE(server.requests().size(), 1);
        QVERIFY(!server.requests().constFirst().headers.contains("authorization"));
    }

    void ifMatch()
    {
        QCOMPARE(CalDavPath::ifMatch(u"abc"_s), "\"abc\"");
        QCOMPARE(CalDavPath::ifMatch(u"\"abc\""_s), "\"abc\"");
        QCOMPARE(CalDavPath::ifMatch(u"*"_s), "*");
        QCOMPARE(CalDavPath::ifMatch({}), "");
        QCOMPARE(CalDavPath::ifMatch(u"W/\"abc\""_s), "");
        QCOMPARE(CalDavPath::ifMatch(CalDavPath::etagFromHeader("W/\"abc\"")), "");
        QCOMPARE(CalDavPath::ifMatch(u"\na\r\nX-Evil: 1"_s), "\"aX-Evil: 1\"");
    }

    void anyUidIsOneSegment_data()
    {
        columns<QString, QString>("uid", "target");
        row("blank and signs", "a b?c#d:e;f@g", "a%20b%3Fc%23d:e;f@g");
        row("slash", "a/b", "a%252Fb");
        row("encoded slash", "a%2Fb", "a%25252Fb");
        row("backslash and tab", "a\\b\tc", "a%255Cb%2509c");
        row("umlaut and emoji", u"ä😀"_s, "%C3%A4%F0%9F%98%80");
        row("long", QString(201, u'a'), "a92efd82109373e58f9a2056dee01e807e216ce6075f7051207c0a9f7d666e50");
    }
    void anyUidIsOneSegment()
    {
        QFETCH(QString, uid);
        QFETCH(QString, target);
        HttpServer server;
        const QUrl collection = server.url(u"/c d"_s);
        const QString path = CalDavPath::newResourcePath(collection, uid);
        Caller().ask("PUT", CalDavPath::resourceUrl(collection, path));
        const QByteArray sent = server.requests().constFirst().target;
        QCOMPARE(sent, "/c%20d/" + target.toUtf8() + ".ics");
        QCOMPARE(kept(CalDavPath::toHref(path)), path);
    }

    // What a server lists is what it is asked for.
    void resourcesKeepTheirAddress_data()
    {
        columns<QString, QString>("encoded", "path");
        row("blank and signs", "/c/a%20b%23%3F&.ics", "/c/a b#?&.ics");
        row("percent sign", "/c/50%25.ics", "/c/50%.ics");
        row("slash in a name", "/c/a%2Fb.ics", "/c/a%2Fb.ics");
        row("encoded name", "/c/a%252Fb%2525%25252F.ics", "/c/a%252Fb%25%25252F.ics");
    }
    void resourcesKeepTheirAddress()
    {
        QFETCH(QString, encoded);
        QFETCH(QString, path);
        QCOMPARE(kept(encoded.toHtmlEscaped()), path);
        QCOMPARE(CalDavPath::toHref(path), encoded.toHtmlEscaped());
        QCOMPARE(CalDavPath::resourceUrl(QUrl(u"http://h/x"_s), path).toEncoded(), "http://h" + encoded.toUtf8());
    }

    void faults_data()
    {
        columns<QByteArray, int, Fault, bool, bool>("verb", "status", "fault", "isChunked", "isWhole");
        const QByteArray report = "REPORT";
        row("error page", report, 500, Fault::None, false, true);
        row("chunks", report, 207, Fault::None, true, true);
        row("cut", report, 207, Fault::Truncate, false, false);
        row("cut chunks", report, 207, Fault::Truncate, true, false);
        row("cut error page", report, 403, Fault::Truncate, false, false);
        row("answer before the answer", report, 102, Fault::None, false, false);
        for (const char *verb : { "REPORT", "PUT", "DELETE" })
            row(verb, QByteArray(verb), 0, Fault::Close, false, false);
    }
    void faults()
    {
        QFETCH(QByteArray, verb);
        QFETCH(int, status);
        QFETCH(Fault, fault);
        QFETCH(bool, isChunked);
        const QByteArray body = "<d:multistatus></d:multistatus>";
        HttpServer server;
        server.enqueue({ .status = 200, .body = {}, .headers = {} });
        server.setHandler([&](const HttpServer::Request &) {
            return HttpServer::Reply{ status, body, {}, fault, isChunked };
        });
        Caller caller;
        caller.ask("GET", server.url());
        const CalDavClient::Response answer = caller.ask(verb, server.url()); // on a connection that was kept
        const bool isAnswered = status >= 200;
        QCOMPARE(answer.status, isAnswered ? status : 0);
        QCOMPARE(answer.error.isEmpty(), isAnswered);
        QTEST(answer.isWhole, "isWhole");
        QCOMPARE(answer.body, !isAnswered ? "" : fault == Fault::None ? body : "<d:multistatus>");
        QVERIFY(verb == "REPORT" || server.requests().size() == 2); // a write goes out once
    }

    void continuationsEndWithTheClient()
    {
        HttpServer server;
        server.enqueue({ .status = 200, .body = {}, .headers = {}, .fault = Fault::Hang });
        Caller caller;
        const QSignalSpy sent(&caller.client, &CalDavClient::sent);
        const QSignalSpy heard(&caller.client, &CalDavClient::heard);
        caller.call("PUT", server.url());
        QTRY_COMPARE(server.requests().size(), 1);
        QTRY_VERIFY(!sent.isEmpty());
        QVERIFY(heard.isEmpty());
        caller.client.abort();

        auto *inFlight = new CalDavClient;
        inFlight->get(server.url(), caller.keep());
        delete inFlight;
        auto *client = new CalDavClient;
        client->get(server.url(), [&, client](const CalDavClient::Response &response) {
            caller.keep()(response);
            delete client;
        });
        QTRY_COMPARE(caller.answers.size(), 1);
        caller.ask("GET", server.url());
        QCOMPARE(caller.answers.size(), 2);
    }

    void certificates()
    {
        const QSslConfiguration tls = selfSigned();
        const QString sha256 =
            QString::fromLatin1(tls.localCertificate().digest(QCryptographicHash::Sha256).toHex(':'));
        HttpServer plain, server(tls);
        server.enqueue(redirectTo(plain.url()));
        Caller caller;
        QSignalSpy refused(&caller.client, &CalDavClient::untrustedCertEncountered);
        const CalDavClient::Response answer = caller.ask("PUT", server.url());
        QVERIFY(answer.status == 0 && !answer.error.isEmpty());
        QCOMPARE(refused.size(), 1);
        const CalDavClient::UntrustedCertInfo info = caller.client.pendingUntrustedCert();
        QCOMPARE(info.host + u':' + QString::number(info.port), server.url().authority());
        QCOMPARE(info.subject + u',' + info.issuer, u"wire.test,wire.test"_s);
        QCOMPARE(CalDavClient::formatFingerprint(info.sha256), sha256.toUpper());
        QVERIFY(!info.errors.isEmpty() && info.effectiveDate < info.expiryDate);

        caller.client.setTrustedCertSha256(sha256);
        QVERIFY(!caller.client.hasPendingUntrustedCert());
        QCOMPARE(caller.ask("PUT", server.url()).status, 302); // to http: not followed
        QVERIFY(plain.requests().isEmpty() && server.requests().size() == 1);
        QCOMPARE(CalDavClient::normalizeFingerprint(u"ab:cd EF"_s), u"ABCDEF"_s);
    }
};

QTEST_GUILESS_MAIN(tst_CalDavClient)
#include "tst_CalDavClient.moc"
