#include "caldav/CalDavDiscovery.h"

#include "caldav/CalDavClient.h"
#include "caldav/CalDavRediscover.h"
#include "caldav/SilenceGuard.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "support/HttpServer.h"
#include "support/ScratchState.h"
#include "support/SelfSigned.h"
#include "support/TestData.h"

#include <QTest>

using namespace Qt::StringLiterals;
using CalDavParse::DiscoveredCalendar;

namespace {

QByteArray answer(const QByteArray &properties, const QByteArray &href = "/x/")
{
    return "<d:multistatus xmlns:d='DAV:' xmlns:c='urn:ietf:params:xml:ns:caldav'><d:response><d:href>" + href
        + "</d:href><d:propstat><d:prop>" + properties + "</d:prop></d:propstat></d:response></d:multistatus>";
}

const QByteArray Principal = answer("<d:current-user-principal><d:href>/me/</d:href></d:current-user-principal>");
const QByteArray HomeSet = answer("<c:calendar-home-set><d:href>/home/</d:href></c:calendar-home-set>");
const QByteArray Calendars =
    answer("<d:resourcetype><c:calendar/></d:resourcetype><d:displayname>Work</d:displayname>", "/home/work/");

/// One discovery, as bob.
struct Run {
    explicit Run(const QUrl &typed, const QString &fingerprint = {})
    {
        client.setCredentials(u"bob"_s, u"secret"_s);
        client.setTrustedCertSha256(fingerprint);
        QObject::connect(&discovery, &CalDavDiscovery::completed, &discovery,
                         [this](const auto &calendars) { ends.append(calendars.first().url); });
        QObject::connect(&discovery, &CalDavDiscovery::failed, &discovery,
                         [this](const QString &message) { ends.append(message); });
        discovery.start(typed);
    }

    /// The address of the first calendar, or the message.
    QString outcome()
    {
        return QTest::qWaitFor([this] { return !ends.isEmpty(); }) ? ends.join(u" and ") : u"no end"_s;
    }

    CalDavClient client;
    CalDavDiscovery discovery{ &client };
    QStringList ends;
};

DiscoveredCalendar found(const QString &url, const QString &name = u"Work"_s)
{
    DiscoveredCalendar calendar;
    calendar.url = url;
    calendar.displayName = name;
    calendar.components = { u"VEVENT"_s, u"VTODO"_s };
    return calendar;
}

}

class tst_CalDavDiscovery : public QObject {
    Q_OBJECT

private slots:
    // Answers by path: "status body" or nothing for 404. Expected: the paths asked for, and the outcome.
    void walksTheCandidates_data()
    {
        columns<QString, QString, QString, QString>("typed", "script", "asked", "outcome");
        row("bare host", u""_s, u"wellknown principal"_s, u"/.well-known/caldav /me/ /home/"_s, u"/home/work/"_s);
        row("deep address", u"/dav/bob"_s, u"deep principal"_s, u"/dav/bob /me/ /home/"_s, u"/home/work/"_s);
        row("the root answers", u"/"_s, u"root principal"_s, u"/.well-known/caldav / /me/ /home/"_s, u"/home/work/"_s);
        row("home without principal", u"/dav/"_s, u"deep nothing"_s, u"/dav/ /.well-known/caldav / /dav/ /dav/"_s,
            u"No calendars found at the discovered home set."_s);
        row("one refusal", u""_s, u"root 401"_s, u"/.well-known/caldav /"_s,
            u"The server rejected the username or password."_s);
        row("nothing there", u""_s, u""_s, u"/.well-known/caldav /"_s,
            u"Could not find a CalDAV account on that server. Check the URL."_s);
        row("refused, and a page without calendars", u"/dav/"_s, u"deep 401 root nothing"_s,
            u"/dav/ /.well-known/caldav / / /"_s, u"The server rejected the username or password."_s);
        row("home set fails", u""_s, u"wellknown principal me 500"_s, u"/.well-known/caldav /me/"_s,
            u"Server returned HTTP 500 during home-set discovery."_s);
        row("listing fails", u""_s, u"wellknown principal home 403"_s, u"/.well-known/caldav /me/ /home/"_s,
            u"Server returned HTTP 403 during calendar enumeration."_s);
    }
    void walksTheCandidates()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, script);
        QFETCH(const QString, asked);
        QFETCH(const QString, outcome);
        HttpServer server;
        QStringList paths;
        server.setHandler([&](const HttpServer::Request &request) {
            paths.append(QString::fromUtf8(request.target));
            return reply(request.target, script);
        });
        QUrl url = server.url();
        url.setPath(typed);
        url.setUserInfo(u"alice:other"_s); // which must not come back with the addresses
        Run run(url);
        const bool isFound = outcome.startsWith(u'/');
        QCOMPARE(run.outcome(), isFound ? server.url(outcome).toString() : outcome);
        if (isFound)
            QCOMPARE(run.discovery.homeSet(), server.url(u"/home/"_s).toString());
        QCOMPARE(paths.join(u' '), asked);
    }

    // The typed server redirects to another one, which names its home set in full and everything else by its path.
    void findsTheServerThatHasThem_data()
    {
        columns<QString, QString, QString>("typedHas", "redirectsTo", "outcome");
        row("the typed one knows the way alone", u""_s, u"127.0.0.1"_s, u"other"_s);
        row("the typed one has the principal", u"/me/"_s, u"127.0.0.1"_s, u"other"_s);
        row("the typed one has them too", u"/me/ /home/work/"_s, u"127.0.0.1"_s, u"typed"_s);
        row("the password is not for the other", u""_s, u"localhost"_s, u"told"_s);
    }
    void findsTheServerThatHasThem()
    {
        QFETCH(const QString, typedHas);
        QFETCH(const QString, redirectsTo);
        QFETCH(const QString, outcome);
        HttpServer typed;
        HttpServer other;
        const auto content = [&](const QByteArray &target) {
            const QByteArray home = other.url(u"/home/"_s).toEncoded();
            return target == "/me/" ? multistatus(QByteArray(HomeSet).replace("/home/", home))
                                    : reply(target, u"deep principal"_s);
        };
        other.setHandler([&](const HttpServer::Request &request) -> HttpServer::Reply {
            if (request.headers.contains("authorization"))
                return content(request.target);
            return { .status = 401, .body = {}, .headers = {} };
        });
        QUrl elsewhere = other.url(u"/dav/"_s);
        elsewhere.setHost(redirectsTo);
        typed.setHandler([&](const HttpServer::Request &request) -> HttpServer::Reply {
            if (request.target == "/.well-known/caldav")
                return { .status = 301, .body = {}, .headers = { { "Location", elsewhere.toEncoded() } } };
            if (typedHas.split(u' ').contains(QString::fromUtf8(request.target)))
                return content(request.target);
            return { .status = 404, .body = {}, .headers = {} };
        });
        const QString expected = outcome == u"typed" ? typed.url(u"/home/work/"_s).toString()
            : outcome == u"other"                    ? other.url(u"/home/work/"_s).toString()
                                  : u"The server refers to another one, which was not given your password. If you "
                                    u"trust it, enter its address instead: "_s
                + elsewhere.toString();
        QCOMPARE(Run(typed.url()).outcome(), expected);
    }

    void staysWithTls()
    {
        const QSslConfiguration tls = selfSigned();
        HttpServer plain;
        HttpServer secure(tls);
        plain.setHandler([&](const HttpServer::Request &request) -> HttpServer::Reply {
            const QUrl target = secure.url(QString::fromUtf8(request.target));
            return { .status = 301, .body = {}, .headers = { { "Location", target.toEncoded() } } };
        });
        secure.setHandler([&](const HttpServer::Request &request) -> HttpServer::Reply {
            if (request.target == "/.well-known/caldav")
                return { .status = 301, .body = {}, .headers = { { "Location", plain.url(u"/dav/"_s).toEncoded() } } };
            return reply(request.target, u"deep principal"_s);
        });
        Run run(plain.url(), QString::fromLatin1(tls.localCertificate().digest(QCryptographicHash::Sha256).toHex()));
        QCOMPARE(run.outcome(), secure.url(u"/home/work/"_s).toString());
        QCOMPARE(plain.requests().size(), 1);
    }

    void saysWhatIsNoAddress_data()
    {
        columns<QString>("typed");
        row("empty", u""_s);
        row("mail", u"mailto:bob@example.com"_s);
        row("no host", u"https:///dav"_s);
    }
    void saysWhatIsNoAddress()
    {
        QFETCH(const QString, typed);
        Run run{ QUrl(typed) };
        QVERIFY(run.ends.isEmpty());
        QCOMPARE(run.outcome(), u"Enter a CalDAV URL starting with http:// or https://"_s);
    }

    void endsWithASilentOrAbsentServer()
    {
        HttpServer server;
        HttpServer::Reply silence;
        silence.fault = HttpServer::Fault::Hang;
        server.enqueue(silence);
        SilenceGuard::setHaste(10'000);
        QVERIFY(Run(server.url()).outcome().startsWith(u"Could not reach the server: "_s));
        SilenceGuard::setHaste(1);
    }

    void addsOnlyWhatIsNewAndWanted()
    {
        ScratchState state;
        Account account;
        account.id = u"account"_s;
        account.type = AccountType::CalDAV;
        QVERIFY(state->accounts()->insert(account));
        const auto upsert = [&](const QList<DiscoveredCalendar> &list) {
            return CalDavRediscover::upsertDiscoveredCalendars(state.state(), account.id, list);
        };
        const auto calendars = [&] { return state->calendars()->getByAccount(account.id); };
        QCOMPARE(upsert({ found(u"http://a.example/cal/work/"_s), found(u"http://a.example/cal/home/"_s, u"Home"_s) }),
                 2);
        Calendar renamed = calendars().first();
        renamed.name = u"Mine"_s;
        QVERIFY(state->calendars()->update(renamed));

        // Another name of the server, now with TLS, and no slash at the end.
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/work"_s), found(u"https://dav.a.example/cal/home"_s) }), 0);
        QCOMPARE(calendars().size(), 2);
        for (const Calendar &calendar : calendars())
            QVERIFY(calendar.url.startsWith(u"https://dav.a.example/cal/"_s));
        QCOMPARE(state->calendars()->getById(renamed.id)->name, u"Mine"_s);

        // Paths may differ in case alone.
        const QList<DiscoveredCalendar> twins{ found(u"https://dav.a.example/cal/work"_s),
                                               found(u"https://dav.a.example/cal/Work"_s) };
        QCOMPARE(upsert(twins), 1);
        QCOMPARE(upsert(twins), 0);
        QCOMPARE(calendars().size(), 3);

        // As another program spells it.
        renamed = *state->calendars()->getById(renamed.id);
        renamed.url = u"https://dav.a.example/cal/%C3%89t%C3%A9%20%25/"_s;
        QVERIFY(state->calendars()->update(renamed));
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/Été %25/"_s) }), 0);

        CalDavRediscover::decline(state.state(), account.id, { u"http://a.example/cal/old/"_s });
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/old/"_s) }), 0);
        CalDavRediscover::accept(state.state(), account.id, { u"https://dav.a.example/cal/old/"_s });
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/old/"_s) }), 1);
        QVERIFY(state->calendars()->softDelete(renamed.id));
        QCOMPARE(upsert({ found(renamed.url) }), 0);
        QCOMPARE(
            CalDavRediscover::upsertDiscoveredCalendars(state.state(), u"gone"_s, { found(u"http://a.example/x/"_s) }),
            0);
    }

    void fillsAPlaceholder()
    {
        ScratchState state;
        Account account;
        account.id = u"account"_s;
        account.type = AccountType::CalDAV;
        QVERIFY(state->accounts()->insert(account));
        Calendar placeholder = CalDavRediscover::newCalendar(account, found(u"http://a.example/cal/"_s, u"?"_s));
        placeholder.isReadOnly = true;
        placeholder.syncEnabled = false;
        QVERIFY(state->calendars()->insert(placeholder));
        QCOMPARE(CalDavRediscover::upsertDiscoveredCalendars(state.state(), account.id,
                                                             { found(u"http://a.example/cal/"_s) }),
                 0);
        const Calendar filled = *state->calendars()->getById(placeholder.id);
        QCOMPARE(filled.name, u"Work"_s);
        QVERIFY(!filled.isReadOnly && filled.syncEnabled);
    }

private:
    static HttpServer::Reply multistatus(const QByteArray &body)
    {
        return { .status = 207, .body = body, .headers = {} };
    }

    static HttpServer::Reply reply(const QByteArray &target, const QString &script)
    {
        const auto failure = [&script](const QString &word) {
            return HttpServer::Reply{ .status = script.section(word + u' ', 1).section(u' ', 0, 0).toInt(),
                                      .body = {},
                                      .headers = {} };
        };
        const auto candidate = [&](const QString &word) -> HttpServer::Reply {
            if (script.startsWith(word + u" principal"_s))
                return multistatus(Principal);
            if (script.contains(word + u" nothing"_s))
                return multistatus(answer("<d:displayname>x</d:displayname>"));
            return script.startsWith(word) ? failure(word)
                                           : HttpServer::Reply{ .status = 404, .body = {}, .headers = {} };
        };
        if (target == "/me/")
            return script.contains(u"me 500") ? failure(u"me"_s) : multistatus(HomeSet);
        if (target == "/home/")
            return script.contains(u"home 403") ? failure(u"home"_s) : multistatus(Calendars);
        if (target == "/.well-known/caldav")
            return candidate(u"wellknown"_s);
        return target == "/" ? candidate(u"root"_s) : candidate(u"deep"_s);
    }
};

QTEST_GUILESS_MAIN(tst_CalDavDiscovery)
#include "tst_CalDavDiscovery.moc"
