#include "ui/dialogs/ColorButton.h"

#include <QtTest>
#include <QtWidgets>

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
        for (const auto key : { Qt::Key_Down, Qt::Key_Right, Qt::Key_Return }) // six in a row: from the 2nd to the 9th
            QTest::keyClick(popup->focusWidget(), key);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(button.color(), ColorButton::palette().at(8).color);
        QVERIFY(!popup->isVisible());
        QVERIFY(button.accessibleName().contains(ColorButton::palette().at(8).name));
    }

    void unusedColorsComeInTurn()
    {
        QStringList used;
        for (const ColorButton::Swatch &swatch : ColorButton::palette()) {
            QCOMPARE(ColorButton::unusedColor(used), swatch.color);
            used.append(swatch.color.toLower());
        }
        QCOMPARE(ColorButton::unusedColor(used), u"#4285F4"_qs);
        ColorButton button;
        button.setColor(u"no color"_qs);
        QCOMPARE(button.color(), u"#4285F4"_qs);
    }
};

QTEST_MAIN(tst_ColorButton)
#include "tst_ColorButton.moc"
