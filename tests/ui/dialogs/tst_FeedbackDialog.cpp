#include "ui/dialogs/FeedbackDialog.h"

#include "support/HttpServer.h"
#include "ui/dialogs/Prompt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPlainTextEdit>
#include <QTest>

using namespace QuillonFeedback;

/// What the user wrote reaches the makers, or stays in the dialog.
class tst_FeedbackDialog : public QObject {
    Q_OBJECT

public slots:
    void onMail(const QUrl &url) { m_mails.append(url); }

private slots:
    void aFailureKeepsTheTextAndASuccessCloses()
    {
        HttpServer server;
        server.enqueue({ .status = 503, .body = {}, .headers = {} });
        server.enqueue({ .status = 200, .body = {}, .headers = {} });
        Prompt::ScopedAnswers answers;
        FeedbackDialog dialog({ QStringLiteral("calendar"), server.url(QStringLiteral("/f")).toString() });
        dialog.show();
        dialog.accept();
        QVERIFY(!dialog.problemText().isEmpty()); // nothing to send
        QVERIFY(server.requests().isEmpty());

        auto *message = dialog.findChild<QPlainTextEdit *>();
        message->setPlainText(QStringLiteral("It works"));
        dialog.accept();
        QTRY_VERIFY(!dialog.problemText().isEmpty());
        QVERIFY(dialog.isVisible() && !message->isReadOnly());
        QCOMPARE(message->toPlainText(), QStringLiteral("It works"));

        dialog.findChild<QCheckBox *>()->setChecked(false);
        dialog.accept();
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(answers.asked.size(), 1);
        QCOMPARE(answers.asked.constFirst().kind, QStringLiteral("information"));
        const auto diagnosticsOf = [&server](int request) {
            const QByteArray body = server.requests().at(request).body;
            return QJsonDocument::fromJson(body).object().value(QLatin1StringView("diagnostics")).toString();
        };
        QCOMPARE(diagnosticsOf(0), diagnostics());
        QCOMPARE(diagnosticsOf(1), QString());
    }

    void aMailTakesTheTextAndTheDialogCloses()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("mailto"), this, "onMail");
        Prompt::ScopedAnswers answers;
        FeedbackDialog dialog({ QStringLiteral("calendar"), QStringLiteral("mailto:makers@example.org") });
        dialog.show();
        dialog.findChild<QPlainTextEdit *>()->setPlainText(QStringLiteral("Hello"));
        dialog.accept();
        QDesktopServices::unsetUrlHandler(QStringLiteral("mailto"));
        QCOMPARE(m_mails.size(), 1);
        QVERIFY(m_mails.constFirst().query().contains(QStringLiteral("body=Hello")));
        dialog.reject();
        QVERIFY(!dialog.isVisible());
        QVERIFY(answers.asked.isEmpty());
    }

    void withoutAnAddressTheTextIsCopied()
    {
        Prompt::ScopedAnswers answers;
        answers.sayYes = false;
        FeedbackDialog dialog({ QStringLiteral("calendar"), QString() });
        dialog.show();
        dialog.findChild<QPlainTextEdit *>()->setPlainText(QStringLiteral("Hello"));
        dialog.reject();
        QVERIFY(dialog.isVisible()); // asked, and stayed
        dialog.accept();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Hello\n\n") + diagnostics());
        dialog.reject();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(answers.asked.size(), 2); // the question, and that the text is copied
    }

private:
    QList<QUrl> m_mails;
};

QTEST_MAIN(tst_FeedbackDialog)
#include "tst_FeedbackDialog.moc"
