#pragma once

#include "models/Calendar.h"

#include <QList>
#include <QString>

class AppState;
class QWidget;

/// Taking calendars of a server away from this device. The server keeps them.
namespace CalendarRemoval {

/// What a question says of changes that were made here and that the server has not got yet: they go with the
/// calendars. Empty if there are none.
QString lossText(AppState *state, const QList<Calendar> &calendars);
/// What to ask before removeFromDevice().
QString questionText(AppState *state, const QList<Calendar> &calendars);

/// With everything in them. No discovery brings them back, except by the user's choice.
void removeFromDevice(AppState *state, const QList<Calendar> &calendars);

/// Asks, and removes on "Yes". \p window stands behind the question.
void ask(AppState *state, const Calendar &calendar, QWidget *window);

} // namespace CalendarRemoval
