#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

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

}

class tst_Prompt : public QObject {
    Q_OBJECT

private:
    QMessageBox *ask(QObject *context)
    {
        m_calls = 0;
        Prompt::question(nullptr, u"Delete?"_qs, u"<b>R&D</b>"_qs, context, [this] { ++m_calls; });
        return shownDialog<QMessageBox>();
    }

    int m_calls = 0;

private slots:
    void questionShowsPlainTextAndDefaultsToNo()
    {
        QMessageBox *box = ask(this);
        QVERIFY(box);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->text(), u"<b>R&D</b>"_qs);
        QCOMPARE(box->defaultButton(), qobject_cast<QPushButton *>(box->button(QMessageBox::No)));
        QTest::keyClick(box, Qt::Key_Escape);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
        QCOMPARE(m_calls, 0);

        QTest::mouseClick(ask(this)->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
        QCOMPARE(m_calls, 1);
    }

    void nothingIsCalledOnceTheContextIsGone()
    {
        auto *context = new QObject;
        QMessageBox *box = ask(context);
        delete context;
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_VERIFY(!shownDialog<QMessageBox>());
        QCOMPARE(m_calls, 0);
    }

    void openFilesOffersSeveralExistingFiles()
    {
        int calls = 0;
        Prompt::openFiles(nullptr, u"Import"_qs, u"Calendars (*.ics)"_qs, this, [&](const QStringList &) { ++calls; });
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
            answers.files = { u"/tmp/a.ics"_qs, u"/tmp/b.ics"_qs };
            Prompt::warning(nullptr, u"W"_qs, u"warned"_qs);
            Prompt::question(nullptr, u"Q"_qs, u"sure?"_qs, this, [&] { ++yes; });
            Prompt::openFiles(nullptr, u"F"_qs, u"*.ics"_qs, this, [&](const QStringList &files) { opened = files; });
            answers.sayYes = false;
            Prompt::question(nullptr, u"Q"_qs, u"really?"_qs, this, [&] { yes += 10; });
            QCOMPARE(yes, 0); // never before the call has returned
            QVERIFY(opened.isEmpty());
            QVERIFY(!shownDialog<QDialog>());
            const QList<Prompt::ScopedAnswers::Asked> expected{ { u"warning"_qs, u"W"_qs, u"warned"_qs },
                                                                { u"question"_qs, u"Q"_qs, u"sure?"_qs },
                                                                { u"openFiles"_qs, u"F"_qs, u"*.ics"_qs },
                                                                { u"question"_qs, u"Q"_qs, u"really?"_qs } };
            QCOMPARE(answers.asked, expected);
        }
        QTRY_COMPARE(opened.size(), 2);
        QCOMPARE(yes, 1);
    }
};

QTEST_MAIN(tst_Prompt)
#include "tst_Prompt.moc"
