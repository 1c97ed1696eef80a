#include "calendar/EventPatch.h"

#include "calendar/ComponentPatch.h"
#include "calendar/EventTimesPatch.h"
#include "calendar/ICalEventBuilder.h"
#include "calendar/ICalLineText.h"
#include "calendar/PeoplePatch.h"

#include <algorithm>

using namespace ICal;

namespace {

/// No reader fills the column: an empty one says nothing. A call by telephone beside the URL stays. RFC 7986 §5.11.
void setConference(TreeComponent &vevent, const QByteArray &url)
{
    const auto isThere = [&url, &vevent](QByteArrayView name) {
        return std::ranges::any_of(vevent.lines(name),
                                   [&url](const TreeLine *line) { return line->content().value() == url; });
    };
    if (url.isEmpty() || isThere("CONFERENCE") || isThere("X-GOOGLE-CONFERENCE") || isThere("URL"))
        return;
    const std::vector<const TreeLine *> present = vevent.lines("CONFERENCE");
    if (present.size() == 1 && present.front()->content().value().startsWith("http"))
        ComponentPatch::setValue(vevent, "CONFERENCE", url);
    else
        vevent.addLine("CONFERENCE;VALUE=URI:" + url);
}

void setReminders(TreeComponent &vevent, const Event &event)
{
    std::vector<TreeComponent> alarms;
    for (Reminder reminder : event.reminders) {
        if (reminder.action != u"audio")
            reminder.action = QStringLiteral("display"); // all that an event's reminder can be
        alarms.push_back(ComponentPatch::alarm(reminder, "TRIGGER", event.title));
    }
    ComponentPatch::setAlarms(vevent, std::move(alarms), &Alarm::eventReminder, true, EventBuilder::MaxReminders);
}

}

void EventPatch::apply(TreeComponent &vevent, const Event &before, const Event &event,
                       const std::optional<TimeForm> &series, const QStringList &ownAddresses)
{
    EventTimesPatch(vevent, before, event).apply(series);
    ComponentPatch::setText(vevent, "SUMMARY", before.title, event.title);
    ComponentPatch::setText(vevent, "DESCRIPTION", before.description, event.description);
    ComponentPatch::setText(vevent, "LOCATION", before.location, event.location);
    ComponentPatch::setPlain(vevent, "URL", before.eventUrl, event.eventUrl);
    ComponentPatch::setWord(vevent, "STATUS", before.status, event.status, Event().status);
    ComponentPatch::setParent(vevent, ComponentPatch::Parent::FirstNamed, before.relatedToUid, event.relatedToUid);
    setConference(vevent, plainValue(event.conferenceUrl));
    PeoplePatch::setOrganizer(vevent, before, event);
    PeoplePatch::setAttendees(vevent, before, event, ownAddresses);
    setReminders(vevent, event);
}
