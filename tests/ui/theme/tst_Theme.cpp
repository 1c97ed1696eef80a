#include "ui/theme/Theme.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QPalette>
#include <QRawFont>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTimeEdit>
#include <QtTest>

#include <cmath>

namespace {

// The contrast formula a second time, straight from WCAG 2.1.
double relativeLuminance(const QColor &color)
{
    const auto part = [](int value) {
        const double c = value / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::exp(2.4 * std::log((c + 0.055) / 1.055));
    };
    return part(color.red()) * 0.2126 + part(color.green()) * 0.7152 + part(color.blue()) * 0.0722;
}

double contrast(const QColor &a, const QColor &b)
{
    const double x = relativeLuminance(a) + 0.05;
    const double y = relativeLuminance(b) + 0.05;
    return x > y ? x / y : y / x;
}

QColor over(const QColor &top, const QColor &bottom)
{
    const auto mix = [&](int a, int b) { return (a * top.alpha() + b * (255 - top.alpha())) / 255; };
    return QColor(mix(top.red(), bottom.red()), mix(top.green(), bottom.green()), mix(top.blue(), bottom.blue()));
}

}

class tst_Theme : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        Theme::setActiveMode(Theme::Mode::Light);
        Theme::setAccentOverride({});
        Theme::setFontScalePercent(100);
    }

    void contrastRatio_data()
    {
        QTest::addColumn<QColor>("a");
        QTest::addColumn<QColor>("b");
        QTest::addColumn<double>("ratio");
        QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
        QTest::newRow("the same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
        QTest::newRow("the lightest grey that passes on white") << QColor(0x767676) << QColor(Qt::white) << 4.54;
        QTest::newRow("the first grey that fails on white") << QColor(0x777777) << QColor(Qt::white) << 4.48;
        QTest::newRow("red on white") << QColor(0xff0000) << QColor(Qt::white) << 4.0;
        QTest::newRow("blue on white, the other way round") << QColor(Qt::white) << QColor(0x0000ff) << 8.59;
    }

    void contrastRatio()
    {
        QFETCH(QColor, a);
        QFETCH(QColor, b);
        QFETCH(double, ratio);
        QVERIFY(std::abs(Theme::contrastRatio(a, b) - ratio) < 0.005);
    }

    void textCanBeRead_data()
    {
        QTest::addColumn<Theme::Mode>("mode");
        QTest::addColumn<QString>("accent");
        for (const QString &accent : { u""_qs, u"#ffeb3b"_qs, u"#ffffff"_qs, u"#000000"_qs, u"#ff0000"_qs,
                                       u"#1a237e"_qs, u"#808080"_qs, u"#00c853"_qs }) {
            const QString name = accent.isEmpty() ? u"standard accent"_qs : accent;
            QTest::addRow("light, %s", qPrintable(name)) << Theme::Mode::Light << accent;
            QTest::addRow("dark, %s", qPrintable(name)) << Theme::Mode::Dark << accent;
        }
    }

    void textCanBeRead()
    {
        QFETCH(Theme::Mode, mode);
        QFETCH(QString, accent);
        Theme::setActiveMode(mode);
        Theme::setAccentOverride(accent);
        const auto passes = [](const QColor &text, const QColor &background) {
            const double ratio = contrast(text, background);
            if (ratio < 4.5)
                qWarning() << text << "on" << background << "has" << ratio;
            return ratio >= 4.5;
        };
        for (const QColor &background : { Theme::canvas(), Theme::surface(), Theme::surfaceMuted() }) {
            QVERIFY(passes(Theme::textPrimary(), background));
            QVERIFY(passes(Theme::textPrimary(), over(Theme::accentMuted(), background)));
            QVERIFY(passes(Theme::accentText(), background));
            QVERIFY(passes(Theme::link(), background));
            QVERIFY(passes(Theme::warning(), background));
        }
        QVERIFY(passes(Theme::textMuted(), Theme::canvas()));
        QVERIFY(passes(Theme::textMuted(), Theme::surface()));
        QVERIFY(passes(Theme::textOn(Theme::accent()), Theme::accent()));
    }

    void textOnAnyColour()
    {
        for (int red = 0; red <= 255; red += 15) {
            for (int green = 0; green <= 255; green += 15) {
                for (int blue = 0; blue <= 255; blue += 15) {
                    const QColor background(red, green, blue);
                    const QColor text = Theme::textOn(background);
                    QVERIFY2(contrast(text, background) >= 4.5, qPrintable(background.name()));
                    QCOMPARE(text == QColor(Qt::white), contrast(Qt::white, background) >= 4.5);
                }
            }
        }
    }

    void accent_data()
    {
        QTest::addColumn<Theme::Mode>("mode");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QColor>("accent");
        QTest::addColumn<QColor>("muted");
        QTest::newRow("light") << Theme::Mode::Light << u""_qs << QColor(66, 133, 244) << QColor(66, 133, 244, 38);
        QTest::newRow("dark") << Theme::Mode::Dark << u""_qs << QColor(107, 161, 247) << QColor(107, 161, 247, 50);
        QTest::newRow("red in light") << Theme::Mode::Light << u"#ff0000"_qs << QColor(255, 0, 0)
                                      << QColor(255, 0, 0, 38);
        QTest::newRow("red in dark") << Theme::Mode::Dark << u"#ff0000"_qs << QColor(255, 0, 0)
                                     << QColor(255, 0, 0, 50);
        QTest::newRow("nonsense") << Theme::Mode::Dark << u"no colour"_qs << QColor(107, 161, 247)
                                  << QColor(107, 161, 247, 50);
    }

    void accent()
    {
        QFETCH(Theme::Mode, mode);
        QFETCH(QString, chosen);
        Theme::setActiveMode(mode);
        Theme::setAccentOverride(chosen);
        QTEST(Theme::accent(), "accent");
        QTEST(Theme::accentMuted(), "muted");
    }

    void fontScale_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("bounded");
        QTest::addColumn<QList<int>>("sizes"); // Xs, Sm, Body, Lg, Xl, Xxl, cut to whole points
        QTest::newRow("none") << 100 << 100 << QList<int>{ 9, 10, 11, 13, 16, 22 };
        QTest::newRow("least") << 70 << 70 << QList<int>{ 6, 7, 7, 9, 11, 15 };
        QTest::newRow("below the least") << 69 << 70 << QList<int>{ 6, 7, 7, 9, 11, 15 };
        QTest::newRow("half as much again") << 150 << 150 << QList<int>{ 13, 15, 16, 19, 24, 33 };
        QTest::newRow("above the most") << 500 << 200 << QList<int>{ 18, 20, 22, 26, 32, 44 };
        QTest::newRow("negative") << -5 << 70 << QList<int>{ 6, 7, 7, 9, 11, 15 };
    }

    void fontScale()
    {
        QFETCH(int, percent);
        Theme::setFontScalePercent(130); // what came before must not count
        Theme::setFontScalePercent(percent);
        QTEST(Theme::fontScalePercent(), "bounded");
        const QList<int> actual{ Theme::FontSizeXs, Theme::FontSizeSm, Theme::FontSizeBody,
                                 Theme::FontSizeLg, Theme::FontSizeXl, Theme::FontSizeXxl };
        QTEST(actual, "sizes");
    }

    void styleSheet_data()
    {
        QTest::addColumn<Theme::Mode>("mode");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("light") << Theme::Mode::Light
                               << QStringList{ u"background: #f6f7f9;"_qs,
                                               u"background: #f0f1f4;"_qs,
                                               u"border: 1px solid #e3e5ea;"_qs,
                                               u"background: #c9cdd4;"_qs,
                                               u"color: #181b22;"_qs,
                                               u"color: #6b707a;"_qs,
                                               u"selection-background-color: rgba(66, 133, 244, 0.149);"_qs,
                                               u"arrow-down-light.svg"_qs };
        QTest::newRow("dark") << Theme::Mode::Dark
                              << QStringList{ u"background: #14161b;"_qs,
                                              u"background: #23272f;"_qs,
                                              u"border: 1px solid #2c313a;"_qs,
                                              u"background: #3a404b;"_qs,
                                              u"color: #e7e9ee;"_qs,
                                              u"color: #9aa0ab;"_qs,
                                              u"selection-background-color: rgba(107, 161, 247, 0.196);"_qs,
                                              u"arrow-down-dark.svg"_qs };
    }

    void styleSheet()
    {
        QFETCH(Theme::Mode, mode);
        QFETCH(QStringList, expected);
        Theme::setActiveMode(mode);
        Theme::setFontScalePercent(150);
        const QString sheet = Theme::stylesheet();
        for (const QString &piece : std::as_const(expected))
            QVERIFY2(sheet.contains(piece), qPrintable(piece));
        QVERIFY(sheet.contains(u"font-size: 16pt;"));
        QVERIFY(sheet.contains(u"font-family: \"IBM Plex Sans\";"));
        QVERIFY(sheet.contains(u"border-radius: 10px;"));

        QVERIFY(!sheet.contains(u'@'));
        QVERIFY(!sheet.contains(u"QMenu"));
        QVERIFY(!sheet.contains(u"QCheckBox::indicator"));
        // A short token replaced inside a longer one leaves its rest behind: "#ffffffMuted".
        static const QRegularExpression rest(u"(#[0-9a-f]{6}|[0-9]p[xt]|\\))[A-Za-z]"_qs);
        QVERIFY(!rest.match(sheet).hasMatch());
        QCOMPARE(sheet.count(u'{'), sheet.count(u'}'));
    }

    void imagesOfTheSheetExist()
    {
        static const QRegularExpression url(u"url\\((:[^)]*)\\)"_qs);
        for (const Theme::Mode mode : { Theme::Mode::Light, Theme::Mode::Dark }) {
            Theme::setActiveMode(mode);
            int count = 0;
            for (auto it = url.globalMatch(Theme::stylesheet()); it.hasNext(); ++count) {
                const QString path = it.next().captured(1);
                QVERIFY2(!QIcon(path).pixmap(12, 12).isNull(), qPrintable(path));
            }
            QVERIFY(count > 0);
        }
    }

    void iconsAndFontsAreEmbedded()
    {
        QCOMPARE(QImage(u":/icons/app-icon.png"_qs).size(), QSize(256, 256));
        const QString icons = u":/fonts/MaterialIcons-Regular.otf"_qs;
        if (!QFile::exists(icons))
            QSKIP("built without the fonts");
        const int id = QFontDatabase::addApplicationFont(icons);
        QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList{ u"Material Icons"_qs });
        const QRawFont font(icons, 16);
        for (const char16_t glyph : { u'\uE7F4', u'\uE2C3', u'\uE5C5' })
            QVERIFY2(font.supportsCharacter(QChar(glyph)), qPrintable(QString::number(glyph, 16)));
        for (const QString &name : { u"IBMPlexSans"_qs, u"IBMPlexSans-Italic"_qs, u"IBMPlexSans-Bold"_qs }) {
            const int sans = QFontDatabase::addApplicationFont(u":/fonts/%1.ttf"_qs.arg(name));
            QCOMPARE(QFontDatabase::applicationFontFamilies(sans), QStringList{ Theme::sansFamily() });
        }
    }

    void glyphIcon()
    {
        const QIcon icon = Theme::iconFromGlyph(u'X', 32, Qt::red);
        const QImage image = icon.pixmap(32, 32).toImage();
        QCOMPARE(image.size(), QSize(32, 32));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        int inked = 0;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                inked += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        QVERIFY(inked > 20);
    }

    void dotIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("color");
        QTest::newRow("colour") << u"#00ff00"_qs << QColor(0, 255, 0);
        QTest::newRow("nonsense") << u"greenish"_qs << QColor(0x9a, 0xa0, 0xa6);
        QTest::newRow("empty") << u""_qs << QColor(0x9a, 0xa0, 0xa6);
    }

    void dotIcon()
    {
        QFETCH(QString, name);
        const QImage image = Theme::calendarDotIcon(name).pixmap(14, 14).toImage();
        QCOMPARE(image.size(), QSize(14, 14));
        QTEST(image.pixelColor(7, 7), "color");
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(7, 0).alpha(), 0);
        QVERIFY(image.pixelColor(7, 1).alpha() > 128);
    }

    void eventColor_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("calendar");
        QTest::addColumn<QColor>("color");
        QTest::newRow("the event's own") << u"#112233"_qs << u"#445566"_qs << QColor(0x11, 0x22, 0x33);
        QTest::newRow("the calendar's") << u""_qs << u"#445566"_qs << QColor(0x44, 0x55, 0x66);
        QTest::newRow("unreadable event colour") << u"#zz"_qs << u"#445566"_qs << QColor(0x44, 0x55, 0x66);
        QTest::newRow("neither") << u""_qs << u"nothing"_qs << QColor(0x42, 0x85, 0xf4);
    }

    void eventColor()
    {
        QFETCH(QString, event);
        QFETCH(QString, calendar);
        QTEST(Theme::eventColor(event, calendar), "color");
    }

    void firstDayOfDateEdits()
    {
        QDateEdit withPopup;
        withPopup.setCalendarPopup(true);
        Theme::applyCalendarLocale(&withPopup, Qt::Saturday);
        QCOMPARE(withPopup.calendarWidget()->firstDayOfWeek(), Qt::Saturday);
        QDateEdit plain;
        Theme::applyCalendarLocale(&plain, Qt::Saturday);
        QVERIFY(!plain.calendarWidget());
    }

    void arrowsOfSpinBoxesLieOneOverTheOther()
    {
        QTimeEdit edit;
        edit.setTime(QTime(12, 0)); // else one arrow is drawn as not possible
        edit.setStyleSheet(Theme::stylesheet());
        edit.resize(140, 60);
        const QImage image = edit.grab().toImage();
        const auto inkIn = [&image](int top, int bottom) {
            QRegion ink;
            for (int y = top; y < bottom; ++y) {
                for (int x = image.width() - 30; x < image.width() - 2; ++x) {
                    if (qGray(image.pixel(x, y)) < 200)
                        ink += QRect(x, y, 1, 1);
                }
            }
            return ink.boundingRect();
        };
        const QRect up = inkIn(4, 30);
        const QRect down = inkIn(30, 56);
        QVERIFY(!up.isEmpty());
        QCOMPARE(down.left(), up.left());
        QCOMPARE(down.right(), up.right());
    }

    void foreignTextStaysPlain()
    {
        QCOMPARE(Theme::plainLabel(u"Q&A && more"_qs), u"Q&&A &&&& more"_qs);
        QCOMPARE(Theme::plainToolTip(QString()), QString());
        const QString text = u"<b>5 > 3 & \"x\"</b> %1\nsecond line"_qs;
        const QString toolTip = Theme::plainToolTip(text);
        QVERIFY(Qt::mightBeRichText(toolTip)); // else the entities would show
        QTextDocument shown;
        shown.setHtml(toolTip);
        QCOMPARE(shown.toPlainText(), text);
    }
};

QTEST_MAIN(tst_Theme)
#include "tst_Theme.moc"
