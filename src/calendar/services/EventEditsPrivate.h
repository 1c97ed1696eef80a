#pragma once

#include "calendar/services/EventEdits.h"

/// What the parts of EventEdits share.
namespace EventEditsPrivate {

EventEdits::Outcome done(const QString &id);
EventEdits::Outcome refused(const QString &why);
EventEdits::Outcome failed(); ///< the database refused

/// Makes the event a new one to every server.
void forgetServer(Event &event);

} // namespace EventEditsPrivate
