#pragma once

#include "models/Event.h"
#include "models/Task.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QStringList>

/// The text of a calendar object resource (RFC 4791 §4.1) for its server: the newest text known, with what the records
/// say differently written over it, and nothing else touched. A property that has no column, an alarm of another
/// kind, a time zone, an unknown component and the order of lines stay as they were. Pure; lines end in CRLF and
/// are folded at 75 octets.
namespace ResourceComposer {

struct Context {
    QDateTime now; ///< UTC; for DTSTAMP and LAST-MODIFIED
    QStringList ownAddresses; ///< e-mail addresses whose answer (PARTSTAT) is ours to give; the others' is the server's
};

struct Composed {
    QByteArray text; ///< empty when no event or task is left in it
    bool isChanged = false; ///< false: the newest text says already what the records say, and \p text is that
};

/// False for a text that is none to patch: without a whole VCALENDAR, or with components that do not end. It counts as
/// an empty one.
bool isReadable(const QByteArray &text);

/// \p changed: live rows of one UID, master or overrides, to be patched into \p newest or added to it.
/// \p removed: rows of it that were deleted here. Components that belong to neither stay.
/// An empty \p newest stands for a new resource: then the rows' own stored text is what is patched, or nothing.
Composed composeEvents(const QByteArray &newest, const QList<Event> &changed, const QList<Event> &removed,
                       const Context &context);

/// The same for a task; overrides of a repeating one stay in the text.
Composed composeTask(const QByteArray &newest, const Task &task, const Context &context);

} // namespace ResourceComposer
