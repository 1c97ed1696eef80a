#include "platform/QuillonUpdate.h"

#include "support/HttpServer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace QuillonUpdate;

namespace {

QByteArray release(const char *version, const char *url = "https://example.org/q.deb")
{
    return QByteArray("{'version':'VERSION','url':'URL','notes':'New'}")
        .replace("VERSION", version)
        .replace("URL", url)
        .replace('\'', '"');
}

}

class tst_QuillonUpdate : public QObject {
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("offered"); // empty: no update
        QTest::addColumn<bool>("fails");

        QTest::newRow("newer") << 200 << release("1.3.8") << "1.3.8" << false;
        QTest::newRow("newer by number, not by text") << 200 << release("1.10.0") << "1.10.0" << false;
        QTest::newRow("same") << 200 << release("1.3.7") << "" << false;
        QTest::newRow("older") << 200 << release("1.3.6") << "" << false;
        QTest::newRow("address beside the answer") << 200 << release("2.0", "q.deb") << "2.0" << false;
        QTest::newRow("address of a program") << 200 << release("2.0", "file:///bin/sh") << "" << true;
        QTest::newRow("no address") << 200 << release("2.0", "") << "" << true;
        QTest::newRow("no version") << 200 << QByteArray("{}") << "" << true;
        QTest::newRow("an array") << 200 << QByteArray("[1]") << "" << true;
        QTest::newRow("a web page") << 200 << QByteArray("<html>Sign in to the hotel</html>") << "" << true;
        QTest::newRow("not found") << 404 << QByteArray() << "" << true;
        QTest::newRow("server error") << 500 << release("9.9") << "" << true;
    }
    void answers()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, offered);
        QFETCH(bool, fails);
        HttpServer server;
        server.enqueue({ .status = status, .body = body, .headers = {} });
        Client client(config(server));
        QSignalSpy available(&client, &Client::updateAvailable);
        QSignalSpy failed(&client, &Client::checkFailed);
        QSignalSpy nothingNewer(&client, &Client::nothingNewer);
        client.checkForUpdate();
        client.checkForUpdate(); // while it runs: the same question
        waitForSecondAnswer(server, client, available);
        QCOMPARE(server.requests().constFirst().target, QByteArray("/calendar/stable/latest.json"));
        QCOMPARE(failed.size(), fails ? 1 : 0);
        QCOMPARE(available.size(), offered.isEmpty() ? 0 : 1);
        QCOMPARE(nothingNewer.size(), offered.isEmpty() && !fails ? 1 : 0);
        if (!offered.isEmpty())
            QCOMPARE(available.constFirst().constFirst().value<Artifact>().version, offered);
    }

    void wholeArtifactArrives()
    {
        HttpServer server;
        const QJsonObject answer{ { QStringLiteral("version"), QStringLiteral("1.4") },
                                  { QStringLiteral("url"), QStringLiteral("q.deb") },
                                  { QStringLiteral("notes"), QStringLiteral("<b>Faster</b>\nBetter") },
                                  { QStringLiteral("sha256"), QStringLiteral("0f") } };
        server.enqueue({ .status = 200, .body = QJsonDocument(answer).toJson(), .headers = {} });
        Client client(config(server));
        QSignalSpy available(&client, &Client::updateAvailable);
        client.checkForUpdate();
        QVERIFY(available.wait());
        const auto artifact = available.constFirst().constFirst().value<Artifact>();
        QCOMPARE(artifact.url, server.url(QStringLiteral("/calendar/stable/q.deb")));
        QCOMPARE(artifact.notes, QStringLiteral("<b>Faster</b>\nBetter"));
        QCOMPARE(artifact.sha256, QStringLiteral("0f"));
    }

    void faults_data()
    {
        QTest::addColumn<HttpServer::Fault>("fault");
        QTest::addColumn<qsizetype>("bodySize");
        QTest::newRow("cut in the middle") << HttpServer::Fault::Truncate << qsizetype(1000);
        QTest::newRow("closed") << HttpServer::Fault::Close << qsizetype(0);
        QTest::newRow("far too long") << HttpServer::Fault::None << qsizetype(3 * Client::MaxAnswerBytes);
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
        server.enqueue({ .status = 200, .body = {}, .headers = {}, .fault = HttpServer::Fault::Hang });
        auto client = std::make_unique<Client>(config(server));
        client->checkForUpdate();
        QTRY_COMPARE(server.requests().size(), 1);
        client.reset(); // no signal into a dead object, no crash
    }

    void withoutAddressNothingIsAsked()
    {
        HttpServer server;
        Config unset = config(server);
        unset.baseUrl.clear();
        Client silent(unset);
        QSignalSpy failed(&silent, &Client::checkFailed);
        silent.checkForUpdate();

        Client other(config(server));
        QSignalSpy otherFailed(&other, &Client::checkFailed);
        other.checkForUpdate();
        QVERIFY(otherFailed.wait());
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(failed.size(), 0);
    }

private:
    static Config config(const HttpServer &server)
    {
        return { .product = QStringLiteral("calendar"),
                 .channel = QStringLiteral("stable"),
                 .baseUrl = server.url(QStringLiteral("/calendar/stable/")).toString(),
                 .version = QStringLiteral("1.3.7") };
    }

    // Silence is seen by asking once more: that question is only sent after the first has ended.
    static void waitForSecondAnswer(HttpServer &server, Client &client, QSignalSpy &available)
    {
        QTRY_COMPARE(server.requests().size(), 1);
        server.enqueue({ .status = 200, .body = release("99"), .headers = {} });
        const auto isSecond = [&] {
            client.checkForUpdate();
            return !available.isEmpty()
                && available.constLast().constFirst().value<Artifact>().version == QLatin1StringView("99");
        };
        QTRY_VERIFY(isSecond());
        QCOMPARE(server.requests().size(), 2);
        available.removeLast();
    }
};

QTEST_GUILESS_MAIN(tst_QuillonUpdate)
#include "tst_QuillonUpdate.moc"
