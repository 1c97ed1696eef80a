#include "app/state/Platform.h"

#include <QDir>
#include <QStandardPaths>

QString Platform::dataDir()
{
    const QString chosen = qEnvironmentVariable("CALENDAR_DATA_DIR");
    if (!chosen.isEmpty()) {
        QDir(chosen).mkpath(QStringLiteral("."));
        return chosen;
    }
    const QString standard =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quillon/calendar");
    const QDir dir(standard);
    if (!dir.exists())
        dir.mkpath(QStringLiteral("."));
    return standard;
}

QString Platform::databasePath()
{
    return dataDir() + QStringLiteral("/calendar.db");
}

QString Platform::tokenStoreAppId()
{
    const QString id = QStringLiteral("com.quillon.calendar");
    const QString instance = instanceName();
    return instance.isEmpty() ? id : id + QLatin1Char('.') + instance;
}

QString Platform::instanceName()
{
    return qEnvironmentVariable("CALENDAR_INSTANCE");
}

bool Platform::isDevInstance()
{
    return instanceName() == QLatin1StringView("dev");
}
