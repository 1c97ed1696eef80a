#include "calendar/services/EventEditsPrivate.h"

#include <QCoreApplication>

using EventEdits::Outcome;

namespace {

class Tr {
    Q_DECLARE_TR_FUNCTIONS(EventEdits)
};

}

Outcome EventEditsPrivate::done(const QString &id)
{
    return { .ok = true, .id = id, .why = {} };
}

Outcome EventEditsPrivate::refused(const QString &why)
{
    return { .ok = false, .id = {}, .why = why };
}

Outcome EventEditsPrivate::failed()
{
    Outcome outcome = refused(Tr::tr("Could not save the event."));
    outcome.isFailure = true;
    return outcome;
}

void EventEditsPrivate::forgetServer(Event &event)
{
    event.providerEventId.clear();
    event.etag.clear();
    event.href.clear();
}
