#include "caldav/CalDavDiscovery.h"

#include "caldav/CalDavClient.h"
#include "caldav/CalDavRediscover.h"
#include "caldav/SilenceGuard.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "support/HttpServer.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QSignalSpy>
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
        row("bare host", u""_s, u"wellknown principal"_s, u"/.well-known/caldav /me/ /home/"_s, u"http /home/work/"_s);
        row("deep address", u"/dav/bob"_s, u"deep principal"_s, u"/dav/bob /me/ /home/"_s, u"http /home/work/"_s);
        row("the root answers", u"/"_s, u"root principal"_s, u"/.well-known/caldav / /me/ /home/"_s,
            u"http /home/work/"_s);
        row("home without principal", u"/dav/"_s, u"deep nothing"_s, u"/dav/ /.well-known/caldav / /dav/ /dav/"_s,
            u"No calendars found at the discovered home set."_s);
        row("one refusal", u""_s, u"root 401"_s, u"/.well-known/caldav /"_s,
            u"The server rejected the username or password."_s);
        row("nothing there", u""_s, u""_s, u"/.well-known/caldav /"_s,
            u"Could not find a CalDAV account on that server. Check the URL."_s);
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
        CalDavClient client;
        CalDavDiscovery discovery(&client);
        const QSignalSpy completed(&discovery, &CalDavDiscovery::completed);
        const QSignalSpy failed(&discovery, &CalDavDiscovery::failed);
        QUrl url = server.url();
        url.setPath(typed);
        url.setUserInfo(u"bob:secret"_s);
        discovery.start(url);
        QTRY_COMPARE(completed.size() + failed.size(), 1);
        QCOMPARE(paths.join(u' '), asked);
        if (failed.isEmpty()) {
            const auto list = completed.first().first().value<QList<DiscoveredCalendar>>();
            QCOMPARE(list.first().url, server.url(outcome.section(u' ', 1)).toString()); // and nobody's password
            QCOMPARE(discovery.homeSet(), server.url(u"/home/"_s).toString());
        } else {
            QCOMPARE(failed.first().first().toString(), outcome);
        }
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
        CalDavClient client;
        CalDavDiscovery discovery(&client);
        const QSignalSpy failed(&discovery, &CalDavDiscovery::failed);
        discovery.start(QUrl(typed));
        QCOMPARE(failed.size(), 0);
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(), u"Enter a CalDAV URL starting with http:// or https://"_s);
    }

    void endsWithASilentOrAbsentServer()
    {
        HttpServer server;
        HttpServer::Reply silence;
        silence.fault = HttpServer::Fault::Hang;
        server.enqueue(silence);
        SilenceGuard::setHaste(10'000);
        CalDavClient client;
        CalDavDiscovery discovery(&client);
        const QSignalSpy failed(&discovery, &CalDavDiscovery::failed);
        discovery.start(server.url());
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(failed.first().first().toString().startsWith(u"Could not reach the server: "_s));
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

        CalDavRediscover::decline(state.state(), account.id, { u"http://a.example/cal/old/"_s });
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/old/"_s) }), 0);
        CalDavRediscover::accept(state.state(), account.id, { u"https://dav.a.example/cal/old/"_s });
        QCOMPARE(upsert({ found(u"https://dav.a.example/cal/old/"_s) }), 1);
        QVERIFY(state->calendars()->softDelete(renamed.id));
        QCOMPARE(upsert({ found(renamed.url), found(u"https://dav.a.example/cal/home"_s) }), 0);
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
            return HttpServer::Reply{ .status = script.section(word + u' ', 1).toInt(), .body = {}, .headers = {} };
        };
        const auto candidate = [&](const QString &word) -> HttpServer::Reply {
            if (script.startsWith(word + u" principal"_s))
                return multistatus(Principal);
            if (script == word + u" nothing"_s)
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
