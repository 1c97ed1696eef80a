#include "ui/surfaces/EventColors.h"

#include <QTest>

#include <cmath>

namespace {

/// WCAG 2.1: relative luminance and contrast, written out once more.
double luminance(const QColor &color)
{
    const auto channel = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double x = luminance(a) + 0.05;
    const double y = luminance(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

QColor over(const QColor &top, const QColor &ground)
{
    const double share = top.alpha() / 255.0;
    const auto mix = [share](int a, int b) { return int(std::lround(a * share + b * (1 - share))); };
    return QColor(mix(top.red(), ground.red()), mix(top.green(), ground.green()), mix(top.blue(), ground.blue()));
}

}

class TestEventColors : public QObject {
    Q_OBJECT

private slots:
    void textCanBeRead_data();
    void textCanBeRead();
    void designStaysWhereItCanBeRead();
};

void TestEventColors::textCanBeRead_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<int>("bodyAlpha");
    QTest::addColumn<int>("textAlpha");
    const QColor dark(24, 27, 34);
    const QColor light(231, 233, 238);
    for (const int faint : { 0, 1 }) {
        const char *name = faint ? "faint" : "plain";
        QTest::addRow("%s in light mode", name)
            << QColor(255, 255, 255) << dark << (faint ? 28 : 96) << (faint ? 140 : 255);
        QTest::addRow("%s in dark mode", name)
            << QColor(28, 31, 38) << light << (faint ? 28 : 96) << (faint ? 140 : 255);
        QTest::addRow("%s on grey", name) << QColor(90, 90, 90) << QColor(255, 255, 255) << 96 << (faint ? 140 : 255);
    }
}

void TestEventColors::textCanBeRead()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    QFETCH(int, bodyAlpha);
    QFETCH(int, textAlpha);
    for (int rgb = 0; rgb < 6 * 6 * 6; ++rgb) {
        const QColor event(rgb % 6 * 51, rgb / 6 % 6 * 51, rgb / 36 * 51);
        const BlockColors colors = EventColors::blockColors(event, bodyAlpha, textAlpha, base, text);
        const QColor ground = over(colors.body, base);
        const double ratio = contrast(over(colors.text, ground), ground);
        QVERIFY2(ratio >= 4.45, qPrintable(QStringLiteral("%1: %2").arg(event.name()).arg(ratio)));
        QVERIFY(colors.body.alpha() <= bodyAlpha);
        QVERIFY2(contrast(colors.stripe, base) >= 1.5, qPrintable(event.name()));
        QVERIFY(colors.text.alpha() >= textAlpha);
    }
}

void TestEventColors::designStaysWhereItCanBeRead()
{
    const BlockColors colors =
        EventColors::blockColors(QColor(66, 133, 244), 96, 255, QColor(255, 255, 255), QColor(24, 27, 34));
    QCOMPARE(colors.body, QColor(66, 133, 244, 96));
    QCOMPARE(colors.stripe, QColor(66, 133, 244));
    QCOMPARE(colors.text, QColor(24, 27, 34));
}

QTEST_GUILESS_MAIN(TestEventColors)
#include "tst_EventColors.moc"
