// Against real servers of other makers, plain and over TLS with a self-signed certificate.

#include "caldav/CalDavClient.h"
#include "caldav/CalDavDiscovery.h"
#include "caldav/CalDavXml.h"
#include "support/RealCalDavServer.h"
#include "support/SyncDevice.h"
#include "support/TestData.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(RealCalDavServer::Kind)
Q_DECLARE_METATYPE(RealCalDavServer::Transport)

class tst_CalDavInterop : public QObject {
    Q_OBJECT

private slots:
    void discoversAndSyncs_data()
    {
        columns<RealCalDavServer::Kind, RealCalDavServer::Transport>("kind", "transport");
        row("Radicale", RealCalDavServer::Radicale, RealCalDavServer::Plain);
        row("Radicale, TLS", RealCalDavServer::Radicale, RealCalDavServer::SelfSigned);
        row("Xandikos", RealCalDavServer::Xandikos, RealCalDavServer::Plain);
        row("Xandikos, TLS", RealCalDavServer::Xandikos, RealCalDavServer::SelfSigned);
    }
    void discoversAndSyncs()
    {
        QFETCH(const RealCalDavServer::Kind, kind);
        QFETCH(const RealCalDavServer::Transport, transport);
        RealCalDavServer server(kind, transport);
        QVERIFY2(server.isUp(), server.log().constData());

        CalDavClient client;
        client.setCredentials(RealCalDavServer::userName(), RealCalDavServer::password());
        QString fingerprint;
        if (transport == RealCalDavServer::SelfSigned)
            trustOnce(client, server, fingerprint);
        const QUrl calendar = makeCalendar(client, server);
        if (QTest::currentTestFailed())
            return;
        discover(client, server, calendar);
        renames(client, calendar);
        if (QTest::currentTestFailed())
            return;
        twoDevicesConverge(calendar, fingerprint);
        if (QTest::currentTestFailed())
            qWarning().noquote() << server.log().right(3000);
    }

private:
    CalDavClient::Response m_response;

    CalDavClient::Callback keep(bool &hasAnswered)
    {
        return [this, &hasAnswered](const CalDavClient::Response &response) {
            m_response = response;
            hasAnswered = true;
        };
    }

    void trustOnce(CalDavClient &client, const RealCalDavServer &server, QString &fingerprint)
    {
        bool hasAnswered = false;
        client.propfind(server.url(), CalDavXml::currentUserPrincipalBody(), 0, keep(hasAnswered));
        QTRY_VERIFY_WITH_TIMEOUT(hasAnswered, 30000);
        QCOMPARE(m_response.status, 0);
        QVERIFY(!m_response.error.isEmpty());
        QVERIFY(client.hasPendingUntrustedCert());
        QCOMPARE(client.pendingUntrustedCert().subject, u"localhost"_s);
        fingerprint = client.pendingUntrustedCert().sha256;
        client.setTrustedCertSha256(CalDavClient::formatFingerprint(fingerprint));
        QVERIFY(!client.hasPendingUntrustedCert());
    }

    QUrl makeCalendar(CalDavClient &client, const RealCalDavServer &server)
    {
        const QUrl url = server.homeUrl().resolved(QUrl(u"team/"_s));
        bool hasAnswered = false;
        client.mkcalendar(url, CalDavXml::mkcalendarBody(u"Team & <friends>"_s, u"#AA5500"_s, {}), keep(hasAnswered));
        [&] { QTRY_VERIFY_WITH_TIMEOUT(hasAnswered, 30000); }();
        [&] { QCOMPARE(m_response.status, 201); }();
        return url;
    }

    void discover(CalDavClient &client, const RealCalDavServer &server, const QUrl &calendar)
    {
        for (const QUrl &typed : { server.url(QString()), server.url(u"/.well-known/caldav"_s), server.homeUrl() }) {
            CalDavDiscovery discovery(&client);
            const QSignalSpy completed(&discovery, &CalDavDiscovery::completed);
            const QSignalSpy failed(&discovery, &CalDavDiscovery::failed);
            discovery.start(typed);
            QTRY_VERIFY_WITH_TIMEOUT(completed.size() + failed.size() == 1, 30000);
            QVERIFY2(failed.isEmpty(), qPrintable(failed.value(0).value(0).toString()));
            const auto list = completed.first().first().value<QList<CalDavParse::DiscoveredCalendar>>();
            const auto found = std::ranges::find(list, calendar.toString(), &CalDavParse::DiscoveredCalendar::url);
            QVERIFY(found != list.end());
            QCOMPARE(found->displayName, u"Team & <friends>"_s);
            QVERIFY(found->components.contains(u"VTODO"_s));
        }
    }

    void renames(CalDavClient &client, const QUrl &calendar)
    {
        bool hasAnswered = false;
        client.proppatch(calendar, CalDavXml::calendarPropPatchBody(u"Renamed"_s, u"#00FF00"_s, {}), keep(hasAnswered));
        QTRY_VERIFY_WITH_TIMEOUT(hasAnswered, 30000);
        QCOMPARE(m_response.status, 207);
        hasAnswered = false;
        client.propfind(calendar, CalDavXml::calendarEnumerationBody(), 0, keep(hasAnswered));
        QTRY_VERIFY_WITH_TIMEOUT(hasAnswered, 30000);
        const auto list = CalDavParse::parseCalendarList(m_response.body, calendar);
        QCOMPARE(list.size(), 1);
        QCOMPARE(list.first().displayName, u"Renamed"_s);
        QCOMPARE(list.first().color.toUpper(), u"#00FF00"_s);
    }

    void twoDevicesConverge(const QUrl &calendar, const QString &fingerprint)
    {
        SyncDevice phone(calendar.toString(), RealCalDavServer::userName(), RealCalDavServer::password());
        SyncDevice laptop(calendar.toString(), RealCalDavServer::userName(), RealCalDavServer::password());
        phone.setTrustedCert(fingerprint);
        laptop.setTrustedCert(fingerprint);

        phone.addEvent(u"plain"_s, u"Grüße, \\ ; \"x\" 日本"_s, utc("2026-03-15T09:00"));
        phone.addEvent(u"odd name #1 50%/x@example.com"_s, u"Odd"_s, utc("2026-03-16T09:00"));
        phone.addEvent(u"weekly"_s, u"Weekly"_s, utc("2026-03-17T09:00"));
        phone.edit(u"weekly"_s, [](Event &event) {
            event.timezone = u"America/New_York"_s;
            event.recurrenceRule = u"FREQ=WEEKLY;COUNT=20"_s;
            event.reminders.resize(1);
            event.reminders.first().minutesBefore = 10;
        });
        phone.addTask(u"task"_s, u"Pay rent"_s);
        QCOMPARE(phone.sync(), QString());
        QCOMPARE(phone.pendingCount(), 0);
        QCOMPARE(laptop.sync(), QString());
        QCOMPARE(laptop.event(u"plain"_s).title, phone.event(u"plain"_s).title);
        QVERIFY(laptop.hasEvent(u"odd name #1 50%/x@example.com"_s));
        QCOMPARE(laptop.event(u"weekly"_s).timezone, u"America/New_York"_s);
        QCOMPARE(laptop.event(u"weekly"_s).reminders.size(), 1);
        QVERIFY(laptop.hasTask(u"task"_s));

        laptop.edit(u"odd name #1 50%/x@example.com"_s, [](Event &event) { event.title = u"Odd, edited"_s; });
        laptop.editTask(u"task"_s, [](Task &task) { task.status = TaskStatus::Completed; });
        laptop.removeEvent(u"plain"_s);
        phone.edit(u"weekly"_s, [](Event &event) { event.location = u"Room 1"_s; });
        QCOMPARE(laptop.sync(), QString());
        QCOMPARE(phone.sync(), QString());
        QCOMPARE(laptop.sync(), QString());
        for (SyncDevice *device : { &phone, &laptop }) {
            QVERIFY(!device->hasEvent(u"plain"_s));
            QCOMPARE(device->event(u"odd name #1 50%/x@example.com"_s).title, u"Odd, edited"_s);
            QCOMPARE(device->event(u"weekly"_s).location, u"Room 1"_s);
            QCOMPARE(device->task(u"task"_s).status, TaskStatus::Completed);
            QCOMPARE(device->pendingCount(), 0);
            const int writes = device->writes();
            QCOMPARE(device->sync(), QString());
            QCOMPARE(device->writes(), writes);
        }
    }
};

QTEST_GUILESS_MAIN(tst_CalDavInterop)
#include "tst_CalDavInterop.moc"
