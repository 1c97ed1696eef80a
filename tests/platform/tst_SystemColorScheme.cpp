#include "platform/SystemColorScheme.h"
#include "support/FakePortal.h"
#include "support/TestData.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QStyleHints>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

void setPalette(bool isDark)
{
    const QColor dark(20, 20, 20);
    const QColor light(240, 240, 240);
    QPalette palette;
    palette.setColor(QPalette::Window, isDark ? dark : light);
    palette.setColor(QPalette::WindowText, isDark ? light : dark);
    QGuiApplication::setPalette(palette);
}

}

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)

class tst_SystemColorScheme : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY2(!m_bus->address().isEmpty(), "this test needs dbus-daemon");
    }

    void answerDecides_data()
    {
        columns<QVariant, bool, bool>("answer", "isPaletteDark", "isDark");
        row("dark on a light palette", QVariant(1U), false, true);
        row("light on a dark palette", QVariant(2U), true, false);
        row("no preference, light palette", QVariant(0U), false, false);
        row("a number to come, dark palette", QVariant(7U), true, true);
        row("not a number, dark palette", QVariant(u"prefer-light"_s), true, true);
        row("no such setting, dark palette", QVariant(), true, true);
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
        // Of all that is told next, only a change to the other side counts, and once. It also proves that the
        // first answer has been taken: the bus keeps the order.
        const uint other = isDark ? 2 : 1;
        portal.announce(u"org.freedesktop.appearance"_s, u"contrast"_s, other);
        portal.announce(u"org.example.desktop"_s, u"color-scheme"_s, other);
        portal.announceColorScheme(isDark ? 1 : 2);
        portal.announceColorScheme(other);
        portal.announceColorScheme(other);
        portal.announceColorScheme(isDark ? 1 : 2);
        QTRY_COMPARE(changes.size(), isDark == isPaletteDark ? 2 : 3);
        QCOMPARE(changes.constLast().constFirst().toBool(), isDark);
        QCOMPARE(scheme.isDark(), isDark);
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

private:
    std::unique_ptr<PrivateBus> m_bus;
};

#else

class tst_SystemColorScheme : public QObject {
    Q_OBJECT

private slots:
    void qtDecidesOrElseThePalette()
    {
        setPalette(true);
        SystemColorScheme scheme;
        QCOMPARE(scheme.isDark(), QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Light);
    }
};

#endif

QTEST_MAIN(tst_SystemColorScheme)
#include "tst_SystemColorScheme.moc"
