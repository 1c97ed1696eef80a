#include "ui/dialogs/KeyboardHelpDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_KeyboardHelpDialog : public QObject {
    Q_OBJECT

private slots:
    void filters()
    {
        KeyboardHelpDialog dialog({ { u"Navigation"_qs, u"Today"_qs, { Qt::Key_T } },
                                    { u"Program"_qs, u"Quit"_qs, { Qt::CTRL | Qt::Key_Q } },
                                    { u"Program"_qs, u"Find"_qs, { Qt::CTRL | Qt::Key_F, Qt::Key_F3 } } });
        auto *table = dialog.findChild<QTreeWidget *>();
        const auto shownFor = [&](const QString &typed) {
            dialog.findChild<QLineEdit *>()->setText(typed);
            QStringList shown;
            for (QTreeWidgetItemIterator it(table, QTreeWidgetItemIterator::NotHidden); *it; ++it) {
                if (const QTreeWidgetItem *group = (*it)->parent(); group && !group->isHidden())
                    shown.append((*it)->text(0));
            }
            return shown.join(u' ');
        };
        QCOMPARE(shownFor({}), u"Today Quit Find"_qs);
        QCOMPARE(shownFor(u"  tod"_qs), u"Today"_qs);
        QCOMPARE(shownFor(u"ctrl+f"_qs), u"Find"_qs);
        QCOMPARE(shownFor(u"navig"_qs), u"Today"_qs); // by its group
        QVERIFY(!table->isHidden());
        QCOMPARE(shownFor(u"xyz"_qs), QString());
        QVERIFY(table->isHidden());
    }
};

QTEST_MAIN(tst_KeyboardHelpDialog)
#include "tst_KeyboardHelpDialog.moc"
