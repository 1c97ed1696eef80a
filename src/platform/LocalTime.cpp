#include "platform/LocalTime.h"

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>

#include <ctime>

namespace {

constexpr char ZoneVariable[] = "TZ";
// The one value that Qt takes for "look at the system" when it asks for the zone's name.
constexpr char SystemZone[] = ":/etc/localtime";

bool isSettled = false;

struct ZoneFile {
    QString target;
    QDateTime changed;

    bool operator==(const ZoneFile &) const = default;

    static ZoneFile now()
    {
        const QFileInfo file(QStringLiteral("/etc/localtime"));
        return { file.symLinkTarget(), file.lastModified().toUTC() };
    }
};

ZoneFile &known()
{
    static ZoneFile file;
    return file;
}

}

void LocalTime::settle()
{
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIsSet(ZoneVariable) || !QFileInfo::exists(QStringLiteral("/etc/localtime")))
        return;
    known() = ZoneFile::now();
    qputenv(ZoneVariable, SystemZone);
    tzset();
    isSettled = true;
#endif
}

void LocalTime::follow()
{
    if (!isSettled || known() == ZoneFile::now())
        return;
    known() = ZoneFile::now();
    // The file is read again only when the variable has changed in between.
    qunsetenv(ZoneVariable);
    tzset();
    qputenv(ZoneVariable, SystemZone);
    tzset();
}
