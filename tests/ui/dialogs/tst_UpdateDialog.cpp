#include "ui/dialogs/UpdateDialog.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

using QuillonUpdate::UpdateDialog;

class tst_UpdateDialog : public QObject {
    Q_OBJECT

public slots:
    void onOpened(const QUrl &url) { m_opened.append(url); }

private slots:
    void init()
    {
        m_opened.clear();
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "onOpened");
    }
    void cleanup() { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    void downloadOpensTheAddress()
    {
        UpdateDialog dialog(artifact(), QStringLiteral("1.3.7"), QStringLiteral("Quillon Calendar"));
        dialog.show();
        QTest::mouseClick(button(dialog, QDialogButtonBox::AcceptRole), Qt::LeftButton);
        QCOMPARE(m_opened, QList<QUrl>{ artifact().url });
        QVERIFY(!dialog.isVisible());
    }

    void laterOpensNothing()
    {
        UpdateDialog dialog(artifact(), QStringLiteral("1.3.7"), QStringLiteral("Quillon Calendar"));
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QVERIFY(m_opened.isEmpty());
    }

    void whatTheServerSaysIsPlainText()
    {
        UpdateDialog dialog(artifact(), QStringLiteral("1.3.7"), QStringLiteral("Quillon Calendar"));
        QCOMPARE(dialog.findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("<b>Faster</b>\n& better"));
        const auto *label = dialog.findChild<QLabel *>();
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), QStringLiteral("Quillon Calendar <i>2</i> is available. You have version 1.3.7."));
    }

    void withoutNotesThereIsNoEmptyBox()
    {
        QuillonUpdate::Artifact bare = artifact();
        bare.notes.clear();
        UpdateDialog dialog(bare, QStringLiteral("1.3.7"), QStringLiteral("Quillon Calendar"));
        QVERIFY(!dialog.findChild<QPlainTextEdit *>());
    }

private:
    static QuillonUpdate::Artifact artifact()
    {
        return { .version = QStringLiteral("<i>2</i>"),
                 .url = QUrl(QStringLiteral("https://example.org/q.deb")),
                 .notes = QStringLiteral("<b>Faster</b>\n& better"),
                 .sha256 = {} };
    }
    static QAbstractButton *button(const QDialog &dialog, QDialogButtonBox::ButtonRole role)
    {
        const auto *box = dialog.findChild<QDialogButtonBox *>();
        for (QAbstractButton *candidate : box->buttons()) {
            if (box->buttonRole(candidate) == role)
                return candidate;
        }
        return nullptr;
    }

    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_UpdateDialog)
#include "tst_UpdateDialog.moc"
