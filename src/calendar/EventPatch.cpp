#include "calendar/EventPatch.h"

#include "calendar/ComponentPatch.h"
#include "calendar/EventTimesPatch.h"
#include "calendar/ICalEventBuilder.h"
#include "calendar/ICalLineText.h"
#include "calendar/PeoplePatch.h"

#include <algorithm>

using namespace ICal;

namespace {

/// "52.5;13.4" from that, or from a text with a comma; empty for a text that names no place on earth.
QByteArray geoValue(const QString &text)
{
    QString plain = text;
    const QStringList numbers = plain.replace(u',', u';').split(u';');
    bool isLatitude = false;
    bool isLongitude = false;
    if (numbers.size() == 2) {
        numbers[0].trimmed().toDouble(&isLatitude);
        numbers[1].trimmed().toDouble(&isLongitude);
    }
    return isLatitude && isLongitude ? plainValue(numbers[0].trimmed() + u';' + numbers[1].trimmed()) : QByteArray();
}

/// A call by telephone beside the URL stays. RFC 7986 §5.11.
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

/// What no reader fills a column from: an empty one says nothing.
void setUnread(TreeComponent &vevent, const Event &event)
{
    if (const QByteArray geo = geoValue(event.geoLocation); !geo.isEmpty()) {
        const TreeLine *old = vevent.lastLine("GEO");
        if (!old || geoValue(QString::fromUtf8(old->content().value())) != geo)
            ComponentPatch::setValue(vevent, "GEO", geo);
    }
    setConference(vevent, plainValue(event.conferenceUrl));
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
    setUnread(vevent, event);
    PeoplePatch::setOrganizer(vevent, before, event);
    PeoplePatch::setAttendees(vevent, before, event, ownAddresses);
    setReminders(vevent, event);
}
