#include "ui/dialogs/ManualUpdateCheck.h"

#include "support/HttpServer.h"
#include "ui/dialogs/Prompt.h"
#include "ui/dialogs/UpdateDialog.h"
#include "ui/dialogs/WhatsNewDialog.h"

#include <QTest>
#include <QTextBrowser>

using namespace QuillonUpdate;

/// Whoever asks for news gets an answer.
class tst_ManualUpdateCheck : public QObject {
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("prompt"); // empty: the dialog of a release
        QTest::newRow("newer") << 200 << QByteArray(R"({"version":"2.0","url":"q.deb"})") << QString();
        QTest::newRow("same") << 200 << QByteArray(R"({"version":"1.3.7","url":"q.deb"})") << "information";
        QTest::newRow("not there") << 404 << QByteArray() << "warning";
    }
    void answers()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, prompt);
        HttpServer server;
        server.enqueue({ .status = status, .body = body, .headers = {} });
        Prompt::ScopedAnswers prompts;
        QWidget window;
        const auto check = [&] { runManualCheck(config(server.url().toString()), appName(), &window, recorder()); };
        check();
        check(); // impatience asks no second time
        QCOMPARE(m_status.size(), 2);
        QTRY_COMPARE(m_status.constLast(), QString());
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(window.findChildren<UpdateDialog *>().size(), prompt.isEmpty() ? 1 : 0);
        QCOMPARE(prompts.asked.size(), prompt.isEmpty() ? 0 : 1);
        if (!prompt.isEmpty())
            QCOMPARE(prompts.asked.constFirst().kind, prompt);
    }

    void notes_data()
    {
        QTest::addColumn<QString>("changelog");
        QTest::addColumn<QString>("notes");
        QTest::newRow("versions") << "# Changelog\n\nFormat.\n\n## [2.0] – today\n- a [b]\n\n## [1.0]\n- c\n"
                                  << "## 2.0 – today\n- a [b]\n\n## 1.0\n- c\n";
        QTest::newRow("no version") << "# Changelog\n\nSoon.\n" << QString();
    }
    void notes()
    {
        QFETCH(QString, changelog);
        QTEST(WhatsNewDialog::notesFrom(changelog), "notes");
    }

    void theProgramCarriesItsNotes()
    {
        QWidget window;
        showWhatsNewManual(config({}), appName(), &window, recorder());
        const auto *notes = window.findChild<QTextBrowser *>();
        QVERIFY(notes && notes->toPlainText().contains(QStringLiteral("Added")));
        QVERIFY(m_status.isEmpty());
    }

    void init() { m_status.clear(); }

private:
    static QString appName() { return QStringLiteral("Quillon Calendar"); }
    static Config config(const QString &url)
    {
        return { .product = QStringLiteral("calendar"),
                 .channel = QStringLiteral("stable"),
                 .baseUrl = url,
                 .version = QStringLiteral("1.3.7") };
    }
    StatusHandler recorder()
    {
        return [this](const QString &text) { m_status.append(text); };
    }

    QStringList m_status;
};

QTEST_MAIN(tst_ManualUpdateCheck)
#include "tst_ManualUpdateCheck.moc"
