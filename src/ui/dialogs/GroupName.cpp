#include "ui/dialogs/GroupName.h"

#include "models/ViewDef.h"

#include <QCoreApplication>

namespace {

constexpr QLatin1StringView SeededName("All Calendars"); // what the first migration stores

class Tr {
    Q_DECLARE_TR_FUNCTIONS(GroupName)
};

}

QString allCalendarsName()
{
    return Tr::tr("All Calendars");
}

QString groupDisplayName(const ViewDef &group)
{
    const bool isSeed = group.id == ViewDefaults::AllCalendarsId && group.name == SeededName;
    return isSeed ? allCalendarsName() : group.name;
}
