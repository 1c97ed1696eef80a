#include "support/Contrast.h"
#include "ui/theme/Theme.h"

#include <QtTest>
#include <QtWidgets>

class tst_Theme : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        Theme::setActiveMode(Theme::Mode::Light);
        Theme::setAccentOverride({});
        Theme::setFontScalePercent(100);
    }

    void textCanBeRead_data()
    {
        QTest::addColumn<Theme::Mode>("mode");
        QTest::addColumn<QString>("accent");
        for (const char *accent : { "", "#ffeb3b", "#ffffff", "#000000", "#ff0000", "#1a237e", "#808080" }) {
            QTest::addRow("light %s", accent) << Theme::Mode::Light << QString::fromLatin1(accent);
            QTest::addRow("dark %s", accent) << Theme::Mode::Dark << QString::fromLatin1(accent);
        }
    }

    void textCanBeRead()
    {
        QFETCH(Theme::Mode, mode);
        QFETCH(QString, accent);
        Theme::setActiveMode(mode);
        Theme::setAccentOverride(accent);
        const auto passes = [](const QColor &text, const QColor &background) {
            const double ratio = Contrast::ratio(text, background);
            if (ratio < 4.5)
                qWarning() << text << "on" << background << "has" << ratio;
            return ratio >= 4.5;
        };
        for (const QColor &background : { Theme::canvas(), Theme::surface(), Theme::surfaceMuted() }) {
            QVERIFY(passes(Theme::textPrimary(), background));
            QVERIFY(passes(Theme::textPrimary(), Contrast::over(Theme::accentMuted(), background)));
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
                    const double ratio = Contrast::ratio(text, background);
                    QVERIFY2(ratio >= 4.5, qPrintable(background.name()));
                    QVERIFY(qAbs(Theme::contrastRatio(text, background) - ratio) < 0.005);
                    QCOMPARE(text == QColor(Qt::white), Contrast::ratio(Qt::white, background) >= 4.5);
                }
            }
        }
    }

    void accent()
    {
        QCOMPARE(Theme::accentMuted(), QColor(66, 133, 244, 38));
        Theme::setActiveMode(Theme::Mode::Dark);
        Theme::setAccentOverride(u"no colour"_qs);
        QCOMPARE(Theme::accentMuted(), QColor(107, 161, 247, 50));
        Theme::setAccentOverride(u"#ff0000"_qs);
        QCOMPARE(Theme::accentMuted(), QColor(255, 0, 0, 50));
    }

    void fontScale()
    {
        const QList<std::pair<int, int>> percents{ { 100, 100 }, { 69, 70 }, { 150, 150 }, { 500, 200 }, { -5, 70 } };
        for (const auto &[percent, bounded] : percents) {
            Theme::setFontScalePercent(percent); // of the first sizes, whatever came before
            QCOMPARE(Theme::fontScalePercent(), bounded);
        }
        QCOMPARE(Theme::FontSizeBody, 7); // 7.7
        QCOMPARE(Theme::FontSizeXxl, 15);
    }

    void styleSheet()
    {
        Theme::setActiveMode(Theme::Mode::Dark);
        Theme::setFontScalePercent(150);
        const QString sheet = Theme::stylesheet();
        for (const QString &piece :
             { u"background: #14161b;"_qs, u"background: #23272f;"_qs, u"color: #e7e9ee;"_qs,
               u"rgba(107, 161, 247, 0.196);"_qs, u"font-size: 16pt;"_qs, u"font-family: \"IBM Plex Sans\";"_qs })
            QVERIFY2(sheet.contains(piece), qPrintable(piece));
        for (const QString &piece : { u"@"_qs, u"QMenu"_qs, u"QCheckBox::indicator"_qs })
            QVERIFY2(!sheet.contains(piece), qPrintable(piece));
        // A short token replaced inside a longer one leaves its rest behind: "#ffffffMuted".
        static const QRegularExpression rest(u"(#[0-9a-f]{6}|[0-9]p[xt]|\\))[A-Za-z]"_qs);
        QVERIFY(!rest.match(sheet).hasMatch());
        Theme::setActiveMode(Theme::Mode::Light);
        static const QRegularExpression url(u"url\\((:[^)]*)\\)"_qs);
        for (auto it = url.globalMatch(sheet + Theme::stylesheet()); it.hasNext();) {
            const QString path = it.next().captured(1);
            QVERIFY2(!QIcon(path).pixmap(12, 12).isNull(), qPrintable(path));
        }
    }

    void iconsAndFontsAreEmbedded()
    {
        QCOMPARE(QImage(u":/icons/app-icon.png"_qs).size(), QSize(256, 256));
        const QString icons = u":/fonts/MaterialIcons-Regular.otf"_qs;
        QVERIFY2(QFile::exists(icons), "built without the fonts: run scripts/setup");
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

    void unreadableColorsGiveWay()
    {
        QCOMPARE(Theme::eventColor(u"#112233"_qs, u"#445566"_qs), QColor(0x11, 0x22, 0x33));
        QCOMPARE(Theme::eventColor(u"#zz"_qs, u"#445566"_qs), QColor(0x44, 0x55, 0x66));
        QCOMPARE(Theme::eventColor({}, u"nothing"_qs), QColor(0x42, 0x85, 0xf4));
        const auto dotColor = [](const QString &name) {
            return Theme::calendarDotIcon(name).pixmap(14, 14).toImage().pixelColor(7, 7);
        };
        QCOMPARE(dotColor(u"#00ff00"_qs), QColor(0, 255, 0));
        QCOMPARE(dotColor(u"greenish"_qs), QColor(0x9a, 0xa0, 0xa6));
    }

    void firstDayOfDateEdits()
    {
        QDateEdit edit;
        edit.setCalendarPopup(true);
        Theme::applyCalendarLocale(&edit, Qt::Saturday);
        QCOMPARE(edit.calendarWidget()->firstDayOfWeek(), Qt::Saturday);
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
