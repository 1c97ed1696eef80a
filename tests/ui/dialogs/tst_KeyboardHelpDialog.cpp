#include "ui/dialogs/KeyboardHelpDialog.h"

#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

class tst_KeyboardHelpDialog : public QObject {
    Q_OBJECT

private slots:
    void filters_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("shown");
        const QString today = QStringLiteral("Today");
        const QString find = QStringLiteral("Find");
        const QString quit = QStringLiteral("Quit");
        QTest::newRow("nothing typed") << QString() << QStringList{ today, quit, find };
        QTest::newRow("by label") << QStringLiteral("  tod") << QStringList{ today };
        QTest::newRow("by key") << QStringLiteral("ctrl+f") << QStringList{ find };
        QTest::newRow("by group") << QStringLiteral("navig") << QStringList{ today };
        QTest::newRow("no match") << QStringLiteral("xyz") << QStringList();
    }

    void filters()
    {
        QFETCH(QString, typed);
        KeyboardHelpDialog dialog({
            { QStringLiteral("Navigation"), QStringLiteral("Today"), { Qt::Key_T } },
            { QStringLiteral("Program"), QStringLiteral("Quit"), { Qt::CTRL | Qt::Key_Q } },
            { QStringLiteral("Program"), QStringLiteral("Find"), { Qt::CTRL | Qt::Key_F, Qt::Key_F3 } },
        });
        auto *table = dialog.findChild<QTreeWidget *>();
        dialog.findChild<QLineEdit *>()->setText(typed);
        QStringList shown;
        for (QTreeWidgetItemIterator it(table); *it; ++it) {
            const QTreeWidgetItem *group = (*it)->parent();
            if (group && !(*it)->isHidden() && !group->isHidden())
                shown.append((*it)->text(0));
        }
        QTEST(shown, "shown");
        QCOMPARE(table->isHidden(), shown.isEmpty());
    }
};

QTEST_MAIN(tst_KeyboardHelpDialog)
#include "tst_KeyboardHelpDialog.moc"
