#include "caldav/CalDavClient.h"
#include "caldav/CalDavParse.h"
#include "caldav/CalDavPath.h"
#include "caldav/CredentialScope.h"

#include "support/HttpServer.h"
#include "support/TestData.h"

#include <QProcess>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>
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
    bool isAnswered(qsizetype count = 1)
    {
        while (answers.size() < count && !m_loop.timeout())
            m_loop.enterLoop(5);
        return answers.size() >= count;
    }

    QList<CalDavClient::Response> answers; // outlives the client
    CalDavClient client;

private:
    QTestEventLoop m_loop; // polling would cost 10 ms for each hop between the threads of the network manager
};

HttpServer::Reply redirectTo(const QUrl &url, int status = 302)
{
    return { .status = status, .body = {}, .headers = { { "Location", url.toEncoded() } } };
}

struct Identity {
    QSslConfiguration tls;
    QString sha256;
};

// A certificate for "wire.test" that nobody has signed.
Identity selfSigned()
{
    const QTemporaryDir dir;
    const QString key = dir.filePath(u"key"_s), certificate = dir.filePath(u"certificate"_s);
    QProcess::execute(u"openssl"_s,
                      { u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s,
                        u"-nodes"_s, u"-batch"_s, u"-subj"_s, u"/CN=wire.test"_s, u"-keyout"_s, key, u"-out"_s,
                        certificate });
    QFile keyFile(key);
    const QList<QSslCertificate> certificates = QSslCertificate::fromPath(certificate);
    if (certificates.isEmpty() || !keyFile.open(QIODevice::ReadOnly))
        qFatal("openssl made no certificate");
    Identity identity;
    identity.tls.setLocalCertificate(certificates.first());
    identity.tls.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
    identity.sha256 = QString::fromLatin1(certificates.first().digest(QCryptographicHash::Sha256).toHex());
    return identity;
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
        Caller caller;
        caller.call(verb, server.url(u"/a/"_s));
        QVERIFY(caller.answers.isEmpty());
        QVERIFY(caller.isAnswered());
        const CalDavClient::Response &answer = caller.answers.constFirst();
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

    void whereRedirectsEnd_data()
    {
        columns<QString, int, int>("location", "hops", "status");
        row("the sixth in a row", "/a", 6, 302);
        row("no address", "", 1, 302);
        row("another scheme", "ftp://127.0.0.1/a", 1, 302);
        row("a file", "file:///etc/passwd", 1, 302);
    }
    void whereRedirectsEnd()
    {
        QFETCH(QString, location);
        HttpServer server;
        server.setHandler([&](const HttpServer::Request &) { return redirectTo(QUrl(location)); });
        Caller caller;
        caller.call("PUT", server.url());
        QVERIFY(caller.isAnswered());
        QTEST(caller.answers.constFirst().status, "status");
        QTEST(int(server.requests().size()), "hops");
    }

    void credentialsStayWithinADomain_data()
    {
        columns<QString, QString, bool>("origin", "target", "covers");
        row("same host", "https://example.com/a", "https://example.com:8443/b", true);
        row("subdomain", "https://example.com", "https://p42.dav.example.com", true);
        row("parent domain", "https://dav.example.com", "https://example.com", true);
        row("sibling", "https://www.example.co.uk", "https://dav.example.co.uk", true);
        row("to https", "http://example.com", "https://example.com", true);
        row("to http", "https://example.com", "http://example.com", false);
        row("other host", "https://example.com", "https://example.org", false);
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
        Caller caller;
        caller.call("REPORT", server.url(u"/a"_s));
        QVERIFY(caller.isAnswered());
        QList<bool> isKnown;
        for (const HttpServer::Request &request : server.requests())
            isKnown.append(request.headers.contains("authorization"));
        QCOMPARE(isKnown, QList<bool>({ true, false, true }));
    }

    void refusedCredentialsAreNotTriedAgain()
    {
        HttpServer server;
        server.setHandler([](const HttpServer::Request &) {
            return HttpServer::Reply{ .status = 401,
                                      .body = "no",
                                      .headers = { { "WWW-Authenticate", "Basic realm=r" } } };
        });
        QUrl url = server.url(u"/a"_s);
        url.setUserInfo(u"bob:secret"_s);
        Caller caller;
        caller.call("PUT", url);
        QVERIFY(caller.isAnswered());
        caller.client.setCredentials({}, u"p"_s);
        caller.call("PROPFIND", url);
        QVERIFY(caller.isAnswered(2));
        QCOMPARE(caller.answers.constLast().status, 401);
        QVERIFY(caller.answers.constLast().error.isEmpty());
        QCOMPARE(server.requests().size(), 2);
        QVERIFY(!server.requests().constLast().headers.contains("authorization"));
    }

    void ifMatch_data()
    {
        columns<QString, QString>("etag", "header");
        row("plain", "abc", "\"abc\"");
        row("quoted", "\"abc\"", "\"abc\"");
        row("any", "*", "*");
        row("none", "", "");
        row("weak", "W/\"abc\"", "");
        row("weak, of a header", CalDavPath::etagFromHeader("W/\"abc\"").toUtf8().constData(), "");
        row("with a line break", "\na\r\nX-Evil: 1", "\"aX-Evil: 1\"");
    }
    void ifMatch()
    {
        QFETCH(QString, etag);
        QTEST(QString::fromUtf8(CalDavPath::ifMatch(etag)), "header");
    }

    void anyUidIsOneSegment_data()
    {
        columns<QString, QByteArray>("uid", "target");
        row("plain", "a-1@example.com", QByteArray("a-1@example.com"));
        row("blank and signs", "a b?c#d:e;f", QByteArray("a%20b%3Fc%23d:e;f"));
        row("slash", "a/b", QByteArray("a%252Fb"));
        row("encoded slash", "a%2Fb", QByteArray("a%25252Fb"));
        row("dots", "../..", QByteArray("..%252F.."));
        row("backslash and tab", "a\\b\tc", QByteArray("a%255Cb%2509c"));
        row("umlaut and emoji", u"ä😀"_s, QByteArray("%C3%A4%F0%9F%98%80"));
        row("long", QString(201, u'a'), QByteArray("a92efd82109373e58f9a2056dee01e807e216ce6075f7051207c0a9f7d666e50"));
    }
    void anyUidIsOneSegment()
    {
        QFETCH(QString, uid);
        QFETCH(QByteArray, target);
        HttpServer server;
        Caller caller;
        const QUrl collection = server.url(u"/c d"_s);
        const QString path = CalDavPath::newResourcePath(collection, uid);
        caller.call("PUT", CalDavPath::resourceUrl(collection, path));
        QVERIFY(caller.isAnswered());
        const QByteArray sent = server.requests().constFirst().target;
        QCOMPARE(sent, "/c%20d/" + target + ".ics");
        // The server lists it, and is asked for it.
        for (const QByteArray &href : { sent, CalDavPath::toHref(path).toUtf8() }) {
            const QList<CalDavParse::EventResource> listed = CalDavParse::parseEventResources(
                "<m:multistatus xmlns:m='DAV:'><m:response><m:href>" + href + "</m:href></m:response></m:multistatus>",
                collection);
            QCOMPARE(listed.value(0).href, path);
        }
    }

    void faults_data()
    {
        columns<QByteArray, int, Fault, bool, bool>("verb", "status", "fault", "isChunked", "isWhole");
        const QByteArray report = "REPORT";
        row("error page", report, 500, Fault::None, false, true);
        row("chunks", report, 207, Fault::None, true, true);
        row("cut", report, 207, Fault::Truncate, false, false);
        row("cut chunks", report, 207, Fault::Truncate, true, false);
        row("cut error page", report, 403, Fault::Truncate, true, false);
        for (const char *verb : { "REPORT", "PUT", "DELETE", "MKCALENDAR", "PROPPATCH" })
            row(verb, QByteArray(verb), 0, Fault::Close, false, false);
    }
    void faults()
    {
        QFETCH(QByteArray, verb);
        QFETCH(int, status);
        QFETCH(Fault, fault);
        QFETCH(bool, isChunked);
        HttpServer server;
        server.enqueue({ .status = 200, .body = {}, .headers = {} });
        server.setHandler([&](const HttpServer::Request &) {
            return HttpServer::Reply{ status, "halves", {}, fault, isChunked };
        });
        Caller caller;
        caller.call("GET", server.url());
        QVERIFY(caller.isAnswered());
        caller.call(verb, server.url()); // on a connection that was kept
        QVERIFY(caller.isAnswered(2));
        const CalDavClient::Response &answer = caller.answers.constLast();
        QCOMPARE(answer.status, status);
        QCOMPARE(answer.error.isEmpty(), status != 0);
        QTEST(answer.isWhole, "isWhole");
        QCOMPARE(answer.body, fault == Fault::None ? "halves" : fault == Fault::Close ? "" : "hal");
        QVERIFY(verb == "REPORT" || server.requests().size() == 2); // a write goes out once
    }

    void continuationsEndWithTheClient()
    {
        HttpServer server;
        server.enqueue({ .status = 200, .body = {}, .headers = {}, .fault = Fault::Hang });
        Caller caller;
        QSignalSpy heard(&caller.client, &CalDavClient::heard);
        caller.call("PUT", server.url());
        QTRY_COMPARE(server.requests().size(), 1);
        QTRY_VERIFY(!heard.isEmpty());
        caller.client.abort();

        auto *inFlight = new CalDavClient;
        inFlight->get(server.url(), caller.keep());
        delete inFlight;
        auto *client = new CalDavClient;
        client->get(server.url(), [&, client](const CalDavClient::Response &response) {
            caller.keep()(response);
            delete client;
        });
        QVERIFY(caller.isAnswered());
        caller.call("GET", server.url());
        QVERIFY(caller.isAnswered(2));
        QCOMPARE(caller.answers.size(), 2);
    }

    void certificates()
    {
        const Identity identity = selfSigned();
        HttpServer server(identity.tls);
        server.enqueue({ .status = 207, .body = {}, .headers = {} });
        HttpServer plain;
        server.enqueue(redirectTo(plain.url()));
        Caller caller;
        QSignalSpy refused(&caller.client, &CalDavClient::untrustedCertEncountered);
        caller.call("PUT", server.url());
        QVERIFY(caller.isAnswered());
        QCOMPARE(caller.answers.constLast().status, 0);
        QVERIFY(!caller.answers.constLast().error.isEmpty());
        QCOMPARE(refused.size(), 1);
        const CalDavClient::UntrustedCertInfo info = caller.client.pendingUntrustedCert();
        QCOMPARE(info.host + u':' + QString::number(info.port), server.url().authority());
        QCOMPARE(info.subject + u',' + info.issuer, u"wire.test,wire.test"_s);
        QCOMPARE(info.sha256, identity.sha256.toUpper());
        QVERIFY(!info.errors.isEmpty() && info.effectiveDate < info.expiryDate);

        caller.client.setTrustedCertSha256(CalDavClient::formatFingerprint(identity.sha256));
        QVERIFY(!caller.client.hasPendingUntrustedCert());
        caller.call("PUT", server.url());
        QVERIFY(caller.isAnswered(2));
        QCOMPARE(caller.answers.constLast().status, 207);
        caller.call("PUT", server.url());
        QVERIFY(caller.isAnswered(3));
        QCOMPARE(caller.answers.constLast().status, 302); // to http: not followed
        QVERIFY(plain.requests().isEmpty());
        QCOMPARE(server.requests().size(), 2);
    }

    void fingerprints()
    {
        QCOMPARE(CalDavClient::normalizeFingerprint(u"ab:cd EF"_s), u"ABCDEF"_s);
        QCOMPARE(CalDavClient::formatFingerprint(u"ABCDEF"_s), u"AB:CD:EF"_s);
        QCOMPARE(CalDavClient::formatFingerprint({}), QString());
    }
};

QTEST_GUILESS_MAIN(tst_CalDavClient)
#include "tst_CalDavClient.moc"
