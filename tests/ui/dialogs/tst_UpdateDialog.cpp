#include "ui/dialogs/UpdateDialog.h"

#include <QtTest>
#include <QtWidgets>

using QuillonUpdate::UpdateDialog;

class tst_UpdateDialog : public QObject {
    Q_OBJECT

public slots:
    void onOpened(const QUrl &url) { m_opened.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler(u"https"_qs, this, "onOpened"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(u"https"_qs); }

    void onlyDownloadOpensTheAddress()
    {
        UpdateDialog later(m_artifact, u"1.3.7"_qs, u"Quillon Calendar"_qs);
        later.show();
        QTest::keyClick(&later, Qt::Key_Escape);
        QVERIFY(!later.isVisible());
        QVERIFY(m_opened.isEmpty());
        UpdateDialog dialog(m_artifact, u"1.3.7"_qs, u"Quillon Calendar"_qs);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Return); // the default button
        QCOMPARE(m_opened, QList<QUrl>{ m_artifact.url });
        QVERIFY(!dialog.isVisible());
    }

    void whatTheServerSaysIsPlainText()
    {
        UpdateDialog dialog(m_artifact, u"1.3.7"_qs, u"Quillon Calendar"_qs);
        QCOMPARE(dialog.findChild<QPlainTextEdit *>()->toPlainText(), m_artifact.notes);
        const auto *label = dialog.findChild<QLabel *>();
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), u"Quillon Calendar <i>2</i> is available. You have version 1.3.7."_qs);
    }

private:
    const QuillonUpdate::Artifact m_artifact{ .version = u"<i>2</i>"_qs,
                                              .url = QUrl(u"https://example.org/q.deb"_qs),
                                              .notes = u"<b>Faster</b>\n& better"_qs,
                                              .sha256 = {} };
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_UpdateDialog)
#include "tst_UpdateDialog.moc"
