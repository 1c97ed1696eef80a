#include "support/FakePortal.h"

#include <QDBusMessage>
#include <QFile>
#include <QUuid>

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Appearance = QStringLiteral("org.freedesktop.appearance");
const QString ColorScheme = QStringLiteral("color-scheme");

const char *const BusConfig = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

}

PrivateBus::PrivateBus()
{
    const QString configPath = m_dir.filePath(QStringLiteral("bus.conf"));
    QFile config(configPath);
    if (!config.open(QIODevice::WriteOnly))
        return;
    config.write(QString::fromLatin1(BusConfig).arg(m_dir.filePath(QStringLiteral("bus"))).toUtf8());
    config.close();
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   { QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
                     QStringLiteral("--config-file=") + configPath });
    if (!m_daemon.waitForReadyRead(10000))
        return;
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toUtf8());
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished(5000);
}

FakePortal::FakePortal(const PrivateBus &bus, QObject *parent)
    : QObject(parent)
    , m_connection(QDBusConnection::connectToBus(bus.address(), QUuid::createUuid().toString()))
{
    const bool isServing = m_connection.registerService(Service)
        && m_connection.registerObject(Path, this, QDBusConnection::ExportAllSlots);
    if (!isServing)
        qFatal("cannot serve the portal's settings");
}

FakePortal::~FakePortal()
{
    m_connection.unregisterObject(Path);
    m_connection.unregisterService(Service);
    QDBusConnection::disconnectFromBus(m_connection.name());
}

void FakePortal::announce(const QString &group, const QString &key, const QVariant &value)
{
    QDBusMessage changed = QDBusMessage::createSignal(Path, Interface, QStringLiteral("SettingChanged"));
    changed << group << key << QVariant::fromValue(QDBusVariant(value));
    m_connection.send(changed);
}

void FakePortal::announceColorScheme(uint scheme)
{
    announce(Appearance, ColorScheme, scheme);
}

QDBusVariant FakePortal::Read(const QString &group, const QString &key)
{
    ++m_readCount;
    if (group != Appearance || key != ColorScheme || !m_colorScheme.isValid()) {
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                       QStringLiteral("Requested setting not found"));
        return {};
    }
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_colorScheme)));
}
