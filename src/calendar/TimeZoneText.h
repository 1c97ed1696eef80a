#pragma once

#include "calendar/ICalTree.h"

#include <QString>
#include <QTimeZone>

/// Describes time zones to programs that know only the text at hand. RFC 5545 §3.6.5.
namespace TimeZoneText {

/// A VTIMEZONE called \p tzid with the offsets that the system knows of \p zone, from the beginning of \p firstYear on.
/// Clock changes that come back each year are a yearly rule without end; others are listed, and those that no rule
/// can say for fifty years ahead.
ICal::TreeComponent component(const QString &tzid, const QTimeZone &zone, int firstYear);

} // namespace TimeZoneText
