#pragma once

#include <QObject>

class QDBusPendingCallWatcher;

/// Whether the desktop asks for dark windows. Qt's own answer where Qt has one (6.5 on, and a desktop that
/// says); on Linux before that the desktop portal's setting, read asynchronously and followed; else by the
/// palette that the application has when this object is made.
class SystemColorScheme : public QObject {
    Q_OBJECT

public:
    explicit SystemColorScheme(QObject *parent = nullptr);

    [[nodiscard]] bool isDark() const { return m_isDark; }

signals:
    void changed(bool isDark);

private slots:
    void onPortalSettingChanged(const QString &group, const QString &key, const class QDBusVariant &value);

private:
    void setDark(bool isDark);
    void askPortal();
    void onPortalAnswered(QDBusPendingCallWatcher *watcher);
    void takePortalValue(const QVariant &value);

    bool m_paletteIsDark = false;
    bool m_isDark = false;
};
