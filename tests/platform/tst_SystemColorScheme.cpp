#include "platform/SystemColorScheme.h"
#include "support/FakePortal.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QStyleHints>
#include <QtTest>

#include <memory>

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)

class tst_SystemColorScheme : public QObject {
    Q_OBJECT

private:
    static void setPalette(bool isDark)
    {
        const QColor dark(20, 20, 20);
        const QColor light(240, 240, 240);
        QPalette palette;
        palette.setColor(QPalette::Window, isDark ? dark : light);
        palette.setColor(QPalette::WindowText, isDark ? light : dark);
        QGuiApplication::setPalette(palette);
    }

    std::unique_ptr<PrivateBus> m_bus;

private slots:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY2(!m_bus->address().isEmpty(), "this test needs dbus-daemon");
    }

    void init() { setPalette(false); }

    void answerDecides_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<bool>("isPaletteDark");
        QTest::addColumn<bool>("isDark");
        QTest::newRow("dark on a light palette") << QVariant(1U) << false << true;
        QTest::newRow("light on a dark palette") << QVariant(2U) << true << false;
        QTest::newRow("no preference, light palette") << QVariant(0U) << false << false;
        QTest::newRow("no preference, dark palette") << QVariant(0U) << true << true;
        QTest::newRow("a number to come, dark palette") << QVariant(7U) << true << true;
        QTest::newRow("not a number, dark palette") << QVariant(QStringLiteral("prefer-light")) << true << true;
        QTest::newRow("no such setting, dark palette") << QVariant() << true << true;
    }

    void answerDecides()
    {
        QFETCH(QVariant, answer);
        QFETCH(bool, isPaletteDark);
        QFETCH(bool, isDark);
        setPalette(isPaletteDark);
        FakePortal portal(*m_bus);
        portal.setColorScheme(answer);

        SystemColorScheme scheme;
        QSignalSpy changes(&scheme, &SystemColorScheme::changed);
        QCOMPARE(scheme.isDark(), isPaletteDark); // the answer cannot be there yet
        QTRY_COMPARE(portal.readCount(), 1);
        QTRY_COMPARE(scheme.isDark(), isDark);
        // A change to the other side proves that the first answer has been taken: the bus keeps the order.
        portal.announceColorScheme(isDark ? 2 : 1);
        QTRY_COMPARE(changes.size(), isDark == isPaletteDark ? 1 : 2);
        QCOMPARE(scheme.isDark(), !isDark);
    }

    void changesAreFollowed()
    {
        FakePortal portal(*m_bus);
        SystemColorScheme scheme;
        QSignalSpy changes(&scheme, &SystemColorScheme::changed);
        QTRY_COMPARE(portal.readCount(), 1);

        portal.announceColorScheme(1);
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(changes.takeFirst().constFirst().toBool(), true);
        QVERIFY(scheme.isDark());

        portal.announceColorScheme(1);
        portal.announceColorScheme(2);
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(changes.takeFirst().constFirst().toBool(), false);
        QVERIFY(!scheme.isDark());
    }

    void otherSettingsMeanNothing()
    {
        FakePortal portal(*m_bus);
        SystemColorScheme scheme;
        QSignalSpy changes(&scheme, &SystemColorScheme::changed);
        QTRY_COMPARE(portal.readCount(), 1);

        portal.announce(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("contrast"), 1U);
        portal.announce(QStringLiteral("org.example.desktop"), QStringLiteral("color-scheme"), 1U);
        portal.announceColorScheme(2);
        portal.announceColorScheme(1);
        QTRY_VERIFY(scheme.isDark());
        QCOMPARE(changes.size(), 1);
    }

    void withoutPortalThePaletteDecides()
    {
        setPalette(true);
        SystemColorScheme scheme;
        QVERIFY(scheme.isDark());
        // Another one's answer shows that this one's refusal has come: the bus serves them in turn.
        FakePortal portal(*m_bus);
        portal.setColorScheme(2U);
        SystemColorScheme later;
        QTRY_VERIFY(!later.isDark());
        QVERIFY(scheme.isDark());
        // A portal that starts late is heard too.
        portal.announceColorScheme(2);
        QTRY_VERIFY(!scheme.isDark());
    }
};

#else

class tst_SystemColorScheme : public QObject {
    Q_OBJECT

private slots:
    void qtDecidesOrElseThePalette()
    {
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(20, 20, 20));
        dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
        QGuiApplication::setPalette(dark);
        SystemColorScheme scheme;
        QCOMPARE(scheme.isDark(), QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Light);
    }
};

#endif

QTEST_MAIN(tst_SystemColorScheme)
#include "tst_SystemColorScheme.moc"
