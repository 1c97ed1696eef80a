#include "support/Contrast.h"
#include "support/TestData.h"
#include "ui/surfaces/EventColors.h"

#include <QtTest>

class TestEventColors : public QObject {
    Q_OBJECT

private slots:
    void textCanBeRead_data()
    {
        columns<QColor, QColor, int>("base", "text", "bodyAlpha");
        const QColor white(Qt::white);
        const QColor dark(24, 27, 34);
        const QColor light(231, 233, 238);
        row("light mode", white, dark, 96);
        row("light mode, faint", white, dark, 28);
        row("dark mode", QColor(28, 31, 38), light, 96);
        row("dark mode, faint", QColor(28, 31, 38), light, 28);
        row("grey", QColor(90, 90, 90), white, 96);
    }

    void textCanBeRead()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QFETCH(int, bodyAlpha);
        const int textAlpha = bodyAlpha == 28 ? 140 : 255;
        for (int rgb = 0; rgb < 6 * 6 * 6; ++rgb) {
            const QColor event(rgb % 6 * 51, rgb / 6 % 6 * 51, rgb / 36 * 51);
            const BlockColors colors = EventColors::blockColors(event, bodyAlpha, textAlpha, base, text);
            const QColor ground = Contrast::over(colors.body, base);
            const double ratio = Contrast::ratio(Contrast::over(colors.text, ground), ground);
            QVERIFY2(ratio >= 4.45, qPrintable(u"%1: %2"_qs.arg(event.name()).arg(ratio)));
            QVERIFY(colors.body.alpha() <= bodyAlpha);
            QVERIFY2(Contrast::ratio(colors.stripe, base) >= 1.5, qPrintable(event.name()));
        }
    }

    void designStaysWhereItCanBeRead()
    {
        const QColor blue(66, 133, 244);
        const BlockColors colors = EventColors::blockColors(blue, 96, 255, Qt::white, QColor(24, 27, 34));
        QCOMPARE(colors.body, EventColors::withAlpha(blue, 96));
        QCOMPARE(colors.stripe, blue);
        QCOMPARE(colors.text, QColor(24, 27, 34));
    }
};

QTEST_GUILESS_MAIN(TestEventColors)
#include "tst_EventColors.moc"
