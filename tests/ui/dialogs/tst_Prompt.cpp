#include "ui/dialogs/Prompt.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace {

template <typename Dialog> Dialog *shownDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *dialog = qobject_cast<Dialog *>(widget); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// Two rounds of the event loop: what was queued before the call has run.
void settle()
{
    bool done = false;
    QMetaObject::invokeMethod(
        qApp, [&done] { done = true; }, Qt::QueuedConnection);
    QTRY_VERIFY(done);
}

}

class tst_Prompt : public QObject {
    Q_OBJECT

private slots:
    void cleanup()
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets)
            widget->close();
        settle();
    }

    void questionShowsPlainTextAndDefaultsToNo()
    {
        int calls = 0;
        Prompt::question(nullptr, QStringLiteral("Delete?"), QStringLiteral("<b>R&D</b>"), this, [&] { ++calls; });
        auto *box = shownDialog<QMessageBox>();
        QVERIFY(box);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->text(), QStringLiteral("<b>R&D</b>"));
        QCOMPARE(box->defaultButton(), qobject_cast<QPushButton *>(box->button(QMessageBox::No)));
        QTest::keyClick(box, Qt::Key_Escape);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
        QCOMPARE(calls, 0);
    }

    void yesCallsOnce()
    {
        int calls = 0;
        Prompt::question(nullptr, QStringLiteral("Delete?"), QStringLiteral("Really?"), this, [&] { ++calls; });
        auto *box = shownDialog<QMessageBox>();
        QVERIFY(box);
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_COMPARE(calls, 1);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
    }

    void nothingIsCalledOnceTheContextIsGone()
    {
        int calls = 0;
        auto *context = new QObject;
        Prompt::question(nullptr, QStringLiteral("Delete?"), QStringLiteral("Really?"), context, [&] { ++calls; });
        delete context;
        auto *box = shownDialog<QMessageBox>();
        QVERIFY(box);
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
        QCOMPARE(calls, 0);
    }

    void openFilesOffersSeveralExistingFiles()
    {
        int calls = 0;
        Prompt::openFiles(nullptr, QStringLiteral("Import"), QStringLiteral("Calendars (*.ics)"), this,
                          [&](const QStringList &) { ++calls; });
        auto *dialog = shownDialog<QFileDialog>();
        QVERIFY(dialog);
        QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFiles);
        dialog->reject();
        QTRY_VERIFY(!shownDialog<QFileDialog>());
        QCOMPARE(calls, 0);
    }

    void scopedAnswersRecordInsteadOfShowing()
    {
        int yes = 0;
        QStringList opened;
        {
            Prompt::ScopedAnswers answers;
            answers.files = { QStringLiteral("/tmp/a.ics"), QStringLiteral("/tmp/b.ics") };
            Prompt::warning(nullptr, QStringLiteral("W"), QStringLiteral("warned"));
            Prompt::question(nullptr, QStringLiteral("Q"), QStringLiteral("sure?"), this, [&] { ++yes; });
            Prompt::openFiles(nullptr, QStringLiteral("F"), QStringLiteral("*.ics"), this,
                              [&](const QStringList &files) { opened = files; });
            QCOMPARE(yes, 0); // never before the call has returned
            QVERIFY(opened.isEmpty());
            QVERIFY(!shownDialog<QDialog>());
            const QList<Prompt::ScopedAnswers::Asked> expected{
                { QStringLiteral("warning"), QStringLiteral("W"), QStringLiteral("warned") },
                { QStringLiteral("question"), QStringLiteral("Q"), QStringLiteral("sure?") },
                { QStringLiteral("openFiles"), QStringLiteral("F"), QStringLiteral("*.ics") }
            };
            QCOMPARE(answers.asked, expected);
        }
        QTRY_COMPARE(yes, 1);
        QTRY_COMPARE(opened.size(), 2);

        Prompt::ScopedAnswers answers;
        answers.sayYes = false;
        Prompt::question(nullptr, QStringLiteral("Q"), QStringLiteral("sure?"), this, [&] { ++yes; });
        settle();
        QCOMPARE(yes, 1);
    }
};

QTEST_MAIN(tst_Prompt)
#include "tst_Prompt.moc"
