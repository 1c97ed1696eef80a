#include "calendar/services/CalendarAccess.h"

#include "app/state/AppState.h"
#include "storage/CalendarRepository.h"

#include <QCoreApplication>

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(CalendarAccess)
};

}

QString CalendarAccess::refusal(AppState *state, const QString &calendarId)
{
    const auto calendar = state->calendars()->getById(calendarId);
    if (!calendar)
        return Tr::tr("The calendar no longer exists.");
    return calendar->isReadOnly ? Tr::tr("\"%1\" is read-only.").arg(calendar->name) : QString();
}
