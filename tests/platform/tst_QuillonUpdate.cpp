#include "platform/QuillonUpdate.h"

#include "support/HttpServer.h"
#include "support/TestData.h"

#include <QSignalSpy>

#include <memory>

using namespace QuillonUpdate;
using namespace Qt::StringLiterals;

class tst_QuillonUpdate : public QObject {
    Q_OBJECT

private slots:
    void answers_data()
    {
        columns<int, QString, QString, bool>("status", "body", "offered", "fails");
        row("newer by number, not by text", 200, release("1.10.0"), "1.10.0", false);
        row("same", 200, release("1.3.7"), "", false);
        row("older", 200, release("1.3.6"), "", false);
        row("address beside the answer", 200, release("2.0", "q.deb"), "2.0", false);
        row("address of a program", 200, release("2.0", "file:///bin/sh"), "", true);
        row("no address", 200, release("2.0", ""), "", true);
        row("no version", 200, "{}", "", true);
        row("an array", 200, "[1]", "", true);
        row("a web page", 200, "<html>Sign in to the hotel</html>", "", true);
        row("not found", 404, "", "", true);
        row("server error", 500, release("9.9"), "", true);
    }
    void answers()
    {
        QFETCH(int, status);
        QFETCH(QString, body);
        QFETCH(QString, offered);
        HttpServer server;
        server.enqueue({ .status = status, .body = body.toUtf8(), .headers = {} });
        Client client(config(server));
        QSignalSpy available(&client, &Client::updateAvailable);
        QSignalSpy failed(&client, &Client::checkFailed);
        QSignalSpy nothingNewer(&client, &Client::nothingNewer);
        client.checkForUpdate();
        client.checkForUpdate(); // while it runs: the same question
        QTRY_COMPARE(server.requests().size(), 1);
        QCOMPARE(server.requests().constFirst().target, QByteArray("/calendar/stable/latest.json"));

        // Silence is seen by asking once more: that question is only sent after the first has ended.
        server.enqueue({ .status = 200, .body = release("99").toUtf8(), .headers = {} });
        const auto isSecond = [&] {
            client.checkForUpdate();
            return !available.isEmpty() && available.constLast().constFirst().value<Artifact>().version == u"99";
        };
        QTRY_VERIFY(isSecond());
        QCOMPARE(server.requests().size(), 2);
        QTEST(!failed.isEmpty(), "fails");
        QCOMPARE(nothingNewer.size(), offered.isEmpty() && failed.isEmpty() ? 1 : 0);
        QCOMPARE(available.size(), offered.isEmpty() ? 1 : 2);
        if (offered.isEmpty())
            return;
        const auto artifact = available.constFirst().constFirst().value<Artifact>();
        QCOMPARE(artifact.version, offered);
        QCOMPARE(artifact.url.toString(),
                 body.contains(u"example") ? u"https://example.org/q.deb"_s
                                           : server.url(u"/calendar/stable/q.deb"_s).toString());
        QCOMPARE(artifact.notes + artifact.sha256, u"<b>New</b>0f"_s);
    }

    void faults_data()
    {
        columns<HttpServer::Fault, qsizetype>("fault", "bodySize");
        row("cut in the middle", HttpServer::Fault::Truncate, qsizetype(1000));
        row("closed", HttpServer::Fault::Close, qsizetype(0));
        row("far too long", HttpServer::Fault::None, qsizetype(3 * Client::MaxAnswerBytes));
    }
    void faults()
    {
        QFETCH(HttpServer::Fault, fault);
        QFETCH(qsizetype, bodySize);
        HttpServer server;
        server.setHandler([&](const HttpServer::Request &) {
            return HttpServer::Reply{ .status = 200, .body = QByteArray(bodySize, ' '), .headers = {}, .fault = fault };
        });
        Client client(config(server));
        QSignalSpy failed(&client, &Client::checkFailed);
        client.checkForUpdate();
        QVERIFY(failed.wait());
        QCOMPARE(failed.size(), 1);
    }

    void endsWhileTheServerHangs()
    {
        HttpServer server;
        Config unset = config(server);
        unset.baseUrl.clear();
        Client(unset).checkForUpdate(); // asks nobody
        server.enqueue({ .status = 200, .body = {}, .headers = {}, .fault = HttpServer::Fault::Hang });
        auto client = std::make_unique<Client>(config(server));
        client->checkForUpdate();
        QTRY_COMPARE(server.requests().size(), 1);
        client.reset(); // no signal into a dead object, no crash
    }

private:
    static Config config(const HttpServer &server)
    {
        return { .product = u"calendar"_s,
                 .channel = u"stable"_s,
                 .baseUrl = server.url(u"/calendar/stable/"_s).toString(),
                 .version = u"1.3.7"_s };
    }
    static QString release(const char *version, const char *url = "https://example.org/q.deb")
    {
        return u"{\"version\":\"%1\",\"url\":\"%2\",\"notes\":\"<b>New</b>\",\"sha256\":\"0f\"}"_s.arg(
            QLatin1StringView(version), QLatin1StringView(url));
    }
};

QTEST_GUILESS_MAIN(tst_QuillonUpdate)
#include "tst_QuillonUpdate.moc"
