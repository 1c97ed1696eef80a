#pragma once

#include <QString>
#include <QTimeZone>

/// Finding the zone that a TZID means.
namespace TimeZones {

/// The zone named by \p tzid: an IANA name, a Windows name ("W. Europe Standard Time"), or a path that
/// ends in an IANA name ("/freeassociation.sourceforge.net/Europe/Berlin"). Invalid if it is none.
/// Quotes around the name are ignored. Answers from a cache.
QTimeZone find(QStringView tzid);

/// The zone with this IANA name, and nothing looser: neither a POSIX rule nor a path. Invalid if there is
/// none. Answers from a cache.
QTimeZone ianaZone(const QString &id);

/// The clock changes of \p zone after \p from and up to \p to, also those that only its yearly rules tell.
/// QTimeZone::transitions() ends with the ones that the zone's file lists, mostly in 2037.
QTimeZone::OffsetDataList changes(const QTimeZone &zone, const QDateTime &from, const QDateTime &to);

/// The IANA name of the machine's zone; "UTC" if it has none.
QString systemName();

} // namespace TimeZones
