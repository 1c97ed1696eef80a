#pragma once

#include <QString>

struct Event;

/// Text for an event that was made or edited here. The columns are the truth; whoever sends it to a server
/// composes from them.
namespace ICalEventWriter {

/// A VCALENDAR with one VEVENT: UID, SUMMARY, DTSTART, DTEND in UTC, and the linked task.
QString buildEventRawIcal(const Event &event);

} // namespace ICalEventWriter
