#include "platform/SystemColorScheme.h"
#include "support/FakePortal.h"
#include "support/ScratchState.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QtTest>
#include <QtWidgets>

namespace {

bool isNear(QRgb pixel, const QColor &color)
{
    return qAbs(qRed(pixel) - color.red()) + qAbs(qGreen(pixel) - color.green()) + qAbs(qBlue(pixel) - color.blue())
        < 40;
}

/// True if a pixel of the widget, in \p area, comes near \p color.
bool hasColor(QWidget &widget, const QRect &area, const QColor &color)
{
    const QImage image = widget.grab(area).toImage();
    for (int i = 0; i < image.width() * image.height(); ++i) {
        if (isNear(image.pixel(i % image.width(), i / image.width()), color))
            return true;
    }
    return false;
}

}

class tst_ThemeManager : public QObject {
    Q_OBJECT

private:
    PreferencesRepository *preferences() { return (*m_scratch)->preferences(); }

    std::unique_ptr<PrivateBus> m_bus;
    std::optional<ScratchState> m_scratch;
    QFont m_font;

private slots:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY2(!m_bus->address().isEmpty(), "this test needs dbus-daemon");
        m_font = QFont(QStringLiteral("DejaVu Sans"), 11);
    }

    void init()
    {
        m_scratch.emplace();
        qApp->setStyleSheet({});
        QApplication::setPalette(QPalette(Qt::lightGray));
        QApplication::setFont(m_font);
        Theme::setAccentOverride({});
        Theme::setActiveMode(Theme::Mode::Light);
        Theme::setFontScalePercent(100);
    }

    void cleanup() { m_scratch.reset(); }

    void storedMode()
    {
        const QList<std::pair<QString, Theme::Mode>> rows{ { u"system"_qs, Theme::Mode::Light }, // here
                                                           { u"purple"_qs, Theme::Mode::Light },
                                                           { u"dark"_qs, Theme::Mode::Dark } };
        for (const auto &[stored, mode] : rows) {
            preferences()->set(u"ui/theme"_qs, stored);
            ThemeManager manager(preferences());
            manager.applyStoredMode();
            QCOMPARE(manager.mode(), stored);
            QCOMPARE(Theme::activeMode(), mode);
            QCOMPARE(QApplication::palette().color(QPalette::Window), Theme::canvas());
            QCOMPARE(qApp->styleSheet(), Theme::stylesheet());
        }
    }

    void setModeAppliesStoresAndSignalsOnce()
    {
        ThemeManager manager(preferences());
        QSignalSpy changes(&manager, &ThemeManager::modeChanged);
        manager.setMode(u"dark"_qs);
        manager.setMode(u"dark"_qs);
        QCOMPARE(QList<QVariantList>(changes), QList<QVariantList>{ { u"dark"_qs } });
        QCOMPARE(preferences()->get(u"ui/theme"_qs, {}), u"dark"_qs);
        const QPalette palette = QApplication::palette();
        QCOMPARE(palette.color(QPalette::WindowText), QColor(231, 233, 238));
        QCOMPARE(palette.color(QPalette::Base), QColor(27, 30, 36));
        QCOMPARE(palette.color(QPalette::Highlight), QColor(107, 161, 247, 50));
        QCOMPARE(palette.color(QPalette::HighlightedText), QColor(231, 233, 238));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::ButtonText), QColor(92, 98, 109));
    }

    void systemChange()
    {
        FakePortal portal(*m_bus);
        portal.setColorScheme(2U);
        ThemeManager manager(preferences());
        manager.applyStoredMode();
        QSignalSpy changes(&manager, &ThemeManager::modeChanged);

        QTRY_COMPARE(portal.readCount(), 1);
        portal.announceColorScheme(1);
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(changes.constFirst().constFirst().toString(), u"system"_qs);
        QCOMPARE(Theme::activeMode(), Theme::Mode::Dark);
        QVERIFY(qApp->styleSheet().contains(u"arrow-down-dark.svg"));

        // In a fixed mode the system is watched, but does nothing.
        manager.setMode(u"light"_qs);
        changes.clear();
        const SystemColorScheme system;
        QSignalSpy seen(&system, &SystemColorScheme::changed);
        QTRY_COMPARE(portal.readCount(), 2);
        portal.announceColorScheme(2);
        portal.announceColorScheme(1);
        QTRY_VERIFY(!seen.isEmpty());
        QCOMPARE(changes.size(), 0);
    }

    void accent()
    {
        ThemeManager manager(preferences());
        manager.setMode(u"dark"_qs);
        QSignalSpy changes(&manager, &ThemeManager::accentChanged);
        manager.setAccentOverride(u"#ff0000"_qs);
        QCOMPARE(preferences()->get(u"ui/accentColor"_qs, {}), u"#ff0000"_qs);
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(255, 0, 0, 50));
        QVERIFY(qApp->styleSheet().contains(u"background: #ff0000;"));
        manager.setAccentOverride({});
        QVERIFY(!preferences()->get(u"ui/accentColor"_qs).has_value());
        QCOMPARE(QList<QVariantList>(changes),
                 (QList<QVariantList>{ { QColor(255, 0, 0) }, { QColor(107, 161, 247) } }));
    }

    void storedFontScale()
    {
        preferences()->set(u"ui/fontScale"_qs, u"500"_qs);
        ThemeManager manager(preferences());
        manager.applyStoredFontScale();
        QCOMPARE(QApplication::font().pointSize(), 22);
        QCOMPARE(qApp->styleSheet(), QString()); // the mode comes after, with the right sizes at once
        manager.applyStoredMode();
        QVERIFY(qApp->styleSheet().contains(u"font-size: 22pt;"));
        QCOMPARE(preferences()->get(u"ui/fontScale"_qs, {}), u"500"_qs);
    }

    void scalingThereAndBack()
    {
        ThemeManager manager(preferences());
        manager.applyStoredMode();
        QSignalSpy changes(&manager, &ThemeManager::fontScaleChanged);
        QWidget window;
        QLabel own(u"own"_qs, &window);
        own.setFont(QFont(u"DejaVu Sans"_qs, 13));
        QLabel bold(u"bold"_qs, &window);
        QFont boldFont = m_font;
        boldFont.setBold(true);
        bold.setFont(boldFont);
        QLabel following(u"following"_qs, &window);
        QWidget shownLater;
        QLabel late(u"late"_qs, &shownLater);
        late.setFont(own.font());
        window.show();
        manager.applyFontScalePercent(150, true);
        manager.setMode(u"dark"_qs); // which must not bring older fonts back
        shownLater.show();
        QCOMPARE(own.font().pointSize(), 20); // 19.5
        QCOMPARE(late.font().pointSize(), 20);
        QCOMPARE(following.font().pointSize(), 16); // 16.5, cut as the application's own
        QCOMPARE(bold.font().pointSize(), 16);
        QVERIFY(bold.font().bold());
        QVERIFY(qApp->styleSheet().contains(u"font-size: 16pt;"));

        manager.applyFontScalePercent(100, false);
        manager.setMode(u"light"_qs);
        manager.applyFontScalePercent(100, false);
        QCOMPARE(own.font().pointSize(), 13);
        QCOMPARE(following.font().pointSize(), 11);
        QVERIFY(qApp->styleSheet().contains(u"font-size: 11pt;"));
        QCOMPARE(preferences()->get(u"ui/fontScale"_qs, {}), u"150"_qs);
        QCOMPARE(changes.size(), 3);
    }

    void fontsSetLateSurviveAModeChange()
    {
        ThemeManager manager(preferences());
        manager.setMode(u"light"_qs);
        QLabel label(u"today"_qs);
        label.show();
        QFont font = label.font();
        font.setBold(true);
        label.setFont(font);
        manager.setMode(u"dark"_qs);
        QVERIFY(label.font().bold());
    }

    void sheetAndStyleDrawTheWidgets()
    {
        ThemeManager manager(preferences());
        manager.setMode(u"dark"_qs);
        QCheckBox box;
        box.setChecked(true);
        box.resize(box.sizeHint());
        QStyleOptionButton option;
        option.initFrom(&box);
        const QRect indicator = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
        QCOMPARE(indicator.width(), 18); // the style's
        QVERIFY(hasColor(box, indicator, Theme::accent()));
        QVERIFY(hasColor(box, indicator.adjusted(4, 4, -4, -4), Theme::textOn(Theme::accent())));
        box.setEnabled(false);
        QVERIFY(!hasColor(box, indicator, Theme::accent()));
        QVERIFY(hasColor(box, indicator, Theme::textDisabled()));

        QComboBox combo; // empty, so that all ink is the arrow's
        combo.resize(160, combo.sizeHint().height());
        QVERIFY(hasColor(combo, combo.rect().adjusted(4, 4, -4, -4), Theme::textMuted()));
    }

    void theWheelLeavesFieldsWithoutFocusAlone()
    {
        ThemeManager manager(preferences());
        manager.setMode(u"light"_qs);
        QWidget window;
        QVBoxLayout column(&window);
        QSpinBox other;
        QSpinBox box;
        column.addWidget(&other);
        column.addWidget(&box);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto turn = [&box] {
            const QPoint at = box.rect().center();
            QWheelEvent event(at, box.mapToGlobal(at), {}, QPoint(0, 120), {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&box, &event);
            return event.isAccepted();
        };
        other.setFocus();
        QVERIFY(!turn()); // the scroll area below takes it
        QCOMPARE(box.value(), 0);
        QVERIFY(!(box.focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus)); // nor does it get the focus so
        box.setFocus();
        QVERIFY(turn());
        QCOMPARE(box.value(), 1);
    }
};

QTEST_MAIN(tst_ThemeManager)
#include "tst_ThemeManager.moc"
