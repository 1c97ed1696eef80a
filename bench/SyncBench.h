#pragma once

#include <QStringList>

/// One sync of a CalDAV calendar, as the program does it, as one JSON line. bench/caldav.py has servers, peers and
/// the table.
namespace SyncBench {

/// \p arguments: database, calendar URL, user, password, and "edit" to change an event before.
bool run(const QStringList &arguments);

} // namespace SyncBench
