#include "ui/dialogs/ColorButton.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

class tst_ColorButton : public QObject {
    Q_OBJECT

private slots:
    void picksFromThePaletteByKeyboard()
    {
        ColorButton button;
        button.setColor(ColorButton::palette().at(1).color);
        button.show();
        QSignalSpy changed(&button, &ColorButton::colorChanged);
        button.click();
        QWidget *popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        const auto swatches = popup->findChildren<QToolButton *>();
        QCOMPARE(swatches.size(), 13); // twelve colors and "Custom…"
        QVERIFY(swatches.at(1)->isChecked());
        swatches.at(1)->setFocus();
        QTest::keyClick(swatches.at(1), Qt::Key_Down); // six in a row: from the 2nd to the 8th
        QTest::keyClick(swatches.at(7), Qt::Key_Right);
        QTest::keyClick(swatches.at(8), Qt::Key_Return);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(button.color(), ColorButton::palette().at(8).color);
        QVERIFY(!popup->isVisible());
        QVERIFY(button.accessibleName().contains(ColorButton::palette().at(8).name));
    }

    void anUnreadableColorIsTheStandardOne()
    {
        ColorButton button;
        button.setColor(QStringLiteral("no color"));
        QCOMPARE(button.color(), QStringLiteral("#4285F4"));
        button.setColor(QStringLiteral("#abcdef"));
        QCOMPARE(button.color(), QStringLiteral("#ABCDEF"));
        QCOMPARE(button.text(), QStringLiteral("#ABCDEF"));
    }

    void unusedColorsComeInTurn()
    {
        QStringList used;
        for (int i = 0; i < ColorButton::palette().size(); ++i) {
            const QString next = ColorButton::unusedColor(used);
            QVERIFY(!used.contains(next));
            used.append(next.toLower());
            used.removeDuplicates();
            QCOMPARE(used.size(), i + 1);
        }
        QCOMPARE(ColorButton::unusedColor(used), QStringLiteral("#4285F4"));
    }
};

QTEST_MAIN(tst_ColorButton)
#include "tst_ColorButton.moc"
