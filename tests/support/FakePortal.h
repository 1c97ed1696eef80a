#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>

/// A message bus of the test's own, which knows no services to start. While it lives it is this process's
/// session bus, if it was made before anything used that.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    [[nodiscard]] QString address() const { return m_address; } ///< empty if there is no dbus-daemon

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
    QString m_address;
};

/// The settings part of a desktop portal, on a connection of its own.
class FakePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const PrivateBus &bus, QObject *parent = nullptr);
    ~FakePortal() override;

    void setColorScheme(const QVariant &value) { m_colorScheme = value; } ///< invalid: it has no such setting
    void announce(const QString &group, const QString &key, const QVariant &value);
    void announceColorScheme(uint scheme);
    [[nodiscard]] int readCount() const { return m_readCount; }

public slots:
    QDBusVariant Read(const QString &group, const QString &key); // NOLINT: the interface's own name

private:
    QDBusConnection m_connection;
    QVariant m_colorScheme = 0U;
    int m_readCount = 0;
};
