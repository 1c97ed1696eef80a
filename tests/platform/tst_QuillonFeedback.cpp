#include "platform/QuillonFeedback.h"

#include "support/HttpServer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace QuillonFeedback;
using Fault = HttpServer::Fault;

class tst_QuillonFeedback : public QObject {
    Q_OBJECT

private slots:
    void channels_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<Channel>("channel");
        QTest::newRow("none") << QString() << Channel::Clipboard;
        QTest::newRow("web") << "https://example.org/feedback" << Channel::Web;
        QTest::newRow("mail") << "mailto:makers@example.org" << Channel::Mail;
        QTest::newRow("mail to nobody") << "mailto:" << Channel::Clipboard;
        QTest::newRow("no host") << "https:///feedback" << Channel::Clipboard;
        QTest::newRow("a program") << "file:///bin/sh" << Channel::Clipboard;
    }
    void channels()
    {
        QFETCH(QString, url);
        QTEST(channelOf({ QStringLiteral("calendar"), url }), "channel");
    }

    void mailKeepsEveryCharacter()
    {
        const QUrl url =
            mailUrl({ QStringLiteral("calendar"), QStringLiteral("mailto:makers@example.org") },
                    QStringLiteral("1 + 1"), { QStringLiteral("a&b=c?\n50 % ü"), QStringLiteral("Qt #6") });
        QCOMPARE(url.toEncoded(),
                 QByteArray("mailto:makers@example.org?subject=1%20%2B%201"
                            "&body=a%26b%3Dc%3F%0D%0A50%20%25%20%C3%BC%0D%0A%0D%0AQt%20%236"));
    }

    void sends_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<bool>("arrives");
        QTest::newRow("taken") << 200 << Fault::None << true;
        QTest::newRow("taken without a word") << 204 << Fault::None << true;
        QTest::newRow("moved: following would send nothing") << 302 << Fault::None << false;
        QTest::newRow("refused") << 403 << Fault::None << false;
        QTest::newRow("broken") << 500 << Fault::None << false;
        QTest::newRow("gone in the middle") << 200 << Fault::Close << false;
    }
    void sends()
    {
        QFETCH(int, status);
        QFETCH(Fault, fault);
        QFETCH(bool, arrives);
        HttpServer server;
        server.setHandler([=](const HttpServer::Request &request) {
            const bool isFirst = request.target == "/feedback";
            return HttpServer::Reply{ .status = isFirst ? status : 200,
                                      .body = {},
                                      .headers = { { "Location", "/elsewhere" } },
                                      .fault = isFirst ? fault : Fault::None };
        });
        Client client({ QStringLiteral("calendar"), server.url(QStringLiteral("/feedback")).toString() });
        QSignalSpy sent(&client, &Client::sent);
        QSignalSpy failed(&client, &Client::sendFailed);
        client.send({ QStringLiteral("Größe \"ok\"\n"), {} });
        QTRY_COMPARE(sent.size() + failed.size(), 1);
        QCOMPARE(sent.size(), arrives ? 1 : 0);
        QVERIFY(!server.requests().isEmpty());
        const HttpServer::Request request = server.requests().constFirst();
        QCOMPARE(request.method, QByteArray("POST"));
        QCOMPARE(QJsonDocument::fromJson(request.body).object(),
                 QJsonObject({ { QStringLiteral("product"), QStringLiteral("calendar") },
                               { QStringLiteral("message"), QStringLiteral("Größe \"ok\"\n") },
                               { QStringLiteral("diagnostics"), QString() } }));
    }
};

QTEST_GUILESS_MAIN(tst_QuillonFeedback)
#include "tst_QuillonFeedback.moc"
