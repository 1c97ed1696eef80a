#include "ui/accounts/CalendarRemoval.h"

#include "app/state/AppState.h"
#include "caldav/CalDavRediscover.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"
#include "ui/dialogs/Prompt.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(CalendarRemoval)
};

}

QString CalendarRemoval::lossText(AppState *state, const QList<Calendar> &calendars)
{
    int edits = 0;
    for (const Calendar &calendar : calendars)
        edits += state->events()->pendingCount(calendar.id) + state->tasks()->pendingCount(calendar.id);
    return edits == 0
        ? QString()
        : Text::tr("%n change(s) made here have not reached the server yet and will be lost.", nullptr, edits);
}

QString CalendarRemoval::questionText(AppState *state, const QList<Calendar> &calendars)
{
    QStringList names;
    for (const Calendar &calendar : calendars)
        names.append(Text::tr("\"%1\"").arg(calendar.name));
    const QString text = Text::tr("Remove %1 from this device? The server keeps what is in it.", "names of calendars")
                             .arg(QLocale().createSeparatedList(names));
    const QString loss = lossText(state, calendars);
    return loss.isEmpty() ? text : text + QLatin1StringView("\n\n") + loss;
}

void CalendarRemoval::removeFromDevice(AppState *state, const QList<Calendar> &calendars)
{
    for (const Calendar &calendar : calendars) {
        if (state->calendars()->removeDeep(calendar.id))
            CalDavRediscover::decline(state, calendar.accountId, { calendar.url });
    }
}

void CalendarRemoval::ask(AppState *state, const Calendar &calendar, QWidget *window)
{
    Prompt::question(window, Text::tr("Remove calendar?"), questionText(state, { calendar }), state,
                     [state, calendar] { removeFromDevice(state, { calendar }); });
}
