#include "platform/SystemColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>

namespace {

const QString PortalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString PortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString SettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString AppearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString ColorSchemeKey = QStringLiteral("color-scheme");

enum PortalScheme { NoPreference = 0, PreferDark = 1, PreferLight = 2 };

// Connecting to a bus that is not there starts one, and holds the program for a third of a second.
bool hasSessionBus()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeDir.isEmpty() && QFileInfo::exists(runtimeDir + QStringLiteral("/bus"));
}

bool isDarkPalette()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}

SystemColorScheme::SystemColorScheme(QObject *parent)
    : QObject(parent)
    , m_paletteIsDark(isDarkPalette())
    , m_isDark(m_paletteIsDark)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    QStyleHints *hints = QGuiApplication::styleHints();
    const auto saysDark = [this](Qt::ColorScheme scheme) {
        return scheme == Qt::ColorScheme::Unknown ? m_paletteIsDark : scheme == Qt::ColorScheme::Dark;
    };
    m_isDark = saysDark(hints->colorScheme());
    connect(hints, &QStyleHints::colorSchemeChanged, this,
            [this, saysDark](Qt::ColorScheme scheme) { setDark(saysDark(scheme)); });
#elif defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    askPortal();
#endif
}

void SystemColorScheme::askPortal()
{
    if (!hasSessionBus())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // The slot's signature names the type, and nothing has made it known yet: the connection would be refused.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(PortalService, PortalPath, SettingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(onPortalSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read =
        QDBusMessage::createMethodCall(PortalService, PortalPath, SettingsInterface, QStringLiteral("Read"));
    read << AppearanceGroup << ColorSchemeKey;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &SystemColorScheme::onPortalAnswered);
}

void SystemColorScheme::onPortalAnswered(QDBusPendingCallWatcher *watcher)
{
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    watcher->deleteLater();
    if (reply.isValid())
        takePortalValue(reply.value().variant());
}

void SystemColorScheme::onPortalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == AppearanceGroup && key == ColorSchemeKey)
        takePortalValue(value.variant());
}

void SystemColorScheme::takePortalValue(const QVariant &value)
{
    // Read wraps its answer in a second variant; the signal does not.
    const QVariant plain =
        value.metaType() == QMetaType::fromType<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    switch (plain.toUInt()) {
    case PreferDark:
        setDark(true);
        break;
    case PreferLight:
        setDark(false);
        break;
    default:
        setDark(m_paletteIsDark);
    }
}

void SystemColorScheme::setDark(bool isDark)
{
    if (m_isDark == isDark)
        return;
    m_isDark = isDark;
    emit changed(isDark);
}
