#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QMessageBox *shownBox()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
            return box;
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
        return shownBox();
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
        QTRY_VERIFY(!shownBox());
        QCOMPARE(m_calls, 0);

        QTest::mouseClick(ask(this)->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_VERIFY(!shownBox());
        QCOMPARE(m_calls, 1);
    }

    void nothingIsCalledOnceTheContextIsGone()
    {
        auto *context = new QObject;
        QMessageBox *box = ask(context);
        delete context;
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        QTRY_VERIFY(!shownBox());
        QCOMPARE(m_calls, 0);
    }
};

QTEST_MAIN(tst_Prompt)
#include "tst_Prompt.moc"
